#include "recent_files_menu.h"

#include "recent_files.h"

#include <QDir>
#include <QFileInfo>

RecentFilesMenu::RecentFilesMenu(QWidget *parent) : QMenu(tr("最近打开"), parent)
{
    connect(this, &QMenu::aboutToShow, this, &RecentFilesMenu::refresh);
    refresh();
}

void RecentFilesMenu::refresh()
{
    clear();
    const QStringList paths = RecentFiles::paths();
    int number = 1;
    for (const QString &path : paths) {
        // "&1 name" gives the first nine entries a key of their own.
        QString name = QFileInfo(path).fileName();
        name.replace(QLatin1Char('&'), QLatin1String("&&"));
        const QString label = number <= 9 ? QStringLiteral("&%1 %2").arg(number).arg(name) : name;
        QAction *entry = addAction(label);
        entry->setToolTip(QDir::toNativeSeparators(path));
        entry->setStatusTip(QDir::toNativeSeparators(path));
        connect(entry, &QAction::triggered, this, [this, path] { emit openRequested(path); });
        ++number;
    }
    if (paths.isEmpty()) {
        addAction(tr("(无)"))->setEnabled(false);
        return;
    }
    addSeparator();
    connect(addAction(tr("清除列表")), &QAction::triggered, this, [this] {
        RecentFiles::clear();
        refresh();
    });
}
