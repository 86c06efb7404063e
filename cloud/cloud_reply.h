#pragma once

#include <QByteArray>
#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>

namespace lumitra {

// One answer of the service: the envelope {"status", "data", "message"} or
// the reason no envelope arrived.
struct CloudResult
{
    bool ok = false;      // "status" was "success"
    bool reached = false; // an envelope arrived (false: network, TLS or refusal)
    QString status;       // "success", "fail", ...
    QString message;      // the service's "message", or the local error text
    QJsonValue data;      // the payload
    QJsonArray list;      // data["list"] when present (material lists)
    int httpStatus = 0;

    QJsonObject object() const { return data.toObject(); }
};

// Reads an envelope. A body that is not a JSON object gives reached == false
// and a short message.
CloudResult parse_cloud_reply(const QByteArray &body, int httpStatus = 200);

// A result that never reached the service.
CloudResult cloud_failure(const QString &message);

// Inflates a gzip or deflate body ("Content-Encoding"). Returns false for an
// encoding it cannot read ("br") or damaged data. Identity passes through.
bool decode_content(const QByteArray &encoding, const QByteArray &body, QByteArray *out);

} // namespace lumitra
