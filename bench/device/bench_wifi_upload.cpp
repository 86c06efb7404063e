// Uploads a job of growing size to the fake WiFi board on 127.0.0.1 through
// HttpThread, as a run from the window does, and prints the rate and the
// process's peak memory (VmHWM) before and after. The upload streams from the
// file, so the peak must not grow with the job. Both ends share this process
// and its one event loop.
//
//   bench_wifi_upload [MB]     (default 50)

#include "fake_board.h"
#include "http_thread.h"
#include "peak_memory.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QElapsedTimer>
#include <QFile>
#include <QLoggingCategory>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <cstdio>

namespace {

// A G-code job of about `bytes`, written a megabyte at a time.
bool writeJob(const QString &path, qint64 bytes)
{
    QFile f(path);
    if (!f.open(QIODevice::WriteOnly))
        return false;
    QByteArray chunk;
    int line = 0;
    while (f.size() < bytes) {
        chunk.clear();
        while (chunk.size() < (1 << 20))
            chunk += "G1X" + QByteArray::number(line % 400) + "." + QByteArray::number(line % 100)
                     + "Y" + QByteArray::number(++line % 300) + "S"
                     + QByteArray::number(line % 1000) + "F3000\n";
        f.write(chunk);
    }
    return true;
}

QByteArray fileHash(const QString &path)
{
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly))
        return QByteArray();
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData(&f);
    return hash.result();
}

bool upload(FakeBoard &board, const QString &path, double *seconds)
{
    HttpThread link;
    link.setAddress(QStringLiteral("127.0.0.1"), board.httpPort(), board.wsPort());
    QSignalSpy done(&link, &HttpThread::uploadFinished);
    QElapsedTimer timer;
    timer.start();
    link.uploadFile(path, QStringLiteral("001.nc"));
    if (!done.wait(600000) || !done.first().at(0).toBool())
        return false;
    *seconds = timer.nsecsElapsed() / 1e9;
    return fileHash(board.cardFilePath(QStringLiteral("001.nc"))) == fileHash(path);
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    const int megabytes = argc > 1 ? QByteArray(argv[1]).toInt() : 50;
    QTemporaryDir dir;
    FakeBoard board;
    if (!dir.isValid() || !board.start() || megabytes <= 0) {
        std::fprintf(stderr, "cannot set up the bench\n");
        return 1;
    }
    std::printf("peak RSS before: %ld kB\n", peakMemoryKb());
    for (const int mb : {1, megabytes}) {
        const QString path = dir.filePath(QStringLiteral("job-%1.nc").arg(mb));
        if (!writeJob(path, qint64(mb) << 20)) {
            std::fprintf(stderr, "cannot write the job\n");
            return 1;
        }
        const qint64 size = QFile(path).size();
        double seconds = 0;
        if (!upload(board, path, &seconds)) {
            std::fprintf(stderr, "upload of %d MB failed or differs\n", mb);
            return 1;
        }
        std::printf("%6.1f MB  %7.2f s  %7.1f MB/s  byte-exact  peak RSS after: %ld kB\n",
                    size / 1048576.0, seconds, size / 1048576.0 / seconds, peakMemoryKb());
        QFile::remove(path);
    }
    return 0;
}
