// Text turned into outlines in millimetres, the settings kept with a text item,
// and re-editing a text item as one undoable step.
#include "combine.h"
#include "editing_test_support.h"
#include "program_state.h"
#include "text_outline.h"

#include <QUndoStack>
#include <QtTest>
#include <memory>

using namespace lumitra;
using editing_test::samePath;

namespace {

TextSettings sans(double size = 10)
{
    TextSettings s;
    s.family = "DejaVu Sans";
    s.sizeMm = size;
    return s;
}

QRectF boundsOf(const QString &text, const TextSettings &s)
{
    return textOutline(text, s).boundingRect();
}

} // namespace

class TestTextOutline : public QObject
{
    Q_OBJECT

private slots:
    void init() { resetProgramState(); }

    void settingsRoundTrip_data();
    void settingsRoundTrip();
    void malformedSettingsAreRefused_data();
    void malformedSettingsAreRefused();
    void outlineScalesWithTheSize_data();
    void outlineScalesWithTheSize();
    void styleChangesTheOutline();
    void letterSpacingWidensTheText();
    void lineSpacingSeparatesTheLines();
    void letterOStaysARing();
    void nothingForEmptyTextOrSize_data();
    void nothingForEmptyTextOrSize();
    void newTextItemKeepsTextAndSettings();
    void reEditIsOneUndoableStep();
};

void TestTextOutline::settingsRoundTrip_data()
{
    QTest::addColumn<QString>("family");
    QTest::addColumn<double>("size");
    QTest::addColumn<bool>("bold");
    QTest::addColumn<bool>("italic");
    QTest::addColumn<double>("letter");
    QTest::addColumn<double>("line");
    QTest::newRow("plain") << "DejaVu Sans" << 10.0 << false << false << 0.0 << 0.0;
    QTest::newRow("styled and spaced") << "DejaVu Serif" << 3.25 << true << true << 1.5 << -2.0;
    QTest::newRow("family with quotes and semicolons")
        << "My \"Odd\"; Font" << 100.0 << true << false << 0.0 << 7.0;
    QTest::newRow("default family") << "" << 0.5 << false << true << -0.25 << 0.0;
}

void TestTextOutline::settingsRoundTrip()
{
    QFETCH(QString, family);
    QFETCH(double, size);
    QFETCH(bool, bold);
    QFETCH(bool, italic);
    QFETCH(double, letter);
    QFETCH(double, line);
    const TextSettings s{family, size, bold, italic, letter, line};
    const QString stored = s.toString();
    QVERIFY(!stored.contains('\n'));
    TextSettings back;
    QVERIFY(TextSettings::fromString(stored, &back));
    QVERIFY(back == s);
}

void TestTextOutline::malformedSettingsAreRefused_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << "";
    QTest::newRow("not json") << "DejaVu Sans,10,bold";
    QTest::newRow("array") << "[1,2]";
    QTest::newRow("no size") << "{\"family\":\"A\"}";
    QTest::newRow("size as text") << "{\"family\":\"A\",\"size\":\"10\"}";
    QTest::newRow("cut off") << "{\"family\":\"A\",\"size\":10";
}

void TestTextOutline::malformedSettingsAreRefused()
{
    QFETCH(QString, text);
    TextSettings s = sans(42);
    QVERIFY(!TextSettings::fromString(text, &s));
    QCOMPARE(s.sizeMm, 42.0); // untouched
}

void TestTextOutline::outlineScalesWithTheSize_data()
{
    QTest::addColumn<double>("size");
    QTest::newRow("2 mm") << 2.0;
    QTest::newRow("10 mm") << 10.0;
    QTest::newRow("37.5 mm") << 37.5;
}

void TestTextOutline::outlineScalesWithTheSize()
{
    QFETCH(double, size);
    const QRectF unit = boundsOf("Hg", sans(1));
    const QRectF r = boundsOf("Hg", sans(size));
    QVERIFY(unit.width() > 0.5 && unit.height() > 0.5 && unit.height() < 1.5);
    QVERIFY(qAbs(r.width() - unit.width() * size) < 1e-6 * size);
    QVERIFY(qAbs(r.height() - unit.height() * size) < 1e-6 * size);
    // The first line's box starts at the origin: the capital's top sits below
    // y = 0 and the baseline is at the font's ascent.
    QVERIFY(r.top() > 0);
    QVERIFY(r.top() < 0.3 * size);
}

void TestTextOutline::styleChangesTheOutline()
{
    TextSettings bold = sans();
    bold.bold = true;
    TextSettings italic = sans();
    italic.italic = true;
    const QPainterPath plain = textOutline("Lumen", sans());
    QVERIFY(boundsOf("Lumen", bold).width() > plain.boundingRect().width());
    QVERIFY(!samePath(textOutline("Lumen", italic), plain, 1e-3));
    // A slanted "l" leans right: its top reaches further right than its foot.
    const QRectF uprightL = boundsOf("l", sans());
    const QRectF slantedL = boundsOf("l", italic);
    QVERIFY(slantedL.width() > uprightL.width());
}

