#include "fake_board.h"
#include "sd_card_client.h"

#include <QSignalSpy>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QtTest>

// The SD card client against the fake board on 127.0.0.1: what reaches the
// card, what is reported back, and that every failure ends the request with a
// reason.
using lumitra::sdcard::SdListing;
using Operation = SdCardClient::Operation;

namespace {

QStringList namesOf(const SdListing &listing)
{
    QStringList names;
    for (const auto &file : listing.files)
        names << file.name;
    return names;
}

SdListing lastListing(const QSignalSpy &spy)
{
    return spy.last().at(0).value<SdListing>();
}

} // namespace

class TestSdCardClient : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void listsTheCard();
    void oneRequestAtATime();
    void removes();
    void runs();
    void uploads();
    void failures_data();
    void failures();

private:
    FakeBoard *m_board = nullptr;
    SdCardClient *m_client = nullptr;
};

void TestSdCardClient::init()
{
    m_board = new FakeBoard;
    QVERIFY(m_board->start());
    m_client = new SdCardClient;
    m_client->setAddress("127.0.0.1", m_board->httpPort());
    m_client->setTimeout(3000);
}

void TestSdCardClient::cleanup()
{
    delete m_client;
    delete m_board;
}

void TestSdCardClient::listsTheCard()
{
    m_board->putCardFile("a.nc", QByteArray(700, 'G'));
    m_board->putCardFile("b.gcode", QByteArray(3 * 1024, 'G'));
    QSignalSpy listed(m_client, &SdCardClient::listed);
    QSignalSpy busy(m_client, &SdCardClient::busyChanged);
    QVERIFY(m_client->refresh());
    QVERIFY(m_client->isBusy());
    QVERIFY(listed.wait(5000));
    const SdListing listing = lastListing(listed);
    QCOMPARE(namesOf(listing), (QStringList{"a.nc", "b.gcode"}));
    QCOMPARE(listing.files[0].size, qint64(700));
    QCOMPARE(listing.files[1].size, qint64(3072));
    QCOMPARE(listing.total, qint64(4) << 30);
    // The board writes "3.68 KB": three digits of the sum.
    QVERIFY2(qAbs(listing.used - (700 + 3072)) < 10, qPrintable(QString::number(listing.used)));
    QCOMPARE(listing.status, QStringLiteral("Ok"));
    QVERIFY(!m_client->isBusy());
    QCOMPARE(busy.size(), 2);
    QCOMPARE(busy[0].at(0).toBool(), true);
    QCOMPARE(busy[1].at(0).toBool(), false);
    QCOMPARE(m_board->rawTargets(), QStringList{"/upload?path=/&PAGEID=0"});
}

void TestSdCardClient::oneRequestAtATime()
{
    QSignalSpy listed(m_client, &SdCardClient::listed);
    QVERIFY(m_client->refresh());
    QVERIFY(!m_client->refresh());
    QVERIFY(!m_client->remove("a.nc"));
    QVERIFY(!m_client->run("a.nc"));
    QVERIFY(!m_client->upload(QStringLiteral(LUMITRA_SOURCE_DIR "/CMakeLists.txt"), "x.nc"));
    QVERIFY(listed.wait(5000));
    QCOMPARE(m_board->rawTargets().size(), 1);
    QCOMPARE(m_board->uploadCount(), 0);
    // No name: nothing to do.
    QVERIFY(!m_client->remove(QString()));
    QVERIFY(!m_client->run(QString()));
    QVERIFY(!m_client->isBusy());
}

void TestSdCardClient::removes()
{
    const QString awkward = QStringLiteral("my job&1+2.nc");
    m_board->putCardFile(awkward, "G0X0\n");
    m_board->putCardFile("keep.nc", "G0X1\n");
    QSignalSpy removed(m_client, &SdCardClient::removed);
    QSignalSpy listed(m_client, &SdCardClient::listed);
    QVERIFY(m_client->remove(awkward));
    QVERIFY(listed.wait(5000));
    QCOMPARE(removed.size(), 1);
    QCOMPARE(removed[0].at(0).toString(), awkward);
    QCOMPARE(m_board->cardFiles(), QStringList{"keep.nc"});
    QCOMPARE(namesOf(lastListing(listed)), QStringList{"keep.nc"});
    QVERIFY(!m_client->isBusy());
}

