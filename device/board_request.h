#pragma once

#include <QString>

class QNetworkAccessManager;
class QNetworkReply;

// Plain GET requests to a board on the local network, each with its own time
// limit. Boards are reached directly: every manager used here should have its
// proxy set to none (useDirectConnection).
namespace lumitra::board {

void useDirectConnection(QNetworkAccessManager &manager);

// Sends a GET to `url` and aborts it when no answer is complete after
// `timeoutMs`. The caller owns the reply and deletes it (deleteLater) once it
// has finished.
QNetworkReply *get(QNetworkAccessManager &manager, const QString &url, int timeoutMs);

// For a finished reply from `get`: empty when it succeeded, otherwise why
// ("timed out after 800 ms", or the network error text).
QString failureReason(const QNetworkReply *reply);

} // namespace lumitra::board
