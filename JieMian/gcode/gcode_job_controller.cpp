#include "gcode_job_controller.h"

#include "gun_zhou.h"
#include "jk_gcode.h"
#include "jk_tu_yuan.h"
#include "layer_list.h"
#include "message_box.h"
#include "program_state.h"
#include "rotary.h"
#include "work_area_check.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QHash>
#include <QStringList>

using namespace lumitra;

namespace {

QString chooseWithDialog(QWidget *parent, const QString &suggestion)
{
    return QFileDialog::getSaveFileName(parent, GcodeJobController::tr("保存G代码"), suggestion,
                                        GcodeJobController::tr("G代码 (*.nc *.gcode)"));
}

} // namespace

GcodeJobController::GcodeJobController(QWidget *dialogParent, QObject *parent)
    : QObject(parent), m_parent(dialogParent), m_generator(new Jk_gcode(this)),
      m_chooser(chooseWithDialog)
{
}

void GcodeJobController::setLayerList(const LayerList *layers)
{
    m_layers = layers;
    m_generator->setLayerList(layers);
}

void GcodeJobController::setFileChooser(FileChooser chooser)
{
    m_chooser = chooser ? std::move(chooser) : FileChooser(chooseWithDialog);
}

void GcodeJobController::setJobStartSource(std::function<JobStart()> source)
{
    m_startSource = std::move(source);
}

JobStart GcodeJobController::currentJobStart() const
{
    return m_startSource ? m_startSource() : loadJobStart();
}

const LayerList &GcodeJobController::layers() const
{
    return m_layers ? *m_layers : LayerList::instance();
}

bool GcodeJobController::placeJob(const QList<Jk_tu_yuan *> &items, bool askWorkArea)
{
    const JobStart start = currentJobStart();
    QPointF shift;
    if (!jobShift(start, start.relative() ? jobBounds(items, layers()) : QRectF(), &shift)) {
        show_notice(m_parent, tr("当前位置未知,请先连接设备!"));
        return false;
    }
    if (askWorkArea && start.mode != StartMode::UserOrigin && !confirmOutsideWorkArea(items, shift))
        return false;
    m_generator->setJobStart(start);
    return true;
}

bool GcodeJobController::confirmOutsideWorkArea(const QList<Jk_tu_yuan *> &items,
                                                const QPointF &machineShift)
{
    const QRectF area = currentWorkArea();
    // Items moved by the shift leave the area exactly when the unmoved items
    // leave the area moved the other way.
    QList<OutsideItem> outside =
        itemsOutsideWorkArea(items, layers(), shiftSceneRect(area, -machineShift));
    if (outside.isEmpty())
        return true;
    for (OutsideItem &o : outside)
        o.bounds = shiftSceneRect(o.bounds, machineShift);
    // Name each one by its layer and where it lies in machine coordinates
    // (Y up), so the user can find it on the canvas.
    constexpr int kListed = 8;
    QStringList lines;
    for (int i = 0; i < outside.size() && i < kListed; ++i) {
        const QRectF &b = outside.at(i).bounds;
        lines << tr("图层 %1: X %2..%3, Y %4..%5 mm")
                     .arg(outside.at(i).layerName)
                     .arg(b.left(), 0, 'f', 1)
                     .arg(b.right(), 0, 'f', 1)
                     .arg(-b.bottom(), 0, 'f', 1)
                     .arg(-b.top(), 0, 'f', 1);
    }
    if (outside.size() > kListed)
        lines << tr("……还有 %1 个").arg(outside.size() - kListed);
    const QString message =
        tr("%1 个图形超出工作区域 (%2 × %3 mm),机器可能撞到限位或烧到台面以外:\n%4\n\n是否继续?")
            .arg(outside.size())
            .arg(area.width())
            .arg(area.height())
            .arg(lines.join(QLatin1Char('\n')));
    return show_message(m_parent, MessageKind::Warning, tr("取消"), tr("继续"), message, tr("提示"))
           != 0;
}

bool GcodeJobController::saveGcode(const QList<Jk_tu_yuan *> &items)
{
    if (!placeJob(items, true))
        return false;
    QString path = m_chooser(m_parent, m_lastFolder);
    if (path.isEmpty())
        return false;
    const QString suffix = QFileInfo(path).suffix().toLower();
    if (suffix != QLatin1String("nc") && suffix != QLatin1String("gcode"))
        path += QStringLiteral(".nc");
    m_lastFolder = QFileInfo(path).absolutePath();
    return writeJob(items, path);
}

bool GcodeJobController::saveGcodeTo(const QList<Jk_tu_yuan *> &items, const QString &path)
{
    return placeJob(items, false) && writeJob(items, path);
}

bool GcodeJobController::writeJob(const QList<Jk_tu_yuan *> &items, const QString &path)
{
    programState().cancel = false;
    if (!m_generator->kai_shi_zhuan_huan(items, path)) {
        show_notice(m_parent, tr("保存失败!"));
        return false;
    }
    emit saved(path);
    return true;
}

bool GcodeJobController::prepareRun(const QList<Jk_tu_yuan *> &items)
{
    if (!placeJob(items, true))
        return false;
    const RotarySettings rotary = loadRotarySettings();
    if (rotary.rewrites()) {
        const QString check = tr("请在滚轴界面检查相关参数再运行!");
        if (!rotary.isUsable()) {
            show_notice(m_parent, check);
            return false;
        }
        if (!show_message(m_parent, MessageKind::Question, tr("取消"), tr("确定"), check,
                          tr("提示")))
            return false;
    }
    programState().cancel = false;
    if (!m_generator->kai_shi_zhuan_huan(items, QString())) {
        show_notice(m_parent, tr("生成G代码失败!"));
        return false;
    }
    if (m_serialSource && m_serialSource() && !confirmWireRate(items))
        return false;
    programState().jobFilePath = Jk_gcode::defaultJobPath();
    emit runFileReady(programState().jobFilePath);
    return true;
}

bool GcodeJobController::confirmWireRate(const QList<Jk_tu_yuan *> &items)
{
    QHash<const TuCeng *, double> caps;
    QStringList lines;
    for (const Jk_gcode::RasterSection &section : m_generator->lastRasterSections()) {
        const WireLoad load = wireLoad(double(section.bytes), section.feedLength, section.feed);
        if (!load.exceeds || caps.contains(section.layer))
            continue;
        caps.insert(section.layer, qMax(1.0, load.fastestFeed));
        lines << tr("%1: 需要 %2 字节/秒, 最快 %3 mm/min")
                     .arg(section.name)
                     .arg(qRound(load.bytesPerSecond))
                     .arg(qMax(1.0, load.fastestFeed));
    }
    if (caps.isEmpty())
        return true;
    const QString message =
        tr("串口每秒只能传输 %1 字节, 此速度下光栅数据传不完:").arg(qRound(kSerialBytesPerSecond))
        + QLatin1Char('\n') + lines.join(QLatin1Char('\n'));
    const int answer = show_message(m_parent, MessageKind::Question, tr("取消"), tr("降速"),
                                    tr("仍然运行"), message, tr("提示"));
    if (answer == 2)
        return true;
    if (answer != 1)
        return false;
    m_generator->setRasterFeedCaps(caps);
    programState().cancel = false;
    if (!m_generator->kai_shi_zhuan_huan(items, QString())) {
        show_notice(m_parent, tr("生成G代码失败!"));
        return false;
    }
    return true;
}

bool GcodeJobController::editRotary()
{
    Gun_Zhou dialog(m_parent);
    return dialog.exec() == QDialog::Accepted;
}
