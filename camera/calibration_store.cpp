#include "calibration_store.h"

#include "board_request.h"
#include "http_thread.h"

#include <QDebug>
#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTemporaryFile>

using lumitra::camera::CalibrationPoints;

CalibrationStore::CalibrationStore(QObject *parent) : QObject(parent) {}

int CalibrationStore::state() const
{
    return m_state;
}

void CalibrationStore::setState(int state)
{
    m_state = state;
}

CalibrationPoints CalibrationStore::points() const
{
    return m_points;
}

void CalibrationStore::setPoints(const CalibrationPoints &points)
{
    if (points == m_points)
        return;
    m_points = points;
    emit pointsChanged();
}

int CalibrationStore::timeoutMs() const
{
    return m_timeoutMs;
}

void CalibrationStore::setTimeoutMs(int ms)
{
    m_timeoutMs = qMax(1, ms);
}

bool CalibrationStore::load(const QString &hostPort, bool dialogOpen, QString *message)
{
    if (m_state != 1)
        return true;
    const QString url = QStringLiteral("http://") + hostPort + QStringLiteral("/SD/")
                        + lumitra::camera::calibrationFileName();
    QNetworkAccessManager manager;
    lumitra::board::useDirectConnection(manager);
    QNetworkReply *reply = lumitra::board::get(manager, url, m_timeoutMs);
    QEventLoop loop;
    connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
    if (reply->isRunning())
        loop.exec();
    const QString failure = lumitra::board::failureReason(reply);
    // A missing file (404) reads as an empty body, like an empty file.
    const QString body = failure.isEmpty() ? QString::fromUtf8(reply->readAll()) : QString();
    delete reply;
    if (!failure.isEmpty())
        qDebug() << "calibration load:" << failure;

    if (body.trimmed().isEmpty()) {
        if (dialogOpen)
            return true;
        if (message)
            *message = tr("请先在设置界面校准摄像头!");
        return false;
    }
    CalibrationPoints points = m_points;
    lumitra::camera::parseCalibrationText(body, &points);
    setPoints(points);
    m_state = 2;
    return true;
}

void CalibrationStore::save(HttpThread *link, const CalibrationPoints &points)
{
    setPoints(points);
    m_state = 1;
    if (!link)
        return;
    delete m_uploadFile;
    m_uploadFile = new QTemporaryFile(this);
    if (!m_uploadFile->open()) {
        qDebug() << "calibration save: no temporary file";
        return;
    }
    m_uploadFile->write(lumitra::camera::calibrationFileText(points).toUtf8());
    m_uploadFile->flush();
    link->uploadFile(m_uploadFile->fileName(), lumitra::camera::calibrationFileName());
}
