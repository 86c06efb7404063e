#include "camera_controller.h"

#include "board_probe.h"
#include "calibration_marks.h"
#include "calibration_store.h"
#include "design_pages.h"
#include "gcode_job_controller.h"
#include "get_pixmap_thread.h"
#include "http_thread.h"
#include "jiao_zhun.h"
#include "jk_chang_jing.h"
#include "jk_shi_tu.h"
#include "machine_controller.h"
#include "message_box.h"
#include "photo_panel.h"
#include "photo_warp.h"
#include "program_state.h"
#include "rotary.h"
#include "wifi_link_controller.h"

#include <QAction>
#include <QDebug>
#include <QImage>

using lumitra::programState;
using lumitra::camera::CalibrationPoints;

namespace {
// Moves the head to the park position at 5000 mm/min.
const char *const kParkJog = "$J=G90 G21 F5000 X0Y125";
} // namespace

CameraController::CameraController(MachineController *machine, WifiLinkController *wifi,
                                   GcodeJobController *jobs, DesignPages *pages,
                                   QWidget *dialogParent, QObject *parent)
    : QObject(parent), m_machine(machine), m_wifi(wifi), m_jobs(jobs), m_pages(pages),
      m_dialogParent(dialogParent), m_store(new CalibrationStore(this)),
      m_marks(new CalibrationMarks(this)), m_calibrateAction(new QAction(tr("校准摄像头"), this)),
      m_photoAction(new QAction(tr("拍照"), this))
{
    m_panel = new PhotoPanel(dialogParent);
    m_panel->setWindowFlag(Qt::Tool);
    m_panel->hide();
    connect(m_panel, &PhotoPanel::takePhotoClicked, this, &CameraController::takePhoto);
    connect(m_panel, &PhotoPanel::cancelClicked, this, &CameraController::cancelFetch);
    connect(m_panel, &PhotoPanel::closeRequested, this, &CameraController::closePanel);
    connect(m_panel, &PhotoPanel::opacityChanged, this, &CameraController::applyPhoto);
    connect(m_panel, &PhotoPanel::hiddenToggled, this, &CameraController::applyPhoto);

    m_dialog = new JiaoZhun(dialogParent);
    connect(m_dialog, &JiaoZhun::pointsPicked, this, &CameraController::onPointsPicked);
    connect(m_dialog, &JiaoZhun::photoRequested, this, &CameraController::takePhoto);

    connect(m_calibrateAction, &QAction::triggered, this, &CameraController::calibrate);
    connect(m_photoAction, &QAction::triggered, this, &CameraController::takePhoto);

    m_settle.setSingleShot(true);
    connect(&m_settle, &QTimer::timeout, this, &CameraController::startFetch);

    connect(machine, &MachineController::positionChanged, this, [this](double x, double y) {
        m_x = x;
        m_y = y;
        m_positionKnown = true;
    });
    connect(machine, &MachineController::connectionChanged, this, [this](int mode) {
        m_positionKnown = false;
        // A newly chosen board: its calibration is read before the next photo.
        if (mode == lumitra::WifiLink)
            m_store->setState(1);
        else
            cancelFetch();
    });
    if (pages)
        connect(pages, &DesignPages::pagesChanged, this, &CameraController::applyPhoto);
}

CameraController::~CameraController()
{
    m_settle.stop();
    if (m_fetch)
        m_fetch->cancel();
    // Still floating (never placed into a window layout without a parent).
    if (m_panel && !m_panel->parent())
        delete m_panel;
    if (m_dialog && !m_dialog->parent())
        delete m_dialog;
}

QList<QAction *> CameraController::actions() const
{
    return {m_calibrateAction, m_photoAction};
}

bool CameraController::isFetching() const
{
    return m_settle.isActive() || (m_fetch && m_fetch->isRunning());
}

HttpThread *CameraController::link() const
{
    return m_wifi ? m_wifi->link() : nullptr;
}

QString CameraController::hostPort() const
{
    HttpThread *l = link();
    return l ? QStringLiteral("%1:%2").arg(l->host()).arg(l->httpPort()) : QString();
}

void CameraController::setStatus(const QString &text, bool cancellable)
{
    if (m_panel)
        m_panel->setStatus(text, cancellable);
}

void CameraController::notice(const QString &text)
{
    lumitra::show_notice(m_dialogParent, text);
}

bool CameraController::ensureProbed()
{
    if (m_probed)
        return true;
    HttpThread *l = link();
    m_probed = l && BoardProbe::probeAndWait(l->host(), l->httpPort(), m_probeTimeoutMs);
    if (!m_probed) {
        qDebug() << " out camera probe" << hostPort();
        notice(tr("设备没有响应,请检查WiFi连接!"));
    }
    return m_probed;
}

void CameraController::takePhoto()
{
    if (m_machine->busy()) {
        notice(tr("设备运行中禁用此功能!"));
        return;
    }
    if (programState().connectionMode != lumitra::WifiLink || !link()) {
        notice(tr("使用相机必须要在WiFi模式!"));
        return;
    }
    if (lumitra::loadRotarySettings().rewrites()
        && !lumitra::show_message(m_dialogParent, lumitra::MessageKind::Question, tr("取消拍照"),
                                  tr("继续拍照"), tr("滚轴模式不建议拍照!"), tr("提示")))
        return;
    if (!ensureProbed())
        return;
    QString message;
    const bool dialogOpen = m_dialog && m_dialog->isVisible();
    if (!m_store->load(hostPort(), dialogOpen, &message)) {
        notice(message);
        return;
    }
    showPanel();
    if (isFetching())
        return; // the photo on its way will do
    if (m_positionKnown && m_x == kParkX && m_y == kParkY) {
        startFetch();
        return;
    }
    link()->sendCommand(QString::fromLatin1(kParkJog));
    setStatus(tr("正在移动激光头..."), true);
    m_settle.start(m_jogSettleMs);
}

