#pragma once

#include <QMenu>

// The "最近打开" menu: one entry per recent file (its name, the full path as
// tip), newest first, and "清除列表". It reads the list each time it opens,
// so it always shows what the settings file holds.
class RecentFilesMenu : public QMenu
{
    Q_OBJECT

public:
    explicit RecentFilesMenu(QWidget *parent = nullptr);

    // Rebuilds the entries from the stored list.
    void refresh();

signals:
    void openRequested(const QString &path);
};
