// Headless export: design files of every kind through the generator, the
// process options, and refusals that leave the output untouched.
#include "gcode_test_support.h"
#include "grbl_job_check.h"
#include "jk_tu_yuan.h"
#include "job_export.h"
#include "program_state.h"
#include "project_file.h"
#include "settings_store.h"

#include <QFile>
#include <QImage>
#include <QPainterPath>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

using namespace lumitra;

using Options = QMap<QString, QString>;
Q_DECLARE_METATYPE(Options)

namespace {

const QByteArray kSvg("<svg xmlns='http://www.w3.org/2000/svg' width='60mm' height='40mm'"
                      " viewBox='0 0 60 40'><rect x='5' y='5' width='30' height='20'/>"
                      "<circle cx='45' cy='20' r='8'/></svg>");
const QByteArray kEmptySvg("<svg xmlns='http://www.w3.org/2000/svg' width='10mm' height='10mm'/>");
const QByteArray kDxf("0\nSECTION\n2\nENTITIES\n0\nLINE\n8\n0\n10\n10\n20\n10\n30\n0\n11\n60\n21\n"
                      "30\n31\n0\n0\nENDSEC\n0\nEOF\n");

void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile f(path);
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write(bytes);
}

// Distinct values of one word letter in a job.
QSet<QString> wordValues(const QByteArray &job, QChar letter)
{
    QSet<QString> out;
    const QRegularExpression word(QString(letter) + QStringLiteral("(-?[\\d.]+)"));
    auto it = word.globalMatch(QString::fromLatin1(job));
    while (it.hasNext())
        out.insert(it.next().captured(1));
    return out;
}

} // namespace

class TestJobExport : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void exportsEveryKind_data();
    void exportsEveryKind();
    void projectKeepsItsLayers();
    void refusals_data();
    void refusals();

private:
    QString path(const QString &name) const { return m_dir.filePath(name); }
    QTemporaryDir m_dir;
};

void TestJobExport::initTestCase()
{
    writeFile(path("drawing.svg"), kSvg);
    writeFile(path("empty.svg"), kEmptySvg);
    writeFile(path("line.dxf"), kDxf);
    writeFile(path("notes.txt"), "hello");
    writeFile(path("broken.lumitra"), QByteArray(300, '\x7f'));
    QImage picture(40, 30, QImage::Format_ARGB32);
    for (int y = 0; y < 30; ++y) {
        for (int x = 0; x < 40; ++x)
            picture.setPixel(x, y, qRgb(x * 6, x * 6, x * 6));
    }
    QVERIFY(picture.save(path("ramp.png")));
    QVERIFY(picture.save(path("ramp.bmp")));
    QVERIFY(picture.save(path("ramp.JPG"), "JPG"));
}

void TestJobExport::init()
{
    resetProgramState();
    set_setting(QStringLiteral("GunZhou/GunZhouKaiGuan"), QStringLiteral("0"));
}

void TestJobExport::exportsEveryKind_data()
{
    QTest::addColumn<QString>("input");
    QTest::addColumn<Options>("options");
    QTest::addColumn<QString>("power"); // every S word that burns
    QTest::addColumn<QString>("feed");
    QTest::addColumn<int>("passes");  // times the first move appears
    QTest::addColumn<bool>("coasts"); // must have S0.00 moves (overscan, raster gaps)

    const Options fill{{"mode", "fill"},  {"spacing", "0.5"}, {"angle", "45"},  {"power", "30"},
                       {"speed", "1200"}, {"passes", "2"},    {"overscan", "1"}};
    QTest::newRow("svg lines") << "drawing.svg" << Options() << "800.00"
                               << "5000.00" << 1 << false;
    QTest::newRow("svg fill") << "drawing.svg" << fill << "300.00"
                              << "1200.00" << 2 << true;
    QTest::newRow("svg cross fill") << "drawing.svg" << Options{{"mode", "crossfill"}} << "800.00"
                                    << "5000.00" << 1 << false;
    QTest::newRow("dxf") << "line.dxf" << Options{{"speed", "300"}} << "800.00"
                         << "300.00" << 1 << false;
    // Bitmaps are written in raster words: no trailing zeros, S whole.
    QTest::newRow("png threshold") << "ramp.png" << Options{{"spacing", "0.254"}} << "800"
                                   << "5000" << 1 << false;
    QTest::newRow("bmp dither") << "ramp.bmp" << Options{{"mode", "dither"}, {"spacing", "0.3"}}
                                << "800"
                                << "5000" << 1 << true;
    QTest::newRow("jpg negative") << "ramp.JPG" << Options{{"mode", "negative"}, {"power", "55"}}
                                  << "550"
                                  << "5000" << 1 << false;
}

