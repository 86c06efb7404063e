#include "calibration.h"
#include "fake_board.h"
#include "photo_warp.h"
#include "synthetic_photo.h"

#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace lumitra::camera;

// `lumitra --camera HOST:PORT -o PHOTO`, the real executable against the fake
// board: the straightened photo, or one line on stderr and a non-zero exit.
class TestHeadlessCamera : public QObject
{
    Q_OBJECT

private slots:
    void throughTheExecutable_data();
    void throughTheExecutable();
    void usageErrors_data();
    void usageErrors();
};

namespace {

struct Run
{
    int code = -1;
    QString err;
};

Run runLumitra(const QStringList &arguments, const QTemporaryDir &dir)
{
    QProcess app;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("XDG_DATA_HOME", dir.filePath("data"));
    env.insert("XDG_RUNTIME_DIR", dir.path());
    env.remove("DISPLAY");
    app.setProcessEnvironment(env);
    app.start(LUMITRA_EXE, arguments);
    Run run;
    if (!app.waitForStarted())
        return run;
    // The board answers from this process's event loop: wait without blocking it.
    QTest::qWaitFor([&app] { return app.state() == QProcess::NotRunning; }, 60000);
    if (app.state() != QProcess::NotRunning || app.exitStatus() != QProcess::NormalExit)
        return run;
    run.code = app.exitCode();
    run.err = QString::fromUtf8(app.readAllStandardError());
    return run;
}

} // namespace

void TestHeadlessCamera::throughTheExecutable_data()
{
    QTest::addColumn<QString>("situation");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("errStart");
    QTest::newRow("photo") << "" << 0 << "";
    QTest::newRow("camera busy 3 times") << "busy" << 0 << "";
    QTest::newRow("no calibration") << "uncalibrated" << 4 << "the board at";
    QTest::newRow("empty calibration") << "empty" << 4 << "the board at";
    QTest::newRow("no camera") << "nocamera" << 3 << "no photo from the camera";
    QTest::newRow("points too near the edge") << "edge" << 5 << "the calibration does not fit";
}

void TestHeadlessCamera::throughTheExecutable()
{
    QFETCH(QString, situation);
    QFETCH(int, exitCode);
    QFETCH(QString, errStart);
    QTemporaryDir dir;
    const SyntheticPhoto photo = makeSyntheticPhoto();
    FakeBoard board;
    QVERIFY(board.start());
    if (situation != "nocamera")
        board.setCameraImage(photo.jpeg);
    if (situation == "busy")
        board.failCameraRequests(3);
    CalibrationPoints points =
        orderClicks({photo.centres[2], photo.centres[0], photo.centres[3], photo.centres[1]});
    if (situation == "edge")
        points.p[0] = QPointF(60, 60);
    if (situation == "empty")
        board.putCardFile(calibrationFileName(), QByteArray());
    else if (situation != "uncalibrated")
        board.putCardFile(calibrationFileName(), calibrationFileText(points).toUtf8());

    const QString output = dir.filePath("photo.png");
    const Run run = runLumitra({"--camera", board.address(), "-o", output}, dir);
    QVERIFY2(run.code == exitCode, qPrintable(QString::number(run.code) + ": " + run.err));
    if (exitCode != 0) {
        QCOMPARE(run.err.count('\n'), 1);
        QVERIFY2(run.err.startsWith(errStart), qPrintable(run.err));
        QVERIFY(!QFile::exists(output));
        if (situation == "nocamera")
            QCOMPARE(board.cameraRequests(), 10);
        return;
    }
    QVERIFY2(run.err.isEmpty(), qPrintable(run.err));
    QImage written(output);
    QCOMPARE(written.size(), QSize(650, 650));
    const QPointF targets[4] = {{125, 125}, {525, 125}, {525, 525}, {125, 525}};
    for (int i = 0; i < 4; ++i) {
        const QPointF found = findCrossCentre(written, targets[i]);
        QVERIFY2(QLineF(found, targets[i]).length() <= 2.0,
                 qPrintable(QString("cross %1 at %2,%3").arg(i).arg(found.x()).arg(found.y())));
    }
    // The same pixels as the library's own warp of the same photo (with the
    // points as the card's file text carries them).
    CalibrationPoints fromFile;
    QVERIFY(parseCalibrationText(calibrationFileText(points), &fromFile));
    const QImage expected = warpPhoto(turnHalf(QImage::fromData(photo.jpeg)), fromFile);
    QCOMPARE(written.convertToFormat(QImage::Format_RGB888), expected);
}

void TestHeadlessCamera::usageErrors_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("no output") << QStringList{"--camera", "127.0.0.1:1"};
    QTest::newRow("with run") << QStringList{"--camera", "127.0.0.1:1", "-o",
                                             "a.png",    "--run",       "a.nc"};
    QTest::newRow("with export") << QStringList{"--camera", "127.0.0.1:1", "-o",
                                                "a.png",    "--export",    "a.svg"};
    QTest::newRow("with a process option")
        << QStringList{"--camera", "127.0.0.1:1", "-o", "a.png", "--power", "50"};
}

void TestHeadlessCamera::usageErrors()
{
    QFETCH(QStringList, arguments);
    QTemporaryDir dir;
    const Run run = runLumitra(arguments, dir);
    QCOMPARE(run.code, 2);
    QCOMPARE(run.err.count('\n'), 1);
}

QTEST_MAIN(TestHeadlessCamera)
#include "tst_headless_camera.moc"
