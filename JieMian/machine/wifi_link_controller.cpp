#include "wifi_link_controller.h"

#include "http_thread.h"
#include "machine_controller.h"
#include "message_box.h"
#include "program_state.h"
#include "sd_job_watch.h"
#include "settings_store.h"

#include <QAbstractButton>
#include <QDebug>
#include <QFileInfo>
#include <QProgressDialog>

using lumitra::programState;

namespace {
constexpr int kDefaultHttpPort = 80;

QString megabytes(qint64 bytes)
{
    return QString::number(double(bytes) / (1024.0 * 1024.0), 'f', 1);
}
} // namespace

WifiLinkController::WifiLinkController(MachineController *machine, QAbstractButton *connectButton,
                                       QWidget *dialogParent, QObject *parent)
    : QObject(parent), m_machine(machine), m_button(connectButton), m_dialogParent(dialogParent)
{
    connect(machine, &MachineController::wifiCommand, this, [this](const QString &url) {
        if (m_link && m_link->isConnected())
            m_link->sendUrl(url);
    });
    connect(machine, &MachineController::wifiUploadRequested, this,
            &WifiLinkController::uploadAndRun);
    showState();
}

WifiLinkController::~WifiLinkController()
{
    m_closing = true;
    if (m_link)
        m_link->disconnectBoard();
}

void WifiLinkController::toggle(const QString &host, const QString &portText)
{
    if (programState().connectionMode == lumitra::WifiLink) {
        disconnectBoard();
        return;
    }
    if (programState().connectionMode != lumitra::NotConnected) {
        lumitra::show_notice(m_dialogParent, tr("请先断开串口连接!"));
        return;
    }
    const QString address = host.trimmed();
    if (address.isEmpty()) {
        lumitra::show_notice(m_dialogParent, tr("IP不能为空!"));
        return;
    }
    bool ok = false;
    const int port =
        portText.trimmed().isEmpty() ? kDefaultHttpPort : portText.trimmed().toInt(&ok);
    if (!portText.trimmed().isEmpty() && (!ok || port <= 0 || port > 65535)) {
        lumitra::show_notice(m_dialogParent, tr("端口号无效: %1").arg(portText));
        return;
    }
    connectTo(address, port);
}

void WifiLinkController::connectTo(const QString &host, int httpPort)
{
    if (!m_link) {
        m_link = new HttpThread(this);
        connect(m_link, &HttpThread::shu_chu_zhuang_tai, m_machine,
                &MachineController::onWifiStatus);
        connect(m_link, &HttpThread::Jie_Xi_Shu_Ju, m_machine, &MachineController::onWifiSettings);
        connect(m_link, &HttpThread::sendDisconnectMessage, this, [this](int) {
            m_machine->onWifiLost(m_closing);
            showState();
        });
        connect(m_link, &HttpThread::send_Jin_Du_Zhi, this, &WifiLinkController::onUploadProgress);
        connect(m_link, &HttpThread::uploadFinished, this, &WifiLinkController::onUploadFinished);
        connect(m_link, &HttpThread::lineReceived, this, &WifiLinkController::lineReceived);
        connect(m_link, &HttpThread::runStarted, this, &WifiLinkController::onRunStarted);
        connect(m_link, &HttpThread::send_Yun_Xing_Zhi, m_machine,
                &MachineController::onWifiProgress);
        m_jobWatch = new SdJobWatch(m_link, this);
        m_machine->setWifiStatusPolled([this] { return m_jobWatch && m_jobWatch->active(); });
        // The last report of a finished job may say 99.9 %.
        connect(m_jobWatch, &SdJobWatch::finished, m_machine,
                [this] { m_machine->onWifiProgress(100.0f); });
    }
    m_closing = false;
    m_link->setAddress(host, httpPort, m_wsPort);
    if (m_button)
        m_button->setEnabled(false); // while the connect waits
    const bool linked = m_link->connectBoard(m_connectTimeoutMs);
    if (m_button)
        m_button->setEnabled(true);
    if (!linked) {
        const QString text =
            tr("无法通过WiFi连接到 %1:%2,请检查地址和设备电源!").arg(host).arg(httpPort);
        qDebug() << " out wifi" << text;
        lumitra::show_notice(m_dialogParent, text);
        showState();
        return;
    }
    lumitra::set_setting(QStringLiteral("IP"), host);
    lumitra::set_setting(QStringLiteral("Port"), QString::number(httpPort));
    const QString address =
        httpPort == kDefaultHttpPort ? host : QStringLiteral("%1:%2").arg(host).arg(httpPort);
    m_machine->setWifiAddress(address);
    m_machine->setWifiLinked(address);
    m_link->readSettings();
    showState();
}

