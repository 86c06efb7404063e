// Kerf and cut order, checked from the generated G-code: the burnt outlines
// are measured through JobSimulator, the order is read from which outline
// burns first, and the travel the preview reports as saved is the travel the
// two jobs differ by.
#include "cut_order.h"
#include "gcode_test_support.h"
#include "grbl_job_check.h"
#include "jk_gcode.h"
#include "job_designs.h"
#include "job_preview_dialog.h"
#include "job_simulator.h"
#include "program_state.h"
#include "rotary.h"

#include <QBuffer>
#include <QLabel>
#include <QTemporaryDir>
#include <QtTest>
#include <functional>

using namespace lumitra;

using Builder = std::function<void(JobDesign &, TuCeng *)>;
Q_DECLARE_METATYPE(Builder)
using Sizes = QVector<QSizeF>;
Q_DECLARE_METATYPE(Sizes)

namespace {

QPainterPath rectangle(double x, double y, double w, double h)
{
    QPainterPath p;
    p.addRect(x, y, w, h);
    return p;
}

QPainterPath circle(double cx, double cy, double d)
{
    QPainterPath p;
    p.addEllipse(QPointF(cx, cy), d / 2, d / 2);
    return p;
}

QPainterPath joined(QPainterPath a, const QPainterPath &b)
{
    a.addPath(b);
    return a;
}

// One burnt outline: its bounding box in machine mm, in burning order.
struct Burnt
{
    QVector<QRectF> outlines;
    double travel = 0;
    QPointF lastBurn;
};

Burnt burnt(const QByteArray &job)
{
    Burnt result;
    JobSimulator sim;
    QRectF current;
    bool open = false;
    for (const QByteArray &line : job.split('\n')) {
        sim.feedLine(QString::fromLatin1(line), [&](const JobSimulator::Move &m) {
            if (!m.burning) {
                if (open)
                    result.outlines.append(current);
                open = false;
                return;
            }
            const QRectF seg = QRectF(m.from, m.to).normalized();
            current = open ? current.united(seg) : seg;
            open = true;
            result.lastBurn = m.to;
        });
    }
    if (open)
        result.outlines.append(current);
    result.travel = sim.summary().travelLength;
    return result;
}

} // namespace

class TestKerfAndCutOrder : public QObject
{
    Q_OBJECT

private slots:
    void init() { resetProgramState(); }
    void kerfSizes_data();
    void kerfSizes();
    void optimisedOrder_data();
    void optimisedOrder();
    void travelSaved();
    void previewShowsTheTravelSaved();

private:
    QByteArray generate(JobDesign &design)
    {
        Jk_gcode generator;
        generator.setLayerList(&design.layers);
        generator.setRotarySettings(RotarySettings());
        const QString path = m_dir.filePath(QStringLiteral("job.nc"));
        if (!generator.kai_shi_zhuan_huan(design.items(), path))
            return QByteArray("refused: ") + generator.lastError().toUtf8();
        return readFileBytes(path);
    }
    QTemporaryDir m_dir;
};

void TestKerfAndCutOrder::kerfSizes_data()
{
    QTest::addColumn<Builder>("build");
    QTest::addColumn<double>("kerf");
    QTest::addColumn<Sizes>("sizes"); // burnt outlines in burning order

    const Builder rect = [](JobDesign &d, TuCeng *) { d.addPath(rectangle(10, -30, 20, 10), 0); };
    const Builder roundHole = [](JobDesign &d, TuCeng *) {
        d.addPath(joined(rectangle(10, -30, 20, 10), circle(20, -25, 5)), 0);
    };
    const Builder holeItem = [](JobDesign &d, TuCeng *) {
        d.addPath(rectangle(10, -30, 20, 10), 0);
        d.addPath(rectangle(17.5, -27.5, 5, 5), 0);
    };
    const Builder crossFill = [](JobDesign &d, TuCeng *l) {
        l->moshi = CrossFillMode;
        l->jianju = 1;
        d.addPath(rectangle(10, -30, 20, 10), 0);
    };
    QTest::newRow("rectangle") << rect << 0.1 << Sizes{{20.1, 10.1}};
    QTest::newRow("no kerf") << rect << 0.0 << Sizes{{20, 10}};
    QTest::newRow("round hole") << roundHole << 0.1 << Sizes{{20.1, 10.1}, {4.9, 4.9}};
    QTest::newRow("round hole, no kerf") << roundHole << 0.0 << Sizes{{20, 10}, {5, 5}};
    QTest::newRow("hole as an item") << holeItem << 0.1 << Sizes{{20.1, 10.1}, {4.9, 4.9}};
    QTest::newRow("wide kerf") << holeItem << 0.5 << Sizes{{20.5, 10.5}, {4.5, 4.5}};
    // The hatch stays inside the drawn outline; only the cut moves out.
    QTest::newRow("cross fill") << crossFill << 0.2 << Sizes{{20.2, 10.2}};
}

