#include "hou_tai_jie_kou.h"

#include "cloud_address.h"

#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QHttpMultiPart>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTimer>

namespace lumitra {

namespace {

QHttpPart textPart(const QString &name, const QString &value)
{
    QHttpPart part;
    part.setHeader(QNetworkRequest::ContentDispositionHeader,
                   QStringLiteral("form-data; name=\"%1\"").arg(name));
    part.setBody(value.toUtf8());
    return part;
}

} // namespace

Hou_tai_jie_kou::Hou_tai_jie_kou(QObject *parent)
    : QObject(parent), m_manager(new QNetworkAccessManager(this)), m_base(cloud_base_url()),
      m_lang(current_cloud_language())
{
}

void Hou_tai_jie_kou::setNetworkManager(QNetworkAccessManager *manager)
{
    m_manager = manager;
}

void Hou_tai_jie_kou::setToken(const QByteArray &token)
{
    const bool was = loggedIn();
    m_token = token;
    if (token.isEmpty())
        m_account = QJsonObject();
    if (was != loggedIn())
        emit loggedInChanged(loggedIn());
}

bool Hou_tai_jie_kou::isAccountPath(const QString &path)
{
    return path == QLatin1String("/logout") || path == QLatin1String("/files")
           || path.startsWith(QLatin1String("/account/"));
}

QUrl Hou_tai_jie_kou::checkedUrl(const QString &pathAndQuery, const Done &done)
{
    const QUrl url = cloud_url(m_base, pathAndQuery);
    QString why;
    if (isAccountPath(url.path()) && !loggedIn())
        why = QStringLiteral("not logged in");
    else if (is_allowed_cloud_url(url, &why))
        return url;
    qWarning() << "cloud refused" << why;
    QTimer::singleShot(0, this, [done, why]() {
        if (done)
            done(cloud_failure(why));
    });
    return QUrl();
}

void Hou_tai_jie_kou::watch(QNetworkReply *reply, const QString &path, Done done)
{
    qDebug() << " out " << path;
    connect(reply, &QNetworkReply::finished, this, [reply, path, done]() {
        reply->deleteLater();
        const int http = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
        QByteArray body;
        CloudResult r;
        if (!decode_content(reply->rawHeader("Content-Encoding"), reply->readAll(), &body)) {
            r = cloud_failure(QStringLiteral("unreadable reply encoding"));
        } else {
            r = parse_cloud_reply(body, http);
            if (!r.reached && reply->error() != QNetworkReply::NoError)
                r.message = reply->errorString();
        }
        qDebug() << " in " << path << r.status << http;
        if (done)
            done(r);
    });
}

void Hou_tai_jie_kou::get(const QString &pathAndQuery, CloudCallKind kind, Done done)
{
    const QUrl url = checkedUrl(pathAndQuery, done);
    if (url.isEmpty())
        return;
    QNetworkReply *reply = m_manager->get(cloud_request(url, m_lang, m_token, kind));
    watch(reply, url.path(), std::move(done));
}

void Hou_tai_jie_kou::postForm(const QString &path, const CloudFields &fields, Done done)
{
    const QUrl url = checkedUrl(path, done);
    if (url.isEmpty())
        return;
    QNetworkRequest request = cloud_request(url, m_lang, m_token, CloudCallKind::Plain);
    request.setHeader(QNetworkRequest::ContentTypeHeader,
                      QByteArrayLiteral("application/x-www-form-urlencoded"));
    watch(m_manager->post(request, form_body(fields)), url.path(), std::move(done));
}

void Hou_tai_jie_kou::postEmpty(const QString &pathAndQuery, Done done)
{
    const QUrl url = checkedUrl(pathAndQuery, done);
    if (url.isEmpty())
        return;
    QNetworkRequest request = cloud_request(url, m_lang, m_token, CloudCallKind::Plain);
    request.setHeader(QNetworkRequest::ContentTypeHeader,
                      QByteArrayLiteral("application/x-www-form-urlencoded"));
    watch(m_manager->post(request, QByteArray()), url.path(), std::move(done));
}

void Hou_tai_jie_kou::postMultipart(const QString &path, QHttpMultiPart *parts, Done done)
{
    const QUrl url = checkedUrl(path, done);
    if (url.isEmpty()) {
        delete parts;
        return;
    }
    QNetworkReply *reply =
        m_manager->post(cloud_request(url, m_lang, m_token, CloudCallKind::Plain), parts);
    parts->setParent(reply);
    watch(reply, url.path(), std::move(done));
}

void Hou_tai_jie_kou::takeLogin(const CloudResult &r)
{
    if (!r.ok)
        return;
    const QByteArray token = r.object().value(QStringLiteral("token")).toString().toUtf8();
    if (token.isEmpty())
        return;
    m_account = r.object();
    m_account.remove(QStringLiteral("token"));
    setToken(token);
}

void Hou_tai_jie_kou::sendRegisterCode(const QString &email, Done done)
{
    postForm(QStringLiteral("/register/send_code"), {{QStringLiteral("email"), email}},
             std::move(done));
}

void Hou_tai_jie_kou::registerAccount(const QString &email, const QString &code,
                                      const QString &name, const QString &password,
                                      const QString &confirmation, Done done)
{
    postForm(QStringLiteral("/register"),
             {{QStringLiteral("email"), email},
              {QStringLiteral("code"), code},
              {QStringLiteral("name"), name},
              {QStringLiteral("password"), password},
              {QStringLiteral("password_confirmation"), confirmation}},
             std::move(done));
}

void Hou_tai_jie_kou::sendLoginCode(const QString &email, Done done)
{
    postForm(QStringLiteral("/login/send_code"), {{QStringLiteral("email"), email}},
             std::move(done));
}

void Hou_tai_jie_kou::loginWithCode(const QString &email, const QString &code, Done done)
{
    postForm(QStringLiteral("/login/code"),
             {{QStringLiteral("email"), email}, {QStringLiteral("code"), code}},
             [this, done](const CloudResult &r) {
                 takeLogin(r);
                 if (done)
                     done(r);
             });
}

void Hou_tai_jie_kou::login(const QString &email, const QString &password, Done done)
{
    postForm(QStringLiteral("/login"),
             {{QStringLiteral("email"), email}, {QStringLiteral("password"), password}},
             [this, done](const CloudResult &r) {
                 takeLogin(r);
                 if (done)
                     done(r);
             });
}

void Hou_tai_jie_kou::sendResetCode(const QString &email, Done done)
{
    postForm(QStringLiteral("/forgotten/send_code"), {{QStringLiteral("email"), email}},
             std::move(done));
}

void Hou_tai_jie_kou::resetPassword(const QString &email, const QString &code,
                                    const QString &password, const QString &confirmation, Done done)
{
    postForm(QStringLiteral("/forgotten/password"),
             {{QStringLiteral("email"), email},
              {QStringLiteral("code"), code},
              {QStringLiteral("password"), password},
              {QStringLiteral("password_confirmation"), confirmation}},
             std::move(done));
}

void Hou_tai_jie_kou::logout(Done done)
{
    get(QStringLiteral("/logout"), CloudCallKind::Plain, [this, done](const CloudResult &r) {
        // Logged out locally whatever the service says.
        setToken(QByteArray());
        if (done)
            done(r);
    });
}

void Hou_tai_jie_kou::recharge(const QString &money, Done done)
{
    get(QStringLiteral("/account/recharge?money=") + encode_value(money), CloudCallKind::Plain,
        std::move(done));
}

void Hou_tai_jie_kou::saveModes(const QString &modes, const QString &name, Done done)
{
    postForm(QStringLiteral("/account/editMode"),
             {{QStringLiteral("modes"), modes}, {QStringLiteral("name"), name}}, std::move(done));
}

QUrl Hou_tai_jie_kou::rechargeLink(const QString &email, const QString &password) const
{
    return cloud_url(m_base, QStringLiteral("/login/recharge?email=") + encode_value(email)
                                 + QStringLiteral("&password=") + encode_value(password));
}

QString Hou_tai_jie_kou::materialQueryString(const MaterialQuery &q)
{
    const QList<QPair<const char *, QString>> fields = {{"search", q.search},
                                                        {"search_type", q.searchType},
                                                        {"type", q.type},
                                                        {"file_type", q.fileType},
                                                        {"material_type", q.materialType},
                                                        {"model_type", q.modelType},
                                                        {"power_type", q.powerType},
                                                        {"tags", q.tags},
                                                        {"price", q.price},
                                                        {"page", QString::number(qMax(1, q.page))}};
    QString text;
    for (const auto &f : fields) {
        text += text.isEmpty() ? QLatin1Char('?') : QLatin1Char('&');
        text += QLatin1String(f.first) + QLatin1Char('=') + encode_value(f.second);
    }
    return text;
}

void Hou_tai_jie_kou::listMaterials(const MaterialQuery &query, Done done)
{
    get(QStringLiteral("/material") + materialQueryString(query), CloudCallKind::Plain,
        std::move(done));
}

void Hou_tai_jie_kou::materialInfo(const QString &id, Done done)
{
    get(QStringLiteral("/material/info?id=") + encode_value(id), CloudCallKind::Plain,
        std::move(done));
}

void Hou_tai_jie_kou::materialAttributes(Done done)
{
    get(QStringLiteral("/material/attr"), CloudCallKind::Plain, std::move(done));
}

void Hou_tai_jie_kou::buyMaterial(const QString &id, Done done)
{
    auto *parts = new QHttpMultiPart(QHttpMultiPart::FormDataType);
    parts->append(textPart(QStringLiteral("id"), id));
    postMultipart(QStringLiteral("/account/material/buy"), parts, std::move(done));
}

void Hou_tai_jie_kou::uploadFile(const QString &path, Done done)
{
    auto *file = new QFile(path);
    if (!file->open(QIODevice::ReadOnly)) {
        const QString why = QStringLiteral("cannot read %1: %2").arg(path, file->errorString());
        delete file;
        QTimer::singleShot(0, this, [done, why]() {
            if (done)
                done(cloud_failure(why));
        });
        return;
    }
    auto *parts = new QHttpMultiPart(QHttpMultiPart::FormDataType);
    parts->append(textPart(QStringLiteral("type"), QStringLiteral("material")));
    QHttpPart filePart;
    QString name = QFileInfo(path).fileName();
    name.remove(QLatin1Char('"'));
    filePart.setHeader(QNetworkRequest::ContentDispositionHeader,
                       QStringLiteral("form-data; name=\"file\"; filename=\"%1\"").arg(name));
    filePart.setHeader(QNetworkRequest::ContentTypeHeader,
                       QByteArrayLiteral("application/octet-stream"));
    filePart.setBodyDevice(file);
    file->setParent(parts);
    parts->append(filePart);
    postMultipart(QStringLiteral("/files"), parts, std::move(done));
}

void Hou_tai_jie_kou::uploadMaterial(const MaterialUpload &m, Done done)
{
    auto *parts = new QHttpMultiPart(QHttpMultiPart::FormDataType);
    const QList<QPair<QString, QString>> fields = {
        {QStringLiteral("title"), m.title},
        {QStringLiteral("price"), m.price},
        {QStringLiteral("images"), m.images.join(QLatin1Char(','))},
        {QStringLiteral("file"), m.file},
        {QStringLiteral("detail"), m.detail},
        {QStringLiteral("detail_images"), m.detailImages.join(QLatin1Char(','))},
        {QStringLiteral("file_type"), m.fileType},
        {QStringLiteral("type"), m.type},
        {QStringLiteral("material_type"), m.materialType},
        {QStringLiteral("model_type"), m.modelType},
        {QStringLiteral("power_type"), m.powerType},
        {QStringLiteral("tags"), m.tags},
        {QStringLiteral("position"), m.position}};
    for (const auto &f : fields)
        parts->append(textPart(f.first, f.second));
    postMultipart(QStringLiteral("/account/material"), parts, std::move(done));
}

void Hou_tai_jie_kou::materialsAction(const QStringList &ids, const QString &action, Done done)
{
    postEmpty(QStringLiteral("/account/material/multiple?ids=")
                  + encode_value(ids.join(QLatin1Char(','))) + QStringLiteral("&action=")
                  + encode_value(action),
              std::move(done));
}

void Hou_tai_jie_kou::checkUpdate(Done done)
{
    get(QStringLiteral("/app/check?type=0"), CloudCallKind::UpdateCheck, std::move(done));
}

} // namespace lumitra

namespace lumitra {

void Hou_tai_jie_kou::fetch(const QUrl &url, std::function<void(bool, const QByteArray &)> done)
{
    QString why;
    if (!is_allowed_cloud_url(url, &why)) {
        QTimer::singleShot(0, this, [done]() {
            if (done)
                done(false, QByteArray());
        });
        return;
    }
    QNetworkReply *reply =
        m_manager->get(cloud_request(url, m_lang, QByteArray(), CloudCallKind::Download));
    connect(reply, &QNetworkReply::finished, this, [reply, done]() {
        reply->deleteLater();
        const int http = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
        const bool ok = reply->error() == QNetworkReply::NoError && http >= 200 && http < 300;
        if (done)
            done(ok, ok ? reply->readAll() : QByteArray());
    });
}

} // namespace lumitra
