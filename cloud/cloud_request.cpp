#include "cloud_request.h"

#include "settings_store.h"

#include <QSysInfo>

namespace lumitra {

QByteArray cloud_user_agent()
{
    QString os = QSysInfo::prettyProductName();
    if (os.isEmpty())
        os = QSysInfo::kernelType();
    os.remove(QLatin1Char('(')).remove(QLatin1Char(')'));
    return "Lumitra/1.2.0 (" + os.toUtf8() + ')';
}

QByteArray cloud_language_header(const QString &languageCode)
{
    if (languageCode.isEmpty() || languageCode == QLatin1String("yw"))
        return "en";
    return languageCode.toLatin1();
}

QByteArray current_cloud_language()
{
    return cloud_language_header(get_setting(QStringLiteral("language")));
}

QList<QPair<QByteArray, QByteArray>> cloud_headers(const QUrl &url, const QByteArray &lang,
                                                   const QByteArray &token, CloudCallKind kind)
{
    QByteArray host = url.host(QUrl::FullyEncoded).toUtf8();
    if (host.contains(':'))
        host = '[' + host + ']';
    if (url.port() != -1)
        host += ':' + QByteArray::number(url.port());
    QList<QPair<QByteArray, QByteArray>> h;
    auto add = [&h](const QByteArray &name, const QByteArray &value) { h.append({name, value}); };
    add("App-Type", "app");
    add("lang", lang);
    add("Accept", "*/*");
    add("Connection", "keep-alive");
    // A file is saved as it comes: no content encoding is asked for.
    add("Accept-Encoding", kind == CloudCallKind::UpdateCheck ? "gzip, deflate"
                           : kind == CloudCallKind::Download  ? "identity"
                                                              : "gzip, deflate, br");
    add("Host", host);
    add("User-Agent", cloud_user_agent());
    if (kind == CloudCallKind::Plain && !token.isEmpty())
        add("token", token);
    return h;
}

QNetworkRequest cloud_request(const QUrl &url, const QByteArray &lang, const QByteArray &token,
                              CloudCallKind kind)
{
    QNetworkRequest request(url);
    for (const auto &header : cloud_headers(url, lang, token, kind))
        request.setRawHeader(header.first, header.second);
    // Redirects are not followed: a reply always comes from the address asked.
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::ManualRedirectPolicy);
    return request;
}

QUrl cloud_url(const QUrl &base, const QString &pathAndQuery)
{
    QString text = base.toString(QUrl::FullyEncoded);
    while (text.endsWith(QLatin1Char('/')))
        text.chop(1);
    return QUrl(text + pathAndQuery, QUrl::TolerantMode);
}

QString encode_value(const QString &value)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(value));
}

QByteArray form_body(const CloudFields &fields)
{
    QByteArray body;
    for (const CloudField &f : fields) {
        if (!body.isEmpty())
            body += '&';
        body += QUrl::toPercentEncoding(f.first) + '=' + QUrl::toPercentEncoding(f.second);
    }
    return body;
}

} // namespace lumitra
