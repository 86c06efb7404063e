#include "cloud_controller.h"
#include "cloud_server.h"
#include "cloud_test_support.h"
#include "external_url.h"
#include "ge_ren_zhong_xin.h"
#include "geng_xin_xia_zai.h"
#include "hou_tai_jie_kou.h"
#include "image_cache.h"
#include "jk_deng_lu.h"
#include "jk_su_cai.h"
#include "jk_tu_yuan.h"
#include "message_box.h"
#include "project_file.h"
#include "settings_store.h"
#include "su_cai_shang_chuan.h"
#include "su_cai_xiang_qing.h"
#include "update_pack.h"

#include <QAction>
#include <QBuffer>
#include <QCheckBox>
#include <QDir>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QtTest>

using namespace lumitra;
using Done = Hou_tai_jie_kou::Done;

// The cloud dialogs driven with QTest against the service on 127.0.0.1,
// through the controller the window owns. Message boxes are answered by a
// handler that records them.
class TestCloudDialogs : public QObject
{
    Q_OBJECT

    CloudServer m_server;
    QTemporaryDir m_dir;
    QWidget m_window;
    QList<MessageRequest> m_messages;
    QList<QUrl> m_opened;
    int m_owlId = 0;
    QByteArray m_owl;

    static QByteArray pngBytes(QRgb colour)
    {
        QImage image(8, 8, QImage::Format_RGB32);
        image.fill(colour);
        QBuffer b;
        b.open(QIODevice::WriteOnly);
        image.save(&b, "PNG");
        return b.data();
    }

    static QByteArray owlProject()
    {
        QPainterPath outline;
        outline.addRect(QRectF(0, 0, 12, 8));
        Jk_tu_yuan item(outline, 0);
        ProjectPageOut page;
        page.items = {&item};
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        return writeProject(&buffer, {page}) ? buffer.data() : QByteArray();
    }

    template<class T> static T *child(QWidget *w, const char *name)
    {
        return w ? w->findChild<T *>(QLatin1String(name)) : nullptr;
    }

    QStringList messageTexts() const
    {
        QStringList t;
        for (const MessageRequest &m : m_messages)
            t << m.message;
        return t;
    }

    void logIn(CloudController &c, const QString &email, const QString &password)
    {
        cloudtest::call([&](Done d) { c.api()->login(email, password, d); });
    }

private slots:
    void initTestCase()
    {
        cloudtest::installLogCapture();
        QVERIFY(m_server.start());
        qputenv("LUMITRA_CLOUD_URL", m_server.baseUrl().toUtf8());
        qunsetenv("DBUS_SESSION_BUS_ADDRESS");
        qputenv("XDG_RUNTIME_DIR", m_dir.path().toUtf8());
        set_message_handler([this](const MessageRequest &r) {
            m_messages << r;
            return 1;
        });
        set_external_url_opener([this](const QUrl &url) {
            m_opened << url;
            return true;
        });
        m_server.setPageSize(4);
        m_server.addAccount("ma@example.org", "Ma", "ma-password", 3);
        m_owl = owlProject();
        CloudServer::Material owl;
        owl.title = QStringLiteral("Owl");
        owl.price = QStringLiteral("2");
        owl.fileName = QStringLiteral("owl.lumitra");
        owl.fileBytes = m_owl;
        owl.images = QStringList{m_server.storeFile("owl.png", pngBytes(qRgb(200, 0, 0)))};
        m_owlId = m_server.addMaterial(owl);
        for (int i = 0; i < 9; ++i) {
            CloudServer::Material m;
            m.title = QStringLiteral("Tile %1").arg(i);
            m.images = QStringList{
                m_server.storeFile(QStringLiteral("t%1.png").arg(i), pngBytes(qRgb(0, i * 20, 0)))};
            m_server.addMaterial(m);
        }
        m_window.resize(800, 600);
        m_window.show();
    }

    void init() { m_messages.clear(); }

