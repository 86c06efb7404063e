#include "sd_card.h"

#include <QJsonValue>
#include <QUrl>
#include <QtTest>

// The SD card's vocabulary: the request URLs with awkward file names, the
// sizes a board writes, and listings that are partly broken.
using namespace lumitra::sdcard;

class TestSdCard : public QObject
{
    Q_OBJECT

private slots:
    void urls_data();
    void urls();
    void encodedNamesDecodeBack();
    void sizeText_data();
    void sizeText();
    void sizeValue();
    void formattedSize_data();
    void formattedSize();
    void listing();
    void partialListing();
    void brokenListing_data();
    void brokenListing();
};

void TestSdCard::urls_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<QString>("expected");
    QTest::newRow("list") << listUrl("192.168.0.1", 80)
                          << "http://192.168.0.1:80/upload?path=/&PAGEID=0";
    QTest::newRow("delete") << deleteUrl("10.0.0.5", 8080, "001.nc")
                            << "http://10.0.0.5:8080/upload?path=/&action=delete&filename=001.nc"
                               "&PAGEID=0";
    QTest::newRow("delete blank and ampersand")
        << deleteUrl("h", 80, "my job&1.nc")
        << "http://h:80/upload?path=/&action=delete&filename=my%20job%261.nc&PAGEID=0";
    QTest::newRow("run") << runUrl("h", 80, "001.nc")
                         << "http://h:80/command?commandText=%5BESP220%5D/001.nc&PAGEID=0";
    QTest::newRow("run encodes the name")
        << runUrl("h", 80, "a b#.gcode")
        << "http://h:80/command?commandText=%5BESP220%5D/a%20b%23.gcode&PAGEID=0";
    QTest::newRow("upload") << uploadUrl("lumitra.local", 80) << "http://lumitra.local:80/upload";
}

void TestSdCard::urls()
{
    QFETCH(QString, url);
    QFETCH(QString, expected);
    QCOMPARE(url, expected);
    QVERIFY(QUrl(url, QUrl::StrictMode).isValid());
}

// What a server reads back from the query is the name as written.
void TestSdCard::encodedNamesDecodeBack()
{
    const QString name = QStringLiteral("雕刻 1+2=3&x.nc");
    const QUrlQuery del(QUrl(deleteUrl("h", 80, name)));
    QCOMPARE(del.queryItemValue("filename", QUrl::FullyDecoded), name);
    QCOMPARE(del.queryItemValue("action"), QStringLiteral("delete"));
    const QUrlQuery run(QUrl(runUrl("h", 80, name)));
    QCOMPARE(run.queryItemValue("commandText", QUrl::FullyDecoded), "[ESP220]/" + name);
    QCOMPARE(run.queryItemValue("PAGEID"), QStringLiteral("0"));
}

void TestSdCard::sizeText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<qint64>("bytes");
    QTest::newRow("bare number") << "2048" << qint64(2048);
    QTest::newRow("bytes") << "512 B" << qint64(512);
    QTest::newRow("kilobytes") << "3 KB" << qint64(3072);
    QTest::newRow("decimal megabytes") << "1.2 MB" << qint64(1258291);
    QTest::newRow("decimal comma") << "3,5 KB" << qint64(3584);
    QTest::newRow("gigabytes no blank") << "3.68GB" << qint64(3951369912LL);
    QTest::newRow("lower case") << "1 kb" << qint64(1024);
    QTest::newRow("binary unit") << "2 MiB" << qint64(2097152);
    QTest::newRow("surrounding blanks") << "  7 B " << qint64(7);
    QTest::newRow("directory") << "-1" << qint64(-1);
    QTest::newRow("words") << "unknown" << qint64(-1);
    QTest::newRow("empty") << "" << qint64(-1);
    QTest::newRow("strange unit") << "5 XB" << qint64(-1);
}

void TestSdCard::sizeText()
{
    QFETCH(QString, text);
    QFETCH(qint64, bytes);
    QCOMPARE(parseSizeText(text), bytes);
    QCOMPARE(parseSize(QJsonValue(text)), bytes);
}

void TestSdCard::sizeValue()
{
    QCOMPARE(parseSize(QJsonValue(1536)), qint64(1536));
    QCOMPARE(parseSize(QJsonValue(4e9)), qint64(4000000000LL));
    QCOMPARE(parseSize(QJsonValue(-1)), qint64(-1));
    QCOMPARE(parseSize(QJsonValue(true)), qint64(-1));
    QCOMPARE(parseSize(QJsonValue()), qint64(-1));
}

