#include "jk_tu_yuan.h"
#include "open_dispatch.h"
#include "png_bytes.h"
#include "program_state.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

// Opening by extension: the bitmap formats, the project extension and the
// importers the application registers.
class TestOpenDispatch : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void kindByExtension_data();
    void kindByExtension();
    void registeredImporterIsUsed();
    void bitmapFormatsBecomeItems_data();
    void bitmapFormatsBecomeItems();
    void unreadableImageGivesNothing();
    void oversizedImageIsRefused();
};

void TestOpenDispatch::init()
{
    lumitra::resetProgramState();
}

void TestOpenDispatch::cleanup()
{
    OpenDispatch::instance().unregisterImporter(QStringLiteral("svg"));
}

void TestOpenDispatch::kindByExtension_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("kind");
    QTest::newRow("png") << "/a/b.png" << int(OpenKind::Import);
    QTest::newRow("upper case") << "/a/B.PNG" << int(OpenKind::Import);
    QTest::newRow("bmp") << "x.bmp" << int(OpenKind::Import);
    QTest::newRow("jpg") << "x.jpg" << int(OpenKind::Import);
    QTest::newRow("jpeg") << "x.JPeg" << int(OpenKind::Import);
    QTest::newRow("project") << "/p/design.lumitra" << int(OpenKind::Project);
    QTest::newRow("project upper") << "/p/design.LUMITRA" << int(OpenKind::Project);
    QTest::newRow("svg before registration") << "a.svg" << int(OpenKind::Unsupported);
    QTest::newRow("text") << "notes.txt" << int(OpenKind::Unsupported);
    QTest::newRow("no extension") << "/tmp/png" << int(OpenKind::Unsupported);
    QTest::newRow("png in the folder name") << "/x.png/readme" << int(OpenKind::Unsupported);
}

void TestOpenDispatch::kindByExtension()
{
    QFETCH(QString, path);
    QFETCH(int, kind);
    QCOMPARE(int(OpenDispatch::instance().kindOf(path)), kind);
    QCOMPARE(isOpenableFile(path), kind != int(OpenKind::Unsupported));
}

void TestOpenDispatch::registeredImporterIsUsed()
{
    OpenDispatch &dispatch = OpenDispatch::instance();
    QStringList seen;
    dispatch.registerImporter(QStringLiteral("SVG"), [&seen](const QString &path, QString *) {
        seen.append(path);
        QPainterPath p;
        p.addRect(0, 0, 1, 1);
        return QList<Jk_tu_yuan *>{new Jk_tu_yuan(p, 0), new Jk_tu_yuan(p, 0)};
    });
    QCOMPARE(dispatch.kindOf(QStringLiteral("drawing.svg")), OpenKind::Import);
    QVERIFY(dispatch.extensions().contains(QStringLiteral("svg")));
    QVERIFY(dispatch.extensions().contains(QStringLiteral("lumitra")));
    QString message;
    const QList<Jk_tu_yuan *> items = dispatch.importerFor(QStringLiteral("/d/drawing.Svg"))(
        QStringLiteral("/d/drawing.Svg"), &message);
    QCOMPARE(items.size(), 2);
    QCOMPARE(seen, QStringList{QStringLiteral("/d/drawing.Svg")});
    qDeleteAll(items);
    dispatch.unregisterImporter(QStringLiteral("svg"));
    QCOMPARE(dispatch.kindOf(QStringLiteral("drawing.svg")), OpenKind::Unsupported);
    QVERIFY(!dispatch.importerFor(QStringLiteral("drawing.svg")));
    // An empty importer is not registered.
    dispatch.registerImporter(QStringLiteral("svg"), FileImporter());
    QCOMPARE(dispatch.kindOf(QStringLiteral("drawing.svg")), OpenKind::Unsupported);
}

void TestOpenDispatch::bitmapFormatsBecomeItems_data()
{
    QTest::addColumn<QString>("format");
    QTest::newRow("png") << "png";
    QTest::newRow("bmp") << "bmp";
    QTest::newRow("jpg") << "jpg";
    QTest::newRow("jpeg") << "jpeg";
}

void TestOpenDispatch::bitmapFormatsBecomeItems()
{
    QFETCH(QString, format);
    QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("picture.") + format);
    QImage image(100, 50, QImage::Format_RGB32);
    image.fill(qRgb(90, 120, 150));
    QVERIFY(image.save(file));
    lumitra::programState().currentLayer = 6;
    QString message;
    const QList<Jk_tu_yuan *> items = OpenDispatch::instance().importerFor(file)(file, &message);
    QCOMPARE(items.size(), 1);
    QVERIFY(message.isEmpty());
    const Jk_tu_yuan *item = items.first();
    QVERIFY(item->is_bitmap);
    QCOMPARE(item->layer_id, 6);
    QVERIFY(qFuzzyCompare(item->path.boundingRect().width(), 25.4));
    QVERIFY(qFuzzyCompare(item->path.boundingRect().height(), 12.7));
    const QRgb px = item->source_image.pixel(10, 10);
    QCOMPARE(qRed(px), qGreen(px)); // the grey step ran
    QVERIFY(qAbs(qRed(px) - 120) <= 3);
    QVERIFY(item->isSelected());
    qDeleteAll(items);
}

void TestOpenDispatch::unreadableImageGivesNothing()
{
    QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("broken.png"));
    QFile f(file);
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write("this is not an image");
    f.close();
    QString message;
    QVERIFY(importBitmapFile(file, &message).isEmpty());
    QVERIFY(message.isEmpty());
    QVERIFY(importBitmapFile(dir.filePath(QStringLiteral("missing.png")), &message).isEmpty());
    QVERIFY(message.isEmpty());
}

void TestOpenDispatch::oversizedImageIsRefused()
{
    QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("huge.png"));
    QFile f(file);
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write(pngbytes::lyingPng(30000, 30000));
    f.close();
    QString message;
    QVERIFY(importBitmapFile(file, &message).isEmpty());
    QVERIFY(!message.isEmpty());
}

QTEST_MAIN(TestOpenDispatch)
#include "tst_open_dispatch.moc"
