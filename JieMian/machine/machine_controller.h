#pragma once

#include "grbl_machine_settings.h"
#include "job_origin.h"
#include "status_reaction.h"
#include "work_area.h"

#include <QMap>
#include <QObject>
#include <QPointer>
#include <QRectF>
#include <QTimer>
#include <functional>

class Chuan_Kou_Jian_Ce;
class Jk_com;
class MachinePanel;
class PortChoice;
class QWidget;

// Carries out every machine control of the panel over the current link, and
// the window's reaction to what the machine reports. Owns the serial link
// (Jk_com, created at the first connect) and the port watcher; owns none of the
// widgets (the panel may go first when the window is torn down). GUI thread only.
//
// Every connect attempt ends visibly: a line in the panel's console, and a
// message when it failed (no port, the port did not open, nothing answered as
// a GRBL controller). Closing the link for any reason stops the laser first
// (Jk_com), and the application quitting closes it (shutdownLink).
//
// Serial controls go through the link's queue (real-time bytes for pause,
// resume and stop). In WiFi mode every control becomes a command URL announced
// by wifiCommand(); the WiFi link carries it out. Without a link a control is
// refused with "请先连接设备!". Messages go through lumitra::show_message and
// show_notice with `dialogParent` as parent.
class MachineController : public QObject
{
    Q_OBJECT

public:
    MachineController(MachinePanel *panel, QWidget *dialogParent, QObject *parent = nullptr);
    // Shuts the link down (shutdownLink) without emitting anything.
    ~MachineController() override;

    // The serial link, or nullptr before the first connect.
    Jk_com *link() const { return m_com; }

    // Starts the port watcher; `lister` replaces the system's port list (tests).
    void startPortWatcher(std::function<QStringList()> lister = {});
    Chuan_Kou_Jian_Ce *portWatcher() const { return m_watcher; }
    // The panel's port box (typed paths, watcher updates).
    PortChoice *portChoice() const { return m_portChoice; }

    // Where the frame button and frameDesign() take the design's output area
    // (scene rectangle, mm); the window gives outputBounds() of its scene.
    // The frame is moved to where the job will run (jobStart()).
    void setFrameSource(std::function<QRectF()> source) { m_frameSource = std::move(source); }
    // Where jobs start: the panel's "起点" row (mode and anchor, kept in the
    // settings store) and the head's last reported position (known once the
    // link reported one; forgotten when the link goes down).
    lumitra::JobStart jobStart() const;
    // The machine position last reported (mm); headKnown() false before any.
    QPointF headPosition() const { return QPointF(m_x, m_y); }
    bool headKnown() const { return m_headKnown; }
    // Replaces the run-file dialog (tests); returns the chosen path or "".
    void setFileChooser(std::function<QString()> chooser) { m_fileChooser = std::move(chooser); }
    // How long a connect waits for the controller's "VER:" answer (default 5000 ms).
    void setHandshakeTimeout(int ms) { m_handshakeTimeoutMs = ms; }
    // The address typed in the window's IP field (WiFi commands).
    void setWifiAddress(const QString &address) { m_wifiAddress = address; }
    // The WiFi link's busy flag, kept by the WiFi status handler.
    void setWifiBusy(bool busy);
    // While `polled` answers true, something else (a card job's watch)
    // already asks the WiFi board for its status; the busy poll keeps quiet.
    void setWifiStatusPolled(std::function<bool()> polled)
    {
        m_wifiStatusPolled = std::move(polled);
    }

    // Serial busy flag (Run/Hold seen, no Idle since) or WiFi busy flag.
    bool busy() const { return m_status.busy || m_wifiBusy; }
    const StatusDisplayState &statusState() const { return m_status; }
    // The laser's maximum S value (setting $30 when the machine reported it).
    double laserMaxS() const { return m_laserMaxS; }
    double zTravel() const { return m_zTravel; }
    // The controller's settings ("$110" -> "5000", ...) as it last reported
    // them, in this run or an earlier one (kept in the settings file); empty
    // when no controller ever reported them.
    QMap<QString, QString> machineSettings() const;
    // What the job-time estimate plans with: those settings, and the serial
    // link's rate unless `fromCard` (a WiFi job runs from the board's card,
    // which keeps up with the machine).
    GrblMachineSettings jobTimingSettings(bool fromCard) const;
    // The same for a job about to be previewed: run from the card when the
    // WiFi link is up, or, with no link up, when the last link (in this run
    // or an earlier one) was WiFi; over the serial link otherwise.
    GrblMachineSettings plannedJobSettings() const;
    bool travelKnown() const { return m_travelKnown; }

public slots:
    // The connect button: connects to the port in the port box (a listed port
    // or a typed path, used as it stands), or disconnects.
    void toggleConnection();
    // The user's disconnect; the same as shutdownLink().
    void disconnectLink();
    // Closes the serial link: a running job is held and reset and the laser
    // switched off ("!", 0x18, "M5"; "M5" alone after test fire), those bytes
    // written before the port closes; then the panel shows "not connected"
    // (left as it is in WiFi mode, whose link the window owns).
    // Blocks until the port is closed (at most about 2 s). Idempotent and safe
    // with no link or a lost port. Runs by itself when the application is about
    // to quit and from the destructor; the window may call it when it closes.
    void shutdownLink();

