// Where a job starts: the anchor and shift arithmetic, the generated jobs in
// each start mode (followed with the job simulator), the "--origin" option and
// the stored choice.
#include "gcode_number.h"
#include "gcode_test_support.h"
#include "grbl_job_check.h"
#include "jk_gcode.h"
#include "job_designs.h"
#include "job_origin.h"
#include "job_simulator.h"
#include "program_state.h"
#include "rotary.h"
#include "settings_store.h"

#include <QBuffer>
#include <QSettings>
#include <QtTest>

using namespace lumitra;

namespace {

struct Segment
{
    QPointF from;
    QPointF to;
};

// Every burning move of a job, machine mm.
QList<Segment> burntSegments(const QByteArray &job)
{
    QByteArray bytes = job;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    JobSimulator simulator;
    QList<Segment> segments;
    simulator.run(buffer, [&](const JobSimulator::Move &m) {
        if (m.burning)
            segments.append({m.from, m.to});
    });
    return segments;
}

QRectF boundsOf(const QList<Segment> &segments)
{
    QRectF r;
    for (const Segment &s : segments) {
        const QRectF piece = QRectF(s.from, s.to).normalized();
        r = r.isNull() ? piece : r.united(piece);
    }
    return r;
}

bool near(const QPointF &a, const QPointF &b, double tolerance = 0.011)
{
    return qAbs(a.x() - b.x()) <= tolerance && qAbs(a.y() - b.y()) <= tolerance;
}

JobStart start(StartMode mode, int anchor, const QPointF &head = QPointF(), bool known = true)
{
    JobStart s;
    s.mode = mode;
    s.anchor = anchor;
    s.head = head;
    s.headKnown = known;
    return s;
}

// A line rectangle 30 x 20 mm at scene (10, -60) and a filled circle beside it.
void buildLinesAndFill(JobDesign &d)
{
    d.addLayer(0, false);
    TuCeng *fill = d.addLayer(1, false);
    fill->moshi = FillMode;
    fill->jianju = 0.5;
    QPainterPath rect;
    rect.addRect(10, -60, 30, 20);
    d.addPath(rect, 0);
    QPainterPath circle;
    circle.addEllipse(QPointF(60, -50), 8, 8);
    d.addPath(circle, 1);
}

void buildBitmap(JobDesign &d)
{
    d.addLayer(0, true);
    QImage image(40, 30, QImage::Format_RGB32);
    image.fill(Qt::white);
    for (int y = 5; y < 25; ++y)
        for (int x = 3; x < 30; ++x)
            image.setPixel(x, y, (x + y) % 3 ? qRgb(0, 0, 0) : qRgb(255, 255, 255));
    d.addBitmap(image, 0, QPointF(20, -70));
}

} // namespace

using Builder = std::function<void(JobDesign &)>;
Q_DECLARE_METATYPE(Builder)
Q_DECLARE_METATYPE(lumitra::JobStart)

class TestJobOrigin : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void anchorPoint_data();
    void anchorPoint();
    void shift_data();
    void shift();
    void absoluteIsUnchanged_data();
    void absoluteIsUnchanged();
    void currentPositionBurnsTheSameShapeShifted_data();
    void currentPositionBurnsTheSameShapeShifted();
    void userOriginPutsTheAnchorAtZero_data();
    void userOriginPutsTheAnchorAtZero();
    void unknownHeadIsRefused();
    void originOption_data();
    void originOption();
    void choiceIsStoredInTheSettingsFile();

private:
    QByteArray run(JobDesign &design, Jk_gcode &generator)
    {
        QFile::remove(Jk_gcode::defaultJobPath());
        generator.setLayerList(&design.layers);
        if (!generator.kai_shi_zhuan_huan(design.items(), QString()))
            return QByteArray("refused: ") + generator.lastError().toUtf8();
        return readFileBytes(Jk_gcode::defaultJobPath());
    }
};

void TestJobOrigin::init()
{
    resetProgramState();
    saveRotarySettings(RotarySettings());
}

void TestJobOrigin::anchorPoint_data()
{
    QTest::addColumn<int>("anchor");
    QTest::addColumn<QPointF>("expected");
    // Scene rectangle x 10..40, y -60..-40: machine X 10..40, Y 40..60.
    QTest::newRow("top left") << 0 << QPointF(10, 60);
    QTest::newRow("top centre") << 1 << QPointF(25, 60);
    QTest::newRow("top right") << 2 << QPointF(40, 60);
    QTest::newRow("left centre") << 3 << QPointF(10, 50);
    QTest::newRow("centre") << kAnchorCentre << QPointF(25, 50);
    QTest::newRow("right centre") << 5 << QPointF(40, 50);
    QTest::newRow("bottom left") << kAnchorBottomLeft << QPointF(10, 40);
    QTest::newRow("bottom centre") << 7 << QPointF(25, 40);
    QTest::newRow("bottom right") << 8 << QPointF(40, 40);
}

