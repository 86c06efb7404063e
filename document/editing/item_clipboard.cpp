#include "item_clipboard.h"

#include "command_sequence.h"
#include "item_geometry.h"
#include "jk_tu_yuan.h"
#include "project_stream.h"

#include <QCoreApplication>
#include <QDataStream>
#include <QDebug>
#include <QIODevice>
#include <QMimeData>

namespace lumitra {

const char *const kItemsMimeType = "application/x-lumitra-items";

namespace {

constexpr quint32 kMagic = 0x4c4d5449; // "LMTI"
constexpr quint16 kVersion = 1;

QString commandText(const char *text)
{
    return QCoreApplication::translate("EditCommand", text);
}

} // namespace

QByteArray encodeItems(const QList<Jk_tu_yuan *> &items)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setVersion(QDataStream::Qt_5_15);
    out << kMagic << kVersion << qint32(items.size());
    for (const Jk_tu_yuan *item : items) {
        out << item->path << item->is_bitmap << item->source_image << item->display_image
            << item->jiao_du << item->layer_id << item->reserved << item->transform() << item->pos()
            << item->wen_zi << item->zi_ti;
    }
    return bytes;
}

QList<Jk_tu_yuan *> decodeItems(const QByteArray &bytes)
{
    QList<Jk_tu_yuan *> items;
    QDataStream in(bytes);
    in.setVersion(QDataStream::Qt_5_15);
    quint32 magic = 0;
    quint16 version = 0;
    qint32 count = 0;
    in >> magic >> version >> count;
    if (in.status() != QDataStream::Ok || magic != kMagic || version != kVersion || count < 0) {
        qDebug() << "paste: not an item stream";
        return items;
    }
    for (qint32 i = 0; i < count && !in.atEnd(); ++i) {
        QPainterPath path;
        bool bitmap = false;
        QImage source, display;
        double angle = 0;
        qint32 layer = 0, reserved = 0;
        QTransform transform;
        QPointF pos;
        QString text, settings;
        // The careful readers of the project file: damaged counts and image
        // headers cannot make the reader allocate without bound.
        bool whole = readPathChecked(in, path);
        in >> bitmap;
        whole = whole && readImageChecked(in, source) && readImageChecked(in, display);
        in >> angle >> layer >> reserved;
        whole = whole && readTransformChecked(in, transform);
        in >> pos >> text >> settings;
        if (!whole || in.status() != QDataStream::Ok) {
            qDebug() << "paste: item" << i << "cut off";
            break;
        }
        auto *item = new Jk_tu_yuan(path, 1);
        item->is_bitmap = bitmap;
        item->source_image = source;
        item->display_image = display;
        item->jiao_du = angle;
        item->layer_id = layer;
        item->reserved = reserved;
        item->setTransform(transform);
        item->setPos(pos);
        item->wen_zi = text;
        item->zi_ti = settings;
        if (bitmap)
            item->setCacheMode(QGraphicsItem::NoCache);
        items.append(item);
    }
    return items;
}

QMimeData *itemsMimeData(const QList<Jk_tu_yuan *> &items)
{
    auto *mime = new QMimeData;
    mime->setData(QString::fromLatin1(kItemsMimeType), encodeItems(items));
    return mime;
}

QUndoCommand *makePasteCommand(Jk_chang_jing *scene, const QMimeData *mime, const QPointF &offset)
{
    if (!mime || !mime->hasFormat(QString::fromLatin1(kItemsMimeType)))
        return nullptr;
    const QList<Jk_tu_yuan *> items = decodeItems(mime->data(QString::fromLatin1(kItemsMimeType)));
    if (items.isEmpty())
        return nullptr;
    translateItems(items, offset);
    for (Jk_tu_yuan *item : items)
        item->setSelected(true);
    return makeReplaceItemsCommand(scene, {}, items, commandText("粘贴"));
}

QUndoCommand *makeDuplicateCommand(Jk_chang_jing *scene, const QList<Jk_tu_yuan *> &items,
                                   const QPointF &offset)
{
    if (items.isEmpty())
        return nullptr;
    QList<Jk_tu_yuan *> copies;
    for (const Jk_tu_yuan *item : items)
        copies.append(cloneItem(item));
    translateItems(copies, offset);
    for (Jk_tu_yuan *copy : copies)
        copy->setSelected(true);
    return makeReplaceItemsCommand(scene, {}, copies, commandText("复制"));
}

} // namespace lumitra
