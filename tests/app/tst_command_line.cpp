#include "command_line.h"

#include <QtTest>

using namespace lumitra;

class TestCommandLine : public QObject
{
    Q_OBJECT

private slots:
    void parse_data()
    {
        QTest::addColumn<QStringList>("args");
        QTest::addColumn<int>("mode");
        QTest::addColumn<int>("exitCode");
        QTest::newRow("no options") << QStringList{} << int(CommandLine::Window) << 0;
        QTest::newRow("files to open") << QStringList{"a.lumitra"} << int(CommandLine::Window) << 0;
        QTest::newRow("help") << QStringList{"--help"} << int(CommandLine::Exit) << 0;
        QTest::newRow("version") << QStringList{"--version"} << int(CommandLine::Exit) << 0;
        QTest::newRow("unknown") << QStringList{"--nope"} << int(CommandLine::Exit) << 2;
        QTest::newRow("export") << QStringList{"--export", "a.svg", "-o", "a.nc"}
                                << int(CommandLine::Export) << 0;
        QTest::newRow("export without output")
            << QStringList{"--export", "a.svg"} << int(CommandLine::Exit) << 2;
        QTest::newRow("run") << QStringList{"--port", "/dev/ttyUSB0", "--run", "a.nc"}
                             << int(CommandLine::Run) << 0;
        QTest::newRow("run without port")
            << QStringList{"--run", "a.nc"} << int(CommandLine::Exit) << 2;
        QTest::newRow("both modes")
            << QStringList{"--export", "a.svg", "-o", "b.nc", "--port", "p", "--run", "c"}
            << int(CommandLine::Exit) << 2;
        QTest::newRow("process option without export")
            << QStringList{"--power", "50"} << int(CommandLine::Exit) << 2;
        QTest::newRow("home without run") << QStringList{"--home"} << int(CommandLine::Exit) << 2;
        QTest::newRow("wifi run") << QStringList{"--wifi", "192.168.4.1", "--run", "a.nc"}
                                  << int(CommandLine::WifiRun) << 0;
        QTest::newRow("wifi without run")
            << QStringList{"--wifi", "192.168.4.1"} << int(CommandLine::Exit) << 2;
        QTest::newRow("wifi and port") << QStringList{"--wifi", "h", "--port", "p", "--run", "a.nc"}
                                       << int(CommandLine::Exit) << 2;
        QTest::newRow("wifi with home")
            << QStringList{"--wifi", "h", "--run", "a.nc", "--home"} << int(CommandLine::Exit) << 2;
        QTest::newRow("ws port without wifi")
            << QStringList{"--port", "p", "--run", "a.nc", "--ws-port", "81"}
            << int(CommandLine::Exit) << 2;
        QTest::newRow("ws port not a number")
            << QStringList{"--wifi", "h", "--run", "a.nc", "--ws-port", "x"}
            << int(CommandLine::Exit) << 2;
        QTest::newRow("ws port out of range")
            << QStringList{"--wifi", "h", "--run", "a.nc", "--ws-port", "70000"}
            << int(CommandLine::Exit) << 2;
        QTest::newRow("resume") << QStringList{"--port", "p", "--run", "a.nc", "--from-line", "7"}
                                << int(CommandLine::Run) << 0;
        QTest::newRow("resume without run")
            << QStringList{"--from-line", "7"} << int(CommandLine::Exit) << 2;
        QTest::newRow("resume over wifi")
            << QStringList{"--wifi", "h", "--run", "a.nc", "--from-line", "7"}
            << int(CommandLine::WifiRun) << 0;
        QTest::newRow("resume from line 0")
            << QStringList{"--port", "p", "--run", "a.nc", "--from-line", "0"}
            << int(CommandLine::Exit) << 2;
        QTest::newRow("resume from no number")
            << QStringList{"--port", "p", "--run", "a.nc", "--from-line", "x"}
            << int(CommandLine::Exit) << 2;
        QTest::newRow("check update")
            << QStringList{"--check-update"} << int(CommandLine::CheckUpdate) << 0;
        QTest::newRow("check update with a file")
            << QStringList{"--check-update", "a.lumitra"} << int(CommandLine::Exit) << 2;
        QTest::newRow("check update with export")
            << QStringList{"--check-update", "--export", "a.svg", "-o", "a.nc"}
            << int(CommandLine::Exit) << 2;
    }
    void parse()
    {
        QFETCH(QStringList, args);
        QFETCH(int, mode);
        QFETCH(int, exitCode);
        const CommandLine cl = parse_command_line(QStringList{"lumitra"} + args);
        QCOMPARE(int(cl.mode), mode);
        QCOMPARE(cl.exitCode, exitCode);
        if (exitCode != 0)
            QVERIFY(!cl.message.isEmpty());
    }

    void exportKeepsProcessOptions()
    {
        const CommandLine cl =
            parse_command_line({"lumitra", "--export", "in.png", "-o", "out.nc", "--power", "55",
                                "--mode", "dither", "--spacing", "0.2", "--angle", "45",
                                "--overscan", "2", "--speed", "3000", "--passes", "2"});
        QCOMPARE(cl.input, QStringLiteral("in.png"));
        QCOMPARE(cl.output, QStringLiteral("out.nc"));
        QCOMPARE(cl.processOptions.size(), 7);
        QCOMPARE(cl.processOptions.value("power"), QStringLiteral("55"));
        QCOMPARE(cl.processOptions.value("mode"), QStringLiteral("dither"));
        QCOMPARE(cl.processOptions.value("spacing"), QStringLiteral("0.2"));
    }

    void runReadsPortFileAndHome()
    {
        const CommandLine cl =
            parse_command_line({"lumitra", "--port", "/dev/pts/3", "--run", "job.nc", "--home"});
        QCOMPARE(cl.port, QStringLiteral("/dev/pts/3"));
        QCOMPARE(cl.runFile, QStringLiteral("job.nc"));
        QVERIFY(cl.home);
        QCOMPARE(cl.fromLine, 0);
        QCOMPARE(parse_command_line({"lumitra", "--port", "p", "--run", "j", "--from-line", "42"})
                     .fromLine,
                 42);
    }

    void wifiRunReadsAddressAndPorts_data()
    {
        QTest::addColumn<QStringList>("args");
        QTest::addColumn<QString>("address");
        QTest::addColumn<int>("wsPort");
        QTest::newRow("defaults") << QStringList{"--wifi", "192.168.4.1", "--run", "job.nc"}
                                  << "192.168.4.1" << 81;
        QTest::newRow("ports given")
            << QStringList{"--wifi", "127.0.0.1:8080", "--run", "job.nc", "--ws-port", "8081"}
            << "127.0.0.1:8080" << 8081;
    }
    void wifiRunReadsAddressAndPorts()
    {
        QFETCH(QStringList, args);
        QFETCH(QString, address);
        QFETCH(int, wsPort);
        const CommandLine cl = parse_command_line(QStringList{"lumitra"} + args);
        QCOMPARE(cl.wifiAddress, address);
        QCOMPARE(cl.wsPort, wsPort);
        QCOMPARE(cl.runFile, QStringLiteral("job.nc"));
    }
};

QTEST_GUILESS_MAIN(TestCommandLine)
#include "tst_command_line.moc"
