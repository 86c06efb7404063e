#include "cloud_address.h"
#include "cloud_reply.h"
#include "cloud_request.h"
#include "file_download.h"
#include "hou_tai_jie_kou.h"
#include "settings_store.h"
#include "update_pack.h"

#include <QtTest>

using namespace lumitra;

using HeaderList = QList<QPair<QByteArray, QByteArray>>;
Q_DECLARE_METATYPE(HeaderList)

// Request building and reply parsing without any network.
class TestCloudRequest : public QObject
{
    Q_OBJECT

private slots:
    void headers_data()
    {
        QTest::addColumn<QUrl>("url");
        QTest::addColumn<QByteArray>("token");
        QTest::addColumn<int>("kind");
        QTest::addColumn<QByteArray>("encoding");
        QTest::addColumn<QByteArray>("host");
        QTest::addColumn<bool>("withToken");
        QTest::newRow("api call, logged in")
            << QUrl("https://api.example.org/login") << QByteArray("tok")
            << int(CloudCallKind::Plain) << QByteArray("gzip, deflate, br")
            << QByteArray("api.example.org") << true;
        QTest::newRow("api call, logged out")
            << QUrl("https://api.example.org/login") << QByteArray() << int(CloudCallKind::Plain)
            << QByteArray("gzip, deflate, br") << QByteArray("api.example.org") << false;
        QTest::newRow("update check never sends the token")
            << QUrl("http://127.0.0.1:8123/app/check?type=0") << QByteArray("tok")
            << int(CloudCallKind::UpdateCheck) << QByteArray("gzip, deflate")
            << QByteArray("127.0.0.1:8123") << false;
        QTest::newRow("download never sends the token")
            << QUrl("https://cdn.example.org:8443/a.exe") << QByteArray("tok")
            << int(CloudCallKind::Download) << QByteArray("identity")
            << QByteArray("cdn.example.org:8443") << false;
    }
    void headers()
    {
        QFETCH(QUrl, url);
        QFETCH(QByteArray, token);
        QFETCH(int, kind);
        QFETCH(QByteArray, encoding);
        QFETCH(QByteArray, host);
        QFETCH(bool, withToken);
        HeaderList expected = {{"App-Type", "app"},
                               {"lang", "dw"},
                               {"Accept", "*/*"},
                               {"Connection", "keep-alive"},
                               {"Accept-Encoding", encoding},
                               {"Host", host},
                               {"User-Agent", cloud_user_agent()}};
        if (withToken)
            expected.append({"token", token});
        QCOMPARE(cloud_headers(url, "dw", token, CloudCallKind(kind)), expected);
        const QNetworkRequest request = cloud_request(url, "dw", token, CloudCallKind(kind));
        for (const auto &h : expected)
            QCOMPARE(request.rawHeader(h.first), h.second);
        QCOMPARE(request.hasRawHeader("token"), withToken);
    }

    void userAgent()
    {
        const QByteArray agent = cloud_user_agent();
        QVERIFY2(QRegularExpression(QStringLiteral("^Lumitra/1\\.2\\.0 \\([^()]+\\)$"))
                     .match(QString::fromUtf8(agent))
                     .hasMatch(),
                 agent.constData());
    }

    void language_data()
    {
        QTest::addColumn<QString>("code");
        QTest::addColumn<QByteArray>("header");
        QTest::newRow("English") << "yw" << QByteArray("en");
        QTest::newRow("no setting yet") << "" << QByteArray("en");
        QTest::newRow("Chinese") << "zw" << QByteArray("zw");
        QTest::newRow("German") << "dw" << QByteArray("dw");
    }
    void language()
    {
        QFETCH(QString, code);
        QFETCH(QByteArray, header);
        QCOMPARE(cloud_language_header(code), header);
    }

    void formBody()
    {
        QCOMPARE(form_body({{"email", "a+b@x.org"}, {"name", "Zhang San"}, {"password", "p&=%"}}),
                 QByteArray("email=a%2Bb%40x.org&name=Zhang%20San&password=p%26%3D%25"));
        QCOMPARE(form_body({{"name", QStringLiteral("张")}}), QByteArray("name=%E5%BC%A0"));
        QCOMPARE(form_body({}), QByteArray());
    }

