// Turns toolpaths into G0/G1 lines for one layer.
//
// Words: X is the scene x and Y the negated scene y, both in millimetres with
// two decimals; S is the layer's power times 10 (S800.00 for 80 %), F its speed
// in mm/min. Moves are written "G0X..Y..S..F..", burns "G1X..Y..S..F..",
// coasts (laser off at feed speed) "G1X..Y..S0.00F..", curve samples
// "G1X..Y.." alone. Gaps in a raster row of one power are rapids "G0X..":
// the controller (in laser mode, which every job assumes: its travels run
// with the laser enabled) switches the laser off on them, so neither the gap
// nor the burn after it needs a power word. The lines of a path are flushed to the job's output
// (compaction, rotary rewrite, file) whenever they pass 30000 characters after
// an element, and at the end of every path.
//
// The buffer does not hold those lines word for word: a X, Y, S or F word whose
// text equals the last one of its letter kept since the last flush is left out
// as it is written, because the modal compaction would drop it anyway. Lines
// keep their G word, and the 30000-character count is kept on the full lines,
// so the compacted job is exactly that of the full text; it is only cheaper to
// build and to scan.
//
// A path is either a painter path given whole to emitPath, or a stream of
// sink calls between beginPath and endPath. Once the cancel flag is set every
// further element is ignored. Single thread.
#pragma once

#include "gcode_number.h"
#include "raster_words.h"
#include "rotary.h"
#include "toolpath_sink.h"

#include <QByteArray>
#include <QPointF>
#include <QVector>
#include <atomic>
#include <cmath>
#include <vector>

class QPainterPath;
struct TuCeng;

namespace lumitra {

class JobOutput;

class PathEmitter final : public ToolpathSink
{
public:
    // Full-text size in characters above which the lines are flushed.
    static constexpr int kFlushThreshold = 30000;

    // `cancel` may be null (never cancelled). `output` must outlive the emitter.
    PathEmitter(JobOutput &output, const RotarySettings &rotary, const std::atomic_bool *cancel);

    // Takes the power and speed words of a layer for the paths that follow.
    // `feedCap` (mm/min, when positive) lowers the speed of raster paths.
    void setLayer(const TuCeng &layer, double feedCap = 0.0);
    // Raster words (raster_words.h) for the paths that follow: numbers without
    // trailing zeros, S whole (grey powers on the controller's power steps).
    // Off, every number has two decimals.
    //
    // With raster words on (and no rotary rewrite, whose per-number rounding
    // would add up), a path's first move is written in absolute coordinates
    // and the rest of it as increments after "G91": a 0.1 mm pixel is "X.1"
    // instead of "X224.13". Each increment is the difference of two positions
    // rounded to the hundredth, so the sum of any number of them lands exactly
    // where the absolute line would. The buffer returns to "G90" before every
    // flush (and takes up "G91" again after it inside a path), so each piece
    // of the job starts and ends in absolute mode.
    void setRasterWords(bool on, const PowerSteps &steps = PowerSteps());
    bool rasterWords() const { return m_raster; }
    // Length in mm of the moves at feed speed (burns and coasts) written so
    // far; raster sections divide their bytes by the time it takes.
    double feedLength() const { return m_feedLength; }
    // Moves everything written from now on by `machineShift` (mm, machine
    // axes: X as written, Y up). A zero shift writes the numbers untouched.
    void setShift(const QPointF &machineShift);

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
    void gap(double x, double y) override;
    void burnGrey(double x, double y, int grey) override;
    bool stopRequested() const override { return cancelled(); }

    bool cancelled() const { return m_cancel && m_cancel->load(std::memory_order_relaxed); }

private:
    // A word's number. Short texts (all but absurd coordinates) are held as
    // two machine words, compared and copied as such; a wide text is written
    // as it is and never taken as unchanged (the compaction still drops it if
    // it is).
    struct NumberText
    {
        PackedNumber packed;
        bool wide = false;
        char text[kMaxFixedChars]; // the wide text
        int wideLength = 0;
        int length() const { return wide ? wideLength : packed.length; }
        void set(double value);
        void setShort(double value); // raster words: no trailing zeros
    };
    // The last value kept for one letter in the current piece.
    struct KeptValue
    {
        PackedNumber packed;
        bool valid = false;
        // True, and remembered, when `value` must be written.
        bool keep(const NumberText &value);
    };

    // Recently formatted x values: raster lines cross the same pixel borders
    // again and again.
    struct CachedX
    {
        double value = std::nan(""); // never equal: an empty slot
        PackedNumber text;
        qint64 hundredths = 0; // the text's value in hundredths
    };
    // Increments of up to this many hundredths (either sign) have their text
    // made once.
    static constexpr int kIncrementCache = 2048;
    static constexpr int kXCacheBits = 12;

    void formatX(double x, NumberText &out, qint64 &hundredths);
    // `atFeed`: the move counts towards feedLength() (burns, coasts and
    // raster gaps, which are too short for the head to outrun the feed).
    void writeLine(char motion, double x, double y, const NumberText *power, bool atFeed);
    char *writeRelativeWords(char *p, qint64 x, qint64 y);
    const NumberText &incrementText(qint64 delta);
    void enterRelative();
    void leaveRelative();
    static char *writeWord(char *out, char letter, const NumberText &value);
    void appendRaw(const QByteArray &text);
    char *reserve(size_t room);
    void elementDone();
    void flush();

    JobOutput &m_output;
    const std::atomic_bool *m_cancel;
    bool m_shifted = false;      // the job is moved (job start point)
    double m_shiftX = 0.0;       // added to scene x
    double m_shiftY = 0.0;       // added to scene y (minus the machine shift)
    QByteArray m_pathBump;       // after the first move of a path (rotary on axis X)
    NumberText m_power;          // the layer's power (S)
    NumberText m_zeroPower;      // S for coasting
    NumberText m_greyPower[256]; // S scaled by grey level
    NumberText m_feed;           // the layer's speed (F)
    // Raster words: the same texts, short and on the power steps.
    bool m_raster = false;
    PowerSteps m_steps;
    double m_layerPower = 0.0;
    bool m_fineCurves = false; // the layer samples curves to kFineCurveDeviation
    double m_layerFeed = 0.0;
    double m_feedCap = 0.0;
    NumberText m_rasterPower;
    NumberText m_rasterZero;
    NumberText m_rasterGrey[256];
    NumberText m_rasterFeed;
    double m_feedLength = 0.0;
    // Relative raster rows.
    const bool m_relativeAllowed;         // off under the rotary rewrite
    bool m_relative = false;              // "G91" is in force in the buffer
    bool m_pathRelative = false;          // the current path continues in increments
    qint64 m_atX = 0;                     // where the last line left the head, in
    qint64 m_atY = 0;                     // hundredths of the X and Y words
    qint64 m_yHundredths = 0;             // m_yText's value
    std::vector<NumberText> m_increments; // texts of small increments
    NumberText m_wideIncrement;
    double m_lastX = 0.0; // where the last line went (scene)
    double m_lastY = 0.0;
    std::vector<char> m_buffer;
    size_t m_used = 0;
    size_t m_fullLength = 0;                      // characters of the full lines in the buffer
    int m_index = 0;                              // element index within the current path
    KeptValue m_keptX, m_keptY, m_keptS, m_keptF; // last kept in the current piece
    double m_cachedY = 0.0;                       // last y formatted and its text
    bool m_haveCachedY = false;
    NumberText m_yText;
    std::vector<CachedX> m_xCache;
    QVector<QPointF> m_samples; // reused for curve samples
};

} // namespace lumitra
