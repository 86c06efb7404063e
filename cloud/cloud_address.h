#pragma once

#include <QString>
#include <QUrl>

namespace lumitra {

// Where the cloud service lives. The environment variable LUMITRA_CLOUD_URL
// wins (tests, self-hosting), then the setting "CloudBase", then the built-in
// default. The address is returned without a trailing "/".
QUrl cloud_base_url();

// The built-in service address (https).
QString default_cloud_base();

// True for a host name that always means this machine: "localhost" and the
// literal loopback addresses (127.0.0.0/8, ::1).
bool is_loopback_host(const QString &host);

// Whether a request may go to `url`: https anywhere, plain http only to a
// loopback host, nothing else. `why` gets a one-line reason when refused.
bool is_allowed_cloud_url(const QUrl &url, QString *why);

} // namespace lumitra
