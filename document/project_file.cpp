#include "project_file.h"

#include "jk_tu_yuan.h"
#include "project_stream.h"

#include <QDebug>
#include <QFile>
#include <QSaveFile>
#include <cmath>

namespace {
const QString kFormatTag = QStringLiteral("0001");
const QString kSceneMarker = QStringLiteral("MY_SCENE");
const QString kLayerMarker = QStringLiteral("MY_CENG");
// Follows the layer record of a layer with fine curves. A string of its own, so that
// readers that do not know it skip it; layers without the setting are stored as before.
const QString kItemMarker = QStringLiteral("MY_ITEM");
const QString kItemEnd = QStringLiteral("out itemend");
const QString kEnd = QStringLiteral("end");

void prepare(QDataStream &s)
{
    s.setByteOrder(QDataStream::LittleEndian);
    s.setVersion(kProjectStreamVersion);
}

void writeItem(QDataStream &out, const Jk_tu_yuan *item)
{
    const QPointF pos = item->scenePos();
    out << kItemMarker << item->path << item->is_bitmap << item->source_image << item->display_image
        << item->jiao_du << item->layer_id << double(pos.x()) << double(pos.y())
        << item->transform() << kItemEnd;
}

bool validLayerNumber(qint32 n)
{
    return n >= 0 && n < kLayerCount;
}

// Brings a record read from a file into the ranges the panel allows. Returns
// false for a record that cannot be a layer at all.
bool settleLayer(TuCeng &l)
{
    if (!validLayerNumber(l.yanse) || !std::isfinite(l.jianju) || !std::isfinite(l.saomiao))
        return false;
    const TuCeng before = l;
    l.gonglv = qBound(0, l.gonglv, 100);
    l.sudu = qBound(5, l.sudu, 99999999);
    l.cishu = qBound(1, l.cishu, 999);
    l.fangxiang = qBound(0, l.fangxiang, 360);
    l.jianju = qBound(0.01, l.jianju, 100.0);
    l.saomiao = qBound(0.0, l.saomiao, 100.0);
    l.moshi = qBound(0, l.moshi, l.tupian ? int(NegativeMode) : int(CrossFillMode));
    l.shanchu = false;
    if (l.gonglv != before.gonglv || l.sudu != before.sudu || l.cishu != before.cishu
        || l.fangxiang != before.fangxiang || l.jianju != before.jianju
        || l.saomiao != before.saomiao || l.moshi != before.moshi)
        qDebug() << " project read: layer" << l.yanse << "parameters brought into range";
    return true;
}

// Reads the fields of one item record (after its marker). nullptr when the
// record cannot be read whole.
Jk_tu_yuan *readItem(QDataStream &in)
{
    QPainterPath path;
    bool bitmap = false;
    QImage source, display;
    double angle = 0, x = 0, y = 0;
    qint32 layer = 0;
    QTransform transform;
    if (!readPathChecked(in, path))
        return nullptr;
    in >> bitmap;
    if (!readImageChecked(in, source) || !readImageChecked(in, display))
        return nullptr;
    in >> angle >> layer >> x >> y;
    if (in.status() != QDataStream::Ok || !readTransformChecked(in, transform))
        return nullptr;
    if (!validLayerNumber(layer) || !std::isfinite(angle) || !std::isfinite(x)
        || !std::isfinite(y)) {
        in.setStatus(QDataStream::ReadCorruptData);
        return nullptr;
    }
    auto *item = new Jk_tu_yuan();
    item->path = path;
    item->is_bitmap = bitmap;
    item->source_image = source;
    item->display_image = display;
    item->jiao_du = angle;
    item->layer_id = layer;
    item->setPos(x, y);
    item->setTransform(transform);
    return item;
}

ProjectPageIn &currentPage(ProjectReadResult &r)
{
    if (r.pages.isEmpty())
        r.pages.append(ProjectPageIn());
    return r.pages.last();
}
} // namespace

bool writeProject(QIODevice *device, const QList<ProjectPageOut> &pages)
{
    QDataStream out(device);
    prepare(out);
    out << kFormatTag;
    for (const ProjectPageOut &page : pages) {
        out << kSceneMarker << page.name;
        for (const TuCeng *layer : page.layers) {
            out << kLayerMarker;
            writeTuCeng(out, *layer);
            const QString extras = layerExtrasText(*layer);
            if (!extras.isEmpty())
                out << extras;
        }
        for (const Jk_tu_yuan *item : page.items)
            writeItem(out, item);
    }
    out << kEnd;
    return out.status() == QDataStream::Ok;
}

SaveRefusal saveRefusal(bool running, int itemCount)
{
    if (running)
        return SaveRefusal::Engraving;
    if (itemCount <= 0)
        return SaveRefusal::NoData;
    return SaveRefusal::None;
}

ProjectSaveResult saveProjectFile(const QString &path, const QList<ProjectPageOut> &pages)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        qDebug() << " project save: cannot open" << path << file.errorString();
        return {false, file.errorString()};
    }
    if (!writeProject(&file, pages)) {
        file.cancelWriting();
        qDebug() << " project save: write failed" << path << file.errorString();
        return {false, file.errorString()};
    }
    if (!file.commit()) {
        qDebug() << " project save: commit failed" << path << file.errorString();
        return {false, file.errorString()};
    }
    return {true, QString()};
}

ProjectReadResult::~ProjectReadResult()
{
    for (const ProjectPageIn &page : pages)
        qDeleteAll(page.items);
}

int ProjectReadResult::itemCount() const
{
    int n = 0;
    for (const ProjectPageIn &page : pages)
        n += page.items.size();
    return n;
}

ProjectReadResult readProject(QIODevice *device)
{
    ProjectReadResult r;
    r.opened = device && device->isReadable();
    if (!r.opened)
        return r;
    QDataStream in(device);
    prepare(in);
    while (!in.atEnd()) {
        const qint64 at = device->pos();
        QString marker;
        in >> marker;
        bool ok = in.status() == QDataStream::Ok;
        if (ok && marker == kItemMarker) {
            Jk_tu_yuan *item = readItem(in);
            ok = item != nullptr;
            if (ok)
                currentPage(r).items.append(item);
        } else if (ok && marker == kSceneMarker) {
            ProjectPageIn page;
            in >> page.name;
            page.named = true;
            ok = in.status() == QDataStream::Ok;
            if (ok)
                r.pages.append(page);
        } else if (ok && marker == kLayerMarker) {
            TuCeng layer;
            ok = readTuCeng(in, layer) && settleLayer(layer);
            if (ok)
                currentPage(r).layers.append(layer);
        } else if (ok && !r.pages.isEmpty() && !r.pages.last().layers.isEmpty()) {
            // Fields added to the layer record after it was first stored.
            readLayerExtras(marker, r.pages.last().layers.last());
        }
        // Any other string ("0001", "123", "out itemend", "end") is skipped.
        if (!ok) {
            r.stoppedAt = at;
            r.problem = marker.isNull() ? QStringLiteral("marker") : marker.left(16);
            qDebug() << " project read stopped at" << at << "in" << r.problem << "status"
                     << in.status();
            return r;
        }
    }
    r.complete = true;
    return r;
}

ProjectReadResult readProjectFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qDebug() << " project open failed" << path;
        return ProjectReadResult();
    }
    return readProject(&file);
}
