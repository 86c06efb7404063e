// Every importer over a folder of damaged, hostile and oversized files: none may crash or
// hang, none may hand out items it should not, and refusals for size say why. The folder
// holds the fixtures of tests/data/import/bad plus files made here (empty, random bytes,
// truncated copies, images whose headers claim 30000 x 30000 pixels, deep nesting, a block
// array that would expand to a hundred million copies).
#include "bitmap_trace.h"
#include "dxf_text.h"
#include "image_modes.h"
#include "import_items.h"
#include "jk_tu_yuan.h"
#include "open_dispatch.h"

#include <QBuffer>
#include <QDir>
#include <QImageReader>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

namespace {

constexpr int kEither = -1; // no item or one item are both fine

enum Importer { Bitmap = 1, Svg = 2, Dxf = 4 };

quint32 crc32(const QByteArray &data)
{
    quint32 crc = 0xffffffffu;
    for (char ch : data) {
        crc ^= quint8(ch);
        for (int k = 0; k < 8; ++k)
            crc = (crc >> 1) ^ (0xedb88320u & (0u - (crc & 1u)));
    }
    return ~crc;
}

// Writes `bytes` bytes of v at `at`, most significant first unless little-endian.
void put(QByteArray &b, int at, quint32 v, int bytes, bool little = false)
{
    for (int i = 0; i < bytes; ++i)
        b[at + i] = char((v >> (8 * (little ? i : bytes - 1 - i))) & 0xff);
}

QByteArray encoded(const char *format, QImage img = QImage())
{
    if (img.isNull()) {
        img = QImage(16, 16, QImage::Format_RGB32);
        img.fill(Qt::gray);
    }
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    img.save(&buffer, format);
    return bytes;
}

// Real small images whose headers are changed to claim 30000 x 30000 pixels.
QByteArray huge(const char *format)
{
    QByteArray b = encoded(format);
    if (qstrcmp(format, "PNG") == 0) {
        const int ihdr = b.indexOf("IHDR");
        put(b, ihdr + 4, 30000, 4);
        put(b, ihdr + 8, 30000, 4);
        put(b, ihdr + 4 + 13, crc32(b.mid(ihdr, 4 + 13)), 4); // the chunk's CRC fixed up
    } else if (qstrcmp(format, "BMP") == 0) {
        put(b, 18, 30000, 4, true);
        put(b, 22, 30000, 4, true);
    } else {
        const int sof = b.indexOf(QByteArray("\xff\xc0", 2));
        put(b, sof + 5, 30000, 2);
        put(b, sof + 7, 30000, 2);
    }
    return b;
}

QByteArray randomBytes(int n, quint32 seed, bool printable)
{
    QRandomGenerator rng(seed);
    QByteArray b(n, '\0');
    for (int i = 0; i < n; ++i)
        b[i] = printable ? char(rng.bounded(10) == 0 ? '\n' : 32 + rng.bounded(95))
                         : char(rng.bounded(256));
    return b;
}

QByteArray fileBytes(const QString &path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

} // namespace

class TestBadFiles : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everyImporter_data();
    void everyImporter();
    void imageProcessingOfDecodableFiles();

private:
    QTemporaryDir m_dir;
    QStringList m_files;

    void put(const QString &name, const QByteArray &bytes)
    {
        QVERIFY(dxftext::write(m_dir.filePath(name), bytes));
    }
};

