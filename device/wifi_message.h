#pragma once

#include <QMap>
#include <QString>

// Classification of the WiFi board's WebSocket text messages, one call per
// message. Holds the settings-dump buffer and the SD-job-running flag; what each
// message yields comes back as a result for the link to emit. Not thread-safe:
// one parser per link, used on the link's thread.
struct WifiMessageResult
{
    bool namesMakerModel = false; // the message carried the maker's model string
    bool hasStatus = false;       // a status report in state Idle, Alarm, Run or Hold
    QString status;               // its normalised, whitespace-simplified text
    bool hasProgress = false;     // the report carried an SD-card progress field
    float progress = 0.0f;        // percent of the SD job done
    bool hasCamera = false;       // the report carried a camera address
    QString camera;               // the IPv4 address
    bool hasSettings = false;     // a dump ending in "$135" was parsed
    QMap<int, QString> settings;  // setting number to value text
};

class WifiMessageParser
{
public:
    WifiMessageResult feed(const QString &message);

    // Set when a run-from-SD request succeeded; cleared by an Idle or Alarm report.
    bool sdJobRunning() const { return m_sdJobRunning; }
    void setSdJobRunning(bool running) { m_sdJobRunning = running; }

    // Non-empty while a settings dump is being collected; status reports are then
    // only appended, never parsed. A dump without "$135" keeps it growing.
    const QString &buffer() const { return m_buffer; }

private:
    QString m_buffer;
    bool m_sdJobRunning = false;
};

// The settings dump collected in the buffer, parsed into number → value.
QMap<int, QString> parseWifiSettingsDump(const QString &buffer);
