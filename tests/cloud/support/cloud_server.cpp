#include "cloud_server.h"

#include <QCryptographicHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTcpServer>
#include <QTcpSocket>
#include <QUrl>

namespace {

QString decodeComponent(QByteArray text)
{
    text.replace('+', ' ');
    return QUrl::fromPercentEncoding(text);
}

QList<QPair<QString, QString>> parsePairs(const QByteArray &text)
{
    QList<QPair<QString, QString>> pairs;
    if (text.isEmpty())
        return pairs;
    for (const QByteArray &item : text.split('&')) {
        const int eq = item.indexOf('=');
        if (eq < 0)
            pairs.append({decodeComponent(item), QString()});
        else
            pairs.append({decodeComponent(item.left(eq)), decodeComponent(item.mid(eq + 1))});
    }
    return pairs;
}

QString valueOf(const QList<QPair<QString, QString>> &pairs, const QString &name)
{
    for (const auto &p : pairs)
        if (p.first == name)
            return p.second;
    return QString();
}

QByteArray envelope(bool ok, const QJsonValue &data, const QString &message)
{
    QJsonObject o;
    o.insert(QStringLiteral("status"), ok ? QStringLiteral("success") : QStringLiteral("fail"));
    o.insert(QStringLiteral("data"), data);
    o.insert(QStringLiteral("message"), message);
    return QJsonDocument(o).toJson(QJsonDocument::Compact);
}

QString randomHex(int bytes)
{
    QByteArray raw(bytes, Qt::Uninitialized);
    for (char &c : raw)
        c = char(QRandomGenerator::global()->bounded(256));
    return QString::fromLatin1(raw.toHex());
}

QString textField(const QByteArray &headers, const char *key)
{
    const QRegularExpression re(QStringLiteral("%1=\"([^\"]*)\"").arg(QLatin1String(key)));
    const auto m = re.match(QString::fromUtf8(headers));
    return m.hasMatch() ? m.captured(1) : QString();
}

} // namespace

QByteArray CloudServer::Request::header(const QByteArray &name) const
{
    for (const auto &h : headers)
        if (h.first.compare(name, Qt::CaseInsensitive) == 0)
            return h.second;
    return QByteArray();
}

int CloudServer::Request::headerCount(const QByteArray &name) const
{
    int n = 0;
    for (const auto &h : headers)
        if (h.first.compare(name, Qt::CaseInsensitive) == 0)
            ++n;
    return n;
}

QString CloudServer::Request::field(const QString &name) const
{
    return valueOf(fields, name);
}

CloudServer::CloudServer(QObject *parent) : QObject(parent), m_server(new QTcpServer(this))
{
    connect(m_server, &QTcpServer::newConnection, this, &CloudServer::onNewConnection);
}

CloudServer::~CloudServer() = default;

bool CloudServer::start()
{
    return m_server->listen(QHostAddress::LocalHost, 0);
}

quint16 CloudServer::port() const
{
    return m_server->serverPort();
}

QString CloudServer::baseUrl() const
{
    return QStringLiteral("http://127.0.0.1:%1").arg(port());
}

int CloudServer::addMaterial(Material material)
{
    material.id = m_nextId++;
    m_materials.insert(material.id, material);
    return material.id;
}

QByteArray CloudServer::hashPassword(const QByteArray &salt, const QString &password)
{
    return QCryptographicHash::hash(salt + password.toUtf8(), QCryptographicHash::Sha256);
}

void CloudServer::addAccount(const QString &email, const QString &name, const QString &password,
                             double balance)
{
    Account a;
    a.name = name;
    a.salt = randomHex(16).toLatin1();
    a.hash = hashPassword(a.salt, password);
    a.balance = balance;
    m_accounts.insert(email, a);
}

QString CloudServer::storeFile(const QString &name, const QByteArray &bytes)
{
    const QString key = randomHex(12);
    m_storage.insert(key, {name, bytes});
    return baseUrl() + QStringLiteral("/storage/%1/%2").arg(key, name);
}

double CloudServer::balance(const QString &email) const
{
    return m_accounts.value(email).balance;
}

