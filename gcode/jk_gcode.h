// The G-code job generator.
//
// kai_shi_zhuan_huan writes one complete job for a list of design items:
//   "M4\nM8\n", the pending preamble (then cleared), the rotary start bump,
//   then for every layer in list order whose output is on: ";" + its name,
//   and `cishu` times the layer's items (vector items by line, fill or cross
//   fill; bitmap items by raster engraving; line cuts moved by half the
//   layer's kerf and, when the layer asks, in the optimised cut order of
//   cut_order.h), and finally the trailer
//   "M9\nG1S0\nM5\nG90\nG0X0Y0\nM2\nM30\n".
// A job start (job_origin.h) other than absolute moves every coordinate so
// that the chosen anchor of the output bounds lands on the start point; a job
// started at the current position ends with the head back there
// ("G0X<x>Y<y>" in the trailer). Absolute jobs are written as they always were.
// Numbers are millimetres and mm/min with two decimals, Y negated (machine Y
// points up the screen), S = power percent x 10. Generation is synchronous on
// the caller's thread; it polls programState().cancel and, when that is set,
// stops after the current element and item but still writes the trailer.
// The file is written through a temporary file and replaced only when the
// whole job was written, so a failed run leaves the old file as it was.
#pragma once

#include "job_origin.h"
#include "raster_words.h"
#include "rotary.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QString>
#include <optional>

class Jk_tu_yuan;
class LayerList;
struct TuCeng;

namespace lumitra {
class JobOutput;
class PathEmitter;
} // namespace lumitra

class Jk_gcode : public QObject
{
    Q_OBJECT

public:
    explicit Jk_gcode(QObject *parent = nullptr);

    // The job file used for an empty path: "code.txt" in the settings folder.
    static QString defaultJobPath();

    // The layers to walk; the program-wide list unless set. Not owned.
    void setLayerList(const LayerList *layers);
    // Rotary settings for the next jobs; unless set they are read from the
    // settings store at the start of every job.
    void setRotarySettings(const lumitra::RotarySettings &settings);
    // Where the next jobs start; absolute unless set.
    void setJobStart(const lumitra::JobStart &start) { m_start = start; }
    const lumitra::JobStart &jobStart() const { return m_start; }
    // The shift the last job was written with (machine mm).
    QPointF lastShift() const { return m_lastShift; }

    // Why the last job failed (empty after a success).
    QString lastError() const { return m_lastError; }
    // Bytes written by the last job.
    qint64 lastJobSize() const { return m_lastJobSize; }

    // Bitmap layers are written with raster words (raster_words.h) unless
    // this is switched off (then with two decimals everywhere, as vectors).
    void setRasterWords(bool on) { m_rasterWords = on; }
    bool rasterWords() const { return m_rasterWords; }
    // The controller's PWM steps the raster power is fitted to.
    void setPowerSteps(const lumitra::PowerSteps &steps) { m_powerSteps = steps; }
    // Speeds (mm/min) to use instead of the layer's for the next job only,
    // by bitmap layer; cleared when that job has been written.
    void setRasterFeedCaps(const QHash<const TuCeng *, double> &caps) { m_feedCaps = caps; }

    // One bitmap layer of the last job: its bytes and the length of its
    // moves at feed speed, at `feed` mm/min.
    struct RasterSection
    {
        const TuCeng *layer = nullptr;
        QString name;
        qint64 bytes = 0;
        double feedLength = 0.0;
        double feed = 0.0;
    };
    const QList<RasterSection> &lastRasterSections() const { return m_rasterSections; }

public slots:
    // Writes the job for `tysz` (items in scene order) to `path`, or to
    // defaultJobPath() when `path` is empty. Returns false, without emitting
    // zhuan_huan_wan_cheng and without touching the file, when the file cannot
    // be written, the rotary settings in use are not usable, or the job should
    // start at the current position and that is not known.
    bool kai_shi_zhuan_huan(const QList<Jk_tu_yuan *> &tysz, const QString &path);

signals:
    // The job file is complete and closed.
    void zhuan_huan_wan_cheng();

private:
    void emitLayer(const TuCeng &layer, const QList<Jk_tu_yuan *> &items,
                   lumitra::JobOutput &output, lumitra::PathEmitter &emitter);
    // A vector layer whose outlines are cut in the optimised order.
    void emitOptimisedLayer(const TuCeng &layer, const QList<const Jk_tu_yuan *> &items,
                            lumitra::PathEmitter &emitter);

    const LayerList *m_layers = nullptr;
    std::optional<lumitra::RotarySettings> m_rotary;
    lumitra::JobStart m_start;
    QPointF m_lastShift;
    QString m_lastError;
    qint64 m_lastJobSize = 0;
    bool m_rasterWords = true;
    lumitra::PowerSteps m_powerSteps;
    QHash<const TuCeng *, double> m_feedCaps;
    QList<RasterSection> m_rasterSections;
};
