#include "tu_ceng.h"

#include <QCoreApplication>
#include <QDataStream>
#include <QStringList>
#include <cmath>

TuCeng::TuCeng(int number, bool bitmap)
    : yanse(number), tupian(bitmap), mingcheng(QStringLiteral("L") + QString::number(number))
{
}

TuCeng::TuCeng(const TuCeng &other)
{
    *this = other;
}

TuCeng &TuCeng::operator=(const TuCeng &other)
{
    if (this == &other)
        return *this;
    yanse = other.yanse;
    gonglv = other.gonglv;
    sudu = other.sudu;
    fangxiang = other.fangxiang;
    jianju = other.jianju;
    saomiao = other.saomiao;
    moshi = other.moshi;
    shuchu = other.shuchu;
    xianshi = other.xianshi;
    tupian = other.tupian;
    danxiang = other.danxiang;
    mingcheng = other.mingcheng;
    shanchu = other.shanchu;
    cishu = other.cishu;
    kerf = other.kerf;
    cutOrder = other.cutOrder;
    jingxi = other.jingxi;
    // xuanzhong is the row's own tick and is deliberately not copied.
    return *this;
}

namespace {
const QRgb kPalette[kLayerCount] = {
    qRgb(0, 0, 0),       qRgb(0, 0, 255),     qRgb(255, 0, 0),     qRgb(0, 255, 0),
    qRgb(208, 208, 0),   qRgb(255, 128, 0),   qRgb(0, 224, 224),   qRgb(255, 0, 255),
    qRgb(180, 180, 180), qRgb(0, 0, 160),     qRgb(160, 0, 0),     qRgb(4, 164, 4),
    qRgb(160, 160, 0),   qRgb(192, 128, 0),   qRgb(0, 160, 255),   qRgb(160, 0, 160),
    qRgb(128, 128, 128), qRgb(125, 135, 185), qRgb(187, 119, 132), qRgb(74, 111, 227),
    qRgb(211, 63, 106),  qRgb(140, 215, 140), qRgb(240, 185, 141), qRgb(246, 196, 225),
    qRgb(250, 158, 212), qRgb(80, 10, 120),   qRgb(180, 90, 0),    qRgb(0, 71, 84),
    qRgb(134, 250, 136), qRgb(255, 219, 102)};
} // namespace

QColor layerColor(int number)
{
    if (number < 0 || number >= kLayerCount)
        return QColor(Qt::black);
    return QColor(kPalette[number]);
}

bool layerUsesDarkText(int number)
{
    switch (number) {
    case 3:
    case 6:
    case 21:
    case 22:
    case 23:
    case 24:
    case 28:
    case 29:
        return true;
    default:
        return false;
    }
}

QString layerLabel(int number)
{
    return QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0'));
}

QStringList modeLabelsForPanel(bool bitmap)
{
    if (!bitmap)
        return {QCoreApplication::translate("TuCeng", "线条"),
                QCoreApplication::translate("TuCeng", "填充"),
                QCoreApplication::translate("TuCeng", "交叉填充")};
    return {QCoreApplication::translate("TuCeng", "黑白"),
            QCoreApplication::translate("TuCeng", "抖动"),
            QCoreApplication::translate("TuCeng", "轮廓"),
            QCoreApplication::translate("TuCeng", "灰度"),
            QCoreApplication::translate("TuCeng", "负向")};
}

QStringList modeLabelsForRow(bool bitmap)
{
    QStringList labels = modeLabelsForPanel(bitmap);
    if (bitmap)
        labels[NegativeMode] = QCoreApplication::translate("TuCeng", "负像");
    return labels;
}

void writeTuCeng(QDataStream &out, const TuCeng &l)
{
    out << l.sudu << l.moshi << l.tupian << l.gonglv << l.shuchu << l.shanchu << l.yanse
        << l.xianshi << l.mingcheng << l.danxiang << l.saomiao << l.fangxiang << l.jianju << l.cishu
        << QStringLiteral("123");
}

bool readTuCeng(QDataStream &in, TuCeng &l)
{
    QString end;
    in >> l.sudu >> l.moshi >> l.tupian >> l.gonglv >> l.shuchu >> l.shanchu >> l.yanse >> l.xianshi
        >> l.mingcheng >> l.danxiang >> l.saomiao >> l.fangxiang >> l.jianju >> l.cishu >> end;
    return in.status() == QDataStream::Ok && end == QLatin1String("123");
}

namespace {
const QString kExtrasMarker = QStringLiteral("MY_CENG_EXT");
} // namespace

QString layerExtrasText(const TuCeng &l)
{
    QStringList fields;
    if (l.kerf != 0.0)
        fields << QStringLiteral("kerf=") + QString::number(l.kerf, 'g', 12);
    if (l.cutOrder != CutAsDrawn)
        fields << QStringLiteral("order=") + QString::number(l.cutOrder);
    if (l.jingxi)
        fields << QStringLiteral("fine=1");
    if (fields.isEmpty())
        return QString();
    return kExtrasMarker + QLatin1Char(' ') + fields.join(QLatin1Char(' '));
}

bool readLayerExtras(const QString &text, TuCeng &l)
{
    const QStringList words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (words.isEmpty() || words.first() != kExtrasMarker)
        return false;
    for (const QString &w : words) {
        const int eq = w.indexOf(QLatin1Char('='));
        if (eq < 0)
            continue;
        const QStringRef key = w.leftRef(eq);
        bool ok = false;
        if (key == QLatin1String("kerf")) {
            const double v = w.midRef(eq + 1).toDouble(&ok);
            if (ok && std::isfinite(v))
                l.kerf = qBound(0.0, v, 5.0);
        } else if (key == QLatin1String("fine")) {
            const int v = w.midRef(eq + 1).toInt(&ok);
            if (ok)
                l.jingxi = v != 0;
        } else if (key == QLatin1String("order")) {
            const int v = w.midRef(eq + 1).toInt(&ok);
            if (ok)
                l.cutOrder = v == CutOptimised ? CutOptimised : CutAsDrawn;
        }
    }
    return true;
}
