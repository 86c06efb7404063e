#include "fake_board.h"

#include <QHttpMultiPart>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QSignalSpy>
#include <QTest>
#include <QWebSocket>

// The fake WiFi board itself, driven by plain Qt network clients: what the
// link tests rely on must hold here first.
class TestFakeBoard : public QObject
{
    Q_OBJECT

private slots:
    void decodesCommandText_data();
    void decodesCommandText();
    void framesLines_data();
    void framesLines();
    void multipartUploadAndCard();
    void failedRoute();
    void refusedBoard();
    void pretendJob();

private:
    QNetworkAccessManager m_nam;
    QByteArray get(const QString &url, int *status = nullptr);
};

QByteArray TestFakeBoard::get(const QString &url, int *status)
{
    QNetworkReply *reply = m_nam.get(QNetworkRequest(QUrl(url)));
    QSignalSpy done(reply, &QNetworkReply::finished);
    if (!done.wait(5000))
        return "timeout";
    if (status)
        *status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    const QByteArray body = reply->readAll();
    reply->deleteLater();
    return body;
}

void TestFakeBoard::decodesCommandText_data()
{
    QTest::addColumn<QString>("query");
    QTest::addColumn<QString>("decoded");
    QTest::newRow("plus is a blank") << "a+b"
                                     << "a b";
    QTest::newRow("encoded plus") << "a%2Bb"
                                  << "a+b";
    QTest::newRow("reset byte") << "%18" << QString(QChar(0x18));
    QTest::newRow("utf-8") << "%E5%AF%86" << QString::fromUtf8("密");
}

void TestFakeBoard::decodesCommandText()
{
    QFETCH(QString, query);
    QFETCH(QString, decoded);
    FakeBoard board;
    QVERIFY(board.start());
    int status = 0;
    get(QStringLiteral("http://%1/command?commandText=%2&PAGEID=0").arg(board.address(), query),
        &status);
    QCOMPARE(status, 200);
    QCOMPARE(board.commands(), QStringList{decoded});
}

void TestFakeBoard::framesLines_data()
{
    QTest::addColumn<int>("perFrame");
    QTest::addColumn<bool>("split");
    QTest::addColumn<int>("frames"); // for the 3 lines of "$i"'s answer + ok... see below
    // "$$" answers 35 settings and "ok": 36 lines.
    QTest::newRow("line per frame") << 1 << false << 36;
    QTest::newRow("ten per frame") << 10 << false << 4;
    QTest::newRow("split frames") << 36 << true << 2;
}

void TestFakeBoard::framesLines()
{
    QFETCH(int, perFrame);
    QFETCH(bool, split);
    QFETCH(int, frames);
    FakeBoard::Options o;
    o.linesPerFrame = perFrame;
    o.splitFrames = split;
    FakeBoard board(o);
    QVERIFY(board.start());
    QWebSocket ws;
    QStringList texts;
    QByteArray binary;
    int binaryFrames = 0;
    connect(&ws, &QWebSocket::textMessageReceived, [&](const QString &t) { texts << t; });
    connect(&ws, &QWebSocket::binaryMessageReceived, [&](const QByteArray &b) {
        binary += b;
        ++binaryFrames;
    });
    QSignalSpy connected(&ws, &QWebSocket::connected);
    ws.open(QUrl(QStringLiteral("ws://127.0.0.1:%1").arg(board.wsPort())));
    QVERIFY(connected.wait(5000));
    QTRY_COMPARE(texts, (QStringList{"CURRENT_ID:0", "ACTIVE_ID:0", "PING:1"}));
    get(QStringLiteral("http://%1/command?commandText=%24%24&PAGEID=0").arg(board.address()));
    QTRY_VERIFY(binary.endsWith("ok\r\n"));
    QCOMPARE(binaryFrames, frames);
    const QList<QByteArray> lines = binary.split('\n');
    QCOMPARE(lines.size(), 37); // 36 lines and the empty rest
    QCOMPARE(lines.at(0), QByteArray("$0=10\r"));
    QCOMPARE(lines.at(34), QByteArray("$135=0\r"));
}