void TestBadFiles::initTestCase()
{
    QVERIFY(m_dir.isValid());
    OpenDispatch::instance().registerImporter(QStringLiteral("svg"), lumitra::importSvgItems);
    OpenDispatch::instance().registerImporter(QStringLiteral("dxf"), lumitra::importDxfItems);

    const QDir fixtures(QStringLiteral(LUMITRA_TEST_DATA_DIR "/import/bad"));
    for (const QString &name : fixtures.entryList(QDir::Files))
        QVERIFY(QFile::copy(fixtures.filePath(name), m_dir.filePath(name)));

    for (const char *name : {"empty.svg", "empty.dxf", "empty.png"})
        put(QString::fromLatin1(name), QByteArray());
    put(QStringLiteral("random.bin"), randomBytes(65536, 1, false));
    put(QStringLiteral("random_text.txt"), randomBytes(65536, 2, true));
    put(QStringLiteral("huge.png"), huge("PNG"));
    put(QStringLiteral("huge.bmp"), huge("BMP"));
    put(QStringLiteral("huge.jpg"), huge("JPG"));
    put(QStringLiteral("truncated.png"), encoded("PNG").left(60));
    // Small odd images that decode: one transparent pixel, a one-pixel-wide indexed strip.
    QImage pixel(1, 1, QImage::Format_ARGB32);
    pixel.fill(Qt::transparent);
    put(QStringLiteral("one_pixel.png"), encoded("PNG", pixel));
    QImage strip(1, 9, QImage::Format_Indexed8);
    strip.setColorTable({qRgb(0, 0, 0), qRgb(255, 255, 255)});
    for (int y = 0; y < 9; ++y)
        strip.setPixel(0, y, uint(y % 2));
    put(QStringLiteral("strip.bmp"), encoded("BMP", strip));
    const QByteArray svg =
        fileBytes(QStringLiteral(LUMITRA_TEST_DATA_DIR "/import/svg/mm_viewbox_layers.svg"));
    put(QStringLiteral("truncated.svg"), svg.left(svg.size() / 2));
    put(QStringLiteral("deep.svg"), "<svg>" + QByteArray("<g>").repeated(100000)
                                        + "<rect width='1' height='1'/>"
                                        + QByteArray("</g>").repeated(100000) + "</svg>");
    using namespace dxftext;
    const QByteArray lines = file(line(0, 0, 1, 1) + line(1, 1, 2, 0) + line(2, 0, 3, 3)).toUtf8();
    put(QStringLiteral("truncated.dxf"),
        lines.left(lines.indexOf("LINE", lines.lastIndexOf("LINE") - 5) + 40));
    put(QStringLiteral("array_bomb.dxf"),
        file(insert("B", 0, 0, 1, 1, 0, 10000, 10000, 1, 1), 4, block("B", 0, 0, line(0, 0, 1, 0)))
            .toUtf8());
    m_files = QDir(m_dir.path()).entryList(QDir::Files, QDir::Name);
    // The oversized images really announce their size in the header, which is what the
    // bitmap importer checks before decoding anything (the BMP reader refuses it itself).
    QCOMPARE(QImageReader(m_dir.filePath(QStringLiteral("huge.png"))).size(), QSize(30000, 30000));
    QCOMPARE(QImageReader(m_dir.filePath(QStringLiteral("huge.jpg"))).size(), QSize(30000, 30000));
    QCOMPARE(QImageReader(m_dir.filePath(QStringLiteral("huge.bmp"))).size(), QSize(-1, -1));
}