    void materialQuery()
    {
        MaterialQuery q;
        QCOMPARE(Hou_tai_jie_kou::materialQueryString(q),
                 QStringLiteral("?search=&search_type=&type=&file_type=&material_type="
                                "&model_type=&power_type=&tags=&price=&page=1"));
        q.search = QStringLiteral("owl & cat");
        q.materialType = QStringLiteral("wood");
        q.page = 3;
        QCOMPARE(Hou_tai_jie_kou::materialQueryString(q),
                 QStringLiteral("?search=owl%20%26%20cat&search_type=&type=&file_type="
                                "&material_type=wood&model_type=&power_type=&tags=&price=&page=3"));
    }

    void urls_data()
    {
        QTest::addColumn<QString>("url");
        QTest::addColumn<bool>("allowed");
        QTest::newRow("https anywhere") << "https://api.example.org" << true;
        QTest::newRow("https with port") << "https://api.example.org:8443/x" << true;
        QTest::newRow("http loopback v4") << "http://127.0.0.1:5000" << true;
        QTest::newRow("http loopback 127/8") << "http://127.1.2.3" << true;
        QTest::newRow("http localhost") << "http://localhost:8080" << true;
        QTest::newRow("http loopback v6") << "http://[::1]:8080" << true;
        QTest::newRow("http elsewhere") << "http://cloud.example.invalid" << false;
        QTest::newRow("http LAN address") << "http://192.168.1.10" << false;
        QTest::newRow("http name like loopback") << "http://127.0.0.1.example.invalid" << false;
        QTest::newRow("ftp") << "ftp://127.0.0.1" << false;
        QTest::newRow("no host") << "https://" << false;
    }
    void urls()
    {
        QFETCH(QString, url);
        QFETCH(bool, allowed);
        QString why;
        QCOMPARE(is_allowed_cloud_url(QUrl(url), &why), allowed);
        QCOMPARE(why.isEmpty(), allowed);
    }

    void baseAddress()
    {
        QVERIFY(default_cloud_base().startsWith(QLatin1String("https://")));
        qunsetenv("LUMITRA_CLOUD_URL");
        QCOMPARE(cloud_base_url(), QUrl(default_cloud_base()));
        set_setting(QStringLiteral("CloudBase"), QStringLiteral("https://own.example.org/api/"));
        QCOMPARE(cloud_base_url(), QUrl(QStringLiteral("https://own.example.org/api")));
        qputenv("LUMITRA_CLOUD_URL", "http://127.0.0.1:9");
        QCOMPARE(cloud_base_url(), QUrl(QStringLiteral("http://127.0.0.1:9")));
        QCOMPARE(cloud_url(cloud_base_url(), QStringLiteral("/material/info?id=4")),
                 QUrl(QStringLiteral("http://127.0.0.1:9/material/info?id=4")));
        qunsetenv("LUMITRA_CLOUD_URL");
        set_setting(QStringLiteral("CloudBase"), QString());
    }

    void envelope_data()
    {
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<int>("http");
        QTest::addColumn<bool>("reached");
        QTest::addColumn<bool>("ok");
        QTest::addColumn<QString>("message");
        QTest::addColumn<int>("listSize");
        QTest::newRow("success with list") << QByteArray(
            "{\"status\":\"success\",\"data\":{\"list\":[{\"id\":1},{\"id\":2}]},\"message\":\"\"}")
                                           << 200 << true << true << "" << 2;
        QTest::newRow("refused") << QByteArray(
            "{\"status\":\"fail\",\"data\":[],\"message\":\"wrong code\"}")
                                 << 200 << true << false << "wrong code" << 0;
        QTest::newRow("refused with HTTP error")
            << QByteArray("{\"status\":\"fail\",\"message\":\"gone\"}") << 410 << true << false
            << "gone" << 0;
        QTest::newRow("not json") << QByteArray("<html>") << 502 << false << false << "HTTP 502"
                                  << 0;
        QTest::newRow("json but no object") << QByteArray("[1]") << 200 << false << false
                                            << "unreadable reply from the service" << 0;
    }
    void envelope()
    {
        QFETCH(QByteArray, body);
        QFETCH(int, http);
        QFETCH(bool, reached);
        QFETCH(bool, ok);
        QFETCH(QString, message);
        QFETCH(int, listSize);
        const CloudResult r = parse_cloud_reply(body, http);
        QCOMPARE(r.reached, reached);
        QCOMPARE(r.ok, ok);
        QCOMPARE(r.message, message);
        QCOMPARE(r.list.size(), listSize);
        QCOMPARE(r.httpStatus, http);
    }

