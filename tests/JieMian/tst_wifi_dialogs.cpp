#include "controller_search_dialog.h"
#include "fake_board.h"
#include "message_box.h"
#include "sd_file_manager.h"
#include "wifi_she_zhi.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QtTest>

// The WiFi setup, controller search and SD card dialogs driven with mouse and
// key events; boards are the fake on 127.0.0.1 only and message boxes are
// answered by a handler that records them.
namespace {

template<typename T> T *child(QObject *parent, const char *name)
{
    T *widget = parent->findChild<T *>(QLatin1String(name));
    if (!widget)
        qWarning() << "no widget" << name;
    return widget;
}

void click(QObject *parent, const char *button)
{
    QTest::mouseClick(child<QPushButton>(parent, button), Qt::LeftButton);
}

QString text(QObject *parent, const char *label)
{
    return child<QLabel>(parent, label)->text();
}

quint16 closedPort()
{
    QTcpServer server;
    server.listen(QHostAddress::LocalHost, 0);
    const quint16 port = server.serverPort();
    server.close();
    return port;
}

} // namespace

class TestWifiDialogs : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void stationEntries_data();
    void stationEntries();
    void accessPointAndRefresh();
    void deviceInfoShown();
    void searchAndChoose();
    void searchFindsNothing();
    void fileManager();
    void fileManagerFailure();

private:
    QList<lumitra::MessageRequest> m_messages;
    int m_answer = 1;
};

void TestWifiDialogs::init()
{
    m_messages.clear();
    m_answer = 1;
    lumitra::set_message_handler([this](const lumitra::MessageRequest &r) {
        m_messages << r;
        return m_answer;
    });
}

void TestWifiDialogs::cleanup()
{
    lumitra::set_message_handler({});
}

void TestWifiDialogs::stationEntries_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("password");
    QTest::addColumn<QString>("refusal"); // empty: the command is emitted
    QTest::newRow("accepted") << "HomeNet"
                              << "pa$$word"
                              << "";
    QTest::newRow("empty") << ""
                           << "password1"
                           << "密码或账号不能为空!";
    QTest::newRow("short") << "HomeNet"
                           << "1234567"
                           << "密码长度不匹配";
    QTest::newRow("symbol") << "Home~Net"
                            << "password1"
                            << "账号或密码不能包含!,？,~,$符号";
    QTest::newRow("Chinese") << QStringLiteral("家里") << "password1"
                             << "目前仅支持英文,数字,符号输入";
}

void TestWifiDialogs::stationEntries()
{
    QFETCH(QString, name);
    QFETCH(QString, password);
    QFETCH(QString, refusal);
    WIFI_She_Zhi dialog;
    QSignalSpy sent(&dialog, &WIFI_She_Zhi::fa_song_ming_ling);
    dialog.show();
    // Typed as a paste: key events cannot carry Chinese characters.
    child<QLineEdit>(&dialog, "ssid_Edit")->insert(name);
    auto *passwordEdit = child<QLineEdit>(&dialog, "password_Edit");
    QCOMPARE(passwordEdit->echoMode(), QLineEdit::Password);
    passwordEdit->insert(password);
    click(&dialog, "sta_Btn");
    if (refusal.isEmpty()) {
        QCOMPARE(m_messages.size(), 0);
        QCOMPARE(sent.size(), 1);
        QCOMPARE(sent[0].at(0).toString(),
                 "$Sta/Password=" + password + "\n$Sta/SSID=" + name + "\n$Radio/Mode=STA\n$I\n");
    } else {
        QCOMPARE(sent.size(), 0);
        QCOMPARE(m_messages.size(), 1);
        QCOMPARE(m_messages[0].message, refusal);
        QCOMPARE(m_messages[0].title, QStringLiteral("提示"));
        QCOMPARE(m_messages[0].firstButton, QStringLiteral("确定"));
        QVERIFY(m_messages[0].secondButton.isEmpty());
    }
    QTest::keyClick(child<QCheckBox>(&dialog, "showPassword_Box"), Qt::Key_Space);
    QCOMPARE(passwordEdit->echoMode(), QLineEdit::Normal);
}

