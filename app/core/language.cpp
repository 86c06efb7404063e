#include "language.h"

#include "settings_store.h"

#include <QDebug>
#include <QFileInfo>
#include <QHash>
#include <QLibraryInfo>

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

QString qt_locale_name(const QString &code)
{
    static const QHash<QString, QString> locales = {{QStringLiteral("zw"), QStringLiteral("zh_CN")},
                                                    {QStringLiteral("yw"), QStringLiteral("en")},
                                                    {QStringLiteral("hw"), QStringLiteral("ko")},
                                                    {QStringLiteral("rw"), QStringLiteral("ja")},
                                                    {QStringLiteral("dw"), QStringLiteral("de")},
                                                    {QStringLiteral("ydlw"), QStringLiteral("it")},
                                                    {QStringLiteral("fw"), QStringLiteral("fr")},
                                                    {QStringLiteral("xw"), QStringLiteral("es")},
                                                    {QStringLiteral("pty"), QStringLiteral("pt")},
                                                    {QStringLiteral("ew"), QStringLiteral("ru")}};
    return locales.value(code);
}

QString qt_translation_file(const QString &code)
{
    const QString locale = qt_locale_name(code);
    if (locale.isEmpty())
        return QString();
    const QString file = QLibraryInfo::location(QLibraryInfo::TranslationsPath)
                         + QStringLiteral("/qtbase_") + locale + QStringLiteral(".qm");
    return QFileInfo::exists(file) ? file : QString();
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
