#include "project_commands.h"

#include "design_pages.h"
#include "jk_chang_jing.h"
#include "jk_tu_yuan.h"
#include "message_box.h"
#include "open_dispatch.h"
#include "program_state.h"
#include "recent_files.h"

#include <QDebug>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QStandardPaths>

namespace {
QString startFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

QString askSaveFile(QWidget *parent, const QString &caption, const QString &dir,
                    const QString &filter)
{
    return QFileDialog::getSaveFileName(parent, caption, dir, filter);
}

QString askOpenFile(QWidget *parent, const QString &caption, const QString &dir,
                    const QString &filter)
{
    return QFileDialog::getOpenFileName(parent, caption, dir, filter);
}

QString engravingMessage()
{
    return ProjectCommands::refusalMessage(SaveRefusal::Engraving);
}
} // namespace

ProjectCommands::ProjectCommands(DesignPages *pages, QWidget *dialogParent, QObject *parent)
    : QObject(parent), m_pages(pages), m_dialogParent(dialogParent), m_askSavePath(askSaveFile),
      m_askOpenPath(askOpenFile)
{
}

void ProjectCommands::setSavePathAsker(PathAsker asker)
{
    m_askSavePath = asker ? std::move(asker) : PathAsker(askSaveFile);
}

void ProjectCommands::setOpenPathAsker(PathAsker asker)
{
    m_askOpenPath = asker ? std::move(asker) : PathAsker(askOpenFile);
}

QString ProjectCommands::refusalMessage(SaveRefusal refusal)
{
    switch (refusal) {
    case SaveRefusal::Engraving:
        return tr("设备雕刻中,暂时停止使用!");
    case SaveRefusal::NoData:
        return tr("没有数据，禁止保存!");
    case SaveRefusal::None:
        break;
    }
    return QString();
}

ProjectSaveResult ProjectCommands::saveProjectTo(const QString &path)
{
    const ProjectSaveResult result = saveProjectFile(path, m_pages->projectPages());
    if (result.ok) {
        lumitra::setUnsaved(false);
        setCurrentPath(path);
        RecentFiles::add(path);
        emit recentFilesChanged();
    }
    return result;
}

void ProjectCommands::setCurrentPath(const QString &path)
{
    const QString absolute = path.isEmpty() ? QString() : QFileInfo(path).absoluteFilePath();
    if (absolute == m_currentPath)
        return;
    m_currentPath = absolute;
    emit currentPathChanged(m_currentPath);
}

std::optional<ProjectCommands::SaveOutcome> ProjectCommands::refuseSave()
{
    const SaveRefusal refusal =
        saveRefusal(lumitra::programState().running, m_pages->totalItemCount());
    if (refusal == SaveRefusal::None)
        return std::nullopt;
    lumitra::show_notice(m_dialogParent, refusalMessage(refusal));
    return refusal == SaveRefusal::Engraving ? SaveOutcome::RefusedEngraving
                                             : SaveOutcome::RefusedNoData;
}

ProjectCommands::SaveOutcome ProjectCommands::save_project()
{
    if (m_currentPath.isEmpty())
        return save_project_as();
    if (const auto refused = refuseSave())
        return *refused;
    return writeProject(m_currentPath);
}

ProjectCommands::SaveOutcome ProjectCommands::save_project_as()
{
    if (const auto refused = refuseSave())
        return *refused;
    const QString start = m_currentPath.isEmpty() ? startFolder() : m_currentPath;
    QString path = m_askSavePath(m_dialogParent, tr("Save File"), start, tr("Files (*.lumitra)"));
    if (path.isEmpty())
        return SaveOutcome::Cancelled;
    const QString suffix = QLatin1Char('.') + projectExtension();
    if (!path.endsWith(suffix, Qt::CaseInsensitive))
        path += suffix;
    return writeProject(path);
}

ProjectCommands::SaveOutcome ProjectCommands::writeProject(const QString &path)
{
    const ProjectSaveResult result = saveProjectTo(path);
    if (result.ok)
        return SaveOutcome::Saved;
    // The old file is still whole; say why the new one is not there.
    lumitra::show_notice(m_dialogParent,
                         tr("保存失败: %1\n%2").arg(QDir::toNativeSeparators(path), result.error));
    return SaveOutcome::Failed;
}

bool ProjectCommands::refuseWhileEngraving()
{
    if (!lumitra::programState().running)
        return false;
    lumitra::show_notice(m_dialogParent, engravingMessage());
    return true;
}

ProjectCommands::OpenOutcome ProjectCommands::open_project()
{
    if (refuseWhileEngraving())
        return OpenOutcome::Refused;
    const QString path =
        m_askOpenPath(m_dialogParent, tr("Open File"), startFolder(),
                      tr("Images (*.png *.bmp *.jpg *.jpeg *.lumitra *.dxf *.svg))"));
    if (path.isEmpty())
        return OpenOutcome::Failed;
    return open_file(path);
}

