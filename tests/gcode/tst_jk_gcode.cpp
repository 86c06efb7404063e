// Whole jobs from the generator: the job steps, golden jobs compared byte for
// byte, and GRBL acceptance of everything it writes.
#include "gcode_test_support.h"
#include "grbl_job_check.h"
#include "jk_gcode.h"
#include "job_designs.h"
#include "job_simulator.h"
#include "program_state.h"
#include "raster_words.h"
#include "rotary.h"
#include "settings_store.h"

#include <QFile>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>
#include <functional>

using namespace lumitra;

using Builder = std::function<void(JobDesign &)>;
Q_DECLARE_METATYPE(Builder)

namespace {

const QByteArray kHeader("M4\nM8\n");
const QByteArray kTrailer("M9\nG1S0\nM5\nG90\nG0X0Y0\nM2\nM30\n");

QPainterPath rectangle(double x, double y, double w, double h)
{
    QPainterPath p;
    p.addRect(x, y, w, h);
    return p;
}

// The designs kept as golden jobs under tests/data/gcode.
void buildDesign(const QString &name, JobDesign &d)
{
    if (name == QLatin1String("lines")) {
        d.addLayer(0, false);
        TuCeng *second = d.addLayer(2, false);
        second->gonglv = 50;
        second->sudu = 1200;
        second->cishu = 2;
        d.addPath(rectangle(10, -30, 20, 15), 0);
        QPainterPath circle;
        circle.addEllipse(QPointF(60, -40), 8, 8);
        d.addPath(circle, 0);
        QPainterPath triangle(QPointF(100, -10));
        triangle.lineTo(120, -10);
        triangle.lineTo(110, -30);
        triangle.closeSubpath();
        Jk_tu_yuan *moved = d.addPath(triangle, 2);
        moved->setPos(5, -5);
        moved->setTransform(QTransform().rotate(15));
    } else if (name == QLatin1String("fills")) {
        TuCeng *fill = d.addLayer(1, false);
        fill->moshi = 1;
        fill->fangxiang = 45;
        fill->jianju = 1;
        fill->saomiao = 2;
        TuCeng *cross = d.addLayer(3, false);
        cross->moshi = 2;
        cross->jianju = 0.8;
        cross->danxiang = true;
        cross->gonglv = 35;
        QPainterPath ring = rectangle(0, -20, 20, 20);
        ring.addRect(6, -14, 8, 8);
        d.addPath(ring, 1);
        QPainterPath circle;
        circle.addEllipse(QPointF(40, -10), 6, 6);
        d.addPath(circle, 3);
    } else if (name == QLatin1String("bitmaps")) {
        TuCeng *threshold = d.addLayer(0, true);
        threshold->jianju = 0.5;
        threshold->saomiao = 1;
        TuCeng *grey = d.addLayer(4, true);
        grey->moshi = 3;
        grey->jianju = 0.6;
        QImage pattern(12, 8, QImage::Format_ARGB32);
        pattern.fill(Qt::white);
        for (int y = 0; y < 8; ++y) {
            for (int x = 0; x < 12; ++x) {
                if ((x / 3 + y / 2) % 2 == 0 || x == 11)
                    pattern.setPixel(x, y, qRgb(20, 20, 20));
            }
        }
        d.addBitmap(pattern, 0, QPointF(5, -20));
        QImage ramp(6, 4, QImage::Format_Grayscale8);
        for (int y = 0; y < 4; ++y) {
            for (int x = 0; x < 6; ++x)
                ramp.scanLine(y)[x] = uchar(x * 51);
        }
        d.addBitmap(ramp, 4, QPointF(30, -10))->setTransform(QTransform().rotate(30));
    } else if (name == QLatin1String("rotary")) {
        d.addLayer(0, false);
        d.addPath(rectangle(0, -10, 31.4, 10), 0);
    }
}

// A grey picture with grain, so that most neighbouring pixels differ.
QImage grainyPhoto(int w, int h)
{
    QImage img(w, h, QImage::Format_ARGB32);
    QRandomGenerator rng(5);
    for (int y = 0; y < h; ++y) {
        for (int x = 0; x < w; ++x) {
            const int g = qBound(0, 30 + 200 * x / w + int(rng.bounded(40)) - 20, 255);
            img.setPixel(x, y, qRgb(g, g, g));
        }
    }
    img.setPixel(3, 3, qRgb(255, 255, 255)); // a white hole
    return img;
}

struct Burn
{
    QPointF from;
    QPointF to;
    int power;
};

// The burnt segments of a job, each power put on the controller's steps, with
// neighbouring moves of one power along one line joined.
QVector<Burn> burnsOf(const QByteArray &job)
{
    QVector<Burn> burns;
    JobSimulator sim;
    const PowerSteps steps;
    for (const QByteArray &line : job.split('\n')) {
        sim.feedLine(QString::fromLatin1(line), [&](const JobSimulator::Move &m) {
            const int power = m.burning ? quantisedPower(m.power, steps) : 0;
            if (power == 0)
                return;
            if (!burns.isEmpty()) {
                Burn &last = burns.last();
                const QPointF a = last.to - last.from;
                const QPointF b = m.to - m.from;
                const bool collinear = std::fabs(a.x() * b.y() - a.y() * b.x()) < 1e-9
                                       && QPointF::dotProduct(a, b) > 0;
                if (last.power == power && last.to == m.from && collinear) {
                    last.to = m.to;
                    return;
                }
            }
            burns.append({m.from, m.to, power});
        });
    }
    return burns;
}

} // namespace