void TestKerfAndCutOrder::kerfSizes()
{
    QFETCH(Builder, build);
    QFETCH(double, kerf);
    QFETCH(Sizes, sizes);
    JobDesign design;
    TuCeng *layer = design.addLayer(0, false);
    layer->kerf = kerf;
    build(design, layer);
    const QByteArray job = generate(design);
    QCOMPARE(grblProblem(job), QString());
    const Burnt b = burnt(job);
    if (layer->moshi == CrossFillMode) {
        // Hatch lines first (each its own burn), the outline last.
        QVERIFY(b.outlines.size() > 2);
        for (int i = 0; i + 1 < b.outlines.size(); ++i) {
            const QRectF &h = b.outlines[i];
            QVERIFY(h.left() >= 10 - 1e-6 && h.right() <= 30 + 1e-6);
            QVERIFY(h.top() >= 20 - 1e-6 && h.bottom() <= 30 + 1e-6);
        }
        const QSizeF last = b.outlines.last().size();
        QVERIFY2(std::fabs(last.width() - sizes.last().width()) < 0.011
                     && std::fabs(last.height() - sizes.last().height()) < 0.011,
                 qPrintable(QStringLiteral("%1 x %2").arg(last.width()).arg(last.height())));
        return;
    }
    QCOMPARE(b.outlines.size(), sizes.size());
    for (int i = 0; i < sizes.size(); ++i) {
        const QSizeF s = b.outlines[i].size();
        QVERIFY2(std::fabs(s.width() - sizes[i].width()) < 0.011
                     && std::fabs(s.height() - sizes[i].height()) < 0.011,
                 qPrintable(
                     QStringLiteral("outline %1: %2 x %3").arg(i).arg(s.width()).arg(s.height())));
    }
}

void TestKerfAndCutOrder::optimisedOrder_data()
{
    QTest::addColumn<Builder>("build");
    QTest::addColumn<int>("order");
    QTest::addColumn<Sizes>("sizes"); // burnt outlines in burning order

    // A ring drawn outer outline first.
    const Builder ring = [](JobDesign &d, TuCeng *) {
        d.addPath(joined(rectangle(0, -40, 40, 40), circle(20, -20, 10)), 0);
    };
    // A part with a hole holding an island, drawn from the outside in, and a
    // far square drawn first.
    const Builder nested = [](JobDesign &d, TuCeng *) {
        d.addPath(rectangle(100, -10, 4, 4), 0);
        d.addPath(rectangle(0, -40, 40, 40), 0);
        d.addPath(rectangle(5, -35, 30, 30), 0);
        d.addPath(rectangle(15, -25, 10, 10), 0);
    };
    QTest::newRow("ring as drawn") << ring << int(CutAsDrawn) << Sizes{{40, 40}, {10, 10}};
    QTest::newRow("ring optimised") << ring << int(CutOptimised) << Sizes{{10, 10}, {40, 40}};
    QTest::newRow("nested as drawn")
        << nested << int(CutAsDrawn) << Sizes{{4, 4}, {40, 40}, {30, 30}, {10, 10}};
    QTest::newRow("nested optimised")
        << nested << int(CutOptimised) << Sizes{{10, 10}, {30, 30}, {40, 40}, {4, 4}};
}

