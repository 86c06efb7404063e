#include "fake_board.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHostAddress>
#include <QRegularExpression>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTimer>
#include <QWebSocket>
#include <QWebSocketServer>

namespace {

// A query value as a board decodes it: "+" is a blank, then %XX.
QString decodeQueryValue(QByteArray value)
{
    value.replace('+', ' ');
    return QString::fromUtf8(QByteArray::fromPercentEncoding(value));
}

QMap<QString, QString> parseQuery(const QByteArray &query)
{
    QMap<QString, QString> items;
    for (const QByteArray &pair : query.split('&')) {
        if (pair.isEmpty())
            continue;
        const int eq = pair.indexOf('=');
        const QByteArray key = eq < 0 ? pair : pair.left(eq);
        const QByteArray value = eq < 0 ? QByteArray() : pair.mid(eq + 1);
        items.insert(decodeQueryValue(key), decodeQueryValue(value));
    }
    return items;
}

// A header parameter such as name="x" from a Content-Disposition value.
QString headerParameter(const QByteArray &value, const QByteArray &param)
{
    const QByteArray key = param + "=";
    int at = 0;
    while ((at = value.indexOf(key, at)) >= 0) {
        if (at == 0 || value.at(at - 1) == ' ' || value.at(at - 1) == ';')
            break;
        at += key.size();
    }
    if (at < 0)
        return QString();
    at += key.size();
    if (at < value.size() && value.at(at) == '"') {
        const int end = value.indexOf('"', at + 1);
        return QString::fromUtf8(value.mid(at + 1, end < 0 ? -1 : end - at - 1));
    }
    const int end = value.indexOf(';', at);
    return QString::fromUtf8(value.mid(at, end < 0 ? -1 : end - at).trimmed());
}

QMap<QByteArray, QByteArray> parseHeaderLines(const QByteArray &block)
{
    QMap<QByteArray, QByteArray> headers;
    for (const QByteArray &line : block.split('\n')) {
        const int colon = line.indexOf(':');
        if (colon <= 0)
            continue;
        headers.insert(line.left(colon).trimmed().toLower(), line.mid(colon + 1).trimmed());
    }
    return headers;
}

QByteArray formatBytes(qint64 bytes)
{
    if (bytes < 1024)
        return QByteArray::number(bytes) + " B";
    if (bytes < 1024 * 1024)
        return QByteArray::number(bytes / 1024.0, 'f', 2) + " KB";
    return QByteArray::number(bytes / 1024.0 / 1024.0, 'f', 2) + " MB";
}

QByteArray jsonString(const QString &text)
{
    QByteArray out = "\"";
    for (const QChar ch : text) {
        if (ch == QLatin1Char('"') || ch == QLatin1Char('\\'))
            out += '\\';
        out += QString(ch).toUtf8();
    }
    return out + "\"";
}

const char *reasonPhrase(int status)
{
    switch (status) {
    case 200:
        return "OK";
    case 400:
        return "Bad Request";
    case 404:
        return "Not Found";
    case 500:
        return "Internal Server Error";
    default:
        return "Error";
    }
}

} // namespace

struct FakeBoard::Connection
{
    QByteArray buffer;
    bool headersDone = false;
    QByteArray method;
    QByteArray target;
    QMap<QByteArray, QByteArray> headers;
    qint64 remaining = 0;
    QByteArray body;
    // Multipart upload in progress.
    bool upload = false;
    QByteArray delimiter; // "\r\n--" + boundary
    enum { Preamble, AfterBoundary, PartHeaders, PartBody, Done } mp = Preamble;
    QByteArray mpBuffer;
    UploadPart part;
    QFile *partFile = nullptr;
    QStringList files; // names of the files this upload completed
};

QMap<int, QString> FakeBoard::defaultSettings()
{
    QMap<int, QString> s = {
        {0, "10"},         {1, "25"},         {2, "0"},         {3, "0"},         {4, "0"},
        {5, "0"},          {6, "0"},          {10, "1"},        {11, "0.010"},    {12, "0.002"},
        {13, "0"},         {20, "0"},         {21, "0"},        {22, "1"},        {23, "0"},
        {24, "25.000"},    {25, "500.000"},   {26, "250"},      {27, "1.000"},    {30, "1000"},
        {31, "0"},         {32, "1"},         {100, "80.000"},  {101, "80.000"},  {102, "80.000"},
        {110, "6000.000"}, {111, "6000.000"}, {112, "500.000"}, {120, "500.000"}, {121, "500.000"},
        {122, "50.000"},   {130, "400.000"},  {131, "400.000"}, {132, "50.000"},  {135, "0"}};
    return s;
}

