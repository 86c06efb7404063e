// A job laid out in time, for playing it back: every line with the moment the
// controller has run it, every move with its line and layer, and where the head
// is at any moment.
//
// Times come from the controller's own motion planning when its settings are
// given (GrblTimeEstimator, per line); otherwise every move takes its length
// at its programmed feed (rapids at JobSimulator::kRapidFeed). A line runs from
// the end of the line before to its own end; its move is spread evenly over
// that span, so the head moves at the line's mean speed.
// Layers are told by the comment lines the generator writes before each layer
// (";" and the layer's name). Plain class, any thread. Units: mm (machine
// coordinates, Y up), seconds.
#pragma once

#include "grbl_machine_settings.h"

#include <QByteArray>
#include <QIODevice>
#include <QPointF>
#include <QRectF>
#include <QString>
#include <QStringList>
#include <QVector>

struct TimelineMove
{
    QPointF from;
    QPointF to;
    float power = 0.0f; // S value
    int line = 0;       // index of the line it comes from
    short layer = -1;   // index into layerNames(), -1 before the first layer
    bool burning = false;
};

class JobTimeline
{
public:
    // Reads the whole job from its current position. False (and an empty
    // timeline) when it cannot be read.
    bool load(QIODevice &job, const GrblMachineSettings *machine = nullptr);

    int lineCount() const { return m_lineEnds.size(); }
    // The line as written, without its end ("" out of range).
    QString lineText(int line) const;
    double totalSeconds() const { return m_lineEnds.isEmpty() ? 0.0 : m_lineEnds.last(); }
    // When a line starts and ends (clamped to the job).
    double lineStart(int line) const;
    double lineEnd(int line) const;
    // The line running at `seconds`: the first that ends after it; the last
    // line from the end of the job on; -1 for an empty job.
    int lineAt(double seconds) const;

    const QVector<TimelineMove> &moves() const { return m_moves; }
    // Moves finished by `seconds`; `fraction` (optional) says how far the
    // next one has come (0 when it has not started).
    int movesDone(double seconds, double *fraction = nullptr) const;
    // The head at `seconds` (the origin before the first move).
    QPointF headAt(double seconds) const;

    // Layer names in the order the job reaches them.
    const QStringList &layerNames() const { return m_layers; }
    // The extent of every move, machine mm (null for a job without moves).
    QRectF bounds() const { return m_bounds; }
    bool timedByMachine() const { return m_byMachine; }

    // A layer name as the generator writes it into its comment: at most 79
    // characters, and everything outside printable ASCII, "?", "!" and "~"
    // as "_" (the controller would take those for real-time commands); trimmed,
    // as layerNames() holds it.
    static QString commentName(const QString &layerName);

private:
    QByteArray m_text;
    QVector<int> m_lineStarts; // offsets into m_text
    QVector<double> m_lineEnds;
    QVector<TimelineMove> m_moves;
    QStringList m_layers;
    QRectF m_bounds;
    bool m_byMachine = false;
};
