#include "job_output.h"

#include "modal_compaction.h"

#include <QDebug>
#include <QIODevice>

namespace lumitra {

JobOutput::JobOutput(QIODevice &device, const RotarySettings &rotary)
    : m_device(device)
    , m_rotary(rotary)
{
}

void JobOutput::writeText(const QByteArray &bytes)
{
    if (m_failed || bytes.isEmpty())
        return;
    if (m_device.write(bytes) != bytes.size()) {
        qDebug() << "gcode: write failed" << m_device.errorString();
        m_failed = true;
        return;
    }
    m_written += bytes.size();
}

void JobOutput::writePiece(const char *data, int size)
{
    m_compacted.resize(0);
    appendCompacted(data, size, m_compacted);
    if (m_rotary.rewrites())
        writeText(rewriteForRotary(m_compacted, m_rotary));
    else
        writeText(m_compacted);
}

} // namespace lumitra
