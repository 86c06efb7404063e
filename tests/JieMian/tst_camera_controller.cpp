#include "calibration.h"
#include "calibration_marks.h"
#include "calibration_store.h"
#include "camera_controller.h"
#include "design_pages.h"
#include "fake_board.h"
#include "gcode_job_controller.h"
#include "get_pixmap_thread.h"
#include "jiao_zhun.h"
#include "jiao_zhun_view.h"
#include "jk_chang_jing.h"
#include "jk_shi_tu.h"
#include "jk_tu_yuan.h"
#include "layer_list.h"
#include "machine_controller.h"
#include "machine_panel.h"
#include "message_box.h"
#include "photo_panel.h"
#include "photo_warp.h"
#include "program_state.h"
#include "rotary.h"
#include "synthetic_photo.h"
#include "wifi_link_controller.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QAction>
#include <QSignalSpy>
#include <QtTest>
#include <memory>

using lumitra::MessageRequest;
using lumitra::camera::CalibrationPoints;

// The camera flows of the window against the fake board on 127.0.0.1: the
// guards of "拍照" in order, the jog to the park position, the photo under
// the design, the calibration from the burnt marks to the file on the card,
// and closing the photo panel during a fetch. Message boxes are answered by a
// handler that records them.
namespace {

const char *const kFile = "winshexiangtoucanshuzhi2.txt";
const char *const kJog = "$J=G90 G21 F5000 X0Y125";

QString u(const char *text)
{
    return QString::fromUtf8(text);
}

QByteArray fileText(const QPointF (&centres)[4])
{
    CalibrationPoints points;
    for (int i = 0; i < 4; ++i)
        points.p[i] = centres[i];
    return lumitra::camera::calibrationFileText(points).toUtf8();
}

// The window's pieces that the camera works with, connected to the board.
struct Rig
{
    FakeBoard board;
    QWidget window;
    MachinePanel *machinePanel = new MachinePanel(&window);
    MachineController machine{machinePanel, &window};
    WifiLinkController wifi{&machine, nullptr, &window};
    GcodeJobController jobs{&window};
    DesignPages pages{&window};
    CameraController camera{&machine, &wifi, &jobs, &pages, &window};

    bool connect()
    {
        if (!board.start())
            return false;
        wifi.setWebSocketPort(board.wsPort());
        wifi.toggle(QStringLiteral("127.0.0.1"), QString::number(board.httpPort()));
        return lumitra::programState().connectionMode == lumitra::WifiLink;
    }
    // A status report from the board with the head at (x, y).
    bool reportPosition(const char *state, double x, double y)
    {
        QSignalSpy moved(&machine, &MachineController::positionChanged);
        board.sendLines({QByteArray("<") + state + "|MPos:" + QByteArray::number(x, 'f', 3) + ","
                         + QByteArray::number(y, 'f', 3) + ",0.000|FS:0,0>"});
        return moved.wait(3000) || moved.count() > 0;
    }
    int jogs() const { return board.commands().count(QString::fromLatin1(kJog)); }
};

} // namespace

class TestCameraController : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void actionsAndPanel();
    void guardsInOrder();
    void rotaryQuestionCanStop();
    void noCalibrationOnTheBoard();
    void headAtParkFetchesAtOnce();
    void jogFirstOtherwise();
    void calibrateSaveAndPhoto();
    void uncalibratedShowsNoPhoto();
    void unusableCalibrationSaysSo();
    void closingThePanelDuringAFetch();
    void opacityAndHideReachTheView();

private:
    QStringList messages() const;
    std::unique_ptr<Rig> m_rig;
    QList<MessageRequest> m_requests;
    QMap<QString, int> m_answers; // by message text; 1 (first button) otherwise
    SyntheticPhoto m_photo;
};