    void home();
    void goToOrigin();
    void setOrigin();
    void clearOrigin();
    void moveToPosition();
    void pauseOrResume();
    void stop();
    void testFire(bool on);
    void jog(int padIndex);
    // Runs `path` as the job (the window's start button after generation).
    void runJob(const QString &path);
    // The run-file button: asks for a ".nc"/".gcode" file and runs it.
    void runFileFromDisk();
    // Traces the output area with the laser off at the jog feed.
    void frameDesign();

    // The WiFi link (owned by the window's WiFi controller) reports here.
    // A normalised status text from the board.
    void onWifiStatus(const QString &text);
    // The board's settings dump.
    void onWifiSettings(const QMap<int, QString> &settings);
    // The link came up to `address` ("host:port"): WiFi mode, home.
    void setWifiLinked(const QString &address);
    // The link went down; `expected` when the user disconnected.
    void onWifiLost(bool expected);
    // How much of the job on the card the board has read, percent.
    void onWifiProgress(float percent);

signals:
    void connectionChanged(int mode);
    // Every line the serial link received, for whoever reads the board's answers.
    void lineReceived(const QString &line);
    void busyChanged(bool busy);
    // The machine reported its settings; `firstTime` the first time in a run
    // (the window refits the view). Setting 101 is left to the window's second
    // speed slider.
    void machineTravelKnown(const lumitra::MachineTravel &travel, bool firstTime);
    void cameraAddressChanged(const QString &address);
    void positionChanged(double x, double y);
    // WiFi mode: a command URL for the WiFi link, and a job file to upload.
    void wifiCommand(const QString &url);
    void wifiUploadRequested(const QString &path);

private:
    void onLinkResult(bool linked);
    void onHandshakeFailed(const QString &port, const QString &reason);
    void reportConnectFailure(const QString &text);
    void appendConsole(const QString &text);
    void ensureLink();
    void onStatus(const QString &text);
    void onSettings(const QMap<QString, QString> &info);
    void onLinkLost();
    void showAlarm();
    // The WiFi alarm: on confirmation a soft reset and home; re-armed 3 s later.
    void showWifiAlarm();
    void applyStatus(StatusLink link, const QString &text);
    void showDisconnected();
    void updateRunTime();
    void startIndicator();
    void setBusy(bool serialBusy);
    // While the WiFi board is busy its state is asked for every second: not
    // every board sends reports by itself, and an alarm, a reset or a homing
    // cycle ends without one.
    void updateWifiPoll();

    // Guards. True when the control may go ahead (a refusal was shown otherwise).
    bool linked();
    bool notBusy(const QString &refusal);
    // Sends a control: queued text on the serial link, a command URL on WiFi.
    void send(const QString &serialText, const QString &wifiText);
    void sendWifi(const QString &command);
    void sendTestFire();
    void connectPanel();
    // The "起点" row: shows the stored choice and stores every change.
    void connectStartRow();
    void connectWatcher();

    QPointer<MachinePanel> m_panel;
    PortChoice *m_portChoice = nullptr;
    QPointer<QWidget> m_dialogParent;
    Jk_com *m_com = nullptr;
    Chuan_Kou_Jian_Ce *m_watcher = nullptr;
    StatusDisplayState m_status;
    StatusDisplayState m_wifiStatus;
    bool m_wifiBusy = false;
    bool m_travelKnown = false;     // the machine reported its work area
    bool m_settingsApplied = false; // settings seen at least once this run
    double m_x = 0.0;               // machine position last reported, mm
    double m_y = 0.0;
    bool m_headKnown = false;
    double m_zTravel = 0.0;
    double m_laserMaxS = 1000.0;
    int m_runSeconds = 0;
    int m_handshakeTimeoutMs = 5000;
    QTimer m_indicatorTimer;
    QTimer m_afterConnectTimer;
    QTimer m_wifiPoll;
    QString m_wifiAddress;
    std::function<QRectF()> m_frameSource;
    std::function<QString()> m_fileChooser;
    std::function<bool()> m_wifiStatusPolled;
};
