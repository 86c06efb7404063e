#include "jk_gcode.h"

#include "bitmap_raster.h"
#include "cut_order.h"
#include "fill_hatch.h"
#include "gcode_number.h"
#include "jk_tu_yuan.h"
#include "job_output.h"
#include "layer_list.h"
#include "path_emitter.h"
#include "path_offset.h"
#include "path_parts.h"
#include "program_state.h"
#include "settings_store.h"

#include <QDebug>
#include <QElapsedTimer>
#include <QSaveFile>

using namespace lumitra;

namespace {

const QByteArray kHeader("M4\nM8\n");
const QByteArray kTrailer("M9\nG1S0\nM5\nG90\nG0X0Y0\nM2\nM30\n");
// GRBL reads at most this many characters of a line.
constexpr int kMaxLineLength = 80;

// ";" and the layer's name. GRBL takes bytes above 127 and the characters
// "?", "!" and "~" as real-time commands even inside a comment, so those are
// written as "_"; the line is kept within GRBL's line length.
QByteArray layerComment(const QString &name)
{
    QByteArray line(";");
    for (const QChar c : name) {
        if (line.size() >= kMaxLineLength)
            break;
        const ushort u = c.unicode();
        const bool safe = u >= 0x20 && u < 0x7f && u != '?' && u != '!' && u != '~';
        line.append(safe ? char(u) : '_');
    }
    line.append('\n');
    return line;
}

// The trailer of a job started at the current position: the head goes back to
// where it started, so the same job can be run again at the same place.
QByteArray trailerBackTo(const QPointF &head)
{
    return QByteArray("M9\nG1S0\nM5\nG90\nG0X") + fixedText(head.x(), 2) + 'Y'
           + fixedText(head.y(), 2) + QByteArray("\nM2\nM30\n");
}

HatchSettings hatchSettingsOf(const TuCeng &layer)
{
    HatchSettings s;
    s.angle = layer.fangxiang;
    s.spacing = layer.jianju;
    s.overscan = layer.saomiao;
    s.oneDirection = layer.danxiang;
    return s;
}

} // namespace

Jk_gcode::Jk_gcode(QObject *parent) : QObject(parent) {}

QString Jk_gcode::defaultJobPath()
{
    return config_dir() + QStringLiteral("/code.txt");
}

void Jk_gcode::setLayerList(const LayerList *layers)
{
    m_layers = layers;
}

void Jk_gcode::setRotarySettings(const RotarySettings &settings)
{
    m_rotary = settings;
}

bool Jk_gcode::kai_shi_zhuan_huan(const QList<Jk_tu_yuan *> &tysz, const QString &path)
{
    QElapsedTimer timer;
    timer.start();
    m_lastError.clear();
    m_lastJobSize = 0;
    m_lastShift = QPointF();
    const LayerList &layers = m_layers ? *m_layers : LayerList::instance();
    QPointF shift;
    if (!jobShift(m_start, m_start.relative() ? jobBounds(tysz, layers) : QRectF(), &shift)) {
        m_lastError = tr("当前位置未知");
        qDebug() << "gcode: start at the current position without a known position";
        return false;
    }
    const RotarySettings rotary = m_rotary ? *m_rotary : loadRotarySettings();
    if (!rotary.isUsable()) {
        m_lastError = tr("滚轴参数无效");
        qDebug() << "gcode: unusable rotary settings";
        return false;
    }
    QSaveFile file(path.isEmpty() ? defaultJobPath() : path);
    if (!file.open(QIODevice::WriteOnly)) {
        m_lastError = file.errorString();
        qDebug() << "gcode: cannot open" << file.fileName() << m_lastError;
        return false;
    }

    ProgramState &state = programState();
    JobOutput output(file, rotary);
    PathEmitter emitter(output, rotary, &state.cancel);
    emitter.setShift(shift);
    output.writeText(kHeader);
    output.writeText(state.preamble.toLocal8Bit());
    state.preamble.clear();
    output.writeText(rotaryStartBump(rotary, state.modelFlag));

    m_rasterSections.clear();
    for (const TuCeng *layer : layers.layers()) {
        if (layer->shuchu)
            emitLayer(*layer, tysz, output, emitter);
    }
    output.writeText(m_start.mode == StartMode::CurrentPosition ? trailerBackTo(m_start.head)
                                                                : kTrailer);

    if (!output.finish() || !file.commit()) {
        m_lastError = file.errorString();
        file.cancelWriting();
        qDebug() << "gcode: writing failed" << file.fileName() << m_lastError;
        return false;
    }
    m_feedCaps.clear();
    m_lastJobSize = output.bytesWritten();
    m_lastShift = shift;
    qDebug() << " 转换花费的时间" << timer.elapsed();
    emit zhuan_huan_wan_cheng();
    return true;
}

