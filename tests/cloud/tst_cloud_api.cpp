#include "cloud_server.h"
#include "cloud_test_support.h"
#include "credential_store.h"
#include "file_download.h"
#include "hou_tai_jie_kou.h"
#include "jk_tu_yuan.h"
#include "project_file.h"
#include "settings_store.h"

#include <QBuffer>
#include <QDir>
#include <QSslSocket>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QtTest>

using namespace lumitra;
using cloudtest::call;
using Done = Hou_tai_jie_kou::Done;

// The account and store API against the little service on 127.0.0.1: every
// round trip, the checks the service makes on each request, and a log of the
// whole run that never shows a token or a password.
class TestCloudApi : public QObject
{
    Q_OBJECT

    CloudServer m_server;
    QTemporaryDir m_dir;
    QStringList m_passwords;
    int m_owlId = 0;
    QByteArray m_owlProject;

    static QByteArray owlProject()
    {
        QPainterPath outline;
        outline.addEllipse(QRectF(0, 0, 30, 20));
        Jk_tu_yuan item(outline, 0);
        item.layer_id = 3;
        ProjectPageOut page;
        page.name = QStringLiteral("owl");
        page.items = {&item};
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        return writeProject(&buffer, {page}) ? buffer.data() : QByteArray();
    }

    QString registerAndLogIn(Hou_tai_jie_kou &api, const QString &email, const QString &password)
    {
        m_passwords << password;
        if (!call([&](Done d) { api.sendRegisterCode(email, d); }).ok)
            return QStringLiteral("send code");
        const QString code = m_server.lastCode(email, QStringLiteral("register"));
        if (!call([&](Done d) {
                 api.registerAccount(email, code, "Wang", password, password, d);
             }).ok)
            return QStringLiteral("register");
        if (!call([&](Done d) { api.login(email, password, d); }).ok)
            return QStringLiteral("login");
        return QString();
    }

private slots:
    void initTestCase()
    {
        cloudtest::installLogCapture();
        QVERIFY(m_server.start());
        qputenv("LUMITRA_CLOUD_URL", m_server.baseUrl().toUtf8());
        m_server.setPageSize(4);
        m_owlProject = owlProject();
        QVERIFY(!m_owlProject.isEmpty());
        CloudServer::Material owl;
        owl.title = QStringLiteral("Owl sign");
        owl.price = QStringLiteral("5");
        owl.materialType = QStringLiteral("wood");
        owl.tags = QStringLiteral("animal");
        owl.fileName = QStringLiteral("owl.lumitra");
        owl.fileBytes = m_owlProject;
        m_owlId = m_server.addMaterial(owl);
        // Nine more, to page through: leather ones are free.
        for (int i = 0; i < 9; ++i) {
            CloudServer::Material m;
            m.title = QStringLiteral("Coaster %1").arg(i);
            m.price = i % 3 == 0 ? QStringLiteral("0") : QStringLiteral("2.5");
            m.materialType = i % 3 == 0 ? QStringLiteral("leather") : QStringLiteral("wood");
            m.tags = QStringLiteral("flower");
            m_server.addMaterial(m);
        }
    }