void TestFakeBoard::multipartUploadAndCard()
{
    FakeBoard board;
    QVERIFY(board.start());
    QByteArray job;
    for (int i = 0; i < 40000; ++i)
        job += "G1X" + QByteArray::number(i % 97) + "Y" + QByteArray::number(i) + "\r\n--x\n";

    auto *multi = new QHttpMultiPart(QHttpMultiPart::FormDataType);
    QHttpPart path;
    path.setHeader(QNetworkRequest::ContentDispositionHeader, "form-data; name=\"path\"");
    path.setBody("/");
    QHttpPart file;
    file.setHeader(QNetworkRequest::ContentTypeHeader, "application/octet-stream");
    file.setHeader(QNetworkRequest::ContentDispositionHeader,
                   "form-data; name=\"myfile[]\"; filename=\"job one.nc\"");
    file.setBody(job);
    multi->append(path);
    multi->append(file);
    QNetworkReply *reply = m_nam.post(
        QNetworkRequest(QUrl(QStringLiteral("http://%1/upload").arg(board.address()))), multi);
    multi->setParent(reply);
    QSignalSpy done(reply, &QNetworkReply::finished);
    QVERIFY(done.wait(10000));
    QCOMPARE(reply->error(), QNetworkReply::NoError);
    QVERIFY(reply->readAll().contains("\"name\":\"job one.nc\""));
    reply->deleteLater();

    const QList<FakeBoard::UploadPart> parts = board.uploadParts();
    QCOMPARE(parts.size(), 2);
    QCOMPARE(parts.at(0).name, QString("path"));
    QCOMPARE(parts.at(0).body, QByteArray("/"));
    QCOMPARE(parts.at(1).name, QString("myfile[]"));
    QCOMPARE(parts.at(1).filename, QString("job one.nc"));
    QCOMPARE(parts.at(1).contentType, QString("application/octet-stream"));
    QCOMPARE(parts.at(1).size, qint64(job.size()));
    QCOMPARE(board.cardFile("job one.nc"), job);

    const QByteArray list =
        get(QStringLiteral("http://%1/upload?path=/&PAGEID=0").arg(board.address()));
    QVERIFY(list.startsWith("{\"files\":[{\"name\":\"job one.nc\""));
    QVERIFY(list.contains("\"status\":\"Ok\""));
    QCOMPARE(get(QStringLiteral("http://%1/SD/job%20one.nc").arg(board.address())), job);
    get(QStringLiteral("http://%1/upload?path=/&action=delete&filename=job%20one.nc&PAGEID=0")
            .arg(board.address()));
    QVERIFY(board.cardFiles().isEmpty());
}

void TestFakeBoard::failedRoute()
{
    FakeBoard board;
    QVERIFY(board.start());
    board.failRoute("/command", 500);
    int status = 0;
    get(QStringLiteral("http://%1/command?commandText=%24H&PAGEID=0").arg(board.address()),
        &status);
    QCOMPARE(status, 500);
    QVERIFY(board.commands().isEmpty());
    board.failRoute("/command", 0);
    get(QStringLiteral("http://%1/command?commandText=%24H&PAGEID=0").arg(board.address()),
        &status);
    QCOMPARE(status, 200);
    QCOMPARE(board.commands(), QStringList{"$H"});
}

void TestFakeBoard::refusedBoard()
{
    FakeBoard board;
    QVERIFY(board.start());
    const QString address = board.address();
    board.refuse();
    QNetworkReply *reply = m_nam.get(
        QNetworkRequest(QUrl(QStringLiteral("http://%1/command?commandText=x").arg(address))));
    QSignalSpy done(reply, &QNetworkReply::finished);
    QVERIFY(done.wait(5000));
    QCOMPARE(reply->error(), QNetworkReply::ConnectionRefusedError);
    reply->deleteLater();
}

void TestFakeBoard::pretendJob()
{
    FakeBoard::Options o;
    o.jobMs = 200;
    o.reportIntervalMs = 20;
    FakeBoard board(o);
    QVERIFY(board.start());
    board.putCardFile("001.nc", "G0X1\n");
    QWebSocket ws;
    QByteArray stream;
    connect(&ws, &QWebSocket::binaryMessageReceived, [&](const QByteArray &b) { stream += b; });
    QSignalSpy connected(&ws, &QWebSocket::connected);
    ws.open(QUrl(QStringLiteral("ws://127.0.0.1:%1").arg(board.wsPort())));
    QVERIFY(connected.wait(5000));
    int status = 0;
    get(QStringLiteral("http://%1/command?commandText=%5BESP220%5D%2Fmissing.nc&PAGEID=0")
            .arg(board.address()),
        &status);
    QCOMPARE(status, 404);
    get(QStringLiteral("http://%1/command?commandText=%5BESP220%5D%2F001.nc&PAGEID=0")
            .arg(board.address()),
        &status);
    QCOMPARE(status, 200);
    QVERIFY(board.jobRunning());
    QTRY_VERIFY(!board.jobRunning());
    QVERIFY(stream.startsWith("<Run|MPos:10.000,5.000,0.000|FS:1000,500|SD:"));
    QVERIFY(stream.endsWith("<Idle|MPos:10.000,5.000,0.000|FS:0,0>\r\n"));
}

QTEST_GUILESS_MAIN(TestFakeBoard)
#include "tst_fake_board.moc"
