#include "grbl_fake.h"

#include <QRegularExpression>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <deque>
#include <fcntl.h>
#include <functional>
#include <poll.h>
#include <pty.h>
#include <sys/eventfd.h>
#include <termios.h>
#include <unistd.h>

namespace {
using Clock = std::chrono::steady_clock;
constexpr double kNever = 1e18;
} // namespace

struct GrblFake::Impl
{
    struct WireByte
    {
        char byte;
        double arrival;
    };

    Options opt;
    int master = -1, slave = -1, wake = -1;
    std::thread thread;
    std::atomic_bool stopping{false};
    Clock::time_point epoch = Clock::now();

    // Fake thread only.
    std::deque<WireByte> wire;
    double lastArrival = 0.0;
    std::string rx, out;
    double headReadyAt = -1.0; // when the oldest complete line is processed
    bool firstByteSeen = false;
    double bootUntil = -1.0;
    double busyUntil = 0.0;
    bool held = false;
    double x = 0.0, y = 0.0;
    int feed = 0;

    // Shared.
    std::atomic_bool alarm{false};
    std::atomic<double> busyUntilShared{0.0};
    std::atomic_bool overrun{false};
    std::atomic_int peak{0};
    std::atomic<qint64> received{0};
    mutable std::mutex mutex; // guards the members below
    std::deque<std::function<void()>> commands;
    QStringList lines;
    int lineCount = 0;
    QByteArray realTime;
    QByteArray all; // every byte read, when lines are recorded
    int resets = 0;
    QMap<int, QByteArray> replies;
    QMap<int, int> alarms;

    double now() const { return std::chrono::duration<double>(Clock::now() - epoch).count(); }

    void post(std::function<void()> command)
    {
        {
            std::lock_guard<std::mutex> lock(mutex);
            commands.push_back(std::move(command));
        }
        const uint64_t one = 1;
        if (wake >= 0)
            (void)::write(wake, &one, sizeof one);
    }

    void say(const QByteArray &text) { out.append(text.constData(), size_t(text.size())); }

    void setBusyUntil(double t)
    {
        busyUntil = t;
        busyUntilShared = t;
    }

    void reportStatus(double t)
    {
        const char *state = alarm ? "Alarm" : held ? "Hold" : t < busyUntil ? "Run" : "Idle";
        say(QStringLiteral("<%1|MPos:%2,%3,0.000|FS:%4,0>\r\n")
                .arg(QLatin1String(state))
                .arg(x, 0, 'f', 3)
                .arg(y, 0, 'f', 3)
                .arg(t < busyUntil ? feed : 0)
                .toLatin1());
    }

    void onRealTime(char c, double t)
    {
        {
            std::lock_guard<std::mutex> lock(mutex);
            realTime.append(c);
            if (c == 0x18)
                ++resets;
        }
        if (c == '?') {
            reportStatus(t);
        } else if (c == '!' || c == '~') {
            held = c == '!';
        } else { // soft reset: the buffer is dropped and the banner printed
            rx.clear();
            headReadyAt = -1.0;
            held = false;
            setBusyUntil(t);
            if (opt.resetBootMs > 0) {
                bootUntil = t + opt.resetBootMs / 1000.0;
                return; // the banner comes when the boot ends
            }
            say("\r\n" + banner() + "\r\n");
            if (alarm)
                say("[MSG:'$H'|'$X' to unlock]\r\n");
        }
    }

    void endBoot()
    {
        bootUntil = -1.0;
        say(banner() + "\r\n");
    }

    void arrive(const WireByte &b)
    {
        ++received;
        if (opt.resetOnFirstByte && !firstByteSeen) {
            firstByteSeen = true;
            bootUntil = b.arrival + opt.bootMs / 1000.0;
        }
        if (bootUntil >= 0.0) {
            if (b.arrival < bootUntil)
                return; // lost while the board boots
            endBoot();
        }
        if (b.byte == '?' || b.byte == '!' || b.byte == '~' || b.byte == 0x18) {
            onRealTime(b.byte, b.arrival);
        } else if (int(rx.size()) >= opt.receiveBuffer - 1) {
            overrun = true;
        } else {
            rx.push_back(b.byte);
            peak = std::max(peak.load(), int(rx.size()));
        }
    }

    void moveTo(const QString &line, double t)
    {
        static const QRegularExpression word(QStringLiteral("([XYF])(-?\\d*\\.?\\d+)"));
        const bool relative = line.contains(QLatin1String("G91"));
        bool moved = false;
        for (auto it = word.globalMatch(line); it.hasNext();) {
            const auto m = it.next();
            const double v = m.captured(2).toDouble();
            const QChar axis = m.captured(1).at(0);
            if (axis == QLatin1Char('F')) {
                feed = int(v);
                continue;
            }
            double &pos = axis == QLatin1Char('X') ? x : y;
            pos = relative ? pos + v : v;
            moved = true;
        }
        if (moved)
            setBusyUntil(std::max(busyUntil, t) + opt.motionMsPerLine / 1000.0);
    }