void TestCameraController::init()
{
    lumitra::resetProgramState();
    LayerList::instance().clear();
    lumitra::saveRotarySettings(lumitra::RotarySettings());
    m_requests.clear();
    m_answers.clear();
    lumitra::set_message_handler([this](const MessageRequest &r) {
        m_requests.append(r);
        return m_answers.value(r.message, 1);
    });
    m_photo = makeSyntheticPhoto(QSize(1600, 1200));
    m_rig = std::make_unique<Rig>();
    m_rig->camera.setProbeTimeoutMs(3000);
    m_rig->camera.setFetchRetryDelayMs(50);
}

void TestCameraController::cleanup()
{
    m_rig.reset();
    lumitra::set_message_handler({});
}

QStringList TestCameraController::messages() const
{
    QStringList texts;
    for (const MessageRequest &r : m_requests)
        texts << r.message;
    return texts;
}

void TestCameraController::actionsAndPanel()
{
    const QList<QAction *> actions = m_rig->camera.actions();
    QCOMPARE(actions.size(), 2);
    QCOMPARE(actions[0]->text(), u("校准摄像头"));
    QCOMPARE(actions[1]->text(), u("拍照"));
    QVERIFY(m_rig->camera.panel());
    QVERIFY(m_rig->camera.panel()->isHidden());
    QVERIFY(!m_rig->camera.calibrationDialog()->isVisible());

    // Both actions refuse without the WiFi link.
    actions[1]->trigger();
    actions[0]->trigger();
    QCOMPARE(messages(),
             QStringList({u("使用相机必须要在WiFi模式!"), u("使用相机必须要在WiFi模式!")}));
}

void TestCameraController::guardsInOrder()
{
    Rig &rig = *m_rig;
    // Not connected.
    rig.camera.takePhoto();
    QCOMPARE(messages(), QStringList{u("使用相机必须要在WiFi模式!")});
    QCOMPARE(m_requests.first().title, u("提示"));
    QCOMPARE(m_requests.first().firstButton, u("确定"));

    // Busy comes first, before anything else is looked at.
    QVERIFY(rig.connect());
    QVERIFY(rig.reportPosition("Run", 10, 5));
    QVERIFY(rig.machine.busy());
    lumitra::RotarySettings rotary;
    rotary.mode = lumitra::RotarySettings::ByCircumference;
    lumitra::saveRotarySettings(rotary);
    m_requests.clear();
    rig.camera.takePhoto();
    QCOMPARE(messages(), QStringList{u("设备运行中禁用此功能!")});
    QVERIFY(!rig.board.rawTargets().join(' ').contains(QStringLiteral("/upload?path=/")));

    // Idle again: the rotary question, then the probe, then the calibration.
    QVERIFY(rig.reportPosition("Idle", 10, 5));
    QVERIFY(!rig.machine.busy());
    m_requests.clear();
    rig.camera.takePhoto();
    QCOMPARE(messages(), QStringList({u("滚轴模式不建议拍照!"), u("请先在设置界面校准摄像头!")}));
    QCOMPARE(m_requests.first().firstButton, u("继续拍照"));
    QCOMPARE(m_requests.first().secondButton, u("取消拍照"));
    const QString targets = rig.board.rawTargets().join(' ');
    QVERIFY(rig.camera.deviceProbed());
    QVERIFY(targets.indexOf(QStringLiteral("/upload?path=/"))
            < targets.indexOf(QStringLiteral("/SD/") + kFile));
    QVERIFY(targets.contains(QStringLiteral("/SD/") + kFile));

    // The probe runs once: a second photo goes straight to the calibration.
    const int probes = targets.count(QStringLiteral("/upload?path=/"));
    rig.camera.takePhoto();
    QCOMPARE(rig.board.rawTargets().join(' ').count(QStringLiteral("/upload?path=/")), probes);
}

