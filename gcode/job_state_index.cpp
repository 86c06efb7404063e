#include "job_state_index.h"

#include "job_simulator.h"

#include <QFile>

namespace lumitra::gcode {

bool JobStateIndex::build(const QString &path, QString *error)
{
    *this = JobStateIndex();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        if (error)
            *error = file.errorString();
        return false;
    }
    m_path = path;
    ModalTracker tracker;
    double left = 0.0, right = 0.0, bottom = 0.0, top = 0.0; // the job starts at 0,0
    QString line;
    for (;;) {
        if (m_lines % kStride == 0)
            m_checkpoints.append({file.pos(), m_lines + 1, tracker.state()});
        if (!readJobLine(file, &line))
            break;
        ++m_lines;
        tracker.feed(line);
        const QPointF p = tracker.state().position;
        left = qMin(left, p.x());
        right = qMax(right, p.x());
        bottom = qMin(bottom, p.y());
        top = qMax(top, p.y());
    }
    m_extent = QRectF(left, bottom, right - left, top - bottom);
    return true;
}

JobCheckpoint JobStateIndex::checkpointBefore(int line) const
{
    const int before = qBound(0, line - 1, m_lines); // lines before it
    const int k = qMin(before / kStride, int(m_checkpoints.size()) - 1);
    return k < 0 ? JobCheckpoint() : m_checkpoints.at(k);
}

ModalState JobStateIndex::stateBefore(int line) const
{
    const JobCheckpoint start = checkpointBefore(line);
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly) || !file.seek(start.offset))
        return ModalState();
    ModalTracker tracker(start.state);
    QString text;
    const int before = qBound(0, line - 1, m_lines);
    for (int i = start.line - 1; i < before && readJobLine(file, &text); ++i)
        tracker.feed(text);
    return tracker.state();
}

} // namespace lumitra::gcode
