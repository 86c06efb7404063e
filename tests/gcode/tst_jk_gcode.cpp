// Whole jobs from the generator: the job steps, golden jobs compared byte for
// byte, and GRBL acceptance of everything it writes.
#include "gcode_test_support.h"
#include "grbl_job_check.h"
#include "jk_gcode.h"
#include "job_designs.h"
#include "program_state.h"
#include "rotary.h"
#include "settings_store.h"

#include <QFile>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

using namespace lumitra;

namespace {

const QByteArray kHeader("M4\nM8\n");
const QByteArray kTrailer("M9\nG1S0\nM5\nG90\nG0X0Y0\nM2\nM30\n");

RotarySettings goldenRotary()
{
    RotarySettings r;
    r.mode = RotarySettings::ByDiameter;
    r.axis = QStringLiteral("X");
    r.diameter = 10;
    r.unitsPerTurn = 360;
    return r;
}

} // namespace

class TestJkGcode : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void emptyDesign_data();
    void emptyDesign();
    void passesRepeatItems();
    void layersInListOrder();
    void outputOffWritesNothing();
    void layerComments_data();
    void layerComments();
    void cancelledJobKeepsTrailer();
    void rotaryFromSettingsStore();
    void refusesUnusableRotary();
    void refusesUnwritableFile();
    void defaultFileIsCodeTxt();
    void goldenJobs_data();
    void goldenJobs();
    void randomDesignsAreGrblValid();

private:
    QString jobPath(const QString &name) const { return m_dir.filePath(name); }
    QTemporaryDir m_dir;
};

void TestJkGcode::init()
{
    resetProgramState();
    set_setting(QLatin1String(kRotaryModeKey), QStringLiteral("0"));
}

void TestJkGcode::emptyDesign_data()
{
    QTest::addColumn<QString>("preamble");
    QTest::newRow("no preamble") << QString();
    QTest::newRow("preamble") << QStringLiteral("G21\n");
}

void TestJkGcode::emptyDesign()
{
    QFETCH(QString, preamble);
    programState().preamble = preamble;
    JobDesign design;
    Jk_gcode generator;
    generator.setLayerList(&design.layers);
    QSignalSpy finished(&generator, &Jk_gcode::zhuan_huan_wan_cheng);
    QVERIFY(generator.kai_shi_zhuan_huan(design.items(), jobPath("empty.nc")));
    QCOMPARE(finished.count(), 1);
    QCOMPARE(readFileBytes(jobPath("empty.nc")), kHeader + preamble.toLatin1() + kTrailer);
    QVERIFY(programState().preamble.isEmpty());
    QVERIFY(generator.lastError().isEmpty());
}

void TestJkGcode::passesRepeatItems()
{
    JobDesign design;
    design.addLayer(0, false)->cishu = 3;
    design.addSegment({0, 0}, {20, 0}, 0);
    design.addSegment({0, -5}, {0, -10}, 0);
    Jk_gcode generator;
    generator.setLayerList(&design.layers);
    QVERIFY(generator.kai_shi_zhuan_huan(design.items(), jobPath("passes.nc")));
    // Each path is its own piece, so each starts with all its words again.
    const QByteArray once("G0X0.00Y0.00S800.00F5000.00\nG1X20.00\n"
                          "G0X0.00Y5.00S800.00F5000.00\nG1Y10.00\n");
    QCOMPARE(readFileBytes(jobPath("passes.nc")),
             kHeader + ";L0\n" + once + once + once + kTrailer);
}

void TestJkGcode::layersInListOrder()
{
    JobDesign design;
    design.addLayer(5, false)->gonglv = 10;
    design.addLayer(1, false)->gonglv = 20;
    design.addLayer(1, true); // a bitmap layer with the same number: no vector items
    design.addSegment({1, 0}, {2, 0}, 1);
    design.addSegment({3, 0}, {4, 0}, 5);
    design.addSegment({1, 0}, {2, 0}, 7); // no layer record: not written
    Jk_gcode generator;
    generator.setLayerList(&design.layers);
    QVERIFY(generator.kai_shi_zhuan_huan(design.items(), jobPath("order.nc")));
    QCOMPARE(readFileBytes(jobPath("order.nc")),
             kHeader + ";L5\nG0X3.00Y0.00S100.00F5000.00\nG1X4.00\n"
                 + ";L1\nG0X1.00Y0.00S200.00F5000.00\nG1X2.00\n;L1\n" + kTrailer);
}

void TestJkGcode::outputOffWritesNothing()
{
    JobDesign design;
    design.addLayer(0, false)->shuchu = false;
    design.addSegment({1, 0}, {2, 0}, 0);
    Jk_gcode generator;
    generator.setLayerList(&design.layers);
    QVERIFY(generator.kai_shi_zhuan_huan(design.items(), jobPath("off.nc")));
    QCOMPARE(readFileBytes(jobPath("off.nc")), kHeader + kTrailer);
}

void TestJkGcode::layerComments_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("comment");
    QTest::newRow("default") << QStringLiteral("L0") << QByteArray(";L0\n");
    QTest::newRow("spaces kept") << QStringLiteral("cut 2") << QByteArray(";cut 2\n");
    QTest::newRow("non-ASCII and real-time characters replaced")
        << QStringLiteral("图层!?~") << QByteArray(";_____\n");
    QTest::newRow("cut to the line length")
        << QString(200, QLatin1Char('a')) << ";" + QByteArray(79, 'a') + "\n";
}