void WifiLinkController::disconnectBoard()
{
    if (!m_link)
        return;
    m_closing = true;
    m_link->disconnectBoard();
    // A link that closes on purpose may not report it; the window follows
    // the user either way.
    m_machine->onWifiLost(true);
    showState();
}

void WifiLinkController::uploadAndRun(const QString &path)
{
    if (!m_link || !m_link->isConnected()) {
        lumitra::show_notice(m_dialogParent, tr("请先连接设备!"));
        return;
    }
    if (m_link->uploading())
        return;
    if (!m_progress) {
        m_progress = new QProgressDialog(m_dialogParent);
        m_progress->setWindowTitle(tr("上传"));
        m_progress->setCancelButtonText(tr("取消"));
        m_progress->setWindowModality(Qt::WindowModal);
        m_progress->setMinimumDuration(0);
        m_progress->setAutoClose(false);
        m_progress->setAutoReset(false);
        connect(m_progress, &QProgressDialog::canceled, this, [this] {
            if (m_link)
                m_link->cancelUpload();
        });
    }
    const qint64 total = QFileInfo(path).size();
    m_progress->setLabelText(tr("正在上传 %1 (%2 MB)").arg(jobName(), megabytes(total)));
    m_progress->setRange(0, 1000);
    m_progress->setValue(0);
    m_progress->show();
    m_jobUploading = true;
    m_jobPath = path;
    m_link->uploadFile(path, jobName());
}

void WifiLinkController::onUploadProgress(qint64 sent, qint64 total)
{
    if (!m_progress)
        return;
    m_progress->setLabelText(
        tr("正在上传 %1: %2 / %3 MB").arg(jobName(), megabytes(sent), megabytes(total)));
    m_progress->setValue(total > 0 ? int(sent * 1000 / total) : 0);
}

void WifiLinkController::onUploadFinished(bool ok, const QString &error)
{
    // Only an upload this controller began is a job to start.
    if (!m_jobUploading)
        return;
    m_jobUploading = false;
    if (m_progress) {
        m_progress->hide();
        m_progress->deleteLater();
    }
    if (!ok) {
        const QString text = tr("上传失败: %1").arg(error);
        qDebug() << " out wifi upload" << error;
        lumitra::show_notice(m_dialogParent, text);
        return;
    }
    // One motor step decides which lines surely make a planner block.
    const QMap<QString, QString> settings = m_machine->machineSettings();
    const double stepsX = settings.value(QStringLiteral("$100")).toDouble();
    const double stepsY = settings.value(QStringLiteral("$101")).toDouble();
    m_jobWatch->setStepSizes(stepsX > 0.0 ? 1.0 / stepsX : 0.0, stepsY > 0.0 ? 1.0 / stepsY : 0.0);
    m_jobWatch->askForBufferReports();
    m_jobStarting = true;
    m_link->runFile(QLatin1Char('/') + jobName());
}

void WifiLinkController::onRunStarted(bool ok, const QString &error)
{
    if (!m_jobStarting)
        return;
    m_jobStarting = false;
    if (!ok) {
        qDebug() << " out wifi run" << error;
        lumitra::show_notice(m_dialogParent, tr("设备未能开始作业: %1").arg(error));
        return;
    }
    m_jobWatch->jobStarted(m_jobPath);
    emit jobStarted(m_jobPath);
}

void WifiLinkController::showState()
{
    if (!m_button)
        return;
    const bool linked = programState().connectionMode == lumitra::WifiLink;
    m_button->setText(linked ? tr("已连接") : QStringLiteral("WIFI"));
}