FakeBoard::FakeBoard(QObject *parent) : FakeBoard(Options(), parent) {}

FakeBoard::FakeBoard(const Options &options, QObject *parent)
    : QObject(parent), m_opt(options), m_http(new QTcpServer(this)),
      m_ws(
          new QWebSocketServer(QStringLiteral("FakeBoard"), QWebSocketServer::NonSecureMode, this)),
      m_dir(new QTemporaryDir), m_jobTimer(new QTimer(this)), m_settings(defaultSettings())
{
    connect(m_http, &QTcpServer::newConnection, this, &FakeBoard::onHttpConnection);
    connect(m_ws, &QWebSocketServer::newConnection, this, &FakeBoard::onWebSocketConnection);
    m_jobTimer->setInterval(m_opt.reportIntervalMs);
    connect(m_jobTimer, &QTimer::timeout, this, &FakeBoard::jobTick);
}

FakeBoard::~FakeBoard()
{
    for (Connection *c : qAsConst(m_connections)) {
        delete c->partFile;
        delete c;
    }
    m_connections.clear();
    for (QWebSocket *ws : qAsConst(m_clients)) {
        ws->disconnect(this);
        ws->abort();
        delete ws;
    }
    m_clients.clear();
    delete m_dir;
}

bool FakeBoard::start()
{
    return m_dir->isValid() && m_http->listen(QHostAddress::LocalHost, 0)
           && m_ws->listen(QHostAddress::LocalHost, 0);
}

quint16 FakeBoard::httpPort() const
{
    return m_http->serverPort();
}

quint16 FakeBoard::wsPort() const
{
    return m_ws->serverPort();
}

QString FakeBoard::address() const
{
    return QStringLiteral("127.0.0.1:%1").arg(httpPort());
}

void FakeBoard::refuse()
{
    m_http->close();
    m_ws->close();
    const auto sockets = m_connections.keys();
    for (QTcpSocket *s : sockets)
        s->abort();
    dropWebSockets();
}

void FakeBoard::setStalled(bool stalled)
{
    m_stalled = stalled;
    if (stalled) {
        m_ws->pauseAccepting();
        m_jobTimer->stop();
    } else {
        m_ws->resumeAccepting();
        if (m_jobRunning)
            m_jobTimer->start();
    }
}

void FakeBoard::dropWebSockets()
{
    const QList<QWebSocket *> clients = m_clients;
    for (QWebSocket *ws : clients)
        ws->abort();
}

void FakeBoard::failRoute(const QString &path, int status)
{
    if (status == 0)
        m_failures.remove(path);
    else
        m_failures.insert(path, status);
}

void FakeBoard::setCameraImage(const QByteArray &bytes)
{
    m_cameraImage = bytes;
}

void FakeBoard::failCameraRequests(int count, CameraFailure how)
{
    m_cameraFailuresLeft = count;
    m_cameraFailure = how;
}

QStringList FakeBoard::cardFiles() const
{
    return m_card.keys();
}

QString FakeBoard::cardFilePath(const QString &name) const
{
    return m_card.value(name);
}

QByteArray FakeBoard::cardFile(const QString &name) const
{
    QFile f(m_card.value(name));
    if (!f.open(QIODevice::ReadOnly))
        return QByteArray();
    return f.readAll();
}

qint64 FakeBoard::cardFileSize(const QString &name) const
{
    return m_card.contains(name) ? QFileInfo(m_card.value(name)).size() : -1;
}

void FakeBoard::putCardFile(const QString &name, const QByteArray &bytes)
{
    const QString path = m_dir->filePath(QStringLiteral("card-%1").arg(++m_fileSerial));
    QFile f(path);
    if (f.open(QIODevice::WriteOnly))
        f.write(bytes);
    m_card.insert(name, path);
}

// ---- HTTP ------------------------------------------------------------------