    // Register, log in, list, buy: the bought file opens as a design.
    void registerLogInListBuyOpen()
    {
        Hou_tai_jie_kou api;
        const QString email = QStringLiteral("wang@example.org");
        const QString password = QStringLiteral("s3cret-pass");
        m_passwords << password;

        QVERIFY(call([&](Done d) { api.sendRegisterCode(email, d); }).ok);
        QCOMPARE(m_server.outbox().size(), 1);
        const QString code = m_server.lastCode(email, QStringLiteral("register"));
        QCOMPARE(code.size(), 6);
        const QString wrong = code == QLatin1String("000000") ? "111111" : "000000";
        CloudResult r =
            call([&](Done d) { api.registerAccount(email, wrong, "Wang", password, password, d); });
        QVERIFY(r.reached && !r.ok);
        QCOMPARE(r.message, QStringLiteral("wrong code"));
        QVERIFY(call([&](Done d) {
                    api.registerAccount(email, code, "Wang", password, password, d);
                }).ok);
        // A code is good once.
        r = call([&](Done d) { api.registerAccount(email, code, "Wang", password, password, d); });
        QVERIFY(!r.ok);

        r = call([&](Done d) { api.login(email, QStringLiteral("not-it"), d); });
        QVERIFY(r.reached && !r.ok);
        QCOMPARE(r.message, QStringLiteral("wrong e-mail or password"));
        QVERIFY(!api.loggedIn());

        QSignalSpy changed(&api, &Hou_tai_jie_kou::loggedInChanged);
        r = call([&](Done d) { api.login(email, password, d); });
        QVERIFY2(r.ok, qPrintable(r.message));
        QVERIFY(api.loggedIn());
        QCOMPARE(changed.count(), 1);
        QVERIFY(m_server.issuedTokens().contains(QString::fromUtf8(api.token())));
        QCOMPARE(api.account().value("name").toString(), QStringLiteral("Wang"));
        QVERIFY(!api.account().contains("token"));

        // The store, page by page: 10 materials, 4 a page.
        QStringList titles;
        for (int page = 1; page <= 3; ++page) {
            MaterialQuery q;
            q.page = page;
            r = call([&](Done d) { api.listMaterials(q, d); });
            QVERIFY(r.ok);
            QCOMPARE(r.list.size(), page < 3 ? 4 : 2);
            QCOMPARE(r.object().value("last_page").toInt(), 3);
            for (const QJsonValue &v : r.list)
                titles << v.toObject().value("title").toString();
        }
        QCOMPARE(titles.size(), 10);
        QCOMPARE(titles.removeDuplicates(), 0);
        QVERIFY(titles.contains("Owl sign"));

        QVERIFY(!call([&](Done d) { api.materialInfo(QString::number(m_owlId), d); })
                     .object()
                     .contains("file_url"));
        r = call([&](Done d) { api.buyMaterial(QString::number(m_owlId), d); });
        QVERIFY(r.reached && !r.ok);
        QCOMPARE(r.message, QStringLiteral("balance too low"));
        QVERIFY(call([&](Done d) { api.recharge(QStringLiteral("12"), d); }).ok);
        QCOMPARE(m_server.balance(email), 12.0);
        r = call([&](Done d) { api.buyMaterial(QString::number(m_owlId), d); });
        QVERIFY2(r.ok, qPrintable(r.message));
        QCOMPARE(m_server.balance(email), 7.0);
        QCOMPARE(m_server.purchases(email), QStringList{QString::number(m_owlId)});
        // Buying again costs nothing more.
        QVERIFY(call([&](Done d) { api.buyMaterial(QString::number(m_owlId), d); }).ok);
        QCOMPARE(m_server.balance(email), 7.0);

        r = call([&](Done d) { api.materialInfo(QString::number(m_owlId), d); });
        QVERIFY(r.object().value("bought").toBool());
        const QUrl fileUrl(r.object().value("file_url").toString());
        QVERIFY(fileUrl.isValid());

        FileDownload download(api.networkManager());
        QSignalSpy finished(&download, &FileDownload::finished);
        download.start(fileUrl, m_dir.filePath("bought"), api.language());
        QVERIFY(finished.wait(20000));
        QVERIFY2(finished.first().at(0).toBool(), qPrintable(finished.first().at(1).toString()));
        const QString path = finished.first().at(2).toString();
        QCOMPARE(QFileInfo(path).fileName(), QStringLiteral("owl.lumitra"));

        const ProjectReadResult design = readProjectFile(path);
        QVERIFY(design.opened && design.complete);
        QCOMPARE(design.itemCount(), 1);
        const Jk_tu_yuan *item = design.pages.first().items.first();
        QCOMPARE(item->layer_id, 3);
        QCOMPARE(item->path.boundingRect(), QRectF(0, 0, 30, 20));

        r = call([&](Done d) { api.logout(d); });
        QVERIFY(r.ok);
        QVERIFY(!api.loggedIn());
        QVERIFY(!m_server.issuedTokens().contains(QString::fromUtf8(api.token())));
    }

