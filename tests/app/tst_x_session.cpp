// A whole session in a real X window: the test starts an X server of its own
// (Xvfb, 1280x720) and runs itself again inside it, where the scripted
// session drives the real main window with mouse and key events. Skipped
// when Xvfb is not installed.
#include "window_driver.h"
#include "x_server.h"

#include "language.h"
#include "language_controller.h"
#include "program_state.h"
#include "settings_store.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QTranslator>

using namespace lumitra;
using namespace window_test;

namespace {
const char kInsideX[] = "LUMITRA_X_SESSION";
} // namespace

class TestXSession : public QObject
{
    Q_OBJECT

private slots:
    void sessionInARealXWindow()
    {
        if (qEnvironmentVariableIsSet(kInsideX))
            QSKIP("the session itself runs as scriptedSession");
        if (!XServer::available())
            QSKIP("Xvfb is not installed");
        XServer server;
        const QString display = server.start(QSize(1280, 720));
        QVERIFY(!display.isEmpty());

        QProcess session;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
        env.insert(QStringLiteral("DISPLAY"), display);
        env.insert(QString::fromLatin1(kInsideX), QStringLiteral("1"));
        session.setProcessEnvironment(env);
        session.setProcessChannelMode(QProcess::MergedChannels);
        session.start(QCoreApplication::applicationFilePath(),
                      {QStringLiteral("scriptedSession"), QStringLiteral("screenshots")});
        const bool finished = session.waitForFinished(60000);
        const QString output = QString::fromLocal8Bit(session.readAll());
        QVERIFY2(finished, qPrintable(output));
        QVERIFY2(session.exitStatus() == QProcess::NormalExit && session.exitCode() == 0,
                 qPrintable(output));
        for (const char *part : {"scriptedSession", "screenshots"})
            QVERIFY2(output.contains(
                         QStringLiteral("PASS   : TestXSession::%1()").arg(QLatin1String(part))),
                     qPrintable(output));
    }

    // The main window in German, Japanese and Russian at 1280x720, written to
    // test-output/screens/ beside the test for a person to look at.
    void screenshots()
    {
        if (!qEnvironmentVariableIsSet(kInsideX))
            QSKIP("runs inside the test's own X server");
        const QString folder = QDir::current().filePath(QStringLiteral("test-output/screens"));
        QVERIFY(QDir().mkpath(folder));
        for (const char *code : {"dw", "rw", "ew"}) {
            QTranslator translator;
            QVERIFY(translator.load(language_resource(QString::fromLatin1(code))));
            QCoreApplication::installTranslator(&translator);
            {
                Widget w;
                w.resize(1280, 720);
                w.show();
                QVERIFY(QTest::qWaitForWindowExposed(&w));
                Driver d(&w);
                for (int i = 0; i < 3; ++i)
                    d.drawRectangle(QPointF(30 + 60 * i, -40), QPointF(70 + 60 * i, -90));
                Driver::settle();
                const QString file =
                    QDir(folder).filePath(QStringLiteral("main-%1.png").arg(QLatin1String(code)));
                QVERIFY(w.grab().save(file));
                resetProgramState(); // nothing to ask when the window goes
            }
            QCoreApplication::removeTranslator(&translator);
        }
    }

    // Draw, add a page, switch pages ten times, change the language with
    // unsaved work (say "not yet" to quitting), then quit (confirm).
    void scriptedSession()
    {
        if (!qEnvironmentVariableIsSet(kInsideX))
            QSKIP("runs inside the test's own X server");
        QCOMPARE(QGuiApplication::platformName(), QStringLiteral("xcb"));
        QDir(config_dir()).removeRecursively();
        resetProgramState();
        set_setting(QStringLiteral("language"), QStringLiteral("yw"));
        Asked asked;
        asked.install();

        Widget w;
        w.resize(1280, 720);
        w.show();
        QVERIFY(QTest::qWaitForWindowExposed(&w));
        Driver d(&w);
        d.drawRectangle(QPointF(40, -40), QPointF(140, -120));
        QCOMPARE(d.scene()->designItemCount(), 1);
        d.tool(0);
        d.click(QPointF(300, -300)); // an empty spot
        Driver::settle();
        d.addPageByButton();
        QCOMPARE(d.pages()->count(), 2);
        for (int i = 0; i < 10; ++i) {
            d.clickTab(i % 2);
            QTRY_COMPARE(d.pages()->currentIndex(), i % 2);
            d.view()->viewport()->repaint(); // a real paint on the X server
            Driver::settle();
        }
        QVERIFY(asked.requests.isEmpty());

        // The language change asks to restart, then about the unsaved work.
        asked.answers = {1, 0};
        QSignalSpy quit(&w, &Widget::quitRequested);
        w.languageController()->set_language(QStringLiteral("zw"));
        QTRY_COMPARE(asked.requests.size(), 2);
        QCOMPARE(asked.requests.at(0).message, QStringLiteral("语言修改成功,请重启软件!"));
        QCOMPARE(asked.requests.at(1).message, QStringLiteral("创作未保存,是否立即退出"));
        QTest::qWait(20);
        QVERIFY(quit.isEmpty());
        QVERIFY(w.isVisible());

        // Quitting asks once more; confirmed, the window goes.
        asked.answers = {1};
        QVERIFY(w.close());
        QCOMPARE(asked.requests.size(), 3);
        QCOMPARE(asked.requests.at(2).message, QStringLiteral("创作未保存,是否立即退出"));
        QVERIFY(!w.isVisible());
        set_message_handler({});
    }
};

QTEST_MAIN(TestXSession)
#include "tst_x_session.moc"
