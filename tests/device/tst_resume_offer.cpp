#include "jk_com.h"
#include "job_time_display.h"
#include "layer_list.h"
#include "link_fixture.h"
#include "machine_controller.h"
#include "machine_panel.h"
#include "message_box.h"
#include "program_state.h"
#include "resume_dialog.h"
#include "resume_offer.h"
#include "ui_machine_panel.h"
#include "ui_resume_dialog.h"

#include <memory>

using lumitra::programState;

// The window's side of resuming: the dialog (line, preview marker, warning),
// the offer after an interruption of a job on the fake, and the time left
// next to the progress bar.
class TestResumeOffer : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void dialog_data();
    void dialog();
    void offerAfterAnInterruption_data();
    void offerAfterAnInterruption();
    void timeLeftWhileRunning();
    void stopWhileTheLastLinesRun();
    void offerIsForItsOwnJob();

private:
    bool connectTo(GrblFake &fake);
    QString writeJob(const QStringList &lines);

    QTemporaryDir m_dir;
    std::unique_ptr<MachinePanel> m_panel;
    std::unique_ptr<MachineController> m_controller;
};

namespace {

// Squares, then relative raster rows.
QStringList job()
{
    QStringList j{"G90 G21", "M4 S0"};
    for (int i = 0; i < 6; ++i)
        j << QString("G0 X%1 Y5").arg(5 + 12 * i)
          << QString("G1 X%1 Y5 S500 F1500").arg(15 + 12 * i) << QString("X%1 Y15").arg(15 + 12 * i)
          << QString("X%1 Y15").arg(5 + 12 * i) << QString("X%1 Y5").arg(5 + 12 * i) << "S0";
    j << "G0 X5 Y30"
      << "G91"
      << "G1 F3000";
    for (int row = 0; row < 8; ++row) {
        for (int px = 0; px < 12; ++px)
            j << QString("X%1 S%2").arg(row % 2 ? -1 : 1).arg(px % 3 ? 600 : 0);
        j << "G0 Y0.5"
          << "G1";
    }
    j << "G90"
      << "M5"
      << "G0 X0 Y0";
    return j;
}

bool isMarker(const QImage &image, const QPointF &at)
{
    const QColor c = image.pixelColor(at.toPoint() + QPoint(8, 0)); // on the cross, off the path
    return c.red() > 180 && c.green() < 100 && c.blue() < 100;
}

} // namespace

void TestResumeOffer::init()
{
    lumitra::resetProgramState();
    lumitra::set_message_handler([](const lumitra::MessageRequest &) { return 0; });
    m_panel = std::make_unique<MachinePanel>();
    m_controller = std::make_unique<MachineController>(m_panel.get(), m_panel.get());
}

void TestResumeOffer::cleanup()
{
    m_controller.reset();
    m_panel.reset();
    lumitra::set_message_handler({});
    LayerList::instance().clear();
}

bool TestResumeOffer::connectTo(GrblFake &fake)
{
    if (!fake.start())
        return false;
    Ui::MachinePanel &f = m_panel->form();
    f.port_Box->addItem(fake.portName());
    f.port_Box->setCurrentText(fake.portName());
    f.connect_Btn->click();
    return QTest::qWaitFor([&] {
        return programState().connectionMode == lumitra::SerialLink && fake.lineCount() >= 2
               && m_controller->link()->reportsBufferField();
    });
}

QString TestResumeOffer::writeJob(const QStringList &lines)
{
    const QString path = m_dir.filePath("job.nc");
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return QString();
    file.write((lines.join('\n') + '\n').toUtf8());
    return path;
}

void TestResumeOffer::dialog_data()
{
    QTest::addColumn<int>("line");
    QTest::addColumn<bool>("positionLost");
    QTest::addColumn<QPointF>("point");
    QTest::newRow("in a square, after an alarm") << 6 << true << QPointF(15, 15);
    QTest::newRow("in a raster row, port lost") << 50 << false << QPointF(13, 30);
}