    // The menu: its actions open the dialogs (account ones ask for a log-in).
    void menuActions()
    {
        CloudController c(&m_window);
        QCOMPARE(CloudController::menuTitle(), QStringLiteral("云"));
        const QList<QAction *> actions = c.actions();
        QStringList texts;
        for (QAction *a : actions)
            texts << a->text();
        QCOMPARE(texts, (QStringList{"登录", "个人中心", "素材商城", "上传素材"}));
        actions.at(0)->trigger();
        QVERIFY(m_window.findChild<Jk_deng_lu *>());
        actions.at(3)->trigger(); // no token
        QCOMPARE(messageTexts(), QStringList{"请先登录"});
        QVERIFY(!m_window.findChild<Su_Cai_Shang_Chuan *>());
        actions.at(2)->trigger();
        QPointer<jk_su_cai> store = m_window.findChild<jk_su_cai *>();
        QVERIFY(store);
        QSignalSpy shown(store.data(), &jk_su_cai::pageShown);
        QVERIFY(shown.wait(10000));
        // Activating an entry opens its detail.
        QListWidget *list = child<QListWidget>(store, "list_List");
        list->setCurrentRow(0);
        QTest::keyClick(list, Qt::Key_Return);
        QTRY_VERIFY(m_window.findChild<Su_Cai_Xiang_Qing *>());
    }

    void logInThroughTheDialog_data()
    {
        QTest::addColumn<QString>("password");
        QTest::addColumn<bool>("remember");
        QTest::addColumn<QString>("notice"); // empty: accepted
        QTest::newRow("right password, remembered") << "ma-password" << true << "";
        QTest::newRow("right password") << "ma-password" << false << "";
        QTest::newRow("wrong password") << "nope-nope" << true << "wrong e-mail or password";
    }
    void logInThroughTheDialog()
    {
        QFETCH(QString, password);
        QFETCH(bool, remember);
        QFETCH(QString, notice);
        CloudController c(&m_window);
        QPointer<Jk_deng_lu> d = c.showLogin();
        QVERIFY(d);
        child<QLineEdit>(d, "email_Edit")->setText(QString());
        QTest::keyClicks(child<QLineEdit>(d, "email_Edit"), "ma@example.org");
        QTest::keyClicks(child<QLineEdit>(d, "password_Edit"), password);
        child<QCheckBox>(d, "remember_Box")->setChecked(remember);
        QSignalSpy loggedIn(c.api(), &Hou_tai_jie_kou::loggedInChanged);
        QTest::mouseClick(child<QPushButton>(d, "login_Btn"), Qt::LeftButton);
        if (notice.isEmpty()) {
            QTRY_VERIFY_WITH_TIMEOUT(!d || !d->isVisible(), 10000);
            QVERIFY(c.api()->loggedIn());
            QCOMPARE(get_setting("youxiang"), QStringLiteral("ma@example.org"));
            QCOMPARE(get_setting("youxiangmima"), QString());
            QVERIFY(m_messages.isEmpty());
        } else {
            QTRY_COMPARE_WITH_TIMEOUT(m_messages.size(), 1, 10000);
            QCOMPARE(m_messages.first().message, notice);
            QVERIFY(!c.api()->loggedIn());
            QVERIFY(d->isVisible());
            QVERIFY(child<QTabWidget>(d, "pages_Tab")->isEnabled());
            d->close();
        }
    }