void TestBadFiles::everyImporter_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("bitmapItems");
    QTest::addColumn<int>("svgItems");
    QTest::addColumn<int>("dxfItems");
    QTest::addColumn<int>("messages"); // vector importers that must explain their refusal

    auto row = [](const char *name, int bitmap, int svg, int dxf, int messages) {
        QTest::newRow(name) << QString::fromLatin1(name) << bitmap << svg << dxf << messages;
    };
    row("empty.svg", 0, 0, 0, Dxf);
    row("empty.dxf", 0, 0, 0, Dxf);
    row("empty.png", 0, 0, 0, Dxf);
    row("random.bin", 0, 0, 0, Dxf);
    row("random_text.txt", 0, 0, 0, Dxf);
    row("huge.png", 0, 0, 0, Bitmap | Dxf);
    // The image reader itself rejects this header: refused as unreadable, not as too big.
    row("huge.bmp", 0, 0, 0, Dxf);
    row("huge.jpg", 0, 0, 0, Bitmap | Dxf);
    row("truncated.png", kEither, 0, 0, Dxf);
    row("one_pixel.png", 1, 0, 0, Dxf);
    row("strip.bmp", 1, 0, 0, Dxf);
    row("truncated.svg", 0, 0, 0, Dxf);
    row("deep.svg", 0, 0, 0, Svg | Dxf);
    row("truncated.dxf", 0, 0, 1, 0);
    row("array_bomb.dxf", 0, 0, 0, Dxf);
    // Fixtures: path data with stray letters keeps what came before the error.
    row("stray_letters.svg", 0, 1, 0, Dxf);
    // NaN, infinities and huge numbers: only the rectangle under a broken transform is left.
    row("nan_huge.svg", 0, 1, 0, Dxf);
    row("entity_expansion.svg", 0, 0, 0, Dxf);
    // Unreadable numbers read as 0 in the parser; huge ones are dropped: one small line is left.
    row("nan_huge.dxf", 0, 0, 1, 0);
    row("bad_counts.dxf", 0, 0, 0, Dxf);
    row("too_many_vertices.dxf", 0, 0, 1, 0);
}

void TestBadFiles::everyImporter()
{
    QFETCH(QString, file);
    QFETCH(int, bitmapItems);
    QFETCH(int, svgItems);
    QFETCH(int, dxfItems);
    QFETCH(int, messages);
    QVERIFY2(m_files.contains(file), qPrintable(file + " is not in the folder"));
    const QString path = m_dir.filePath(file);

    const struct
    {
        Importer kind;
        FileImporter run;
        int expected;
    } importers[] = {
        {Bitmap, OpenDispatch::instance().importerFor(QStringLiteral("x.png")), bitmapItems},
        {Svg, OpenDispatch::instance().importerFor(QStringLiteral("x.svg")), svgItems},
        {Dxf, OpenDispatch::instance().importerFor(QStringLiteral("x.dxf")), dxfItems},
    };
    for (const auto &imp : importers) {
        QVERIFY(imp.run);
        QString message;
        const QList<Jk_tu_yuan *> items = imp.run(path, &message);
        const QString which = QString::number(int(imp.kind));
        if (imp.expected == kEither)
            QVERIFY2(items.size() <= 1, qPrintable(which));
        else
            QVERIFY2(items.size() == imp.expected,
                     qPrintable(which + QStringLiteral(": %1 items").arg(items.size())));
        // The bitmap importer explains every refusal; the vector readers only
        // the ones marked in the row.
        const bool explains = imp.kind == Bitmap ? items.isEmpty() : bool(messages & imp.kind);
        QCOMPARE(!message.isEmpty(), explains);
        for (const Jk_tu_yuan *item : items) {
            const QRectF box = item->sceneTransform().map(item->path).boundingRect();
            QVERIFY(qIsFinite(box.left()) && qIsFinite(box.bottom()) && box.width() < 1e7);
        }
        qDeleteAll(items);
    }
}

void TestBadFiles::imageProcessingOfDecodableFiles()
{
    // Whatever decodes (after the header check) goes through every mode and the tracer.
    int decoded = 0;
    for (const QString &name : m_files) {
        QImageReader reader(m_dir.filePath(name));
        const QSize size = reader.size();
        if (!size.isValid() || qint64(size.width()) * size.height() > 4096 * 4096)
            continue;
        const QImage img = reader.read();
        if (img.isNull())
            continue;
        ++decoded;
        for (int mode = 0; mode <= 4; ++mode) {
            const QImage out = lumitra::applyImageMode(img, mode);
            QCOMPARE(out.size(), img.size());
            QVERIFY(lumitra::traceBitmap(out, 0.254, QPointF()).has_value());
        }
    }
    QVERIFY(decoded >= 2); // the two small images at least
}

QTEST_MAIN(TestBadFiles)
#include "tst_bad_files.moc"