void TestSdCard::formattedSize_data()
{
    QTest::addColumn<qint64>("bytes");
    QTest::addColumn<QString>("text");
    QTest::newRow("zero") << qint64(0) << "0 B";
    QTest::newRow("under a kilobyte") << qint64(1023) << "1023 B";
    QTest::newRow("kilobyte and a half") << qint64(1536) << "1.50 KB";
    QTest::newRow("tens of megabytes") << qint64(12.3 * 1024 * 1024) << "12.3 MB";
    QTest::newRow("hundreds of megabytes") << qint64(500) * 1024 * 1024 << "500 MB";
    QTest::newRow("gigabytes") << qint64(3951369912LL) << "3.68 GB";
    QTest::newRow("unknown") << qint64(-1) << "";
}

void TestSdCard::formattedSize()
{
    QFETCH(qint64, bytes);
    QFETCH(QString, text);
    QCOMPARE(formatSize(bytes), text);
}

void TestSdCard::listing()
{
    const SdListing listing = parseListing(R"({"files":[
        {"name":"001.nc","shortname":"001.nc","size":"1.2 MB","datetime":""},
        {"name":"cam.jpg","size":20480},
        {"name":"jobs","size":"-1"}],
        "path":"/","occupation":"1","status":"Ok","total":"3.68 GB","used":"1.00 MB"})");
    QVERIFY(listing.ok);
    QCOMPARE(listing.files.size(), 3);
    QCOMPARE(listing.files[0].name, QStringLiteral("001.nc"));
    QCOMPARE(listing.files[0].size, qint64(1258291));
    QCOMPARE(listing.files[0].sizeText, QStringLiteral("1.2 MB"));
    QCOMPARE(listing.files[1].size, qint64(20480));
    QCOMPARE(listing.files[1].sizeText, QStringLiteral("20.0 KB"));
    QVERIFY(!listing.files[1].isDirectory);
    QVERIFY(listing.files[2].isDirectory);
    QCOMPARE(listing.files[2].size, qint64(-1));
    QCOMPARE(listing.files[2].sizeText, QString());
    QCOMPARE(listing.total, qint64(3951369912LL));
    QCOMPARE(listing.used, qint64(1048576));
    QCOMPARE(listing.free(), qint64(3951369912LL - 1048576));
    QCOMPARE(listing.status, QStringLiteral("Ok"));
}

// Entries without a name or that are not objects are dropped; missing totals
// stay unknown and so does the free space.
void TestSdCard::partialListing()
{
    const SdListing listing = parseListing(R"({"files":[
        {"size":10}, 7, "x", {"name":""}, {"name":"a.nc"}, {"name":"b.nc","size":{"n":1}},
        {"name":"c.nc","size":"lots"}],
        "total":1000})");
    QVERIFY(listing.ok);
    QCOMPARE(listing.files.size(), 3);
    QCOMPARE(listing.files[0].name, QStringLiteral("a.nc"));
    QCOMPARE(listing.files[0].size, qint64(-1));
    QCOMPARE(listing.files[1].size, qint64(-1));
    QCOMPARE(listing.files[2].sizeText, QString());
    QCOMPARE(listing.total, qint64(1000));
    QCOMPARE(listing.used, qint64(-1));
    QCOMPARE(listing.free(), qint64(-1));
    QCOMPARE(listing.status, QString());

    const SdListing noFiles = parseListing(R"({"files":"none","status":"No SD card"})");
    QVERIFY(noFiles.ok);
    QVERIFY(noFiles.files.isEmpty());
    QCOMPARE(noFiles.status, QStringLiteral("No SD card"));

    SdListing overfull;
    overfull.total = 10;
    overfull.used = 12;
    QCOMPARE(overfull.free(), qint64(0));
}

void TestSdCard::brokenListing_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("html page") << QByteArray("<html><body>404</body></html>");
    QTest::newRow("array") << QByteArray("[1,2]");
    QTest::newRow("cut off") << QByteArray(R"({"files":[{"name":"a")");
}

void TestSdCard::brokenListing()
{
    QFETCH(QByteArray, body);
    const SdListing listing = parseListing(body);
    QVERIFY(!listing.ok);
    QVERIFY(!listing.error.isEmpty());
    QVERIFY(listing.files.isEmpty());
}

QTEST_GUILESS_MAIN(TestSdCard)
#include "tst_sd_card.moc"
