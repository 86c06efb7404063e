#include "cloud_server.h"

#include <QProcess>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QtTest>

// lumitra --check-update through the real executable against the service on
// 127.0.0.1: the notes and the file address, "up to date", and one line on
// stderr with a non-zero exit when the service cannot be reached or its
// address is refused.
class TestHeadlessUpdateCheck : public QObject
{
    Q_OBJECT

    CloudServer m_server;
    QTemporaryDir m_dir;

    // Runs the executable while this process keeps serving.
    int run(const QString &base, QByteArray *out, QByteArray *err)
    {
        QProcess p;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("XDG_DATA_HOME"), m_dir.filePath(QStringLiteral("data")));
        env.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_dir.path());
        env.insert(QStringLiteral("LUMITRA_CLOUD_URL"), base);
        env.remove(QStringLiteral("DISPLAY"));
        p.setProcessEnvironment(env);
        p.start(QStringLiteral(LUMITRA_EXE), {QStringLiteral("--check-update")});
        if (!QTest::qWaitFor([&p]() { return p.state() == QProcess::NotRunning; }, 30000)) {
            p.kill();
            p.waitForFinished();
            return -1;
        }
        *out = p.readAllStandardOutput();
        *err = p.readAllStandardError();
        return p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1;
    }

private slots:
    void initTestCase() { QVERIFY(m_server.start()); }

    void update()
    {
        m_server.setUpdate(QStringLiteral("Version 1.3.0\nFaster preview."),
                           QStringLiteral("Lumitra-1.3.0.exe"), 100);
        QByteArray out, err;
        QCOMPARE(run(m_server.baseUrl(), &out, &err), 0);
        QCOMPARE(out, "Version 1.3.0\nFaster preview.\n" + m_server.baseUrl().toUtf8()
                          + "/app/download/Lumitra-1.3.0.exe\n");
    }

    void upToDate()
    {
        m_server.setUpdate(QString(), QString(), 0);
        QByteArray out, err;
        QCOMPARE(run(m_server.baseUrl(), &out, &err), 0);
        QCOMPARE(out, QByteArray("up to date\n"));
    }

    void failures_data()
    {
        QTest::addColumn<QString>("base");
        QTest::addColumn<QString>("reason");
        QTcpServer closed;
        closed.listen(QHostAddress::LocalHost, 0);
        const QString closedBase = QStringLiteral("http://127.0.0.1:%1").arg(closed.serverPort());
        closed.close();
        QTest::newRow("nothing listening") << closedBase << "refused";
        QTest::newRow("plain http elsewhere") << "http://updates.example.invalid"
                                              << "only https";
    }
    void failures()
    {
        QFETCH(QString, base);
        QFETCH(QString, reason);
        const int before = m_server.requests().size();
        QByteArray out, err;
        const int code = run(base, &out, &err);
        QVERIFY(code > 0);
        QVERIFY(out.isEmpty());
        QCOMPARE(err.count('\n'), 1);
        QVERIFY2(err.startsWith("update check failed: ") && err.contains(reason.toUtf8()),
                 err.constData());
        QCOMPARE(m_server.requests().size(), before);
    }

    void cleanupTestCase()
    {
        QVERIFY2(m_server.violations().isEmpty(), qPrintable(m_server.violations().join('\n')));
        QCOMPARE(m_server.requests().size(), 2);
    }
};

QTEST_GUILESS_MAIN(TestHeadlessUpdateCheck)
#include "tst_headless_update_check.moc"
