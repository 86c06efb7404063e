#include "parameter_library.h"

#include "settings_store.h"
#include "tu_ceng.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>
#include <cmath>

namespace lumitra {

namespace {

const QString kFormat = QStringLiteral("lumitra-parameters");
constexpr int kVersion = 1;

QJsonObject presetToObject(const ParameterPreset &p)
{
    QJsonObject o;
    o.insert(QStringLiteral("name"), p.name);
    o.insert(QStringLiteral("material"), p.material);
    o.insert(QStringLiteral("thickness"), p.thicknessMm);
    o.insert(QStringLiteral("power"), p.power);
    o.insert(QStringLiteral("speed"), p.speed);
    o.insert(QStringLiteral("passes"), p.passes);
    o.insert(QStringLiteral("mode"), p.mode);
    o.insert(QStringLiteral("fillAngle"), p.fillAngle);
    o.insert(QStringLiteral("interval"), p.intervalMm);
    o.insert(QStringLiteral("overscan"), p.overscanMm);
    o.insert(QStringLiteral("unidirectional"), p.unidirectional);
    return o;
}

bool readNumber(const QJsonObject &o, const char *key, double low, double high, double *out)
{
    const QJsonValue v = o.value(QLatin1String(key));
    if (!v.isDouble())
        return false;
    const double d = v.toDouble();
    if (!std::isfinite(d) || d < low || d > high)
        return false;
    *out = d;
    return true;
}

bool readInt(const QJsonObject &o, const char *key, int low, int high, int *out)
{
    double d = 0;
    if (!readNumber(o, key, low, high, &d) || d != std::floor(d))
        return false;
    *out = int(d);
    return true;
}

// The field that failed, or an empty string.
QString presetFromObject(const QJsonObject &o, ParameterPreset *p)
{
    const QJsonValue name = o.value(QStringLiteral("name"));
    if (!name.isString() || name.toString().trimmed().isEmpty())
        return QStringLiteral("name");
    p->name = name.toString().trimmed();
    const QJsonValue material = o.value(QStringLiteral("material"));
    if (!material.isString())
        return QStringLiteral("material");
    p->material = material.toString().trimmed();
    if (!readNumber(o, "thickness", 0, 1000, &p->thicknessMm))
        return QStringLiteral("thickness");
    if (!readInt(o, "power", 0, 100, &p->power))
        return QStringLiteral("power");
    if (!readInt(o, "speed", 5, 99999999, &p->speed))
        return QStringLiteral("speed");
    if (!readInt(o, "passes", 1, 999, &p->passes))
        return QStringLiteral("passes");
    if (!readInt(o, "mode", 0, 4, &p->mode))
        return QStringLiteral("mode");
    if (!readInt(o, "fillAngle", 0, 360, &p->fillAngle))
        return QStringLiteral("fillAngle");
    if (!readNumber(o, "interval", 0.01, 100, &p->intervalMm))
        return QStringLiteral("interval");
    if (!readNumber(o, "overscan", 0, 100, &p->overscanMm))
        return QStringLiteral("overscan");
    const QJsonValue uni = o.value(QStringLiteral("unidirectional"));
    if (!uni.isBool())
        return QStringLiteral("unidirectional");
    p->unidirectional = uni.toBool();
    return QString();
}

} // namespace

bool ParameterPreset::operator==(const ParameterPreset &o) const
{
    return name == o.name && material == o.material && thicknessMm == o.thicknessMm
           && power == o.power && speed == o.speed && passes == o.passes && mode == o.mode
           && fillAngle == o.fillAngle && intervalMm == o.intervalMm && overscanMm == o.overscanMm
           && unidirectional == o.unidirectional;
}

QString libraryToJson(const ParameterLibrary &library)
{
    QJsonArray presets;
    for (const ParameterPreset &p : library)
        presets.append(presetToObject(p));
    QJsonObject root;
    root.insert(QStringLiteral("format"), kFormat);
    root.insert(QStringLiteral("version"), kVersion);
    root.insert(QStringLiteral("presets"), presets);
    return QString::fromUtf8(QJsonDocument(root).toJson(QJsonDocument::Indented));
}

bool libraryFromJson(const QString &text, ParameterLibrary *out, QString *reason)
{
    QJsonParseError error{};
    const QJsonDocument doc = QJsonDocument::fromJson(text.toUtf8(), &error);
    if (error.error != QJsonParseError::NoError) {
        *reason = QCoreApplication::translate("ParameterLibrary", "不是有效的JSON:%1")
                      .arg(error.errorString());
        return false;
    }
    const QJsonObject root = doc.object();
    if (!doc.isObject() || root.value(QStringLiteral("format")).toString() != kFormat
        || !root.value(QStringLiteral("presets")).isArray()) {
        *reason = QCoreApplication::translate("ParameterLibrary", "不是参数库文件");
        return false;
    }
    if (root.value(QStringLiteral("version")).toInt() != kVersion) {
        *reason = QCoreApplication::translate("ParameterLibrary", "参数库版本不支持");
        return false;
    }
    ParameterLibrary read;
    const QJsonArray presets = root.value(QStringLiteral("presets")).toArray();
    for (int i = 0; i < presets.size(); ++i) {
        ParameterPreset p;
        const QString bad = presets.at(i).isObject()
                                ? presetFromObject(presets.at(i).toObject(), &p)
                                : QStringLiteral("preset");
        if (!bad.isEmpty()) {
            *reason = QCoreApplication::translate("ParameterLibrary", "第%1项的%2无效")
                          .arg(i + 1)
                          .arg(bad);
            return false;
        }
        read.append(p);
    }
    *out = read;
    return true;
}

bool loadLibrary(ParameterLibrary *out, QString *reason)
{
    const QString text = get_setting(kParameterLibraryKey);
    if (text.trimmed().isEmpty()) {
        out->clear();
        return true;
    }
    return libraryFromJson(text, out, reason);
}

void storeLibrary(const ParameterLibrary &library)
{
    set_setting(kParameterLibraryKey, library.isEmpty() ? QString() : libraryToJson(library));
}

bool exportLibrary(const ParameterLibrary &library, const QString &path, QString *reason)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(libraryToJson(library).toUtf8()) < 0
        || !file.commit()) {
        *reason = QCoreApplication::translate("ParameterLibrary", "无法写入文件:%1").arg(path);
        return false;
    }
    return true;
}

