#pragma once

#include <QByteArray>
#include <QHash>
#include <QJsonObject>
#include <QList>
#include <QMap>
#include <QObject>
#include <QPair>
#include <QSet>
#include <QString>
#include <QStringList>

class QTcpServer;
class QTcpSocket;

// The account and material-store service on 127.0.0.1 (port 0) for tests: a
// small HTTP/1.1 server (keep-alive, Content-Length bodies, URL-encoded forms
// and multipart forms) implementing the API as a real, stateful service:
// accounts with mailed codes, salted password hashes, tokens, materials with
// paging and filters, purchases against a balance, uploads stored and listed
// back, the update check and a large installer download that can drop the
// connection halfway.
//
// Every request is checked: method, path, query keys, form fields in order,
// and the client's headers ("App-Type", "lang", "Accept", "Connection",
// "Accept-Encoding", "Host", "User-Agent", "token") byte for byte. Whatever
// does not match is recorded in violations(); tests assert it stays empty.
// Lives on the thread that creates it (the test's GUI thread).
class CloudServer : public QObject
{
    Q_OBJECT

public:
    struct Mail
    {
        QString to;
        QString purpose; // "register", "login", "forgotten"
        QString code;
    };

    struct Material
    {
        int id = 0;
        QString title;
        QString price = QStringLiteral("0");
        QString type, fileType, materialType, modelType, powerType, tags;
        QString detail, position;
        QStringList images, detailImages;
        QString owner; // e-mail of the uploader; empty for the store's own
        bool listed = true;
        QString fileName;
        QByteArray fileBytes;
    };

    struct Request
    {
        QByteArray method;
        QByteArray target;
        QString path;
        QList<QPair<QString, QString>> query;
        QList<QPair<QByteArray, QByteArray>> headers;
        QByteArray body;
        QList<QPair<QString, QString>> fields;           // form or multipart text fields
        QMap<QString, QPair<QString, QByteArray>> files; // multipart name -> (filename, bytes)
        QByteArray header(const QByteArray &name) const;
        int headerCount(const QByteArray &name) const;
        QString field(const QString &name) const;
    };

    explicit CloudServer(QObject *parent = nullptr);
    ~CloudServer() override;

    bool start();
    quint16 port() const;
    QString baseUrl() const; // "http://127.0.0.1:<port>"

    // The "lang" header every request must carry ("en" unless set).
    void setExpectedLang(const QByteArray &lang) { m_lang = lang; }
    void setPageSize(int size) { m_pageSize = size; }

    // Store content and accounts.
    int addMaterial(Material material); // returns the id
    void addAccount(const QString &email, const QString &name, const QString &password,
                    double balance);
    double balance(const QString &email) const;
    // Keeps a file as if uploaded; returns its address (for material pictures).
    QString storeFile(const QString &name, const QByteArray &bytes);
    QStringList purchases(const QString &email) const; // material ids
    QString modes(const QString &email, const QString &name) const;

    // The update on offer: notes and an installer of `size` bytes served at
    // "/app/download/<fileName>"; `dropAfter` >= 0 closes the connection after
    // that many body bytes. No update while `fileName` is empty.
    void setUpdate(const QString &notes, const QString &fileName, qint64 size,
                   qint64 dropAfter = -1);
    static QByteArray installerBytes(qint64 size); // what the download serves

    // The mail the service sent, oldest first, and the latest code for a purpose.
    QList<Mail> outbox() const { return m_outbox; }
    QString lastCode(const QString &email, const QString &purpose) const;

    QStringList violations() const { return m_violations; }
    // The violations so far, forgetting them (for tests of the checks themselves).
    QStringList takeViolations()
    {
        QStringList v;
        v.swap(m_violations);
        return v;
    }
    QList<Request> requests() const { return m_requests; }
    QStringList issuedTokens() const { return m_tokens.keys(); }
    int connectionCount() const { return m_connections; }

private:
    struct Account
    {
        QString name;
        QByteArray salt;
        QByteArray hash;
        double balance = 0;
        QSet<int> bought;
        QMap<QString, QString> modes;
    };
    struct Reply
    {
        int status = 200;
        QByteArray body;
        QByteArray contentType = "application/json";
        QByteArray encoding;
    };

    void onNewConnection();
    void onReadyRead(QTcpSocket *socket);
    bool parseOne(QByteArray &buffer, Request *request, bool *bad);
    void handle(QTcpSocket *socket, Request &request);
    void checkHeaders(const Request &r, const QByteArray &encoding, bool tokenRequired,
                      bool tokenForbidden);
    bool checkForm(const Request &r, const QStringList &names);
    bool checkMultipart(const Request &r, const QStringList &names);
    bool checkQuery(const Request &r, const QStringList &keys);
    void violation(const Request &r, const QString &what);
    QString accountOf(const Request &r) const; // by token; empty when none
    static QByteArray hashPassword(const QByteArray &salt, const QString &password);
    QString mailCode(const QString &email, const QString &purpose);
    bool takeCode(const QString &email, const QString &purpose, const QString &code);
    QJsonObject materialJson(const Material &m, const QString &viewer) const;

    Reply route(Request &r);
    void sendReply(QTcpSocket *socket, const Reply &reply);
    void sendInstaller(QTcpSocket *socket);

    QTcpServer *m_server;
    QByteArray m_lang = "en";
    int m_pageSize = 6;
    int m_connections = 0;
    QHash<QTcpSocket *, QByteArray> m_buffers;
    QMap<QString, Account> m_accounts;
    QMap<QString, QString> m_tokens;       // token -> e-mail
    QMap<QString, QString> m_pendingCodes; // purpose + "\n" + e-mail -> code
    QList<Mail> m_outbox;
    QMap<int, Material> m_materials;
    int m_nextId = 1;
    QMap<QString, QPair<QString, QByteArray>> m_storage; // key -> (name, bytes)
    QString m_updateNotes, m_updateFile;
    qint64 m_updateSize = 0, m_updateDrop = -1;
    QStringList m_violations;
    QList<Request> m_requests;
};
