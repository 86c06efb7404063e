#include "close_guard.h"
#include "language.h"
#include "language_controller.h"
#include "message_box.h"
#include "program_state.h"
#include "settings_store.h"
#include "widget.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QTabWidget>
#include <QTranslator>
#include <QtTest>

using namespace lumitra;

// Language menu, message-box replacement and the close guard of the window.
class TestShell : public QObject
{
    Q_OBJECT

    QList<MessageRequest> m_asked;
    int m_answer = 0;

private slots:
    void init()
    {
        QDir(config_dir()).removeRecursively();
        resetProgramState();
        m_asked.clear();
        m_answer = 0;
        set_message_handler([this](const MessageRequest &r) {
            m_asked << r;
            return m_answer;
        });
    }
    void cleanupTestCase() { set_message_handler({}); }

    void everyLanguageHasACompiledTranslation()
    {
        const QStringList codes = all_language_codes();
        QCOMPARE(codes.size(), 10);
        for (const QString &code : codes) {
            QVERIFY2(QFile::exists(language_resource(code)), qPrintable(code));
            QTranslator t;
            QVERIFY2(t.load(language_resource(code)), qPrintable(code));
        }
    }

    // Qt's own texts (standard dialog buttons) follow the interface language
    // where the system ships Qt's translations.
    void qtTextsFollowTheLanguage()
    {
        for (const QString &code : all_language_codes())
            QVERIFY2(!qt_locale_name(code).isEmpty(), qPrintable(code));
        const QString german = qt_translation_file(QStringLiteral("dw"));
        if (german.isEmpty())
            QSKIP("Qt's translations are not installed (qttranslations5-l10n)");
        QTranslator qtTexts;
        QVERIFY(qtTexts.load(german));
        QCoreApplication::installTranslator(&qtTexts);
        const QString close = QCoreApplication::translate("QPlatformTheme", "Close");
        QCoreApplication::removeTranslator(&qtTexts);
        QCOMPARE(close, QStringLiteral("Schließen"));
    }

    void menuOffersNineLanguagesWithoutEw()
    {
        set_setting(QStringLiteral("language"), QStringLiteral("yw"));
        QWidget window;
        LanguageController controller(&window);
        const QList<QAction *> actions = controller.menu()->actions();
        QCOMPARE(actions.size(), 9);
        QCOMPARE(actions.first()->data().toString(), QStringLiteral("zw"));
        QStringList codes;
        for (QAction *a : actions) {
            codes << a->data().toString();
            QCOMPARE(a->isChecked(), a->data().toString() == QStringLiteral("yw"));
        }
        QVERIFY(!codes.contains(QStringLiteral("ew")));
    }

    void sameLanguageShowsNoMessage()
    {
        set_setting(QStringLiteral("language"), QStringLiteral("yw"));
        QWidget window;
        LanguageController controller(&window);
        QSignalSpy quit(&controller, &LanguageController::quitRequested);
        controller.set_language(QStringLiteral("yw"));
        QVERIFY(m_asked.isEmpty());
        QVERIFY(quit.isEmpty());
    }

    void changedLanguageAsksToRestart_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("quits");
        QTest::newRow("restart now") << 1 << true;
        QTest::newRow("restart later") << 0 << false;
    }
    void changedLanguageAsksToRestart()
    {
        QFETCH(int, answer);
        QFETCH(bool, quits);
        set_setting(QStringLiteral("language"), QStringLiteral("yw"));
        QWidget window;
        LanguageController controller(&window);
        QSignalSpy quit(&controller, &LanguageController::quitRequested);
        m_answer = answer;
        controller.set_language(QStringLiteral("rw"));
        QCOMPARE(get_setting(QStringLiteral("language")), QStringLiteral("rw"));
        QCOMPARE(m_asked.size(), 1);
        QCOMPARE(m_asked.first().message, QStringLiteral("语言修改成功,请重启软件!"));
        QCOMPARE(m_asked.first().title, QStringLiteral("提示"));
        QCOMPARE(m_asked.first().firstButton, QStringLiteral("确定"));
        QCOMPARE(m_asked.first().secondButton, QStringLiteral("稍后重启"));
        QCOMPARE(quit.size(), quits ? 1 : 0);
        if (quits)
            QCOMPARE(quit.first().first().toInt(), 0);
    }

    void closeGuard_data()
    {
        QTest::addColumn<bool>("unsaved");
        QTest::addColumn<int>("items");
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("saveSucceeds");
        QTest::addColumn<bool>("asks");
        QTest::addColumn<int>("saves");
        QTest::addColumn<bool>("quits");
        QTest::newRow("saved, items") << false << 3 << 0 << true << false << 0 << true;
        QTest::newRow("unsaved, no items") << true << 0 << 0 << true << false << 0 << true;
        QTest::newRow("unsaved, items, confirm") << true << 2 << 1 << true << true << 0 << true;
        QTest::newRow("unsaved, items, cancel") << true << 2 << 0 << true << true << 0 << false;
        QTest::newRow("save, then quit") << true << 2 << 2 << true << true << 1 << true;
        QTest::newRow("save cancelled or failed") << true << 2 << 2 << false << true << 1 << false;
    }
    void closeGuard()
    {
        QFETCH(bool, unsaved);
        QFETCH(int, items);
        QFETCH(int, answer);
        QFETCH(bool, saveSucceeds);
        QFETCH(bool, asks);
        QFETCH(int, saves);
        QFETCH(bool, quits);
        m_answer = answer;
        int saved = 0;
        const auto save = [&] {
            ++saved;
            return saveSucceeds;
        };
        QCOMPARE(close_guard(nullptr, unsaved, items, save), quits);
        QCOMPARE(saved, saves);
        QCOMPARE(m_asked.size(), asks ? 1 : 0);
        if (asks) {
            QCOMPARE(m_asked.first().message, QStringLiteral("创作未保存,是否立即退出"));
            QCOMPARE(m_asked.first().firstButton, QStringLiteral("确定"));
            QCOMPARE(m_asked.first().secondButton, QStringLiteral("取消"));
            QCOMPARE(m_asked.first().thirdButton, QStringLiteral("保存"));
        }
    }

    void windowClosesAtOnceWithEmptyDesign()
    {
        programState().unsaved = true;
        Widget w;
        w.show();
        QVERIFY(QTest::qWaitForWindowExposed(&w));
        QVERIFY(w.close());
        QVERIFY(m_asked.isEmpty());
    }

    void windowHasItsTitleAndVersion()
    {
        Widget w;
        QCOMPARE(w.windowTitle(), QStringLiteral("Lumitra"));
        QLabel *version = w.findChild<QLabel *>(QStringLiteral("version_Lab"));
        QVERIFY(version);
        QCOMPARE(version->text(), QStringLiteral("1.2.0"));
        QTabWidget *tabs = w.findChild<QTabWidget *>(QStringLiteral("viewTabs"));
        QVERIFY(tabs);
        QCOMPARE(tabs->tabText(0), QStringLiteral("视图"));
    }
};

QTEST_MAIN(TestShell)
#include "tst_shell.moc"