void TestJobOrigin::anchorPoint()
{
    QFETCH(int, anchor);
    QFETCH(QPointF, expected);
    QCOMPARE(lumitra::anchorPoint(QRectF(10, -60, 30, 20), anchor), expected);
}

void TestJobOrigin::shift_data()
{
    QTest::addColumn<JobStart>("start");
    QTest::addColumn<QRectF>("bounds");
    QTest::addColumn<bool>("ok");
    QTest::addColumn<QPointF>("expected");
    const QRectF r(10, -60, 30, 20);
    QTest::newRow("absolute") << start(StartMode::Absolute, 4, {100, 100}) << r << true
                              << QPointF();
    QTest::newRow("absolute, head unknown")
        << start(StartMode::Absolute, 4, {}, false) << r << true << QPointF();
    QTest::newRow("current, bottom left")
        << start(StartMode::CurrentPosition, 6, {100, 80}) << r << true << QPointF(90, 40);
    QTest::newRow("current, centre")
        << start(StartMode::CurrentPosition, 4, {100, 80}) << r << true << QPointF(75, 30);
    QTest::newRow("current, head unknown")
        << start(StartMode::CurrentPosition, 4, {}, false) << r << false << QPointF(-1, -1);
    QTest::newRow("user, top right")
        << start(StartMode::UserOrigin, 2) << r << true << QPointF(-40, -60);
    QTest::newRow("user, nothing to place")
        << start(StartMode::UserOrigin, 2) << QRectF() << true << QPointF();
}

void TestJobOrigin::shift()
{
    QFETCH(JobStart, start);
    QFETCH(QRectF, bounds);
    QFETCH(bool, ok);
    QFETCH(QPointF, expected);
    QPointF shift(-1, -1);
    QCOMPARE(jobShift(start, bounds, &shift), ok);
    QCOMPARE(shift, expected);
    if (ok && !bounds.isNull()) {
        // The moved bounds have the anchor on the start point.
        const QPointF target = start.mode == StartMode::CurrentPosition ? start.head : QPointF();
        if (start.relative())
            QCOMPARE(lumitra::anchorPoint(shiftSceneRect(bounds, shift), start.anchor), target);
    }
}

void TestJobOrigin::absoluteIsUnchanged_data()
{
    QTest::addColumn<Builder>("build");
    QTest::newRow("lines and fill") << Builder(buildLinesAndFill);
    QTest::newRow("bitmap") << Builder(buildBitmap);
}

void TestJobOrigin::absoluteIsUnchanged()
{
    QFETCH(Builder, build);
    JobDesign design;
    build(design);
    Jk_gcode plain;
    const QByteArray before = run(design, plain);
    QVERIFY(!before.startsWith("refused"));
    // Absolute with an anchor and a known head: the very same bytes.
    Jk_gcode placed;
    placed.setJobStart(start(StartMode::Absolute, 4, {123.45, 67.8}));
    QCOMPARE(run(design, placed), before);
    QCOMPARE(placed.lastShift(), QPointF());
}

void TestJobOrigin::currentPositionBurnsTheSameShapeShifted_data()
{
    QTest::addColumn<Builder>("build");
    QTest::addColumn<int>("anchor");
    QTest::addColumn<QPointF>("head");
    QTest::newRow("lines and fill, bottom left")
        << Builder(buildLinesAndFill) << kAnchorBottomLeft << QPointF(150.5, 120.25);
    QTest::newRow("lines and fill, centre")
        << Builder(buildLinesAndFill) << kAnchorCentre << QPointF(200, 200);
    QTest::newRow("lines and fill, top right, negative")
        << Builder(buildLinesAndFill) << 2 << QPointF(-5, -7.5);
    QTest::newRow("bitmap, bottom right") << Builder(buildBitmap) << 8 << QPointF(300, 10);
}

void TestJobOrigin::currentPositionBurnsTheSameShapeShifted()
{
    QFETCH(Builder, build);
    QFETCH(int, anchor);
    QFETCH(QPointF, head);
    JobDesign design;
    build(design);
    Jk_gcode plain;
    const QList<Segment> absolute = burntSegments(run(design, plain));
    QVERIFY(!absolute.isEmpty());

    Jk_gcode placed;
    placed.setJobStart(start(StartMode::CurrentPosition, anchor, head));
    const QByteArray job = run(design, placed);
    QCOMPARE(grblProblem(job), QString());
    const QPointF expected =
        head - lumitra::anchorPoint(jobBounds(design.items(), design.layers), anchor);
    QCOMPARE(placed.lastShift(), expected);
    const QList<Segment> shifted = burntSegments(job);
    QCOMPARE(shifted.size(), absolute.size());
    for (int i = 0; i < shifted.size(); ++i) {
        if (!near(shifted.at(i).from, absolute.at(i).from + expected)
            || !near(shifted.at(i).to, absolute.at(i).to + expected))
            QFAIL(qPrintable(QStringLiteral("segment %1 not moved by the shift").arg(i)));
    }
    // The head comes back to where the job started.
    const QByteArray back = "G0X" + fixedText(head.x(), 2) + "Y" + fixedText(head.y(), 2) + "\n";
    QVERIFY(job.endsWith("M9\nG1S0\nM5\nG90\n" + back + "M2\nM30\n"));
}

