#include "language.h"
#include "program_state.h"
#include "settings_store.h"
#include "work_area.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

using namespace lumitra;

// The settings store, first start and the work area reported by the machine.
class TestSettingsStore : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QDir(config_dir()).removeRecursively();
        resetProgramState();
    }

    void keyRule_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("stored");
        QTest::newRow("plain key") << "language"
                                   << "CANSHU/language";
        QTest::newRow("own group") << "GunZhou/GunZhouMM"
                                   << "GunZhou/GunZhouMM";
        QTest::newRow("deep group") << "a/b/c"
                                    << "a/b/c";
        QTest::newRow("leading slash") << "/x"
                                       << "/x";
    }
    void keyRule()
    {
        QFETCH(QString, key);
        QFETCH(QString, stored);
        QCOMPARE(settings_key(key), stored);
        set_setting(key, QStringLiteral("v1"));
        QSettings raw(config_path(), QSettings::IniFormat);
        QCOMPARE(raw.value(stored).toString(), QStringLiteral("v1"));
        QCOMPARE(get_setting(key), QStringLiteral("v1"));
    }

    void missingKeyIsEmpty() { QVERIFY(get_setting(QStringLiteral("nothing-here")).isEmpty()); }

    void settingsFileLivesUnderGenericData()
    {
        const QString expected =
            QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)
            + QStringLiteral("/LumitraConfig/config.ini");
        QCOMPARE(config_path(), expected);
        QVERIFY(QDir(config_dir()).exists());
    }

    void firstStartWritesDefaultLanguage()
    {
        QVERIFY(!settings_file_exists());
        QCOMPARE(load_language(), QStringLiteral(":/language/yw2.qm"));
        QFile file(config_path());
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(file.readAll());
        QVERIFY2(text.contains(QStringLiteral("[CANSHU]")), qPrintable(text));
        QVERIFY2(text.contains(QStringLiteral("language=yw")), qPrintable(text));
    }

    void laterStartsReadTheStoredLanguage()
    {
        set_setting(QStringLiteral("language"), QStringLiteral("dw"));
        QCOMPARE(load_language(), QStringLiteral(":/language/dw2.qm"));
        // An emptied value falls back to English without rewriting the file.
        set_setting(QStringLiteral("language"), QString());
        QCOMPARE(load_language(), QStringLiteral(":/language/yw2.qm"));
        QCOMPARE(get_setting(QStringLiteral("language")), QString());
    }

    void storeLanguageReportsChange()
    {
        set_setting(QStringLiteral("language"), QStringLiteral("yw"));
        QVERIFY(!store_language(QStringLiteral("yw")));
        QVERIFY(store_language(QStringLiteral("fw")));
        QCOMPARE(get_setting(QStringLiteral("language")), QStringLiteral("fw"));
    }

    void workAreaFromMachine_data()
    {
        QTest::addColumn<QString>("x130");
        QTest::addColumn<QString>("y131");
        QTest::addColumn<bool>("known");
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("height");
        QTest::newRow("rounded") << "300.4"
                                 << "180.6" << true << 300 << 181;
        QTest::newRow("whole") << "410.000"
                               << "400.000" << true << 410 << 400;
        QTest::newRow("zero width") << "0"
                                    << "180.6" << false << 400 << 400;
        QTest::newRow("zero height") << "300"
                                     << "0.000" << false << 400 << 400;
        QTest::newRow("both zero") << "0"
                                   << "0" << false << 400 << 400;
    }
    void workAreaFromMachine()
    {
        QFETCH(QString, x130);
        QFETCH(QString, y131);
        QFETCH(bool, known);
        QFETCH(int, width);
        QFETCH(int, height);
        const MachineTravel t = work_area_from_machine({{130, x130},
                                                        {131, y131},
                                                        {110, QStringLiteral("6000.4")},
                                                        {101, QStringLiteral("3000")},
                                                        {132, QStringLiteral("12.5")}});
        QCOMPARE(t.workAreaKnown, known);
        QCOMPARE(programState().width, width);
        QCOMPARE(programState().height, height);
        QCOMPARE(t.maxRateX, 6000);
        QCOMPARE(t.maxRateY, 3000);
        QCOMPARE(t.zTravel, 12.5);
        if (known) {
            QCOMPARE(get_setting(QStringLiteral("BianKuang/kuan")), QString::number(width));
            QCOMPARE(get_setting(QStringLiteral("BianKuang/gao")), QString::number(height));
        } else {
            QVERIFY(get_setting(QStringLiteral("BianKuang/kuan")).isEmpty());
        }
    }

    void workAreaIsReadBackAtStart()
    {
        set_setting(QStringLiteral("BianKuang/kuan"), QStringLiteral("300"));
        set_setting(QStringLiteral("BianKuang/gao"), QStringLiteral("181"));
        load_work_area();
        QCOMPARE(programState().width, 300);
        QCOMPARE(programState().height, 181);
        // Garbage keeps the current size.
        set_setting(QStringLiteral("BianKuang/kuan"), QStringLiteral("abc"));
        set_setting(QStringLiteral("BianKuang/gao"), QStringLiteral("-5"));
        load_work_area();
        QCOMPARE(programState().width, 300);
        QCOMPARE(programState().height, 181);
    }

    void serialInformationMapGivesNumbers()
    {
        const QMap<int, QString> n =
            numbered_settings({{QStringLiteral("$130"), QStringLiteral("300.4")},
                               {QStringLiteral("$131"), QStringLiteral("180.6")},
                               {QStringLiteral("ji_xing"), QStringLiteral("X")},
                               {QStringLiteral("$abc"), QStringLiteral("1")}});
        QCOMPARE(n.size(), 2);
        QCOMPARE(n.value(130), QStringLiteral("300.4"));
        QCOMPARE(n.value(131), QStringLiteral("180.6"));
    }

    void unwritableFolderIsNotFatal()
    {
        // Point the data location below a plain file: the folder cannot be made.
        QTemporaryDir tmp;
        QFile blocker(tmp.filePath(QStringLiteral("blocker")));
        QVERIFY(blocker.open(QIODevice::WriteOnly));
        blocker.close();
        const QByteArray old = qgetenv("XDG_DATA_HOME");
        qputenv("XDG_DATA_HOME", blocker.fileName().toLocal8Bit());
        QTest::ignoreMessage(QtDebugMsg, "文件夹创建失败");
        set_setting(QStringLiteral("language"), QStringLiteral("fw"));
        QVERIFY(get_setting(QStringLiteral("language")).isEmpty());
        QCOMPARE(load_language(), QStringLiteral(":/language/yw2.qm"));
        qputenv("XDG_DATA_HOME", old);
    }
};

QTEST_GUILESS_MAIN(TestSettingsStore)
#include "tst_settings_store.moc"
