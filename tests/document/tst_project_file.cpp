#include "design_fixture.h"
#include "png_bytes.h"
#include "program_state.h"
#include "project_file.h"
#include "project_stream.h"

#include <QBuffer>
#include <QDir>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>
#include <limits>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#endif

Q_DECLARE_METATYPE(QPainterPath)

namespace {

const double kNaN = std::numeric_limits<double>::quiet_NaN();
const double kInf = std::numeric_limits<double>::infinity();

// Every stored layer field, for comparing records in one go.
QVariantList fields(const TuCeng &l)
{
    return {l.yanse, l.tupian, l.gonglv,  l.sudu,     l.fangxiang, l.jianju, l.saomiao,
            l.moshi, l.shuchu, l.xianshi, l.danxiang, l.mingcheng, l.cishu};
}

QByteArray stream(const std::function<void(QDataStream &)> &write)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    out.setVersion(19);
    write(out);
    return bytes;
}

QByteArray encoded(const QString &marker)
{
    return stream([&](QDataStream &out) { out << marker; });
}

ProjectReadResult readBytes(const QByteArray &bytes)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    return readProject(&buffer);
}

QByteArray writeBytes(const QList<ProjectPageOut> &pages)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    return writeProject(&buffer, pages) ? buffer.data() : QByteArray();
}

QList<ProjectPageOut> currentPage(Jk_chang_jing &scene, const QString &name)
{
    ProjectPageOut page;
    page.name = name;
    for (const TuCeng *l : LayerList::instance().layers())
        page.layers.append(l);
    page.items = scene.designItems();
    return {page};
}

// The fixture design written as page "page one"; copies of its items and
// layers in `items` and `layers`.
QByteArray designBytes(QList<Jk_tu_yuan *> *items = nullptr, QList<TuCeng> *layers = nullptr)
{
    Jk_chang_jing scene;
    fixture::addDesign(scene);
    fixture::customiseLayers();
    for (Jk_tu_yuan *item : scene.designItems())
        if (items) {
            items->append(new Jk_tu_yuan(item)); // copies outlive the scene
            items->last()->setPos(item->pos());
        }
    if (layers)
        for (const TuCeng *l : LayerList::instance().layers())
            layers->append(*l);
    return writeBytes(currentPage(scene, QStringLiteral("page one")));
}

} // namespace

