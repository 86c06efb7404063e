#include <QDomDocument>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

// Keeps every interface language complete: each of the ten translation files
// holds exactly the strings the sources mark for translation, each with a
// finished translation that keeps the source's placeholders, accelerator and
// line breaks.
class TestTranslations : public QObject
{
    Q_OBJECT

    struct Entry
    {
        QString translation;
        bool finished = false;
    };
    using Catalogue = QMap<QPair<QString, QString>, Entry>;

    static bool readCatalogue(const QString &path, Catalogue &out)
    {
        QFile file(path);
        QDomDocument doc;
        if (!file.open(QIODevice::ReadOnly) || !doc.setContent(&file))
            return false;
        const QDomNodeList contexts = doc.elementsByTagName(QStringLiteral("context"));
        for (int i = 0; i < contexts.size(); ++i) {
            const QDomElement context = contexts.at(i).toElement();
            const QString name = context.firstChildElement(QStringLiteral("name")).text();
            for (QDomElement m = context.firstChildElement(QStringLiteral("message")); !m.isNull();
                 m = m.nextSiblingElement(QStringLiteral("message"))) {
                const QDomElement t = m.firstChildElement(QStringLiteral("translation"));
                const QString type = t.attribute(QStringLiteral("type"));
                Entry e;
                e.translation = t.text();
                e.finished = type.isEmpty();
                if (type == QLatin1String("vanished") || type == QLatin1String("obsolete"))
                    continue;
                out.insert({name, m.firstChildElement(QStringLiteral("source")).text()}, e);
            }
        }
        return true;
    }

    // The placeholders (%1, %n), accelerators ("&x") and line breaks of a text.
    static QString shapeOf(const QString &text)
    {
        QStringList parts;
        static const QRegularExpression placeholder(QStringLiteral("%(\\d+|n)"));
        auto it = placeholder.globalMatch(text);
        while (it.hasNext())
            parts << it.next().captured(0);
        parts.sort();
        QString plain = text;
        plain.remove(QStringLiteral("&&"));
        static const QRegularExpression accelerator(QStringLiteral("&(?=[^\\s&])"));
        parts << QStringLiteral("&x%1").arg(plain.count(accelerator));
        parts << QStringLiteral("nl%1").arg(text.count(QLatin1Char('\n')));
        return parts.join(QLatin1Char(' '));
    }

    Catalogue m_inSources;

private slots:
    void initTestCase()
    {
        QTemporaryDir tmp;
        const QString scanned = tmp.filePath(QStringLiteral("scan.ts"));
        const QString src = QStringLiteral(LUMITRA_SOURCE_DIR);
        QStringList args;
        for (const char *dir :
             {"app", "JieMian", "document", "gcode", "device", "import", "camera", "cloud"})
            if (QFileInfo::exists(src + QLatin1Char('/') + QLatin1String(dir)))
                args << src + QLatin1Char('/') + QLatin1String(dir);
        args << QStringLiteral("-silent") << QStringLiteral("-locations") << QStringLiteral("none")
             << QStringLiteral("-ts") << scanned;
        QProcess lupdate;
        lupdate.start(QStringLiteral(LUMITRA_LUPDATE), args);
        QVERIFY(lupdate.waitForFinished(60000));
        QCOMPARE(lupdate.exitCode(), 0);
        QVERIFY(readCatalogue(scanned, m_inSources));
        QVERIFY(!m_inSources.isEmpty());
    }

    void everyLanguageIsComplete_data()
    {
        QTest::addColumn<QString>("code");
        for (const char *code : {"zw", "yw", "hw", "rw", "dw", "ydlw", "fw", "xw", "pty", "ew"})
            QTest::newRow(code) << QString::fromLatin1(code);
    }
    void everyLanguageIsComplete()
    {
        QFETCH(QString, code);
        Catalogue file;
        QVERIFY(readCatalogue(QStringLiteral(LUMITRA_SOURCE_DIR "/resources/language/") + code
                                  + QStringLiteral("2.ts"),
                              file));
        QStringList problems;
        for (auto it = m_inSources.cbegin(); it != m_inSources.cend(); ++it) {
            const QString where = it.key().first + QStringLiteral(": ") + it.key().second;
            if (!file.contains(it.key())) {
                problems << QStringLiteral("missing ") + where;
                continue;
            }
            const Entry e = file.value(it.key());
            if (!e.finished || e.translation.trimmed().isEmpty())
                problems << QStringLiteral("unfinished ") + where;
            else if (shapeOf(e.translation) != shapeOf(it.key().second))
                problems << QStringLiteral("placeholders, accelerator or line breaks differ: ")
                                + where + QStringLiteral(" -> ") + e.translation;
        }
        // Nothing the sources no longer use lingers in the file.
        for (auto it = file.cbegin(); it != file.cend(); ++it)
            if (!m_inSources.contains(it.key()))
                problems << QStringLiteral("not in the sources: ") + it.key().first
                                + QStringLiteral(": ") + it.key().second;
        QVERIFY2(problems.isEmpty(),
                 qPrintable(QStringLiteral("%1 problems, e.g.\n  ").arg(problems.size())
                            + problems.mid(0, 20).join(QStringLiteral("\n  "))));
    }
};

QTEST_GUILESS_MAIN(TestTranslations)
#include "tst_translations.moc"
