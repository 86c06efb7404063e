// The text, move and array dialogs and the alignment buttons: what they show
// and what they hand back.
#include "align_panel.h"
#include "array_dialog.h"
#include "jk_wen_zi2.h"
#include "message_box.h"
#include "move_dialog.h"
#include "program_state.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabWidget>
#include <QToolButton>
#include <QtTest>

using namespace lumitra;

Q_DECLARE_METATYPE(lumitra::Alignment)

namespace {
template<typename T> T *child(QObject *parent, const char *name)
{
    T *w = parent->findChild<T *>(QString::fromLatin1(name));
    if (!w)
        qFatal("no child %s", name);
    return w;
}
} // namespace

class TestEditingDialogs : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // Signal spies record only argument types known at run time.
        qRegisterMetaType<Alignment>();
        qRegisterMetaType<Qt::Orientation>();
    }
    void init();
    void cleanup() { set_message_handler({}); }

    void textDialogRoundTrip();
    void textDialogRefusesEmptyText_data();
    void textDialogRefusesEmptyText();
    void moveDialogShowsMachineCoordinates();
    void moveDialogLockRatio_data();
    void moveDialogLockRatio();
    void arrayDialogValues();
    void alignButtons_data();
    void alignButtons();

private:
    QStringList m_notices;
};

void TestEditingDialogs::init()
{
    resetProgramState();
    m_notices.clear();
    set_message_handler([this](const MessageRequest &r) {
        m_notices << r.message;
        return 1;
    });
}

void TestEditingDialogs::textDialogRoundTrip()
{
    Jk_wen_zi2 dialog;
    TextSettings s;
    s.family = "DejaVu Serif";
    s.sizeMm = 12.5;
    s.bold = true;
    s.italic = false;
    s.letterSpacingMm = 0.75;
    s.lineSpacingMm = -1.5;
    dialog.setText("line one\nline two");
    dialog.setSettings(s);
    QCOMPARE(dialog.text(), QString("line one\nline two"));
    QVERIFY(dialog.settings() == s);
    QSignalSpy accepted(&dialog, &QDialog::accepted);
    child<QPushButton>(&dialog, "confirm_Btn")->click();
    QCOMPARE(accepted.count(), 1);
    QVERIFY(m_notices.isEmpty());
}

void TestEditingDialogs::textDialogRefusesEmptyText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("refused");
    QTest::newRow("empty") << "" << true;
    QTest::newRow("blanks") << " \n  " << true;
    QTest::newRow("a letter") << "A" << false;
}

void TestEditingDialogs::textDialogRefusesEmptyText()
{
    QFETCH(QString, text);
    QFETCH(bool, refused);
    Jk_wen_zi2 dialog;
    child<QPlainTextEdit>(&dialog, "wenzi_Edit")->setPlainText(text);
    dialog.open();
    dialog.accept();
    QCOMPARE(dialog.isVisible(), refused);
    QCOMPARE(dialog.result(), refused ? int(QDialog::Rejected) : int(QDialog::Accepted));
    QCOMPARE(m_notices, refused ? QStringList{"请输入文字"} : QStringList{});
}

void TestEditingDialogs::moveDialogShowsMachineCoordinates()
{
    MoveDialog dialog;
    dialog.setSelection(QRectF(10, -60, 40, 20), 30);
    QCOMPARE(child<QDoubleSpinBox>(&dialog, "x_Box")->value(), 10.0);
    QCOMPARE(child<QDoubleSpinBox>(&dialog, "y_Box")->value(), 40.0);
    QCOMPARE(child<QDoubleSpinBox>(&dialog, "kuan_Box")->value(), 40.0);
    QCOMPARE(child<QDoubleSpinBox>(&dialog, "gao_Box")->value(), 20.0);
    Placement p = dialog.placement();
    QCOMPARE(p.machineRect, QRectF(10, 40, 40, 20));
    QCOMPARE(p.rotation, 0.0);
    QVERIFY(!p.resize);
    child<QDoubleSpinBox>(&dialog, "x_Box")->setValue(-5);
    child<QDoubleSpinBox>(&dialog, "jiaodu_Box")->setValue(75);
    p = dialog.placement();
    QCOMPARE(p.machineRect.topLeft(), QPointF(-5, 40));
    QCOMPARE(p.rotation, 45.0); // relative to the 30 shown
    QVERIFY(!p.resize);
}

