#include "design_pages.h"
#include "jk_chang_jing.h"
#include "jk_gcode.h"
#include "jk_tu_yuan.h"
#include "layer_list.h"
#include "layer_palette_bar.h"
#include "layer_panel_controller.h"
#include "layer_rows_panel.h"
#include "message_box.h"
#include "parameter_library.h"
#include "production_controller.h"
#include "program_state.h"
#include "settings_store.h"
#include "test_card.h"
#include "test_card_dialog.h"
#include "tu_ceng_zhi.h"

#include "gcode_test_support.h"
#include "grbl_job_check.h"
#include <QAction>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QUndoStack>
#include <QtTest>

using namespace lumitra;

namespace {

// What one layer of a job burned: its comment and every S and F value in it.
struct JobLayer
{
    QString name;
    QSet<double> s;
    QSet<double> f;
    int burns = 0; // G1 lines
};

QList<JobLayer> jobLayers(const QByteArray &job)
{
    static const QRegularExpression word(QStringLiteral("([SF])(-?\\d+(?:\\.\\d+)?)"));
    QList<JobLayer> layers;
    for (const QByteArray &raw : job.split('\n')) {
        const QString line = QString::fromLatin1(raw);
        if (line.startsWith(';')) {
            layers.append({line.mid(1), {}, {}, 0});
            continue;
        }
        if (line.startsWith(QLatin1String("M9")))
            break; // the trailer
        if (layers.isEmpty())
            continue;
        if (line.startsWith(QLatin1String("G1")))
            ++layers.last().burns;
        auto it = word.globalMatch(line);
        while (it.hasNext()) {
            const auto m = it.next();
            (m.captured(1) == "S" ? layers.last().s : layers.last().f)
                .insert(m.captured(2).toDouble());
        }
    }
    return layers;
}

struct Fixture
{
    DesignPages pages;
    LayerRowsPanel rows;
    LayerPaletteBar palette;
    Tu_Ceng_Zhi panel;
    LayerPanelController layers{&pages, &rows, &palette, &panel};
    ProductionController production{&pages, &layers, &panel, nullptr};
};

TestCardSettings tenByTen()
{
    TestCardSettings s;
    s.powerFrom = 10;
    s.powerTo = 100;
    s.speedFrom = 1000;
    s.speedTo = 10000;
    s.rows = 10;
    s.columns = 10;
    s.cellMm = 4;
    s.spacingMm = 1;
    s.mode = FillMode;
    s.passes = 2;
    return s;
}

} // namespace

// The material test card: the grid, its pages, its labels and frame, checked
// from the job the generator writes for each page.
class TestTestCard : public QObject
{
    Q_OBJECT

    QList<MessageRequest> m_messages;

private slots:
    void init()
    {
        QDir(config_dir()).removeRecursively();
        resetProgramState();
        LayerList::instance().clear();
        m_messages.clear();
        set_message_handler([this](const MessageRequest &r) {
            m_messages.append(r);
            return 1;
        });
    }

    void split_data()
    {
        QTest::addColumn<int>("rows");
        QTest::addColumn<int>("columns");
        QTest::addColumn<int>("pages");
        QTest::newRow("1 x 1") << 1 << 1 << 1;
        QTest::newRow("5 x 5") << 5 << 5 << 1;
        QTest::newRow("4 x 7 fills one page") << 4 << 7 << 1;
        QTest::newRow("5 x 6 one over") << 5 << 6 << 2;
        QTest::newRow("10 x 10") << 10 << 10 << 5;
        QTest::newRow("1 x 40 wide") << 1 << 40 << 2;
        QTest::newRow("40 x 1 tall") << 40 << 1 << 2;
    }
    void split()
    {
        QFETCH(int, rows);
        QFETCH(int, columns);
        QFETCH(int, pages);
        TestCardSettings s = tenByTen();
        s.rows = rows;
        s.columns = columns;
        const TestCardSplit split = testCardSplit(s);
        QCOMPARE(split.pages, pages);
        QVERIFY(split.rowsPerPage * split.columnsPerPage <= kCardCellsPerPage);
        QList<TestCardPage> generated = generateTestCard(s);
        QCOMPARE(generated.size(), pages);
        int cells = 0;
        for (TestCardPage &page : generated) {
            for (const TuCeng &l : qAsConst(page.layers))
                QVERIFY(l.yanse >= 0 && l.yanse < kLayerCount);
            cells += page.cells.size();
            QCOMPARE(page.layers.size(), page.cells.size() + 2);
            qDeleteAll(page.items);
        }
        QCOMPARE(cells, rows * columns);

        // The dialog says so before generating.
        TestCardDialog dialog;
        dialog.setSettings(s);
        QVERIFY2(dialog.note().contains(pages > 1 ? QStringLiteral("%1页").arg(pages)
                                                  : QStringLiteral("1页")),
                 qPrintable(dialog.note()));
    }

