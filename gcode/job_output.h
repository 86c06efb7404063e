// The writing end of a job: plain text goes to the file as it is, pieces of
// motion G-code go through the modal compaction and the rotary rewrite first.
// Output is gathered and handed to the device in blocks of about 1 MB.
#pragma once

#include "rotary.h"

#include <QByteArray>

class QIODevice;

namespace lumitra {

class JobOutput
{
public:
    // `device` must be open for writing and outlive this object.
    JobOutput(QIODevice &device, const RotarySettings &rotary);
    ~JobOutput();

    // Writes bytes unchanged (header, comments, trailer).
    void writeText(const QByteArray &bytes);
    // Compacts `size` bytes of motion G-code, rewrites them for the rotary
    // axis and writes the result.
    void writePiece(const char *data, int size);
    // Hands everything gathered to the device. Returns false when any write
    // failed.
    bool finish();

    // Bytes of the job so far (after compaction).
    qint64 bytesWritten() const { return m_written + m_pending.size(); }
    // True once a write to the device failed; later writes are skipped.
    bool failed() const { return m_failed; }

private:
    void writeOut();

    QIODevice &m_device;
    RotarySettings m_rotary;
    QByteArray m_pending;   // gathered output not yet on the device
    QByteArray m_compacted; // reused for rotary pieces
    qint64 m_written = 0;
    bool m_failed = false;
};

} // namespace lumitra