QStringList CloudServer::purchases(const QString &email) const
{
    QStringList ids;
    for (int id : m_accounts.value(email).bought)
        ids << QString::number(id);
    ids.sort();
    return ids;
}

QString CloudServer::modes(const QString &email, const QString &name) const
{
    return m_accounts.value(email).modes.value(name);
}

void CloudServer::setUpdate(const QString &notes, const QString &fileName, qint64 size,
                            qint64 dropAfter)
{
    m_updateNotes = notes;
    m_updateFile = fileName;
    m_updateSize = size;
    m_updateDrop = dropAfter;
}

QByteArray CloudServer::installerBytes(qint64 size)
{
    QByteArray bytes(int(size), Qt::Uninitialized);
    for (int i = 0; i < bytes.size(); ++i)
        bytes[i] = char((i * 7 + i / 4096) % 251);
    return bytes;
}

QString CloudServer::lastCode(const QString &email, const QString &purpose) const
{
    for (int i = m_outbox.size() - 1; i >= 0; --i)
        if (m_outbox[i].to == email && m_outbox[i].purpose == purpose)
            return m_outbox[i].code;
    return QString();
}

QString CloudServer::mailCode(const QString &email, const QString &purpose)
{
    const QString code = QStringLiteral("%1").arg(QRandomGenerator::global()->bounded(1000000), 6,
                                                  10, QLatin1Char('0'));
    m_pendingCodes.insert(purpose + QLatin1Char('\n') + email, code);
    m_outbox.append({email, purpose, code});
    return code;
}

bool CloudServer::takeCode(const QString &email, const QString &purpose, const QString &code)
{
    const QString key = purpose + QLatin1Char('\n') + email;
    if (code.isEmpty() || m_pendingCodes.value(key) != code)
        return false;
    m_pendingCodes.remove(key);
    return true;
}

void CloudServer::onNewConnection()
{
    while (QTcpSocket *socket = m_server->nextPendingConnection()) {
        ++m_connections;
        connect(socket, &QTcpSocket::readyRead, this, [this, socket]() { onReadyRead(socket); });
        connect(socket, &QTcpSocket::disconnected, this, [this, socket]() {
            m_buffers.remove(socket);
            socket->deleteLater();
        });
    }
}

bool CloudServer::parseOne(QByteArray &buffer, Request *r, bool *bad)
{
    *bad = false;
    const int end = buffer.indexOf("\r\n\r\n");
    if (end < 0)
        return false;
    const QList<QByteArray> lines = buffer.left(end).split('\n');
    QList<QPair<QByteArray, QByteArray>> headers;
    for (int i = 1; i < lines.size(); ++i) {
        QByteArray line = lines[i];
        if (line.endsWith('\r'))
            line.chop(1);
        const int colon = line.indexOf(':');
        if (colon <= 0) {
            *bad = true;
            return true;
        }
        headers.append({line.left(colon), line.mid(colon + 1).trimmed()});
    }
    qint64 length = 0;
    for (const auto &h : headers)
        if (h.first.compare("Content-Length", Qt::CaseInsensitive) == 0)
            length = h.second.toLongLong();
        else if (h.first.compare("Transfer-Encoding", Qt::CaseInsensitive) == 0)
            *bad = true;
    if (*bad)
        return true;
    if (buffer.size() < end + 4 + length)
        return false;
    QByteArray requestLine = lines.first();
    if (requestLine.endsWith('\r'))
        requestLine.chop(1);
    const QList<QByteArray> parts = requestLine.split(' ');
    if (parts.size() != 3 || parts[2] != "HTTP/1.1") {
        *bad = true;
        return true;
    }
    r->method = parts[0];
    r->target = parts[1];
    const int q = r->target.indexOf('?');
    r->path = QUrl::fromPercentEncoding(q < 0 ? r->target : r->target.left(q));
    r->query = q < 0 ? QList<QPair<QString, QString>>() : parsePairs(r->target.mid(q + 1));
    r->headers = headers;
    r->body = buffer.mid(end + 4, int(length));
    buffer.remove(0, end + 4 + int(length));

    const QByteArray type = r->header("Content-Type");
    if (type == "application/x-www-form-urlencoded") {
        r->fields = parsePairs(r->body);
    } else if (type.startsWith("multipart/form-data;")) {
        const int b = type.indexOf("boundary=");
        QByteArray boundary = b < 0 ? QByteArray() : type.mid(b + 9).trimmed();
        if (boundary.startsWith('"') && boundary.endsWith('"'))
            boundary = boundary.mid(1, boundary.size() - 2);
        const QByteArray delimiter = "--" + boundary;
        int pos = r->body.indexOf(delimiter);
        while (!boundary.isEmpty() && pos >= 0) {
            pos += delimiter.size();
            if (r->body.mid(pos, 2) == "--")
                break;
            pos += 2; // CRLF
            const int next = r->body.indexOf("\r\n" + delimiter, pos);
            if (next < 0) {
                *bad = true;
                break;
            }
            const QByteArray part = r->body.mid(pos, next - pos);
            const int split = part.indexOf("\r\n\r\n");
            const QByteArray head = part.left(split);
            const QByteArray content = part.mid(split + 4);
            const QString name = textField(head, "name");
            if (head.contains("filename="))
                r->files.insert(name, {textField(head, "filename"), content});
            else
                r->fields.append({name, QString::fromUtf8(content)});
            pos = next + 2;
        }
    }
    return true;
}