    void execute(const QString &line, double t)
    {
        const QString cmd = line.trimmed();
        if (cmd == QLatin1String("$i") || cmd == QLatin1String("$I")) {
            if (!opt.answerIdentify)
                return;
            say("[VER:1.1h.20190825:]\r\n[OPT:V,15,128]\r\n");
            if (!opt.model.isEmpty())
                say("[MSG:Using machine:" + opt.model.toLatin1() + "]\r\n");
        } else if (cmd == QLatin1String("$$")) {
            for (auto it = opt.settings.cbegin(); it != opt.settings.cend(); ++it)
                say(QStringLiteral("$%1=%2\r\n").arg(it.key()).arg(it.value()).toLatin1());
        } else if (cmd == QLatin1String("$X")) {
            if (alarm)
                say("[MSG:Caution: Unlocked]\r\n");
            alarm = false;
        } else if (cmd == QLatin1String("$H")) {
            alarm = false;
            x = y = 0.0;
        } else if (alarm && !cmd.startsWith(QLatin1Char('$'))) {
            return say("error:9\r\n");
        } else if (cmd.startsWith(QLatin1String("AT"))) {
            return say("error:20\r\n");
        } else {
            moveTo(cmd, t);
        }
        say("ok\r\n");
    }

    void raiseNow(int code)
    {
        alarm = true;
        held = false;
        setBusyUntil(0.0);
        say("ALARM:" + QByteArray::number(code) + "\r\n");
    }

    void processLine(double t)
    {
        const size_t end = rx.find('\n');
        QByteArray raw(rx.data(), int(end));
        rx.erase(0, end + 1);
        headReadyAt = -1.0;
        while (raw.endsWith('\r'))
            raw.chop(1);
        const QString line = QString::fromLatin1(raw);
        QByteArray reply;
        int alarmCode = 0;
        {
            std::lock_guard<std::mutex> lock(mutex);
            const int number = ++lineCount;
            if (opt.recordLines)
                lines.append(line);
            reply = replies.take(number);
            alarmCode = alarms.take(number);
        }
        if (alarmCode)
            raiseNow(alarmCode);
        else if (!reply.isEmpty())
            say(reply + "\r\n");
        else
            execute(line, t);
    }

    // Processes the complete lines whose processing time has come by `t`.
    void processDueLines(double t)
    {
        while (rx.find('\n') != std::string::npos) {
            if (headReadyAt < 0.0)
                headReadyAt = t + opt.processingDelayMs / 1000.0;
            if (headReadyAt > t)
                return;
            processLine(t);
        }
    }

    // Handles everything due by `t` byte by byte in arrival order, so that lines
    // leave the receive buffer while later bytes come in; returns when the next
    // event is due.
    double advance(double t)
    {
        while (!wire.empty() && wire.front().arrival <= t) {
            const WireByte b = wire.front();
            wire.pop_front();
            arrive(b);
            if (b.byte == '\n' || headReadyAt >= 0.0)
                processDueLines(b.arrival);
        }
        if (bootUntil >= 0.0 && t >= bootUntil)
            endBoot();
        processDueLines(t);
        double next = wire.empty() ? kNever : wire.front().arrival;
        if (bootUntil >= 0.0)
            next = std::min(next, bootUntil);
        if (headReadyAt >= 0.0)
            next = std::min(next, headReadyAt);
        return next;
    }

    void readWire(double t)
    {
        char buf[4096];
        ssize_t n;
        while ((n = ::read(master, buf, sizeof buf)) > 0) {
            if (opt.recordLines) {
                std::lock_guard<std::mutex> lock(mutex);
                all.append(buf, int(n));
            }
            for (ssize_t i = 0; i < n; ++i) {
                double at = t;
                if (opt.bytesPerSecond > 0.0)
                    at = std::max(t, lastArrival) + 1.0 / opt.bytesPerSecond;
                lastArrival = at;
                wire.push_back({buf[i], at});
            }
        }
    }

    void flushOut()
    {
        ssize_t n;
        while (!out.empty() && master >= 0 && (n = ::write(master, out.data(), out.size())) > 0)
            out.erase(0, size_t(n));
    }

