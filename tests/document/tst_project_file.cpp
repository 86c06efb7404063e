#include "design_fixture.h"
#include "program_state.h"
#include "project_file.h"

#include <QBuffer>
#include <QDir>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#endif

// The project file: exact layout, round trip, atomic saving and a reader that
// survives files cut short or damaged.
class TestProjectFile : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void layoutIsExact();
    void itemsTopmostFirst();
    void roundTripKeepsTheDesign();
    void pagesComeBackByName();
    void recordsBeforeAnyPageGoToTheCurrentOne();
    void saveRefusal_data();
    void saveRefusal();
    void failedSaveKeepsTheOldFile();
    void unopenableFileIsIgnored();
    void cutAtEveryByte();
    void damagedBytesNeverCrash();
    void hugeCountsStopTheReader_data();
    void hugeCountsStopTheReader();
    void outOfRangeValues();

private:
    static QByteArray designBytes(QList<Jk_tu_yuan *> *items = nullptr,
                                  QList<TuCeng> *layers = nullptr);
    static QList<ProjectPageOut> currentPage(Jk_chang_jing &scene, const QString &name);
    static QByteArray encoded(const QString &marker);
    static ProjectReadResult readBytes(const QByteArray &bytes);
};

void TestProjectFile::init()
{
    lumitra::resetProgramState();
    LayerList::instance().clear();
}

QList<ProjectPageOut> TestProjectFile::currentPage(Jk_chang_jing &scene, const QString &name)
{
    ProjectPageOut page;
    page.name = name;
    for (const TuCeng *l : LayerList::instance().layers())
        page.layers.append(l);
    page.items = scene.designItems();
    return {page};
}

QByteArray TestProjectFile::designBytes(QList<Jk_tu_yuan *> *items, QList<TuCeng> *layers)
{
    Jk_chang_jing scene;
    fixture::addDesign(scene);
    fixture::customiseLayers();
    if (items) {
        for (Jk_tu_yuan *item : scene.designItems())
            items->append(new Jk_tu_yuan(item)); // copies outlive the scene
        for (int i = 0; i < items->size(); ++i)
            (*items)[i]->setPos(scene.designItems().at(i)->pos());
    }
    if (layers)
        for (const TuCeng *l : LayerList::instance().layers())
            layers->append(*l);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    if (!writeProject(&buffer, currentPage(scene, QStringLiteral("page one"))))
        return QByteArray();
    return buffer.data();
}

QByteArray TestProjectFile::encoded(const QString &marker)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    out << marker;
    return bytes;
}

ProjectReadResult TestProjectFile::readBytes(const QByteArray &bytes)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    return readProject(&buffer);
}