void TestSdCardClient::runs()
{
    m_board->putCardFile("job 1.nc", "G1X5F100\n");
    QSignalSpy started(m_client, &SdCardClient::started);
    QVERIFY(m_client->run("job 1.nc"));
    QVERIFY(started.wait(5000));
    QCOMPARE(started[0].at(0).toString(), QStringLiteral("job 1.nc"));
    QCOMPARE(m_board->commands(), QStringList{"[ESP220]/job 1.nc"});
    QVERIFY(m_board->jobRunning());
    QVERIFY(!m_client->isBusy());
}

void TestSdCardClient::uploads()
{
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    QByteArray bytes;
    for (int i = 0; i < 5000; ++i)
        bytes += "G1X" + QByteArray::number(i) + "Y" + QByteArray::number(i % 97) + "\n";
    const QString path = dir.filePath("local.nc");
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    file.close();

    QSignalSpy uploaded(m_client, &SdCardClient::uploaded);
    QSignalSpy listed(m_client, &SdCardClient::listed);
    QSignalSpy failed(m_client, &SdCardClient::failed);
    QVERIFY(m_client->upload(path, "remote name.nc"));
    QVERIFY(listed.wait(10000));
    QCOMPARE(failed.size(), 0);
    QCOMPARE(uploaded.size(), 1);
    QCOMPARE(uploaded[0].at(0).toString(), QStringLiteral("remote name.nc"));
    QCOMPARE(m_board->cardFile("remote name.nc"), bytes);
    QCOMPARE(namesOf(lastListing(listed)), QStringList{"remote name.nc"});
    QVERIFY(!m_client->isBusy());
}

void TestSdCardClient::failures_data()
{
    QTest::addColumn<QString>("setup");
    QTest::addColumn<int>("operation");
    QTest::newRow("list, closed port") << "closed" << int(Operation::List);
    QTest::newRow("list, board never answers") << "stalled" << int(Operation::List);
    QTest::newRow("list, server error") << "fail /upload" << int(Operation::List);
    QTest::newRow("delete, server error") << "fail /upload" << int(Operation::Delete);
    QTest::newRow("run, no such file") << "" << int(Operation::Run);
    QTest::newRow("run, closed port") << "closed" << int(Operation::Run);
    QTest::newRow("upload, server error") << "fail /upload" << int(Operation::Upload);
    QTest::newRow("upload, no local file") << "missing file" << int(Operation::Upload);
}

void TestSdCardClient::failures()
{
    QFETCH(QString, setup);
    QFETCH(int, operation);
    QTemporaryDir dir;
    QString localPath = dir.filePath("job.nc");
    QFile local(localPath);
    QVERIFY(local.open(QIODevice::WriteOnly));
    local.write("G0X0\n");
    local.close();
    if (setup == "closed") {
        QTcpServer server;
        QVERIFY(server.listen(QHostAddress::LocalHost, 0));
        m_client->setAddress("127.0.0.1", server.serverPort());
    } else if (setup == "stalled") {
        m_board->setStalled(true);
        m_client->setTimeout(300);
    } else if (setup == "fail /upload") {
        m_board->failRoute("/upload", 500);
    } else if (setup == "missing file") {
        localPath = dir.filePath("not-there.nc");
    }

    QSignalSpy failed(m_client, &SdCardClient::failed);
    QSignalSpy listed(m_client, &SdCardClient::listed);
    QSignalSpy done(m_client, &SdCardClient::busyChanged);
    bool sent = false;
    switch (Operation(operation)) {
    case Operation::List:
        sent = m_client->refresh();
        break;
    case Operation::Delete:
        sent = m_client->remove("job.nc");
        break;
    case Operation::Run:
        sent = m_client->run("job.nc");
        break;
    case Operation::Upload:
        sent = m_client->upload(localPath, "job.nc");
        break;
    }
    QVERIFY(sent);
    QTRY_VERIFY_WITH_TIMEOUT(!m_client->isBusy(), 10000);
    QCOMPARE(failed.size(), 1);
    QCOMPARE(failed[0].at(0).value<Operation>(), Operation(operation));
    QVERIFY(!failed[0].at(1).toString().isEmpty());
    QCOMPARE(listed.size(), 0);
    QCOMPARE(m_board->jobRunning(), false);
}

QTEST_GUILESS_MAIN(TestSdCardClient)
#include "tst_sd_card_client.moc"
