#pragma once

#include "resume_plan.h"

#include <QRectF>
#include <QString>
#include <QVector>

namespace lumitra::gcode {

// The parser state before any line of a job file, without holding the job:
// one pass keeps the state and file offset of every kStride-th line, and a
// question replays at most kStride lines from the nearest of them. A job of
// millions of lines costs a few hundred kilobytes. Plain class, any thread.
class JobStateIndex
{
public:
    // Reads the job at `path`; false (with the reason) when it cannot be read.
    bool build(const QString &path, QString *error = nullptr);

    QString path() const { return m_path; }
    int lineCount() const { return m_lines; }
    // Where the head goes over the whole job (mm, the start at 0,0 included).
    QRectF extent() const { return m_extent; }
    // The state before line `line` (1 .. lineCount() + 1); the state at the
    // start when the file cannot be read again.
    ModalState stateBefore(int line) const;
    // The nearest place at or before line `line` that reading the job may
    // start from (for writeResumeJob); the job's start before the index is
    // built.
    JobCheckpoint checkpointBefore(int line) const;

    static constexpr int kStride = 1024;

private:
    QString m_path;
    QVector<JobCheckpoint> m_checkpoints; // lines 1, 1 + kStride, ...
    int m_lines = 0;
    QRectF m_extent;
};

} // namespace lumitra::gcode