void TestProjectFile::layoutIsExact()
{
    QList<TuCeng> layers;
    const QByteArray bytes = designBytes(nullptr, &layers);
    QVERIFY(!bytes.isEmpty());
    // Format tag: a 32-bit little-endian byte length, then UTF-16LE code units.
    QCOMPARE(bytes.left(12), QByteArray::fromHex("08000000"
                                                 "30003000"
                                                 "30003100"));

    QDataStream in(bytes);
    in.setByteOrder(QDataStream::LittleEndian);
    in.setVersion(19);
    QString s;
    in >> s;
    QCOMPARE(s, QStringLiteral("0001"));
    in >> s;
    QCOMPARE(s, QStringLiteral("MY_SCENE"));
    in >> s;
    QCOMPARE(s, QStringLiteral("page one"));
    for (const TuCeng &l : layers) {
        in >> s;
        QCOMPARE(s, QStringLiteral("MY_CENG"));
        const qint64 at = in.device()->pos();
        qint32 sudu, moshi, gonglv, yanse, fangxiang, cishu;
        bool tupian, shuchu, shanchu, xianshi, danxiang;
        double saomiao, jianju;
        QString mingcheng;
        in >> sudu >> moshi >> tupian >> gonglv >> shuchu >> shanchu >> yanse >> xianshi
            >> mingcheng >> danxiang >> saomiao >> fangxiang >> jianju >> cishu >> s;
        QCOMPARE(sudu, l.sudu);
        QCOMPARE(moshi, l.moshi);
        QCOMPARE(tupian, l.tupian);
        QCOMPARE(gonglv, l.gonglv);
        QCOMPARE(shuchu, l.shuchu);
        QCOMPARE(shanchu, false);
        QCOMPARE(yanse, l.yanse);
        QCOMPARE(xianshi, l.xianshi);
        QCOMPARE(mingcheng, l.mingcheng);
        QCOMPARE(danxiang, l.danxiang);
        QCOMPARE(saomiao, l.saomiao);
        QCOMPARE(fangxiang, l.fangxiang);
        QCOMPARE(jianju, l.jianju);
        QCOMPARE(cishu, l.cishu);
        QCOMPARE(s, QStringLiteral("123"));
        // Booleans take one byte: 4 ints of 4 bytes, 2 doubles, 5 bools, the name.
        const qint64 nameBytes = 4 + 2 * l.mingcheng.size();
        QCOMPARE(in.device()->pos() - at, 6 * 4 + 2 * 8 + 5 + nameBytes + encoded("123").size());
        const qint32 leSudu = qFromLittleEndian<qint32>(bytes.constData() + at);
        QCOMPARE(leSudu, l.sudu);
    }
    int items = 0;
    while (true) {
        in >> s;
        if (s != QStringLiteral("MY_ITEM"))
            break;
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

void TestProjectFile::itemsTopmostFirst()
{
    Jk_chang_jing scene;
    const QList<Jk_tu_yuan *> items = fixture::addDesign(scene);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QVERIFY(writeProject(&buffer, currentPage(scene, QStringLiteral("p"))));
    const ProjectReadResult r = readBytes(buffer.data());
    QVERIFY(r.complete);
    QCOMPARE(r.itemCount(), 4);
    const QList<Jk_tu_yuan *> &read = r.pages.first().items;
    // Added rectangle, ellipse, star, bitmap: stored bitmap first.
    for (int i = 0; i < 4; ++i)
        QCOMPARE(read.at(i)->path, items.at(3 - i)->path);
}

void TestProjectFile::roundTripKeepsTheDesign()
{
    QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("design.lumitra"));
    Jk_chang_jing scene;
    fixture::addDesign(scene);
    fixture::customiseLayers();
    QList<TuCeng> layersBefore;
    for (const TuCeng *l : LayerList::instance().layers())
        layersBefore.append(*l);
    const QList<Jk_tu_yuan *> before = scene.designItems();
    QVERIFY(saveProjectFile(file, currentPage(scene, QStringLiteral("main"))).ok);

    const ProjectReadResult r = readProjectFile(file);
    QVERIFY(r.opened);
    QVERIFY(r.complete);
    QCOMPARE(r.pages.size(), 1);
    QVERIFY(r.pages.first().named);
    QCOMPARE(r.pages.first().name, QStringLiteral("main"));
    const QVector<TuCeng> &layers = r.pages.first().layers;
    QCOMPARE(layers.size(), layersBefore.size());
    QCOMPARE(layers.size(), 4); // vector layers 1, 2 and 7, bitmap layer 7
    for (int i = 0; i < layers.size(); ++i) {
        const TuCeng &a = layers.at(i);
        const TuCeng &b = layersBefore.at(i);
        QCOMPARE(a.yanse, b.yanse);
        QCOMPARE(a.tupian, b.tupian);
        QCOMPARE(a.gonglv, b.gonglv);
        QCOMPARE(a.sudu, b.sudu);
        QCOMPARE(a.fangxiang, b.fangxiang);
        QCOMPARE(a.jianju, b.jianju);
        QCOMPARE(a.saomiao, b.saomiao);
        QCOMPARE(a.moshi, b.moshi);
        QCOMPARE(a.shuchu, b.shuchu);
        QCOMPARE(a.xianshi, b.xianshi);
        QCOMPARE(a.danxiang, b.danxiang);
        QCOMPARE(a.mingcheng, b.mingcheng);
        QCOMPARE(a.cishu, b.cishu);
        QVERIFY(!a.xuanzhong);
    }
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
    QCOMPARE(after.at(2)->jiao_du, 375.0); // the ellipse: 35 + 340
    QVERIFY(after.at(0)->is_bitmap);
    QVERIFY(after.at(0)->source_image != after.at(0)->display_image);
}

void TestProjectFile::pagesComeBackByName()
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
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QVERIFY(writeProject(&buffer, pages));
    const ProjectReadResult r = readBytes(buffer.data());
    QVERIFY(r.complete);
    QCOMPARE(r.pages.size(), 2);
    QCOMPARE(r.pages[0].name, QStringLiteral("front"));
    QCOMPARE(r.pages[0].items.size(), 1);
    QVERIFY(r.pages[0].layers.isEmpty());
    QCOMPARE(r.pages[1].name, QStringLiteral("back"));
    QCOMPARE(r.pages[1].items.size(), 2);
    QCOMPARE(r.pages[1].layers.size(), 1);
    QCOMPARE(r.pages[1].layers.first().gonglv, 44);
}

