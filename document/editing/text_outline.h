// Text turned into outline paths in millimetres, and the settings string kept
// with a text item (`zi_ti`) so that the text dialog can reopen it.
// Needs a QGuiApplication (fonts). GUI thread only.
#pragma once

#include <QFont>
#include <QPainterPath>
#include <QString>

class Jk_tu_yuan;
class QUndoCommand;

namespace lumitra {

struct TextSettings
{
    QString family;       // empty: the application's default family
    double sizeMm = 10.0; // em size of the font in mm
    bool bold = false;
    bool italic = false;
    double letterSpacingMm = 0; // added after every character, may be negative
    double lineSpacingMm = 0;   // added between lines, may be negative

    // The settings as one line of compact JSON, for `zi_ti`.
    QString toString() const;
    // Reads toString()'s form; false (and `out` untouched) for anything else.
    static bool fromString(const QString &text, TextSettings *out);

    bool operator==(const TextSettings &o) const;
    bool operator!=(const TextSettings &o) const { return !(*this == o); }
};

// The outlines of `text` (lines split at '\n', left aligned) in mm. The first
// line's box starts at (0, 0) with its baseline at the font's ascent, so a
// changed text keeps its place. Even-odd filled. Empty for empty text or a
// size that is not positive.
QPainterPath textOutline(const QString &text, const TextSettings &settings);

// A new text item centred on the work area and selected (not in a scene),
// keeping the text and its settings; nullptr when the text gives no outline.
Jk_tu_yuan *createTextItem(const QString &text, const TextSettings &settings);

// Undoable re-edit of a text item: outline, `wen_zi` and `zi_ti` replaced in
// one step; the item keeps its position and transform. nullptr when the text
// gives no outline.
QUndoCommand *makeReplaceTextCommand(Jk_tu_yuan *item, const QString &text,
                                     const TextSettings &settings);

} // namespace lumitra