    void registerAndResetThroughTheDialog()
    {
        CloudController c(&m_window);
        QPointer<Jk_deng_lu> d = c.showLogin();
        d->showPage(Jk_deng_lu::RegisterPage);
        const QString email = QStringLiteral("new@example.org");
        QTest::keyClicks(child<QLineEdit>(d, "regEmail_Edit"), email);
        QTest::mouseClick(child<QPushButton>(d, "regCode_Btn"), Qt::LeftButton);
        QTRY_COMPARE_WITH_TIMEOUT(messageTexts(), QStringList{"验证码已发送"}, 10000);
        QTest::keyClicks(child<QLineEdit>(d, "regCode_Edit"), m_server.lastCode(email, "register"));
        QTest::keyClicks(child<QLineEdit>(d, "regName_Edit"), "Xin");
        QTest::keyClicks(child<QLineEdit>(d, "regPassword_Edit"), "new-password");
        QTest::keyClicks(child<QLineEdit>(d, "regConfirm_Edit"), "new-password");
        QTest::mouseClick(child<QPushButton>(d, "register_Btn"), Qt::LeftButton);
        QTRY_COMPARE_WITH_TIMEOUT(m_messages.size(), 2, 10000);
        QCOMPARE(m_messages.last().message, QStringLiteral("注册成功"));
        QCOMPARE(child<QTabWidget>(d, "pages_Tab")->currentIndex(), int(Jk_deng_lu::LoginPage));
        QCOMPARE(child<QLineEdit>(d, "email_Edit")->text(), email);

        d->showPage(Jk_deng_lu::ResetPage);
        QTest::keyClicks(child<QLineEdit>(d, "resetEmail_Edit"), email);
        QTest::mouseClick(child<QPushButton>(d, "resetCode_Btn"), Qt::LeftButton);
        QTRY_COMPARE_WITH_TIMEOUT(m_messages.size(), 3, 10000);
        QTest::keyClicks(child<QLineEdit>(d, "resetCode_Edit"),
                         m_server.lastCode(email, "forgotten"));
        QTest::keyClicks(child<QLineEdit>(d, "resetPassword_Edit"), "newer-password");
        QTest::keyClicks(child<QLineEdit>(d, "resetConfirm_Edit"), "other-password");
        QTest::mouseClick(child<QPushButton>(d, "reset_Btn"), Qt::LeftButton);
        QCOMPARE(m_messages.size(), 4); // refused at once: the passwords differ
        child<QLineEdit>(d, "resetConfirm_Edit")->clear();
        QTest::keyClicks(child<QLineEdit>(d, "resetConfirm_Edit"), "newer-password");
        QTest::mouseClick(child<QPushButton>(d, "reset_Btn"), Qt::LeftButton);
        QTRY_COMPARE_WITH_TIMEOUT(m_messages.size(), 5, 10000);
        QCOMPARE(m_messages.last().message, QStringLiteral("修改成功,请去登录！"));

        // And the code log-in with the mailed code.
        child<QCheckBox>(d, "useCode_Box")->setChecked(true);
        QVERIFY(!child<QLineEdit>(d, "password_Edit")->isEnabled());
        QTest::mouseClick(child<QPushButton>(d, "code_Btn"), Qt::LeftButton);
        QTRY_COMPARE_WITH_TIMEOUT(m_messages.size(), 6, 10000);
        QTest::keyClicks(child<QLineEdit>(d, "code_Edit"), m_server.lastCode(email, "login"));
        QTest::mouseClick(child<QPushButton>(d, "login_Btn"), Qt::LeftButton);
        QTRY_VERIFY_WITH_TIMEOUT(c.api()->loggedIn(), 10000);
        QCOMPARE(c.api()->account().value("name").toString(), QStringLiteral("Xin"));
    }

