#include "cloud_server.h"
#include "cloud_test_support.h"
#include "hou_tai_jie_kou.h"
#include "update_pack.h"

#include <QDir>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QtTest>

using namespace lumitra;

// The update check and the installer download against the service on
// 127.0.0.1: notes and address, no update, an unreachable service, and
// downloads that complete, drop halfway, are cancelled or cannot be saved.
class TestUpdateCheck : public QObject
{
    Q_OBJECT

    CloudServer m_server;
    QTemporaryDir m_dir;

    static UpdateInfo check(UpdatePack &pack)
    {
        QSignalSpy spy(&pack, &UpdatePack::checked);
        pack.check();
        if (!spy.wait(20000))
            return UpdateInfo();
        return spy.first().first().value<UpdateInfo>();
    }

    // Downloads into `folder`; returns (ok, message, path).
    static QVariantList download(UpdatePack &pack, const QString &folder, bool cancelEarly = false)
    {
        QSignalSpy spy(&pack, &UpdatePack::downloadFinished);
        if (cancelEarly)
            QObject::connect(&pack, &UpdatePack::downloadProgress, &pack,
                             [&pack](qint64 received, qint64) {
                                 if (received > 0)
                                     pack.cancelDownload();
                             });
        pack.download(folder);
        if (!spy.wait(60000))
            return {};
        return spy.first();
    }

private slots:
    void initTestCase()
    {
        cloudtest::installLogCapture();
        QVERIFY(m_server.start());
        qputenv("LUMITRA_CLOUD_URL", m_server.baseUrl().toUtf8());
    }

    void upToDate()
    {
        m_server.setUpdate(QString(), QString(), 0);
        Hou_tai_jie_kou api;
        UpdatePack pack(&api);
        const UpdateInfo info = check(pack);
        QCOMPARE(int(info.state), int(UpdateInfo::UpToDate));
        QVERIFY(info.fileUrl.isEmpty());
    }

    void unreachable()
    {
        QTcpServer closed;
        QVERIFY(closed.listen(QHostAddress::LocalHost, 0));
        const quint16 port = closed.serverPort();
        closed.close();
        qputenv("LUMITRA_CLOUD_URL", QByteArray("http://127.0.0.1:") + QByteArray::number(port));
        Hou_tai_jie_kou api;
        qputenv("LUMITRA_CLOUD_URL", m_server.baseUrl().toUtf8());
        UpdatePack pack(&api);
        const UpdateInfo info = check(pack);
        QCOMPARE(int(info.state), int(UpdateInfo::Failed));
        QVERIFY(!info.message.isEmpty());
    }

    // The 20 MB installer: whole, dropped halfway, cancelled.
    void downloads_data()
    {
        QTest::addColumn<qint64>("size");
        QTest::addColumn<qint64>("dropAfter");
        QTest::addColumn<bool>("cancel");
        QTest::addColumn<bool>("ok");
        QTest::newRow("whole") << qint64(20 << 20) << qint64(-1) << false << true;
        QTest::newRow("dropped halfway") << qint64(20 << 20) << qint64(10 << 20) << false << false;
        QTest::newRow("cancelled") << qint64(20 << 20) << qint64(-1) << true << false;
    }
    void downloads()
    {
        QFETCH(qint64, size);
        QFETCH(qint64, dropAfter);
        QFETCH(bool, cancel);
        QFETCH(bool, ok);
        m_server.setUpdate(QStringLiteral("1.3.0\n- faster preview"),
                           QStringLiteral("Lumitra-1.3.0-setup.exe"), size, dropAfter);
        Hou_tai_jie_kou api;
        UpdatePack pack(&api);
        const UpdateInfo info = check(pack);
        QCOMPARE(int(info.state), int(UpdateInfo::Available));
        QCOMPARE(info.notes, QStringLiteral("1.3.0\n- faster preview"));
        QCOMPARE(info.fileUrl.toString(),
                 m_server.baseUrl() + QStringLiteral("/app/download/Lumitra-1.3.0-setup.exe"));

        const QString folder = m_dir.filePath(QTest::currentDataTag());
        QVERIFY(QDir().mkpath(folder));
        const QVariantList result = download(pack, folder, cancel);
        QCOMPARE(result.size(), 3);
        QCOMPARE(result.at(0).toBool(), ok);
        const QStringList left = QDir(folder).entryList(QDir::Files | QDir::Hidden);
        if (ok) {
            QCOMPARE(result.at(1).toString(), QStringLiteral("File downloaded successfully!"));
            QCOMPARE(left, QStringList{QStringLiteral("Lumitra-1.3.0-setup.exe")});
            QFile file(result.at(2).toString());
            QVERIFY(file.open(QIODevice::ReadOnly));
            QCOMPARE(file.size(), size);
            QVERIFY(file.readAll() == CloudServer::installerBytes(size));
        } else {
            QVERIFY2(result.at(1).toString().startsWith(QStringLiteral("Download failed:")),
                     qPrintable(result.at(1).toString()));
            QVERIFY2(left.isEmpty(), qPrintable(left.join(',')));
            QVERIFY(result.at(2).toString().isEmpty());
        }
        QVERIFY(cloudtest::logLines().join('\n').contains(result.at(1).toString()));
    }

    void cannotSave()
    {
        m_server.setUpdate(QStringLiteral("notes"), QStringLiteral("setup.exe"), 1000);
        Hou_tai_jie_kou api;
        UpdatePack pack(&api);
        QCOMPARE(int(check(pack).state), int(UpdateInfo::Available));
        // The "folder" is a file: nothing can be written there.
        const QString blocker = m_dir.filePath("blocker");
        QFile f(blocker);
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.close();
        const QVariantList result = download(pack, blocker);
        QCOMPARE(result.size(), 3);
        QVERIFY(!result.at(0).toBool());
        QCOMPARE(result.at(1).toString(), QStringLiteral("Failed to save file."));
        QVERIFY(cloudtest::logLines().contains(QStringLiteral("Failed to save file.")));
    }

    void cleanupTestCase()
    {
        QVERIFY2(m_server.violations().isEmpty(), qPrintable(m_server.violations().join('\n')));
        int checks = 0;
        for (const CloudServer::Request &r : m_server.requests())
            if (r.path == QLatin1String("/app/check")) {
                ++checks;
                QVERIFY(r.header("token").isEmpty());
                QCOMPARE(r.header("Accept-Encoding"), QByteArray("gzip, deflate"));
            }
        QCOMPARE(checks, 5);
    }
};

QTEST_GUILESS_MAIN(TestUpdateCheck)
#include "tst_update_check.moc"
