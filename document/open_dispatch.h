#pragma once

#include <QList>
#include <QMap>
#include <QString>
#include <functional>

class Jk_tu_yuan;

// Builds the items of one file for the open command and for files dropped on
// the canvas. The items are not yet in a scene; the caller adds them through
// the undoable add. On failure the list is empty and `message`, when not
// empty, is a translated text for the user.
using FileImporter = std::function<QList<Jk_tu_yuan *>(const QString &path, QString *message)>;

// How a file is opened, chosen by its extension (case-insensitive).
enum class OpenKind { Unsupported, Project, Import };

// Extension -> importer. The bitmap formats are registered from the start; the
// application registers the vector importers (".svg", ".dxf") at start-up, and
// may replace any entry. The project extension is handled by the page set.
// GUI thread only.
class OpenDispatch
{
public:
    static OpenDispatch &instance();

    OpenDispatch();

    // `extension` without the dot, e.g. "svg". Replaces an earlier entry.
    void registerImporter(const QString &extension, const FileImporter &importer);
    void unregisterImporter(const QString &extension);

    OpenKind kindOf(const QString &path) const;
    // The importer for a path, or an empty function.
    FileImporter importerFor(const QString &path) const;
    // Every extension that opens, the project one included, sorted.
    QStringList extensions() const;

private:
    QMap<QString, FileImporter> m_importers;
};

// The project file extension, without the dot.
QString projectExtension();

// True when the open dispatch knows what to do with the file's extension.
bool isOpenableFile(const QString &path);

// The built-in importer for PNG, BMP and JPEG files: one bitmap item with the
// per-pixel grey step, centred and selected. Images above kMaxImportPixels and
// files that do not decode are refused with a message.
constexpr qint64 kMaxImportPixels = 100'000'000;
QList<Jk_tu_yuan *> importBitmapFile(const QString &path, QString *message);
