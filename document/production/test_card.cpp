#include "test_card.h"

#include "jk_chang_jing.h"
#include "jk_tu_yuan.h"
#include "text_outline.h"

#include <QCoreApplication>
#include <QTransform>
#include <cmath>

namespace lumitra {

namespace {

constexpr double kMarginMm = 10; // from the work area's top-left corner
constexpr double kLabelGapMm = 1.5;

int spread(int from, int to, int index, int count)
{
    if (count <= 1)
        return from;
    return int(std::lround(from + double(to - from) * index / (count - 1)));
}

// A label's outline scaled down to fit `maxWidth` and `maxHeight`, its box at
// (0, 0).
QPainterPath labelOutline(const QString &text, double maxWidth, double maxHeight)
{
    TextSettings settings;
    settings.sizeMm = maxHeight;
    QPainterPath path = textOutline(text, settings);
    QRectF box = path.boundingRect();
    if (box.isEmpty())
        return path;
    const double scale = std::min({1.0, maxWidth / box.width(), maxHeight / box.height()});
    path = QTransform::fromScale(scale, scale).map(path);
    box = path.boundingRect();
    return path.translated(-box.topLeft());
}

Jk_tu_yuan *itemOn(const QPainterPath &path, int layer)
{
    auto *item = new Jk_tu_yuan(path, 1);
    item->layer_id = layer;
    return item;
}

TuCeng plainLayer(int number, const QString &name, int power, int speed)
{
    TuCeng l(number, false);
    l.mingcheng = name;
    l.moshi = LineMode;
    l.gonglv = power;
    l.sudu = speed;
    l.cishu = 1;
    return l;
}

} // namespace

QString testCardProblem(const TestCardSettings &s)
{
    if (s.rows < 1 || s.columns < 1)
        return QCoreApplication::translate("TestCard", "行数和列数至少为1");
    if (s.powerFrom < 0 || s.powerFrom > 100 || s.powerTo < 0 || s.powerTo > 100)
        return QCoreApplication::translate("TestCard", "功率须在0到100之间");
    if (s.speedFrom < 5 || s.speedTo < 5)
        return QCoreApplication::translate("TestCard", "速度至少为5");
    if (s.cellMm <= 0 || s.spacingMm < 0 || s.passes < 1 || s.intervalMm <= 0)
        return QCoreApplication::translate("TestCard", "尺寸或次数无效");
    return QString();
}

int testCardPower(const TestCardSettings &s, int row)
{
    return spread(s.powerFrom, s.powerTo, row, s.rows);
}

int testCardSpeed(const TestCardSettings &s, int column)
{
    return spread(s.speedFrom, s.speedTo, column, s.columns);
}

TestCardSplit testCardSplit(const TestCardSettings &s)
{
    TestCardSplit split;
    if (s.rows < 1 || s.columns < 1)
        return split;
    split.columnsPerPage = std::min(s.columns, kCardCellsPerPage);
    split.rowsPerPage = std::min(s.rows, std::max(1, kCardCellsPerPage / split.columnsPerPage));
    const int blockRows = (s.rows + split.rowsPerPage - 1) / split.rowsPerPage;
    const int blockColumns = (s.columns + split.columnsPerPage - 1) / split.columnsPerPage;
    split.pages = blockRows * blockColumns;
    return split;
}

TuCeng testCardCellLayer(const TestCardSettings &s, int row, int column, int layerNumber)
{
    const int power = testCardPower(s, row);
    const int speed = testCardSpeed(s, column);
    TuCeng l(layerNumber, false);
    l.mingcheng = QStringLiteral("P%1 F%2").arg(power).arg(speed);
    l.moshi = s.mode == LineMode ? LineMode : FillMode;
    l.gonglv = power;
    l.sudu = speed;
    l.cishu = s.passes;
    l.jianju = s.intervalMm;
    l.fangxiang = 0;
    return l;
}

QList<TestCardPage> generateTestCard(const TestCardSettings &s)
{
    QList<TestCardPage> pages;
    if (!testCardProblem(s).isEmpty())
        return pages;
    const TestCardSplit split = testCardSplit(s);
    const double pitch = s.cellMm + s.spacingMm;
    const double labelHeight = std::max(1.0, std::min(s.cellMm * 0.6, 4.0));
    const double rowLabelWidth = labelHeight * 3.2; // room for "100"
    const QPointF origin = Jk_chang_jing::workAreaRect().topLeft() + QPointF(kMarginMm, kMarginMm);
    const QPointF gridTopLeft =
        origin + QPointF(rowLabelWidth + kLabelGapMm, labelHeight + kLabelGapMm);

    for (int r0 = 0; r0 < s.rows; r0 += split.rowsPerPage) {
        for (int c0 = 0; c0 < s.columns; c0 += split.columnsPerPage) {
            TestCardPage page;
            const int rowCount = std::min(split.rowsPerPage, s.rows - r0);
            const int columnCount = std::min(split.columnsPerPage, s.columns - c0);
            QPainterPath labels;
            int layer = 0;
            for (int r = 0; r < rowCount; ++r) {
                for (int c = 0; c < columnCount; ++c) {
                    const TuCeng record = testCardCellLayer(s, r0 + r, c0 + c, layer);
                    QPainterPath square;
                    square.addRect(QRectF(gridTopLeft + QPointF(c * pitch, r * pitch),
                                          QSizeF(s.cellMm, s.cellMm)));
                    page.items.append(itemOn(square, layer));
                    page.layers.append(record);
                    page.cells.append({r0 + r, c0 + c, layer, record.gonglv, record.sudu});
                    ++layer;
                }
                // The power beside the row, right-aligned against the grid.
                const QPainterPath text =
                    labelOutline(QString::number(testCardPower(s, r0 + r)), rowLabelWidth,
                                 std::min(labelHeight, s.cellMm));
                const QRectF box = text.boundingRect();
                labels.addPath(
                    text.translated(gridTopLeft.x() - kLabelGapMm - box.width(),
                                    gridTopLeft.y() + r * pitch + (s.cellMm - box.height()) / 2));
            }
            for (int c = 0; c < columnCount; ++c) {
                // The speed above the column, centred on it.
                const QPainterPath text =
                    labelOutline(QString::number(testCardSpeed(s, c0 + c)),
                                 std::max(s.cellMm, pitch * 0.95), labelHeight);
                const QRectF box = text.boundingRect();
                labels.addPath(
                    text.translated(gridTopLeft.x() + c * pitch + (s.cellMm - box.width()) / 2,
                                    gridTopLeft.y() - kLabelGapMm - box.height()));
            }
            labels.setFillRule(Qt::OddEvenFill);
            page.items.append(itemOn(labels, kCardLabelLayer));
            page.layers.append(
                plainLayer(kCardLabelLayer, QStringLiteral("Labels"), s.labelPower, s.labelSpeed));

            const QRectF grid(gridTopLeft, QSizeF(columnCount * pitch - s.spacingMm,
                                                  rowCount * pitch - s.spacingMm));
            const QRectF outer =
                QRectF(origin, grid.bottomRight())
                    .adjusted(-kLabelGapMm, -kLabelGapMm, kLabelGapMm, kLabelGapMm);
            QPainterPath frame;
            frame.addRect(outer);
            page.items.append(itemOn(frame, kCardFrameLayer));
            page.layers.append(
                plainLayer(kCardFrameLayer, QStringLiteral("Frame"), s.labelPower, s.labelSpeed));
            pages.append(page);
        }
    }
    return pages;
}

} // namespace lumitra