void TestWifiDialogs::accessPointAndRefresh()
{
    WIFI_She_Zhi dialog;
    QSignalSpy sent(&dialog, &WIFI_She_Zhi::fa_song_ming_ling);
    dialog.show();
    click(&dialog, "ap_Btn");
    click(&dialog, "refresh_Btn");
    QCOMPARE(sent.size(), 2);
    QCOMPARE(sent[0].at(0).toString(), QStringLiteral("$Radio/Mode=AP \n$I\n"));
    QCOMPARE(sent[1].at(0).toString(), QStringLiteral("$I\n"));
    QCOMPARE(m_messages.size(), 0);
}

void TestWifiDialogs::deviceInfoShown()
{
    WIFI_She_Zhi dialog;
    QCOMPARE(text(&dialog, "ipValue_Lab"), QStringLiteral("-"));
    dialog.setDeviceInfo({{"Mode", "STA"},
                          {"SSID", "HomeNet"},
                          {"Status", "Connected"},
                          {"IP", "192.168.1.40"},
                          {"$130", "400"}});
    QVERIFY(text(&dialog, "modeValue_Lab").contains("STA"));
    QCOMPARE(text(&dialog, "ssidValue_Lab"), QStringLiteral("HomeNet"));
    QCOMPARE(text(&dialog, "statusValue_Lab"), QStringLiteral("Connected"));
    QCOMPARE(text(&dialog, "ipValue_Lab"), QStringLiteral("192.168.1.40"));
    // The access point's name sits under the board's own key "SSDI".
    dialog.setDeviceInfo({{"Mode", "AP"}, {"SSDI", "Board-AP"}, {"IP", "192.168.0.1"}});
    QVERIFY(text(&dialog, "modeValue_Lab").contains("AP"));
    QCOMPARE(text(&dialog, "ssidValue_Lab"), QStringLiteral("Board-AP"));
    QCOMPARE(text(&dialog, "statusValue_Lab"), QStringLiteral("-"));
    QCOMPARE(text(&dialog, "ipValue_Lab"), QStringLiteral("192.168.0.1"));
}

void TestWifiDialogs::searchAndChoose()
{
    FakeBoard board;
    QVERIFY(board.start());
    const QString closed = QStringLiteral("127.0.0.1:%1").arg(closedPort());
    const QString other = QStringLiteral("localhost:%1").arg(board.httpPort());
    ControllerSearchDialog dialog({closed, "127.0.0.1", other}, board.httpPort());
    QSignalSpy chosen(&dialog, &ControllerSearchDialog::controllerChosen);
    dialog.show(); // starts the search
    QTRY_COMPARE_WITH_TIMEOUT(text(&dialog, "status_Lab"), QStringLiteral("搜索完成!"), 10000);
    auto *list = child<QListWidget>(&dialog, "found_List");
    QCOMPARE(list->count(), 2);
    QVERIFY(child<QPushButton>(&dialog, "search_Btn")->isEnabled());

    // The second board found carries its own port.
    list->setCurrentRow(list->row(list->findItems(other, Qt::MatchExactly).value(0)));
    click(&dialog, "confirm_Btn");
    QCOMPARE(chosen.size(), 1);
    QCOMPARE(chosen[0], (QList<QVariant>{"localhost", int(board.httpPort())}));
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(m_messages.size(), 0);
}

void TestWifiDialogs::searchFindsNothing()
{
    ControllerSearchDialog dialog({QStringLiteral("127.0.0.1:%1").arg(closedPort())}, 80);
    QSignalSpy chosen(&dialog, &ControllerSearchDialog::controllerChosen);
    dialog.show();
    QTRY_VERIFY_WITH_TIMEOUT(text(&dialog, "status_Lab").startsWith(QStringLiteral("搜索完成!")),
                             10000);
    QCOMPARE(child<QListWidget>(&dialog, "found_List")->count(), 0);
    QVERIFY(!child<QPushButton>(&dialog, "confirm_Btn")->isEnabled());
    QTest::keyClick(child<QListWidget>(&dialog, "found_List"), Qt::Key_Return);
    QCOMPARE(chosen.size(), 0);
}

