#pragma once

// Shared by the cloud tests: waiting for one asynchronous call, the log of the
// whole run, and a network manager that counts the requests it is asked for.

#include "cloud_reply.h"

#include <QMutex>
#include <QNetworkAccessManager>
#include <QStringList>
#include <QtTest>
#include <functional>

namespace cloudtest {

// Runs `start` with a completion and waits (event loop) until it ran.
inline lumitra::CloudResult
call(const std::function<void(std::function<void(const lumitra::CloudResult &)>)> &start,
     bool *finished = nullptr)
{
    bool done = false;
    lumitra::CloudResult result;
    start([&done, &result](const lumitra::CloudResult &r) {
        result = r;
        done = true;
    });
    // A caller that cares whether it finished passes `finished`; the result
    // of one that never did is the default (failed) one.
    const bool ran = QTest::qWaitFor([&done]() { return done; }, 20000);
    if (finished)
        *finished = ran;
    return result;
}

// Every message logged during the run, formatted as it would be printed.
inline QStringList &logLines()
{
    static QStringList lines;
    return lines;
}

inline QtMessageHandler &previousHandler()
{
    static QtMessageHandler handler = nullptr;
    return handler;
}

inline void captureLog(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    logLines().append(text);
    if (previousHandler())
        previousHandler()(type, context, text);
}

inline void installLogCapture()
{
    previousHandler() = qInstallMessageHandler(captureLog);
}

// Counts what reaches the transport: a refused call never gets here.
class CountingManager : public QNetworkAccessManager
{
public:
    using QNetworkAccessManager::QNetworkAccessManager;
    int requests = 0;

protected:
    QNetworkReply *createRequest(Operation op, const QNetworkRequest &request,
                                 QIODevice *data) override
    {
        ++requests;
        return QNetworkAccessManager::createRequest(op, request, data);
    }
};

} // namespace cloudtest
