#include "text_outline.h"

#include "geometry_command.h"
#include "jk_tu_yuan.h"

#include <QCoreApplication>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>
#include <QTransform>

namespace lumitra {

namespace {

// Outlines are made at this pixel size and scaled down to millimetres: pixel
// sizes do not depend on the screen resolution, and a large size keeps the
// glyph curves precise.
constexpr int kReferencePixels = 500;

} // namespace

QString TextSettings::toString() const
{
    QJsonObject o;
    o.insert(QStringLiteral("family"), family);
    o.insert(QStringLiteral("size"), sizeMm);
    o.insert(QStringLiteral("bold"), bold);
    o.insert(QStringLiteral("italic"), italic);
    o.insert(QStringLiteral("letter"), letterSpacingMm);
    o.insert(QStringLiteral("line"), lineSpacingMm);
    return QString::fromUtf8(QJsonDocument(o).toJson(QJsonDocument::Compact));
}

bool TextSettings::fromString(const QString &text, TextSettings *out)
{
    QJsonParseError error;
    const QJsonDocument doc = QJsonDocument::fromJson(text.toUtf8(), &error);
    if (error.error != QJsonParseError::NoError || !doc.isObject())
        return false;
    const QJsonObject o = doc.object();
    if (!o.value(QStringLiteral("family")).isString()
        || !o.value(QStringLiteral("size")).isDouble())
        return false;
    TextSettings s;
    s.family = o.value(QStringLiteral("family")).toString();
    s.sizeMm = o.value(QStringLiteral("size")).toDouble();
    s.bold = o.value(QStringLiteral("bold")).toBool();
    s.italic = o.value(QStringLiteral("italic")).toBool();
    s.letterSpacingMm = o.value(QStringLiteral("letter")).toDouble();
    s.lineSpacingMm = o.value(QStringLiteral("line")).toDouble();
    if (out)
        *out = s;
    return true;
}

bool TextSettings::operator==(const TextSettings &o) const
{
    return family == o.family && sizeMm == o.sizeMm && bold == o.bold && italic == o.italic
           && letterSpacingMm == o.letterSpacingMm && lineSpacingMm == o.lineSpacingMm;
}

QPainterPath textOutline(const QString &text, const TextSettings &settings)
{
    QPainterPath outline;
    outline.setFillRule(Qt::OddEvenFill);
    if (text.trimmed().isEmpty() || !(settings.sizeMm > 0))
        return outline;
    const double scale = settings.sizeMm / kReferencePixels;
    QFont font = settings.family.isEmpty() ? QGuiApplication::font() : QFont(settings.family);
    font.setPixelSize(kReferencePixels);
    font.setBold(settings.bold);
    font.setItalic(settings.italic);
    font.setLetterSpacing(QFont::AbsoluteSpacing, settings.letterSpacingMm / scale);
    font.setKerning(true);
    const QFontMetricsF metrics(font);
    const double lineStep = metrics.lineSpacing() + settings.lineSpacingMm / scale;

    QPainterPath glyphs;
    const QStringList lines = text.split(QLatin1Char('\n'));
    for (int i = 0; i < lines.size(); ++i) {
        QString line = lines.at(i);
        line.remove(QLatin1Char('\r'));
        if (!line.isEmpty())
            glyphs.addText(0, metrics.ascent() + i * lineStep, font, line);
    }
    outline.addPath(QTransform::fromScale(scale, scale).map(glyphs));
    outline.setFillRule(Qt::OddEvenFill);
    return outline;
}

Jk_tu_yuan *createTextItem(const QString &text, const TextSettings &settings)
{
    const QPainterPath outline = textOutline(text, settings);
    if (outline.isEmpty())
        return nullptr;
    auto *item = new Jk_tu_yuan(outline, 0);
    item->wen_zi = text;
    item->zi_ti = settings.toString();
    return item;
}

QUndoCommand *makeReplaceTextCommand(Jk_tu_yuan *item, const QString &text,
                                     const TextSettings &settings)
{
    const QPainterPath outline = textOutline(text, settings);
    if (!item || outline.isEmpty())
        return nullptr;
    const QString stored = settings.toString();
    return new GeometryCommand(
        {item},
        [outline, text, stored](const QList<Jk_tu_yuan *> &items) {
            for (Jk_tu_yuan *i : items) {
                i->set_path(outline);
                i->wen_zi = text;
                i->zi_ti = stored;
            }
        },
        QCoreApplication::translate("EditCommand", "修改文字"));
}

} // namespace lumitra
