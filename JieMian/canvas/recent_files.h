#pragma once

#include <QStringList>

// The list of recently opened and saved design files, newest first, kept in
// the settings file under "Recent/files" so it survives a restart. Paths are
// stored absolute; the same file is listed once.
class RecentFiles
{
public:
    static constexpr int kMaxEntries = 10;

    static QStringList paths();
    // Puts `path` at the top (moving it up when already listed).
    static void add(const QString &path);
    static void remove(const QString &path);
    static void clear();

    // The pure list operation behind add(): newest first, no duplicates, at
    // most kMaxEntries.
    static QStringList withAdded(QStringList list, const QString &path);
};