bool importLibrary(const QString &path, ParameterLibrary *library, QString *reason, int *added,
                   int *replaced)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *reason = QCoreApplication::translate("ParameterLibrary", "无法读取文件:%1").arg(path);
        return false;
    }
    ParameterLibrary incoming;
    if (!libraryFromJson(QString::fromUtf8(file.readAll()), &incoming, reason))
        return false;
    int nAdded = 0;
    int nReplaced = 0;
    for (const ParameterPreset &p : qAsConst(incoming)) {
        const int at = findPreset(*library, p.name, p.material);
        if (at >= 0) {
            (*library)[at] = p;
            ++nReplaced;
        } else {
            library->append(p);
            ++nAdded;
        }
    }
    if (added)
        *added = nAdded;
    if (replaced)
        *replaced = nReplaced;
    return true;
}

void applyPreset(const ParameterPreset &preset, TuCeng *layer)
{
    const int modes = layer->tupian ? 5 : 3;
    if (preset.mode >= 0 && preset.mode < modes)
        layer->moshi = preset.mode;
    layer->gonglv = preset.power;
    layer->sudu = preset.speed;
    layer->cishu = preset.passes;
    layer->fangxiang = preset.fillAngle;
    layer->jianju = preset.intervalMm;
    layer->saomiao = preset.overscanMm;
    layer->danxiang = preset.unidirectional;
}

ParameterPreset presetFromLayer(const TuCeng &layer, const QString &name, const QString &material,
                                double thicknessMm)
{
    ParameterPreset p;
    p.name = name.trimmed();
    p.material = material.trimmed();
    p.thicknessMm = thicknessMm;
    p.power = layer.gonglv;
    p.speed = layer.sudu;
    p.passes = layer.cishu;
    p.mode = layer.moshi;
    p.fillAngle = layer.fangxiang;
    p.intervalMm = layer.jianju;
    p.overscanMm = layer.saomiao;
    p.unidirectional = layer.danxiang;
    return p;
}

QStringList libraryMaterials(const ParameterLibrary &library)
{
    QStringList materials;
    for (const ParameterPreset &p : library)
        if (!materials.contains(p.material))
            materials.append(p.material);
    materials.sort();
    return materials;
}

int findPreset(const ParameterLibrary &library, const QString &name, const QString &material)
{
    for (int i = 0; i < library.size(); ++i)
        if (library.at(i).name == name && library.at(i).material == material)
            return i;
    return -1;
}

} // namespace lumitra
