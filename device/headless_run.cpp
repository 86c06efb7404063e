#include "headless_run.h"

#include "jk_com.h"
#include "program_state.h"
#include "stream_state.h"

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
        : m_com(com), m_home(home), m_out(out), m_options(options)
    {
        m_silence.setSingleShot(true);
        m_silence.setInterval(options.silenceTimeoutMs);
        QObject::connect(&m_silence, &QTimer::timeout, &m_loop, [this] {
            fail(HeadlessSilent, QStringLiteral("the controller stopped answering"));
        });
        QObject::connect(&com, &Jk_com::yi_lian_jie, &m_loop, [this](bool linked) {
            if (!linked) {
                fail(HeadlessNoHandshake,
                     QStringLiteral("no answer to the handshake from the controller"));
                return;
            }
            if (m_home)
                m_com.queueText(QStringLiteral("$H\n"));
            m_linked = true;
            askForReport();
        });
        QObject::connect(&com, &Jk_com::reportFieldsReady, &m_loop, [this] { startJob(); });
        QObject::connect(&com, &Jk_com::lineReceived, &m_loop,
                         [this](const QString &line) { onLine(line); });
        QObject::connect(&com, &Jk_com::diao_ke_jin_du, &m_loop, [this](int percent) {
            m_out << "progress " << percent << "%\n";
            m_out.flush();
        });
        QObject::connect(&com, &Jk_com::jobRan, &m_loop,
                         [this] { finish(HeadlessDone, QString()); });
        QObject::connect(&com, &Jk_com::deviceFault, &m_loop, [this](const QString &line) {
            m_positionLost = true;
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

    void stop() { fail(HeadlessStopped, QStringLiteral("stopped on request")); }

    // After an interruption: the line to resume from, in the original job.
    void reportResumeLine()
    {
        if (!m_jobStarted || m_result == HeadlessDone)
            return;
        const int executed = toJobLine(m_com.lastExecutedLine());
        const int answered = toJobLine(m_com.lastAcknowledgedLine());
        m_out << "stopped after line " << answered << " was answered, line "
              << toJobLine(m_com.lastSentLine()) << " sent; resume from line " << executed + 1
              << "\n";
        if (m_positionLost)
            m_out << "the controller was reset: home it or set the origin again before "
                     "resuming\n";
        m_out.flush();
    }

private:
    int toJobLine(int fileLine) const
    {
        if (fileLine <= m_options.preambleLines)
            return m_options.firstJobLine - 1;
        return m_options.firstJobLine + fileLine - m_options.preambleLines - 1;
    }

    void startJob()
    {
        if (m_jobStarted)
            return;
        m_jobStarted = true;
        m_com.queueText(QStringLiteral("yunxing"));
    }

    // Once the handshake and homing are answered, one status report tells the
    // fields the controller reports; the job starts after it.
    void askForReport()
    {
        if (m_linked && !m_reportAsked && m_com.stream().drained()) {
            m_reportAsked = true;
            m_com.requestStatus();
        }
    }

    void onLine(const QString &line)
    {
        m_silence.start();
        askForReport();
        // An "error:" before the job belongs to what an earlier session left
        // (the laser-off line a controller in alarm refuses).
        const bool error = line.startsWith(QLatin1String("error:"));
        if (error && !m_jobStarted)
            return;
        if (error || line.startsWith(QLatin1String("ALARM:"))) {
            m_positionLost |= line.startsWith(QLatin1String("ALARM:"));
            fail(HeadlessMachineFault, QStringLiteral("controller reported: ") + line.trimmed());
        }
    }

    void fail(int code, const QString &reason)
    {
        if (m_result >= 0)
            return;
        // A reset while the machine may be moving loses its position.
        m_positionLost |= m_jobStarted && m_com.isOpen();
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
    HeadlessRunOptions m_options;
    bool m_jobStarted = false;
    bool m_linked = false;
    bool m_reportAsked = false;
    bool m_positionLost = false;
    QEventLoop m_loop;
    QTimer m_silence;
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
    if (options.onStoppable)
        options.onStoppable([&run] { run.stop(); });
    const int code = run.exec();
    if (options.onStoppable)
        options.onStoppable({});
    com.disconnectPort();
    run.reportResumeLine();
    if (code == HeadlessDone) {
        out << "done\n";
        out.flush();
    } else {
        err << run.reason() << "\n";
        err.flush();
    }
    return code;
}