    void filters_data()
    {
        QTest::addColumn<QString>("materialType");
        QTest::addColumn<QString>("price");
        QTest::addColumn<QString>("search");
        QTest::addColumn<int>("total");
        QTest::newRow("leather") << "leather"
                                 << ""
                                 << "" << 3;
        QTest::newRow("wood") << "wood"
                              << ""
                              << "" << 7;
        QTest::newRow("free") << ""
                              << "free"
                              << "" << 3;
        QTest::newRow("paid wood") << "wood"
                                   << "paid"
                                   << "" << 7;
        QTest::newRow("search") << ""
                                << ""
                                << "owl" << 1;
        QTest::newRow("search with blanks") << ""
                                            << ""
                                            << "Coaster 1" << 1;
    }
    void filters()
    {
        QFETCH(QString, materialType);
        QFETCH(QString, price);
        QFETCH(QString, search);
        QFETCH(int, total);
        Hou_tai_jie_kou api;
        MaterialQuery q;
        q.materialType = materialType;
        q.price = price;
        q.search = search;
        const CloudResult r = call([&](Done d) { api.listMaterials(q, d); });
        QVERIFY(r.ok);
        QCOMPARE(r.object().value("total").toInt(), total);
    }

    void attributesArriveCompressed()
    {
        Hou_tai_jie_kou api;
        const CloudResult r = call([&](Done d) { api.materialAttributes(d); });
        QVERIFY2(r.ok, qPrintable(r.message));
        QCOMPARE(r.object().value("material_type").toArray().size(), 3);
    }

    void logInWithCodeAndResetPassword()
    {
        Hou_tai_jie_kou api;
        const QString email = QStringLiteral("li@example.org");
        QCOMPARE(registerAndLogIn(api, email, QStringLiteral("first-pass")), QString());
        QVERIFY(call([&](Done d) { api.logout(d); }).ok);

        QVERIFY(call([&](Done d) { api.sendLoginCode(email, d); }).ok);
        const QString code = m_server.lastCode(email, QStringLiteral("login"));
        QVERIFY(call([&](Done d) { api.loginWithCode(email, code, d); }).ok);
        QVERIFY(api.loggedIn());
        QVERIFY(call([&](Done d) { api.logout(d); }).ok);

        const QString newPassword = QStringLiteral("second-pass");
        m_passwords << newPassword;
        QVERIFY(call([&](Done d) { api.sendResetCode(email, d); }).ok);
        const QString reset = m_server.lastCode(email, QStringLiteral("forgotten"));
        CloudResult r =
            call([&](Done d) { api.resetPassword(email, reset, newPassword, "other", d); });
        QVERIFY(!r.ok);
        QVERIFY(!r.message.isEmpty());
        QVERIFY(
            call([&](Done d) { api.resetPassword(email, reset, newPassword, newPassword, d); }).ok);
        QVERIFY(!call([&](Done d) { api.login(email, QStringLiteral("first-pass"), d); }).ok);
        QVERIFY(call([&](Done d) { api.login(email, newPassword, d); }).ok);

        QVERIFY(call([&](Done d) {
                    api.saveModes(QStringLiteral("[{\"power\":40}]"), "birch 3mm", d);
                }).ok);
        QCOMPARE(m_server.modes(email, "birch 3mm"), QStringLiteral("[{\"power\":40}]"));
    }

    // An upload: files through "/files", the material through
    // "/account/material", put on sale, then found and opened by its owner.
    void uploadAndListBack()
    {
        Hou_tai_jie_kou api;
        QCOMPARE(registerAndLogIn(api, "zhao@example.org", "upload-pass"), QString());
        const QString design = m_dir.filePath("heart.lumitra");
        const QString image = m_dir.filePath("heart.png");
        for (const QString &path : {design, image}) {
            QFile f(path);
            QVERIFY(f.open(QIODevice::WriteOnly));
            f.write(path == design ? m_owlProject : QByteArray("\x89PNG\r\n\x1a\nfake", 12));
        }
        CloudResult r = call([&](Done d) { api.uploadFile(design, d); });
        QVERIFY2(r.ok, qPrintable(r.message));
        const QString fileUrl = r.object().value("url").toString();
        QVERIFY(fileUrl.endsWith("/heart.lumitra"));
        r = call([&](Done d) { api.uploadFile(image, d); });
        QVERIFY(r.ok);
        const QString imageUrl = r.object().value("url").toString();

        MaterialUpload m;
        m.title = QStringLiteral("Heart box");
        m.price = QStringLiteral("0");
        m.images = QStringList{imageUrl};
        m.file = fileUrl;
        m.detail = QStringLiteral("A box, 3 mm birch");
        m.detailImages = QStringList{imageUrl, imageUrl};
        m.fileType = QStringLiteral("lumitra");
        m.materialType = QStringLiteral("wood");
        m.tags = QStringLiteral("letter");
        r = call([&](Done d) { api.uploadMaterial(m, d); });
        QVERIFY2(r.ok, qPrintable(r.message));
        const QString id = QString::number(r.object().value("id").toInt());

        MaterialQuery q;
        q.search = m.title;
        QCOMPARE(call([&](Done d) { api.listMaterials(q, d); }).list.size(), 0); // not on sale yet
        QVERIFY(call([&](Done d) { api.materialsAction({id}, "up", d); }).ok);
        r = call([&](Done d) { api.listMaterials(q, d); });
        QCOMPARE(r.list.size(), 1);
        QCOMPARE(r.list.first().toObject().value("cover").toString(), imageUrl);

        r = call([&](Done d) { api.materialInfo(id, d); });
        QCOMPARE(r.object().value("detail").toString(), m.detail);
        QCOMPARE(r.object().value("detail_images").toArray().size(), 2);
        FileDownload download(api.networkManager());
        QSignalSpy finished(&download, &FileDownload::finished);
        download.start(QUrl(r.object().value("file_url").toString()), m_dir.filePath("mine"),
                       api.language());
        QVERIFY(finished.wait(20000));
        QFile back(finished.first().at(2).toString());
        QVERIFY(back.open(QIODevice::ReadOnly));
        QCOMPARE(back.readAll(), m_owlProject);

        QVERIFY(call([&](Done d) { api.materialInfo("9999", d); }).object().isEmpty());
    }

