#pragma once

#include <QUrl>
#include <functional>

namespace lumitra {

// Opens an address in the system browser (the top-up page). Tests replace the
// opener so that nothing is launched; an empty function puts the browser back.
// The address may carry credentials: it is never logged.
bool open_external_url(const QUrl &url);
void set_external_url_opener(std::function<bool(const QUrl &)> opener);

} // namespace lumitra