// The project file: exact layout, round trip, atomic saving, a reader that
// survives files cut short or damaged, and the careful readers for paths,
// images and transforms inside the stream.
class TestProjectFile : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        lumitra::resetProgramState();
        LayerList::instance().clear();
    }

    void layoutIsExact()
    {
        QList<TuCeng> layers;
        const QByteArray bytes = designBytes(nullptr, &layers);
        QVERIFY(!bytes.isEmpty());
        // Format tag: a 32-bit little-endian byte length, then UTF-16LE code units.
        QCOMPARE(bytes.left(12), QByteArray::fromHex("080000003000300030003100"));

        QDataStream in(bytes);
        in.setByteOrder(QDataStream::LittleEndian);
        in.setVersion(19);
        QString s;
        for (const char *expected : {"0001", "MY_SCENE", "page one"}) {
            in >> s;
            QCOMPARE(s, QString::fromLatin1(expected));
        }
        for (const TuCeng &l : layers) {
            in >> s;
            QCOMPARE(s, QStringLiteral("MY_CENG"));
            const qint64 at = in.device()->pos();
            TuCeng r(0, false);
            in >> r.sudu >> r.moshi >> r.tupian >> r.gonglv >> r.shuchu >> r.shanchu >> r.yanse
                >> r.xianshi >> r.mingcheng >> r.danxiang >> r.saomiao >> r.fangxiang >> r.jianju
                >> r.cishu >> s;
            QCOMPARE(fields(r), fields(l));
            QCOMPARE(r.shanchu, false);
            QCOMPARE(s, QStringLiteral("123"));
            // Booleans take one byte: 6 ints of 4 bytes, 2 doubles, 5 bools, the name.
            const qint64 nameBytes = 4 + 2 * l.mingcheng.size();
            QCOMPARE(in.device()->pos() - at,
                     6 * 4 + 2 * 8 + 5 + nameBytes + encoded(QStringLiteral("123")).size());
            QCOMPARE(qFromLittleEndian<qint32>(bytes.constData() + at), l.sudu);
        }
        int items = 0;
        for (in >> s; s == QStringLiteral("MY_ITEM"); in >> s) {
            ++items;
            QPainterPath path;
            bool bitmap;
            QImage source, display;
            double angle, x, y;
            qint32 layer;
            QTransform t;
            in >> path >> bitmap >> source >> display >> angle >> layer >> x >> y >> t >> s;
            QCOMPARE(s, QStringLiteral("out itemend"));
            QCOMPARE(bitmap, !source.isNull());
            QVERIFY(in.status() == QDataStream::Ok);
        }
        QCOMPARE(items, 4);
        QCOMPARE(s, QStringLiteral("end"));
        QVERIFY(in.atEnd());
    }

    void roundTripKeepsTheDesign()
    {
        QTemporaryDir dir;
        const QString file = dir.filePath(QStringLiteral("design.lumitra"));
        Jk_chang_jing scene;
        fixture::addDesign(scene);
        fixture::customiseLayers();
        QList<QVariantList> layersBefore;
        for (const TuCeng *l : LayerList::instance().layers())
            layersBefore.append(fields(*l));
        const QList<Jk_tu_yuan *> before = scene.designItems();
        QVERIFY(saveProjectFile(file, currentPage(scene, QStringLiteral("main"))).ok);

        const ProjectReadResult r = readProjectFile(file);
        QVERIFY(r.opened);
        QVERIFY(r.complete);
        QCOMPARE(r.pages.size(), 1);
        QVERIFY(r.pages.first().named);
        QCOMPARE(r.pages.first().name, QStringLiteral("main"));
        QList<QVariantList> layersAfter;
        for (const TuCeng &l : r.pages.first().layers) {
            layersAfter.append(fields(l));
            QVERIFY(!l.xuanzhong);
        }
        QCOMPARE(layersAfter, layersBefore);
        QCOMPARE(layersAfter.size(), 4); // vector layers 1, 2 and 7, bitmap layer 7
        const QList<Jk_tu_yuan *> &after = r.pages.first().items;
        QCOMPARE(after.size(), before.size());
        for (int i = 0; i < after.size(); ++i) {
            const Jk_tu_yuan *a = after.at(i);
            const Jk_tu_yuan *b = before.at(i);
            QCOMPARE(a->path, b->path);
            QCOMPARE(a->is_bitmap, b->is_bitmap);
            QCOMPARE(a->layer_id, b->layer_id);
            QCOMPARE(a->pos(), b->pos());
            QCOMPARE(a->transform(), b->transform());
            QCOMPARE(a->jiao_du, b->jiao_du);
            QCOMPARE(a->scenePath(), b->scenePath());
            QCOMPARE(a->source_image.convertToFormat(QImage::Format_ARGB32),
                     b->source_image.convertToFormat(QImage::Format_ARGB32));
            QCOMPARE(a->display_image.convertToFormat(QImage::Format_ARGB32),
                     b->display_image.convertToFormat(QImage::Format_ARGB32));
            QVERIFY(a->wen_zi.isEmpty());
            QVERIFY(a->zi_ti.isEmpty());
            QVERIFY(!a->filled);
            QVERIFY(!a->isSelected());
        }
        // Stored topmost first: bitmap, star, ellipse, rectangle.
        QCOMPARE(after.at(2)->jiao_du, 375.0); // the ellipse: 35 + 340
        QVERIFY(after.at(0)->is_bitmap);
        QVERIFY(after.at(0)->source_image != after.at(0)->display_image);
    }

    void pagesComeBackByName()
    {
        Jk_chang_jing first;
        Jk_chang_jing second;
        first.addItem(new Jk_tu_yuan(0));
        second.addItem(new Jk_tu_yuan(1));
        second.addItem(new Jk_tu_yuan(2));
        TuCeng layer(4, false);
        layer.gonglv = 44;
        QList<ProjectPageOut> pages{ProjectPageOut(), ProjectPageOut()};
        pages[0].name = QStringLiteral("front");
        pages[0].items = first.designItems();
        pages[1].name = QStringLiteral("back");
        pages[1].layers = {&layer};
        pages[1].items = second.designItems();
        const ProjectReadResult r = readBytes(writeBytes(pages));
        QVERIFY(r.complete);
        QCOMPARE(r.pages.size(), 2);
        QCOMPARE(r.pages[0].name, QStringLiteral("front"));
        QCOMPARE(r.pages[0].items.size(), 1);
        QVERIFY(r.pages[0].layers.isEmpty());
        QCOMPARE(r.pages[1].name, QStringLiteral("back"));
        QCOMPARE(r.pages[1].items.size(), 2);
        QCOMPARE(r.pages[1].layers.size(), 1);
        QCOMPARE(r.pages[1].layers.first().gonglv, 44);

        // Records before any page marker go to an unnamed current page.
        const ProjectReadResult loose = readBytes(stream([](QDataStream &out) {
            out << QStringLiteral("0001") << QStringLiteral("MY_CENG");
            writeTuCeng(out, TuCeng(2, true));
            out << QStringLiteral("unknown marker") << QStringLiteral("end");
        }));
        QVERIFY(loose.complete);
        QCOMPARE(loose.pages.size(), 1);
        QVERIFY(!loose.pages.first().named);
        QCOMPARE(loose.pages.first().layers.size(), 1);
        QVERIFY(loose.pages.first().layers.first().tupian);
    }

    void fineCurvesSetting()
    {
        // A layer with fine curves carries one extra string after its record; a layer
        // without writes exactly the bytes it always did.
        TuCeng plain(3, false), fine(5, false);
        fine.jingxi = true;
        QList<ProjectPageOut> pages{ProjectPageOut()};
        pages[0].name = QStringLiteral("p");
        pages[0].layers = {&plain, &fine};
        const QByteArray bytes = writeBytes(pages);
        const QByteArray expected = stream([&](QDataStream &out) {
            out << QStringLiteral("0001") << QStringLiteral("MY_SCENE") << QStringLiteral("p");
            out << QStringLiteral("MY_CENG");
            writeTuCeng(out, plain);
            out << QStringLiteral("MY_CENG");
            writeTuCeng(out, fine);
            out << QStringLiteral("MY_CENG_EXT fine=1") << QStringLiteral("end");
        });
        QCOMPARE(bytes, expected);
        const ProjectReadResult r = readBytes(bytes);
        QVERIFY(r.complete);
        QCOMPARE(r.pages.first().layers.size(), 2);
        QVERIFY(!r.pages.first().layers[0].jingxi);
        QVERIFY(r.pages.first().layers[1].jingxi);
        // Copies keep it.
        const TuCeng copy(r.pages.first().layers[1]);
        QVERIFY(copy.jingxi);
    }

    void failedSaveKeepsTheOldFile()
    {
#ifdef Q_OS_UNIX
        QTemporaryDir dir;
        const QString file = dir.filePath(QStringLiteral("keep.lumitra"));
        Jk_chang_jing small;
        small.addItem(new Jk_tu_yuan(0));
        QVERIFY(saveProjectFile(file, currentPage(small, QStringLiteral("a"))).ok);
        QFile f(file);
        QVERIFY(f.open(QIODevice::ReadOnly));
        const QByteArray old = f.readAll();
        f.close();

        // A design far larger than the file size the process may write.
        Jk_chang_jing big;
        QImage noise(300, 300, QImage::Format_ARGB32);
        QRandomGenerator random(7);
        for (int y = 0; y < noise.height(); ++y)
            for (int x = 0; x < noise.width(); ++x)
                noise.setPixel(x, y, random.generate());
        big.addItem(new Jk_tu_yuan(noise));
        std::signal(SIGXFSZ, SIG_IGN);
        rlimit saved{};
        getrlimit(RLIMIT_FSIZE, &saved);
        rlimit tight = saved;
        tight.rlim_cur = 4096;
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &tight), 0);
        const ProjectSaveResult result =
            saveProjectFile(file, currentPage(big, QStringLiteral("b")));
        setrlimit(RLIMIT_FSIZE, &saved);
        QVERIFY(!result.ok);
        QVERIFY(!result.error.isEmpty());
        QVERIFY(f.open(QIODevice::ReadOnly));
        QCOMPARE(f.readAll(), old);
        QCOMPARE(QDir(dir.path()).entryList(QDir::Files),
                 QStringList{QStringLiteral("keep.lumitra")});
