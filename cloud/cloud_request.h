#pragma once

#include <QByteArray>
#include <QList>
#include <QNetworkRequest>
#include <QPair>
#include <QString>
#include <QUrl>

namespace lumitra {

using CloudField = QPair<QString, QString>;
using CloudFields = QList<CloudField>;

// "Lumitra/1.2.0 (<operating system>)".
QByteArray cloud_user_agent();

// The "lang" header for an interface language code: "en" for English ("yw"),
// the code itself otherwise.
QByteArray cloud_language_header(const QString &languageCode);

// The interface language's header value from the settings store.
QByteArray current_cloud_language();

// What kind of call a request is: it decides "Accept-Encoding" and "token".
enum class CloudCallKind {
    Plain,       // every API call: token added when one is held
    UpdateCheck, // "/app/check": never a token, "gzip, deflate"
    Download     // a file address from a reply: never a token, "identity"
};

// The headers every call carries, in the order they are set:
// App-Type, lang, Accept, Connection, Accept-Encoding, Host, User-Agent[, token].
QList<QPair<QByteArray, QByteArray>> cloud_headers(const QUrl &url, const QByteArray &lang,
                                                   const QByteArray &token, CloudCallKind kind);

// A request for `url` with those headers set.
QNetworkRequest cloud_request(const QUrl &url, const QByteArray &lang, const QByteArray &token,
                              CloudCallKind kind);

// The base address followed by a path that may carry a query, e.g.
// "/material/info?id=3". Query values given here must already be encoded.
QUrl cloud_url(const QUrl &base, const QString &pathAndQuery);

// "a=1&b=x%20y": an application/x-www-form-urlencoded body, fields in order.
QByteArray form_body(const CloudFields &fields);

// Percent-encodes one query or form value (everything but unreserved characters).
QString encode_value(const QString &value);

} // namespace lumitra
