#include "board_request.h"

#include <QNetworkAccessManager>
#include <QNetworkProxy>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>
#include <QUrl>

namespace lumitra::board {

namespace {
const char *const kTimedOutAfter = "lumitraTimedOutAfter";
}

void useDirectConnection(QNetworkAccessManager &manager)
{
    manager.setProxy(QNetworkProxy::NoProxy);
}

QNetworkReply *get(QNetworkAccessManager &manager, const QString &url, int timeoutMs)
{
    QNetworkRequest request{QUrl(url)};
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::NoLessSafeRedirectPolicy);
    QNetworkReply *reply = manager.get(request);
    auto *timer = new QTimer(reply);
    timer->setSingleShot(true);
    QObject::connect(timer, &QTimer::timeout, reply, [reply, timeoutMs] {
        if (reply->isRunning()) {
            reply->setProperty(kTimedOutAfter, timeoutMs);
            reply->abort();
        }
    });
    QObject::connect(reply, &QNetworkReply::finished, timer, &QTimer::stop);
    timer->start(timeoutMs);
    return reply;
}

QString failureReason(const QNetworkReply *reply)
{
    const QVariant timedOut = reply->property(kTimedOutAfter);
    if (timedOut.isValid())
        return QStringLiteral("timed out after %1 ms").arg(timedOut.toInt());
    if (reply->error() != QNetworkReply::NoError)
        return reply->errorString();
    return QString();
}

} // namespace lumitra::board
