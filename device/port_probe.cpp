#include "port_probe.h"

#include <QDebug>
#include <QSerialPort>
#include <QSerialPortInfo>

namespace {

constexpr int kDefaultBaud = 115200;

// Writes `probe`, then collects what arrives within `waitMs`.
QByteArray ask(QSerialPort &port, const QByteArray &probe, int waitMs)
{
    port.write(probe);
    port.waitForBytesWritten(waitMs);
    QByteArray answer;
    if (port.waitForReadyRead(waitMs))
        answer = port.readAll();
    return answer;
}

void setLine(QSerialPort &port, int baud)
{
    port.setReadBufferSize(1024);
    port.setBaudRate(baud);
    port.setDataBits(QSerialPort::Data8);
    port.setParity(QSerialPort::NoParity);
    port.setStopBits(QSerialPort::OneStop);
    port.setFlowControl(QSerialPort::NoFlowControl);
}

} // namespace

bool probePort(const QString &name, int waitMs)
{
    QSerialPort port(name);
    setLine(port, kDefaultBaud);
    if (!port.open(QIODevice::ReadWrite))
        return false;
    const bool answered = !ask(port, QByteArrayLiteral("AT\r\n"), waitMs).isEmpty();
    port.close();
    return answered;
}

QStringList baudProbeRates()
{
    return {QStringLiteral("1200"),  QStringLiteral("2400"),   QStringLiteral("4800"),
            QStringLiteral("9600"),  QStringLiteral("19200"),  QStringLiteral("38400"),
            QStringLiteral("57600"), QStringLiteral("115200"), QStringLiteral("128000"),
            QStringLiteral("256000")};
}

int probeBaudRate(const QString &name, int waitMs)
{
    const QStringList rates = baudProbeRates();
    for (const QString &rate : rates) {
        QSerialPort port(name);
        setLine(port, rate.toInt());
        if (!port.open(QIODevice::ReadWrite))
            continue;
        qDebug() << "info " << name << rate;
        const QByteArray answer = ask(port, QByteArrayLiteral("AT \r\n"), waitMs);
        port.close();
        if (!answer.isEmpty()) {
            qDebug() << "readData " << answer;
            return rate.toInt();
        }
    }
    return kDefaultBaud;
}

int probeBaudRate()
{
    const QStringList ports = presentPorts();
    return ports.isEmpty() ? kDefaultBaud : probeBaudRate(ports.first());
}

QStringList presentPorts()
{
    QStringList names;
    const QList<QSerialPortInfo> infos = QSerialPortInfo::availablePorts();
    for (const QSerialPortInfo &info : infos)
        names.append(info.portName());
    return names;
}