void TestProjectFile::recordsBeforeAnyPageGoToTheCurrentOne()
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    out.setVersion(19);
    TuCeng layer(2, true);
    out << QStringLiteral("0001") << QStringLiteral("MY_CENG");
    writeTuCeng(out, layer);
    out << QStringLiteral("unknown marker") << QStringLiteral("end");
    const ProjectReadResult r = readBytes(bytes);
    QVERIFY(r.complete);
    QCOMPARE(r.pages.size(), 1);
    QVERIFY(!r.pages.first().named);
    QCOMPARE(r.pages.first().layers.size(), 1);
    QVERIFY(r.pages.first().layers.first().tupian);
}

void TestProjectFile::saveRefusal_data()
{
    QTest::addColumn<bool>("running");
    QTest::addColumn<int>("items");
    QTest::addColumn<int>("refusal");
    QTest::newRow("engraving") << true << 5 << int(SaveRefusal::Engraving);
    QTest::newRow("engraving and empty") << true << 0 << int(SaveRefusal::Engraving);
    QTest::newRow("empty") << false << 0 << int(SaveRefusal::NoData);
    QTest::newRow("fine") << false << 1 << int(SaveRefusal::None);
}

void TestProjectFile::saveRefusal()
{
    QFETCH(bool, running);
    QFETCH(int, items);
    QFETCH(int, refusal);
    QCOMPARE(int(::saveRefusal(running, items)), refusal);
}

void TestProjectFile::failedSaveKeepsTheOldFile()
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
    const ProjectSaveResult result = saveProjectFile(file, currentPage(big, QStringLiteral("b")));
    setrlimit(RLIMIT_FSIZE, &saved);
    QVERIFY(!result.ok);
    QVERIFY(!result.error.isEmpty());
    QVERIFY(f.open(QIODevice::ReadOnly));
    QCOMPARE(f.readAll(), old);
    QCOMPARE(QDir(dir.path()).entryList(QDir::Files), QStringList{QStringLiteral("keep.lumitra")});
#else
    QSKIP("needs a file size limit");
#endif
}

void TestProjectFile::unopenableFileIsIgnored()
{
    QTemporaryDir dir;
    const ProjectReadResult r = readProjectFile(dir.filePath(QStringLiteral("missing.lumitra")));
    QVERIFY(!r.opened);
    QCOMPARE(r.itemCount(), 0);
    Jk_chang_jing scene;
    scene.addItem(new Jk_tu_yuan(0));
    QVERIFY(!saveProjectFile(dir.filePath(QStringLiteral("no/such/dir/x.lumitra")),
                             currentPage(scene, QStringLiteral("p")))
                 .ok);
}