ProjectCommands::OpenOutcome ProjectCommands::open_file(const QString &path)
{
    return openFile(path, std::nullopt);
}

ProjectCommands::OpenOutcome ProjectCommands::open_file_at(const QString &path,
                                                           const QPointF &scenePos)
{
    return openFile(path, scenePos);
}

ProjectCommands::OpenOutcome ProjectCommands::openFile(const QString &path,
                                                       std::optional<QPointF> dropAt)
{
    if (refuseWhileEngraving())
        return OpenOutcome::Refused;
    const QString shown = QDir::toNativeSeparators(path);
    if (!QFileInfo(path).isFile()) {
        lumitra::show_notice(m_dialogParent, tr("文件不存在: %1").arg(shown));
        if (RecentFiles::paths().contains(QFileInfo(path).absoluteFilePath())) {
            RecentFiles::remove(path);
            emit recentFilesChanged();
        }
        return OpenOutcome::Failed;
    }
    const OpenDispatch &dispatch = OpenDispatch::instance();
    switch (dispatch.kindOf(path)) {
    case OpenKind::Unsupported:
        qDebug() << " open: no importer for" << path;
        lumitra::show_notice(m_dialogParent, tr("不支持的文件格式: %1").arg(shown));
        return OpenOutcome::Unsupported;
    case OpenKind::Project:
        return opened(path, openProjectFile(path));
    case OpenKind::Import:
        break;
    }
    QString message;
    const QList<Jk_tu_yuan *> items = dispatch.importerFor(path)(path, &message);
    if (items.isEmpty()) {
        // The importer's own reason when it gave one, else a plain one.
        lumitra::show_notice(
            m_dialogParent,
            message.isEmpty() ? tr("文件无法导入,里面没有可用的图形: %1").arg(shown) : message);
        return OpenOutcome::Failed;
    }
    if (dropAt) {
        // The drawing's centre goes to the drop point; its items keep their places in it.
        QRectF box;
        for (const Jk_tu_yuan *item : items) {
            const QRectF r = item->sceneTransform().map(item->path).boundingRect();
            box = box.isNull() ? r : box.united(r);
        }
        const QPointF move = *dropAt - box.center();
        for (Jk_tu_yuan *item : items)
            item->setPos(item->pos() + move);
    }
    m_pages->currentScene()->addItemsUndoable(items);
    // Something was left out of what came in: the importer says what.
    if (!message.isEmpty())
        lumitra::show_notice(m_dialogParent, message);
    return opened(path, OpenOutcome::Opened);
}

ProjectCommands::OpenOutcome ProjectCommands::opened(const QString &path, OpenOutcome outcome)
{
    if (outcome == OpenOutcome::Opened || outcome == OpenOutcome::Damaged) {
        RecentFiles::add(path);
        emit recentFilesChanged();
    }
    return outcome;
}

ProjectCommands::OpenOutcome ProjectCommands::openProjectFile(const QString &path)
{
    const QString shown = QDir::toNativeSeparators(path);
    ProjectReadResult result = readProjectFile(path);
    if (!result.opened) {
        lumitra::show_notice(m_dialogParent, tr("无法打开文件: %1").arg(shown));
        return OpenOutcome::Failed;
    }
    if (!result.complete && result.itemCount() == 0) {
        lumitra::show_notice(m_dialogParent,
                             tr("文件已损坏或不是项目文件,无法打开: %1").arg(shown));
        return OpenOutcome::Failed;
    }
    // Opening into an empty design leaves it as saved as it was, and makes the
    // file the design's own; opened on top of a design it merges into it.
    const bool untouched = !lumitra::programState().unsaved && m_pages->totalItemCount() == 0;
    const bool complete = result.complete;
    const QString problem = result.problem;
    m_pages->applyProject(result);
    if (!complete) {
        lumitra::setUnsaved(true); // what was lost is not on disk either
        lumitra::show_notice(m_dialogParent,
                             tr("文件已损坏,只打开了其中完整的部分: %1").arg(shown));
        qDebug() << " open: damaged project" << path << problem;
        return OpenOutcome::Damaged;
    }
    lumitra::setUnsaved(!untouched);
    if (untouched)
        setCurrentPath(path);
    return OpenOutcome::Opened;
}

void ProjectCommands::open_files(const QStringList &paths)
{
    for (const QString &path : paths)
        if (open_file(path) == OpenOutcome::Refused)
            return;
}

void ProjectCommands::open_files_at(const QStringList &paths, const QPointF &scenePos)
{
    for (const QString &path : paths)
        if (open_file_at(path, scenePos) == OpenOutcome::Refused)
            return;
}
