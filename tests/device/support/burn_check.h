#pragma once

// Comparing what a machine burnt with what a job burns, for the resume tests:
// no stray burn, no gap, and no more burnt twice than allowed.
#include "job_simulator.h"

#include <QDir>
#include <QFile>
#include <QList>
#include <QPointF>
#include <QRandomGenerator>
#include <QString>
#include <QStringList>
#include <QTemporaryFile>
#include <algorithm>
#include <cmath>

namespace burn_check {

struct Burn
{
    QPointF a, b;
    double power = 0.0;
    int line = 0; // job line (1-based); 0 for what the machine ran
    double length() const { return std::hypot(b.x() - a.x(), b.y() - a.y()); }
};

// Vector squares in absolute coordinates, then raster rows as relative moves
// with the power changing along each row, in dynamic laser mode. `pick(n)`
// gives a number below n.
template<typename Pick> QStringList makeJob(Pick &&pick)
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
            const int s = int(pick(4)) * 300; // 0, 300, 600, 900
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

// The seed of a resume test: LUMITRA_RESUME_SEED when set (to repeat a run),
// else a fresh one; printed either way.
inline quint32 resumeSeed()
{
    const quint32 seed = qEnvironmentVariableIsSet("LUMITRA_RESUME_SEED")
                             ? quint32(qEnvironmentVariableIntValue("LUMITRA_RESUME_SEED"))
                             : QRandomGenerator::system()->generate();
    qInfo("seed %u (set LUMITRA_RESUME_SEED to repeat)", seed);
    return seed;
}

// Writes `job` to `path`, one line each; false when it cannot.
inline bool writeJob(const QString &path, const QStringList &job)
{
    QFile f(path);
    const QByteArray bytes = (job.join('\n') + '\n').toLatin1();
    return f.open(QIODevice::WriteOnly) && f.write(bytes) == bytes.size();
}

// Writes `job` to a fresh temporary file (gone with `file`).
inline bool writeTemporaryJob(QTemporaryFile &file, const QStringList &job)
{
    file.setFileTemplate(QDir::temp().filePath(QStringLiteral("lumitra-XXXXXX.nc")));
    if (!file.open())
        return false;
    file.close();
    return writeJob(file.fileName(), job);
}

// The burns among moves a machine ran (anything with from, to, burning, power).
template<typename Moves> QList<Burn> machineBurns(const Moves &moves)
{
    QList<Burn> out;
    for (const auto &m : moves)
        if (m.burning && m.from != m.to)
            out.append({m.from, m.to, m.power, 0});
    return out;
}

inline QList<Burn> jobBurns(const QStringList &job)
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

// Position of `p` along `s` (mm from s.a), or NaN when p is off its line.
inline double along(const Burn &s, const QPointF &p)
{
    const double len = s.length();
    const QPointF d = (s.b - s.a) / len;
    const QPointF v = p - s.a;
    const double cross = d.x() * v.y() - d.y() * v.x();
    if (std::fabs(cross) > 1e-3)
        return std::nan("");
    return d.x() * v.x() + d.y() * v.y();
}

inline bool inside(const Burn &part, const Burn &s)
{
    const double t0 = along(s, part.a), t1 = along(s, part.b);
    const double len = s.length();
    return !std::isnan(t0) && !std::isnan(t1) && t0 >= -1e-3 && t1 >= -1e-3 && t0 <= len + 1e-3
           && t1 <= len + 1e-3 && std::fabs(part.power - s.power) < 1e-6;
}

// What is wrong with `ran` as the burns of `job` resumed from line `from`,
// where the machine may have run lines up to `mayHaveRun` before it stopped
// (those from `from` on may burn twice); empty when nothing is.
inline QString compare(const QStringList &job, const QList<Burn> &ran, int from, int mayHaveRun)
{
    const QList<Burn> wanted = jobBurns(job);
    // Nothing burns off the job (the head is never fired on the way back).
    for (const Burn &b : ran) {
        bool found = false;
        for (const Burn &w : wanted)
            found = found || inside(b, w);
        if (!found)
            return QString("stray burn %1,%2 -> %3,%4")
                .arg(b.a.x())
                .arg(b.a.y())
                .arg(b.b.x())
                .arg(b.b.y());
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
        if (covered < w.length() - 1e-3)
            return QString("gap in line %1").arg(w.line);
    }
    // Burnt twice: at most the lines that may have run before the stop.
    double ranLength = 0.0;
    for (const Burn &b : ran)
        ranLength += b.length();
    if (ranLength - wantedLength > mayRepeat + 1e-3)
        return QString("%1 mm burnt twice, %2 mm allowed")
            .arg(ranLength - wantedLength)
            .arg(mayRepeat);
    return QString();
}

} // namespace burn_check
