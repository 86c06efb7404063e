#pragma once

#include "project_file.h"

#include <QObject>
#include <QPointF>
#include <functional>
#include <optional>

class DesignPages;
class QWidget;

// The window's project commands: save, save as, open (with their file dialogs
// and refusals) and the open dispatch for one path, which files dropped on the
// canvas and the recent-files menu also go through (the window connects
// DesignPages::filesDropped to open_files). The project file the design was
// last saved to or opened from is remembered, so "save" writes there without
// asking. Every outcome the user did not choose (a file that does not open,
// an importer that refuses, a damaged project, a failed save) is told through
// the message-box helper.
class ProjectCommands : public QObject
{
    Q_OBJECT

public:
    enum class OpenOutcome {
        Opened,      // everything in the file is on the canvas
        Damaged,     // a project cut short or corrupt: what was whole is on the canvas
        Refused,     // a job is engraving
        Unsupported, // no importer for the extension
        Failed       // the file gave nothing (unreadable, or the importer refused)
    };
    enum class SaveOutcome { Saved, RefusedEngraving, RefusedNoData, Cancelled, Failed };

    // Asks for a path: (parent, caption, start folder, filter) -> path or "".
    using PathAsker =
        std::function<QString(QWidget *, const QString &, const QString &, const QString &)>;

    // `dialogParent` parents the dialogs and message boxes.
    ProjectCommands(DesignPages *pages, QWidget *dialogParent, QObject *parent = nullptr);

    // Replace the file dialogs (tests); an empty function restores the real one.
    void setSavePathAsker(PathAsker asker);
    void setOpenPathAsker(PathAsker asker);

    // Texts shown for the save refusals.
    static QString refusalMessage(SaveRefusal refusal);

    // Writes the project to `path` (no questions), clears the unsaved flag and
    // makes `path` the design's file.
    ProjectSaveResult saveProjectTo(const QString &path);

    // The project file of the design ("" until it is saved or opened).
    QString currentPath() const { return m_currentPath; }
    // Forgets the design's file (a new, empty design).
    void setCurrentPath(const QString &path);

public slots:
    // The "save" command: refusals, then the design's file, or the save
    // dialog when it has none yet.
    SaveOutcome save_project();
    // The "save as" command: refusals, the save dialog, writing.
    SaveOutcome save_project_as();
    // The "open" command: refusal while engraving, the open dialog, open_file.
    OpenOutcome open_project();
    // Opens one file by its extension onto the current page.
    OpenOutcome open_file(const QString &path);
    // The same, imported items centred on `scenePos` (where they were dropped).
    OpenOutcome open_file_at(const QString &path, const QPointF &scenePos);
    // Opens each file in turn (drag and drop).
    void open_files(const QStringList &paths);
    // Opens each file in turn, imports landing where they were dropped (scene point).
    void open_files_at(const QStringList &paths, const QPointF &scenePos);

signals:
    void currentPathChanged(const QString &path);
    // A file joined or left the recent-files list.
    void recentFilesChanged();

private:
    bool refuseWhileEngraving();
    // The save refusals (engraving, empty design), told to the user.
    std::optional<SaveOutcome> refuseSave();
    OpenOutcome openProjectFile(const QString &path);
    OpenOutcome openFile(const QString &path, std::optional<QPointF> dropAt);
    OpenOutcome opened(const QString &path, OpenOutcome outcome);
    SaveOutcome writeProject(const QString &path);

    DesignPages *m_pages;
    QWidget *m_dialogParent;
    PathAsker m_askSavePath;
    PathAsker m_askOpenPath;
    QString m_currentPath;
};