class TestJkGcode : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void jobSteps_data();
    void jobSteps();
    void refusals();
    void goldenJobs_data();
    void goldenJobs();
    void rasterWordsKeepTheBurns_data();
    void rasterWordsKeepTheBurns();
    void randomDesignsAreGrblValid();

private:
    // Writes the job for `design` to a fresh default job file (an empty path
    // stands for it) and returns its bytes.
    QByteArray run(JobDesign &design, Jk_gcode &generator)
    {
        QFile::remove(Jk_gcode::defaultJobPath());
        generator.setLayerList(&design.layers);
        if (!generator.kai_shi_zhuan_huan(design.items(), QString()))
            return QByteArray("refused: ") + generator.lastError().toUtf8();
        return readFileBytes(Jk_gcode::defaultJobPath());
    }
    QTemporaryDir m_dir;
};

void TestJkGcode::init()
{
    resetProgramState();
    set_setting(QLatin1String(kRotaryModeKey), QStringLiteral("0"));
}

void TestJkGcode::jobSteps_data()
{
    QTest::addColumn<Builder>("build");
    QTest::addColumn<QByteArray>("expected");

    QTest::newRow("empty design") << Builder([](JobDesign &) {}) << kHeader + kTrailer;
    QTest::newRow("pending preamble, written once")
        << Builder([](JobDesign &) { programState().preamble = QStringLiteral("G90\n"); })
        << kHeader + "G90\n" + kTrailer;
    // Each path is its own piece, so each starts with all its words again.
    const QByteArray once("G0X0.00Y0.00S800.00F5000.00\nG1X20.00\n"
                          "G0X0.00Y5.00S800.00F5000.00\nG1Y10.00\n");
    QTest::newRow("three passes") << Builder([](JobDesign &d) {
        d.addLayer(0, false)->cishu = 3;
        d.addSegment({0, 0}, {20, 0}, 0);
        d.addSegment({0, -5}, {0, -10}, 0);
    }) << kHeader + ";L0\n" + once + once + once + kTrailer;
    QTest::newRow("layers in list order")
        << Builder([](JobDesign &d) {
               d.addLayer(5, false)->gonglv = 10;
               d.addLayer(1, false)->gonglv = 20;
               d.addLayer(1, true); // a bitmap layer with the same number: no vector items
               d.addSegment({1, 0}, {2, 0}, 1);
               d.addSegment({3, 0}, {4, 0}, 5);
               d.addSegment({1, 0}, {2, 0}, 7); // no layer record: not written
           })
        << kHeader + ";L5\nG0X3.00Y0.00S100.00F5000.00\nG1X4.00\n"
               + ";L1\nG0X1.00Y0.00S200.00F5000.00\nG1X2.00\n;L1\n" + kTrailer;
    QTest::newRow("output off writes nothing") << Builder([](JobDesign &d) {
        d.addLayer(0, false)->shuchu = false;
        d.addSegment({1, 0}, {2, 0}, 0);
    }) << kHeader + kTrailer;
    QTest::newRow("cancelled job keeps its trailer") << Builder([](JobDesign &d) {
        buildDesign(QStringLiteral("lines"), d);
        programState().cancel = true;
    }) << kHeader + ";L0\n;L2\n" + kTrailer;
    QTest::newRow("rotary from the settings store")
        << Builder([](JobDesign &d) {
               saveRotarySettings(rotarySettings(1, "Y", 180, 50, 360));
               programState().modelFlag = true;
               d.addLayer(0, false);
               d.addSegment({10, 20}, {10, 0}, 0);
           })
        << kHeader + "G91\nG0Z-7\nG0Z7\nG90\n;L0\nG0X10.00Z-40.000S800.00F5000.00\nG1Z0.000\n"
               + kTrailer;

    // Layer names become comments a controller accepts.
    const QList<QPair<QString, QByteArray>> comments = {
        {QStringLiteral("cut 2"), ";cut 2\n"},
        {QStringLiteral("图层!?~"), ";_____\n"},
        {QString(200, QLatin1Char('a')), ";" + QByteArray(79, 'a') + "\n"}};
    for (const auto &c : comments) {
        QTest::newRow(qPrintable("comment " + c.second.trimmed().left(10)))
            << Builder([name = c.first](JobDesign &d) { d.addLayer(0, false)->mingcheng = name; })
            << kHeader + c.second + kTrailer;
    }
}

