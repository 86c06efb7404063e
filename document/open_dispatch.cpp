#include "open_dispatch.h"

#include "jk_tu_yuan.h"

#include <QCoreApplication>
#include <QDebug>
#include <QFileInfo>
#include <QImageReader>

namespace {
QString extensionOf(const QString &path)
{
    return QFileInfo(path).suffix().toLower();
}
} // namespace

QString projectExtension()
{
    return QStringLiteral("lumitra");
}

OpenDispatch &OpenDispatch::instance()
{
    static OpenDispatch dispatch;
    return dispatch;
}

OpenDispatch::OpenDispatch()
{
    for (const char *ext : {"png", "bmp", "jpg", "jpeg"})
        m_importers.insert(QLatin1String(ext), importBitmapFile);
}

void OpenDispatch::registerImporter(const QString &extension, const FileImporter &importer)
{
    if (importer)
        m_importers.insert(extension.toLower(), importer);
}

void OpenDispatch::unregisterImporter(const QString &extension)
{
    m_importers.remove(extension.toLower());
}

OpenKind OpenDispatch::kindOf(const QString &path) const
{
    const QString ext = extensionOf(path);
    if (ext == projectExtension())
        return OpenKind::Project;
    return m_importers.contains(ext) ? OpenKind::Import : OpenKind::Unsupported;
}

FileImporter OpenDispatch::importerFor(const QString &path) const
{
    return m_importers.value(extensionOf(path));
}

QStringList OpenDispatch::extensions() const
{
    QStringList list = m_importers.keys();
    list.append(projectExtension());
    list.sort();
    return list;
}

bool isOpenableFile(const QString &path)
{
    return OpenDispatch::instance().kindOf(path) != OpenKind::Unsupported;
}

QList<Jk_tu_yuan *> importBitmapFile(const QString &path, QString *message)
{
    const QString unreadable = QCoreApplication::translate("OpenDispatch", "图片无法读取!");
    const QSize size = QImageReader(path).size();
    if (!size.isValid()) {
        qDebug() << " open image failed" << path;
        if (message)
            *message = unreadable;
        return {};
    }
    if (qint64(size.width()) * size.height() > kMaxImportPixels) {
        if (message)
            *message = QCoreApplication::translate("OpenDispatch", "图片太大,无法打开!");
        return {};
    }
    auto *item = new Jk_tu_yuan(path);
    if (item->source_image.isNull()) {
        qDebug() << " open image failed" << path;
        delete item;
        if (message)
            *message = unreadable;
        return {};
    }
    return {item};
}
