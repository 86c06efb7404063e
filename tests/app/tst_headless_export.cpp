#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

// The headless export through the real executable: a design file in, a job
// out, and bad input refused with one line and nothing written.
class TestHeadlessExport : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

    int run(const QStringList &args, QByteArray *err = nullptr)
    {
        QProcess p;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("XDG_DATA_HOME"), m_dir.filePath(QStringLiteral("data")));
        env.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_dir.path());
        env.remove(QStringLiteral("DISPLAY"));
        p.setProcessEnvironment(env);
        p.start(QStringLiteral(LUMITRA_EXE), args);
        if (!p.waitForFinished(30000))
            return -1;
        if (err)
            *err = p.readAllStandardError();
        return p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1;
    }

    QString writeSvg(const QString &name)
    {
        const QString path = m_dir.filePath(name);
        QFile f(path);
        if (!f.open(QIODevice::WriteOnly))
            return QString();
        f.write("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"50mm\" height=\"30mm\" "
                "viewBox=\"0 0 50 30\"><rect x=\"5\" y=\"5\" width=\"40\" height=\"20\"/>"
                "<circle cx=\"25\" cy=\"15\" r=\"8\"/></svg>");
        return path;
    }

    static QStringList lines(const QString &path)
    {
        QFile f(path);
        if (!f.open(QIODevice::ReadOnly))
            return {};
        return QString::fromLatin1(f.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    }

private slots:
    void exportsASvgWithOverrides()
    {
        const QString svg = writeSvg(QStringLiteral("shapes.svg"));
        const QString out = m_dir.filePath(QStringLiteral("shapes.nc"));
        QCOMPARE(run({QStringLiteral("--export"), svg, QStringLiteral("-o"), out,
                      QStringLiteral("--power"), QStringLiteral("50"), QStringLiteral("--speed"),
                      QStringLiteral("1200"), QStringLiteral("--passes"), QStringLiteral("2")}),
                 0);
        const QStringList job = lines(out);
        QVERIFY(job.size() > 10);
        QCOMPARE(job.mid(0, 3), (QStringList{"M4", "M8", ";L0"}));
        QCOMPARE(job.mid(job.size() - 7),
                 (QStringList{"M9", "G1S0", "M5", "G90", "G0X0Y0", "M2", "M30"}));
        // The first move of the layer carries the overridden power and speed.
        QVERIFY2(job.at(3).endsWith(QStringLiteral("S500.00F1200.00")), qPrintable(job.at(3)));
        // Two passes: the first move appears twice.
        QCOMPARE(job.count(job.at(3)), 2);
        for (const QString &line : job)
            QVERIFY2(line.size() <= 80, qPrintable(line));
    }

    void refusesBadInput_data()
    {
        QTest::addColumn<QStringList>("extra");
        QTest::addColumn<QString>("input");
        QTest::newRow("missing file") << QStringList{} << "missing.svg";
        QTest::newRow("unknown extension") << QStringList{} << "shapes.txt";
        QTest::newRow("bitmap mode on vectors") << QStringList{"--mode", "dither"} << "shapes.svg";
        QTest::newRow("power out of range") << QStringList{"--power", "150"} << "shapes.svg";
        QTest::newRow("speed not a number") << QStringList{"--speed", "fast"} << "shapes.svg";
    }
    void refusesBadInput()
    {
        QFETCH(QStringList, extra);
        QFETCH(QString, input);
        writeSvg(QStringLiteral("shapes.svg"));
        QFile::copy(m_dir.filePath(QStringLiteral("shapes.svg")),
                    m_dir.filePath(QStringLiteral("shapes.txt")));
        const QString out = m_dir.filePath(QStringLiteral("refused.nc"));
        QByteArray err;
        const int code = run(QStringList{QStringLiteral("--export"), m_dir.filePath(input),
                                         QStringLiteral("-o"), out}
                                 + extra,
                             &err);
        QVERIFY(code > 0);
        QVERIFY(!QFile::exists(out));
        // One line with the reason (Qt's own start-up notes aside).
        QStringList reasons;
        for (const QByteArray &line : err.split('\n'))
            if (!line.isEmpty() && !line.startsWith("QStandardPaths:"))
                reasons << QString::fromUtf8(line);
        QCOMPARE(reasons.size(), 1);
    }
};

QTEST_GUILESS_MAIN(TestHeadlessExport)
#include "tst_headless_export.moc"