void TestProjectFile::cutAtEveryByte()
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
        const int expectedItems = int(
            std::count_if(itemEnds.begin(), itemEnds.end(), [cut](int at) { return at <= cut; }));
        const int count = r.itemCount();
        QVERIFY2(count == expectedItems, qPrintable(QStringLiteral("cut %1: %2 items, expected %3")
                                                        .arg(cut)
                                                        .arg(count)
                                                        .arg(expectedItems)));
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

void TestProjectFile::damagedBytesNeverCrash()
{
    const QByteArray bytes = designBytes();
    for (int at = 0; at < bytes.size(); ++at) {
        QByteArray damaged = bytes;
        damaged[at] = char(damaged.at(at) ^ 0xff);
        const ProjectReadResult r = readBytes(damaged);
        QVERIFY(r.itemCount() <= 4);
    }
    QRandomGenerator random(20240611);
    for (int round = 0; round < 300; ++round) {
        QByteArray damaged = bytes;
        for (int k = 0; k < 8; ++k)
            damaged[random.bounded(damaged.size())] = char(random.bounded(256));
        const ProjectReadResult r = readBytes(damaged);
        QVERIFY(r.itemCount() <= 4);
    }
}

void TestProjectFile::hugeCountsStopTheReader_data()
{
    QTest::addColumn<QByteArray>("tail"); // written after "0001" and "MY_ITEM"
    QByteArray pathCount;
    {
        QDataStream out(&pathCount, QIODevice::WriteOnly);
        out.setByteOrder(QDataStream::LittleEndian);
        out << qint32(0x7fffffff) << double(1) << double(2);
    }
    QTest::newRow("path of two billion elements") << pathCount;
    QByteArray negative;
    {
        QDataStream out(&negative, QIODevice::WriteOnly);
        out.setByteOrder(QDataStream::LittleEndian);
        out << qint32(-5);
    }
    QTest::newRow("negative path size") << negative;
    QTest::newRow("string of 2 GB") << QByteArray::fromHex("feffff7f41004200");
}

void TestProjectFile::hugeCountsStopTheReader()
{
    QFETCH(QByteArray, tail);
    QByteArray bytes;
    {
        QDataStream out(&bytes, QIODevice::WriteOnly);
        out.setByteOrder(QDataStream::LittleEndian);
        out << QStringLiteral("0001") << QStringLiteral("MY_ITEM");
    }
    if (tail.startsWith(QByteArray::fromHex("feffff7f")))
        bytes.chop(encoded(QStringLiteral("MY_ITEM")).size()); // a marker that long
    bytes.append(tail);
    QElapsedTimer timer;
    timer.start();
    const ProjectReadResult r = readBytes(bytes);
    QVERIFY(!r.complete);
    QCOMPARE(r.itemCount(), 0);
    QVERIFY(r.stoppedAt >= 0);
    QVERIFY2(timer.elapsed() < 2000, "the reader walked the claimed size");
}

void TestProjectFile::outOfRangeValues()
{
    Jk_chang_jing scene;
    auto *good = new Jk_tu_yuan(0);
    auto *bad = new Jk_tu_yuan(1);
    bad->layer_id = 99;
    auto *after = new Jk_tu_yuan(2);
    scene.addItem(after);
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
    ProjectPageOut page;
    page.name = QStringLiteral("p");
    page.layers = {&wild, &foreign};
    page.items = scene.designItems();
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QVERIFY(writeProject(&buffer, {page}));

    const ProjectReadResult r = readBytes(buffer.data());
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
    page.layers = {&wild};
    QBuffer second;
    second.open(QIODevice::WriteOnly);
    QVERIFY(writeProject(&second, {page}));
    const ProjectReadResult r2 = readBytes(second.data());
    QVERIFY(!r2.complete);
    QCOMPARE(r2.itemCount(), 1);
    QCOMPARE(r2.pages.first().items.first()->path, good->path);
}

QTEST_MAIN(TestProjectFile)
#include "tst_project_file.moc"
