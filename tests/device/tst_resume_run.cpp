#include "grbl_fake.h"
#include "headless_run.h"
#include "job_simulator.h"

#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>
#include <cmath>

// An interrupted job, resumed from the line the sender printed, burns exactly
// what the job burns: no gap, and nothing twice but the lines the controller
// had answered (and so might have run) when it stopped; when the port is lost
// the controller also runs the lines still in its input buffer. Run through the
// executable against the fake controller and its planner.
class TestResumeRun : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void interruptAndResume_data();
    void interruptAndResume();

private:
    quint32 m_seed = 0;
};

namespace {

struct Burn
{
    QPointF a, b;
    double power = 0.0;
    int line = 0; // job line (1-based); 0 for what the machine ran
    double length() const { return std::hypot(b.x() - a.x(), b.y() - a.y()); }
};

// Vector squares in absolute coordinates, then raster rows as relative moves
// with the power changing along each row, in dynamic laser mode.
QStringList makeJob(QRandomGenerator &random)
{
    QStringList job{"G90 G21", "M4 S0"};
    for (int i = 0; i < 4; ++i) {
        const int x = 5 + 25 * i;
        job << QString("G0 X%1 Y5").arg(x) << QString("G1 X%1 Y5 S600 F1500").arg(x + 20)
            << QString("X%1 Y25").arg(x + 20) << QString("X%1 Y25").arg(x)
            << QString("X%1 Y5").arg(x) << "S0";
    }
    job << "G0 X5 Y40"
        << "G91"
        << "G1 F3000";
    for (int row = 0; row < 12; ++row) {
        const int dir = row % 2 ? -1 : 1;
        for (int px = 0; px < 18; ++px) {
            const int s = int(random.bounded(4)) * 300; // 0, 300, 600, 900
            job << QString("X%1 S%2").arg(dir * 0.5).arg(s);
        }
        job << "S0"
            << "G0 Y0.2"
            << "G1";
    }
    job << "G90"
        << "M5"
        << "G0 X0 Y0";
    return job;
}

QList<Burn> jobBurns(const QStringList &job)
{
    JobSimulator sim;
    QList<Burn> out;
    for (int i = 0; i < job.size(); ++i)
        sim.feedLine(job.at(i), [&](const JobSimulator::Move &m) {
            if (m.burning)
                out.append({m.from, m.to, m.power, i + 1});
        });
    return out;
}

QList<Burn> machineBurns(const GrblFake &fake)
{
    QList<Burn> out;
    for (const auto &m : fake.executedMoves())
        if (m.burning && (m.from != m.to))
            out.append({m.from, m.to, m.power, 0});
    return out;
}

// Position of `p` along `s` (mm from s.a), or NaN when p is off its line.
double along(const Burn &s, const QPointF &p)
{
    const double len = s.length();
    const QPointF d = (s.b - s.a) / len;
    const QPointF v = p - s.a;
    const double cross = d.x() * v.y() - d.y() * v.x();
    if (std::fabs(cross) > 1e-3)
        return std::nan("");
    return d.x() * v.x() + d.y() * v.y();
}

bool inside(const Burn &part, const Burn &s)
{
    const double t0 = along(s, part.a), t1 = along(s, part.b);
    const double len = s.length();
    return !std::isnan(t0) && !std::isnan(t1) && t0 >= -1e-3 && t1 >= -1e-3 && t0 <= len + 1e-3
           && t1 <= len + 1e-3 && std::fabs(part.power - s.power) < 1e-6;
}

struct Run
{
    int exitCode = -1;
    QString out;
};

} // namespace

void TestResumeRun::initTestCase()
{
    m_seed = qEnvironmentVariableIsSet("LUMITRA_RESUME_SEED")
                 ? quint32(qEnvironmentVariableIntValue("LUMITRA_RESUME_SEED"))
                 : QRandomGenerator::system()->generate();
    qInfo("seed %u (set LUMITRA_RESUME_SEED to repeat)", m_seed);
}

void TestResumeRun::interruptAndResume_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<int>("exitCode");
    QTest::newRow("alarm") << "alarm" << int(HeadlessMachineFault);
    QTest::newRow("port lost") << "port lost" << int(HeadlessPortLost);
    QTest::newRow("stop (SIGTERM)") << "stop" << int(HeadlessStopped);
}

