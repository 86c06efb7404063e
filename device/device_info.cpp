#include "device_info.h"

QString DeviceInfo::readMachineModel(const QString &line)
{
    const QString marker = QStringLiteral("machine:");
    const int at = line.indexOf(marker);
    QString model = line.mid(at + marker.size());
    model.chop(2);
    m_map.insert(QStringLiteral("ji_xing"), model);
    return model;
}

void DeviceInfo::storeField(const QString &line, const QString &key)
{
    const int at = line.indexOf(key);
    if (at < 0)
        return;
    const int from = at + key.size();
    const int to = line.indexOf(QLatin1Char(':'), from);
    m_map.insert(key.chopped(1), to < 0 ? line.mid(from) : line.mid(from, to - from));
}

void DeviceInfo::readStationMode(const QString &line)
{
    m_map.insert(QStringLiteral("Mode"), QStringLiteral("STA"));
    storeField(line, QStringLiteral("SSID="));
    storeField(line, QStringLiteral("Status="));
    storeField(line, QStringLiteral("IP="));
}

void DeviceInfo::readAccessPointMode(const QString &line)
{
    m_map.insert(QStringLiteral("Mode"), QStringLiteral("AP"));
    storeField(line, QStringLiteral("SSDI="));
    storeField(line, QStringLiteral("IP="));
}

void DeviceInfo::readSetting(const QString &line)
{
    const int dollar = line.indexOf(QLatin1Char('$'));
    const int equals = line.indexOf(QLatin1Char('='));
    if (dollar < 0 || equals < dollar)
        return;
    const QString key = QLatin1Char('$') + line.mid(dollar + 1, equals - dollar - 1);
    QString value = line.mid(equals + 1);
    value.chop(1);
    m_map.insert(key, value);
}

void DeviceInfo::beginCollecting()
{
    m_map.clear();
    m_collecting = true;
    m_okCount = 0;
}

bool DeviceInfo::countOk()
{
    if (!m_collecting)
        return false;
    if (++m_okCount < 2)
        return false;
    m_collecting = false;
    return true;
}
