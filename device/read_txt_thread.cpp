#include "read_txt_thread.h"

#include "stream_state.h"

#include <QDebug>
#include <QFile>

namespace {

constexpr int kRoomWaitMs = 20;

} // namespace

ReadTxtThread::ReadTxtThread(const QString &path, std::shared_ptr<StreamState> output,
                             QObject *parent)
    : QThread(parent), m_path(path), m_output(std::move(output)),
      m_generation(m_output->generation())
{
    connect(this, &QThread::finished, this, &QObject::deleteLater);
}

void ReadTxtThread::requestStop()
{
    requestInterruption();
    m_output->wakeAll();
}

void ReadTxtThread::run()
{
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly)) {
        qDebug() << " out ReadTxtThread" << m_path << file.errorString();
        return;
    }
    QStringList chunk;
    while (!isInterruptionRequested()) {
        if (!m_output->waitForPendingRoom(kRoomWaitMs))
            continue;
        while (chunk.size() < StreamState::kReaderChunk && !file.atEnd()) {
            QByteArray line = file.readLine();
            while (line.endsWith('\n') || line.endsWith('\r'))
                line.chop(1);
            chunk.append(QString::fromLocal8Bit(line));
        }
        if (chunk.isEmpty())
            break;
        if (!m_output->appendPending(chunk, m_generation))
            break;
        m_linesRead += chunk.size();
        chunk.clear();
    }
}

int countFileLines(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    int lines = 0;
    char last = '\n';
    QByteArray block;
    while (!(block = file.read(1 << 16)).isEmpty()) {
        lines += block.count('\n');
        last = block.at(block.size() - 1);
    }
    return last == '\n' ? lines : lines + 1;
}
