#pragma once

#include "calibration.h"

#include <QObject>
#include <QString>

class HttpThread;
class QTemporaryFile;

// The calibration as the main window holds it: the state (0 none, 1 must be
// read from the board before the next photo, 2 loaded) and P1..P4. GUI thread.
class CalibrationStore : public QObject
{
    Q_OBJECT

public:
    explicit CalibrationStore(QObject *parent = nullptr);

    int state() const;
    void setState(int state);
    lumitra::camera::CalibrationPoints points() const;
    void setPoints(const lumitra::camera::CalibrationPoints &points);

    // Milliseconds load() waits for the board (5000 by default).
    int timeoutMs() const;
    void setTimeoutMs(int ms);

    // Reads the calibration file from the card when the state is 1
    // ("http://" + hostPort + "/SD/" + calibrationFileName(), waited in a
    // local event loop); any other state succeeds at once. An empty body (or
    // no answer) succeeds without points when the calibration dialog is open,
    // otherwise fails with *message = "请先在设置界面校准摄像头!". A body is
    // parsed into the points, the state becomes 2 and the load succeeds.
    bool load(const QString &hostPort, bool dialogOpen, QString *message);

    // Keeps `points`, sets the state to 1 and uploads the file text to the
    // card root through `link` (link->uploadFile, result on its
    // uploadFinished signal). A null link only stores the points.
    void save(HttpThread *link, const lumitra::camera::CalibrationPoints &points);

signals:
    void pointsChanged();

private:
    int m_state = 0;
    int m_timeoutMs = 5000;
    lumitra::camera::CalibrationPoints m_points;
    QTemporaryFile *m_uploadFile = nullptr; // kept while the upload reads it
};
