#include <QDomDocument>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

// Keeps the English translation complete: every string that the sources mark
// for translation must have a finished English entry.
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

private slots:
    void englishIsComplete()
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

        Catalogue inSources, english;
        QVERIFY(readCatalogue(scanned, inSources));
        QVERIFY(readCatalogue(src + QStringLiteral("/resources/language/yw2.ts"), english));
        QVERIFY(!inSources.isEmpty());

        QStringList missing;
        for (auto it = inSources.cbegin(); it != inSources.cend(); ++it) {
            const Entry e = english.value(it.key());
            if (!english.contains(it.key()) || !e.finished || e.translation.isEmpty())
                missing << it.key().first + QStringLiteral(": ") + it.key().second;
        }
        QVERIFY2(missing.isEmpty(),
                 qPrintable(
                     QStringLiteral("%1 untranslated English strings, e.g.\n  ").arg(missing.size())
                     + missing.mid(0, 20).join(QStringLiteral("\n  "))));
    }
};

QTEST_GUILESS_MAIN(TestTranslations)
#include "tst_translations.moc"
