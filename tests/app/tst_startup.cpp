#include "x_server.h"

#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>

// Starts the real executable, headless and (when Xvfb is installed) in a real
// X window, and checks the first start and a clean quit.
class TestStartup : public QObject
{
    Q_OBJECT

    static QString configFile(const QTemporaryDir &home)
    {
        return home.filePath(QStringLiteral("data/LumitraConfig/config.ini"));
    }

    static QProcessEnvironment environmentFor(const QTemporaryDir &home)
    {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("XDG_DATA_HOME"), home.filePath(QStringLiteral("data")));
        env.insert(QStringLiteral("XDG_CONFIG_HOME"), home.filePath(QStringLiteral("config")));
        env.insert(QStringLiteral("XDG_RUNTIME_DIR"), home.path());
        return env;
    }

    // Runs the window until its settings file exists, then asks it to quit.
    static void startAndQuit(QProcess &app, const QTemporaryDir &home)
    {
        app.start(QStringLiteral(LUMITRA_EXE), QStringList());
        QVERIFY2(app.waitForStarted(), qPrintable(app.errorString()));
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(configFile(home)), 15000);
        // Let the window finish building and the splash go.
        QTest::qWait(1500);
        QCOMPARE(app.state(), QProcess::Running);
        ::kill(pid_t(app.processId()), SIGTERM);
        QVERIFY(app.waitForFinished(10000));
        QCOMPARE(app.exitStatus(), QProcess::NormalExit);
        QCOMPARE(app.exitCode(), 0);

        QSettings settings(configFile(home), QSettings::IniFormat);
        QCOMPARE(settings.value(QStringLiteral("CANSHU/language")).toString(),
                 QStringLiteral("yw"));
    }

private slots:
    void versionAndHelpNeedNoDisplay()
    {
        QProcess p;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.remove(QStringLiteral("DISPLAY"));
        env.remove(QStringLiteral("QT_QPA_PLATFORM"));
        p.setProcessEnvironment(env);
        p.start(QStringLiteral(LUMITRA_EXE), {QStringLiteral("--version")});
        QVERIFY(p.waitForFinished(10000));
        QCOMPARE(p.exitCode(), 0);
        QCOMPARE(QString::fromUtf8(p.readAllStandardOutput()).trimmed(),
                 QStringLiteral("Lumitra 1.2.0"));
        p.start(QStringLiteral(LUMITRA_EXE), {QStringLiteral("--no-such-option")});
        QVERIFY(p.waitForFinished(10000));
        QCOMPARE(p.exitCode(), 2);
        QVERIFY(!p.readAllStandardError().isEmpty());
    }

    void headlessFirstStart()
    {
        QTemporaryDir home;
        QProcess app;
        QProcessEnvironment env = environmentFor(home);
        env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        app.setProcessEnvironment(env);
        startAndQuit(app, home);
    }

    void realXWindow()
    {
        if (!XServer::available())
            QSKIP("Xvfb is not installed");
        XServer server;
        const QString display = server.start(QSize(1600, 1000));
        QVERIFY(!display.isEmpty());

        QTemporaryDir home;
        QProcess app;
        QProcessEnvironment env = environmentFor(home);
        env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
        env.insert(QStringLiteral("DISPLAY"), display);
        app.setProcessEnvironment(env);
        startAndQuit(app, home);
        if (QTest::currentTestFailed())
            qWarning() << app.readAllStandardError();
    }
};

QTEST_GUILESS_MAIN(TestStartup)
#include "tst_startup.moc"