    // Account calls without a token never leave the program.
    void accountCallsNeedTheToken()
    {
        Hou_tai_jie_kou api;
        cloudtest::CountingManager manager;
        api.setNetworkManager(&manager);
        const int before = m_server.requests().size();
        const QList<std::function<void(Done)>> calls = {
            [&](Done d) { api.buyMaterial("1", d); },
            [&](Done d) { api.recharge("5", d); },
            [&](Done d) { api.logout(d); },
            [&](Done d) {
                api.uploadFile(QString::fromLatin1(LUMITRA_SOURCE_DIR "/README.md"), d);
            },
            [&](Done d) { api.saveModes("m", "n", d); },
            [&](Done d) { api.materialsAction({"1"}, "up", d); }};
        for (const auto &c : calls) {
            bool finished = false;
            const CloudResult r = call(c, &finished);
            QVERIFY(finished);
            QVERIFY(!r.reached && !r.ok);
            QCOMPARE(r.message, QStringLiteral("not logged in"));
        }
        QCOMPARE(manager.requests, 0);
        QCOMPARE(m_server.requests().size(), before);
    }

    // Plain http to anything but this machine is refused before a socket
    // exists. The names are reserved and never resolve.
    void plainHttpElsewhereRefused_data()
    {
        QTest::addColumn<QString>("base");
        QTest::newRow("reserved name") << "http://cloud.example.invalid";
        QTest::newRow("LAN address") << "http://192.0.2.1:8080";
        QTest::newRow("other scheme") << "ftp://127.0.0.1";
    }
    void plainHttpElsewhereRefused()
    {
        QFETCH(QString, base);
        qputenv("LUMITRA_CLOUD_URL", base.toUtf8());
        Hou_tai_jie_kou api;
        qputenv("LUMITRA_CLOUD_URL", m_server.baseUrl().toUtf8());
        QCOMPARE(api.base(), QUrl(base));
        cloudtest::CountingManager manager;
        api.setNetworkManager(&manager);
        bool finished = false;
        CloudResult r = call([&](Done d) { api.login("a@b.org", "pw-never-sent", d); }, &finished);
        QVERIFY(finished);
        QVERIFY(!r.reached);
        QVERIFY2(r.message.contains("refused") || r.message.contains("unsupported"),
                 qPrintable(r.message));
        r = call([&](Done d) { api.checkUpdate(d); });
        QVERIFY(!r.reached);
        FileDownload download(&manager);
        QSignalSpy done(&download, &FileDownload::finished);
        download.start(QUrl(base + "/setup.exe"), m_dir.filePath("refused"), "en");
        QVERIFY(done.wait(5000));
        QVERIFY(!done.first().at(0).toBool());
        QVERIFY(done.first().at(1).toString().startsWith("Download failed:"));
        QCOMPARE(manager.requests, 0);
        QVERIFY(!QDir(m_dir.filePath("refused")).exists("setup.exe"));
    }