void TestResumeOffer::dialog()
{
    QFETCH(int, line);
    QFETCH(bool, positionLost);
    QFETCH(QPointF, point);
    lumitra::gcode::JobStateIndex index;
    QVERIFY(index.build(writeJob(job())));
    ResumeDialog d(index, line, positionLost);
    d.show();
    QVERIFY(QTest::qWaitForWindowExposed(&d));
    QCOMPARE(d.form().line_Box->value(), line);
    QCOMPARE(d.form().line_Box->maximum(), job().size());
    QVERIFY(d.form().title_Lab->text().contains(QString::number(line)));
    QCOMPARE(d.form().warning_Lab->isVisible(), positionLost);
    QCOMPARE(d.resumePoint(), point);
    QVERIFY(isMarker(d.previewImage(), d.markerInPreview()));

    // The line is editable; the marker follows it.
    const QPointF before = d.markerInPreview();
    d.form().line_Box->setFocus();
    QTest::keyClick(d.form().line_Box, Qt::Key_Up);
    QCOMPARE(d.line(), line + 1);
    QCOMPARE(d.resumePoint(), lumitra::gcode::modalStateBefore(job(), line + 1).position);
    QVERIFY(d.markerInPreview() != before);
    QVERIFY(isMarker(d.previewImage(), d.markerInPreview()));
    QCOMPARE(d.form()
                 .preview_Lab->pixmap(Qt::ReturnByValue)
                 .toImage()
                 .convertToFormat(QImage::Format_ARGB32),
             d.previewImage().convertToFormat(QImage::Format_ARGB32));

    QSignalSpy accepted(&d, &QDialog::accepted);
    QTest::mouseClick(d.form().confirm_Btn, Qt::LeftButton);
    QCOMPARE(accepted.count(), 1);
}

void TestResumeOffer::offerAfterAnInterruption_data()
{
    QTest::addColumn<QString>("kind");
    QTest::newRow("alarm") << "alarm";
    QTest::newRow("stop button") << "stop";
}

// The job is interrupted, the offer suggests the line after the last one
// executed, and accepting runs the state preamble and then the job from there.
void TestResumeOffer::offerAfterAnInterruption()
{
    QFETCH(QString, kind);
    GrblFake::Options o;
    o.motionMsPerLine = 15;
    GrblFake fake(o);
    if (kind == "alarm")
        fake.alarmAtLine(90, 1);
    m_controller->link(); // none yet
    QVERIFY(connectTo(fake));
    m_controller->link()->setPollInterval(50);
    ResumeOffer offer(m_controller.get(), m_panel.get(), m_panel.get());
    const QStringList lines = job();
    const QString path = writeJob(lines);
    m_controller->runJob(path);
    if (kind == "stop") {
        QTRY_VERIFY_WITH_TIMEOUT(fake.lineCount() >= 80, 10000);
        QTRY_VERIFY(m_controller->link()->lastExecutedLine() > 20);
        m_panel->form().stop_Btn->click();
    }
    QTRY_VERIFY_WITH_TIMEOUT(offer.dialog(), 10000);
    const int suggested = m_controller->link()->lastExecutedLine() + 1;
    QVERIFY(suggested > 1);
    QCOMPARE(offer.dialog()->line(), suggested);
    QVERIFY(offer.dialog()->form().warning_Lab->isVisibleTo(offer.dialog()));

    // Settle the machine as the user would (home clears the alarm), then go on.
    m_panel->form().home_Btn->click();
    QTRY_VERIFY(!fake.inAlarm());
    QTRY_VERIFY(!m_controller->busy()); // a busy machine is not sent a resume
    const int received = fake.lineCount();
    QSignalSpy resumed(&offer, &ResumeOffer::resumed);
    QSignalSpy finished(m_controller->link(), &Jk_com::jobFinished);
    QTest::mouseClick(offer.dialog()->form().confirm_Btn, Qt::LeftButton);
    QTRY_COMPARE(resumed.count(), 1);
    QCOMPARE(resumed.first().at(0).toString(), path);
    QCOMPARE(resumed.first().at(1).toInt(), suggested);
    QVERIFY(finished.wait(20000));

    QStringList sent = fake.lines().mid(received);
    // The controller's own requests ("$I", "$$" after connecting) may come between.
    sent.erase(std::remove_if(sent.begin(), sent.end(),
                              [](const QString &l) { return l.startsWith('$'); }),
               sent.end());
    // The state at that line, then the rest of the job.
    const QStringList resumedJob = lumitra::gcode::buildResumeJob(lines, suggested).lines;
    const int start = sent.indexOf(resumedJob.first());
    QVERIFY(start >= 0);
    QCOMPARE(sent.mid(start), resumedJob);
    QVERIFY(!offer.dialog());
}

