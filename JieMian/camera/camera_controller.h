#pragma once

#include <QList>
#include <QObject>
#include <QPixmap>
#include <QPointer>
#include <QTimer>

class CalibrationMarks;
class CalibrationStore;
class DesignPages;
class GcodeJobController;
class GetPixmapThread;
class HttpThread;
class JiaoZhun;
class MachineController;
class PhotoPanel;
class QAction;
class QImage;
class QWidget;
class WifiLinkController;

// The camera as the user meets it: "拍照" fetches a photo of the work area
// from the board and shows it straightened under the design; "校准摄像头"
// burns the calibration marks and opens the calibration dialog, whose four
// picked points are saved on the board's card. Works only on the WiFi link.
//
// Owns the photo panel (a floating tool window of `dialogParent` until the
// window puts it into a layout), the calibration dialog, the calibration
// store and the photo fetch. Messages go through lumitra::show_message and
// show_notice with `dialogParent`. GUI thread only.
class CameraController : public QObject
{
    Q_OBJECT

public:
    // Where the head waits while the photo is taken (out of the camera's view).
    static constexpr double kParkX = 0.0;
    static constexpr double kParkY = 125.0;

    CameraController(MachineController *machine, WifiLinkController *wifi, GcodeJobController *jobs,
                     DesignPages *pages, QWidget *dialogParent, QObject *parent = nullptr);
    ~CameraController() override;

    // "校准摄像头" and "拍照", for a menu or tool bar.
    QList<QAction *> actions() const;
    QAction *calibrateAction() const { return m_calibrateAction; }
    QAction *takePhotoAction() const { return m_photoAction; }
    PhotoPanel *panel() const { return m_panel; }
    JiaoZhun *calibrationDialog() const { return m_dialog; }
    CalibrationStore *calibration() const { return m_store; }
    CalibrationMarks *marks() const { return m_marks; }

    // The straightened photo under the design, null when there is none.
    QPixmap photo() const { return m_photo; }
    // A fetch is running or waits for the head to arrive.
    bool isFetching() const;
    // The running fetch worker, or nullptr before the first photo.
    GetPixmapThread *fetcher() const { return m_fetch; }
    bool deviceProbed() const { return m_probed; }

    // How long the fetch waits after the jog to the park position (3000 ms).
    void setJogSettleMs(int ms) { m_jogSettleMs = ms; }
    // How long the device probe waits for the board (2000 ms).
    void setProbeTimeoutMs(int ms) { m_probeTimeoutMs = ms; }
    // Pause between failed photo requests (500 ms).
    void setFetchRetryDelayMs(int ms) { m_retryDelayMs = ms; }

public slots:
    void takePhoto();
    void calibrate();
    // Asks "是否关闭当前拍照"; on yes stops a running fetch and hides the panel.
    void closePanel();
    // Stops a running fetch (and a pending start after the jog).
    void cancelFetch();

signals:
    // The photo under the design was replaced (null: removed).
    void photoChanged(const QPixmap &photo);

private:
    bool ensureProbed();
    QString hostPort() const;
    HttpThread *link() const;
    void startFetch();
    void onImageReady(const QImage &image);
    void onAttemptFailed(const QString &error);
    void onPointsPicked(double x1, double y1, double x2, double y2, double x3, double y3, double x4,
                        double y4);
    void setPhoto(const QPixmap &photo);
    void applyPhoto();
    void showPanel();
    void setStatus(const QString &text, bool cancellable);
    void notice(const QString &text);

    MachineController *m_machine;
    WifiLinkController *m_wifi;
    GcodeJobController *m_jobs;
    DesignPages *m_pages;
    QPointer<QWidget> m_dialogParent;
    QPointer<PhotoPanel> m_panel;
    QPointer<JiaoZhun> m_dialog;
    CalibrationStore *m_store;
    CalibrationMarks *m_marks;
    GetPixmapThread *m_fetch = nullptr;
    HttpThread *m_saveLink = nullptr; // uploads the calibration file only
    QAction *m_calibrateAction;
    QAction *m_photoAction;
    QTimer m_settle; // starts the fetch once the head reached the park position
    QPixmap m_photo;
    bool m_probed = false; // a probe of the board succeeded once
    bool m_positionKnown = false;
    double m_x = 0.0; // head position last reported, mm
    double m_y = 0.0;
    int m_jogSettleMs = 3000;
    int m_probeTimeoutMs = 2000;
    int m_retryDelayMs = 500;
};