    // https to something that does not speak TLS: the handshake fails and the
    // call fails with it; nothing is ignored and no envelope is read.
    void tlsFailureIsNotIgnored()
    {
        if (!QSslSocket::supportsSsl())
            QSKIP("no TLS backend");
        QTcpServer plain;
        QVERIFY(plain.listen(QHostAddress::LocalHost, 0));
        connect(&plain, &QTcpServer::newConnection, &plain, [&plain]() {
            QTcpSocket *s = plain.nextPendingConnection();
            s->write("HTTP/1.1 200 OK\r\nContent-Length: 20\r\n\r\n{\"status\":\"success\"}");
        });
        Hou_tai_jie_kou api;
        api.setBase(QUrl(QStringLiteral("https://127.0.0.1:%1").arg(plain.serverPort())));
        bool finished = false;
        const CloudResult r = call([&](Done d) { api.materialAttributes(d); }, &finished);
        QVERIFY(finished);
        QVERIFY(!r.reached);
        QVERIFY(!r.ok);
        QVERIFY(!r.message.isEmpty());
    }

    // No keyring on a test machine: the password is not remembered, nothing
    // waits, and it never reaches the settings file.
    void credentialsWithoutKeyring()
    {
        qunsetenv("DBUS_SESSION_BUS_ADDRESS");
        qputenv("XDG_RUNTIME_DIR", m_dir.path().toUtf8());
        QVERIFY(!CredentialStore::keyringReachable());
        CredentialStore store;
        const QString password = QStringLiteral("remember-me-not");
        m_passwords << password;
        store.remember(QStringLiteral("wang@example.org"), password);
        QCOMPARE(get_setting(QStringLiteral("youxiang")), QStringLiteral("wang@example.org"));
        QCOMPARE(get_setting(QStringLiteral("youxiangmima")), QString());
        QCOMPARE(store.rememberedEmail(), QStringLiteral("wang@example.org"));
        bool answered = false;
        QString recalled = QStringLiteral("x");
        store.recallPassword(store.rememberedEmail(), [&](const QString &p) {
            answered = true;
            recalled = p;
        });
        QVERIFY(!answered); // always from the event loop
        QTRY_VERIFY(answered);
        QCOMPARE(recalled, QString());
        QFile config(config_path());
        QVERIFY(config.open(QIODevice::ReadOnly));
        QVERIFY(!config.readAll().contains(password.toUtf8()));
    }

    // The service's checks themselves: a request built without the client's
    // headers and fields is flagged, item by item.
    void serverFlagsForeignRequests()
    {
        QVERIFY2(m_server.violations().isEmpty(), qPrintable(m_server.violations().join('\n')));
        QNetworkAccessManager manager;
        QNetworkRequest request(QUrl(m_server.baseUrl() + "/login"));
        request.setHeader(QNetworkRequest::ContentTypeHeader, "text/plain");
        request.setRawHeader("lang", "fr");
        QNetworkReply *reply = manager.post(request, QByteArray("user=a&password=b"));
        QSignalSpy done(reply, &QNetworkReply::finished);
        QVERIFY(done.wait(10000));
        reply->deleteLater();
        const QString found = m_server.takeViolations().join('\n');
        for (const char *expected :
             {"POST /login: header App-Type sent 0 times", "POST /login: header lang is \"fr\"",
              "POST /login: User-Agent \"Mozilla/5.0\"", "POST /login: content type \"text/plain\"",
              "POST /login: header Connection is \"Keep-Alive\"", "POST /login: fields"})
            QVERIFY2(found.contains(QLatin1String(expected)), qPrintable(found));
    }

    void cleanupTestCase()
    {
        QVERIFY2(m_server.violations().isEmpty(), qPrintable(m_server.violations().join('\n')));
        QVERIFY(m_server.requests().size() > 30);
        const QString log = cloudtest::logLines().join('\n');
        QVERIFY(log.contains(" out ")); // the calls are logged
        int withToken = 0;
        for (const CloudServer::Request &r : m_server.requests())
            if (!r.header("token").isEmpty()) {
                ++withToken;
                QVERIFY2(!log.contains(QString::fromUtf8(r.header("token"))), "a token was logged");
            }
        QVERIFY(withToken > 5);
        for (const QString &p : qAsConst(m_passwords))
            QVERIFY2(!log.contains(p), "a password was logged");
    }
};

QTEST_MAIN(TestCloudApi)
#include "tst_cloud_api.moc"