void TestCameraController::rotaryQuestionCanStop()
{
    Rig &rig = *m_rig;
    QVERIFY(rig.connect());
    lumitra::RotarySettings rotary;
    rotary.mode = lumitra::RotarySettings::ByDiameter;
    lumitra::saveRotarySettings(rotary);
    m_answers[u("滚轴模式不建议拍照!")] = 0; // "取消拍照"
    rig.board.putCardFile(QString::fromLatin1(kFile), fileText(m_photo.centres));
    rig.camera.takePhoto();
    QCOMPARE(messages(), QStringList{u("滚轴模式不建议拍照!")});
    QVERIFY(!rig.camera.deviceProbed());
    QVERIFY(!rig.board.rawTargets().join(' ').contains(QStringLiteral("/upload?path=/")));
    QVERIFY(rig.camera.panel()->isHidden());
    QCOMPARE(rig.jogs(), 0);
}

void TestCameraController::noCalibrationOnTheBoard()
{
    Rig &rig = *m_rig;
    QVERIFY(rig.connect());
    rig.board.setCameraImage(m_photo.jpeg);
    QVERIFY(rig.reportPosition("Idle", 0, 125));
    rig.camera.takePhoto();
    QCOMPARE(messages(), QStringList{u("请先在设置界面校准摄像头!")});
    QVERIFY(rig.camera.panel()->isHidden());
    QVERIFY(!rig.camera.isFetching());
    QTest::qWait(200);
    QCOMPARE(rig.board.cameraRequests(), 0);
    QVERIFY(rig.camera.photo().isNull());
}

void TestCameraController::headAtParkFetchesAtOnce()
{
    Rig &rig = *m_rig;
    QVERIFY(rig.connect());
    rig.board.setCameraImage(m_photo.jpeg);
    rig.board.putCardFile(QString::fromLatin1(kFile), fileText(m_photo.centres));
    QVERIFY(rig.reportPosition("Idle", 0, 125));
    rig.camera.setJogSettleMs(60000); // a jog would not fetch within the test
    QSignalSpy changed(&rig.camera, &CameraController::photoChanged);

    rig.camera.takePhoto();
    QVERIFY(rig.camera.panel()->isVisible());
    QVERIFY(rig.camera.fetcher() && rig.camera.fetcher()->isRunning());
    QTRY_VERIFY_WITH_TIMEOUT(!rig.camera.photo().isNull(), 10000);
    QCOMPARE(messages(), QStringList());
    QCOMPARE(rig.jogs(), 0);
    QCOMPARE(rig.board.cameraRequests(), 1);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(rig.camera.calibration()->state(), 2);

    // The straightened photo is under the design, its crosses on the square.
    const QImage warped = rig.camera.photo().toImage();
    QCOMPARE(warped.size(), QSize(650, 650));
    const QPointF targets[4] = {{125, 125}, {525, 125}, {525, 525}, {125, 525}};
    for (const QPointF &t : targets) {
        const QPointF found = findCrossCentre(warped, t);
        QVERIFY2(QLineF(found, t).length() <= 2.5,
                 qPrintable(QString("cross at %1,%2").arg(found.x()).arg(found.y())));
    }
    Jk_shi_tu *view = rig.pages.currentView();
    QCOMPARE(view->backgroundPhoto().pixmap.size(), QSize(650, 650));
    QCOMPARE(view->backgroundPhoto().rect, lumitra::camera::photoSceneRect(400, 400));
    QCOMPARE(rig.pages.currentScene()->designItemCount(), 0); // not part of any job
    QVERIFY(!rig.camera.isFetching());
}

void TestCameraController::jogFirstOtherwise()
{
    Rig &rig = *m_rig;
    QVERIFY(rig.connect());
    rig.board.setCameraImage(m_photo.jpeg);
    rig.board.putCardFile(QString::fromLatin1(kFile), fileText(m_photo.centres));
    QVERIFY(rig.reportPosition("Idle", 0, 124.999));
    rig.camera.setJogSettleMs(300);
    int cameraRequestsAtJog = -1;
    QObject::connect(&rig.board, &FakeBoard::commandReceived, &rig.board, [&](const QString &text) {
        if (text == QLatin1String(kJog))
            cameraRequestsAtJog = rig.board.cameraRequests();
    });

    rig.camera.takePhoto();
    QVERIFY(rig.camera.isFetching());
    QVERIFY(!rig.camera.fetcher() || !rig.camera.fetcher()->isRunning()); // waits for the head
    QTRY_COMPARE_WITH_TIMEOUT(rig.jogs(), 1, 5000);
    QCOMPARE(cameraRequestsAtJog, 0);
    QTRY_VERIFY_WITH_TIMEOUT(!rig.camera.photo().isNull(), 10000);
    QCOMPARE(rig.board.cameraRequests(), 1);
    QCOMPARE(rig.jogs(), 1);
}

