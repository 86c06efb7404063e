// Turns toolpaths into G0/G1 lines for one layer.
//
// Words: X is the scene x and Y the negated scene y, both in millimetres with
// two decimals; S is the layer's power times 10 (S800.00 for 80 %), F its speed
// in mm/min. Moves are written "G0X..Y..S..F..", burns "G1X..Y..S..F..",
// coasts (laser off at feed speed) "G1X..Y..S0.00F..", curve samples
// "G1X..Y.." alone. Lines collect in a buffer that is flushed to the job's
// output (compaction, rotary rewrite, file) whenever it passes 30000
// characters after an element, and at the end of every path.
//
// A path is either a painter path given whole to emitPath, or a stream of
// sink calls between beginPath and endPath. Once the cancel flag is set every
// further element is ignored. Single thread.
#pragma once

#include "rotary.h"
#include "toolpath_sink.h"

#include <QByteArray>
#include <QPointF>
#include <QVector>
#include <atomic>
#include <vector>

class QPainterPath;
struct TuCeng;

namespace lumitra {

class JobOutput;

class PathEmitter final : public ToolpathSink
{
public:
    // Buffer size in characters above which the buffer is flushed.
    static constexpr int kFlushThreshold = 30000;

    // `cancel` may be null (never cancelled). `output` must outlive the emitter.
    PathEmitter(JobOutput &output, const RotarySettings &rotary, const std::atomic_bool *cancel);

    // Takes the power and speed words of a layer for the paths that follow.
    void setLayer(const TuCeng &layer);

    // Emits a whole path in scene coordinates: move elements as moves, line
    // elements as burns, cubic curves as samples about 0.8 mm apart along
    // their length.
    void emitPath(const QPainterPath &scenePath);

    // A streamed path: the sink calls in between form one path.
    void beginPath();
    void endPath();

    void travel(double x, double y) override;
    void burn(double x, double y) override;
    void coast(double x, double y) override;
    void burnGrey(double x, double y, int grey) override;
    bool stopRequested() const override { return cancelled(); }

    bool cancelled() const { return m_cancel && m_cancel->load(std::memory_order_relaxed); }

private:
    void writeLine(const char *prefix, double x, double y, const QByteArray &suffix);
    void elementDone();
    void flush();

    JobOutput &m_output;
    const std::atomic_bool *m_cancel;
    QByteArray m_pathBump;       // after the first move of a path (rotary on axis X)
    QByteArray m_fullWords;      // "S<power>F<speed>\n"
    QByteArray m_coastWords;     // "S0.00F<speed>\n"
    QByteArray m_greyWords[256]; // "S<scaled power>F<speed>\n" by grey level
    QByteArray m_bareEnd;        // "\n"
    std::vector<char> m_buffer;
    size_t m_used = 0;
    int m_index = 0;        // element index within the current path
    double m_cachedY = 0.0; // last y written and its text
    bool m_haveCachedY = false;
    char m_cachedYText[40];
    int m_cachedYLength = 0;
    QVector<QPointF> m_samples; // reused for curve samples
};

} // namespace lumitra