void TestEditingDialogs::moveDialogLockRatio_data()
{
    QTest::addColumn<bool>("locked");
    QTest::addColumn<QString>("edited");
    QTest::addColumn<double>("value");
    QTest::addColumn<QSizeF>("size");
    QTest::newRow("locked, width") << true << "kuan_Box" << 80.0 << QSizeF(80, 40);
    QTest::newRow("locked, height") << true << "gao_Box" << 5.0 << QSizeF(10, 5);
    QTest::newRow("free, width") << false << "kuan_Box" << 80.0 << QSizeF(80, 20);
    QTest::newRow("free, height") << false << "gao_Box" << 5.0 << QSizeF(40, 5);
}

void TestEditingDialogs::moveDialogLockRatio()
{
    QFETCH(bool, locked);
    QFETCH(QString, edited);
    QFETCH(double, value);
    QFETCH(QSizeF, size);
    MoveDialog dialog;
    dialog.setSelection(QRectF(0, -20, 40, 20), 0);
    child<QCheckBox>(&dialog, "suoding_Box")->setChecked(locked);
    child<QDoubleSpinBox>(&dialog, edited.toLatin1().constData())->setValue(value);
    const Placement p = dialog.placement();
    QCOMPARE(p.machineRect.size(), size);
    QVERIFY(p.resize);
}

void TestEditingDialogs::arrayDialogValues()
{
    ArrayDialog dialog;
    dialog.setCentre(QPointF(200, -150));
    QVERIFY(!dialog.isCircular());
    child<QSpinBox>(&dialog, "hang_Box")->setValue(3);
    child<QSpinBox>(&dialog, "lie_Box")->setValue(4);
    child<QDoubleSpinBox>(&dialog, "hengjianju_Box")->setValue(2.5);
    child<QDoubleSpinBox>(&dialog, "zongjianju_Box")->setValue(-1);
    const RectangularArray r = dialog.rectangular();
    QCOMPARE(r.rows, 3);
    QCOMPARE(r.columns, 4);
    QCOMPARE(r.gapX, 2.5);
    QCOMPARE(r.gapY, -1.0);
    // The centre is shown in machine coordinates and handed back in scene ones.
    QCOMPARE(child<QDoubleSpinBox>(&dialog, "zhongxinY_Box")->value(), 150.0);
    auto *tabs = child<QTabWidget>(&dialog, "leixing_Tab");
    tabs->setCurrentIndex(1);
    QVERIFY(dialog.isCircular());
    child<QSpinBox>(&dialog, "shuliang_Box")->setValue(8);
    child<QDoubleSpinBox>(&dialog, "zhongxinX_Box")->setValue(50);
    child<QCheckBox>(&dialog, "xuanzhuan_Box")->setChecked(false);
    const CircularArray c = dialog.circular();
    QCOMPARE(c.count, 8);
    QCOMPARE(c.centre, QPointF(50, -150));
    QCOMPARE(c.sweep, 360.0);
    QVERIFY(!c.rotateCopies);
}

void TestEditingDialogs::alignButtons_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("alignment"); // -1 horizontal spacing, -2 vertical
    QTest::newRow("left") << "zuo_Btn" << int(Alignment::Left);
    QTest::newRow("horizontal centre") << "shuipingjuzhong_Btn" << int(Alignment::HorizontalCentre);
    QTest::newRow("right") << "you_Btn" << int(Alignment::Right);
    QTest::newRow("top") << "shang_Btn" << int(Alignment::Top);
    QTest::newRow("vertical centre") << "chuizhijuzhong_Btn" << int(Alignment::VerticalCentre);
    QTest::newRow("bottom") << "xia_Btn" << int(Alignment::Bottom);
    QTest::newRow("work area") << "gongzuoqu_Btn" << int(Alignment::WorkAreaCentre);
    QTest::newRow("spread across") << "hengxiangfenbu_Btn" << -1;
    QTest::newRow("spread down") << "zongxiangfenbu_Btn" << -2;
}

void TestEditingDialogs::alignButtons()
{
    QFETCH(QString, button);
    QFETCH(int, alignment);
    AlignPanel panel;
    QSignalSpy aligned(&panel, &AlignPanel::alignRequested);
    QSignalSpy spread(&panel, &AlignPanel::distributeRequested);
    child<QToolButton>(&panel, button.toLatin1().constData())->click();
    if (alignment >= 0) {
        QCOMPARE(aligned.count(), 1);
        QCOMPARE(int(aligned.first().first().value<Alignment>()), alignment);
        QCOMPARE(spread.count(), 0);
    } else {
        QCOMPARE(spread.count(), 1);
        QCOMPARE(spread.first().first().value<Qt::Orientation>(),
                 alignment == -1 ? Qt::Horizontal : Qt::Vertical);
        QCOMPARE(aligned.count(), 0);
    }
}

QTEST_MAIN(TestEditingDialogs)
#include "tst_editing_dialogs.moc"
