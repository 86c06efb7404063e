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

// Reads the stored language (writing "yw" on the very first start, and using
// "yw" when the stored value is empty) and returns its resource path.
QString load_language();

// Stores a new interface language. Returns false, and stores nothing, when the
// code is already the stored one (the caller then shows no message).
bool store_language(const QString &code);

} // namespace lumitra