void FakeBoard::onHttpConnection()
{
    while (QTcpSocket *socket = m_http->nextPendingConnection()) {
        m_connections.insert(socket, new Connection);
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] { onHttpData(socket); });
        connect(socket, &QTcpSocket::disconnected, this, [this, socket] {
            Connection *c = m_connections.take(socket);
            if (c) {
                delete c->partFile;
                delete c;
            }
            socket->deleteLater();
        });
    }
}

void FakeBoard::onHttpData(QTcpSocket *socket)
{
    Connection *c = m_connections.value(socket);
    if (!c)
        return;
    c->buffer += socket->readAll();
    if (m_stalled) {
        c->buffer.clear();
        return;
    }
    for (;;) {
        if (!c->headersDone) {
            const int end = c->buffer.indexOf("\r\n\r\n");
            if (end < 0)
                return;
            const QByteArray head = c->buffer.left(end);
            c->buffer.remove(0, end + 4);
            const int lineEnd = head.indexOf("\r\n");
            const QList<QByteArray> requestLine =
                head.left(lineEnd < 0 ? head.size() : lineEnd).split(' ');
            c->method = requestLine.value(0);
            c->target = requestLine.value(1);
            c->headers = parseHeaderLines(lineEnd < 0 ? QByteArray() : head.mid(lineEnd + 2));
            c->remaining = c->headers.value("content-length").toLongLong();
            c->body.clear();
            c->headersDone = true;
            const QByteArray path = c->target.left(
                c->target.indexOf('?') < 0 ? c->target.size() : c->target.indexOf('?'));
            c->upload = c->method == "POST" && path == "/upload";
            if (c->upload) {
                const QByteArray type = c->headers.value("content-type");
                const QString boundary = headerParameter(type, "boundary");
                c->delimiter = "\r\n--" + boundary.toUtf8();
                c->mp = Connection::Preamble;
                c->mpBuffer.clear();
                c->files.clear();
            }
        }
        const qint64 take = qMin<qint64>(c->remaining, c->buffer.size());
        if (take > 0) {
            if (c->upload)
                feedMultipart(*c, c->buffer.left(take));
            else
                c->body += c->buffer.left(take);
            c->buffer.remove(0, take);
            c->remaining -= take;
        }
        if (c->remaining > 0)
            return;
        c->headersDone = false;
        handleRequest(*c, socket);
        if (!m_connections.contains(socket))
            return;
    }
}

void FakeBoard::feedMultipart(Connection &c, const QByteArray &bytes)
{
    c.mpBuffer += bytes;
    for (;;) {
        switch (c.mp) {
        case Connection::Preamble: {
            // The first boundary has no leading "\r\n".
            const QByteArray first = c.delimiter.mid(2);
            const int at = c.mpBuffer.indexOf(first);
            if (at < 0)
                return;
            c.mpBuffer.remove(0, at + first.size());
            c.mp = Connection::AfterBoundary;
            break;
        }
        case Connection::AfterBoundary:
            if (c.mpBuffer.size() < 2)
                return;
            if (c.mpBuffer.startsWith("--")) {
                c.mp = Connection::Done;
                c.mpBuffer.clear();
                return;
            }
            c.mpBuffer.remove(0, c.mpBuffer.startsWith("\r\n") ? 2 : 0);
            c.mp = Connection::PartHeaders;
            break;
        case Connection::PartHeaders: {
            const int end = c.mpBuffer.indexOf("\r\n\r\n");
            if (end < 0)
                return;
            beginPart(c, c.mpBuffer.left(end));
            c.mpBuffer.remove(0, end + 4);
            c.mp = Connection::PartBody;
            break;
        }
        case Connection::PartBody: {
            const int at = c.mpBuffer.indexOf(c.delimiter);
            const int keep = at < 0 ? c.delimiter.size() - 1 : 0;
            const int bodyBytes = at < 0 ? c.mpBuffer.size() - keep : at;
            if (bodyBytes > 0) {
                const QByteArray chunk = c.mpBuffer.left(bodyBytes);
                if (c.partFile)
                    c.partFile->write(chunk);
                else
                    c.part.body += chunk;
                c.part.size += bodyBytes;
                c.mpBuffer.remove(0, bodyBytes);
            }
            if (at < 0)
                return;
            c.mpBuffer.remove(0, c.delimiter.size());
            endPart(c);
            c.mp = Connection::AfterBoundary;
            break;
        }
        case Connection::Done:
            c.mpBuffer.clear();
            return;
        }
    }
}

