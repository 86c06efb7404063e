#include <QFile>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

// The job time estimate through the real executable: one number of seconds
// on stdout, the machine's settings taken from a "$$" reply, and one line on
// stderr for a file that cannot be read.
class TestHeadlessEstimate : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

    int run(const QStringList &args, QByteArray *out, QByteArray *err)
    {
        QProcess p;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("XDG_DATA_HOME"), m_dir.filePath(QStringLiteral("data")));
        env.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_dir.path());
        env.remove(QStringLiteral("DISPLAY"));
        p.setProcessEnvironment(env);
        p.start(QStringLiteral(LUMITRA_EXE), args);
        if (!p.waitForFinished(30000))
            return -1;
        *out = p.readAllStandardOutput();
        *err = p.readAllStandardError();
        return p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1;
    }

    QString write(const QString &name, const QByteArray &text)
    {
        const QString path = m_dir.filePath(name);
        QFile f(path);
        if (!f.open(QIODevice::WriteOnly))
            return QString();
        f.write(text);
        return path;
    }

    // Stands for what the window keeps of the last connected controller's
    // settings (empty: none kept).
    void keepMachineSettings(const QString &entries)
    {
        QSettings kept(m_dir.filePath(QStringLiteral("data/LumitraConfig/config.ini")),
                       QSettings::IniFormat);
        if (entries.isEmpty())
            kept.remove(QStringLiteral("JiQi/CanShu"));
        else
            kept.setValue(QStringLiteral("JiQi/CanShu"), entries);
    }

private slots:
    void estimates_data()
    {
        QTest::addColumn<QByteArray>("dump");
        QTest::addColumn<QString>("kept");
        QTest::addColumn<QString>("baud");
        QTest::addColumn<QByteArray>("expected");
        const QByteArray dump("$0=10\r\n$110=6000.000\r\n$111=6000.000\r\n$120=100.000\r\n"
                              "$121=100.000\r\n$32=1\r\nok\r\n");
        const QString kept("$110=3000.000 $111=3000.000 $120=100.000 $121=100.000 $32=1");
        // The factory 500 mm/min and 10 mm/s²: 8.33 mm/s reached after 3.47 mm.
        QTest::newRow("factory settings")
            << QByteArray() << QString() << QString() << QByteArray("12.833\n");
        // 6000 mm/min, 100 mm/s²: 0.5 s up, 75 mm at 50 mm/s, 0.5 s down.
        QTest::newRow("settings dump") << dump << QString() << QString() << QByteArray("2.500\n");
        // Without a dump, the settings kept from the last controller: at
        // 3000 mm/min the feed (50 mm/s) is the limit as with the dump.
        QTest::newRow("kept settings")
            << QByteArray() << kept << QString() << QByteArray("2.500\n");
        // A dump wins over the kept settings. At its 1000 mm/min: 1/6 s up and
        // 1/6 s down over 1.39 mm each, 97.2 mm at 16.67 mm/s between.
        QTest::newRow("dump over kept") << QByteArray("$110=1000\n$111=1000\n$120=100\n$121=100\n")
                                        << kept << QString() << QByteArray("6.167\n");
        // At 300 baud (30 bytes a second) the move's line is in after
        // 19 bytes: 0.633 s before the move starts.
        QTest::newRow("slow serial link")
            << dump << QString() << QStringLiteral("300") << QByteArray("3.133\n");
    }
    void estimates()
    {
        QFETCH(QByteArray, dump);
        QFETCH(QString, kept);
        QFETCH(QString, baud);
        QFETCH(QByteArray, expected);
        keepMachineSettings(kept);
        const QString job = write(QStringLiteral("job.nc"), "M4\nG1X100S500F3000\nM5\n");
        QStringList args{QStringLiteral("--estimate"), job};
        if (!dump.isEmpty())
            args << QStringLiteral("--settings") << write(QStringLiteral("dump.txt"), dump);
        if (!baud.isEmpty())
            args << QStringLiteral("--baud") << baud;
        QByteArray out, err;
        QCOMPARE(run(args, &out, &err), 0);
        QCOMPARE(out, expected);
        QCOMPARE(err, QByteArray());
    }

    void refusesUnreadableFiles_data()
    {
        QTest::addColumn<QStringList>("args");
        QTest::newRow("missing job") << QStringList{"--estimate", "missing.nc"};
        QTest::newRow("missing dump")
            << QStringList{"--estimate", "job.nc", "--settings", "missing.txt"};
        QTest::newRow("job is a folder") << QStringList{"--estimate", "."};
    }
    void refusesUnreadableFiles()
    {
        QFETCH(QStringList, args);
        write(QStringLiteral("job.nc"), "G1X10F600\n");
        for (QString &a : args)
            if (!a.startsWith(QLatin1String("--")))
                a = m_dir.filePath(a);
        QByteArray out, err;
        QVERIFY(run(args, &out, &err) != 0);
        QVERIFY(out.isEmpty());
        QCOMPARE(err.count('\n'), 1);
    }

    void usageErrors()
    {
        QByteArray out, err;
        QCOMPARE(run({QStringLiteral("--settings"), QStringLiteral("dump.txt")}, &out, &err), 2);
        QCOMPARE(run({QStringLiteral("--estimate"), QStringLiteral("a.nc"), QStringLiteral("-o"),
                      QStringLiteral("b.nc")},
                     &out, &err),
                 2);
        QCOMPARE(run({QStringLiteral("--baud"), QStringLiteral("115200")}, &out, &err), 2);
        QCOMPARE(run({QStringLiteral("--estimate"), QStringLiteral("a.nc"),
                      QStringLiteral("--baud"), QStringLiteral("fast")},
                     &out, &err),
                 2);
    }
};

QTEST_GUILESS_MAIN(TestHeadlessEstimate)
#include "tst_headless_estimate.moc"
