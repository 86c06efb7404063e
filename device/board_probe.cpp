#include "board_probe.h"

#include "board_request.h"
#include "sd_card.h"

#include <QDebug>
#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>

BoardProbe::BoardProbe(QNetworkAccessManager *manager, QObject *parent)
    : QObject(parent), m_manager(manager)
{
    if (!m_manager) {
        m_manager = new QNetworkAccessManager(this);
        lumitra::board::useDirectConnection(*m_manager);
    }
}

BoardProbe::~BoardProbe()
{
    cancel();
}

void BoardProbe::probe(const QString &host, int port, int timeoutMs)
{
    cancel();
    QNetworkReply *reply =
        lumitra::board::get(*m_manager, lumitra::sdcard::listUrl(host, port), timeoutMs);
    m_reply = reply;
    connect(reply, &QNetworkReply::finished, this, [this, reply, host, port] {
        if (m_reply != reply)
            return;
        m_reply = nullptr;
        reply->deleteLater();
        const bool online = isBoardAnswer(reply);
        qDebug() << " probe" << host << port << online;
        emit finished(host, port, online);
    });
}

void BoardProbe::cancel()
{
    QNetworkReply *reply = m_reply;
    m_reply = nullptr;
    if (reply) {
        reply->disconnect(this);
        reply->abort();
        reply->deleteLater();
    }
}

bool BoardProbe::probeAndWait(const QString &host, int port, int timeoutMs)
{
    BoardProbe probe;
    QEventLoop loop;
    bool online = false;
    bool done = false;
    connect(&probe, &BoardProbe::finished, &loop, [&](const QString &, int, bool result) {
        online = result;
        done = true;
        loop.quit();
    });
    probe.probe(host, port, timeoutMs);
    if (!done)
        loop.exec();
    return online;
}

bool BoardProbe::isBoardAnswer(QNetworkReply *reply)
{
    if (!lumitra::board::failureReason(reply).isEmpty())
        return false;
    return lumitra::sdcard::parseListing(reply->readAll()).ok;
}
