#pragma once

#include <QByteArray>
#include <QMetaType>
#include <QString>
#include <QVector>

class QJsonValue;

// The board's SD card over HTTP: the request URLs and the listing the board
// answers with. Pure functions, no network.
//
// Listing JSON: {"files":[{"name":..,"size":..},..],"total":..,"used":..,
// "status":..}. Sizes come as numbers of bytes or as texts such as "1.2 MB"
// (binary units, 1 KB = 1024 B); a directory has the size -1.
namespace lumitra::sdcard {

struct SdFile
{
    QString name;
    qint64 size = -1; // bytes; -1 when unknown
    QString sizeText; // as the board wrote it, or formatted from `size`
    bool isDirectory = false;
};

struct SdListing
{
    bool ok = false; // the reply was a JSON object
    QString error;   // why not, when !ok
    QVector<SdFile> files;
    qint64 total = -1; // card capacity in bytes; -1 when unknown
    qint64 used = -1;  // bytes in use; -1 when unknown
    QString status;    // the board's own word on the card ("Ok", "No SD card", ...)

    // Free bytes, -1 unless both total and used are known.
    qint64 free() const { return total >= 0 && used >= 0 ? qMax<qint64>(0, total - used) : -1; }
};

// Reads a listing. Malformed entries (no name, not an object) are skipped,
// missing fields keep their "unknown" value; only a body that is not a JSON
// object fails.
SdListing parseListing(const QByteArray &json);

// Bytes from a number or a text like "512 B", "1.2 MB", "3,5 KB", "2048";
// -1 when the text names no size (also for negative numbers).
qint64 parseSize(const QJsonValue &value);
qint64 parseSizeText(const QString &text);
// "0 B", "512 B", "1.50 KB", "12.3 MB", "3.68 GB" (three significant digits);
// empty for a negative size.
QString formatSize(qint64 bytes);

// "http://<host>:<port>" + path for each request. `name` is the file's name on
// the card (no leading "/"); it is percent-encoded.
QString listUrl(const QString &host, int port);
QString deleteUrl(const QString &host, int port, const QString &name);
// Starts "/<name>" on the board: commandText "[ESP220]/<name>" percent-encoded
// ("/" kept).
QString runUrl(const QString &host, int port, const QString &name);
QString uploadUrl(const QString &host, int port);

} // namespace lumitra::sdcard

Q_DECLARE_METATYPE(lumitra::sdcard::SdListing)
