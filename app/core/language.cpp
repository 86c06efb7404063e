#include "language.h"

#include "settings_store.h"

#include <QDebug>

namespace lumitra {

namespace {
const char *const kDefaultLanguage = "yw";
}

QStringList all_language_codes()
{
    return offered_language_codes() << QStringLiteral("ew");
}

QStringList offered_language_codes()
{
    return {QStringLiteral("zw"), QStringLiteral("yw"), QStringLiteral("hw"),
            QStringLiteral("rw"), QStringLiteral("dw"), QStringLiteral("ydlw"),
            QStringLiteral("fw"), QStringLiteral("xw"), QStringLiteral("pty")};
}

QString language_resource(const QString &code)
{
    return QStringLiteral(":/language/") + code + QStringLiteral("2.qm");
}

QString load_language()
{
    QString code;
    if (!settings_file_exists()) {
        code = QString::fromLatin1(kDefaultLanguage);
        set_setting(QStringLiteral("language"), code);
    } else {
        code = get_setting(QStringLiteral("language"));
        if (code.isEmpty())
            code = QString::fromLatin1(kDefaultLanguage);
    }
    return language_resource(code);
}

bool store_language(const QString &code)
{
    if (get_setting(QStringLiteral("language")) == code)
        return false;
    set_setting(QStringLiteral("language"), code);
    return true;
}

} // namespace lumitra