void Jk_gcode::emitLayer(const TuCeng &layer, const QList<Jk_tu_yuan *> &items, JobOutput &output,
                         PathEmitter &emitter)
{
    QList<const Jk_tu_yuan *> own;
    for (const Jk_tu_yuan *item : items) {
        if (item && item->is_bitmap == layer.tupian && item->layer_id == layer.yanse)
            own.append(item);
    }
    output.writeText(layerComment(layer.mingcheng));
    const double feedCap = layer.tupian ? m_feedCaps.value(&layer, 0.0) : 0.0;
    emitter.setLayer(layer, feedCap);
    const bool raster = layer.tupian && m_rasterWords;
    emitter.setRasterWords(raster, m_powerSteps);
    RasterSection section;
    section.layer = &layer;
    section.name = layer.mingcheng;
    section.feed = feedCap > 0 && raster ? qMin<double>(layer.sudu, feedCap) : layer.sudu;
    const qint64 bytesBefore = output.bytesWritten();
    const double lengthBefore = emitter.feedLength();
    struct Record
    {
        Jk_gcode *self;
        RasterSection &section;
        JobOutput &output;
        PathEmitter &emitter;
        qint64 bytesBefore;
        double lengthBefore;
        ~Record()
        {
            if (!section.layer->tupian)
                return;
            section.bytes = output.bytesWritten() - bytesBefore;
            section.feedLength = emitter.feedLength() - lengthBefore;
            self->m_rasterSections.append(section);
        }
    } record{this, section, output, emitter, bytesBefore, lengthBefore};
    const std::atomic_bool &cancel = programState().cancel;
    if (!layer.tupian && layer.cutOrder == CutOptimised) {
        emitOptimisedLayer(layer, own, emitter);
        return;
    }
    // Kerf moves outer outlines out and holes in, by their nesting in the layer.
    QVector<QPainterPath> cuts;
    if (!layer.tupian && layer.kerf > 0 && layer.moshi != FillMode)
        cuts = layerLineOutlines(own, layer);
    for (int pass = 0; pass < layer.cishu; ++pass) {
        for (int index = 0; index < own.size(); ++index) {
            const Jk_tu_yuan *item = own.at(index);
            if (cancel)
                return;
            if (item->is_bitmap) {
                emitter.beginPath();
                engraveBitmapItem(*item, layer, emitter, raster ? &m_powerSteps : nullptr);
                emitter.endPath();
                continue;
            }
            const QPainterPath outline = item->sceneTransform().map(item->path);
            if (layer.moshi == FillMode || layer.moshi == CrossFillMode) {
                emitter.beginPath();
                hatchOutline(outline, hatchSettingsOf(layer), emitter);
                emitter.endPath();
            }
            if (layer.moshi == LineMode || layer.moshi == CrossFillMode) {
                emitter.emitPath(cuts.isEmpty() ? outline : cuts.at(index));
            } else if (layer.moshi == FillMode && hasOpenSubpath(outline)) {
                // A fill has nothing to hatch in an open outline: it is burnt
                // as a line, as the canvas draws it, rather than left out.
                emitter.emitPath(splitByClosure(outline).open);
            }
        }
    }
}

void Jk_gcode::emitOptimisedLayer(const TuCeng &layer, const QList<const Jk_tu_yuan *> &items,
                                  PathEmitter &emitter)
{
    // Every pass: the hatches item by item, then the outlines in cut order.
    const QVector<QPainterPath> pieces = layerLinePieces(items, layer);
    const QVector<int> order = optimisedCutOrder(pieces, QPointF());
    const std::atomic_bool &cancel = programState().cancel;
    for (int pass = 0; pass < layer.cishu; ++pass) {
        if (layer.moshi == FillMode || layer.moshi == CrossFillMode) {
            for (const Jk_tu_yuan *item : items) {
                if (cancel)
                    return;
                emitter.beginPath();
                hatchOutline(item->sceneTransform().map(item->path), hatchSettingsOf(layer),
                             emitter);
                emitter.endPath();
            }
        }
        for (int i : order) {
            if (cancel)
                return;
            emitter.emitPath(pieces[i]);
        }
    }
}