void TestCameraController::calibrateSaveAndPhoto()
{
    Rig &rig = *m_rig;
    QVERIFY(rig.connect());
    rig.board.setCameraImage(m_photo.jpeg);
    rig.camera.setJogSettleMs(100);

    // Calibrate: the question, the marks, the job on the card, the reset dialog.
    rig.camera.calibrateAction()->trigger();
    QCOMPARE(messages(), QStringList{u("是否校准摄像头")});
    QCOMPARE(m_requests.first().firstButton, u("确定"));
    QCOMPARE(m_requests.first().secondButton, u("取消"));
    Jk_chang_jing *scene = rig.pages.currentScene();
    QCOMPARE(scene->designItemCount(), 5);
    QCOMPARE(rig.camera.marks()->marksIn(scene).size(), 5);
    for (Jk_tu_yuan *mark : rig.camera.marks()->marksIn(scene))
        QVERIFY(!mark->isSelected());
    QTRY_VERIFY_WITH_TIMEOUT(rig.board.commands().contains(QStringLiteral("[ESP220]/001.nc")),
                             10000);
    QVERIFY(rig.board.cardFile(QStringLiteral("001.nc")).contains("G1"));
    JiaoZhun *dialog = rig.camera.calibrationDialog();
    QVERIFY(dialog->isVisible());
    QCOMPARE(dialog->nextButton()->text(), u("下一步"));
    QCOMPARE(dialog->clickCount(), 0);
    QVERIFY(!dialog->view()->hasPhoto());

    // Once per scene: a second calibration adds no marks.
    rig.camera.calibrate();
    QCOMPARE(scene->designItemCount(), 5);
    QTRY_COMPARE_WITH_TIMEOUT(rig.board.commands().count(QStringLiteral("[ESP220]/001.nc")), 2,
                              10000);
    dialog->resize(1800, 1400);
    // The marks are burnt: the board reports Idle again.
    QTRY_VERIFY_WITH_TIMEOUT(!rig.board.jobRunning(), 10000);
    QTRY_VERIFY_WITH_TIMEOUT(!rig.machine.busy(), 10000);

    // "下一步" takes the photo into the dialog (no calibration on the card yet).
    m_requests.clear();
    QTest::mouseClick(dialog->nextButton(), Qt::LeftButton);
    QTRY_VERIFY2_WITH_TIMEOUT(dialog->view()->hasPhoto(), qPrintable(messages().join('|')), 10000);
    QCOMPARE(messages(), QStringList());
    QVERIFY(rig.camera.photo().isNull());
    QCOMPARE(dialog->view()->photo().size(), QSize(1600, 1200));

    // The cross centres clicked bottom-left, top-right, bottom-right, top-left.
    JiaoZhunView *view = dialog->view();
    QVector<QPointF> clicked;
    for (int i : {3, 1, 2, 0}) {
        const QPoint at = view->mapFromScene(m_photo.centres[i]);
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, at);
        clicked.append(view->mapToScene(at));
    }
    QCOMPARE(dialog->nextButton()->text(), u("关闭"));
    CalibrationPoints expected;
    expected.p[0] = clicked[3];
    expected.p[1] = clicked[1];
    expected.p[2] = clicked[2];
    expected.p[3] = clicked[0];
    for (int i = 0; i < 4; ++i)
        QVERIFY(QLineF(expected.p[i], m_photo.centres[i]).length() < 1.5 / view->zoom() + 1);
    const QByteArray text = lumitra::camera::calibrationFileText(expected).toUtf8();
    QTRY_COMPARE_WITH_TIMEOUT(rig.board.cardFile(QString::fromLatin1(kFile)), text, 10000);
    QCOMPARE(rig.camera.calibration()->state(), 1);
    QCOMPARE(rig.camera.calibration()->points(), expected);
    QTest::qWait(200);
    // The file is not started as a job.
    QCOMPARE(rig.board.commands().count(QStringLiteral("[ESP220]/001.nc")), 2);
    QVERIFY(!rig.board.commands().join(' ').contains(QString::fromLatin1(kFile)));
    QCOMPARE(messages(), QStringList());

    QTest::mouseClick(dialog->nextButton(), Qt::LeftButton);
    QVERIFY(!dialog->isVisible());

    // The next photo reads the file just written and lands under the design.
    QTest::mouseClick(rig.camera.panel()->takePhotoButton(), Qt::LeftButton);
    QTRY_VERIFY_WITH_TIMEOUT(!rig.camera.photo().isNull(), 10000);
    QCOMPARE(rig.camera.calibration()->state(), 2);
    QCOMPARE(rig.pages.currentView()->backgroundPhoto().pixmap.size(), QSize(650, 650));
    const QImage warped = rig.camera.photo().toImage();
    const QPointF targets[4] = {{125, 125}, {525, 125}, {525, 525}, {125, 525}};
    for (const QPointF &t : targets) {
        const QPointF found = findCrossCentre(warped, t);
        QVERIFY2(QLineF(found, t).length() <= 4.0,
                 qPrintable(QString("cross at %1,%2").arg(found.x()).arg(found.y())));
    }
    QCOMPARE(messages(), QStringList());
}

