#pragma once

// An X server of the test's own (Xvfb) on a free display, stopped with the
// object. available() is false when Xvfb is not installed.
#include <QProcess>
#include <QStandardPaths>
#include <QtTest>

class XServer
{
public:
    static QString executable() { return QStandardPaths::findExecutable(QStringLiteral("Xvfb")); }
    static bool available() { return !executable().isEmpty(); }

    // Starts the server with one screen of `size`; the display name (":N")
    // once it accepts clients, else "".
    QString start(const QSize &size)
    {
        // -displayfd makes the server pick a free display and print its number.
        m_server.start(executable(),
                       {QStringLiteral("-displayfd"), QStringLiteral("1"),
                        QStringLiteral("-nolisten"), QStringLiteral("tcp"),
                        QStringLiteral("-screen"), QStringLiteral("0"),
                        QStringLiteral("%1x%2x24").arg(size.width()).arg(size.height())});
        if (!m_server.waitForStarted()
            || !QTest::qWaitFor([&] { return m_server.canReadLine(); }, 15000))
            return QString();
        const QString number = QString::fromLatin1(m_server.readLine()).trimmed();
        return number.isEmpty() ? QString() : QLatin1Char(':') + number;
    }

    ~XServer()
    {
        m_server.terminate();
        m_server.waitForFinished(5000);
    }

private:
    QProcess m_server;
};