void TestResumeOffer::timeLeftWhileRunning()
{
    GrblFake::Options o;
    o.motionMsPerLine = 60; // long enough to be seen on a busy machine
    GrblFake fake(o);
    // Made with the window, before the link exists.
    JobTimeDisplay display(m_controller.get(), m_panel.get());
    QVERIFY(connectTo(fake));
    const QStringList lines = job();
    QSignalSpy finished(m_controller->link(), &Jk_com::jobFinished);
    m_controller->runJob(writeJob(lines));
    QTRY_VERIFY_WITH_TIMEOUT(display.text().startsWith(QString("剩余 ")), 15000);
    QCOMPARE(display.timeline().lines(), lines.size());
    QVERIFY(display.timeline().totalSeconds() > 0.0);
    // What it shows is the plan of the lines not yet answered.
    const int before = m_controller->link()->lastAcknowledgedLine();
    display.refresh(0.0);
    const int after = m_controller->link()->lastAcknowledgedLine();
    QStringList possible;
    for (int a = before; a <= after; ++a)
        possible << QString("剩余 ") + formatRunTime(display.timeline().remainingSeconds(a, 0.0));
    QVERIFY2(possible.contains(display.text()), qPrintable(display.text()));
    // Shown while the last lines still run after their "ok"; gone once the
    // machine is idle.
    QVERIFY(finished.wait(30000));
    QVERIFY(!display.text().isEmpty());
    QSignalSpy ran(m_controller->link(), &Jk_com::jobRan);
    QVERIFY(ran.wait(30000));
    QVERIFY(display.text().isEmpty());
}

// Every line answered is not every line run: a stop while the planner still
// holds the last moves offers to resume them.
void TestResumeOffer::stopWhileTheLastLinesRun()
{
    GrblFake::Options o;
    o.motionMsPerLine = 300;
    GrblFake fake(o);
    QVERIFY(connectTo(fake));
    m_controller->link()->setPollInterval(50);
    ResumeOffer offer(m_controller.get(), m_panel.get(), m_panel.get());
    // No trailer that waits for the buffer: the last "ok" comes while the
    // moves still queue in the planner.
    QStringList lines{"G90 G21", "M4 S500", "G1 F1500"};
    for (int i = 1; i <= 10; ++i)
        lines << QString("X%1 Y%2").arg(i * 2).arg(i % 2);
    QSignalSpy finished(m_controller->link(), &Jk_com::jobFinished);
    m_controller->runJob(writeJob(lines));
    QVERIFY(finished.wait(10000));
    QVERIFY(m_controller->link()->jobDraining());
    QVERIFY(m_controller->link()->lastExecutedLine() < lines.size());
    m_panel->form().stop_Btn->click();
    QTRY_VERIFY_WITH_TIMEOUT(offer.dialog(), 5000);
    QCOMPARE(offer.dialog()->line(), m_controller->link()->lastExecutedLine() + 1);
    QVERIFY(offer.dialog()->line() <= lines.size());
}

// An offer left open belongs to its job: a new job closes it, and a job file
// written over since the offer is not resumed.
void TestResumeOffer::offerIsForItsOwnJob()
{
    QStringList messages;
    lumitra::set_message_handler([&messages](const lumitra::MessageRequest &r) {
        messages << r.message;
        return 0;
    });
    GrblFake::Options o;
    o.motionMsPerLine = 15;
    GrblFake fake(o);
    QVERIFY(connectTo(fake));
    m_controller->link()->setPollInterval(50);
    ResumeOffer offer(m_controller.get(), m_panel.get(), m_panel.get());
    const QString path = writeJob(job());
    m_controller->runJob(path);
    QTRY_VERIFY_WITH_TIMEOUT(m_controller->link()->lastExecutedLine() > 20, 10000);
    m_panel->form().stop_Btn->click();
    QTRY_VERIFY_WITH_TIMEOUT(offer.dialog(), 10000);
    const int line = offer.dialog()->line();
    QTRY_VERIFY(!m_controller->busy());

    // Another job written to the same file: the offer's line would be its.
    QStringList other{"G90 G21", "M4 S900", "G1 F1500"};
    for (int i = 0; i < 60; ++i)
        other << QString("X%1 Y%2").arg(60 + i % 2).arg(58 + i * 0.2);
    QTest::qWait(20); // a file time of its own
    writeJob(other);
    QSignalSpy resumed(&offer, &ResumeOffer::resumed);
    QVERIFY(!offer.resumeFrom(line));
    QCOMPARE(resumed.count(), 0);
    QVERIFY(!messages.isEmpty());

    // Running it closes the offer still open.
    QVERIFY(offer.dialog());
    QSignalSpy ran(m_controller->link(), &Jk_com::jobRan);
    m_controller->runJob(path);
    QTRY_VERIFY_WITH_TIMEOUT(!offer.dialog(), 5000);
    QVERIFY(ran.wait(20000));
}

QTEST_MAIN(TestResumeOffer)
#include "tst_resume_offer.moc"