    void storePaging()
    {
        CloudController c(&m_window);
        QPointer<jk_su_cai> store = c.showStore();
        QSignalSpy shown(store.data(), &jk_su_cai::pageShown);
        QVERIFY(shown.wait(10000));
        auto *list = child<QListWidget>(store, "list_List");
        auto *page = child<QLabel>(store, "page_Lab");
        QCOMPARE(list->count(), 4);
        QCOMPARE(page->text(), QStringLiteral("1 / 3"));
        QVERIFY(!child<QPushButton>(store, "prev_Btn")->isEnabled());
        QTRY_VERIFY_WITH_TIMEOUT(!list->item(3)->icon().isNull(), 10000);
        QCOMPARE(store->images()->loadCount(), 4);
        QStringList seen;
        for (int p = 2; p <= 3; ++p) {
            QTRY_VERIFY(child<QPushButton>(store, "next_Btn")->isEnabled());
            QTest::mouseClick(child<QPushButton>(store, "next_Btn"), Qt::LeftButton);
            QTRY_COMPARE_WITH_TIMEOUT(page->text(), QStringLiteral("%1 / 3").arg(p), 10000);
            for (int i = 0; i < list->count(); ++i)
                seen << list->item(i)->text();
        }
        QCOMPARE(seen.size(), 6);
        QVERIFY(!child<QPushButton>(store, "next_Btn")->isEnabled());
        QTRY_COMPARE_WITH_TIMEOUT(store->images()->loadCount(), 10, 10000);
        // Back to the first page: the thumbnails come from the cache.
        QTest::mouseClick(child<QPushButton>(store, "prev_Btn"), Qt::LeftButton);
        QTRY_COMPARE_WITH_TIMEOUT(page->text(), QStringLiteral("2 / 3"), 10000);
        QCOMPARE(store->images()->loadCount(), 10);
        QVERIFY(!list->item(0)->icon().isNull());

        // A search narrows the list to one page.
        QTest::keyClicks(child<QLineEdit>(store, "search_Edit"), "Owl");
        QTest::mouseClick(child<QPushButton>(store, "search_Btn"), Qt::LeftButton);
        QTRY_COMPARE_WITH_TIMEOUT(page->text(), QStringLiteral("1 / 1"), 10000);
        QCOMPARE(list->count(), 1);
        QCOMPARE(list->item(0)->text(), QStringLiteral("Owl"));
        store->close();
        QVERIFY(messageTexts().isEmpty());
    }

    void buyAndOpen()
    {
        CloudController c(&m_window);
        c.setMaterialFolder(m_dir.filePath("materials"));
        QSignalSpy open(&c, &CloudController::openDesignFile);
        QPointer<Su_Cai_Xiang_Qing> d = c.showMaterial(QString::number(m_owlId));
        QSignalSpy loaded(d.data(), &Su_Cai_Xiang_Qing::loaded);
        QVERIFY(loaded.wait(10000));
        QCOMPARE(child<QLabel>(d, "title_Lab")->text(), QStringLiteral("Owl"));
        QTRY_VERIFY_WITH_TIMEOUT(!child<QLabel>(d, "image_Lab")->pixmap(Qt::ReturnByValue).isNull(),
                                 10000);

        // Without a log-in: asked to log in first.
        QTest::mouseClick(child<QPushButton>(d, "buy_Btn"), Qt::LeftButton);
        QCOMPARE(messageTexts(), QStringList{"请先登录"});
        QTRY_VERIFY(m_window.findChild<Jk_deng_lu *>());
        c.showLogin()->close();

        logIn(c, "ma@example.org", "ma-password");
        QTest::mouseClick(child<QPushButton>(d, "buy_Btn"), Qt::LeftButton);
        QTRY_COMPARE_WITH_TIMEOUT(m_messages.size(), 3, 10000);
        QCOMPARE(m_messages.at(1).message, QStringLiteral("是否购买素材"));
        QCOMPARE(m_messages.at(2).message, QStringLiteral("素材购买成功!"));
        QCOMPARE(m_server.balance("ma@example.org"), 1.0);
        QTRY_VERIFY_WITH_TIMEOUT(child<QPushButton>(d, "open_Btn")->isVisible(), 10000);
        QTest::mouseClick(child<QPushButton>(d, "open_Btn"), Qt::LeftButton);
        QTRY_COMPARE_WITH_TIMEOUT(open.count(), 1, 10000);
        const QString path = open.first().first().toString();
        QVERIFY(path.startsWith(m_dir.filePath("materials")));
        const ProjectReadResult design = readProjectFile(path);
        QVERIFY(design.complete);
        QCOMPARE(design.itemCount(), 1);
        QTRY_VERIFY(!d);
    }