void TestResumeRun::interruptAndResume()
{
    QFETCH(QString, kind);
    QFETCH(int, exitCode);
    QRandomGenerator random(m_seed + quint32(qHash(kind)));
    QTemporaryDir dir;
    const QStringList job = makeJob(random);
    const QString file = dir.filePath("job.nc");
    {
        QFile f(file);
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write((job.join('\n') + '\n').toLatin1());
    }
    // Fake lines: "$i" first, then the job; interrupt somewhere inside it.
    const int at = 10 + int(random.bounded(job.size() - 30));
    qInfo("%s at received line %d of %d", qPrintable(kind), at, int(job.size()));

    GrblFake::Options o;
    o.motionMsPerLine = 8;
    GrblFake first(o);
    if (kind == "alarm")
        first.alarmAtLine(at, 1);
    QVERIFY(first.start());

    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("XDG_DATA_HOME", dir.filePath("data"));
    env.insert("XDG_RUNTIME_DIR", dir.path());
    env.remove("DISPLAY");
    auto start = [&](QProcess &app, const QString &port, const QStringList &more) {
        app.setProcessEnvironment(env);
        app.start(LUMITRA_EXE, QStringList{"--port", port, "--run", file} + more);
        return app.waitForStarted();
    };

    QProcess app;
    QVERIFY(start(app, first.portName(), {}));
    if (kind != "alarm") {
        QTRY_VERIFY_WITH_TIMEOUT(first.lineCount() >= at, 20000);
        if (kind == "port lost")
            first.closeFarEnd();
        else
            app.terminate();
    }
    QTRY_COMPARE_WITH_TIMEOUT(app.state(), QProcess::NotRunning, 40000);
    const QString out = QString::fromUtf8(app.readAllStandardOutput());
    QCOMPARE(app.exitCode(), exitCode);
    const auto m = QRegularExpression("stopped after line (\\d+) was answered, line (\\d+) "
                                      "sent; resume from line (\\d+)\n")
                       .match(out);
    QVERIFY2(m.hasMatch(), qPrintable(out));
    const int answered = m.captured(1).toInt();
    const int sent = m.captured(2).toInt();
    const int from = m.captured(3).toInt();
    // An unplugged controller also runs the lines still waiting in its input;
    // a stopped one may have planned a line whose "ok" was still on its way
    // when the sender quit. Only an alarm halts the machine at once.
    const int mayHaveRun = kind == "alarm" ? answered : sent;
    qInfo("answered %d, resume from %d", answered, from);
    QVERIFY(from >= 1 && from <= answered + 1 && answered <= sent);
    QCOMPARE(out.contains("home it or set the origin"), kind != "port lost");
    QTRY_COMPARE_WITH_TIMEOUT(first.blocksQueued(), 0, 10000); // an unplugged machine goes on

    // Resume: homing clears the alarm; an unplugged controller is a fresh one.
    GrblFake second(o);
    GrblFake &machine = kind == "port lost" ? second : first;
    if (kind == "port lost")
        QVERIFY(second.start());
    QProcess resumed;
    QStringList more{"--from-line", QString::number(from)};
    if (kind == "alarm")
        more << "--home";
    QVERIFY(start(resumed, machine.portName(), more));
    QTRY_COMPARE_WITH_TIMEOUT(resumed.state(), QProcess::NotRunning, 30000);
    const QString out2 = QString::fromUtf8(resumed.readAllStandardOutput());
    QVERIFY2(resumed.exitCode() == int(HeadlessDone),
             qPrintable(out2 + QString::fromUtf8(resumed.readAllStandardError())));
    QVERIFY2(out2.endsWith("done\n"), qPrintable(out2));

    QList<Burn> ran = machineBurns(first);
    if (kind == "port lost")
        ran += machineBurns(second);
    const QList<Burn> wanted = jobBurns(job);

    // Nothing burns off the job (the head is never fired on the way back).
    for (const Burn &b : ran) {
        bool found = false;
        for (const Burn &w : wanted)
            found = found || inside(b, w);
        QVERIFY2(found, qPrintable(QString("stray burn %1,%2 -> %3,%4")
                                       .arg(b.a.x())
                                       .arg(b.a.y())
                                       .arg(b.b.x())
                                       .arg(b.b.y())));
    }
    // Every burn of the job is covered: no gap.
    double wantedLength = 0.0, mayRepeat = 0.0;
    for (const Burn &w : wanted) {
        wantedLength += w.length();
        if (w.line >= from && w.line <= mayHaveRun)
            mayRepeat += w.length();
        QList<QPair<double, double>> spans;
        for (const Burn &b : ran)
            if (inside(b, w)) {
                const double t0 = along(w, b.a), t1 = along(w, b.b);
                spans.append({qMin(t0, t1), qMax(t0, t1)});
            }
        std::sort(spans.begin(), spans.end());
        double covered = 0.0;
        for (const auto &s : spans)
            if (s.first <= covered + 1e-3)
                covered = qMax(covered, s.second);
        QVERIFY2(covered >= w.length() - 1e-3, qPrintable(QString("gap in line %1").arg(w.line)));
    }
    // Burnt twice: at most the lines answered but not known to have run.
    double ranLength = 0.0;
    for (const Burn &b : ran)
        ranLength += b.length();
    QVERIFY2(ranLength - wantedLength <= mayRepeat + 1e-3,
             qPrintable(QString("%1 mm burnt twice, %2 mm allowed")
                            .arg(ranLength - wantedLength)
                            .arg(mayRepeat)));
}

QTEST_GUILESS_MAIN(TestResumeRun)
#include "tst_resume_run.moc"
