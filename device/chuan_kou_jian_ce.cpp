#include "chuan_kou_jian_ce.h"

#include "port_list_sync.h"
#include "port_probe.h"

#include <QDebug>
#include <QMutexLocker>

Chuan_Kou_Jian_Ce::Chuan_Kou_Jian_Ce(QObject *parent)
    : QThread(parent), m_lister(&presentPorts),
      m_prober([](const QString &p) { return probePort(p); })
{
}

Chuan_Kou_Jian_Ce::~Chuan_Kou_Jian_Ce()
{
    stop();
}

void Chuan_Kou_Jian_Ce::setSelectedPort(const QString &port)
{
    QMutexLocker lock(&m_mutex);
    m_selected = port;
}

QStringList Chuan_Kou_Jian_Ce::listed() const
{
    QMutexLocker lock(&m_mutex);
    return m_listed;
}

void Chuan_Kou_Jian_Ce::stop()
{
    requestInterruption();
    wait();
}

void Chuan_Kou_Jian_Ce::run()
{
    while (!isInterruptionRequested()) {
        round();
        for (int waited = 0; waited < m_intervalMs && !isInterruptionRequested(); waited += 20)
            msleep(20);
    }
}

void Chuan_Kou_Jian_Ce::round()
{
    const QStringList present = m_lister();
    QString selected;
    QStringList listed;
    {
        QMutexLocker lock(&m_mutex);
        selected = m_selected;
        listed = m_listed;
    }
    const int mode = m_linkMode;
    const PortListUpdate u = syncPortList(present, listed, mode, selected);
    if (!u.changed)
        return;
    {
        QMutexLocker lock(&m_mutex);
        m_listed = u.listAfter;
        if (u.selectedLost)
            m_selected = u.selectFirst;
    }
    for (const QString &port : u.appended)
        emit portAppended(port);
    for (int row : u.removedRows)
        emit portRemoved(row);
    if (u.selectedLost) {
        emit send_Duan_Kai();
        if (!u.selectFirst.isEmpty())
            emit selectPort(u.selectFirst);
    }

    if (m_linkMode != 0 || u.listAfter.isEmpty())
        return;
    for (const QString &port : present) {
        if (isInterruptionRequested() || m_linkMode != 0)
            return;
        if (m_prober(port)) {
            qDebug() << " open com " << port;
            {
                QMutexLocker lock(&m_mutex);
                m_selected = port;
            }
            emit selectPort(QString());
            emit selectPort(port);
            return;
        }
    }
}
