#include "job_preview_dialog.h"
#include "job_preview_image.h"
#include "job_simulator.h"

#include <QBuffer>
#include <QLabel>
#include <QtTest>

// The job preview: following a job's modal state, its lengths and time, and
// the picture it draws.
class TestJobSimulator : public QObject
{
    Q_OBJECT

    static JobSimulator::Summary simulate(const QByteArray &job,
                                          QList<JobSimulator::Move> *moves = nullptr)
    {
        QBuffer buffer;
        buffer.setData(job);
        buffer.open(QIODevice::ReadOnly);
        JobSimulator sim;
        sim.run(buffer, [moves](const JobSimulator::Move &m) {
            if (moves)
                moves->append(m);
        });
        return sim.summary();
    }

private slots:
    void lengthsAndTime()
    {
        const JobSimulator::Summary s =
            simulate("M4\nM8\n;L0\nG0X10.00Y0.00S800.00F600.00\nG1X20.00\nY10.00\nM5\nG1X0Y0\n");
        QCOMPARE(s.lines, 8);
        QCOMPARE(s.moves, 4);
        QCOMPARE(s.burnLength, 20.0);
        QVERIFY(qAbs(s.travelLength - (10.0 + std::hypot(20.0, 10.0))) < 1e-9);
        // Rapid at the assumed rapid feed, the rest at F600.
        const double expected = 10.0 / JobSimulator::kRapidFeed * 60 + 20.0 / 600 * 60
                                + std::hypot(20.0, 10.0) / 600 * 60;
        QVERIFY(qAbs(s.seconds - expected) < 1e-9);
    }

    void modalWords_data()
    {
        QTest::addColumn<QByteArray>("job");
        QTest::addColumn<double>("burn");
        QTest::addColumn<double>("travel");
        QTest::newRow("power zero is travel") << QByteArray("M4\nG1X5Y0S0F100\n") << 0.0 << 5.0;
        QTest::newRow("laser off is travel") << QByteArray("G1X5Y0S500F100\n") << 0.0 << 5.0;
        QTest::newRow("relative moves")
            << QByteArray("M3\nG91\nG1X5S100F100\nX5\nG90\nX0\n") << 20.0 << 0.0;
        QTest::newRow("comments and lower case")
            << QByteArray("m4 ; X99\ng1 x3 y4 s10 f100 ; Y77\n") << 5.0 << 0.0;
        QTest::newRow("jogs move the head") << QByteArray("$J=G91X3Y4F1000\n") << 0.0 << 5.0;
        QTest::newRow("no axis no move") << QByteArray("M4\nG1S500F100\nF200\n") << 0.0 << 0.0;
        // An arc after a rapid burns (its chord: 10 mm).
        QTest::newRow("arc burns")
            << QByteArray("M4 S500 F100\nG0X0Y0\nG2X10Y0I5J0\n") << 10.0 << 0.0;
        QTest::newRow("inches") << QByteArray("G20\nM4\nG1X1S100F4\nG21\nX0\n") << 50.8 << 0.0;
    }
    void modalWords()
    {
        QFETCH(QByteArray, job);
        QFETCH(double, burn);
        QFETCH(double, travel);
        const JobSimulator::Summary s = simulate(job);
        QCOMPARE(s.burnLength, burn);
        QCOMPARE(s.travelLength, travel);
    }

    void pictureShowsBurnOverTravel()
    {
        // A burn along machine y = 5 and a laser-off pass back over it.
        QBuffer job;
        job.setData("M4\nG0X0Y5\nG1X10Y5S1000F600\nG1X0Y5S0\nG0X0Y15\nG0X10Y15\n");
        job.open(QIODevice::ReadOnly);
        const JobPreview p = renderJobPreview(job, QRectF(0, 0, 20, 20), 1.0);
        QVERIFY(p.ok);
        QCOMPARE(p.image.size(), QSize(20, 20));
        // Machine y up: y = 5 is row 15, y = 15 is row 5.
        QCOMPARE(p.image.pixelColor(5, 15), QColor(Qt::black));
        const QColor travel = p.image.pixelColor(5, 5);
        QVERIFY(travel != QColor(Qt::white) && travel != QColor(Qt::black));
        QCOMPARE(p.image.pixelColor(15, 10), QColor(Qt::white));
        QCOMPARE(p.summary.burnLength, 10.0);
    }

    void pictureSizeIsBounded()
    {
        QBuffer job;
        job.setData("G0X0Y0\n");
        job.open(QIODevice::ReadOnly);
        const JobPreview p = renderJobPreview(job, QRectF(0, 0, 4000, 1000), 4.0, 800);
        QCOMPARE(p.image.size(), QSize(800, 200));
    }

    // With the machine's settings the preview also times the job as the
    // controller plans it, and the dialog shows that time.
    void plannedTime_data()
    {
        QTest::addColumn<bool>("withMachine");
        QTest::addColumn<double>("planned");
        QTest::addColumn<QString>("shown");
        // 600 mm at 50 mm/s: feed alone says 12 s. With 1 mm/s² the head
        // never reaches the feed (24.5 mm/s at the middle): 2·sqrt(600 / 1) = 49 s.
        QTest::newRow("feed only") << false << -1.0 << QStringLiteral("12 秒");
        QTest::newRow("planned") << true << 2.0 * std::sqrt(600.0) << QStringLiteral("49 秒");
    }
    void plannedTime()
    {
        QFETCH(bool, withMachine);
        QFETCH(double, planned);
        QFETCH(QString, shown);
        QBuffer job;
        job.setData("M4\nG1X600S500F3000\nM5\n");
        job.open(QIODevice::ReadOnly);
        GrblMachineSettings machine;
        machine.maxRate[0] = 6000.0;
        machine.acceleration[0] = 1.0;
        const JobPreview p = renderJobPreview(job, QRectF(0, 0, 600, 10), 1.0, 600, 1000.0,
                                              withMachine ? &machine : nullptr);
        QVERIFY(p.ok);
        QCOMPARE(p.summary.seconds, 12.0);
        QVERIFY2(std::fabs(p.plannedSeconds - planned) < 1e-9,
                 qPrintable(QString::number(p.plannedSeconds)));
        JobPreviewDialog dialog;
        dialog.setPreview(p);
        auto *time = dialog.findChild<QLabel *>(QStringLiteral("time_Lab"));
        QVERIFY(time);
        QCOMPARE(time->text(), shown);
        QCOMPARE(time->toolTip().isEmpty(), !withMachine);
    }

    void durationText_data()
    {
        QTest::addColumn<double>("seconds");
        QTest::addColumn<QString>("text");
        QTest::newRow("seconds") << 12.4 << QStringLiteral("12 秒");
        QTest::newRow("minutes") << 247.0 << QStringLiteral("4:07");
        QTest::newRow("hours") << 3903.0 << QStringLiteral("1:05:03");
    }
    void durationText()
    {
        QFETCH(double, seconds);
        QFETCH(QString, text);
        QCOMPARE(JobPreviewDialog::durationText(seconds), text);
    }
};

QTEST_MAIN(TestJobSimulator)
#include "tst_job_simulator.moc"
