#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

// Cuts the WebSocket stream of a WiFi board into GRBL lines. Text and binary
// frames carry the same stream: a frame may hold several lines or part of
// one, so lines are assembled across frames and end at "\n" (a trailing "\r"
// is dropped, empty lines are skipped). A status report "<...>" left at the end
// of a frame without its "\n" is complete by itself and is given out at once.
// The board's own chatter ("CURRENT_ID:0", "ACTIVE_ID:0", "PING:5", ...) is
// not GRBL output and never comes out as a line. Bytes are UTF-8.
// Not thread-safe; one per link.
class WifiFrameLines
{
public:
    QStringList feed(const QByteArray &frame);
    void clear() { m_pending.clear(); }
    const QByteArray &pending() const { return m_pending; }

    // True for the board's own messages that are not GRBL lines.
    static bool isBoardChatter(const QString &line);

private:
    QByteArray m_pending;
};
