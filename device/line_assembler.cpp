#include "line_assembler.h"

QStringList LineAssembler::feed(const QByteArray &bytes)
{
    const int nul = bytes.indexOf('\0');
    m_buffer += QString::fromLatin1(bytes.constData(), nul < 0 ? bytes.size() : nul);

    QStringList lines;
    int start = 0;
    for (int end = m_buffer.indexOf(QLatin1Char('\n')); end >= 0;
         end = m_buffer.indexOf(QLatin1Char('\n'), start)) {
        if (end > start)
            lines.append(m_buffer.mid(start, end - start));
        start = end + 1;
    }
    m_buffer.remove(0, start);
    return lines;
}
