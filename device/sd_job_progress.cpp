#include "sd_job_progress.h"

#include "execution_tracker.h"

#include <QFile>
#include <QRegularExpression>
#include <algorithm>
#include <cmath>

namespace {

QString lineText(const QByteArray &raw)
{
    int end = raw.size();
    while (end > 0 && (raw.at(end - 1) == '\n' || raw.at(end - 1) == '\r'))
        --end;
    return QString::fromLatin1(raw.constData(), end);
}

} // namespace

bool SdJobProgress::index(const QString &path, double stepXmm, double stepYmm, QString *error)
{
    *this = SdJobProgress();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        if (error)
            *error = file.errorString();
        return false;
    }
    ExecutionTracker blocks; // its parser model says which lines surely make a block
    blocks.setStepSizes(stepXmm, stepYmm);
    if (stepXmm > 0.0)
        m_stepX = stepXmm;
    if (stepYmm > 0.0)
        m_stepY = stepYmm;
    m_path = path;
    m_size = file.size();
    qint64 offset = 0;
    while (!file.atEnd()) {
        const QByteArray raw = file.readLine();
        if (raw.isEmpty())
            break;
        if (m_lines % kIndexStride == 0) {
            m_marks.append(offset);
            m_markModels.append(blocks.parserModel());
            m_markArcs.append(blocks.sawArc());
        }
        ++m_lines;
        offset += raw.size();
        m_sureBlocks.push_back(blocks.sureBlocks(lineText(raw)) > 0);
    }
    m_indexed = true;
    return true;
}

void SdJobProgress::workOffsetReport(const QString &report)
{
    static const QRegularExpression offset(QStringLiteral("WCO:(-?[\\d.]+),(-?[\\d.]+)"));
    const auto m = offset.match(report);
    if (!m.hasMatch())
        return;
    m_hasOffset = true;
    m_offset = QPointF(m.captured(1).toDouble(), m.captured(2).toDouble());
}

bool SdJobProgress::statusReport(const QString &report)
{
    if (!report.startsWith(QLatin1Char('<')))
        return false;
    workOffsetReport(report);
    const QString state = report.mid(1).section(QRegularExpression(QStringLiteral("[|:>]")), 0, 0);
    if (state != QLatin1String("Run") && state != QLatin1String("Hold")
        && state != QLatin1String("Idle"))
        return false;
    static const QRegularExpression sdField(QStringLiteral("SD:(\\d+(?:\\.\\d+)?)"));
    const auto m = sdField.match(report);
    if (!m.hasMatch())
        return false;
    // Percent, free blocks and position of one report belong together.
    m_percent = m.captured(1).toDouble();
    m_blocksToRun = lumitra::grbl::blocksToRun(report, kPlannerBlocks);
    static const QRegularExpression field(QStringLiteral("(WPos|MPos):(-?[\\d.]+),(-?[\\d.]+)"));
    bool work = false, machine = false;
    QPointF wpos, mpos;
    for (auto it = field.globalMatch(report); it.hasNext();) {
        const auto f = it.next();
        const QPointF p(f.captured(2).toDouble(), f.captured(3).toDouble());
        if (f.captured(1) == QLatin1String("WPos")) {
            work = true;
            wpos = p;
        } else {
            machine = true;
            mpos = p;
        }
    }
    m_hasPosition = work || (machine && m_hasOffset);
    m_position = work ? wpos : mpos - m_offset;
    return true;
}

void SdJobProgress::clearReports()
{
    m_percent = -1.0;
    m_blocksToRun = kPlannerBlocks + lumitra::grbl::kSegmentBlocks;
    m_hasPosition = false;
    m_hasOffset = false;
}