void TestCameraController::uncalibratedShowsNoPhoto()
{
    Rig &rig = *m_rig;
    QVERIFY(rig.connect());
    rig.board.setCameraImage(m_photo.jpeg);
    rig.board.putCardFile(QString::fromLatin1(kFile), fileText(m_photo.centres));
    QVERIFY(rig.reportPosition("Idle", 0, 125));
    rig.camera.takePhoto();
    QTRY_VERIFY_WITH_TIMEOUT(!rig.camera.photo().isNull(), 10000);

    // The board is calibrated anew with P1.x = 0: the old photo goes, none comes.
    rig.board.putCardFile(QString::fromLatin1(kFile), "J0,300J1400,300J1400,1000J200,1000");
    rig.camera.calibration()->setState(1);
    QSignalSpy changed(&rig.camera, &CameraController::photoChanged);
    rig.camera.takePhoto();
    QVERIFY(changed.wait(10000));
    QVERIFY(changed.first().first().value<QPixmap>().isNull());
    QVERIFY(rig.camera.photo().isNull());
    QVERIFY(rig.pages.currentView()->backgroundPhoto().pixmap.isNull());
    QCOMPARE(rig.board.cameraRequests(), 2);
    QCOMPARE(messages(), QStringList());
}

void TestCameraController::unusableCalibrationSaysSo()
{
    Rig &rig = *m_rig;
    QVERIFY(rig.connect());
    rig.board.setCameraImage(m_photo.jpeg);
    // P1 too near the photo's corner: the crop leaves the warped image.
    rig.board.putCardFile(QString::fromLatin1(kFile), "J10,10J1400,300J1400,1000J200,1000");
    QVERIFY(rig.reportPosition("Idle", 0, 125));
    QSignalSpy changed(&rig.camera, &CameraController::photoChanged);
    rig.camera.takePhoto();
    QVERIFY(changed.wait(10000));
    QVERIFY(rig.camera.photo().isNull());
    QCOMPARE(messages(), QStringList{u("校准数据无效,请重新校准摄像头!")});
}