    void buyFailsAndUnknownMaterial()
    {
        CloudController c(&m_window);
        logIn(c, "new@example.org", "newer-password"); // balance 0
        QVERIFY(c.api()->loggedIn());
        QPointer<Su_Cai_Xiang_Qing> d = c.showMaterial(QString::number(m_owlId));
        QSignalSpy loaded(d.data(), &Su_Cai_Xiang_Qing::loaded);
        QVERIFY(loaded.wait(10000));
        QTest::mouseClick(child<QPushButton>(d, "buy_Btn"), Qt::LeftButton);
        QTRY_COMPARE_WITH_TIMEOUT(m_messages.size(), 2, 10000);
        QCOMPARE(m_messages.at(1).message,
                 QStringLiteral("素材购买失败,请重新购买!\nbalance too low"));
        QVERIFY(child<QPushButton>(d, "buy_Btn")->isEnabled());
        d->close();

        QPointer<Su_Cai_Xiang_Qing> none = c.showMaterial("4711");
        QTRY_COMPARE_WITH_TIMEOUT(m_messages.size(), 3, 10000);
        QCOMPARE(m_messages.last().message, QStringLiteral("没有发现素材数据"));
        QTRY_VERIFY(!none);
    }

    void personalCentre()
    {
        CloudController c(&m_window);
        c.setModesProvider([] { return QStringLiteral("[{\"mode\":\"fill\"}]"); });
        QVERIFY(!c.showPersonalCentre());
        QCOMPARE(messageTexts(), QStringList{"请先登录"});
        QTRY_VERIFY(m_window.findChild<Jk_deng_lu *>());
        c.showLogin()->close();

        logIn(c, "ma@example.org", "ma-password");
        QPointer<GeRenZhongXin> d = c.showPersonalCentre();
        QVERIFY(d);
        QCOMPARE(child<QLabel>(d, "emailValue_Lab")->text(), QStringLiteral("ma@example.org"));
        const double before = m_server.balance("ma@example.org");
        QTest::mouseClick(child<QPushButton>(d, "recharge_Btn"), Qt::LeftButton);
        QTRY_COMPARE_WITH_TIMEOUT(m_server.balance("ma@example.org"), before + 10, 10000);
        QTRY_COMPARE(child<QLabel>(d, "balanceValue_Lab")->text(),
                     QString::number(before + 10, 'f', 2));
        QTest::keyClicks(child<QLineEdit>(d, "modeName_Edit"), "acrylic");
        QTest::mouseClick(child<QPushButton>(d, "saveModes_Btn"), Qt::LeftButton);
        QTRY_COMPARE_WITH_TIMEOUT(m_messages.size(), 2, 10000);
        QCOMPARE(m_server.modes("ma@example.org", "acrylic"),
                 QStringLiteral("[{\"mode\":\"fill\"}]"));
        QTest::mouseClick(child<QPushButton>(d, "logout_Btn"), Qt::LeftButton);
        QTRY_VERIFY_WITH_TIMEOUT(!c.api()->loggedIn(), 10000);
        QTRY_VERIFY(!d);
    }

    void uploadThroughTheDialog()
    {
        CloudController c(&m_window);
        const QString design = m_dir.filePath("star.lumitra");
        const QString picture = m_dir.filePath("star.png");
        QFile f(design);
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write(m_owl);
        f.close();
        QFile p(picture);
        QVERIFY(p.open(QIODevice::WriteOnly));
        p.write(pngBytes(qRgb(0, 0, 255)));
        p.close();
        c.setDesignFileProvider([design] { return design; });
        logIn(c, "ma@example.org", "ma-password");
        QPointer<Su_Cai_Shang_Chuan> d = c.showUpload();
        QVERIFY(d);
        QCOMPARE(child<QLineEdit>(d, "title_Edit")->text(), QStringLiteral("star"));
        QTest::keyClicks(child<QLineEdit>(d, "images_Edit"), picture);
        QSignalSpy uploaded(d.data(), &Su_Cai_Shang_Chuan::uploaded);
        QTest::mouseClick(child<QPushButton>(d, "upload_Btn"), Qt::LeftButton);
        QVERIFY(uploaded.wait(10000));
        QCOMPARE(messageTexts(), QStringList{"上传成功"});
        MaterialQuery q;
        q.search = QStringLiteral("star");
        const CloudResult r = cloudtest::call([&](Done done) { c.api()->listMaterials(q, done); });
        QCOMPARE(r.list.size(), 1);
        QCOMPARE(r.list.first().toObject().value("id").toVariant().toString(),
                 uploaded.first().first().toString());
    }

