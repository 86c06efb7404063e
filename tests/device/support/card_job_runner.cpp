#include "card_job_runner.h"

bool CardJobRunner::open(const QString &path, int msPerBlock, int plannerBlocks)
{
    m_file.setFileName(path);
    if (!m_file.open(QIODevice::ReadOnly))
        return false;
    m_size = m_file.size();
    m_msPerBlock = qMax(1, msPerBlock);
    m_plannerBlocks = qMax(1, plannerBlocks);
    fill();
    return true;
}

void CardJobRunner::fill()
{
    while (!m_halted && int(m_queue.size()) < m_plannerBlocks && !m_file.atEnd()) {
        const QByteArray raw = m_file.readLine();
        if (raw.isEmpty())
            break;
        m_read += raw.size();
        ++m_linesRead;
        const QString line = QString::fromLatin1(raw).trimmed();
        m_parser.feedLine(line, [&](const JobSimulator::Move &m) {
            if (m.from != m.to)
                m_queue.push_back({m.from, m.to, m.burning, m.power, m_linesRead});
        });
    }
}

bool CardJobRunner::advance(int ms, int stopAfterBlocks)
{
    m_carryMs += ms;
    while (!m_halted) {
        if (stopAfterBlocks >= 0 && m_blocksRun >= stopAfterBlocks)
            return true;
        fill();
        if (m_queue.empty() || m_carryMs < m_msPerBlock)
            break;
        m_carryMs -= m_msPerBlock;
        const ExecutedMove block = m_queue.front();
        m_queue.pop_front();
        m_executed.append(block);
        m_position = block.to;
        m_lastRunLine = block.line;
        ++m_blocksRun;
    }
    if (m_queue.empty())
        m_carryMs = 0; // an idle planner saves no time
    return false;
}

bool CardJobRunner::finished() const
{
    return m_queue.empty() && m_file.atEnd();
}

void CardJobRunner::halt()
{
    m_halted = true;
    m_queue.clear();
}

double CardJobRunner::percentRead() const
{
    return m_size > 0 ? 100.0 * double(m_read) / double(m_size) : 100.0;
}