void FakeBoard::beginPart(Connection &c, const QByteArray &headerBlock)
{
    c.part = UploadPart();
    c.part.headers = headerBlock;
    const QMap<QByteArray, QByteArray> headers = parseHeaderLines(headerBlock);
    const QByteArray disposition = headers.value("content-disposition");
    c.part.name = headerParameter(disposition, "name");
    c.part.filename = headerParameter(disposition, "filename");
    c.part.contentType = QString::fromUtf8(headers.value("content-type"));
    if (!c.part.filename.isEmpty()) {
        c.partFile = new QFile(m_dir->filePath(QStringLiteral("card-%1").arg(++m_fileSerial)));
        c.partFile->open(QIODevice::WriteOnly);
    }
}

void FakeBoard::endPart(Connection &c)
{
    if (c.partFile) {
        const QString path = c.partFile->fileName();
        c.partFile->close();
        delete c.partFile;
        c.partFile = nullptr;
        QString name = c.part.filename;
        if (name.startsWith(QLatin1Char('/')))
            name.remove(0, 1);
        const QString old = m_card.value(name);
        if (!old.isEmpty())
            QFile::remove(old);
        m_card.insert(name, path);
        c.files << name;
    }
    m_parts << c.part;
}

void FakeBoard::respond(QTcpSocket *socket, int status, const QByteArray &body,
                        const QByteArray &contentType)
{
    QByteArray head = "HTTP/1.1 " + QByteArray::number(status) + ' ' + reasonPhrase(status)
                      + "\r\nContent-Type: " + contentType + "\r\nContent-Length: "
                      + QByteArray::number(body.size()) + "\r\nConnection: keep-alive\r\n\r\n";
    socket->write(head + body);
}

void FakeBoard::handleRequest(Connection &c, QTcpSocket *socket)
{
    m_rawTargets << QString::fromLatin1(c.target);
    m_requestHeaders << c.headers;
    const int q = c.target.indexOf('?');
    const QString path =
        QString::fromUtf8(QByteArray::fromPercentEncoding(q < 0 ? c.target : c.target.left(q)));
    const QMap<QString, QString> query = parseQuery(q < 0 ? QByteArray() : c.target.mid(q + 1));

    if (c.upload) {
        ++m_uploadCount;
        if (c.partFile) { // body ended inside a part: keep what came
            endPart(c);
        }
        const int failure = m_failures.value(path);
        if (failure) {
            respond(socket, failure, "upload failed");
            return;
        }
        for (const QString &name : qAsConst(c.files))
            emit uploadReceived(name);
        respond(socket, 200, cardListJson(), "application/json");
        return;
    }
    const int failure = m_failures.value(path);
    if (failure) {
        respond(socket, failure, "error");
        return;
    }
    if (path == QLatin1String("/command")) {
        if (query.contains(QStringLiteral("plain"))) {
            const QString line = query.value(QStringLiteral("plain"));
            m_plainLines << line;
            const int eq = line.indexOf(QLatin1Char('='));
            bool ok = false;
            const int number =
                line.startsWith(QLatin1Char('$')) && eq > 1 ? line.mid(1, eq - 1).toInt(&ok) : -1;
            if (ok && m_settings.contains(number)) {
                m_settings.insert(number, line.mid(eq + 1));
                sendLines({"ok"});
                respond(socket, 200, "ok");
            } else {
                sendLines({"error:3"});
                respond(socket, 200, "error:3");
            }
            return;
        }
        const QString text = query.value(QStringLiteral("commandText"));
        if (text.startsWith(QLatin1String("[ESP220]"))) {
            QString name = text.mid(8);
            if (name.startsWith(QLatin1Char('/')))
                name.remove(0, 1);
            m_commands << text;
            emit commandReceived(text);
            if (!m_card.contains(name)) {
                respond(socket, 404, "Error: file not found");
                return;
            }
            m_jobFile = name;
            m_jobRunning = true;
            m_jobElapsedMs = 0;
            if (m_runner)
                m_earlierRuns += m_runner->executed();
            m_runner.reset();
            if (m_opt.executeJobs) {
                m_runner = std::make_unique<CardJobRunner>();
                m_runner->open(m_card.value(name), m_opt.msPerBlock);
            }
            m_jobTimer->start();
            respond(socket, 200, "ok");
            return;
        }
        onCommand(text);
        respond(socket, 200, "");
        return;
    }
    if (path == QLatin1String("/upload")) {
        if (query.value(QStringLiteral("action")) == QLatin1String("delete")) {
            QString name = query.value(QStringLiteral("filename"));
            if (name.startsWith(QLatin1Char('/')))
                name.remove(0, 1);
            if (m_card.contains(name))
                QFile::remove(m_card.take(name));
        }
        respond(socket, 200, cardListJson(), "application/json");
        return;
    }
    if (path == QLatin1String("/cam.jpg")) {
        ++m_cameraRequests;
        if (m_cameraFailuresLeft > 0) {
            --m_cameraFailuresLeft;
            if (m_cameraFailure == CameraFailure::DropConnection) {
                socket->abort();
                return;
            }
            respond(socket, 500, "camera busy");
            return;
        }
        if (m_cameraImage.isEmpty()) {
            respond(socket, 404, "no camera");
            return;
        }
        respond(socket, 200, m_cameraImage, "image/jpeg");
        return;
    }
    if (path.startsWith(QLatin1String("/SD/"))) {
        const QString name = path.mid(4);
        if (!m_card.contains(name)) {
            respond(socket, 404, "not found");
            return;
        }
        respond(socket, 200, cardFile(name), "application/octet-stream");
        return;
    }
    respond(socket, 404, "not found");
}

