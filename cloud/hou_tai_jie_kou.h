#pragma once

#include "cloud_reply.h"
#include "cloud_request.h"

#include <QJsonObject>
#include <QObject>
#include <QStringList>
#include <QUrl>
#include <functional>

class QHttpMultiPart;
class QNetworkAccessManager;
class QNetworkReply;

namespace lumitra {

// The filters and page of one "/material" list request; empty values are sent
// empty. `page` counts from 1.
struct MaterialQuery
{
    QString search;
    QString searchType;
    QString type;
    QString fileType;
    QString materialType;
    QString modelType;
    QString powerType;
    QString tags;
    QString price;
    int page = 1;
};

// One material offered through "/account/material". `images`,
// `detailImages` and `file` are addresses returned by upload_file ("/files");
// lists travel as comma-separated text.
struct MaterialUpload
{
    QString title;
    QString price;
    QStringList images;
    QString file;
    QString detail;
    QStringList detailImages;
    QString fileType;
    QString type;
    QString materialType;
    QString modelType;
    QString powerType;
    QString tags;
    QString position;
};

// The backend interface of the account and material-store service. Every call
// is asynchronous on the thread that owns the object (the GUI thread): it
// returns at once and `done` runs later, exactly once, from the event loop —
// also when the call is refused before anything is sent (plain http to a host
// that is not this machine, a bad address, an account call while logged out). TLS errors are never
// ignored. The token and passwords never go to the log.
class Hou_tai_jie_kou : public QObject
{
    Q_OBJECT

public:
    using Done = std::function<void(const CloudResult &)>;

    // The base address is read from cloud_base_url() here.
    explicit Hou_tai_jie_kou(QObject *parent = nullptr);

    QUrl base() const { return m_base; }
    void setBase(const QUrl &base) { m_base = base; }
    // Replaces the network manager (the object takes no ownership of it).
    void setNetworkManager(QNetworkAccessManager *manager);
    QNetworkAccessManager *networkManager() const { return m_manager; }
    // The "lang" header; current_cloud_language() by default.
    void setLanguage(const QByteArray &lang) { m_lang = lang; }
    QByteArray language() const { return m_lang; }

    // The login token (empty while logged out) and the account data of the
    // last login ("name", "email", "balance", ...).
    QByteArray token() const { return m_token; }
    bool loggedIn() const { return !m_token.isEmpty(); }
    QJsonObject account() const { return m_account; }
    void setToken(const QByteArray &token);

    // Account.
    void sendRegisterCode(const QString &email, Done done);
    void registerAccount(const QString &email, const QString &code, const QString &name,
                         const QString &password, const QString &confirmation, Done done);
    void sendLoginCode(const QString &email, Done done);
    void loginWithCode(const QString &email, const QString &code, Done done);
    void login(const QString &email, const QString &password, Done done);
    void sendResetCode(const QString &email, Done done);
    void resetPassword(const QString &email, const QString &code, const QString &password,
                       const QString &confirmation, Done done);
    void logout(Done done);
    void recharge(const QString &money, Done done);
    void saveModes(const QString &modes, const QString &name, Done done);
    // The top-up page, opened in the system browser.
    QUrl rechargeLink(const QString &email, const QString &password) const;

    // Material store.
    void listMaterials(const MaterialQuery &query, Done done);
    void materialInfo(const QString &id, Done done);
    void materialAttributes(Done done);
    void buyMaterial(const QString &id, Done done);
    void uploadFile(const QString &path, Done done); // data["url"]: the stored address
    void uploadMaterial(const MaterialUpload &material, Done done);
    void materialsAction(const QStringList &ids, const QString &action, Done done);

    // The bytes at an address from a reply (a thumbnail, a picture), without
    // the token. `done(ok, bytes)` runs once from the event loop.
    void fetch(const QUrl &url, std::function<void(bool, const QByteArray &)> done);

    // The update check: "/app/check?type=0" without a token.
    void checkUpdate(Done done);

    // Calls that need the token: "/logout", "/files" and "/account/...". They
    // are refused locally, without a request, while logged out.
    static bool isAccountPath(const QString &path);

    // The query of a list request, in the service's order.
    static QString materialQueryString(const MaterialQuery &query);

signals:
    void loggedInChanged(bool loggedIn);

private:
    void get(const QString &pathAndQuery, CloudCallKind kind, Done done);
    void postForm(const QString &path, const CloudFields &fields, Done done);
    void postMultipart(const QString &path, QHttpMultiPart *parts, Done done);
    void postEmpty(const QString &pathAndQuery, Done done);
    // Checks the address; on refusal `done` is called from the event loop and
    // the returned url is empty.
    QUrl checkedUrl(const QString &pathAndQuery, const Done &done);
    void watch(QNetworkReply *reply, const QString &path, Done done);
    void takeLogin(const CloudResult &r);

    QNetworkAccessManager *m_manager = nullptr;
    QUrl m_base;
    QByteArray m_lang;
    QByteArray m_token;
    QJsonObject m_account;
};

} // namespace lumitra
