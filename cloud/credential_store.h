#pragma once

#include <QObject>
#include <QString>
#include <functional>

namespace lumitra {

// The remembered log-in. The e-mail stays in the setting "youxiang"; the
// setting "youxiangmima" is always written empty, because the password is
// kept only in the system keyring (QtKeychain). Where no keyring service
// runs (headless machines, CI) the password is simply not remembered, and
// nothing waits for one. GUI thread.
class CredentialStore : public QObject
{
    Q_OBJECT

public:
    explicit CredentialStore(QObject *parent = nullptr);

    // A quick check, without starting any service: a session bus is configured
    // and a secret service (or KWallet) is registered on it.
    static bool keyringReachable();

    // Keyring operations give up after this long (milliseconds).
    static constexpr int kKeyringTimeoutMs = 3000;

    QString rememberedEmail() const;

    // Stores the e-mail and, when `password` is not empty and a keyring is
    // reachable, the password in the keyring. An empty password forgets it.
    void remember(const QString &email, const QString &password);

    // The remembered password for `email`: `done` runs exactly once, from the
    // event loop, with "" when there is none or no keyring answers in time.
    void recallPassword(const QString &email, std::function<void(const QString &)> done);

private:
    void forgetPassword(const QString &email);
};

} // namespace lumitra
