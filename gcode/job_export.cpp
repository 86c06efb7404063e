#include "job_export.h"

#include "export_options.h"
#include "import_items.h"
#include "jk_gcode.h"
#include "jk_tu_yuan.h"
#include "layer_list.h"
#include "layer_rebuild.h"
#include "open_dispatch.h"
#include "owned_items.h"
#include "program_state.h"
#include "project_file.h"

#include <QFileInfo>

namespace lumitra {

namespace {

enum class InputKind { Unsupported, Project, Vector, Bitmap };

InputKind inputKind(const QString &path)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    if (suffix == projectExtension())
        return InputKind::Project;
    if (suffix == QLatin1String("svg") || suffix == QLatin1String("dxf"))
        return InputKind::Vector;
    if (suffix == QLatin1String("png") || suffix == QLatin1String("jpg")
        || suffix == QLatin1String("jpeg") || suffix == QLatin1String("bmp"))
        return InputKind::Bitmap;
    return InputKind::Unsupported;
}

struct LoadedDesign
{
    LayerList layers;
    OwnedItems items;
};

bool loadProject(const QString &path, LoadedDesign &design, QString *error)
{
    ProjectReadResult read = readProjectFile(path);
    if (!read.opened) {
        *error = QStringLiteral("cannot open %1").arg(path);
        return false;
    }
    if (!read.complete) {
        *error = QStringLiteral("%1 is damaged: %2").arg(path, read.problem);
        return false;
    }
    if (read.pages.isEmpty())
        return true;
    ProjectPageIn &page = read.pages.first();
    design.items.take(page.items);
    page.items.clear(); // now owned here
    for (const TuCeng &layer : qAsConst(page.layers))
        design.layers.append(new TuCeng(layer));
    return true;
}

bool loadSingleFile(const QString &path, InputKind kind, LoadedDesign &design, QString *error)
{
    QString message;
    QList<Jk_tu_yuan *> items;
    const QString suffix = QFileInfo(path).suffix().toLower();
    if (kind == InputKind::Bitmap)
        items = importBitmapFile(path, &message);
    else if (suffix == QLatin1String("svg"))
        items = importSvgItems(path, &message);
    else
        items = importDxfItems(path, &message);
    design.items.take(items);
    if (items.isEmpty()) {
        *error = message.isEmpty() ? QStringLiteral("cannot read a design from %1").arg(path)
                                   : QStringLiteral("%1: %2").arg(path, message.simplified());
        return false;
    }
    return true;
}

} // namespace

bool exportJob(const ExportOptions &options, QString *error)
{
    QMap<QString, QString> processOptions = options.processOptions;
    JobStart start;
    const QString origin = processOptions.take(QStringLiteral("origin"));
    if (options.processOptions.contains(QStringLiteral("origin"))
        && !parseOriginOption(origin, &start, error))
        return false;
    LayerOverrides overrides;
    if (!parseLayerOverrides(processOptions, &overrides, error))
        return false;
    if (options.output.isEmpty()) {
        *error = QStringLiteral("no output file given");
        return false;
    }
    const InputKind kind = inputKind(options.input);
    if (kind == InputKind::Unsupported) {
        *error = QStringLiteral("%1: not a .lumitra, .svg, .dxf, .png, .jpg or .bmp file")
                     .arg(options.input);
        return false;
    }
    if (!QFileInfo(options.input).isFile()) {
        *error = QStringLiteral("%1: no such file").arg(options.input);
        return false;
    }
    if ((kind == InputKind::Vector && overrides.bitmapMode)
        || (kind == InputKind::Bitmap && overrides.vectorMode)) {
        *error = QStringLiteral("--mode %1 does not fit %2")
                     .arg(options.processOptions.value(QStringLiteral("mode")), options.input);
        return false;
    }

    LoadedDesign design;
    const bool loaded = kind == InputKind::Project
                            ? loadProject(options.input, design, error)
                            : loadSingleFile(options.input, kind, design, error);
    if (!loaded)
        return false;
    // The saved records, then a default record for every layer in use without one.
    const QList<Jk_tu_yuan *> items = design.items.items();
    design.layers.rebuild(layerKeysOf(items));
    if (items.isEmpty()) {
        *error = QStringLiteral("%1: nothing to engrave").arg(options.input);
        return false;
    }
    for (TuCeng *layer : design.layers.layers())
        overrides.applyTo(*layer);

    programState().cancel = false;
    Jk_gcode generator;
    generator.setLayerList(&design.layers);
    generator.setJobStart(start);
    if (!generator.kai_shi_zhuan_huan(items, options.output)) {
        *error = QStringLiteral("cannot write %1: %2").arg(options.output, generator.lastError());
        return false;
    }
    return true;
}

} // namespace lumitra