    void runCommands()
    {
        uint64_t count = 0;
        (void)::read(wake, &count, sizeof count);
        std::deque<std::function<void()>> todo;
        {
            std::lock_guard<std::mutex> lock(mutex);
            todo.swap(commands);
        }
        for (auto &c : todo)
            c();
    }

    void loop()
    {
        while (!stopping.load() && master >= 0) {
            const double next = advance(now());
            flushOut();
            pollfd fds[2] = {{wake, POLLIN, 0},
                             {master, short(POLLIN | (out.empty() ? 0 : POLLOUT)), 0}};
            timespec ts{};
            if (next < kNever) {
                const double wait = std::max(0.0, next - now());
                ts.tv_sec = time_t(wait);
                ts.tv_nsec = long((wait - double(ts.tv_sec)) * 1e9);
            }
            if (::ppoll(fds, 2, next < kNever ? &ts : nullptr, nullptr) < 0 && errno != EINTR)
                return;
            if (fds[0].revents & POLLIN)
                runCommands();
            if (master >= 0 && (fds[1].revents & POLLIN))
                readWire(now());
        }
    }
};

QMap<int, QString> GrblFake::defaultSettings()
{
    return {{0, "10"},        {1, "25"},         {10, "1"},         {22, "1"},
            {30, "1000"},     {31, "0"},         {32, "1"},         {100, "80.000"},
            {101, "80.000"},  {110, "6000.000"}, {111, "6000.000"}, {120, "500.000"},
            {130, "400.000"}, {131, "400.000"},  {132, "50.000"}};
}

QByteArray GrblFake::banner()
{
    return QByteArrayLiteral("Grbl 1.1h ['$' for help]");
}

GrblFake::GrblFake() : GrblFake(Options()) {}

GrblFake::GrblFake(const Options &options) : d(new Impl)
{
    d->opt = options;
}

GrblFake::~GrblFake()
{
    d->stopping = true;
    d->post([] {});
    if (d->thread.joinable())
        d->thread.join();
    for (int fd : {d->master, d->slave, d->wake}) {
        if (fd >= 0)
            ::close(fd);
    }
}

bool GrblFake::start()
{
    termios raw{};
    ::cfmakeraw(&raw);
    char name[256] = {};
    if (::openpty(&d->master, &d->slave, name, &raw, nullptr) != 0)
        return false;
    // The fake keeps the near end open too, so the far end never reads a
    // hang-up while the link under test has its port closed.
    ::fcntl(d->master, F_SETFL, ::fcntl(d->master, F_GETFL) | O_NONBLOCK);
    d->wake = ::eventfd(0, EFD_NONBLOCK);
    m_portName = QString::fromLocal8Bit(name);
    d->thread = std::thread([this] { d->loop(); });
    return true;
}

void GrblFake::raiseAlarm(int code)
{
    Impl *p = d.get();
    p->post([p, code] { p->raiseNow(code); });
}

void GrblFake::sendRaw(const QByteArray &bytes)
{
    Impl *p = d.get();
    p->post([p, bytes] { p->say(bytes); });
}

void GrblFake::replyInsteadOfOk(int lineNumber, const QByteArray &reply)
{
    std::lock_guard<std::mutex> lock(d->mutex);
    d->replies.insert(lineNumber, reply);
}

void GrblFake::alarmAtLine(int lineNumber, int code)
{
    std::lock_guard<std::mutex> lock(d->mutex);
    d->alarms.insert(lineNumber, code);
}

void GrblFake::setProcessingDelay(int ms)
{
    Impl *p = d.get();
    p->post([p, ms] { p->opt.processingDelayMs = ms; });
}

void GrblFake::closeFarEnd()
{
    Impl *p = d.get();
    p->post([p] {
        ::close(p->master);
        p->master = -1;
    });
}

template<typename T> static T locked(std::mutex &m, const T &value)
{
    std::lock_guard<std::mutex> lock(m);
    return value;
}

QStringList GrblFake::lines() const
{
    return locked(d->mutex, d->lines);
}
int GrblFake::lineCount() const
{
    return locked(d->mutex, d->lineCount);
}
QByteArray GrblFake::realTimeBytes() const
{
    return locked(d->mutex, d->realTime);
}
QByteArray GrblFake::received() const
{
    return locked(d->mutex, d->all);
}
int GrblFake::resetCount() const
{
    return locked(d->mutex, d->resets);
}
bool GrblFake::overrun() const
{
    return d->overrun.load();
}
int GrblFake::peakWaiting() const
{
    return d->peak.load();
}
qint64 GrblFake::bytesReceived() const
{
    return d->received.load();
}
bool GrblFake::moving() const
{
    return d->now() < d->busyUntilShared.load();
}
bool GrblFake::inAlarm() const
{
    return d->alarm.load();
}