void CloudServer::onReadyRead(QTcpSocket *socket)
{
    QByteArray &buffer = m_buffers[socket];
    buffer += socket->readAll();
    for (;;) {
        Request r;
        bool bad = false;
        if (!parseOne(buffer, &r, &bad))
            return;
        if (bad) {
            m_violations << QStringLiteral("malformed request");
            socket->write("HTTP/1.1 400 Bad Request\r\nContent-Length: 0\r\n\r\n");
            socket->disconnectFromHost();
            return;
        }
        handle(socket, r);
        if (socket->state() != QAbstractSocket::ConnectedState)
            return;
    }
}

void CloudServer::violation(const Request &r, const QString &what)
{
    m_violations << QStringLiteral("%1 %2: %3").arg(QString::fromLatin1(r.method), r.path, what);
}

void CloudServer::checkHeaders(const Request &r, const QByteArray &encoding, bool tokenRequired,
                               bool tokenForbidden)
{
    const QList<QPair<QByteArray, QByteArray>> expected = {
        {"App-Type", "app"},
        {"lang", m_lang},
        {"Accept", "*/*"},
        {"Connection", "keep-alive"},
        {"Accept-Encoding", encoding},
        {"Host", "127.0.0.1:" + QByteArray::number(port())}};
    for (const auto &e : expected) {
        if (r.headerCount(e.first) != 1)
            violation(r, QStringLiteral("header %1 sent %2 times")
                             .arg(QString::fromLatin1(e.first))
                             .arg(r.headerCount(e.first)));
        else if (r.header(e.first) != e.second)
            violation(
                r, QStringLiteral("header %1 is \"%2\"")
                       .arg(QString::fromLatin1(e.first), QString::fromLatin1(r.header(e.first))));
    }
    static const QRegularExpression agent(QStringLiteral("^Lumitra/1\\.2\\.0 \\([^()]+\\)$"));
    if (r.headerCount("User-Agent") != 1
        || !agent.match(QString::fromUtf8(r.header("User-Agent"))).hasMatch())
        violation(
            r, QStringLiteral("User-Agent \"%1\"").arg(QString::fromUtf8(r.header("User-Agent"))));
    const int tokens = r.headerCount("token");
    if (tokenForbidden && tokens)
        violation(r, QStringLiteral("token sent"));
    if (tokenRequired && (tokens != 1 || !m_tokens.contains(QString::fromUtf8(r.header("token")))))
        violation(r, QStringLiteral("no valid token"));
    // Anything else the client sends is transport only.
    static const QSet<QByteArray> transport = {"content-length", "content-type", "accept-language",
                                               "mime-version"};
    QSet<QByteArray> known = {"app-type",        "lang", "accept",     "connection",
                              "accept-encoding", "host", "user-agent", "token"};
    for (const auto &h : r.headers)
        if (!known.contains(h.first.toLower()) && !transport.contains(h.first.toLower()))
            violation(r, QStringLiteral("unexpected header %1").arg(QString::fromLatin1(h.first)));
    // The names are checked byte for byte, not only case-insensitively.
    for (const auto &e : expected)
        for (const auto &h : r.headers)
            if (h.first.compare(e.first, Qt::CaseInsensitive) == 0 && h.first != e.first)
                violation(r, QStringLiteral("header name %1").arg(QString::fromLatin1(h.first)));
}