    void contentEncoding()
    {
        const QByteArray text = QByteArray("{\"status\":\"success\"}").repeated(50);
        QByteArray out;
        QVERIFY(decode_content("", text, &out));
        QCOMPARE(out, text);
        // zlib-wrapped deflate, as HTTP defines it.
        QVERIFY(decode_content("deflate", qCompress(text).mid(4), &out));
        QCOMPARE(out, text);
        // A gzip member: header, raw deflate, CRC and size.
        QProcess gzip;
        gzip.start(QStringLiteral("gzip"), {QStringLiteral("-c")});
        if (gzip.waitForStarted()) {
            gzip.write(text);
            gzip.closeWriteChannel();
            QVERIFY(gzip.waitForFinished());
            QVERIFY(decode_content("gzip", gzip.readAllStandardOutput(), &out));
            QCOMPARE(out, text);
        }
        QVERIFY(!decode_content("br", text, &out));
        QVERIFY(!decode_content("deflate", qCompress(text).mid(4).left(10), &out));
    }

    void updateReply_data()
    {
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<int>("http");
        QTest::addColumn<int>("state");
        QTest::addColumn<QString>("notes");
        QTest::addColumn<QString>("file");
        QTest::newRow("update") << QByteArray(
            "{\"status\":\"success\",\"data\":{\"up_content\":\"1.3: "
            "faster\",\"file_url\":\"https://d.example.org/L.exe\"}}")
                                << 200 << int(UpdateInfo::Available) << "1.3: faster"
                                << "https://d.example.org/L.exe";
        QTest::newRow("no file") << QByteArray(
            "{\"status\":\"success\",\"data\":{\"up_content\":\"x\"}}")
                                 << 200 << int(UpdateInfo::UpToDate) << ""
                                 << "";
        QTest::newRow("service says no")
            << QByteArray("{\"status\":\"fail\",\"message\":\"latest\"}") << 200
            << int(UpdateInfo::UpToDate) << ""
            << "";
        QTest::newRow("server error")
            << QByteArray("{\"status\":\"fail\"}") << 500 << int(UpdateInfo::Failed) << ""
            << "";
        QTest::newRow("garbage") << QByteArray("oops") << 200 << int(UpdateInfo::Failed) << ""
                                 << "";
    }
    void updateReply()
    {
        QFETCH(QByteArray, body);
        QFETCH(int, http);
        QFETCH(int, state);
        QFETCH(QString, notes);
        QFETCH(QString, file);
        const UpdateInfo info = parse_update_reply(parse_cloud_reply(body, http));
        QCOMPARE(int(info.state), state);
        QCOMPARE(info.notes, notes);
        QCOMPARE(info.fileUrl.toString(), file);
        if (state == UpdateInfo::Failed)
            QVERIFY(!info.message.isEmpty());
    }

    void downloadNames_data()
    {
        QTest::addColumn<QString>("url");
        QTest::addColumn<QString>("name");
        QTest::newRow("plain") << "https://x.org/dl/Lumitra-1.3.0.exe?sig=1"
                               << "Lumitra-1.3.0.exe";
        QTest::newRow("encoded slash ends the name") << "https://x.org/a%2F..%2Fb.exe"
                                                     << "b.exe";
        QTest::newRow("hidden") << "https://x.org/.bashrc"
                                << "bashrc";
        QTest::newRow("nothing") << "https://x.org/"
                                 << "download.bin";
    }
    void downloadNames()
    {
        QFETCH(QString, url);
        QFETCH(QString, name);
        QCOMPARE(download_file_name(QUrl(url)), name);
    }
};

QTEST_GUILESS_MAIN(TestCloudRequest)
#include "tst_cloud_request.moc"
