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

bool settings_file_exists()
{
    return QFileInfo::exists(config_path());
}

} // namespace lumitra