void TestTextOutline::letterSpacingWidensTheText()
{
    TextSettings spaced = sans();
    spaced.letterSpacingMm = 2;
    TextSettings tight = sans();
    tight.letterSpacingMm = -0.5;
    const double plain = boundsOf("HHHH", sans()).width();
    // Three gaps between four letters.
    QVERIFY(qAbs(boundsOf("HHHH", spaced).width() - (plain + 6)) < 0.05);
    QVERIFY(qAbs(boundsOf("HHHH", tight).width() - (plain - 1.5)) < 0.05);
}

void TestTextOutline::lineSpacingSeparatesTheLines()
{
    TextSettings wide = sans();
    wide.lineSpacingMm = 4;
    const QRectF oneLine = boundsOf("H", sans());
    const QRectF twoLines = boundsOf("H\nH", sans());
    const QRectF spaced = boundsOf("H\r\nH", wide);
    QVERIFY(twoLines.height() > 2 * oneLine.height());
    QVERIFY(qAbs(spaced.height() - (twoLines.height() + 4)) < 1e-6);
    QVERIFY(qAbs(twoLines.width() - oneLine.width()) < 1e-6); // lines start at x 0
}

void TestTextOutline::letterOStaysARing()
{
    const QPainterPath o = textOutline("O", sans(20));
    QCOMPARE(o.fillRule(), Qt::OddEvenFill);
    const QRectF r = o.boundingRect();
    QVERIFY(!o.contains(r.center()));
    QVERIFY(o.contains(QPointF(r.left() + r.width() * 0.04, r.center().y())));
    const QList<QPainterPath> pieces = breakApartOutline(o);
    QCOMPARE(pieces.size(), 1);
    QCOMPARE(splitSubpaths(pieces.first()).size(), 2);
    // "OO" breaks into two rings.
    QCOMPARE(breakApartOutline(textOutline("OO", sans(20))).size(), 2);
}

void TestTextOutline::nothingForEmptyTextOrSize_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("size");
    QTest::newRow("empty") << "" << 10.0;
    QTest::newRow("blanks") << "  \n\t" << 10.0;
    QTest::newRow("zero size") << "A" << 0.0;
    QTest::newRow("negative size") << "A" << -3.0;
}

void TestTextOutline::nothingForEmptyTextOrSize()
{
    QFETCH(QString, text);
    QFETCH(double, size);
    QVERIFY(textOutline(text, sans(size)).isEmpty());
    QVERIFY(!std::unique_ptr<Jk_tu_yuan>(createTextItem(text, sans(size))));
}

void TestTextOutline::newTextItemKeepsTextAndSettings()
{
    programState().width = 300;
    programState().height = 200;
    programState().currentLayer = 6;
    std::unique_ptr<Jk_tu_yuan> item(createTextItem("Ab", sans(12)));
    QVERIFY(item);
    QCOMPARE(item->wen_zi, QString("Ab"));
    TextSettings back;
    QVERIFY(TextSettings::fromString(item->zi_ti, &back));
    QVERIFY(back == sans(12));
    QVERIFY(!item->is_bitmap);
    QCOMPARE(item->layer_id, 6);
    QVERIFY(item->isSelected());
    const QRectF r = item->path.boundingRect();
    // Centred on the work area's centre (150, -100), up to single precision.
    const QPointF expected(150 - r.width() / 2, -100 - r.height() / 2);
    QVERIFY(QLineF(item->pos(), expected).length() < 1e-3);
}

void TestTextOutline::reEditIsOneUndoableStep()
{
    std::unique_ptr<Jk_tu_yuan> item(createTextItem("old", sans(10)));
    item->setPos(20, -30);
    Jk_tu_yuan::rotateItems({item.get()}, 10, QPointF(25, -25));
    const QPainterPath oldPath = item->path;
    const QPointF pos = item->pos();
    TextSettings bigger = sans(15);
    bigger.bold = true;
    QUndoStack stack;
    programState().unsaved = false;
    stack.push(makeReplaceTextCommand(item.get(), "new text", bigger));
    QCOMPARE(stack.count(), 1);
    QVERIFY(programState().unsaved);
    QCOMPARE(item->wen_zi, QString("new text"));
    QCOMPARE(item->zi_ti, bigger.toString());
    QVERIFY(samePath(item->path, textOutline("new text", bigger)));
    QCOMPARE(item->pos(), pos);
    QCOMPARE(item->jiao_du, 10.0);
    stack.undo();
    QCOMPARE(item->wen_zi, QString("old"));
    QCOMPARE(item->zi_ti, sans(10).toString());
    QVERIFY(samePath(item->path, oldPath));
    stack.redo();
    QCOMPARE(item->wen_zi, QString("new text"));
    QVERIFY(!std::unique_ptr<QUndoCommand>(makeReplaceTextCommand(item.get(), " ", bigger)));
    stack.clear();
}

QTEST_MAIN(TestTextOutline)
#include "tst_text_outline.moc"