bool CloudServer::checkForm(const Request &r, const QStringList &names)
{
    if (r.method != "POST")
        violation(r, QStringLiteral("method"));
    if (r.header("Content-Type") != "application/x-www-form-urlencoded")
        violation(r, QStringLiteral("content type \"%1\"")
                         .arg(QString::fromLatin1(r.header("Content-Type"))));
    QStringList got;
    for (const auto &f : r.fields)
        got << f.first;
    if (got != names) {
        violation(r, QStringLiteral("fields %1").arg(got.join(QLatin1Char(','))));
        return false;
    }
    return true;
}

bool CloudServer::checkMultipart(const Request &r, const QStringList &names)
{
    if (r.method != "POST")
        violation(r, QStringLiteral("method"));
    if (!r.header("Content-Type").startsWith("multipart/form-data; boundary="))
        violation(r, QStringLiteral("content type \"%1\"")
                         .arg(QString::fromLatin1(r.header("Content-Type"))));
    QStringList got;
    for (const auto &f : r.fields)
        got << f.first;
    got << r.files.keys();
    if (got != names) {
        violation(r, QStringLiteral("parts %1").arg(got.join(QLatin1Char(','))));
        return false;
    }
    return true;
}

bool CloudServer::checkQuery(const Request &r, const QStringList &keys)
{
    QStringList got;
    for (const auto &q : r.query)
        got << q.first;
    if (got != keys) {
        violation(r, QStringLiteral("query %1").arg(got.join(QLatin1Char(','))));
        return false;
    }
    return true;
}

QString CloudServer::accountOf(const Request &r) const
{
    return m_tokens.value(QString::fromUtf8(r.header("token")));
}

QJsonObject CloudServer::materialJson(const Material &m, const QString &viewer) const
{
    QJsonObject o;
    o.insert(QStringLiteral("id"), m.id);
    o.insert(QStringLiteral("title"), m.title);
    o.insert(QStringLiteral("price"), m.price);
    o.insert(QStringLiteral("type"), m.type);
    o.insert(QStringLiteral("file_type"), m.fileType);
    o.insert(QStringLiteral("material_type"), m.materialType);
    o.insert(QStringLiteral("model_type"), m.modelType);
    o.insert(QStringLiteral("power_type"), m.powerType);
    o.insert(QStringLiteral("tags"), m.tags);
    o.insert(QStringLiteral("cover"), m.images.value(0));
    const bool owned =
        !viewer.isEmpty() && (m.owner == viewer || m_accounts.value(viewer).bought.contains(m.id));
    o.insert(QStringLiteral("bought"), owned);
    return o;
}

void CloudServer::handle(QTcpSocket *socket, Request &r)
{
    m_requests.append(r);
    if (r.path.startsWith(QLatin1String("/app/download/"))) {
        checkHeaders(r, "identity", false, true);
        if (r.method != "GET" || r.path.mid(14) != m_updateFile || m_updateFile.isEmpty()) {
            sendReply(socket, {404, envelope(false, QJsonValue(), QStringLiteral("not found"))});
            return;
        }
        sendInstaller(socket);
        return;
    }
    sendReply(socket, route(r));
}