void TestWifiDialogs::fileManager()
{
    FakeBoard board;
    QVERIFY(board.start());
    board.putCardFile("old.nc", QByteArray(700, 'G'));
    board.putCardFile("run me.nc", "G1X1F100\n");
    QTemporaryDir dir;
    const QString local = dir.filePath("new.nc");
    QFile file(local);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("G0X5\n");
    file.close();

    SdFileManager dialog;
    dialog.setAddress("127.0.0.1", board.httpPort());
    int chooserCalls = 0;
    dialog.setFileChooser([&](QWidget *) {
        ++chooserCalls;
        return local;
    });
    auto *table = child<QTableWidget>(&dialog, "file_Table");
    auto *refresh = child<QPushButton>(&dialog, "refresh_Btn");
    dialog.show();                  // lists the card
    QVERIFY(!refresh->isEnabled()); // in flight
    QVERIFY(!child<QPushButton>(&dialog, "upload_Btn")->isEnabled());
    QTRY_COMPARE_WITH_TIMEOUT(table->rowCount(), 2, 5000);
    QTRY_VERIFY(refresh->isEnabled());
    QCOMPARE(dialog.fileNames(), (QStringList{"old.nc", "run me.nc"}));
    QCOMPARE(table->item(0, 1)->text(), QStringLiteral("700 B"));
    QCOMPARE(text(&dialog, "totalValue_Lab"), QStringLiteral("4.00 GB"));
    QVERIFY(!child<QPushButton>(&dialog, "delete_Btn")->isEnabled()); // nothing chosen

    // Delete asks first; "取消" keeps the file.
    table->selectRow(0);
    QVERIFY(child<QPushButton>(&dialog, "delete_Btn")->isEnabled());
    m_answer = 0;
    click(&dialog, "delete_Btn");
    QCOMPARE(m_messages.size(), 1);
    QVERIFY(m_messages[0].message.contains("old.nc"));
    QVERIFY(!dialog.client()->isBusy());
    m_answer = 1;
    click(&dialog, "delete_Btn");
    QTRY_COMPARE_WITH_TIMEOUT(dialog.fileNames(), QStringList{"run me.nc"}, 5000);
    QCOMPARE(board.cardFiles(), QStringList{"run me.nc"});

    // Run asks first and reports the start.
    QSignalSpy started(&dialog, &SdFileManager::fileStarted);
    table->selectRow(0);
    QTRY_VERIFY(child<QPushButton>(&dialog, "run_Btn")->isEnabled());
    click(&dialog, "run_Btn");
    QVERIFY(started.wait(5000));
    QCOMPARE(started[0].at(0).toString(), QStringLiteral("run me.nc"));
    QCOMPARE(board.commands(), QStringList{"[ESP220]/run me.nc"});
    QCOMPARE(m_messages.size(), 3);

    // Upload through the chooser, then the list shows the file.
    QTRY_VERIFY(child<QPushButton>(&dialog, "upload_Btn")->isEnabled());
    click(&dialog, "upload_Btn");
    QCOMPARE(chooserCalls, 1);
    QTRY_COMPARE_WITH_TIMEOUT(dialog.fileNames(), (QStringList{"new.nc", "run me.nc"}), 10000);
    QCOMPARE(board.cardFile("new.nc"), QByteArray("G0X5\n"));
    QCOMPARE(m_messages.size(), 3); // a new name is not asked about

    // The same name again: asked before it is replaced; "取消" sends nothing.
    QTRY_VERIFY(child<QPushButton>(&dialog, "upload_Btn")->isEnabled());
    m_answer = 0;
    click(&dialog, "upload_Btn");
    QCOMPARE(m_messages.size(), 4);
    QVERIFY(m_messages[3].message.contains("new.nc"));
    QCOMPARE(board.uploadCount(), 1);
}

void TestWifiDialogs::fileManagerFailure()
{
    SdFileManager dialog;
    dialog.setAddress("127.0.0.1", closedPort());
    dialog.show();
    QTRY_COMPARE_WITH_TIMEOUT(m_messages.size(), 1, 10000);
    QVERIFY(m_messages[0].message.startsWith(QStringLiteral("读取SD卡文件列表失败")));
    QCOMPARE(m_messages[0].title, QStringLiteral("提示"));
    QVERIFY(child<QPushButton>(&dialog, "refresh_Btn")->isEnabled());
    QCOMPARE(child<QTableWidget>(&dialog, "file_Table")->rowCount(), 0);
}

QTEST_MAIN(TestWifiDialogs)
#include "tst_wifi_dialogs.moc"
