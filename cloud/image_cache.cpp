#include "image_cache.h"

#include "hou_tai_jie_kou.h"

#include <QPointer>

namespace lumitra {

ImageCache::ImageCache(Hou_tai_jie_kou *api, QObject *parent) : QObject(parent), m_api(api) {}

void ImageCache::request(const QString &url)
{
    if (url.isEmpty() || m_bytes.contains(url) || m_pending.contains(url))
        return;
    m_pending.insert(url);
    ++m_loads;
    QPointer<ImageCache> self(this);
    m_api->fetch(QUrl(url), [self, url](bool ok, const QByteArray &bytes) {
        if (!self)
            return;
        self->m_pending.remove(url);
        if (ok)
            self->m_bytes.insert(url, bytes);
        emit self->loaded(url, ok ? bytes : QByteArray());
    });
}

} // namespace lumitra
