#include "wifi_message.h"

#include "grbl_protocol.h"

#include <QRegularExpression>

namespace {

const QString kDumpMarker = QStringLiteral("kaishi ");

bool containsAny(const QString &text, std::initializer_list<const char *> words)
{
    for (const char *w : words) {
        if (text.contains(QLatin1String(w)))
            return true;
    }
    return false;
}

void readStatusReport(const QString &message, bool &sdJobRunning, WifiMessageResult &r)
{
    const QString status = lumitra::grbl::normaliseStatus(message).simplified();

    static const QRegularExpression sdField(QStringLiteral("SD:(\\d+[\\.]\\d+),"));
    const QRegularExpressionMatch sd = sdField.match(message);
    if (sd.hasMatch()) {
        r.hasProgress = true;
        r.progress = sd.captured(1).toFloat();
    }
    if (containsAny(message, {"Idle", "Alarm", "Run", "Hold"})) {
        r.hasStatus = true;
        r.status = status;
    }
    if (containsAny(message, {"Idle", "Alarm"}) && sdJobRunning)
        sdJobRunning = false;
    if (message.contains(QLatin1String("Cam:"))) {
        static const QRegularExpression camField(
            QStringLiteral("Cam:\\b\\d{1,3}\\.\\d{1,3}\\.\\d{1,3}\\.\\d{1,3}\\b"));
        const QRegularExpressionMatch cam = camField.match(message);
        if (cam.hasMatch()) {
            r.hasCamera = true;
            r.camera = cam.captured(0).remove(QStringLiteral("Cam:"));
        }
    }
}

} // namespace

WifiMessageResult WifiMessageParser::feed(const QString &message)
{
    WifiMessageResult r;
    r.namesMakerModel = lumitra::grbl::namesMakerModel(message);

    if (message.contains(QLatin1String("$0")) || message.contains(QLatin1String("$1")))
        m_buffer += kDumpMarker;

    if (!m_buffer.isEmpty())
        m_buffer += message;
    else if (message.contains(QLatin1Char('<')) && message.contains(QLatin1Char('>')))
        readStatusReport(message, m_sdJobRunning, r);

    if (!message.contains(QLatin1String("$135")))
        return r;

    r.hasSettings = true;
    r.settings = parseWifiSettingsDump(m_buffer);
    m_buffer.clear();
    return r;
}

QMap<int, QString> parseWifiSettingsDump(const QString &buffer)
{
    QString text = buffer;
    text.remove(QStringLiteral("kaishi"));
    text = text.simplified();
    const int firstDollar = text.indexOf(QLatin1Char('$'));
    text = firstDollar < 0 ? QString() : text.mid(firstDollar);

    static const QRegularExpression blanks(QStringLiteral("\\s+"));
    static const QRegularExpression separators(QStringLiteral("(\\$|=)"));
    QMap<int, QString> settings;
    const QStringList tokens = text.split(blanks);
    for (const QString &token : tokens) {
        const QStringList parts = token.split(separators, Qt::SkipEmptyParts);
        if (parts.size() != 2)
            continue;
        bool isNumber = false;
        const int number = parts.at(0).toInt(&isNumber, 10);
        if (isNumber)
            settings.insert(number, parts.at(1));
    }
    return settings;
}
