#include "headless_wifi_run.h"

#include "http_thread.h"
#include "sd_job_watch.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QFileInfo>
#include <QTextStream>
#include <QTimer>

namespace {

constexpr char kRemoteName[] = "001.nc";

bool splitAddress(const QString &address, QString &host, int &port)
{
    const int colon = address.lastIndexOf(QLatin1Char(':'));
    host = colon < 0 ? address : address.left(colon);
    port = 80;
    if (colon >= 0) {
        bool ok = false;
        port = address.mid(colon + 1).toInt(&ok);
        if (!ok || port < 1 || port > 65535)
            return false;
    }
    return !host.isEmpty();
}

// The line to resume from, in the original job when the file is a resumed one.
void reportResumeLine(SdJobWatch &watch, bool unreachable, const HeadlessWifiOptions &options,
                      QTextStream &out)
{
    const int fileLine = watch.resumeLine();
    const int jobLine = fileLine <= options.preambleLines
                            ? options.firstJobLine
                            : options.firstJobLine + fileLine - options.preambleLines - 1;
    const double percent = qMax(0.0, watch.progress().percent());
    out << "stopped at " << QString::number(percent, 'f', 2) << "% of the file; resume from line "
        << jobLine << "\n";
    if (unreachable)
        out << "the board may have lost power or may still be running the job: make sure it has "
               "stopped, then home it or set the origin again before resuming\n";
    else
        out << "the board was reset: home it or set the origin again before resuming\n";
    out.flush();
}

} // namespace

int runWifiJobHeadless(const QString &address, int wsPort, const QString &file, QTextStream &out,
                       QTextStream &err, const HeadlessWifiOptions &options)
{
    const QFileInfo info(file);
    if (!info.isFile() || !info.isReadable()) {
        err << "cannot read the job file " << file << '\n';
        err.flush();
        return HeadlessBadFile;
    }
    QString host;
    int httpPort = 80;
    if (!splitAddress(address, host, httpPort)) {
        err << "bad board address " << address << '\n';
        err.flush();
        return HeadlessBadFile;
    }

    HttpThread link;
    link.setAddress(host, httpPort, wsPort);
    if (!link.connectBoard(options.connectTimeoutMs)) {
        err << "cannot connect to the board at " << host << ':' << wsPort << '\n';
        err.flush();
        return HeadlessNoPort;
    }

    QEventLoop loop;
    int result = -1;
    auto finish = [&](int code, const QString &reason) {
        if (result >= 0)
            return;
        result = code;
        if (code == HeadlessDone)
            out << "done\n";
        else
            err << reason << '\n';
        loop.quit();
    };

    QTimer silence;
    silence.setSingleShot(true);
    silence.setInterval(options.silenceTimeoutMs);
    QObject::connect(&silence, &QTimer::timeout, &loop, [&] {
        finish(HeadlessSilent, QStringLiteral("the board stopped answering"));
    });
    SdJobWatch watch(&link);
    watch.setPollInterval(options.pollIntervalMs);

    int lastUploadPercent = -1;
    QObject::connect(&link, &HttpThread::send_Jin_Du_Zhi, &loop, [&](qint64 sent, qint64 total) {
        const int percent = total > 0 ? int(100 * sent / total) : 100;
        if (percent / 10 != lastUploadPercent / 10 || percent == 100) {
            if (percent != lastUploadPercent)
                out << "upload " << percent << "%\n";
            lastUploadPercent = percent;
            out.flush();
        }
    });
    QObject::connect(&link, &HttpThread::uploadFinished, &loop, [&](bool ok, const QString &error) {
        if (!ok) {
            finish(HeadlessNotTaken, QStringLiteral("upload failed: ") + error);
            return;
        }
        watch.askForBufferReports();
        link.runFile(QLatin1Char('/') + QLatin1String(kRemoteName));
    });
    bool started = false;
    QObject::connect(&link, &HttpThread::runStarted, &loop, [&](bool ok, const QString &error) {
        if (!ok) {
            finish(HeadlessNotTaken, QStringLiteral("the board did not start the job: ") + error);
            return;
        }
        started = true;
        watch.jobStarted(info.absoluteFilePath());
        out << "running\n";
        out.flush();
        silence.start();
        if (options.onStoppable)
            options.onStoppable([&] {
                link.stop();
                watch.stopped();
                finish(HeadlessStopped, QStringLiteral("stopped on request"));
            });
    });

    int lastProgress = -1;
    QObject::connect(&link, &HttpThread::send_Yun_Xing_Zhi, &loop, [&](float percent) {
        const int p = int(percent);
        if (started && p != lastProgress && percent > 1.0f) {
            lastProgress = p;
            out << "progress " << p << "%\n";
            out.flush();
        }
    });
    QObject::connect(&link, &HttpThread::lineReceived, &loop, [&](const QString &line) {
        if (started)
            silence.start();
        if (line.startsWith(QLatin1String("ALARM:")) || line.contains(QLatin1String("Error"))
            || line.startsWith(QLatin1String("error:")))
            finish(HeadlessMachineFault, QStringLiteral("board reported: ") + line);
    });
    bool sawRun = false;
    QObject::connect(&link, &HttpThread::shu_chu_zhuang_tai, &loop, [&](const QString &status) {
        if (!started)
            return;
        if (status.contains(QLatin1String("Alarm")))
            finish(HeadlessMachineFault, QStringLiteral("board reported: ") + status);
        else if (status.contains(QLatin1String("Run")) || status.contains(QLatin1String("Hold")))
            sawRun = true;
        else if (status.contains(QLatin1String("Idle")) && sawRun)
            finish(HeadlessDone, QString());
    });
    QObject::connect(&link, &HttpThread::sendDisconnectMessage, &loop, [&](int) {
        finish(HeadlessPortLost, QStringLiteral("lost the connection to the board"));
    });

    out << "uploading " << info.fileName() << " as " << kRemoteName << '\n';
    out.flush();
    link.uploadFile(info.absoluteFilePath(), QLatin1String(kRemoteName));
    if (result < 0)
        loop.exec();
    if (options.onStoppable)
        options.onStoppable({});
    silence.stop();
    if (result == HeadlessStopped) {
        // The reset must reach the board before the program ends.
        QTimer wait;
        wait.start(10);
        QElapsedTimer waited;
        waited.start();
        QObject::connect(&wait, &QTimer::timeout, &loop, [&] {
            if (!link.commandsPending() || waited.elapsed() > 3000)
                loop.quit();
        });
        loop.exec();
    }
    if (started && result != HeadlessDone) {
        if (watch.active())
            watch.stopped(); // silent: the last report is all there is
        const bool unreachable = result == HeadlessPortLost || result == HeadlessSilent;
        reportResumeLine(watch, unreachable, options, out);
    }
    if (link.uploading())
        link.cancelUpload();
    out.flush();
    err.flush();
    return result;
}