void TestJkGcode::jobSteps()
{
    QFETCH(Builder, build);
    QFETCH(QByteArray, expected);
    JobDesign design;
    build(design);
    Jk_gcode generator;
    QSignalSpy finished(&generator, &Jk_gcode::zhuan_huan_wan_cheng);
    const QByteArray job = run(design, generator);
    QCOMPARE(job, expected);
    QCOMPARE(finished.count(), 1);
    QCOMPARE(grblProblem(job), QString());
    QVERIFY(programState().preamble.isEmpty());
}

void TestJkGcode::refusals()
{
    // Refused jobs leave an existing file alone and do not report completion.
    JobDesign design;
    Jk_gcode generator;
    generator.setLayerList(&design.layers);
    QSignalSpy finished(&generator, &Jk_gcode::zhuan_huan_wan_cheng);
    QVERIFY(!generator.kai_shi_zhuan_huan(design.items(), m_dir.path())); // a folder
    QVERIFY(!generator.kai_shi_zhuan_huan(design.items(), m_dir.filePath("missing/folder/job.nc")));
    QVERIFY(!generator.lastError().isEmpty());

    generator.setRotarySettings(rotarySettings(2, "Y", 100, 0, 360)); // no diameter
    QFile old(m_dir.filePath("kept.nc"));
    QVERIFY(old.open(QIODevice::WriteOnly));
    old.write("old job\n");
    old.close();
    QVERIFY(!generator.kai_shi_zhuan_huan(design.items(), old.fileName()));
    QVERIFY(!generator.lastError().isEmpty());
    QCOMPARE(readFileBytes(old.fileName()), QByteArray("old job\n"));
    QCOMPARE(finished.count(), 0);
}

void TestJkGcode::goldenJobs_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"lines", "fills", "bitmaps", "rotary"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void TestJkGcode::goldenJobs()
{
    // Set LUMITRA_UPDATE_GOLDEN=1 to rewrite the files after a deliberate change.
    QFETCH(QString, name);
    JobDesign design;
    buildDesign(name, design);
    Jk_gcode generator;
    if (name == QLatin1String("rotary")) {
        generator.setRotarySettings(rotarySettings(2, "X", 100, 10, 360));
        programState().modelFlag = true;
    }
    const QByteArray job = run(design, generator);
    QCOMPARE(grblProblem(job), QString());

    const QString golden = QStringLiteral(LUMITRA_TEST_DATA_DIR "/gcode/") + name + ".nc";
    if (qEnvironmentVariableIsSet("LUMITRA_UPDATE_GOLDEN")) {
        QFile out(golden);
        QVERIFY(out.open(QIODevice::WriteOnly));
        out.write(job);
    }
    const QByteArray expected = readFileBytes(golden);
    QVERIFY2(!expected.isEmpty(), qPrintable(golden));
    QCOMPARE(job, expected);
}

