#include "headless_run.h"

#include "jk_com.h"
#include "program_state.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QFileInfo>
#include <QTextStream>
#include <QTimer>

namespace {

// One run: connects the link's signals to the outcome of the run.
class HeadlessRun
{
public:
    HeadlessRun(Jk_com &com, bool home, QTextStream &out, const HeadlessRunOptions &options)
        : m_com(com), m_home(home), m_out(out)
    {
        m_silence.setSingleShot(true);
        m_silence.setInterval(options.silenceTimeoutMs);
        QObject::connect(&m_silence, &QTimer::timeout, &m_loop, [this] {
            fail(HeadlessSilent, QStringLiteral("the controller stopped answering"));
        });
        QObject::connect(&com, &Jk_com::yi_lian_jie, &m_loop, [this](bool linked) {
            linked ? startJob()
                   : fail(HeadlessNoHandshake,
                          QStringLiteral("no answer to the handshake from the controller"));
        });
        QObject::connect(&com, &Jk_com::lineReceived, &m_loop,
                         [this](const QString &line) { onLine(line); });
        QObject::connect(&com, &Jk_com::diao_ke_jin_du, &m_loop, [this](int percent) {
            m_out << "progress " << percent << "%\n";
            m_out.flush();
        });
        QObject::connect(&com, &Jk_com::jobFinished, &m_loop, [this] { m_allSent = true; });
        QObject::connect(&com, &Jk_com::shu_chu_zhuang_tai, &m_loop, [this](const QString &s) {
            if (m_allSent && s.startsWith(QLatin1String("Idle")))
                finish(HeadlessDone, QString());
        });
        QObject::connect(&com, &Jk_com::deviceFault, &m_loop, [this](const QString &line) {
            fail(HeadlessMachineFault, QStringLiteral("controller reported: ") + line.trimmed());
        });
        QObject::connect(&com, &Jk_com::linkLost, &m_loop, [this](const QString &reason) {
            fail(HeadlessPortLost, QStringLiteral("lost the port: ") + reason);
        });
    }

    int exec()
    {
        m_silence.start();
        return m_result < 0 ? m_loop.exec() : m_result;
    }
    const QString &reason() const { return m_reason; }

private:
    void startJob()
    {
        if (m_home)
            m_com.queueText(QStringLiteral("$H\n"));
        m_com.queueText(QStringLiteral("yunxing"));
    }

    void onLine(const QString &line)
    {
        m_silence.start();
        if (line.startsWith(QLatin1String("error:")) || line.startsWith(QLatin1String("ALARM:")))
            fail(HeadlessMachineFault, QStringLiteral("controller reported: ") + line.trimmed());
    }

    void fail(int code, const QString &reason)
    {
        if (m_result >= 0)
            return;
        m_com.softReset();
        finish(code, reason);
    }

    void finish(int code, const QString &reason)
    {
        if (m_result >= 0)
            return;
        m_result = code;
        m_reason = reason;
        m_loop.exit(code);
    }

    Jk_com &m_com;
    bool m_home;
    QTextStream &m_out;
    QEventLoop m_loop;
    QTimer m_silence;
    bool m_allSent = false;
    int m_result = -1;
    QString m_reason;
};

} // namespace

int runJobHeadless(const QString &port, const QString &file, bool home, QTextStream &out,
                   QTextStream &err, const HeadlessRunOptions &options)
{
    const QFileInfo info(file);
    if (!info.isFile() || !info.isReadable()) {
        err << "cannot read the job file " << file << "\n";
        err.flush();
        return HeadlessBadFile;
    }
    lumitra::programState().jobFilePath = info.absoluteFilePath();

    Jk_com com;
    com.setHandshakeTimeout(options.handshakeTimeoutMs);
    HeadlessRun run(com, home, out, options);
    if (!com.connectPort(port)) {
        err << "cannot open the port " << port << ": " << com.lastError() << "\n";
        err.flush();
        return HeadlessNoPort;
    }
    out << "opened " << port << ", waiting for the controller\n";
    out.flush();
    const int code = run.exec();
    com.disconnectPort();
    if (code == HeadlessDone) {
        out << "done\n";
        out.flush();
    } else {
        err << run.reason() << "\n";
        err.flush();
    }
    return code;
}
