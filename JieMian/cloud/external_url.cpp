#include "external_url.h"

#include <QDesktopServices>

namespace lumitra {

namespace {
std::function<bool(const QUrl &)> &opener()
{
    static std::function<bool(const QUrl &)> f;
    return f;
}
} // namespace

bool open_external_url(const QUrl &url)
{
    if (opener())
        return opener()(url);
    return QDesktopServices::openUrl(url);
}

void set_external_url_opener(std::function<bool(const QUrl &)> f)
{
    opener() = std::move(f);
}

} // namespace lumitra