QByteArray FakeBoard::cardListJson() const
{
    QByteArray files;
    qint64 used = 0;
    for (auto it = m_card.cbegin(); it != m_card.cend(); ++it) {
        const qint64 size = QFileInfo(it.value()).size();
        used += size;
        if (!files.isEmpty())
            files += ',';
        files += "{\"name\":" + jsonString(it.key()) + ",\"size\":\"" + formatBytes(size) + "\"}";
    }
    return "{\"files\":[" + files + "],\"path\":\"/\",\"total\":\"" + formatBytes(4LL << 30)
           + "\",\"used\":\"" + formatBytes(used) + "\",\"occupation\":\"0\",\"status\":\"Ok\"}";
}

// ---- GRBL over the WebSocket ---------------------------------------------------

QByteArray FakeBoard::statusReport(const char *state)
{
    if (m_runner) {
        const QPointF at = m_runner->position();
        QByteArray report = QByteArray("<") + state + "|MPos:" + QByteArray::number(at.x(), 'f', 3)
                            + ',' + QByteArray::number(at.y(), 'f', 3)
                            + ",0.000|FS:" + (m_jobRunning ? "1000,500" : "0,0");
        // As GRBL, the work offset now and then (every report here).
        report += "|WCO:0.000,0.000,0.000";
        if (m_settings.value(10).toInt() & 2)
            report += "|Bf:" + QByteArray::number(15 - m_runner->queuedBlocks()) + ",127";
        if (m_jobRunning) {
            report += "|SD:" + QByteArray::number(m_runner->percentRead(), 'f', 2) + ",/"
                      + m_jobFile.toUtf8();
            m_reportedRunLine = m_runner->lastRunLine();
        }
        return report + ">";
    }
    QByteArray report = QByteArray("<") + state
                        + "|MPos:10.000,5.000,0.000|FS:" + (m_jobRunning ? "1000,500" : "0,0");
    if (m_jobRunning && m_opt.jobMs > 0) {
        const double percent = qMin(100.0, 100.0 * m_jobElapsedMs / m_opt.jobMs);
        report += "|SD:" + QByteArray::number(percent, 'f', 2) + ",/" + m_jobFile.toUtf8();
    }
    return report + ">";
}

