#include "wheel_guard.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>
#include <QVBoxLayout>
#include <QtTest/qtestspontaneevent.h>
#include <QtTest>

namespace {

enum class Kind { Spin, DoubleSpin, Combo };

QWidget *makeBox(Kind kind, QWidget *parent)
{
    switch (kind) {
    case Kind::Spin: {
        auto *b = new QSpinBox(parent);
        b->setRange(0, 100);
        b->setValue(80);
        return b;
    }
    case Kind::DoubleSpin: {
        auto *b = new QDoubleSpinBox(parent);
        b->setRange(0, 100);
        b->setValue(0.5);
        return b;
    }
    case Kind::Combo: {
        auto *b = new QComboBox(parent);
        b->addItems({QStringLiteral("line"), QStringLiteral("fill"), QStringLiteral("cross")});
        return b;
    }
    }
    return nullptr;
}

QString valueOf(const QWidget *box)
{
    if (auto *s = qobject_cast<const QAbstractSpinBox *>(box))
        return s->text();
    return qobject_cast<const QComboBox *>(box)->currentText();
}

// A wheel notch downwards over the middle of `w`. Marked spontaneous and handed
// to notify() (sendEvent would clear the mark, QTest does the same for keys),
// the event takes the road a real one takes: the focus policy is consulted
// first, and an ignored event travels on to the parents.
bool wheel(QWidget *w, bool spontaneous)
{
    const QPoint local = w->rect().center();
    QWheelEvent event(local, w->mapToGlobal(local), QPoint(), QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    if (spontaneous) {
        QSpontaneKeyEvent::setSpontaneous(&event);
        qApp->notify(w, &event);
    } else {
        QApplication::sendEvent(w, &event);
    }
    return event.isAccepted();
}

bool focusOn(QWidget *w)
{
    QApplication::setActiveWindow(w->window());
    w->setFocus(Qt::OtherFocusReason);
    return QTest::qWaitFor([w] { return w->hasFocus(); });
}

} // namespace

Q_DECLARE_METATYPE(Kind)

class TestWheelGuard : public QObject
{
    Q_OBJECT

private slots:
    // Boxes made before and after the guard, directly under the root or
    // deeper: unfocused they let the wheel pass, focused they take it.
    void unfocusedBoxIgnoresWheel_data()
    {
        QTest::addColumn<Kind>("kind");
        QTest::addColumn<bool>("createdLater");
        QTest::addColumn<bool>("nested");
        for (bool later : {false, true}) {
            for (bool nested : {false, true}) {
                const QByteArray tag =
                    QByteArray(later ? "later" : "before") + (nested ? ", nested" : ", direct");
                QTest::newRow("spin " + tag) << Kind::Spin << later << nested;
                QTest::newRow("double " + tag) << Kind::DoubleSpin << later << nested;
                QTest::newRow("combo " + tag) << Kind::Combo << later << nested;
            }
        }
    }
    void unfocusedBoxIgnoresWheel()
    {
        QFETCH(Kind, kind);
        QFETCH(bool, createdLater);
        QFETCH(bool, nested);
        QWidget window;
        auto *layout = new QVBoxLayout(&window);
        auto *root = new QWidget(&window);
        layout->addWidget(root);
        auto *other = new QSpinBox(&window); // something else to hold the focus
        layout->addWidget(other);
        auto *rootLayout = new QVBoxLayout(root);
        QWidget *box = nullptr;
        const auto addBox = [&] {
            QWidget *parent = root;
            if (nested) {
                parent = new QWidget(root);
                new QVBoxLayout(parent);
                rootLayout->addWidget(parent);
            }
            box = makeBox(kind, parent);
            parent->layout()->addWidget(box);
        };
        if (!createdLater)
            addBox();
        lumitra::guardWheel(root);
        if (createdLater)
            addBox();
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QCOMPARE(box->focusPolicy(), Qt::StrongFocus);

        const QString before = valueOf(box);
        QVERIFY(focusOn(other));
        QVERIFY(!wheel(box, false));
        QCOMPARE(valueOf(box), before);
        QVERIFY(!wheel(box, true)); // a real wheel does not hand it the focus either
        QVERIFY(!box->hasFocus());
        QCOMPARE(valueOf(box), before);

        QVERIFY(focusOn(box));
        QVERIFY(wheel(box, false));
        QVERIFY(valueOf(box) != before);
    }

    // The wheel over an unfocused box scrolls the area around it.
    void scrollAreaScrollsOverABox()
    {
        QScrollArea area;
        auto *content = new QWidget;
        auto *layout = new QVBoxLayout(content);
        QSpinBox *spin = nullptr;
        for (int i = 0; i < 30; ++i) {
            auto *b = new QSpinBox;
            b->setValue(50);
            layout->addWidget(b);
            if (i == 1)
                spin = b;
        }
        area.setWidget(content);
        area.resize(200, 150);
        lumitra::guardWheel(&area);
        area.show();
        QVERIFY(QTest::qWaitForWindowExposed(&area));
        QScrollBar *bar = area.verticalScrollBar();
        QVERIFY(bar->maximum() > 0);
        QCOMPARE(bar->value(), 0);
        wheel(spin, true);
        QCOMPARE(spin->value(), 50);
        QVERIFY(bar->value() > 0);
    }

    // Boxes outside every guarded root keep Qt's behaviour.
    void boxOutsideTheRootIsLeftAlone()
    {
        QWidget window;
        auto *layout = new QVBoxLayout(&window);
        auto *root = new QWidget(&window);
        layout->addWidget(root);
        auto *outside = new QSpinBox(&window);
        outside->setValue(10);
        layout->addWidget(outside);
        lumitra::guardWheel(root);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QCOMPARE(outside->focusPolicy(), Qt::WheelFocus);
        QVERIFY(wheel(outside, false));
        QCOMPARE(outside->value(), 9);
    }
};

QTEST_MAIN(TestWheelGuard)
#include "tst_wheel_guard.moc"
