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
    m_path = path;
    m_size = file.size();
    qint64 offset = 0;
    while (!file.atEnd()) {
        const QByteArray raw = file.readLine();
        if (raw.isEmpty())
            break;
        if (m_lines % kIndexStride == 0)
            m_marks.append(offset);
        ++m_lines;
        offset += raw.size();
        m_sureBlocks.push_back(blocks.sureBlocks(lineText(raw)) > 0);
    }
    m_indexed = true;
    return true;
}

bool SdJobProgress::statusReport(const QString &report)
{
    if (!report.startsWith(QLatin1Char('<')))
        return false;
    const QString state = report.mid(1).section(QRegularExpression(QStringLiteral("[|:>]")), 0, 0);
    if (state != QLatin1String("Run") && state != QLatin1String("Hold")
        && state != QLatin1String("Idle"))
        return false;
    static const QRegularExpression sdField(QStringLiteral("SD:(\\d+(?:\\.\\d+)?)"));
    const auto m = sdField.match(report);
    if (!m.hasMatch())
        return false;
    // Percent and free blocks of one report belong together.
    m_percent = m.captured(1).toDouble();
    m_blocksFree = lumitra::grbl::blocksFree(report);
    return true;
}

void SdJobProgress::clearReports()
{
    m_percent = -1.0;
    m_blocksFree = -1;
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

int SdJobProgress::resumeLine() const
{
    if (!hasReport() || !m_indexed)
        return 1;
    const double low = (m_percent - kPercentStep) / 100.0 * double(m_size);
    const qint64 parsed = qint64(std::floor(low)) - kReceiveBytes;
    // Lines before this one have surely been parsed in full.
    const int firstUnparsed = lineAtByte(parsed);
    const int queued = m_blocksFree < 0 ? kPlannerBlocks
                                        : qBound(0, kPlannerBlocks - m_blocksFree, kPlannerBlocks);
    if (queued == 0)
        return qMin(firstUnparsed, m_lines);
    int seen = 0;
    for (int line = firstUnparsed - 1; line >= 1; --line) {
        if (makesBlock(line) && ++seen == queued)
            return line;
    }
    return 1;
}