void TestCameraController::closingThePanelDuringAFetch()
{
    Rig &rig = *m_rig;
    QVERIFY(rig.connect());
    rig.board.setCameraImage(m_photo.jpeg);
    rig.board.putCardFile(QString::fromLatin1(kFile), fileText(m_photo.centres));
    rig.board.failCameraRequests(100000);
    QVERIFY(rig.reportPosition("Idle", 0, 125));
    rig.camera.takePhoto();
    PhotoPanel *panel = rig.camera.panel();
    QVERIFY(panel->isVisible());
    QTRY_VERIFY_WITH_TIMEOUT(rig.board.cameraRequests() >= 3, 10000);
    QTRY_VERIFY(panel->status().contains(u("正在重试")));
    QVERIFY(panel->cancelButton()->isEnabled());

    // "取消" keeps everything going.
    m_answers[u("是否关闭当前拍照")] = 0;
    QTest::mouseClick(panel->closeButton(), Qt::LeftButton);
    QCOMPARE(messages(), QStringList{u("是否关闭当前拍照")});
    QCOMPARE(m_requests.first().firstButton, u("确定"));
    QCOMPARE(m_requests.first().secondButton, u("取消"));
    QVERIFY(panel->isVisible());
    QVERIFY(rig.camera.fetcher()->isRunning());

    // "确定" stops the fetch and hides the panel.
    m_answers[u("是否关闭当前拍照")] = 1;
    QTest::mouseClick(panel->closeButton(), Qt::LeftButton);
    QCOMPARE(messages().size(), 2);
    QVERIFY(panel->isHidden());
    QVERIFY(!rig.camera.isFetching());
    QVERIFY(!rig.camera.fetcher()->isRunning());
    const int requests = rig.board.cameraRequests();
    QTest::qWait(300);
    QCOMPARE(rig.board.cameraRequests(), requests);
    QVERIFY(rig.camera.photo().isNull());

    // The cancel button stops a fetch as well, without asking.
    rig.camera.takePhoto();
    QVERIFY(rig.camera.fetcher()->isRunning());
    QTest::mouseClick(panel->cancelButton(), Qt::LeftButton);
    QVERIFY(!rig.camera.fetcher()->isRunning());
    QCOMPARE(messages().size(), 2);
}

void TestCameraController::opacityAndHideReachTheView()
{
    Rig &rig = *m_rig;
    QVERIFY(rig.connect());
    rig.board.setCameraImage(m_photo.jpeg);
    rig.board.putCardFile(QString::fromLatin1(kFile), fileText(m_photo.centres));
    QVERIFY(rig.reportPosition("Idle", 0, 125));
    rig.camera.takePhoto();
    QTRY_VERIFY_WITH_TIMEOUT(!rig.camera.photo().isNull(), 10000);
    PhotoPanel *panel = rig.camera.panel();
    Jk_shi_tu *view = rig.pages.currentView();
    QCOMPARE(view->backgroundPhoto().opacity, 1.0);

    panel->opacitySlider()->setFocus();
    QTest::keyClick(panel->opacitySlider(), Qt::Key_Home);
    QCOMPARE(view->backgroundPhoto().opacity, 0.0);
    QTest::keyClick(panel->opacitySlider(), Qt::Key_PageUp);
    const double stepped = panel->opacitySlider()->pageStep() / 100.0;
    QVERIFY(qAbs(view->backgroundPhoto().opacity - stepped) < 1e-9);

    QTest::mouseClick(panel->hideButton(), Qt::LeftButton);
    QVERIFY(view->backgroundPhoto().hidden);
    QTest::mouseClick(panel->hideButton(), Qt::LeftButton);
    QVERIFY(!view->backgroundPhoto().hidden);

    // A page added later shows the photo too.
    rig.pages.addPage();
    QCOMPARE(rig.pages.currentView()->backgroundPhoto().pixmap.size(), QSize(650, 650));
}

QTEST_MAIN(TestCameraController)
#include "tst_camera_controller.moc"