    void valuesSpreadEvenly()
    {
        const TestCardSettings s = tenByTen();
        QCOMPARE(testCardPower(s, 0), 10);
        QCOMPARE(testCardPower(s, 9), 100);
        QCOMPARE(testCardPower(s, 4), 50);
        QCOMPARE(testCardSpeed(s, 0), 1000);
        QCOMPARE(testCardSpeed(s, 9), 10000);
        TestCardSettings one = s;
        one.rows = 1;
        QCOMPARE(testCardPower(one, 0), 10);
        TestCardSettings bad = s;
        bad.powerTo = 120;
        QVERIFY(!testCardProblem(bad).isEmpty());
        QVERIFY(generateTestCard(bad).isEmpty());
    }

    // A 10 x 10 card: 100 square layers over five pages, each burning with
    // its row's power and its column's speed, labels and a frame on every page.
    void tenByTenFromGcode()
    {
        Fixture f;
        const TestCardSettings s = tenByTen();
        QCOMPARE(f.production.generateTestCard(s), 5);
        QCOMPARE(f.pages.count(), 5);

        QTemporaryDir dir;
        QSet<QPair<int, int>> seen; // (power, speed)
        for (int p = 0; p < f.pages.count(); ++p) {
            f.pages.setCurrentIndex(p);
            Jk_chang_jing *scene = f.pages.currentScene();
            QCOMPARE(scene->undoStack()->count(), 1); // one undoable add
            Jk_gcode gcode;
            const QString path = dir.filePath(QStringLiteral("page%1.nc").arg(p));
            QVERIFY(gcode.kai_shi_zhuan_huan(scene->designItems(), path));
            const QByteArray job = readFileBytes(path);
            QCOMPARE(grblProblem(job), QString());
            const QList<JobLayer> layers = jobLayers(job);
            QCOMPARE(layers.size(), 20 + 2);
            bool labels = false;
            bool frame = false;
            for (const JobLayer &l : layers) {
                QVERIFY2(l.burns > 0, qPrintable(l.name));
                if (l.name == QLatin1String("Labels") || l.name == QLatin1String("Frame")) {
                    (l.name == QLatin1String("Labels") ? labels : frame) = true;
                    QCOMPARE(l.s, QSet<double>{s.labelPower * 10.0});
                    QCOMPARE(l.f, QSet<double>{double(s.labelSpeed)});
                    continue;
                }
                const QRegularExpressionMatch m =
                    QRegularExpression(QStringLiteral("^P(\\d+) F(\\d+)$")).match(l.name);
                QVERIFY2(m.hasMatch(), qPrintable(l.name));
                const int power = m.captured(1).toInt();
                const int speed = m.captured(2).toInt();
                QCOMPARE(l.s, QSet<double>{power * 10.0});
                QCOMPARE(l.f, QSet<double>{double(speed)});
                QVERIFY(!seen.contains({power, speed}));
                seen.insert({power, speed});
            }
            QVERIFY(labels);
            QVERIFY(frame);
        }
        QCOMPARE(seen.size(), 100);
        for (int r = 0; r < 10; ++r)
            for (int c = 0; c < 10; ++c)
                QVERIFY(seen.contains({10 + 10 * r, 1000 + 1000 * c}));

        // Undo on a page takes its part of the card away again.
        f.pages.setCurrentIndex(4);
        f.pages.currentScene()->undoStack()->undo();
        QCOMPARE(f.pages.currentScene()->designItemCount(), 0);
        QVERIFY(LayerList::instance().isEmpty());
    }