    void updateDialog_data()
    {
        QTest::addColumn<qint64>("dropAfter");
        QTest::newRow("downloaded") << qint64(-1);
        QTest::newRow("dropped") << qint64(1 << 19);
    }
    void updateDialog()
    {
        QFETCH(qint64, dropAfter);
        m_server.setUpdate(QStringLiteral("Lumitra 1.3.0"), QStringLiteral("setup-1.3.0.exe"),
                           1 << 20, dropAfter);
        CloudController c(&m_window);
        const QString folder = m_dir.filePath(QTest::currentDataTag());
        c.setUpdateFolder(folder);
        QSignalSpy quit(&c, &CloudController::quitForInstall);
        c.checkForUpdateLater();
        QTRY_VERIFY_WITH_TIMEOUT(c.updateDialog(), 10000);
        QPointer<GengXinXiaZai> d = c.updateDialog();
        QCOMPARE(d->windowTitle(), QStringLiteral("版本更新说明"));
        QCOMPARE(child<QTextBrowser>(d, "notes_Text")->toPlainText(),
                 QStringLiteral("Lumitra 1.3.0"));
        m_opened.clear();
        QTest::mouseClick(child<QPushButton>(d, "update_Btn"), Qt::LeftButton);
        if (dropAfter < 0) {
            QTRY_COMPARE_WITH_TIMEOUT(quit.count(), 1, 20000);
            QCOMPARE(messageTexts(), (QStringList{"下载完成", "请退出安装"}));
            QCOMPARE(m_messages.last().firstButton, QStringLiteral("立即退出"));
            QCOMPARE(m_messages.last().secondButton, QStringLiteral("稍后退出"));
            const QString path = quit.first().first().toString();
            QCOMPARE(QFileInfo(path).size(), qint64(1 << 20));
            QCOMPARE(m_opened, QList<QUrl>{QUrl::fromLocalFile(path)});
            QTRY_VERIFY(!d);
        } else {
            QTRY_VERIFY_WITH_TIMEOUT(
                child<QLabel>(d, "status_Lab")->text().startsWith("Download failed:"), 20000);
            QVERIFY(QDir(folder).entryList(QDir::Files | QDir::Hidden).isEmpty());
            QVERIFY(messageTexts().isEmpty());
            QVERIFY(child<QPushButton>(d, "update_Btn")->isEnabled());
            QCOMPARE(quit.count(), 0);
            d->close();
        }
    }

    void updateCheckCanBeTurnedOff()
    {
        set_setting("CheckUpdate", "0");
        const int before = m_server.requests().size();
        {
            CloudController c(&m_window);
            c.checkForUpdateLater();
            QTest::qWait(0);
            QCoreApplication::processEvents();
            QVERIFY(!c.updateDialog());
        }
        QCOMPARE(m_server.requests().size(), before);
        set_setting("CheckUpdate", QString());
    }

    void cleanupTestCase()
    {
        set_message_handler(nullptr);
        set_external_url_opener(nullptr);
        QVERIFY2(m_server.violations().isEmpty(), qPrintable(m_server.violations().join('\n')));
        const QString log = cloudtest::logLines().join('\n');
        for (const CloudServer::Request &r : m_server.requests())
            if (!r.header("token").isEmpty())
                QVERIFY2(!log.contains(QString::fromUtf8(r.header("token"))), "a token was logged");
        for (const char *p : {"ma-password", "new-password", "newer-password"})
            QVERIFY2(!log.contains(QLatin1String(p)), "a password was logged");
    }
};

QTEST_MAIN(TestCloudDialogs)
#include "tst_cloud_dialogs.moc"
