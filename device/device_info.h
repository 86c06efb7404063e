#pragma once

#include <QMap>
#include <QString>

// The serial link's device information: model, WiFi mode fields and the GRBL
// settings, filled line by line from what the controller reports, and the
// settings request that collects it. GUI thread only (the link's read handler).
//
// Keys: "ji_xing" (model), "Mode" ("STA" or "AP"), "SSID", "SSDI" (the access
// point name, spelt as the board spells it), "Status", "IP", and "$<n>" for each
// setting, whose value is the text after "=".
class DeviceInfo
{
public:
    // Stores the model named by a "[MSG:Using machine:<model>]\r" line and
    // returns it: the text after "machine:" less the closing "]" and "\r".
    QString readMachineModel(const QString &line);
    // "Mode=STA" line: "Mode" = "STA" and the SSID, Status and IP fields.
    void readStationMode(const QString &line);
    // "Mode=AP" line: "Mode" = "AP" and the SSDI and IP fields.
    void readAccessPointMode(const QString &line);
    // "$<n>=<value>\r" line: key "$<n>", value without the last character.
    // A line without "=" is not a setting and is skipped.
    void readSetting(const QString &line);

    // The settings request: empties the map and starts counting "ok" replies.
    void beginCollecting();
    // Counts one "ok" while collecting; true on the second, which ends the
    // collection (the map is then complete and should be handed on).
    bool countOk();
    bool collecting() const { return m_collecting; }

    const QMap<QString, QString> &map() const { return m_map; }
    void clear() { m_map.clear(); }

private:
    // Stores under `key` (without "=") the text after `key` up to the next ":".
    void storeField(const QString &line, const QString &key);

    QMap<QString, QString> m_map;
    bool m_collecting = false;
    int m_okCount = 0;
};
