#include "project_commands.h"

#include "design_pages.h"
#include "jk_chang_jing.h"
#include "message_box.h"
#include "open_dispatch.h"
#include "program_state.h"

#include <QDebug>
#include <QFileDialog>
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
    if (result.ok)
        lumitra::programState().unsaved = false;
    return result;
}

ProjectCommands::SaveOutcome ProjectCommands::save_project()
{
    const SaveRefusal refusal =
        saveRefusal(lumitra::programState().running, m_pages->totalItemCount());
    if (refusal != SaveRefusal::None) {
        lumitra::show_notice(m_dialogParent, refusalMessage(refusal));
        return refusal == SaveRefusal::Engraving ? SaveOutcome::RefusedEngraving
                                                 : SaveOutcome::RefusedNoData;
    }
    QString path =
        m_askSavePath(m_dialogParent, tr("Save File"), startFolder(), tr("Files (*.lumitra)"));
    if (path.isEmpty())
        return SaveOutcome::Cancelled;
    const QString suffix = QLatin1Char('.') + projectExtension();
    if (!path.endsWith(suffix, Qt::CaseInsensitive))
        path += suffix;
    // A file that cannot be written is given up without a message.
    return saveProjectTo(path).ok ? SaveOutcome::Saved : SaveOutcome::Failed;
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
    if (refuseWhileEngraving())
        return OpenOutcome::Refused;
    const OpenDispatch &dispatch = OpenDispatch::instance();
    switch (dispatch.kindOf(path)) {
    case OpenKind::Unsupported:
        qDebug() << " open: no importer for" << path;
        return OpenOutcome::Unsupported;
    case OpenKind::Project:
        return openProjectFile(path);
    case OpenKind::Import:
        break;
    }
    QString message;
    const QList<Jk_tu_yuan *> items = dispatch.importerFor(path)(path, &message);
    if (items.isEmpty()) {
        if (!message.isEmpty())
            lumitra::show_notice(m_dialogParent, message);
        return OpenOutcome::Failed;
    }
    m_pages->currentScene()->addItemsUndoable(items);
    return OpenOutcome::Opened;
}

ProjectCommands::OpenOutcome ProjectCommands::openProjectFile(const QString &path)
{
    ProjectReadResult result = readProjectFile(path);
    if (!result.opened) // a file that cannot be opened is ignored
        return OpenOutcome::Failed;
    lumitra::ProgramState &state = lumitra::programState();
    // Opening into an empty design leaves it as saved as it was.
    const bool keepUnsaved = state.unsaved || m_pages->totalItemCount() > 0;
    const bool complete = result.complete;
    m_pages->applyProject(result);
    state.unsaved = keepUnsaved;
    return complete ? OpenOutcome::Opened : OpenOutcome::Damaged;
}

void ProjectCommands::open_files(const QStringList &paths)
{
    for (const QString &path : paths)
        if (open_file(path) == OpenOutcome::Refused)
            return;
}