void TestJkGcode::rasterWordsKeepTheBurns_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("power");
    QTest::addColumn<double>("angle");
    QTest::addColumn<double>("overscan");
    QTest::newRow("dither") << int(DitherMode) << 80 << 0.0 << 0.0;
    QTest::newRow("dither, overscan, turned") << int(DitherMode) << 55 << 30.0 << 1.5;
    QTest::newRow("threshold") << int(ThresholdMode) << 100 << 0.0 << 0.0;
    QTest::newRow("grey") << int(GreyscaleMode) << 80 << 0.0 << 0.0;
    // At 40 % no grey falls exactly half way between two power steps, where the
    // two-decimal S of the plain job could round to either.
    QTest::newRow("grey at 40 %, turned") << int(GreyscaleMode) << 40 << 12.0 << 0.5;
}

void TestJkGcode::rasterWordsKeepTheBurns()
{
    QFETCH(int, mode);
    QFETCH(int, power);
    QFETCH(double, angle);
    QFETCH(double, overscan);
    JobDesign design;
    TuCeng *layer = design.addLayer(0, true);
    layer->moshi = mode;
    layer->gonglv = power;
    layer->jianju = 0.1;
    layer->saomiao = overscan;
    Jk_tu_yuan *item = design.addBitmap(grainyPhoto(60, 40), 0, QPointF(12.5, -30));
    item->setTransform(QTransform().rotate(angle));

    Jk_gcode generator;
    generator.setRasterWords(false);
    const QByteArray plain = run(design, generator);
    generator.setRasterWords(true);
    const QByteArray shortJob = run(design, generator);
    QCOMPARE(grblProblem(shortJob), QString());
    QVERIFY(!shortJob.contains(".00") && !shortJob.contains("-0\n"));

    const QVector<Burn> before = burnsOf(plain);
    const QVector<Burn> after = burnsOf(shortJob);
    QVERIFY(before.size() > 100);
    QCOMPARE(after.size(), before.size());
    for (int i = 0; i < before.size(); ++i) {
        QCOMPARE(after[i].from, before[i].from);
        QCOMPARE(after[i].to, before[i].to);
        QCOMPARE(after[i].power, before[i].power);
    }
    QVERIFY2(shortJob.size() < plain.size() * 0.85,
             qPrintable(QStringLiteral("%1 -> %2").arg(plain.size()).arg(shortJob.size())));
}

void TestJkGcode::randomDesignsAreGrblValid()
{
    QRandomGenerator rng(77);
    for (int round = 0; round < 12; ++round) {
        JobDesign design;
        for (int layer = 0; layer < 3; ++layer) {
            TuCeng *l = design.addLayer(layer, false);
            l->moshi = rng.bounded(3);
            l->fangxiang = rng.bounded(361);
            l->jianju = 0.2 + rng.generateDouble();
            l->saomiao = rng.bounded(3);
            l->gonglv = rng.bounded(101);
            l->sudu = 5 + rng.bounded(99999);
            l->cishu = 1 + rng.bounded(2);
        }
        for (int i = 0; i < 15; ++i) {
            QPainterPath p;
            const QPointF c(rng.bounded(400.0), -rng.bounded(400.0));
            const int shape = rng.bounded(3);
            if (shape == 0) {
                p.addEllipse(c, 1 + rng.bounded(30.0), 1 + rng.bounded(30.0));
            } else if (shape == 1) {
                p.addRect(c.x(), c.y(), rng.bounded(50.0), rng.bounded(50.0));
            } else {
                p.moveTo(c);
                p.cubicTo(c + QPointF(30, 0), c + QPointF(0, -40), c + QPointF(20, 20));
            }
            Jk_tu_yuan *item = design.addPath(p, rng.bounded(3));
            item->setTransform(QTransform().rotate(rng.bounded(360.0)));
        }
        Jk_gcode generator;
        const QByteArray job = run(design, generator);
        QVERIFY(job.size() > 1000);
        QCOMPARE(grblProblem(job), QString());
    }
}

QTEST_MAIN(TestJkGcode)
#include "tst_jk_gcode.moc"