void FakeBoard::onCommand(const QString &text)
{
    m_commands << text;
    emit commandReceived(text);
    if (text == QLatin1String("?")) {
        sendLines({statusReport(m_jobRunning ? "Run" : "Idle")});
    } else if (text == QLatin1String("$$")) {
        QList<QByteArray> lines;
        for (auto it = m_settings.cbegin(); it != m_settings.cend(); ++it)
            lines << "$" + QByteArray::number(it.key()) + "=" + it.value().toUtf8();
        lines << "ok";
        sendLines(lines);
    } else if (text == QLatin1String("$i") || text == QLatin1String("$I")) {
        QList<QByteArray> lines{"[VER:1.1h.20240101:]", "[OPT:VZ,15,128]"};
        if (!m_opt.model.isEmpty())
            lines << "[MSG:Using machine:" + m_opt.model.toUtf8() + "]";
        lines << "[MSG:Mode=STA:SSID=Workshop:Status=Connected:IP=127.0.0.1:MAC=24-6F-28-00-00-01]"
              << "ok";
        sendLines(lines);
    } else if (text == QString(QChar(0x18))) {
        m_jobRunning = false;
        m_jobTimer->stop();
        if (m_runner)
            m_runner->halt();
        sendLines({"Grbl 1.1h ['$' for help]"});
    } else {
        static const QRegularExpression setting(QStringLiteral("^\\$(\\d+)=(\\S+)$"));
        const auto m = setting.match(text);
        if (m.hasMatch() && m_settings.contains(m.captured(1).toInt()))
            m_settings.insert(m.captured(1).toInt(), m.captured(2));
        sendLines({"ok"});
    }
}

QList<CardJobRunner::ExecutedMove> FakeBoard::executedMoves() const
{
    return m_runner ? m_earlierRuns + m_runner->executed() : m_earlierRuns;
}

void FakeBoard::powerCut()
{
    if (m_runner)
        m_runner->halt();
    m_jobRunning = false;
    m_jobTimer->stop();
    dropWebSockets();
}

void FakeBoard::jobTick()
{
    if (m_runner) {
        if (m_runner->advance(m_opt.reportIntervalMs, m_opt.alarmAtBlock)) {
            m_opt.alarmAtBlock = -1; // once
            m_runner->halt();
            m_jobRunning = false;
            m_jobTimer->stop();
            sendLines({"ALARM:1", statusReport("Alarm")});
            return;
        }
        if (m_runner->finished()) {
            m_jobRunning = false;
            m_jobTimer->stop();
            sendLines({statusReport("Idle")});
            return;
        }
        sendLines({statusReport("Run")});
        return;
    }
    m_jobElapsedMs += m_opt.reportIntervalMs;
    if (m_opt.alarmAfterMs >= 0 && m_jobElapsedMs >= m_opt.alarmAfterMs) {
        m_jobRunning = false;
        m_jobTimer->stop();
        sendLines({"ALARM:1", statusReport("Alarm")});
        return;
    }
    if (m_jobElapsedMs >= m_opt.jobMs) {
        m_jobRunning = false;
        m_jobTimer->stop();
        sendLines({statusReport("Idle")});
        return;
    }
    sendLines({statusReport("Run")});
}

void FakeBoard::sendFrame(const QByteArray &frame, bool binary)
{
    if (m_stalled)
        return;
    for (QWebSocket *ws : qAsConst(m_clients)) {
        if (binary)
            ws->sendBinaryMessage(frame);
        else
            ws->sendTextMessage(QString::fromUtf8(frame));
    }
}

void FakeBoard::sendLines(const QList<QByteArray> &lines)
{
    const int perFrame = qMax(1, m_opt.linesPerFrame);
    for (int i = 0; i < lines.size(); i += perFrame) {
        QByteArray frame;
        for (int j = i; j < qMin(lines.size(), i + perFrame); ++j)
            frame += lines.at(j) + "\r\n";
        if (m_opt.splitFrames) {
            const int mid = frame.size() / 2;
            sendFrame(frame.left(mid), !m_opt.textFrames);
            sendFrame(frame.mid(mid), !m_opt.textFrames);
        } else {
            sendFrame(frame, !m_opt.textFrames);
        }
    }
}

void FakeBoard::onWebSocketConnection()
{
    while (QWebSocket *ws = m_ws->nextPendingConnection()) {
        m_clients << ws;
        connect(ws, &QWebSocket::disconnected, this, [this, ws] {
            m_clients.removeAll(ws);
            ws->deleteLater();
        });
        if (m_opt.chatter) {
            ws->sendTextMessage(QStringLiteral("CURRENT_ID:0"));
            ws->sendTextMessage(QStringLiteral("ACTIVE_ID:0"));
            ws->sendTextMessage(QStringLiteral("PING:1"));
        }
        emit webSocketConnected();
    }
}
