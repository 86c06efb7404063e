#pragma once

#include <QMap>
#include <QString>

namespace lumitra {

// The one settings file: "<generic data location>/LumitraConfig/config.ini".
// All values are strings. Safe to call from the GUI thread only.

// Folder that holds config.ini, code.txt and the other per-user files; created
// when missing. A folder that cannot be created is logged, never fatal.
QString config_dir();

// Full path of config.ini (creates the folder as config_dir does).
QString config_path();

// The key rule: a key containing "/" names its own group; any other key lives in
// the group "CANSHU".
QString settings_key(const QString &key);

// Value stored under `key`, or an empty string when absent or unreadable.
QString get_setting(const QString &key);

// Stores `value` under `key`; written to disk before returning.
void set_setting(const QString &key, const QString &value);

// The controller settings it last reported ("$110" -> "6000.000", ...), kept
// so that jobs can be timed without a machine; empty when none has been.
QMap<QString, QString> stored_machine_settings();
// Replaces the kept controller settings with the "$N" entries of `info`
// (other entries, and values holding spaces, are left out).
void store_machine_settings(const QMap<QString, QString> &info);

// True when config.ini already exists.
bool settings_file_exists();

} // namespace lumitra
