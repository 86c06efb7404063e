#pragma once

#include <QString>
#include <QStringList>

namespace lumitra {

// Every language code that has a translation file in the resources, in menu order.
// "ew" has a file but is not offered in the language menu.
QStringList all_language_codes();
QStringList offered_language_codes();

// Resource path of the translation for a code: ":/language/" + code + "2.qm".
QString language_resource(const QString &code);

// The standard locale name of a code ("dw" -> "de", "zw" -> "zh_CN", ...), for
// Qt's own translations of its standard texts (dialog buttons, context menus).
// Empty for an unknown code.
QString qt_locale_name(const QString &code);

// Path of Qt's own translation for a code in the system's Qt translations
// folder ("qtbase_de.qm"), or "" when it is not installed.
QString qt_translation_file(const QString &code);

// Reads the stored language (writing "yw" on the very first start, and using
// "yw" when the stored value is empty) and returns its resource path.
QString load_language();

// Stores a new interface language. Returns false, and stores nothing, when the
// code is already the stored one (the caller then shows no message).
bool store_language(const QString &code);

} // namespace lumitra