void TestJkGcode::layerComments()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, comment);
    JobDesign design;
    design.addLayer(0, false)->mingcheng = name;
    Jk_gcode generator;
    generator.setLayerList(&design.layers);
    QVERIFY(generator.kai_shi_zhuan_huan(design.items(), jobPath("comment.nc")));
    const QByteArray job = readFileBytes(jobPath("comment.nc"));
    QCOMPARE(job, kHeader + comment + kTrailer);
    QCOMPARE(grblProblem(job), QString());
}

void TestJkGcode::cancelledJobKeepsTrailer()
{
    JobDesign design;
    buildDesign(QStringLiteral("lines"), design);
    programState().cancel = true;
    Jk_gcode generator;
    generator.setLayerList(&design.layers);
    QSignalSpy finished(&generator, &Jk_gcode::zhuan_huan_wan_cheng);
    QVERIFY(generator.kai_shi_zhuan_huan(design.items(), jobPath("cancel.nc")));
    QCOMPARE(finished.count(), 1);
    QCOMPARE(readFileBytes(jobPath("cancel.nc")), kHeader + ";L0\n;L2\n" + kTrailer);
}

void TestJkGcode::rotaryFromSettingsStore()
{
    RotarySettings r;
    r.mode = RotarySettings::ByCircumference;
    r.axis = QStringLiteral("Y");
    r.circumference = 180;
    r.unitsPerTurn = 360;
    saveRotarySettings(r);
    programState().modelFlag = true;
    JobDesign design;
    design.addLayer(0, false);
    design.addSegment({10, 20}, {10, 0}, 0);
    Jk_gcode generator;
    generator.setLayerList(&design.layers);
    QVERIFY(generator.kai_shi_zhuan_huan(design.items(), jobPath("rotary.nc")));
    QCOMPARE(readFileBytes(jobPath("rotary.nc")),
             kHeader + "G91\nG0Z-7\nG0Z7\nG90\n;L0\nG0X10.00Z-40.000S800.00F5000.00\nG1Z0.000\n"
                 + kTrailer);
}

void TestJkGcode::refusesUnusableRotary()
{
    RotarySettings r;
    r.mode = RotarySettings::ByDiameter;
    r.diameter = 0;
    Jk_gcode generator;
    generator.setRotarySettings(r);
    JobDesign design;
    generator.setLayerList(&design.layers);
    QFile old(jobPath("kept.nc"));
    QVERIFY(old.open(QIODevice::WriteOnly));
    old.write("old job\n");
    old.close();
    QSignalSpy finished(&generator, &Jk_gcode::zhuan_huan_wan_cheng);
    QVERIFY(!generator.kai_shi_zhuan_huan(design.items(), jobPath("kept.nc")));
    QVERIFY(!generator.lastError().isEmpty());
    QCOMPARE(finished.count(), 0);
    QCOMPARE(readFileBytes(jobPath("kept.nc")), QByteArray("old job\n"));
}

void TestJkGcode::refusesUnwritableFile()
{
    Jk_gcode generator;
    JobDesign design;
    generator.setLayerList(&design.layers);
    QSignalSpy finished(&generator, &Jk_gcode::zhuan_huan_wan_cheng);
    QVERIFY(!generator.kai_shi_zhuan_huan(design.items(), m_dir.path())); // a folder
    QVERIFY(!generator.kai_shi_zhuan_huan(design.items(), jobPath("missing/folder/job.nc")));
    QVERIFY(!generator.lastError().isEmpty());
    QCOMPARE(finished.count(), 0);
}

void TestJkGcode::defaultFileIsCodeTxt()
{
    QCOMPARE(Jk_gcode::defaultJobPath(), config_dir() + QStringLiteral("/code.txt"));
    QFile::remove(Jk_gcode::defaultJobPath());
    JobDesign design;
    Jk_gcode generator;
    generator.setLayerList(&design.layers);
    QVERIFY(generator.kai_shi_zhuan_huan(design.items(), QString()));
    QCOMPARE(readFileBytes(Jk_gcode::defaultJobPath()), kHeader + kTrailer);
}

void TestJkGcode::goldenJobs_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : designNames())
        QTest::newRow(qPrintable(name)) << name;
}

void TestJkGcode::goldenJobs()
{
    // Set LUMITRA_UPDATE_GOLDEN=1 to rewrite the files after a deliberate change.
    QFETCH(QString, name);
    JobDesign design;
    buildDesign(name, design);
    Jk_gcode generator;
    generator.setLayerList(&design.layers);
    if (name == QLatin1String("rotary")) {
        generator.setRotarySettings(goldenRotary());
        programState().modelFlag = true;
    }
    QVERIFY(generator.kai_shi_zhuan_huan(design.items(), jobPath(name + ".nc")));
    const QByteArray job = readFileBytes(jobPath(name + ".nc"));
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
            switch (rng.bounded(3)) {
            case 0:
                p.addEllipse(c, 1 + rng.bounded(30.0), 1 + rng.bounded(30.0));
                break;
            case 1:
                p.addRect(c.x(), c.y(), rng.bounded(50.0), rng.bounded(50.0));
                break;
            default:
                p.moveTo(c);
                p.cubicTo(c + QPointF(30, 0), c + QPointF(0, -40), c + QPointF(20, 20));
                break;
            }
            Jk_tu_yuan *item = design.addPath(p, rng.bounded(3));
            item->setTransform(QTransform().rotate(rng.bounded(360.0)));
        }
        Jk_gcode generator;
        generator.setLayerList(&design.layers);
        QVERIFY(generator.kai_shi_zhuan_huan(design.items(), jobPath("random.nc")));
        const QByteArray job = readFileBytes(jobPath("random.nc"));
        QVERIFY(job.size() > 1000);
        QCOMPARE(grblProblem(job), QString());
    }
}

QTEST_MAIN(TestJkGcode)
#include "tst_jk_gcode.moc"
