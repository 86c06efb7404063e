#include "cloud_address.h"

#include "settings_store.h"

#include <QHostAddress>

namespace lumitra {

QString default_cloud_base()
{
    return QStringLiteral("https://api.lumitra.app");
}

QUrl cloud_base_url()
{
    QString text = qEnvironmentVariable("LUMITRA_CLOUD_URL").trimmed();
    if (text.isEmpty())
        text = get_setting(QStringLiteral("CloudBase")).trimmed();
    if (text.isEmpty())
        text = default_cloud_base();
    while (text.endsWith(QLatin1Char('/')))
        text.chop(1);
    return QUrl(text, QUrl::StrictMode);
}

bool is_loopback_host(const QString &host)
{
    if (host.compare(QLatin1String("localhost"), Qt::CaseInsensitive) == 0)
        return true;
    QHostAddress address;
    return address.setAddress(host) && address.isLoopback();
}

bool is_allowed_cloud_url(const QUrl &url, QString *why)
{
    auto refuse = [why](const QString &text) {
        if (why)
            *why = text;
        return false;
    };
    if (!url.isValid() || url.host().isEmpty())
        return refuse(QStringLiteral("invalid service address \"%1\"").arg(url.toString()));
    const QString scheme = url.scheme().toLower();
    if (scheme == QLatin1String("https"))
        return true;
    if (scheme == QLatin1String("http")) {
        if (is_loopback_host(url.host()))
            return true;
        return refuse(QStringLiteral("refused plain http to %1: only https is allowed "
                                     "except on this machine")
                          .arg(url.host()));
    }
    return refuse(QStringLiteral("unsupported scheme \"%1\" in the service address").arg(scheme));
}

} // namespace lumitra
