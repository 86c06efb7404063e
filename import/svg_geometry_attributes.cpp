#include "svg_geometry_attributes.h"

#include "svg_numbers.h"

#include <QDomElement>
#include <QVector>
#include <cmath>

namespace lumitra {

namespace {

constexpr double kPi = 3.14159265358979323846;

// Reads "name(" and the numbers up to ")"; false on a syntax error.
bool readFunction(SvgNumberScanner &in, QString *name, QVector<double> *args)
{
    name->clear();
    args->clear();
    while (!in.atEnd() && in.peek().isLetter()) {
        name->append(in.peek());
        in.advance();
    }
    in.skipWhitespace();
    if (name->isEmpty() || in.peek() != QLatin1Char('('))
        return false;
    in.advance();
    for (;;) {
        in.skipWhitespace();
        if (in.peek() == QLatin1Char(')')) {
            in.advance();
            return true;
        }
        double v;
        if (args->size() > 6 || !in.readNumber(&v))
            return false;
        args->append(v);
    }
}

bool functionMatrix(const QString &name, const QVector<double> &a, QTransform *m)
{
    const int n = a.size();
    if (name == QLatin1String("matrix") && n == 6) {
        *m = QTransform(a[0], a[1], a[2], a[3], a[4], a[5]);
    } else if (name == QLatin1String("translate") && (n == 1 || n == 2)) {
        *m = QTransform::fromTranslate(a[0], n == 2 ? a[1] : 0.0);
    } else if (name == QLatin1String("scale") && (n == 1 || n == 2)) {
        *m = QTransform::fromScale(a[0], n == 2 ? a[1] : a[0]);
    } else if (name == QLatin1String("rotate") && (n == 1 || n == 3)) {
        const double r = a[0] * kPi / 180.0;
        const double c = std::cos(r), s = std::sin(r);
        const QTransform rot(c, s, -s, c, 0, 0);
        if (n == 3)
            *m = QTransform::fromTranslate(-a[1], -a[2]) * rot
                 * QTransform::fromTranslate(a[1], a[2]);
        else
            *m = rot;
    } else if (name == QLatin1String("skewX") && n == 1) {
        *m = QTransform(1, 0, std::tan(a[0] * kPi / 180.0), 1, 0, 0);
    } else if (name == QLatin1String("skewY") && n == 1) {
        *m = QTransform(1, std::tan(a[0] * kPi / 180.0), 0, 1, 0, 0);
    } else {
        return false;
    }
    return true;
}

// Millimetres per unit, or 0 for an unknown unit.
double unitToMm(const QString &unit)
{
    if (unit.isEmpty() || unit == QLatin1String("px"))
        return kMmPerPx;
    if (unit == QLatin1String("mm"))
        return 1.0;
    if (unit == QLatin1String("cm"))
        return 10.0;
    if (unit == QLatin1String("in"))
        return 25.4;
    if (unit == QLatin1String("pt"))
        return 25.4 / 72.0;
    if (unit == QLatin1String("pc"))
        return 25.4 / 6.0;
    if (unit == QLatin1String("Q"))
        return 0.25;
    return 0.0;
}

bool readLength(const QString &text, double *value, QString *unit)
{
    const QString t = text.trimmed();
    SvgNumberScanner in(t);
    if (!in.readNumber(value))
        return false;
    *unit = QString(in.position(), int(t.constData() + t.size() - in.position())).trimmed();
    return true;
}

struct ViewBox
{
    double x = 0, y = 0, w = 0, h = 0;
    bool valid = false;
};

ViewBox readViewBox(const QString &text)
{
    ViewBox vb;
    SvgNumberScanner in(text);
    if (in.readNumber(&vb.x) && in.readNumber(&vb.y) && in.readNumber(&vb.w)
        && in.readNumber(&vb.h))
        vb.valid = vb.w > 0 && vb.h > 0;
    return vb;
}

// Fits a viewBox into a viewport of w x h (any unit), following preserveAspectRatio.
QTransform fitViewBox(const ViewBox &vb, double w, double h, const QString &aspect)
{
    double sx = w / vb.w, sy = h / vb.h;
    double tx = 0, ty = 0;
    const QStringList words = aspect.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    const QString align = words.value(0, QStringLiteral("xMidYMid"));
    if (align != QLatin1String("none")) {
        const bool slice = words.value(1) == QLatin1String("slice");
        const double s = slice ? std::max(sx, sy) : std::min(sx, sy);
        sx = sy = s;
        auto fraction = [&](const char *minKey, const char *midKey) {
            if (align.contains(QLatin1String(minKey)))
                return 0.0;
            if (align.contains(QLatin1String(midKey)))
                return 0.5;
            return 1.0;
        };
        tx = (w - vb.w * s) * fraction("xMin", "xMid");
        ty = (h - vb.h * s) * fraction("YMin", "YMid");
    }
    return QTransform::fromTranslate(-vb.x, -vb.y) * QTransform::fromScale(sx, sy)
           * QTransform::fromTranslate(tx, ty);
}

} // namespace

bool parseSvgTransform(const QString &text, QTransform *out)
{
    SvgNumberScanner in(text);
    QTransform total;
    QString name;
    QVector<double> args;
    in.skipWhitespace();
    while (!in.atEnd()) {
        QTransform m;
        if (!readFunction(in, &name, &args) || !functionMatrix(name, args, &m))
            return false;
        total = m * total; // the rightmost function applies first
        in.skipSeparators();
    }
    *out = total;
    return true;
}

bool svgLengthToMm(const QString &text, double *mm)
{
    double v;
    QString unit;
    if (!readLength(text, &v, &unit))
        return false;
    const double f = unitToMm(unit);
    if (f == 0.0)
        return false;
    *mm = v * f;
    return true;
}

bool svgLengthToUser(const QString &text, SvgAxis axis, const SvgLengthContext &c, double *user)
{
    double v;
    QString unit;
    if (!readLength(text, &v, &unit))
        return false;
    const double f = unitToMm(unit);
    if (f != 0.0) {
        *user = v * f / kMmPerPx;
        return true;
    }
    double per = 0.0;
    if (unit == QLatin1String("em"))
        per = c.fontSize;
    else if (unit == QLatin1String("ex") || unit == QLatin1String("ch"))
        per = c.fontSize / 2;
    else if (unit == QLatin1String("rem"))
        per = c.rootFontSize;
    else if (unit == QLatin1String("%"))
        per =
            axis == SvgAxis::X ? c.viewportWidth / 100
            : axis == SvgAxis::Y
                ? c.viewportHeight / 100
                : std::sqrt(
                      (c.viewportWidth * c.viewportWidth + c.viewportHeight * c.viewportHeight) / 2)
                      / 100;
    else if (unit == QLatin1String("vw"))
        per = c.rootWidthPx / 100;
    else if (unit == QLatin1String("vh"))
        per = c.rootHeightPx / 100;
    else if (unit == QLatin1String("vmin"))
        per = std::min(c.rootWidthPx, c.rootHeightPx) / 100;
    else if (unit == QLatin1String("vmax"))
        per = std::max(c.rootWidthPx, c.rootHeightPx) / 100;
    else
        return false;
    *user = v * per;
    return true;
}

QTransform svgRootToMm(const QDomElement &root)
{
    return svgRootToMm(root.attribute(QStringLiteral("width")),
                       root.attribute(QStringLiteral("height")),
                       root.attribute(QStringLiteral("viewBox")),
                       root.attribute(QStringLiteral("preserveAspectRatio")));
}

QTransform svgRootToMm(const QString &width, const QString &height, const QString &viewBox,
                       const QString &aspect)
{
    double w = 0, h = 0;
    const bool hasW = svgLengthToMm(width, &w) && w > 0;
    const bool hasH = svgLengthToMm(height, &h) && h > 0;
    const ViewBox vb = readViewBox(viewBox);
    if (!vb.valid)
        return QTransform::fromScale(kMmPerPx, kMmPerPx);
    if (!hasW && !hasH)
        return QTransform::fromTranslate(-vb.x, -vb.y) * QTransform::fromScale(kMmPerPx, kMmPerPx);
    if (!hasW)
        w = vb.w * h / vb.h;
    if (!hasH)
        h = vb.h * w / vb.w;
    return fitViewBox(vb, w, h, aspect);
}

bool svgViewBox(const QString &text, QRectF *box)
{
    const ViewBox vb = readViewBox(text);
    if (vb.valid)
        *box = QRectF(vb.x, vb.y, vb.w, vb.h);
    return vb.valid;
}

QTransform svgViewportTransform(double x, double y, double w, double h, const QRectF &viewBox,
                                const QString &aspect)
{
    const QTransform place = QTransform::fromTranslate(x, y);
    if (!viewBox.isValid() || !(w > 0) || !(h > 0))
        return place;
    ViewBox vb;
    vb.x = viewBox.x();
    vb.y = viewBox.y();
    vb.w = viewBox.width();
    vb.h = viewBox.height();
    vb.valid = true;
    return fitViewBox(vb, w, h, aspect) * place;
}

} // namespace lumitra
