#include "credential_store.h"

#include "settings_store.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDebug>
#include <QFileInfo>
#include <QPointer>
#include <QTimer>
#include <memory>
#include <qt5keychain/keychain.h>

namespace lumitra {

namespace {

const QString kService = QStringLiteral("Lumitra cloud");

bool sessionBusConfigured()
{
    if (!qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS"))
        return true;
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return !runtime.isEmpty() && QFileInfo::exists(runtime + QStringLiteral("/bus"));
}

} // namespace

CredentialStore::CredentialStore(QObject *parent) : QObject(parent) {}

bool CredentialStore::keyringReachable()
{
    // Without a configured bus, asking for one could try to launch it.
    if (!sessionBusConfigured())
        return false;
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected() || !bus.interface())
        return false;
    QDBusConnectionInterface *iface = bus.interface();
    for (const char *name : {"org.freedesktop.secrets", "org.kde.kwalletd5", "org.kde.kwalletd6"})
        if (iface->isServiceRegistered(QString::fromLatin1(name)).value())
            return true;
    return false;
}

QString CredentialStore::rememberedEmail() const
{
    return get_setting(QStringLiteral("youxiang"));
}

void CredentialStore::remember(const QString &email, const QString &password)
{
    set_setting(QStringLiteral("youxiang"), email);
    set_setting(QStringLiteral("youxiangmima"), QString());
    if (password.isEmpty()) {
        forgetPassword(email);
        return;
    }
    if (email.isEmpty() || !keyringReachable())
        return;
    auto *job = new QKeychain::WritePasswordJob(kService);
    job->setAutoDelete(true);
    job->setInsecureFallback(false);
    job->setKey(email);
    job->setTextData(password);
    connect(job, &QKeychain::Job::finished, [](QKeychain::Job *j) {
        if (j->error() != QKeychain::NoError)
            qDebug() << "keyring write failed";
    });
    job->start();
}

void CredentialStore::forgetPassword(const QString &email)
{
    if (email.isEmpty() || !keyringReachable())
        return;
    auto *job = new QKeychain::DeletePasswordJob(kService);
    job->setAutoDelete(true);
    job->setInsecureFallback(false);
    job->setKey(email);
    job->start();
}

void CredentialStore::recallPassword(const QString &email,
                                     std::function<void(const QString &)> done)
{
    auto once = std::make_shared<std::function<void(const QString &)>>(std::move(done));
    auto answer = [once](const QString &password) {
        if (*once) {
            auto f = std::move(*once);
            *once = nullptr;
            f(password);
        }
    };
    if (email.isEmpty() || !keyringReachable()) {
        QTimer::singleShot(0, this, [answer]() { answer(QString()); });
        return;
    }
    auto *job = new QKeychain::ReadPasswordJob(kService);
    job->setAutoDelete(true);
    job->setInsecureFallback(false);
    job->setKey(email);
    connect(job, &QKeychain::Job::finished, this, [answer](QKeychain::Job *j) {
        auto *read = static_cast<QKeychain::ReadPasswordJob *>(j);
        answer(read->error() == QKeychain::NoError ? read->textData() : QString());
    });
    QTimer::singleShot(kKeyringTimeoutMs, this, [answer]() { answer(QString()); });
    job->start();
}

} // namespace lumitra
