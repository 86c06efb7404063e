#include "recent_files.h"

#include "settings_store.h"

#include <QFileInfo>
#include <QSettings>

namespace {
const QString kKey = QStringLiteral("Recent/files");

QString normalised(const QString &path)
{
    return QFileInfo(path).absoluteFilePath();
}

void store(const QStringList &list)
{
    QSettings settings(lumitra::config_path(), QSettings::IniFormat);
    settings.setValue(kKey, list);
}
} // namespace

QStringList RecentFiles::paths()
{
    QSettings settings(lumitra::config_path(), QSettings::IniFormat);
    return settings.value(kKey).toStringList();
}

QStringList RecentFiles::withAdded(QStringList list, const QString &path)
{
    const QString entry = normalised(path);
    list.removeAll(entry);
    list.prepend(entry);
    while (list.size() > kMaxEntries)
        list.removeLast();
    return list;
}

void RecentFiles::add(const QString &path)
{
    if (!path.isEmpty())
        store(withAdded(paths(), path));
}

void RecentFiles::remove(const QString &path)
{
    QStringList list = paths();
    if (list.removeAll(normalised(path)) > 0)
        store(list);
}

void RecentFiles::clear()
{
    store(QStringList());
}