void CameraController::startFetch()
{
    const QString address = hostPort();
    if (address.isEmpty())
        return;
    if (m_fetch && m_fetch->hostPort() != address) {
        delete m_fetch;
        m_fetch = nullptr;
    }
    if (!m_fetch) {
        m_fetch = new GetPixmapThread(address, this);
        connect(m_fetch, &GetPixmapThread::imageReady, this, &CameraController::onImageReady);
        connect(m_fetch, &GetPixmapThread::attemptFailed, this, &CameraController::onAttemptFailed);
    }
    m_fetch->setRetryDelayMs(m_retryDelayMs);
    m_fetch->start();
    setStatus(tr("正在获取照片..."), true);
}

void CameraController::onAttemptFailed(const QString &error)
{
    const int attempts = m_fetch ? m_fetch->attempts() : 0;
    setStatus(tr("获取照片失败,正在重试(第%1次): %2").arg(attempts).arg(error), true);
}

void CameraController::cancelFetch()
{
    const bool wasFetching = isFetching();
    m_settle.stop();
    if (m_fetch)
        m_fetch->cancel();
    if (wasFetching)
        setStatus(tr("已取消拍照"), false);
}

void CameraController::closePanel()
{
    if (!lumitra::show_message(m_dialogParent, lumitra::MessageKind::Question, tr("取消"),
                               tr("确定"), tr("是否关闭当前拍照"), tr("提示")))
        return;
    cancelFetch();
    if (m_panel)
        m_panel->hide();
}

void CameraController::showPanel()
{
    if (m_panel && m_panel->isHidden())
        m_panel->show();
}

void CameraController::onImageReady(const QImage &image)
{
    const QImage turned = lumitra::camera::turnHalf(image);
    setStatus(tr("照片已获取"), false);
    if (m_dialog && m_dialog->isVisible()) {
        m_dialog->setPhoto(QPixmap::fromImage(turned));
        return;
    }
    if (turned.isNull())
        return;
    const CalibrationPoints points = m_store->points();
    if (!points.calibrated()) {
        setPhoto(QPixmap());
        return;
    }
    QString error;
    const QImage warped = lumitra::camera::warpPhoto(turned, points, &error);
    if (warped.isNull()) {
        qDebug() << " out camera warp" << error;
        setPhoto(QPixmap());
        notice(tr("校准数据无效,请重新校准摄像头!"));
        return;
    }
    setPhoto(QPixmap::fromImage(warped));
}

void CameraController::setPhoto(const QPixmap &photo)
{
    m_photo = photo;
    applyPhoto();
    emit photoChanged(m_photo);
}

void CameraController::applyPhoto()
{
    if (!m_pages)
        return;
    const lumitra::ProgramState &s = programState();
    const QRectF rect = lumitra::camera::photoSceneRect(s.width, s.height);
    for (int i = 0; i < m_pages->count(); ++i) {
        Jk_shi_tu *view = m_pages->view(i);
        if (!view)
            continue;
        view->setBackgroundPhoto(m_photo, rect);
        view->setPhotoOpacity(m_panel ? m_panel->opacity() : 1.0);
        view->setPhotoHidden(m_panel && m_panel->photoHidden());
    }
}

void CameraController::calibrate()
{
    if (programState().connectionMode != lumitra::WifiLink || !link()) {
        notice(tr("使用相机必须要在WiFi模式!"));
        return;
    }
    if (!lumitra::show_message(m_dialogParent, lumitra::MessageKind::Question, tr("取消"),
                               tr("确定"), tr("是否校准摄像头"), tr("提示")))
        return;
    if (!ensureProbed())
        return;
    Jk_chang_jing *scene = m_pages ? m_pages->currentScene() : nullptr;
    if (!scene)
        return;
    const lumitra::ProgramState &s = programState();
    m_marks->addMissing(scene, s.width, s.height);
    if (m_machine->busy()) {
        notice(tr("设备雕刻中,暂时停止使用!"));
        return;
    }
    if (!m_jobs->prepareRun(scene->designItems()))
        return;
    m_machine->runJob(programState().jobFilePath);
    m_dialog->reset();
    m_dialog->show();
}

void CameraController::onPointsPicked(double x1, double y1, double x2, double y2, double x3,
                                      double y3, double x4, double y4)
{
    CalibrationPoints points;
    points.p[0] = QPointF(x1, y1);
    points.p[1] = QPointF(x2, y2);
    points.p[2] = QPointF(x3, y3);
    points.p[3] = QPointF(x4, y4);
    HttpThread *l = link();
    if (l && !m_saveLink) {
        // A link of its own: the window's link starts every upload it sees
        // finish as the job, which the calibration file is not.
        m_saveLink = new HttpThread(this);
        connect(m_saveLink, &HttpThread::uploadFinished, this,
                [this](bool ok, const QString &error) {
                    if (ok) {
                        qDebug() << "calibration saved";
                        return;
                    }
                    qDebug() << " out camera calibration upload" << error;
                    notice(tr("校准数据保存失败: %1").arg(error));
                });
    }
    if (l)
        m_saveLink->setAddress(l->host(), l->httpPort(), l->wsPort());
    m_store->save(l ? m_saveLink : nullptr, points);
}
