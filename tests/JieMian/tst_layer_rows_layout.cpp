#include "layer_rows_panel.h"
#include "tu_ceng.h"
#include "tu_ceng_item2.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyleOptionComboBox>
#include <QTranslator>
#include <QtTest>

namespace {

// Seven layers, vector and bitmap mixed, so both mode sets are on show.
QList<TuCeng *> sevenLayers()
{
    QList<TuCeng *> layers;
    for (int n = 0; n < 7; ++n) {
        auto *l = new TuCeng(n * 4, n % 2 == 1);
        l->moshi = n % 3;
        layers.append(l);
    }
    layers[2]->mingcheng = QStringLiteral("Engrave logo");
    return layers;
}

// Where a widget lies in another's coordinates.
QRect rectIn(const QWidget *w, const QWidget *ancestor)
{
    return QRect(w->mapTo(ancestor, QPoint(0, 0)), w->size());
}

// The room a combo box gives the text of its current item.
int comboTextRoom(const QComboBox *box)
{
    QStyleOptionComboBox opt;
    opt.initFrom(box);
    opt.editable = box->isEditable();
    return box->style()
        ->subControlRect(QStyle::CC_ComboBox, &opt, QStyle::SC_ComboBoxEditField, box)
        .width();
}

} // namespace

// The layer rows in every language the program ships: six rows fit the size
// the panel asks for, and no mode label, name or header text is cut.
class TestLayerRowsLayout : public QObject
{
    Q_OBJECT

private slots:
    void sixRowsUncutInEveryLanguage_data()
    {
        QTest::addColumn<QString>("language");
        QTest::newRow("source") << QString();
        for (const char *code : {"zw", "yw", "hw", "rw", "dw", "ydlw", "fw", "xw", "pty", "ew"})
            QTest::newRow(code) << QString::fromLatin1(code);
    }
    void sixRowsUncutInEveryLanguage()
    {
        QFETCH(QString, language);
        QTranslator translator;
        if (!language.isEmpty()) {
            QVERIFY(
                translator.load(QStringLiteral(":/language/") + language + QStringLiteral("2.qm")));
            if (translator.isEmpty())
                QSKIP("this language has no translated texts yet");
            QVERIFY(QCoreApplication::installTranslator(&translator));
        }
        if (language == QLatin1String("yw")) // the labels the user saw cut
            QCOMPARE(modeLabelsForRow(true).at(DitherMode), QStringLiteral("Dither"));

        const QList<TuCeng *> layers = sevenLayers();
        LayerRowsPanel panel;
        panel.setRows(layers);
        QVERIFY(panel.minimumSizeHint().height() >= 6 * panel.rows().first()->sizeHint().height());
        panel.resize(panel.minimumSizeHint());
        panel.show();
        QVERIFY(QTest::qWaitForWindowExposed(&panel));
        QCoreApplication::processEvents(); // the deferred layout of the rows

        QScrollArea *area = panel.scrollArea();
        const QRect view = area->viewport()->rect();
        const QList<TuCengItem2 *> rows = panel.rows();
        QCOMPARE(rows.size(), 7);
        for (int i = 0; i < 6; ++i)
            QVERIFY2(view.contains(rectIn(rows.at(i), area->viewport())),
                     qPrintable(QString::number(i)));
        QVERIFY(!view.contains(rectIn(rows.at(6), area->viewport())));
        QVERIFY(area->verticalScrollBar()->maximum() > 0); // the seventh is a scroll away
        QVERIFY(!area->horizontalScrollBar()->isVisible());

        const QWidget *header = panel.findChild<QWidget *>(QStringLiteral("header"));
        const QList<QLabel *> headerLabels = header->findChildren<QLabel *>();
        for (const QLabel *label : headerLabels)
            QVERIFY2(label->contentsRect().width()
                         >= label->fontMetrics().horizontalAdvance(label->text()),
                     qPrintable(label->text()));

        for (TuCengItem2 *row : rows) {
            auto *mode = row->findChild<QComboBox *>(QStringLiteral("moshi"));
            const int room = comboTextRoom(mode);
            for (int i = 0; i < mode->count(); ++i)
                QVERIFY2(room >= mode->fontMetrics().horizontalAdvance(mode->itemText(i)),
                         qPrintable(mode->itemText(i)));
            auto *name = row->findChild<QLabel *>(QStringLiteral("mingcheng"));
            QCOMPARE(name->text(), row->layer()->mingcheng);
            QVERIFY(name->contentsRect().width()
                    >= name->fontMetrics().horizontalAdvance(row->layer()->mingcheng));
            const QAbstractButton *remove = row->deleteButton();
            QVERIFY(remove->width() > remove->fontMetrics().horizontalAdvance(remove->text()));
            // Header and rows keep their columns aligned.
            for (int c = 0; c < TuCengItem2::OrderColumn; ++c) {
                const QWidget *cell = row->columnWidget(TuCengItem2::Column(c));
                const QRect inRow = rectIn(cell, row);
                const QLabel *title = headerLabels.at(c);
                QCOMPARE(rectIn(title, header).x(), inRow.x());
                QCOMPARE(title->width(), inRow.width());
            }
        }
        qDeleteAll(layers);
    }

    // A name longer than the column may grow is elided and shown whole in the tooltip.
    void overlongNameIsElided()
    {
        QList<TuCeng *> layers = sevenLayers();
        const QString longName(200, QLatin1Char('W'));
        layers[0]->mingcheng = longName;
        LayerRowsPanel panel;
        panel.setRows(layers);
        auto *name = panel.rows().first()->findChild<QLabel *>(QStringLiteral("mingcheng"));
        QVERIFY(name->text() != longName);
        QVERIFY(name->text().endsWith(QChar(0x2026)));
        QCOMPARE(name->toolTip(), longName);
        QVERIFY(name->width() < name->fontMetrics().horizontalAdvance(longName));
        auto *other = panel.rows().at(1)->findChild<QLabel *>(QStringLiteral("mingcheng"));
        QCOMPARE(other->toolTip(), QString());
        qDeleteAll(layers);
    }
};

QTEST_MAIN(TestLayerRowsLayout)
#include "tst_layer_rows_layout.moc"