#else
        QSKIP("needs a file size limit");
#endif
    }

    void cutAtEveryByte()
    {
        QList<Jk_tu_yuan *> originals;
        QList<TuCeng> layers;
        const QByteArray bytes = designBytes(&originals, &layers);
        const QByteArray itemEnd = encoded(QStringLiteral("out itemend"));
        const QByteArray layerEnd = encoded(QStringLiteral("123"));
        // An item is whole once its transform is in, where its end marker starts;
        // a layer once its "123" is in.
        QVector<int> itemEnds;
        for (int at = bytes.indexOf(itemEnd); at >= 0; at = bytes.indexOf(itemEnd, at + 1))
            itemEnds.append(at);
        QCOMPARE(itemEnds.size(), originals.size());
        int previous = 0;
        for (int cut = 0; cut <= bytes.size(); ++cut) {
            const QByteArray prefix = bytes.left(cut);
            const ProjectReadResult r = readBytes(prefix);
            const int expected = int(std::count_if(itemEnds.begin(), itemEnds.end(),
                                                   [cut](int at) { return at <= cut; }));
            const int count = r.itemCount();
            QVERIFY2(count == expected, qPrintable(QStringLiteral("cut %1: %2 items, expected %3")
                                                       .arg(cut)
                                                       .arg(count)
                                                       .arg(expected)));
            QVERIFY(count >= previous);
            previous = count;
            if (!r.pages.isEmpty()) {
                const ProjectPageIn &page = r.pages.first();
                for (int i = 0; i < page.items.size(); ++i) {
                    QCOMPARE(page.items.at(i)->path, originals.at(i)->path);
                    QCOMPARE(page.items.at(i)->pos(), originals.at(i)->pos());
                }
                QCOMPARE(page.layers.size(), qMin(prefix.count(layerEnd), layers.size()));
            }
            if (cut == bytes.size()) {
                QVERIFY(r.complete);
                QCOMPARE(count, originals.size());
            } else if (cut > 0 && !r.complete) {
                QVERIFY(r.stoppedAt >= 0);
            }
        }
        qDeleteAll(originals);
    }

    void damagedBytesNeverCrash()
    {
        const QByteArray bytes = designBytes();
        for (int at = 0; at < bytes.size(); ++at) {
            QByteArray damaged = bytes;
            damaged[at] = char(damaged.at(at) ^ 0xff);
            QVERIFY(readBytes(damaged).itemCount() <= 4);
        }
        QRandomGenerator random(20240611);
        for (int round = 0; round < 300; ++round) {
            QByteArray damaged = bytes;
            for (int k = 0; k < 8; ++k)
                damaged[random.bounded(damaged.size())] = char(random.bounded(256));
            QVERIFY(readBytes(damaged).itemCount() <= 4);
        }
        // A marker claiming 2 GB stops the reader without reading on.
        const QByteArray huge =
            encoded(QStringLiteral("0001")) + QByteArray::fromHex("feffff7f41004200");
        const ProjectReadResult r = readBytes(huge);
        QVERIFY(!r.complete);
        QCOMPARE(r.itemCount(), 0);
        QVERIFY(r.stoppedAt >= 0);
    }

    void outOfRangeValues()
    {
        Jk_chang_jing scene;
        auto *good = new Jk_tu_yuan(0);
        auto *bad = new Jk_tu_yuan(1);
        bad->layer_id = 99;
        scene.addItem(new Jk_tu_yuan(2));
        scene.addItem(bad);
        scene.addItem(good); // topmost: written first
        TuCeng wild(3, false);
        wild.gonglv = 500;
        wild.sudu = 1;
        wild.cishu = 0;
        wild.moshi = 9;
        wild.shanchu = true;
        TuCeng foreign(3, false);
        foreign.yanse = 45;
        QList<ProjectPageOut> pages = currentPage(scene, QStringLiteral("p"));
        pages[0].layers = {&wild, &foreign};

        const ProjectReadResult r = readBytes(writeBytes(pages));
        QVERIFY(!r.complete);
        QCOMPARE(r.problem, QStringLiteral("MY_CENG"));
        QCOMPARE(r.pages.first().layers.size(), 1); // the foreign number stops the reader
        const TuCeng &settled = r.pages.first().layers.first();
        QCOMPARE(settled.gonglv, 100);
        QCOMPARE(settled.sudu, 5);
        QCOMPARE(settled.cishu, 1);
        QCOMPARE(settled.moshi, int(CrossFillMode));
        QVERIFY(!settled.shanchu);
        QCOMPARE(r.itemCount(), 0);

        // Without the foreign layer the bad item stops the reader after the good one.
        pages[0].layers = {&wild};
        const ProjectReadResult r2 = readBytes(writeBytes(pages));
        QVERIFY(!r2.complete);
        QCOMPARE(r2.itemCount(), 1);
        QCOMPARE(r2.pages.first().items.first()->path, good->path);
    }

    void validValuesReadLikeTheLibrary_data()
    {
        QTest::addColumn<QPainterPath>("path");
        QTest::addColumn<QImage>("image");
        QTest::newRow("empty path, null image") << QPainterPath() << QImage();
        QPainterPath rect;
        rect.addRect(1, 2, 30, 0); // zero height: repeated points
        QImage argb(7, 5, QImage::Format_ARGB32);
        for (int y = 0; y < 5; ++y)
            for (int x = 0; x < 7; ++x)
                argb.setPixel(x, y, qRgba(x * 30, y * 50, 9, x * 36));
        QTest::newRow("flat rectangle, argb") << rect << argb;
        QPainterPath several;
        several.addEllipse(0, 0, 50, 20);
        several.moveTo(20, 20);
        several.lineTo(30, 25);
        several.cubicTo(1, 2, 3, 4, 5, 6);
        several.closeSubpath();
        several.lineTo(-4, -4);
        several.setFillRule(Qt::WindingFill);
        QImage mono(17, 3, QImage::Format_Mono);
        mono.fill(1);
        QTest::newRow("several subpaths, mono") << several << mono;
    }
    void validValuesReadLikeTheLibrary()
    {
        QFETCH(QPainterPath, path);
        QFETCH(QImage, image);
        const QByteArray bytes =
            stream([&](QDataStream &out) { out << path << qint32(77) << image << qint32(-9); });
        QDataStream lib(bytes);
        lib.setByteOrder(QDataStream::LittleEndian);
        lib.setVersion(19);
        QPainterPath expectedPath;
        QImage expectedImage;
        qint32 skip;
        lib >> expectedPath >> skip >> expectedImage;

        QDataStream in(bytes);
        in.setByteOrder(QDataStream::LittleEndian);
        in.setVersion(19);
        QPainterPath gotPath;
        QImage gotImage;
        qint32 after = 0;
        QVERIFY(readPathChecked(in, gotPath));
        QCOMPARE(gotPath, expectedPath);
        QCOMPARE(gotPath.fillRule(), expectedPath.fillRule());
        QCOMPARE(gotPath.elementCount(), expectedPath.elementCount());
        in >> after;
        QCOMPARE(after, 77); // consumed exactly the path
        QVERIFY(readImageChecked(in, gotImage));
        QCOMPARE(gotImage, expectedImage);
        QCOMPARE(gotImage.isNull(), image.isNull());
        if (!image.isNull())
            QCOMPARE(gotImage.convertToFormat(QImage::Format_ARGB32),
                     image.convertToFormat(QImage::Format_ARGB32));
        in >> after;
        QCOMPARE(after, -9);
    }

    void corruptPathsAreRefused_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        const auto elements = [](QList<std::tuple<int, double, double>> list, qint32 start,
                                 qint32 rule, int count = INT_MIN) {
            return stream([&](QDataStream &out) {
                out << qint32(count == INT_MIN ? list.size() : count);
                for (const auto &[type, x, y] : list)
                    out << qint32(type) << x << y;
                out << start << rule;
            });
        };
        QTest::newRow("starts with a line") << elements({{1, 0, 0}, {1, 1, 1}}, 0, 0);
        QTest::newRow("curve with one control point")
            << elements({{0, 0, 0}, {2, 1, 1}, {3, 2, 2}, {1, 3, 3}}, 0, 0);
        QTest::newRow("control point alone") << elements({{0, 0, 0}, {3, 1, 1}}, 0, 0);
        QTest::newRow("unknown element type") << elements({{0, 0, 0}, {7, 1, 1}}, 0, 0);
        QTest::newRow("NaN coordinate") << elements({{0, 0, 0}, {1, kNaN, 1}}, 0, 0);
        QTest::newRow("infinite coordinate") << elements({{0, 0, 0}, {1, 1, kInf}}, 0, 0);
        QTest::newRow("subpath start past the end") << elements({{0, 0, 0}, {1, 1, 1}}, 5, 0);
        QTest::newRow("subpath start on a line") << elements({{0, 0, 0}, {1, 1, 1}}, 1, 0);
        QTest::newRow("unknown fill rule") << elements({{0, 0, 0}, {1, 1, 1}}, 0, 3);
        QTest::newRow("more elements claimed than sent")
            << elements({{0, 0, 0}, {1, 1, 1}}, 0, 0, 1000);
        QTest::newRow("two billion elements") << elements({{0, 0, 0}}, 0, 0, 0x7fffffff);
        QTest::newRow("negative count") << elements({}, 0, 0, -3);
        QTest::newRow("cut in the count") << QByteArray("\x02\x00", 2);
    }
    void corruptPathsAreRefused()
    {
        QFETCH(QByteArray, bytes);
        QDataStream in(bytes);
        in.setByteOrder(QDataStream::LittleEndian);
        in.setVersion(19);
        QPainterPath path;
        QVERIFY(!readPathChecked(in, path));
        QVERIFY(in.status() != QDataStream::Ok);
    }

    void corruptImagesAreRefused_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        const auto withMarker = [](const QByteArray &png, qint32 marker = 1) {
            return stream([&](QDataStream &out) {
                out << marker;
                out.writeRawData(png.constData(), png.size());
            });
        };
        QByteArray valid;
        {
            QBuffer b(&valid);
            b.open(QIODevice::WriteOnly);
            QImage img(20, 20, QImage::Format_RGB32);
            img.fill(Qt::red);
            img.save(&b, "PNG");
        }
        QTest::newRow("unknown marker") << withMarker(valid, 2);
        QTest::newRow("not a png") << withMarker(QByteArray("GIF89a....."));
        QTest::newRow("cut in a chunk") << withMarker(valid.left(valid.size() - 20));
        QTest::newRow("no end chunk") << withMarker(valid.left(valid.size() - 12));
        QByteArray badCrc = valid;
        badCrc[valid.indexOf("IDAT") + 6] = char(badCrc.at(valid.indexOf("IDAT") + 6) ^ 0x55);
        QTest::newRow("damaged image data") << withMarker(badCrc);
        QTest::newRow("header claims 20000 x 20000")
            << withMarker(pngbytes::lyingPng(20000, 20000));
        QTest::newRow("header claims 2^31 x 2^31")
            << withMarker(pngbytes::lyingPng(0x7fffffff, 0x7fffffff));
        QTest::newRow("zero width") << withMarker(pngbytes::lyingPng(0, 10));
        QTest::newRow("no header chunk")
            << withMarker(pngbytes::signature() + pngbytes::chunk("IEND", {}));
        QTest::newRow("chunk longer than the file")
            << withMarker(pngbytes::signature() + pngbytes::bigEndian(0x7ffffff0) + "IHDR");
    }
    void corruptImagesAreRefused()
    {
        QFETCH(QByteArray, bytes);
        QDataStream in(bytes);
        in.setByteOrder(QDataStream::LittleEndian);
        in.setVersion(19);
        QImage image;
        QVERIFY(!readImageChecked(in, image));
        QVERIFY(in.status() != QDataStream::Ok);
    }

    void transforms_data()
    {
        QTest::addColumn<QTransform>("transform");
        QTest::addColumn<bool>("ok");
        QTest::newRow("rotate and mirror") << QTransform().rotate(33).scale(1, -1) << true;
        QTest::newRow("projective") << QTransform(1, 0, 0.001, 0, 1, 0, 5, 6, 1) << true;
        QTest::newRow("NaN") << QTransform(kNaN, 0, 0, 1, 0, 0) << false;
        QTest::newRow("infinite shift") << QTransform(1, 0, 0, 1, kInf, 0) << false;
    }
    // Kerf and cut order follow their record as one extra string, only when
    // set, so a record at its defaults is stored as before and files written
    // before these fields existed load with the defaults.
    void layerExtras_data()
    {
        QTest::addColumn<double>("kerf");
        QTest::addColumn<int>("order");
        QTest::newRow("defaults") << 0.0 << int(CutAsDrawn);
        QTest::newRow("kerf") << 0.125 << int(CutAsDrawn);
        QTest::newRow("order") << 0.0 << int(CutOptimised);
        QTest::newRow("both") << 0.3 << int(CutOptimised);
    }
    void layerExtras()
    {
        QFETCH(double, kerf);
        QFETCH(int, order);
        TuCeng layer(4, false);
        layer.kerf = kerf;
        layer.cutOrder = order;
        ProjectPageOut page;
        page.name = QStringLiteral("p");
        page.layers = {&layer};
        const QByteArray bytes = writeBytes({page});
        const TuCeng plain(4, false);
        page.layers = {&plain};
        const QByteArray plainBytes = writeBytes({page});
        QCOMPARE(bytes == plainBytes, kerf == 0 && order == CutAsDrawn);
        const ProjectReadResult r = readBytes(bytes);
        QVERIFY(r.complete);
        QCOMPARE(r.pages.size(), 1);
        QCOMPARE(r.pages[0].layers.size(), 1);
        QCOMPARE(r.pages[0].layers[0].kerf, kerf);
        QCOMPARE(r.pages[0].layers[0].cutOrder, order);
    }
    void layerExtrasUnknownKeysAndRanges()
    {
        TuCeng l(1, false);
        QVERIFY(readLayerExtras(QStringLiteral("MY_CENG_EXT fine=1 kerf=0.2 order=7 new=3"), l));
        QVERIFY(l.jingxi);
        QCOMPARE(l.kerf, 0.2);
        QCOMPARE(l.cutOrder, int(CutAsDrawn));
        QVERIFY(readLayerExtras(QStringLiteral("MY_CENG_EXT kerf=99 order=1"), l));
        QCOMPARE(l.kerf, 5.0);
        QCOMPARE(l.cutOrder, int(CutOptimised));
        QVERIFY(!readLayerExtras(QStringLiteral("out itemend"), l));
        QCOMPARE(layerExtrasText(TuCeng(1, false)), QString());
    }

    void transforms()
    {
        QFETCH(QTransform, transform);
        QFETCH(bool, ok);
        const QByteArray bytes = stream([&](QDataStream &out) { out << transform; });
        QDataStream in(bytes);
        in.setByteOrder(QDataStream::LittleEndian);
        in.setVersion(19);
        QTransform got;
        QCOMPARE(readTransformChecked(in, got), ok);
        if (ok)
            QCOMPARE(got, transform);
        QVERIFY(!readTransformChecked(in, got)); // nothing left
    }
};

QTEST_MAIN(TestProjectFile)
#include "tst_project_file.moc"
