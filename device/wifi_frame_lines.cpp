#include "wifi_frame_lines.h"

namespace {

void appendLine(QStringList &lines, QByteArray line)
{
    if (line.endsWith('\r'))
        line.chop(1);
    if (line.isEmpty())
        return;
    const QString text = QString::fromUtf8(line);
    if (!WifiFrameLines::isBoardChatter(text))
        lines << text;
}

} // namespace

bool WifiFrameLines::isBoardChatter(const QString &line)
{
    static const char *const prefixes[] = {
        "CURRENT_ID:", "ACTIVE_ID:", "currentID:", "activeID:", "PING:", "DHT:"};
    for (const char *prefix : prefixes) {
        if (line.startsWith(QLatin1String(prefix)))
            return true;
    }
    return false;
}

QStringList WifiFrameLines::feed(const QByteArray &frame)
{
    // Chatter comes as whole frames of its own, possibly between two halves
    // of a GRBL line: it must not touch the line being assembled.
    const QByteArray whole = frame.trimmed();
    if (!whole.contains('\n') && isBoardChatter(QString::fromUtf8(whole)))
        return {};
    m_pending += frame;
    QStringList lines;
    int start = 0;
    for (int end = m_pending.indexOf('\n'); end >= 0; end = m_pending.indexOf('\n', start)) {
        appendLine(lines, m_pending.mid(start, end - start));
        start = end + 1;
    }
    m_pending.remove(0, start);

    // Some boards send a report as a frame without a line end.
    const QByteArray rest = m_pending.trimmed();
    if (rest.startsWith('<') && rest.endsWith('>')) {
        appendLine(lines, rest);
        m_pending.clear();
    }
    return lines;
}
