#pragma once

#include "tu_ceng.h"

#include <QDataStream>
#include <QList>
#include <QString>
#include <QVector>

class Jk_tu_yuan;
class QIODevice;

// The ".lumitra" project file: a little-endian QDataStream of stream version
// 19 holding, per page, its layer records and its items, each record led by a
// marker string ("MY_SCENE", "MY_CENG", "MY_ITEM") and the whole closed by "end".

constexpr QDataStream::Version kProjectStreamVersion = QDataStream::Qt_5_13;
static_assert(kProjectStreamVersion == 19, "project files use stream version 19");

// One page as it is written: its name, its layer records in list order and
// its items topmost first.
struct ProjectPageOut
{
    QString name;
    QList<const TuCeng *> layers;
    QList<Jk_tu_yuan *> items;
};

// Writes the whole project. Returns false when the device reported an error.
bool writeProject(QIODevice *device, const QList<ProjectPageOut> &pages);

// Why a save is refused before anything is asked or written.
enum class SaveRefusal { None, Engraving, NoData };
SaveRefusal saveRefusal(bool running, int itemCount);

struct ProjectSaveResult
{
    bool ok = false;
    QString error; // the file's error text when not ok
};

// Writes the project to `path` through a temporary file that replaces the old
// file only when everything was written, so a failed save leaves it intact.
ProjectSaveResult saveProjectFile(const QString &path, const QList<ProjectPageOut> &pages);

// One page as it is read. Records met before any "MY_SCENE" belong to the page
// that is current when the file is opened (named == false).
struct ProjectPageIn
{
    QString name;
    bool named = false;
    QVector<TuCeng> layers;
    QList<Jk_tu_yuan *> items; // not in a scene yet
};

// What the reader got. The caller takes the items it wants out of the pages;
// items still listed when the result is destroyed are deleted with it.
struct ProjectReadResult
{
    QVector<ProjectPageIn> pages;
    bool opened = false;   // the file could be opened
    bool complete = false; // read to its end without a damaged record
    QString problem;       // what stopped the reader when not complete
    qint64 stoppedAt = -1; // byte offset of the record that could not be read

    ProjectReadResult() = default;
    ProjectReadResult(ProjectReadResult &&) = default;
    ProjectReadResult &operator=(ProjectReadResult &&) = default;
    ProjectReadResult(const ProjectReadResult &) = delete;
    ProjectReadResult &operator=(const ProjectReadResult &) = delete;
    ~ProjectReadResult();

    int itemCount() const;
};

// The marker-driven reader. It stops at the first record it cannot read whole
// (cut short, damaged, or out of range), keeps everything read before it, and
// logs the reason. Work and memory stay in proportion to the input.
ProjectReadResult readProject(QIODevice *device);
ProjectReadResult readProjectFile(const QString &path);