void TestJobOrigin::userOriginPutsTheAnchorAtZero_data()
{
    QTest::addColumn<int>("anchor");
    for (int a = 0; a < kAnchorCount; ++a)
        QTest::newRow(qPrintable(anchorNames().at(a))) << a;
}

void TestJobOrigin::userOriginPutsTheAnchorAtZero()
{
    QFETCH(int, anchor);
    // A line rectangle: what burns is exactly the output bounds.
    JobDesign design;
    design.addLayer(0, false);
    QPainterPath rect;
    rect.addRect(12, -70, 36, 22);
    design.addPath(rect, 0);
    Jk_gcode placed;
    placed.setJobStart(start(StartMode::UserOrigin, anchor, {}, false));
    const QByteArray job = run(design, placed);
    QCOMPARE(grblProblem(job), QString());
    QVERIFY(job.endsWith("G0X0Y0\nM2\nM30\n"));
    const QRectF burnt = boundsOf(burntSegments(job));
    // Machine rectangle, Y up: turn it into a scene rectangle to ask for its anchor.
    const QRectF scene(burnt.left(), -burnt.bottom(), burnt.width(), burnt.height());
    QVERIFY2(near(lumitra::anchorPoint(scene, anchor), QPointF()),
             qPrintable(QStringLiteral("burnt %1,%2 %3x%4")
                            .arg(burnt.x())
                            .arg(burnt.y())
                            .arg(burnt.width())
                            .arg(burnt.height())));
    QCOMPARE(burnt.size(), QSizeF(36, 22));
}

void TestJobOrigin::unknownHeadIsRefused()
{
    JobDesign design;
    buildLinesAndFill(design);
    Jk_gcode placed;
    placed.setJobStart(start(StartMode::CurrentPosition, 4, {}, false));
    QCOMPARE(run(design, placed), QByteArray("refused: 当前位置未知"));
}

void TestJobOrigin::originOption_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("ok");
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("anchor");
    QTest::newRow("absolute") << "absolute" << true << int(StartMode::Absolute)
                              << kAnchorBottomLeft;
    QTest::newRow("user, default anchor")
        << "user" << true << int(StartMode::UserOrigin) << kAnchorBottomLeft;
    QTest::newRow("user, centre") << "user:centre" << true << int(StartMode::UserOrigin)
                                  << kAnchorCentre;
    QTest::newRow("user, center") << "User:Center" << true << int(StartMode::UserOrigin)
                                  << kAnchorCentre;
    QTest::newRow("user, top right") << "user:top-right" << true << int(StartMode::UserOrigin) << 2;
    QTest::newRow("current: no machine") << "current" << false << 0 << 0;
    QTest::newRow("unknown anchor") << "user:middle" << false << 0 << 0;
    QTest::newRow("absolute takes no anchor") << "absolute:centre" << false << 0 << 0;
}

void TestJobOrigin::originOption()
{
    QFETCH(QString, text);
    QFETCH(bool, ok);
    QFETCH(int, mode);
    QFETCH(int, anchor);
    JobStart result;
    QString error;
    QCOMPARE(parseOriginOption(text, &result, &error), ok);
    QCOMPARE(error.isEmpty(), ok);
    if (ok) {
        QCOMPARE(int(result.mode), mode);
        QCOMPARE(result.anchor, anchor);
    }
}

void TestJobOrigin::choiceIsStoredInTheSettingsFile()
{
    saveJobStart(start(StartMode::UserOrigin, 8));
    {
        // What the next start of the program reads: the file itself.
        QSettings file(config_path(), QSettings::IniFormat);
        QCOMPARE(file.value(QString::fromLatin1(kStartModeKey)).toString(), QStringLiteral("2"));
        QCOMPARE(file.value(QString::fromLatin1(kStartAnchorKey)).toString(), QStringLiteral("8"));
    }
    JobStart loaded = loadJobStart();
    QCOMPARE(int(loaded.mode), int(StartMode::UserOrigin));
    QCOMPARE(loaded.anchor, 8);
    QVERIFY(!loaded.headKnown);
    // Values that make no sense read as the defaults.
    set_setting(QString::fromLatin1(kStartModeKey), QStringLiteral("7"));
    set_setting(QString::fromLatin1(kStartAnchorKey), QStringLiteral("x"));
    loaded = loadJobStart();
    QCOMPARE(int(loaded.mode), int(StartMode::Absolute));
    QCOMPARE(loaded.anchor, kAnchorBottomLeft);
    saveJobStart(JobStart());
}

QTEST_MAIN(TestJobOrigin)
#include "tst_job_origin.moc"