    // Squares in a grid, the power labels left of the rows, the speed labels
    // above the columns, the frame around all of it.
    void layout()
    {
        TestCardSettings s = tenByTen();
        s.rows = 3;
        s.columns = 4;
        QList<TestCardPage> pages = generateTestCard(s);
        QCOMPARE(pages.size(), 1);
        const TestCardPage &page = pages.first();
        QCOMPARE(page.items.size(), 12 + 2);
        QRectF grid;
        for (int i = 0; i < 12; ++i) {
            const QRectF cell = page.items.at(i)->path.boundingRect();
            QCOMPARE(cell.size(), QSizeF(4, 4));
            QCOMPARE(page.items.at(i)->layer_id, i);
            QVERIFY(Jk_chang_jing::workAreaRect().contains(cell));
            grid = grid.united(cell);
        }
        QCOMPARE(grid.size(), QSizeF(4 * 5 - 1, 3 * 5 - 1));
        const Jk_tu_yuan *labels = page.items.at(12);
        const Jk_tu_yuan *frame = page.items.at(13);
        QCOMPARE(labels->layer_id, kCardLabelLayer);
        QCOMPARE(frame->layer_id, kCardFrameLayer);
        // Three row labels left of the grid and four column labels above it.
        int left = 0;
        int above = 0;
        const QList<QPolygonF> glyphs = labels->path.toSubpathPolygons();
        QVERIFY(!glyphs.isEmpty());
        for (const QPolygonF &g : glyphs) {
            const QRectF b = g.boundingRect();
            QVERIFY(!grid.intersects(b));
            left += b.right() <= grid.left() ? 1 : 0;
            above += b.bottom() <= grid.top() ? 1 : 0;
        }
        QVERIFY(left > 0);
        QVERIFY(above > 0);
        QVERIFY(frame->path.boundingRect().contains(grid.united(labels->path.boundingRect())));
        QCOMPARE(page.layers.at(12).gonglv, s.labelPower);
        for (const TestCardPage &p : qAsConst(pages))
            qDeleteAll(p.items);
    }

    // The dialog generates through the controller and stores the best square
    // in the library in one click.
    void dialogGeneratesAndSavesBestCell()
    {
        Fixture f;
        f.production.actions().at(1)->trigger();
        TestCardDialog *dialog = f.production.testCardDialog();
        QVERIFY(dialog);
        TestCardSettings s = tenByTen();
        s.rows = 3;
        s.columns = 3;
        dialog->setSettings(s);
        dialog->findChild<QPushButton *>("generateButton")->click();
        QCOMPARE(f.pages.count(), 1);
        QCOMPARE(f.pages.currentScene()->designItemCount(), 9 + 2);
        QCOMPARE(LayerList::instance().count(), 11);
        // A page with items: the next card goes on a new page.
        dialog->findChild<QPushButton *>("generateButton")->click();
        QCOMPARE(f.pages.count(), 2);

        dialog->findChild<QSpinBox *>("bestRowBox")->setValue(2);
        dialog->findChild<QSpinBox *>("bestColumnBox")->setValue(3);
        QTest::keyClicks(dialog->findChild<QLineEdit *>("materialEdit"), "Cork");
        dialog->findChild<QPushButton *>("saveButton")->click();
        ParameterLibrary library;
        QString reason;
        QVERIFY(loadLibrary(&library, &reason));
        QCOMPARE(library.size(), 1);
        const ParameterPreset &p = library.first();
        QCOMPARE(p.material, QStringLiteral("Cork"));
        QCOMPARE(p.power, testCardPower(dialog->settings(), 1));
        QCOMPARE(p.speed, testCardSpeed(dialog->settings(), 2));
        QCOMPARE(p.passes, s.passes);
        QCOMPARE(p.mode, int(FillMode));
        QCOMPARE(p.name, QStringLiteral("P%1 F%2").arg(p.power).arg(p.speed));
        QCOMPARE(m_messages.size(), 1); // "stored"
        dialog->close();
    }
};

QTEST_MAIN(TestTestCard)
#include "tst_test_card.moc"