void TestKerfAndCutOrder::optimisedOrder()
{
    QFETCH(Builder, build);
    QFETCH(int, order);
    QFETCH(Sizes, sizes);
    JobDesign design;
    TuCeng *layer = design.addLayer(0, false);
    layer->cutOrder = order;
    layer->cishu = 2;
    build(design, layer);
    const QByteArray job = generate(design);
    QCOMPARE(grblProblem(job), QString());
    const Burnt b = burnt(job);
    QCOMPARE(b.outlines.size(), 2 * sizes.size()); // both passes, the same order
    for (int i = 0; i < b.outlines.size(); ++i) {
        const QSizeF s = b.outlines[i].size();
        const QSizeF want = sizes[i % sizes.size()];
        QVERIFY2(std::fabs(s.width() - want.width()) < 0.011
                     && std::fabs(s.height() - want.height()) < 0.011,
                 qPrintable(
                     QStringLiteral("outline %1: %2 x %3").arg(i).arg(s.width()).arg(s.height())));
    }
}

void TestKerfAndCutOrder::travelSaved()
{
    // Squares along a line drawn in a scattered order, and a ring.
    const QVector<double> xs = {80, 10, 60, 30, 100, 20, 90, 0};
    JobDesign design;
    TuCeng *layer = design.addLayer(0, false);
    for (double x : xs)
        design.addPath(rectangle(x, -10, 5, 5), 0);
    design.addPath(joined(rectangle(0, -80, 40, 40), circle(20, -60, 10)), 0);

    // With one pass and with two (the second starts where the first ended),
    // the jobs' travel differs by the saving, less the way home from
    // wherever the last outline ended.
    for (int passes : {1, 2}) {
        layer->cishu = passes;
        layer->cutOrder = CutAsDrawn;
        const Burnt drawn = burnt(generate(design));
        QCOMPARE(cutOrderTravelSaved(design.items(), design.layers), 0.0);
        layer->cutOrder = CutOptimised;
        const Burnt optimised = burnt(generate(design));
        const double saved = cutOrderTravelSaved(design.items(), design.layers);
        QVERIFY(saved > 100 * passes);
        const double home = QLineF(QPointF(), drawn.lastBurn).length()
                            - QLineF(QPointF(), optimised.lastBurn).length();
        QVERIFY2(
            std::fabs((drawn.travel - optimised.travel) - (saved + home)) < 0.1 * passes,
            qPrintable(
                QStringLiteral("%1 vs %2").arg(drawn.travel - optimised.travel).arg(saved + home)));
    }
}

void TestKerfAndCutOrder::previewShowsTheTravelSaved()
{
    JobDesign design;
    TuCeng *layer = design.addLayer(0, false);
    layer->cutOrder = CutOptimised;
    design.addPath(joined(rectangle(0, -40, 40, 40), circle(20, -20, 10)), 0);
    const QByteArray job = generate(design);
    QBuffer buffer;
    buffer.setData(job);
    buffer.open(QIODevice::ReadOnly);
    JobPreviewDialog dialog;
    dialog.setPreview(renderJobPreview(buffer, QRectF(0, 0, 100, 100)));
    auto *travel = dialog.findChild<QLabel *>(QStringLiteral("travel_Lab"));
    QVERIFY(travel);
    const QString plain = travel->text();
    const double saved = cutOrderTravelSaved(design.items(), design.layers);
    QVERIFY(saved > 0);
    dialog.setTravelSaved(saved);
    QVERIFY(travel->text().startsWith(plain));
    QVERIFY2(travel->text().contains(QStringLiteral("%1 mm").arg(saved, 0, 'f', 1)),
             qPrintable(travel->text()));
    QVERIFY(!travel->toolTip().isEmpty());
    dialog.setTravelSaved(0); // nothing saved: the travel alone
    QCOMPARE(travel->text(), plain);
}

QTEST_MAIN(TestKerfAndCutOrder)
#include "tst_kerf_and_cut_order.moc"
