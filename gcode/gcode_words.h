#pragma once

#include <QString>
#include <QVector>

// One word of a G-code line: its letter (a capital) and its number.
struct GcodeWord
{
    char letter;
    double value;
};

// Splits a line into its words as the controller reads them: letters in
// either case, spaces anywhere, comments in parentheses or after ';' dropped.
// `words` is replaced. False when the controller would refuse the line (a
// character that is no word, a letter without a readable number).
bool splitGcodeWords(const QString &line, QVector<GcodeWord> *words);
