#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

// Cuts the bytes a serial port delivers into lines. Each read is taken as
// Latin-1 text up to its first NUL byte (the rest of that read is dropped) and
// appended to the buffer; every "\n" then ends a line, which keeps a trailing
// "\r". A "\n" at the very start of the buffer is dropped without giving an
// empty line. Not thread-safe; the link uses it on the GUI thread.
class LineAssembler
{
public:
    QStringList feed(const QByteArray &bytes);

    // Text received but not yet ended by "\n".
    const QString &pending() const { return m_buffer; }
    void clear() { m_buffer.clear(); }

private:
    QString m_buffer;
};
