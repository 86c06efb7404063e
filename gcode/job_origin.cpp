#include "job_origin.h"

#include "settings_store.h"
#include "work_area_check.h"

namespace lumitra {

const char *const kStartModeKey = "QiDian/MoShi";
const char *const kStartAnchorKey = "QiDian/MaoDian";

JobStart loadJobStart()
{
    JobStart start;
    bool ok = false;
    const int mode = get_setting(QString::fromLatin1(kStartModeKey)).toInt(&ok);
    if (ok && mode >= 0 && mode <= int(StartMode::UserOrigin))
        start.mode = StartMode(mode);
    const int anchor = get_setting(QString::fromLatin1(kStartAnchorKey)).toInt(&ok);
    if (ok && anchor >= 0 && anchor < kAnchorCount)
        start.anchor = anchor;
    return start;
}

void saveJobStart(const JobStart &start)
{
    set_setting(QString::fromLatin1(kStartModeKey), QString::number(int(start.mode)));
    set_setting(QString::fromLatin1(kStartAnchorKey), QString::number(start.anchor));
}

QRectF jobBounds(const QList<Jk_tu_yuan *> &items, const LayerList &layers)
{
    QRectF bounds;
    for (const Jk_tu_yuan *item : items) {
        if (!item || !isOutputItem(*item, layers))
            continue;
        const QRectF r = burntBounds(*item);
        bounds = bounds.isNull() ? r : bounds.united(r);
    }
    return bounds;
}

QPointF anchorPoint(const QRectF &sceneBounds, int anchor)
{
    const QRectF r = sceneBounds.normalized();
    const int a = qBound(0, anchor, kAnchorCount - 1);
    const int column = a % 3;
    const int row = a / 3; // 0 top (scene top, machine +Y) .. 2 bottom
    const double x = r.left() + r.width() * column / 2.0;
    const double sceneY = r.top() + r.height() * row / 2.0;
    return QPointF(x, -sceneY);
}

bool jobShift(const JobStart &start, const QRectF &sceneBounds, QPointF *shift)
{
    if (start.mode == StartMode::CurrentPosition && !start.headKnown)
        return false;
    if (start.mode == StartMode::Absolute || sceneBounds.isNull()) {
        *shift = QPointF();
        return true;
    }
    const QPointF anchor = anchorPoint(sceneBounds, start.anchor);
    const QPointF target = start.mode == StartMode::CurrentPosition ? start.head : QPointF();
    *shift = target - anchor;
    return true;
}

QRectF shiftSceneRect(const QRectF &sceneRect, const QPointF &machineShift)
{
    return sceneRect.translated(machineShift.x(), -machineShift.y());
}

QStringList anchorNames()
{
    return {
        QStringLiteral("top-left"),    QStringLiteral("top"),    QStringLiteral("top-right"),
        QStringLiteral("left"),        QStringLiteral("centre"), QStringLiteral("right"),
        QStringLiteral("bottom-left"), QStringLiteral("bottom"), QStringLiteral("bottom-right")};
}

bool parseOriginOption(const QString &text, JobStart *out, QString *error)
{
    const QString mode = text.section(QLatin1Char(':'), 0, 0).trimmed().toLower();
    const bool hasAnchor = text.contains(QLatin1Char(':'));
    const QString anchor = text.section(QLatin1Char(':'), 1).trimmed().toLower();
    JobStart result;
    if (mode == QLatin1String("absolute") && !hasAnchor) {
        *out = result;
        return true;
    }
    if (mode != QLatin1String("user")) {
        *error = QStringLiteral("--origin %1: use absolute or user[:ANCHOR]").arg(text);
        return false;
    }
    result.mode = StartMode::UserOrigin;
    if (hasAnchor) {
        QString name = anchor;
        if (name == QLatin1String("center"))
            name = QStringLiteral("centre");
        const int index = anchorNames().indexOf(name);
        if (index < 0) {
            *error = QStringLiteral("--origin %1: the anchor is one of %2")
                         .arg(text, anchorNames().join(QStringLiteral(", ")));
            return false;
        }
        result.anchor = index;
    }
    *out = result;
    return true;
}

} // namespace lumitra
