#include "sd_card.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonParseError>
#include <QRegularExpression>
#include <QUrl>
#include <cmath>

namespace lumitra::sdcard {

namespace {

QString baseUrl(const QString &host, int port)
{
    return QStringLiteral("http://") + host + QLatin1Char(':') + QString::number(port);
}

QString encoded(const QString &text, const QByteArray &keep = QByteArray())
{
    return QString::fromLatin1(QUrl::toPercentEncoding(text, keep));
}

SdFile readFile(const QJsonObject &entry)
{
    SdFile file;
    file.name = entry.value(QStringLiteral("name")).toString();
    const QJsonValue size = entry.value(QStringLiteral("size"));
    const bool minusOne = (size.isDouble() && size.toDouble() == -1)
                          || (size.isString() && size.toString().trimmed() == QLatin1String("-1"));
    file.isDirectory = minusOne;
    file.size = parseSize(size);
    if (size.isString() && file.size >= 0)
        file.sizeText = size.toString().trimmed();
    else
        file.sizeText = formatSize(file.size);
    return file;
}

} // namespace

SdListing parseListing(const QByteArray &json)
{
    SdListing listing;
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(json, &parseError);
    if (parseError.error != QJsonParseError::NoError) {
        listing.error = parseError.errorString();
        return listing;
    }
    if (!document.isObject()) {
        listing.error = QStringLiteral("not a JSON object");
        return listing;
    }
    const QJsonObject root = document.object();
    listing.ok = true;
    const QJsonArray files = root.value(QStringLiteral("files")).toArray();
    for (const QJsonValue &entry : files) {
        if (!entry.isObject())
            continue;
        const SdFile file = readFile(entry.toObject());
        if (!file.name.isEmpty())
            listing.files << file;
    }
    listing.total = parseSize(root.value(QStringLiteral("total")));
    listing.used = parseSize(root.value(QStringLiteral("used")));
    listing.status = root.value(QStringLiteral("status")).toString();
    return listing;
}

qint64 parseSize(const QJsonValue &value)
{
    if (value.isDouble()) {
        const double bytes = value.toDouble();
        return bytes >= 0 && std::isfinite(bytes) ? qint64(std::llround(bytes)) : -1;
    }
    if (value.isString())
        return parseSizeText(value.toString());
    return -1;
}

qint64 parseSizeText(const QString &text)
{
    static const QRegularExpression pattern(
        QStringLiteral("^\\s*(\\d+(?:[.,]\\d+)?)\\s*([KMGT]?)(?:I?B)?\\s*$"),
        QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = pattern.match(text);
    if (!match.hasMatch())
        return -1;
    QString number = match.captured(1);
    number.replace(QLatin1Char(','), QLatin1Char('.'));
    double bytes = number.toDouble();
    const QString unit = match.captured(2).toUpper();
    const int power = unit.isEmpty() ? 0 : QStringLiteral("KMGT").indexOf(unit) + 1;
    for (int i = 0; i < power; ++i)
        bytes *= 1024;
    return qint64(std::llround(bytes));
}

QString formatSize(qint64 bytes)
{
    if (bytes < 0)
        return QString();
    if (bytes < 1024)
        return QString::number(bytes) + QStringLiteral(" B");
    static const char *const units[] = {"KB", "MB", "GB", "TB"};
    double value = bytes;
    int unit = -1;
    while (value >= 1024 && unit < 3) {
        value /= 1024;
        ++unit;
    }
    const int decimals = value < 100 ? (value < 10 ? 2 : 1) : 0;
    return QString::number(value, 'f', decimals) + QLatin1Char(' ') + QLatin1String(units[unit]);
}

QString listUrl(const QString &host, int port)
{
    return baseUrl(host, port) + QStringLiteral("/upload?path=/&PAGEID=0");
}

QString deleteUrl(const QString &host, int port, const QString &name)
{
    return baseUrl(host, port) + QStringLiteral("/upload?path=/&action=delete&filename=")
           + encoded(name) + QStringLiteral("&PAGEID=0");
}

QString runUrl(const QString &host, int port, const QString &name)
{
    return baseUrl(host, port) + QStringLiteral("/command?commandText=")
           + encoded(QStringLiteral("[ESP220]/") + name, "/") + QStringLiteral("&PAGEID=0");
}

QString uploadUrl(const QString &host, int port)
{
    return baseUrl(host, port) + QStringLiteral("/upload");
}

} // namespace lumitra::sdcard
