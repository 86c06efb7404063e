#include "gcode_words.h"

#include <QByteArray>
#include <cctype>

bool splitGcodeWords(const QString &raw, QVector<GcodeWord> *words)
{
    words->clear();
    QByteArray text;
    text.reserve(raw.size());
    bool inComment = false;
    for (const QChar c : raw) {
        const char ch = c.toLatin1();
        if (inComment) {
            inComment = ch != ')';
            continue;
        }
        if (ch == '(') {
            inComment = true;
            continue;
        }
        if (ch == ';')
            break;
        if (ch != ' ' && ch != '\t' && ch != '\r')
            text.append(char(std::toupper(static_cast<unsigned char>(ch))));
    }
    for (int i = 0; i < text.size();) {
        const char letter = text.at(i);
        if (letter < 'A' || letter > 'Z')
            return false;
        int j = i + 1;
        while (j < text.size()
               && (std::isdigit(static_cast<unsigned char>(text.at(j))) || text.at(j) == '.'
                   || text.at(j) == '-' || text.at(j) == '+'))
            ++j;
        bool ok = false;
        const double value = text.mid(i + 1, j - i - 1).toDouble(&ok);
        if (!ok)
            return false;
        words->append({letter, value});
        i = j;
    }
    return true;
}
