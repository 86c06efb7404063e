// Playing a job back: the timeline of lines, moves, layers and times (by the
// programmed feeds and by the controller's planning), the play state with its
// speeds, and the player in the real preview dialog driven by QTest with a
// clock the test sets.
#include "grbl_time_estimator.h"
#include "job_player.h"
#include "job_player_view.h"
#include "job_preview_dialog.h"
#include "job_timeline.h"
#include "layer_list.h"
#include "message_box.h"

#include <QApplication>
#include <QBuffer>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QTimer>
#include <QtTest>
#include <cmath>

namespace {

// Lines (from 0): 3 a rapid of 10 mm (0.1 s at 6000 mm/min), 4 and 5 burns of
// 10 mm at 600 mm/min (1 s each) on layer "Cut", 7 a rapid of 20 mm (0.2 s),
// 8 a burn of 10 mm at 1200 mm/min (0.5 s) on layer "Mark". 2.8 s in all.
const char *const kJob = "M4\nM8\n;Cut\nG0X10Y0\nG1X20Y0S500F600\nG1X20Y10\n;Mark\nG0X0Y10\n"
                         "G1X10Y10S200F1200\nM9\nG1S0\nM5\nM2\n";

JobTimeline timelineOf(const QByteArray &text, const GrblMachineSettings *machine = nullptr)
{
    QBuffer job;
    job.setData(text);
    job.open(QIODevice::ReadOnly);
    JobTimeline t;
    t.load(job, machine);
    return t;
}

bool near(double a, double b, double tol = 1e-9)
{
    return std::fabs(a - b) <= tol;
}

bool near(const QPointF &a, const QPointF &b, double tol = 1e-9)
{
    return QLineF(a, b).length() <= tol;
}

template<typename T> T *child(QObject *parent, const char *name)
{
    T *w = parent->findChild<T *>(QString::fromLatin1(name));
    if (!w)
        qFatal("no child %s", name);
    return w;
}

// Whether a pixel within one of `at` has about that colour (a thin line may
// be blended with the white around it: `tolerance` per channel).
bool colourNear(const QImage &image, const QPointF &at, const QColor &colour, int tolerance = 40)
{
    for (int dy = -1; dy <= 1; ++dy) {
        for (int dx = -1; dx <= 1; ++dx) {
            const QPoint p(int(std::floor(at.x())) + dx, int(std::floor(at.y())) + dy);
            if (!image.rect().contains(p))
                continue;
            const QColor c = image.pixelColor(p);
            if (std::abs(c.red() - colour.red()) < tolerance
                && std::abs(c.green() - colour.green()) < tolerance
                && std::abs(c.blue() - colour.blue()) < tolerance)
                return true;
        }
    }
    return false;
}

// The preview dialog shown with the test job, a fake clock and known colours.
struct Player
{
    JobPreviewDialog dialog;
    qint64 now = 1000;
    QSlider *slider = child<QSlider>(&dialog, "position_Slider");
    QPushButton *play = child<QPushButton>(&dialog, "play_Btn");
    QComboBox *speed = child<QComboBox>(&dialog, "speed_Box");
    QLabel *line = child<QLabel>(&dialog, "line_Lab");
    QLabel *at = child<QLabel>(&dialog, "at_Lab");
    JobPlayerView *view = child<JobPlayerView>(&dialog, "player_View");

    explicit Player(const GrblMachineSettings *machine = nullptr)
    {
        dialog.setClock([this] { return now; });
        dialog.setLayerColours({{QStringLiteral("Cut"), QColor(255, 0, 0)},
                                {QStringLiteral("Mark"), QColor(0, 160, 0)}});
        QBuffer job;
        job.setData(kJob);
        job.open(QIODevice::ReadOnly);
        dialog.setJob(job, machine);
        dialog.resize(820, 720);
        dialog.show();
        if (!QTest::qWaitForWindowExposed(&dialog))
            qWarning("the player dialog was never shown");
    }
    // One frame of the play timer after `ms` on the clock.
    void frame(qint64 ms)
    {
        now += ms;
        QVERIFY(QMetaObject::invokeMethod(dialog.playTimer(), "timeout"));
    }
    QImage picture() { return view->grab().toImage(); }
};

} // namespace

