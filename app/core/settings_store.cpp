#include "settings_store.h"

#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

namespace lumitra {

QString config_dir()
{
    const QString dir = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)
                        + QStringLiteral("/LumitraConfig");
    QDir d(dir);
    if (!d.exists()) {
        if (d.mkpath(QStringLiteral(".")))
            qDebug() << "文件夹已创建";
        else
            qDebug() << "文件夹创建失败";
    }
    return dir;
}

QString config_path()
{
    return config_dir() + QStringLiteral("/config.ini");
}

QString settings_key(const QString &key)
{
    if (key.contains(QLatin1Char('/')))
        return key;
    return QStringLiteral("CANSHU/") + key;
}

QString get_setting(const QString &key)
{
    QSettings settings(config_path(), QSettings::IniFormat);
    return settings.value(settings_key(key)).toString();
}

void set_setting(const QString &key, const QString &value)
{
    QSettings settings(config_path(), QSettings::IniFormat);
    settings.setValue(settings_key(key), value);
    settings.sync();
    if (settings.status() != QSettings::NoError)
        qDebug() << "settings write failed" << key;
    qDebug() << " key " << key;
}

namespace {
const QString kMachineSettingsKey = QStringLiteral("JiQi/CanShu");
}

QMap<QString, QString> stored_machine_settings()
{
    // One line of "$N=VALUE" entries separated by spaces.
    QMap<QString, QString> settings;
    const QStringList stored =
        get_setting(kMachineSettingsKey).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString &entry : stored) {
        const int eq = entry.indexOf(QLatin1Char('='));
        if (eq > 1)
            settings.insert(entry.left(eq), entry.mid(eq + 1));
    }
    return settings;
}

void store_machine_settings(const QMap<QString, QString> &info)
{
    QStringList entries;
    for (auto it = info.constBegin(); it != info.constEnd(); ++it)
        if (it.key().startsWith(QLatin1Char('$')) && !it.value().contains(QLatin1Char(' ')))
            entries << it.key() + QLatin1Char('=') + it.value();
    if (!entries.isEmpty())
        set_setting(kMachineSettingsKey, entries.join(QLatin1Char(' ')));
}

bool settings_file_exists()
{
    return QFileInfo::exists(config_path());
}

} // namespace lumitra