CloudServer::Reply CloudServer::route(Request &r)
{
    auto ok = [](const QJsonValue &data = QJsonObject(), const QString &message = QString()) {
        return Reply{200, envelope(true, data, message)};
    };
    auto fail = [](const QString &message) {
        return Reply{200, envelope(false, QJsonValue(), message)};
    };
    const QString p = r.path;
    const bool account = p == QLatin1String("/logout") || p == QLatin1String("/files")
                         || p.startsWith(QLatin1String("/account/"));
    if (p.startsWith(QLatin1String("/storage/"))) {
        checkHeaders(r, "identity", false, true);
        const QString key = p.section(QLatin1Char('/'), 2, 2);
        if (r.method != "GET" || !m_storage.contains(key))
            return Reply{404, "not found", "text/plain"};
        return Reply{200, m_storage.value(key).second, "application/octet-stream"};
    }
    if (p == QLatin1String("/app/check")) {
        checkHeaders(r, "gzip, deflate", false, true);
        if (r.method != "GET")
            violation(r, QStringLiteral("method"));
        checkQuery(r, {QStringLiteral("type")});
        if (valueOf(r.query, QStringLiteral("type")) != QLatin1String("0"))
            violation(r, QStringLiteral("type is not 0"));
        if (m_updateFile.isEmpty())
            return fail(QStringLiteral("already the latest version"));
        QJsonObject d;
        d.insert(QStringLiteral("up_content"), m_updateNotes);
        d.insert(QStringLiteral("file_url"),
                 baseUrl() + QStringLiteral("/app/download/") + m_updateFile);
        return ok(d);
    }
    checkHeaders(r, "gzip, deflate, br", account, false);
    const QString me = accountOf(r);
    if (account && me.isEmpty())
        return fail(QStringLiteral("please log in"));

    if (p == QLatin1String("/register/send_code") || p == QLatin1String("/login/send_code")
        || p == QLatin1String("/forgotten/send_code")) {
        if (!checkForm(r, {QStringLiteral("email")}))
            return fail(QStringLiteral("bad request"));
        const QString email = r.field(QStringLiteral("email"));
        const QString purpose = p.section(QLatin1Char('/'), 1, 1);
        if (!email.contains(QLatin1Char('@')))
            return fail(QStringLiteral("invalid e-mail"));
        if (purpose == QLatin1String("register") && m_accounts.contains(email))
            return fail(QStringLiteral("this e-mail is already registered"));
        if (purpose != QLatin1String("register") && !m_accounts.contains(email))
            return fail(QStringLiteral("no account with this e-mail"));
        mailCode(email, purpose);
        return ok();
    }
    if (p == QLatin1String("/register")) {
        if (!checkForm(r, {"email", "code", "name", "password", "password_confirmation"}))
            return fail(QStringLiteral("bad request"));
        const QString email = r.field(QStringLiteral("email"));
        const QString password = r.field(QStringLiteral("password"));
        if (m_accounts.contains(email))
            return fail(QStringLiteral("this e-mail is already registered"));
        if (password.size() < 6)
            return fail(QStringLiteral("the password needs at least 6 characters"));
        if (password != r.field(QStringLiteral("password_confirmation")))
            return fail(QStringLiteral("the passwords differ"));
        if (!takeCode(email, QStringLiteral("register"), r.field(QStringLiteral("code"))))
            return fail(QStringLiteral("wrong code"));
        addAccount(email, r.field(QStringLiteral("name")), password, 0);
        return ok();
    }
    auto issueToken = [this, &ok](const QString &email) {
        const QString token = randomHex(20);
        m_tokens.insert(token, email);
        const Account &a = m_accounts[email];
        QJsonObject d;
        d.insert(QStringLiteral("token"), token);
        d.insert(QStringLiteral("name"), a.name);
        d.insert(QStringLiteral("email"), email);
        d.insert(QStringLiteral("balance"), a.balance);
        return ok(d);
    };
    if (p == QLatin1String("/login")) {
        if (!checkForm(r, {QStringLiteral("email"), QStringLiteral("password")}))
            return fail(QStringLiteral("bad request"));
        const QString email = r.field(QStringLiteral("email"));
        const auto it = m_accounts.constFind(email);
        if (it == m_accounts.constEnd()
            || hashPassword(it->salt, r.field(QStringLiteral("password"))) != it->hash)
            return fail(QStringLiteral("wrong e-mail or password"));
        return issueToken(email);
    }
    if (p == QLatin1String("/login/code")) {
        if (!checkForm(r, {QStringLiteral("email"), QStringLiteral("code")}))
            return fail(QStringLiteral("bad request"));
        const QString email = r.field(QStringLiteral("email"));
        if (!m_accounts.contains(email)
            || !takeCode(email, QStringLiteral("login"), r.field(QStringLiteral("code"))))
            return fail(QStringLiteral("wrong code"));
        return issueToken(email);
    }
    if (p == QLatin1String("/forgotten/password")) {
        if (!checkForm(r, {"email", "code", "password", "password_confirmation"}))
            return fail(QStringLiteral("bad request"));
        const QString email = r.field(QStringLiteral("email"));
        const QString password = r.field(QStringLiteral("password"));
        if (!m_accounts.contains(email))
            return fail(QStringLiteral("no account with this e-mail"));
        if (password.size() < 6 || password != r.field(QStringLiteral("password_confirmation")))
            return fail(QStringLiteral("the passwords differ or are too short"));
        if (!takeCode(email, QStringLiteral("forgotten"), r.field(QStringLiteral("code"))))
            return fail(QStringLiteral("wrong code"));
        Account &a = m_accounts[email];
        a.salt = randomHex(16).toLatin1();
        a.hash = hashPassword(a.salt, password);
        return ok();
    }
    if (p == QLatin1String("/logout")) {
        if (r.method != "GET")
            violation(r, QStringLiteral("method"));
        m_tokens.remove(QString::fromUtf8(r.header("token")));
        return ok();
    }
    if (p == QLatin1String("/material")) {
        if (r.method != "GET")
            violation(r, QStringLiteral("method"));
        const QStringList keys = {"search",     "search_type", "type", "file_type", "material_type",
                                  "model_type", "power_type",  "tags", "price",     "page"};
        checkQuery(r, keys);
        auto q = [&r](const char *k) { return valueOf(r.query, QString::fromLatin1(k)); };
        const QString viewer = m_tokens.value(QString::fromUtf8(r.header("token")));
        QJsonArray all;
        for (const Material &m : qAsConst(m_materials)) {
            if (!m.listed)
                continue;
            if (!q("search").isEmpty() && !m.title.contains(q("search"), Qt::CaseInsensitive))
                continue;
            if ((!q("type").isEmpty() && m.type != q("type"))
                || (!q("file_type").isEmpty() && m.fileType != q("file_type"))
                || (!q("material_type").isEmpty() && m.materialType != q("material_type"))
                || (!q("model_type").isEmpty() && m.modelType != q("model_type"))
                || (!q("power_type").isEmpty() && m.powerType != q("power_type"))
                || (!q("tags").isEmpty() && !m.tags.split(QLatin1Char(',')).contains(q("tags"))))
                continue;
            const bool free = m.price.toDouble() == 0.0;
            if ((q("price") == QLatin1String("free") && !free)
                || (q("price") == QLatin1String("paid") && free))
                continue;
            all.append(materialJson(m, viewer));
        }
        const int page = qMax(1, q("page").toInt());
        const int last = qMax(1, (all.size() + m_pageSize - 1) / m_pageSize);
        QJsonArray list;
        for (int i = (page - 1) * m_pageSize; i < qMin(all.size(), page * m_pageSize); ++i)
            list.append(all[i]);
        QJsonObject d;
        d.insert(QStringLiteral("list"), list);
        d.insert(QStringLiteral("total"), all.size());
        d.insert(QStringLiteral("page"), page);
        d.insert(QStringLiteral("per_page"), m_pageSize);
        d.insert(QStringLiteral("last_page"), last);
        return ok(d);
    }
    if (p == QLatin1String("/material/info")) {
        if (r.method != "GET")
            violation(r, QStringLiteral("method"));
        checkQuery(r, {QStringLiteral("id")});
        const int id = valueOf(r.query, QStringLiteral("id")).toInt();
        if (!m_materials.contains(id) || !m_materials[id].listed)
            return ok(QJsonObject()); // nothing to show
        const Material &m = m_materials[id];
        QJsonObject d = materialJson(m, me);
        d.insert(QStringLiteral("detail"), m.detail);
        d.insert(QStringLiteral("images"), QJsonArray::fromStringList(m.images));
        d.insert(QStringLiteral("detail_images"), QJsonArray::fromStringList(m.detailImages));
        d.insert(QStringLiteral("file_name"), m.fileName);
        if (d.value(QStringLiteral("bought")).toBool()) {
            // A private address for the buyer.
            const QString key = randomHex(12);
            m_storage.insert(key, {m.fileName, m.fileBytes});
            d.insert(QStringLiteral("file_url"),
                     baseUrl() + QStringLiteral("/storage/%1/%2").arg(key, m.fileName));
        }
        return ok(d);
    }
    if (p == QLatin1String("/material/attr")) {
        if (r.method != "GET")
            violation(r, QStringLiteral("method"));
        auto options = [](const QStringList &names) {
            QJsonArray a;
            for (const QString &n : names) {
                QJsonObject o;
                o.insert(QStringLiteral("id"), n);
                o.insert(QStringLiteral("name"), n);
                a.append(o);
            }
            return a;
        };
        QJsonObject d;
        d.insert(QStringLiteral("type"), options({"sign", "gift", "toy"}));
        d.insert(QStringLiteral("file_type"), options({"lumitra", "svg", "dxf"}));
        d.insert(QStringLiteral("material_type"), options({"wood", "leather", "acrylic"}));
        d.insert(QStringLiteral("model_type"), options({"Q7", "Q5"}));
        d.insert(QStringLiteral("power_type"), options({"5W", "10W", "20W"}));
        d.insert(QStringLiteral("tags"), options({"animal", "letter", "flower"}));
        d.insert(QStringLiteral("price"), options({"free", "paid"}));
        Reply reply = ok(d);
        // Compressed, as the client allows.
        reply.body = qCompress(reply.body).mid(4);
        reply.encoding = "deflate";
        return reply;
    }
    if (p == QLatin1String("/account/material/buy")) {
        if (!checkMultipart(r, {QStringLiteral("id")}))
            return fail(QStringLiteral("bad request"));
        const int id = r.field(QStringLiteral("id")).toInt();
        if (!m_materials.contains(id) || !m_materials[id].listed)
            return fail(QStringLiteral("no such material"));
        Account &a = m_accounts[me];
        const Material &m = m_materials[id];
        if (!a.bought.contains(id) && m.owner != me) {
            const double price = m.price.toDouble();
            if (a.balance < price)
                return fail(QStringLiteral("balance too low"));
            a.balance -= price;
            a.bought.insert(id);
        }
        QJsonObject d;
        d.insert(QStringLiteral("balance"), a.balance);
        return ok(d);
    }
    if (p == QLatin1String("/files")) {
        if (!checkMultipart(r, {QStringLiteral("type"), QStringLiteral("file")})
            || r.field(QStringLiteral("type")) != QLatin1String("material")
            || r.files.value(QStringLiteral("file")).first.isEmpty())
            return fail(QStringLiteral("bad request"));
        const auto file = r.files.value(QStringLiteral("file"));
        const QString key = randomHex(12);
        m_storage.insert(key, file);
        QJsonObject d;
        d.insert(QStringLiteral("url"),
                 baseUrl() + QStringLiteral("/storage/%1/%2").arg(key, file.first));
        return ok(d);
    }
    if (p == QLatin1String("/account/material")) {
        const QStringList names = {"title",         "price",         "images",     "file",
                                   "detail",        "detail_images", "file_type",  "type",
                                   "material_type", "model_type",    "power_type", "tags",
                                   "position"};
        if (!checkMultipart(r, names))
            return fail(QStringLiteral("bad request"));
        Material m;
        m.title = r.field(QStringLiteral("title"));
        m.price = r.field(QStringLiteral("price"));
        m.images = r.field(QStringLiteral("images")).split(QLatin1Char(','), Qt::SkipEmptyParts);
        m.detail = r.field(QStringLiteral("detail"));
        m.detailImages =
            r.field(QStringLiteral("detail_images")).split(QLatin1Char(','), Qt::SkipEmptyParts);
        m.fileType = r.field(QStringLiteral("file_type"));
        m.type = r.field(QStringLiteral("type"));
        m.materialType = r.field(QStringLiteral("material_type"));
        m.modelType = r.field(QStringLiteral("model_type"));
        m.powerType = r.field(QStringLiteral("power_type"));
        m.tags = r.field(QStringLiteral("tags"));
        m.position = r.field(QStringLiteral("position"));
        m.owner = me;
        m.listed = false;
        const QString prefix = baseUrl() + QStringLiteral("/storage/");
        const QString fileUrl = r.field(QStringLiteral("file"));
        const QString key = fileUrl.mid(prefix.size()).section(QLatin1Char('/'), 0, 0);
        if (m.title.isEmpty() || !fileUrl.startsWith(prefix) || !m_storage.contains(key))
            return fail(QStringLiteral("title and file are needed"));
        m.fileName = m_storage.value(key).first;
        m.fileBytes = m_storage.value(key).second;
        for (const QString &image : m.images + m.detailImages)
            if (!image.startsWith(prefix)
                || !m_storage.contains(image.mid(prefix.size()).section(QLatin1Char('/'), 0, 0)))
                return fail(QStringLiteral("unknown image"));
        const int id = addMaterial(m);
        QJsonObject d;
        d.insert(QStringLiteral("id"), id);
        return ok(d);
    }
    if (p == QLatin1String("/account/material/multiple")) {
        if (r.method != "POST")
            violation(r, QStringLiteral("method"));
        checkQuery(r, {QStringLiteral("ids"), QStringLiteral("action")});
        if (valueOf(r.query, QStringLiteral("action")) != QLatin1String("up"))
            return fail(QStringLiteral("unknown action"));
        int changed = 0;
        for (const QString &id :
             valueOf(r.query, QStringLiteral("ids")).split(QLatin1Char(','), Qt::SkipEmptyParts)) {
            auto it = m_materials.find(id.toInt());
            if (it != m_materials.end() && it->owner == me) {
                it->listed = true;
                ++changed;
            }
        }
        QJsonObject d;
        d.insert(QStringLiteral("changed"), changed);
        return ok(d);
    }
    if (p == QLatin1String("/account/recharge")) {
        if (r.method != "GET")
            violation(r, QStringLiteral("method"));
        checkQuery(r, {QStringLiteral("money")});
        bool number = false;
        const double money = valueOf(r.query, QStringLiteral("money")).toDouble(&number);
        if (!number || money <= 0)
            return fail(QStringLiteral("invalid amount"));
        m_accounts[me].balance += money;
        QJsonObject d;
        d.insert(QStringLiteral("balance"), m_accounts[me].balance);
        return ok(d);
    }
    if (p == QLatin1String("/account/editMode")) {
        if (!checkForm(r, {QStringLiteral("modes"), QStringLiteral("name")}))
            return fail(QStringLiteral("bad request"));
        m_accounts[me].modes.insert(r.field(QStringLiteral("name")),
                                    r.field(QStringLiteral("modes")));
        return ok();
    }
    violation(r, QStringLiteral("unknown path"));
    return Reply{404, envelope(false, QJsonValue(), QStringLiteral("not found"))};
}

void CloudServer::sendReply(QTcpSocket *socket, const Reply &reply)
{
    QByteArray head = "HTTP/1.1 " + QByteArray::number(reply.status)
                      + (reply.status == 200 ? " OK" : " Not Found")
                      + "\r\nContent-Type: " + reply.contentType
                      + "\r\nContent-Length: " + QByteArray::number(reply.body.size()) + "\r\n";
    if (!reply.encoding.isEmpty())
        head += "Content-Encoding: " + reply.encoding + "\r\n";
    head += "Connection: keep-alive\r\n\r\n";
    socket->write(head + reply.body);
}

void CloudServer::sendInstaller(QTcpSocket *socket)
{
    const QByteArray bytes = installerBytes(m_updateSize);
    socket->write("HTTP/1.1 200 OK\r\nContent-Type: application/octet-stream\r\nContent-Length: "
                  + QByteArray::number(bytes.size()) + "\r\nConnection: keep-alive\r\n\r\n");
    if (m_updateDrop >= 0 && m_updateDrop < bytes.size()) {
        socket->write(bytes.left(int(m_updateDrop)));
        socket->disconnectFromHost(); // after the bytes written so far
        return;
    }
    socket->write(bytes);
}
