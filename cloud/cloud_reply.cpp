#include "cloud_reply.h"

#include <QJsonDocument>
#include <QJsonParseError>
#include <zlib.h>

namespace lumitra {

CloudResult cloud_failure(const QString &message)
{
    CloudResult r;
    r.message = message;
    return r;
}

CloudResult parse_cloud_reply(const QByteArray &body, int httpStatus)
{
    QJsonParseError error;
    const QJsonDocument doc = QJsonDocument::fromJson(body, &error);
    if (error.error != QJsonParseError::NoError || !doc.isObject()) {
        CloudResult r =
            cloud_failure(httpStatus >= 400 ? QStringLiteral("HTTP %1").arg(httpStatus)
                                            : QStringLiteral("unreadable reply from the service"));
        r.httpStatus = httpStatus;
        return r;
    }
    const QJsonObject o = doc.object();
    CloudResult r;
    r.reached = true;
    r.httpStatus = httpStatus;
    r.status = o.value(QStringLiteral("status")).toString();
    r.ok = r.status == QLatin1String("success");
    r.message = o.value(QStringLiteral("message")).toString();
    r.data = o.value(QStringLiteral("data"));
    if (r.data.isObject())
        r.list = r.data.toObject().value(QStringLiteral("list")).toArray();
    return r;
}

bool decode_content(const QByteArray &encoding, const QByteArray &body, QByteArray *out)
{
    const QByteArray e = encoding.trimmed().toLower();
    if (e.isEmpty() || e == "identity") {
        *out = body;
        return true;
    }
    if (e != "gzip" && e != "deflate" && e != "x-gzip")
        return false;
    z_stream s{};
    // 32 + 15: zlib or gzip header, detected; raw deflate is tried below.
    if (inflateInit2(&s, 32 + 15) != Z_OK)
        return false;
    auto run = [&s, &body, out]() {
        out->clear();
        s.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(body.constData()));
        s.avail_in = uInt(body.size());
        char chunk[16384];
        int rc = Z_OK;
        while (rc == Z_OK) {
            s.next_out = reinterpret_cast<Bytef *>(chunk);
            s.avail_out = sizeof chunk;
            rc = inflate(&s, Z_NO_FLUSH);
            if (rc != Z_OK && rc != Z_STREAM_END)
                return false;
            out->append(chunk, int(sizeof chunk - s.avail_out));
            if (rc == Z_OK && s.avail_in == 0 && s.avail_out != 0)
                return false; // truncated
        }
        return true;
    };
    bool ok = run();
    inflateEnd(&s);
    if (!ok && e == "deflate") {
        s = z_stream{};
        if (inflateInit2(&s, -15) != Z_OK)
            return false;
        ok = run();
        inflateEnd(&s);
    }
    return ok;
}

} // namespace lumitra
