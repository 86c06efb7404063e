#pragma once

#include <QByteArray>
#include <QHash>
#include <QObject>
#include <QSet>
#include <QString>

namespace lumitra {

class Hou_tai_jie_kou;

// Pictures of the material store (thumbnails, detail images), loaded once per
// address when first asked for and kept for the life of the object. GUI thread.
class ImageCache : public QObject
{
    Q_OBJECT

public:
    explicit ImageCache(Hou_tai_jie_kou *api, QObject *parent = nullptr);

    bool contains(const QString &url) const { return m_bytes.contains(url); }
    QByteArray bytes(const QString &url) const { return m_bytes.value(url); }
    // Starts loading `url` unless it is loaded or on its way; loaded() follows.
    void request(const QString &url);
    int loadCount() const { return m_loads; } // requests that went out

signals:
    void loaded(const QString &url, const QByteArray &bytes); // empty bytes: failed

private:
    Hou_tai_jie_kou *m_api;
    QHash<QString, QByteArray> m_bytes;
    QSet<QString> m_pending;
    int m_loads = 0;
};

} // namespace lumitra