class TestJobPlayer : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        lumitra::set_message_handler([](const lumitra::MessageRequest &) { return 0; });
    }
    void cleanupTestCase() { lumitra::set_message_handler({}); }

    void timelineByFeeds()
    {
        const JobTimeline t = timelineOf(kJob);
        QCOMPARE(t.lineCount(), 13);
        QVERIFY(!t.timedByMachine());
        QCOMPARE(t.lineText(4), QStringLiteral("G1X20Y0S500F600"));
        QCOMPARE(t.lineText(13), QString());
        const QVector<double> ends{0, 0, 0, 0.1, 1.1, 2.1, 2.1, 2.3, 2.8, 2.8, 2.8, 2.8, 2.8};
        for (int i = 0; i < ends.size(); ++i)
            QVERIFY2(near(t.lineEnd(i), ends.at(i)), qPrintable(QString::number(i)));
        QVERIFY(near(t.lineStart(4), 0.1));
        QVERIFY(near(t.totalSeconds(), 2.8));
        QCOMPARE(t.moves().size(), 5);
        QCOMPARE(t.layerNames(), (QStringList{"Cut", "Mark"}));
        QCOMPARE(t.moves().at(1).layer, short(0));
        QCOMPARE(t.moves().at(4).layer, short(1));
        QVERIFY(!t.moves().at(0).burning);
        QVERIFY(t.moves().at(1).burning);
        QCOMPARE(t.moves().at(1).line, 4);
        QCOMPARE(t.bounds(), QRectF(0, 0, 20, 10));
    }

    void momentsOfTheJob_data()
    {
        QTest::addColumn<double>("seconds");
        QTest::addColumn<int>("line");
        QTest::addColumn<int>("done");
        QTest::addColumn<double>("fraction");
        QTest::addColumn<QPointF>("head");
        QTest::newRow("start") << 0.0 << 3 << 0 << 0.0 << QPointF(0, 0);
        QTest::newRow("half way along the rapid") << 0.05 << 3 << 0 << 0.5 << QPointF(5, 0);
        QTest::newRow("half way along the first burn") << 0.6 << 4 << 1 << 0.5 << QPointF(15, 0);
        QTest::newRow("at the end of a line") << 1.1 << 5 << 2 << 0.0 << QPointF(20, 0);
        QTest::newRow("second layer") << 2.55 << 8 << 4 << 0.5 << QPointF(5, 10);
        QTest::newRow("just after the last move") << 2.800001 << 12 << 5 << 0.0 << QPointF(10, 10);
        QTest::newRow("past the end") << 99.0 << 12 << 5 << 0.0 << QPointF(10, 10);
    }
    void momentsOfTheJob()
    {
        QFETCH(double, seconds);
        QFETCH(int, line);
        QFETCH(int, done);
        QFETCH(double, fraction);
        QFETCH(QPointF, head);
        const JobTimeline t = timelineOf(kJob);
        QCOMPARE(t.lineAt(seconds), line);
        double f = -1;
        QCOMPARE(t.movesDone(seconds, &f), done);
        QVERIFY2(near(f, fraction), qPrintable(QString::number(f)));
        QVERIFY(near(t.headAt(seconds), head));
    }

    // With the controller's settings every line ends when the planner says,
    // the same as the estimator run alone.
    void timelineByTheMachine()
    {
        GrblMachineSettings machine;
        for (int i = 0; i < 3; ++i) {
            machine.maxRate[i] = 3000.0;
            machine.acceleration[i] = 50.0;
        }
        const JobTimeline t = timelineOf(kJob, &machine);
        QVERIFY(t.timedByMachine());
        GrblTimeEstimator e(machine);
        for (const QByteArray &line : QByteArray(kJob).split('\n'))
            if (!line.isEmpty())
                e.feedLine(QString::fromLatin1(line));
        const QVector<double> ends = e.lineEndSeconds();
        QCOMPARE(t.lineCount(), ends.size());
        for (int i = 0; i < ends.size(); ++i)
            QVERIFY(near(t.lineEnd(i), ends.at(i)));
        QVERIFY(near(t.totalSeconds(), e.seconds()));
        // Slower than the feeds alone: acceleration and the slower rapids.
        QVERIFY(t.totalSeconds() > 2.8);
        QVERIFY(near(t.headAt(t.totalSeconds()), QPointF(10, 10)));
    }

    void emptyAndUnreadableJobs()
    {
        const JobTimeline empty = timelineOf(QByteArray());
        QCOMPARE(empty.lineCount(), 0);
        QCOMPARE(empty.lineAt(1.0), -1);
        QCOMPARE(empty.headAt(1.0), QPointF());
        QBuffer closed;
        JobTimeline t;
        QVERIFY(!t.load(closed));
        const JobTimeline crlf = timelineOf("G0X1\r\nG0X2");
        QCOMPARE(crlf.lineCount(), 2);
        QCOMPARE(crlf.lineText(0), QStringLiteral("G0X1"));
        QCOMPARE(crlf.lineText(1), QStringLiteral("G0X2"));
    }

    void commentNames_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("comment");
        QTest::newRow("plain") << "Cut 1"
                               << "Cut 1";
        QTest::newRow("real-time characters") << "a?b!c~"
                                              << "a_b_c_";
        QTest::newRow("not ASCII") << QStringLiteral("切割") << "__";
        QTest::newRow("long") << QString(100, QLatin1Char('x')) << QString(79, QLatin1Char('x'));
    }
    void commentNames()
    {
        QFETCH(QString, name);
        QFETCH(QString, comment);
        QCOMPARE(JobTimeline::commentName(name), comment);
    }

    void playState_data()
    {
        QTest::addColumn<double>("speed");
        QTest::addColumn<qint64>("wallMs");
        QTest::addColumn<double>("position");
        QTest::addColumn<bool>("playing");
        QTest::newRow("1x") << 1.0 << qint64(500) << 0.5 << true;
        QTest::newRow("10x") << 10.0 << qint64(500) << 5.0 << true;
        QTest::newRow("100x to the end") << 100.0 << qint64(500) << 20.0 << false;
    }
    void playState()
    {
        QFETCH(double, speed);
        QFETCH(qint64, wallMs);
        QFETCH(double, position);
        QFETCH(bool, playing);
        JobPlayer p;
        p.setDuration(20.0);
        p.setSpeed(speed, 0);
        QVERIFY(!p.tick(100)); // paused: nothing moves
        QVERIFY(p.play(1000));
        QVERIFY(p.tick(1000 + wallMs));
        QVERIFY(near(p.position(), position));
        QCOMPARE(p.isPlaying(), playing);
        // From the end, play starts over.
        p.seek(99.0);
        QVERIFY(p.atEnd());
        QVERIFY(p.play(5000));
        QCOMPARE(p.position(), 0.0);
    }

    void speedChangeKeepsWhatWasPlayed()
    {
        JobPlayer p;
        p.setDuration(100.0);
        p.play(0);
        p.setSpeed(10.0, 1000); // 1 s at 1x, then 10x
        p.tick(2000);
        QVERIFY(near(p.position(), 11.0));
        p.pause();
        QVERIFY(!p.tick(9000));
        QVERIFY(!JobPlayer().play(0)); // nothing to play
    }

    void sliderShowsTheLineAndTime()
    {
        Player p;
        QCOMPARE(p.slider->maximum(), 12);
        QCOMPARE(p.slider->value(), 0);
        QCOMPARE(p.line->text(), QStringLiteral("1: M4"));
        QCOMPARE(p.at->text(), QStringLiteral("0 秒 / 3 秒"));
        p.slider->setValue(4);
        QCOMPARE(p.line->text(), QStringLiteral("5: G1X20Y0S500F600"));
        QCOMPARE(p.at->text(), QStringLiteral("1 秒 / 3 秒"));
        QVERIFY(near(p.dialog.player().position(), 1.1));
        QCOMPARE(p.view->position(), p.dialog.player().position());
        // Keys on the focused slider move it too.
        p.slider->setFocus();
        QTest::keyClick(p.slider, Qt::Key_End);
        QCOMPARE(p.line->text(), QStringLiteral("13: M2"));
        QCOMPARE(p.at->text(), QStringLiteral("3 秒 / 3 秒"));
        QVERIFY(!child<QLabel>(&p.dialog, "image_Lab")->isVisible());
    }

    void playAdvancesWithTheClock()
    {
        Player p;
        QCOMPARE(p.play->text(), QStringLiteral("播放"));
        QTest::mouseClick(p.play, Qt::LeftButton);
        QVERIFY(p.dialog.playTimer()->isActive());
        QCOMPARE(p.play->text(), QStringLiteral("暂停"));
        p.frame(600); // 0.6 s: half way along the first burn
        QVERIFY(near(p.dialog.player().position(), 0.6));
        QCOMPARE(p.slider->value(), 4);
        QCOMPARE(p.line->text(), QStringLiteral("5: G1X20Y0S500F600"));
        p.speed->setCurrentIndex(1); // 10x from here
        p.frame(100);                // + 1 s
        QVERIFY(near(p.dialog.player().position(), 1.6));
        QCOMPARE(p.line->text(), QStringLiteral("6: G1X20Y10"));
        // Pause holds the moment whatever the clock does.
        QTest::mouseClick(p.play, Qt::LeftButton);
        QVERIFY(!p.dialog.playTimer()->isActive());
        p.now += 5000;
        QVERIFY(near(p.dialog.player().position(), 1.6));
        // 100x runs to the end and stops there.
        p.speed->setCurrentIndex(2);
        QTest::mouseClick(p.play, Qt::LeftButton);
        p.frame(1000);
        QVERIFY(near(p.dialog.player().position(), 2.8));
        QVERIFY(!p.dialog.playTimer()->isActive());
        QCOMPARE(p.play->text(), QStringLiteral("播放"));
        QCOMPARE(p.slider->value(), 12);
        // Play again: from the start.
        QTest::mouseClick(p.play, Qt::LeftButton);
        QCOMPARE(p.dialog.player().position(), 0.0);
    }

    // Burns in their layer's colour once reached, travel thin and light, the
    // rest of the job faint.
    void burnsInTheirLayersColour()
    {
        Player p;
        const QPointF firstBurn = p.view->mapFromMachine({15, 0});
        const QPointF secondBurn = p.view->mapFromMachine({5, 10});
        const QPointF travel = p.view->mapFromMachine({5, 0});
        p.slider->setValue(3); // only the rapid has run
        QImage image = p.picture();
        QVERIFY(colourNear(image, firstBurn, JobPlayerView::plannedColour()));
        QVERIFY(!colourNear(image, firstBurn, QColor(255, 0, 0)));
        QVERIFY(colourNear(image, travel, JobPlayerView::travelColour(), 70));
        p.slider->setValue(12);
        image = p.picture();
        QVERIFY(colourNear(image, firstBurn, QColor(255, 0, 0)));
        QVERIFY(colourNear(image, secondBurn, QColor(0, 160, 0)));
        // Back again: the burns are gone.
        p.slider->setValue(3);
        QVERIFY(!colourNear(p.picture(), secondBurn, QColor(0, 160, 0)));
    }

    void wheelZoomsAndDragPans()
    {
        Player p;
        p.slider->setValue(12); // everything burnt
        const double scale = p.view->scale();
        const QPointF under = p.view->mapFromMachine({15, 5});
        QWheelEvent wheel(under, p.view->mapToGlobal(under.toPoint()), QPoint(), QPoint(0, 240),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(p.view, &wheel);
        QVERIFY(near(p.view->scale(), scale * 1.25 * 1.25, 1e-9));
        QVERIFY(near(p.view->mapToMachine(under), QPointF(15, 5), 1e-9));
        // And out again, further than it was.
        QWheelEvent out(under, p.view->mapToGlobal(under.toPoint()), QPoint(), QPoint(0, -360),
                        Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(p.view, &out);
        QVERIFY(near(p.view->scale(), scale / 1.25, 1e-9));
        QVERIFY(near(p.view->mapToMachine(under), QPointF(15, 5), 1e-9));

        const QPointF before = p.view->mapFromMachine({0, 0});
        const auto mouse = [&](QEvent::Type type, const QPoint &at, Qt::MouseButtons held) {
            QMouseEvent e(type, at, p.view->mapToGlobal(at), Qt::LeftButton, held, Qt::NoModifier);
            QApplication::sendEvent(p.view, &e);
        };
        mouse(QEvent::MouseButtonPress, {100, 100}, Qt::LeftButton);
        mouse(QEvent::MouseMove, {130, 110}, Qt::LeftButton);
        mouse(QEvent::MouseMove, {160, 80}, Qt::LeftButton);
        // The picture follows the pointer while panning, and after.
        QVERIFY(colourNear(p.picture(), p.view->mapFromMachine({15, 0}), QColor(255, 0, 0)));
        mouse(QEvent::MouseButtonRelease, {160, 80}, Qt::NoButton);
        QVERIFY(near(p.view->mapFromMachine({0, 0}), before + QPointF(60, -20)));
        QVERIFY(colourNear(p.picture(), p.view->mapFromMachine({15, 0}), QColor(255, 0, 0)));
        // A double-click fits the job again.
        mouse(QEvent::MouseButtonDblClick, {160, 80}, Qt::LeftButton);
        QVERIFY(near(p.view->scale(), scale, 1e-9));
    }

    void coloursFromTheLayerList()
    {
        LayerList &list = LayerList::instance();
        list.clear();
        auto *cut = new TuCeng;
        cut->mingcheng = QStringLiteral("Cut");
        cut->yanse = 5;
        auto *bitmap = new TuCeng;
        bitmap->mingcheng = QStringLiteral("Cut");
        bitmap->yanse = 9;
        bitmap->tupian = true;
        auto *odd = new TuCeng;
        odd->mingcheng = QStringLiteral("a?b");
        odd->yanse = 2;
        list.append(bitmap);
        list.append(cut);
        list.append(odd);
        const QHash<QString, QColor> colours = JobPreviewDialog::layerListColours();
        list.clear();
        QCOMPARE(colours.size(), 2);
        QCOMPARE(colours.value(QStringLiteral("Cut")), layerColor(5));
        QCOMPARE(colours.value(QStringLiteral("a_b")), layerColor(2));
    }
};

QTEST_MAIN(TestJobPlayer)
#include "tst_job_player.moc"