int SdJobProgress::lineAtByte(qint64 offset) const
{
    if (offset <= 0 || m_lines == 0)
        return 1;
    if (offset >= m_size)
        return m_lines + 1;
    // The last mark at or before the offset, then line by line from there.
    const auto after = std::upper_bound(m_marks.cbegin(), m_marks.cend(), offset);
    const int mark = int(after - m_marks.cbegin()) - 1;
    QFile file(m_path);
    if (mark < 0 || !file.open(QIODevice::ReadOnly) || !file.seek(m_marks.at(mark)))
        return mark < 0 ? 1 : mark * kIndexStride + 1;
    qint64 at = m_marks.at(mark);
    int line = mark * kIndexStride + 1;
    while (line <= m_lines) {
        const qint64 length = file.readLine().size();
        if (length <= 0 || at + length > offset)
            break;
        at += length;
        ++line;
    }
    return line;
}

bool SdJobProgress::makesBlock(int line) const
{
    return line >= 1 && line <= m_lines && m_sureBlocks[size_t(line - 1)];
}

int SdJobProgress::currentLine() const
{
    if (!hasReport())
        return 0;
    return qMin(m_lines, lineAtByte(qint64(m_percent / 100.0 * double(m_size))));
}

namespace {

// Distance from `p` to the segment a-b.
double distanceToSegment(const QPointF &p, const QPointF &a, const QPointF &b)
{
    const QPointF d = b - a;
    const double len2 = d.x() * d.x() + d.y() * d.y();
    double t = 0.0;
    if (len2 > 0.0)
        t = qBound(0.0, ((p.x() - a.x()) * d.x() + (p.y() - a.y()) * d.y()) / len2, 1.0);
    const QPointF q = a + t * d - p;
    return std::hypot(q.x(), q.y());
}

} // namespace

int SdJobProgress::resumeLine() const
{
    const int byBuffer = resumeLineByBuffer();
    if (!m_hasPosition || byBuffer <= 1 || m_marks.isEmpty())
        return byBuffer;
    // The last line the board may have read by this report.
    const double high = (m_percent + kPercentStep) / 100.0 * double(m_size);
    const int lastRead = qMin(m_lines, lineAtByte(qint64(std::ceil(high))));
    if (lastRead - byBuffer > 64 * kIndexStride)
        return byBuffer; // too wide to be worth reading
    const int mark = (byBuffer - 1) / kIndexStride;
    if (m_markArcs.at(mark))
        return byBuffer;
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly) || !file.seek(m_marks.at(mark)))
        return byBuffer;
    ExecutionTracker model;
    model.setParserModel(m_markModels.at(mark));
    const double tolerance = std::hypot(m_stepX, m_stepY) + 0.002;
    for (int line = mark * kIndexStride + 1; line <= lastRead; ++line) {
        const QByteArray raw = file.readLine();
        if (raw.isEmpty())
            break;
        const ExecutionTracker::ParserModel before = model.parserModel();
        model.sureBlocks(lineText(raw));
        const ExecutionTracker::ParserModel after = model.parserModel();
        if (line < byBuffer)
            continue;
        if (model.sawArc() || !before.anchored() || !after.anchored())
            return byBuffer; // the moves from here on are not sure
        if (distanceToSegment(m_position, QPointF(before.x, before.y), QPointF(after.x, after.y))
            <= tolerance)
            return line;
    }
    return byBuffer;
}

int SdJobProgress::resumeLineByBuffer() const
{
    if (!hasReport() || !m_indexed)
        return 1;
    const double low = (m_percent - kPercentStep) / 100.0 * double(m_size);
    const qint64 parsed = qint64(std::floor(low)) - kReceiveBytes;
    // Lines before this one have surely been parsed in full.
    const int firstUnparsed = lineAtByte(parsed);
    const int queued = m_blocksToRun;
    if (queued == 0)
        return qMin(firstUnparsed, m_lines);
    int seen = 0;
    for (int line = firstUnparsed - 1; line >= 1; --line) {
        if (makesBlock(line) && ++seen == queued)
            return line;
    }
    return 1;
}
