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
    QString error;
    return lumitra::gcode::writeJobLines(path, lines, &error) ? path : QString();
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
    ResumeDialog d(job(), line, positionLost);
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
    const QStringList preamble =
        lumitra::gcode::resumePreamble(lumitra::gcode::modalStateBefore(lines, suggested));
    const int start = sent.indexOf(preamble.first());
    QVERIFY(start >= 0);
    QCOMPARE(sent.mid(start, preamble.size()), preamble);
    QCOMPARE(sent.mid(start + preamble.size()), lines.mid(suggested - 1));
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
    QVERIFY(finished.wait(30000));
    QVERIFY(display.text().isEmpty());
}

QTEST_MAIN(TestResumeOffer)
#include "tst_resume_offer.moc"
