#include "job_output.h"

#include "modal_compaction.h"

#include <QDebug>
#include <QIODevice>

namespace lumitra {

namespace {
constexpr int kBlockSize = 1 << 20;
}

JobOutput::JobOutput(QIODevice &device, const RotarySettings &rotary)
    : m_device(device), m_rotary(rotary)
{
    m_pending.reserve(kBlockSize + (kBlockSize >> 2));
}

JobOutput::~JobOutput()
{
    finish();
}

void JobOutput::writeOut()
{
    if (m_failed || m_pending.isEmpty())
        return;
    if (m_device.write(m_pending) != m_pending.size()) {
        qDebug() << "gcode: write failed" << m_device.errorString();
        m_failed = true;
    }
    m_written += m_pending.size();
    m_pending.resize(0);
}

void JobOutput::writeText(const QByteArray &bytes)
{
    if (m_failed)
        return;
    m_pending += bytes;
    if (m_pending.size() >= kBlockSize)
        writeOut();
}

void JobOutput::writePiece(const char *data, int size)
{
    if (m_failed)
        return;
    if (m_rotary.rewrites()) {
        m_compacted.resize(0);
        appendCompacted(data, size, m_compacted);
        writeText(rewriteForRotary(m_compacted, m_rotary));
        return;
    }
    appendCompacted(data, size, m_pending);
    if (m_pending.size() >= kBlockSize)
        writeOut();
}

bool JobOutput::finish()
{
    writeOut();
    return !m_failed;
}

} // namespace lumitra
