// An in-memory device that keeps every write separately, so tests can see
// where the generator flushed.
#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QList>

class RecordingDevice : public QIODevice
{
public:
    RecordingDevice() { open(QIODevice::WriteOnly); }

    QByteArray all() const
    {
        QByteArray out;
        for (const QByteArray &w : writes)
            out += w;
        return out;
    }

    QList<QByteArray> writes;

protected:
    qint64 readData(char *, qint64) override { return -1; }
    qint64 writeData(const char *data, qint64 len) override
    {
        writes.append(QByteArray(data, int(len)));
        return len;
    }
};