void TestJobExport::exportsEveryKind()
{
    QFETCH(QString, input);
    QFETCH(Options, options);
    QFETCH(QString, power);
    QFETCH(QString, feed);
    QFETCH(int, passes);
    QFETCH(bool, coasts);

    const QString output = path(input + ".nc");
    QString error;
    QVERIFY2(exportJob({path(input), output, options}, &error), qPrintable(error));
    QVERIFY(error.isEmpty());
    const QByteArray job = readFileBytes(output);
    QCOMPARE(grblProblem(job), QString());
    QVERIFY(job.startsWith("M4\nM8\n;L0\n"));
    QVERIFY(job.endsWith("M9\nG1S0\nM5\nG90\nG0X0Y0\nM2\nM30\n"));

    QSet<QString> powers = wordValues(job, QLatin1Char('S'));
    // Vectors coast at S0.00; rasters at S0 (the trailer's G1S0 is no move),
    // and cross the gaps of a one-power row as rapids without a power word.
    if (coasts)
        QVERIFY(powers.contains(QStringLiteral("0.00"))
                || QRegularExpression(QStringLiteral("X[-0-9.]+S0\\n|\\nG0X[-0-9.]+\\n"))
                       .match(QString::fromLatin1(job))
                       .hasMatch());
    powers.remove(QStringLiteral("0.00")); // the trailer's G1S0 reads "0"
    powers.remove(QStringLiteral("0"));
    QCOMPARE(powers, QSet<QString>{power});
    QCOMPARE(wordValues(job, QLatin1Char('F')), QSet<QString>{feed});
    const QByteArray firstMove = job.mid(10, job.indexOf('\n', 10) - 10);
    QCOMPARE(job.count(firstMove), passes);
}

void TestJobExport::projectKeepsItsLayers()
{
    TuCeng vector(3, false);
    vector.gonglv = 42;
    vector.sudu = 777;
    vector.moshi = FillMode;
    vector.jianju = 1;
    vector.mingcheng = QStringLiteral("cut");
    QPainterPath square;
    square.addRect(0, 0, 10, 10);
    Jk_tu_yuan item(square, 1);
    item.layer_id = 3;
    item.setPos(50, -60);
    Jk_tu_yuan other(square, 1); // on layer 7, which has no saved record
    other.layer_id = 7;
    ProjectPageOut page;
    page.name = QStringLiteral("page 1");
    page.layers = {&vector};
    page.items = {&item, &other};
    QVERIFY(saveProjectFile(path("design.lumitra"), {page}).ok);

    QString error;
    QVERIFY2(exportJob({path("design.lumitra"), path("design.nc"), {}}, &error), qPrintable(error));
    const QByteArray job = readFileBytes(path("design.nc"));
    QCOMPARE(grblProblem(job), QString());
    const int saved = job.indexOf(";cut\n");
    const int fresh = job.indexOf(";L7\n");
    QVERIFY(saved > 0 && fresh > saved);
    const QByteArray savedPart = job.mid(saved, fresh - saved);
    QVERIFY(savedPart.contains("S420.00F777.00"));
    // A 10 mm square hatched at 1 mm: ten travels, ten burns, no outline.
    QCOMPARE(savedPart.count("G0"), 10);
    QCOMPARE(savedPart.count("G1"), 10);
    QVERIFY(job.mid(fresh).contains("S800.00F5000.00"));

    // Options override the saved parameters.
    QVERIFY(exportJob({path("design.lumitra"), path("design2.nc"), {{"power", "10"}}}, &error));
    const QByteArray overridden = readFileBytes(path("design2.nc"));
    QVERIFY(overridden.contains("S100.00F777.00"));
    QVERIFY(!overridden.contains("S420.00"));
}

void TestJobExport::refusals_data()
{
    QTest::addColumn<QString>("input");
    QTest::addColumn<QString>("output");
    QTest::addColumn<Options>("options");

    const QString out = QStringLiteral("out.nc");
    QTest::newRow("missing input") << "nothing.svg" << out << Options();
    QTest::newRow("unsupported input") << "notes.txt" << out << Options();
    QTest::newRow("no shapes") << "empty.svg" << out << Options();
    QTest::newRow("damaged project") << "broken.lumitra" << out << Options();
    QTest::newRow("power above 100") << "drawing.svg" << out << Options{{"power", "101"}};
    QTest::newRow("speed not a number") << "drawing.svg" << out << Options{{"speed", "fast"}};
    QTest::newRow("passes zero") << "drawing.svg" << out << Options{{"passes", "0"}};
    QTest::newRow("angle with decimals") << "drawing.svg" << out << Options{{"angle", "12.5"}};
    QTest::newRow("spacing too fine") << "drawing.svg" << out << Options{{"spacing", "0.001"}};
    QTest::newRow("overscan negative") << "drawing.svg" << out << Options{{"overscan", "-1"}};
    QTest::newRow("bitmap mode on a drawing")
        << "drawing.svg" << out << Options{{"mode", "dither"}};
    QTest::newRow("vector mode on a bitmap") << "ramp.png" << out << Options{{"mode", "fill"}};
    QTest::newRow("unknown mode") << "ramp.png" << out << Options{{"mode", "sketch"}};
    QTest::newRow("unknown option") << "ramp.png" << out << Options{{"colour", "red"}};
    QTest::newRow("no output") << "drawing.svg" << QString() << Options();
    QTest::newRow("output folder missing") << "drawing.svg"
                                           << "no/such/folder/out.nc" << Options();
}

void TestJobExport::refusals()
{
    QFETCH(QString, input);
    QFETCH(QString, output);
    QFETCH(Options, options);
    const QString target = output.isEmpty() ? QString() : path(output);
    QFile::remove(path("out.nc"));
    QString error;
    QVERIFY(!exportJob({path(input), target, options}, &error));
    QVERIFY(!error.isEmpty());
    QVERIFY2(!error.contains(QLatin1Char('\n')), qPrintable(error));
    QVERIFY(!QFile::exists(path("out.nc")));
    QVERIFY(!QFile::exists(path("no")));
}

QTEST_MAIN(TestJobExport)
#include "tst_job_export.moc"
