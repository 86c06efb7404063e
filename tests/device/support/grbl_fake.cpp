#include "grbl_fake.h"

#include <QRegularExpression>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cmath>
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
    double heldAt = 0.0;
    double x = 0.0, y = 0.0; // where the head was at the end of the last block run
    int feed = 0;

    // Parser state (what the next line is read with).
    struct Parser
    {
        int motion = 0; // 0, 1, 2, 3
        bool absolute = true;
        bool inches = false;
        int spindle = 5; // 3, 4 or 5
        double s = 0.0;
        double f = 0.0;
    } parser;
    QPointF planned; // where the last planned block ends

    struct Block
    {
        QPointF from, to;
        bool burning = false;
        bool rapid = false;
        double power = 0.0;
        double feed = 0.0;
        double start = 0.0, end = 0.0;
    };
    std::deque<Block> planner;
    bool waitingForPlanner = false; // the head line waits for a block to finish

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
    QList<GrblFake::ExecutedMove> executed;
    std::atomic_int queuedShared{0};
    QPointF positionShared;

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

    int settingValue(int number) const { return opt.settings.value(number).toInt(); }

    // The time the planner has run up to: a hold freezes it.
    double planTime(double t) const { return held && !planner.empty() ? heldAt : t; }

    void record(const Block &b, const QPointF &to)
    {
        GrblFake::ExecutedMove m;
        m.from = b.from;
        m.to = to;
        m.burning = b.burning;
        m.rapid = b.rapid;
        m.power = b.power;
        std::lock_guard<std::mutex> lock(mutex);
        executed.append(m);
    }

    void publish()
    {
        queuedShared = int(planner.size());
        std::lock_guard<std::mutex> lock(mutex);
        positionShared = QPointF(x, y);
    }

    // Finishes the blocks whose time has come by `t`.
    void runPlanner(double t)
    {
        const double until = planTime(t);
        bool changed = false;
        while (!planner.empty() && planner.front().end <= until) {
            const Block b = planner.front();
            planner.pop_front();
            record(b, b.to);
            x = b.to.x();
            y = b.to.y();
            changed = true;
        }
        if (changed)
            publish();
    }

    QPointF headAt(double t) const
    {
        if (planner.empty())
            return QPointF(x, y);
        const Block &b = planner.front();
        const double at = planTime(t);
        if (at <= b.start || b.end <= b.start)
            return b.from;
        const double k = std::min(1.0, (at - b.start) / (b.end - b.start));
        return b.from + (b.to - b.from) * k;
    }

    // Reset or alarm: the running block stops where the head is, the rest is lost.
    void killMotion(double t)
    {
        runPlanner(t);
        if (!planner.empty()) {
            const QPointF at = headAt(t);
            if (planTime(t) > planner.front().start)
                record(planner.front(), at);
            x = at.x();
            y = at.y();
        }
        planner.clear();
        planned = QPointF(x, y);
        waitingForPlanner = false;
        publish();
    }

    void reportStatus(double t)
    {
        runPlanner(t);
        const char *state = alarm ? "Alarm" : held ? "Hold" : t < busyUntil ? "Run" : "Idle";
        const int mask = settingValue(10);
        const QPointF at = headAt(t);
        QString report = QStringLiteral("<%1|%2:%3,%4,0.000")
                             .arg(QLatin1String(state))
                             .arg(QLatin1String(mask & 1 ? "MPos" : "WPos"))
                             .arg(at.x(), 0, 'f', 3)
                             .arg(at.y(), 0, 'f', 3);
        if (mask & 2)
            report += QStringLiteral("|Bf:%1,%2")
                          .arg(opt.plannerBlocks - int(planner.size()))
                          .arg(opt.receiveBuffer - int(rx.size()));
        report +=
            QStringLiteral("|FS:%1,%2>\r\n")
                .arg(t < busyUntil ? feed : 0)
                .arg(!planner.empty() && planner.front().burning ? planner.front().power : 0.0);
        say(report.toLatin1());
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
        } else if (c == '!') {
            if (!held) {
                runPlanner(t);
                heldAt = t;
            }
            held = true;
        } else if (c == '~') {
            if (held) {
                const double delay = t - heldAt;
                for (Block &b : planner) {
                    b.start += delay;
                    b.end += delay;
                }
                if (!planner.empty())
                    setBusyUntil(busyUntil + delay);
            }
            held = false;
        } else { // soft reset: the buffer is dropped and the banner printed
            killMotion(t);
            rx.clear();
            headReadyAt = -1.0;
            held = false;
            parser = Parser();
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

    struct Words
    {
        QList<double> g, m;
        bool hasX = false, hasY = false, hasS = false, hasF = false;
        double x = 0, y = 0, s = 0, f = 0;
        bool jog = false;
    };

    static Words readWords(const QString &line)
    {
        static const QRegularExpression word(QStringLiteral("([A-Z])\\s*([-+]?\\d*\\.?\\d+)"));
        Words w;
        QString text = line.toUpper();
        const int comment = text.indexOf(QLatin1Char(';'));
        if (comment >= 0)
            text.truncate(comment);
        if (text.startsWith(QLatin1String("$J="))) {
            w.jog = true;
            text = text.mid(3);
        }
        for (auto it = word.globalMatch(text); it.hasNext();) {
            const auto m = it.next();
            const double v = m.captured(2).toDouble();
            switch (m.captured(1).at(0).unicode()) {
            case 'G':
                w.g.append(v);
                break;
            case 'M':
                w.m.append(v);
                break;
            case 'X':
                w.hasX = true;
                w.x = v;
                break;
            case 'Y':
                w.hasY = true;
                w.y = v;
                break;
            case 'S':
                w.hasS = true;
                w.s = v;
                break;
            case 'F':
                w.hasF = true;
                w.f = v;
                break;
            default:
                break;
            }
        }
        return w;
    }

    // The spindle state a line leaves, or 0 when it does not change it.
    int spindleAfter(const Words &w) const
    {
        for (double m : w.m) {
            if (m == 3 || m == 4 || m == 5)
                return int(m) != parser.spindle ? int(m) : 0;
            if ((m == 2 || m == 30) && parser.spindle != 5)
                return 5;
        }
        return 0;
    }

    static bool waitsForEmptyPlanner(const Words &w)
    {
        return w.g.contains(4) || w.m.contains(2) || w.m.contains(30);
    }

    // Whether the head line can be taken now: motion needs a free block, a
    // synchronising line an empty planner.
    bool canTake(const QString &line) const
    {
        const Words w = readWords(line);
        if (w.jog || line.startsWith(QLatin1Char('$')))
            return !w.jog || int(planner.size()) < opt.plannerBlocks;
        if (alarm)
            return true;
        if (spindleAfter(w) != 0 || waitsForEmptyPlanner(w))
            return planner.empty();
        if (w.hasX || w.hasY)
            return int(planner.size()) < opt.plannerBlocks;
        return true;
    }

    void planBlock(const QPointF &to, bool rapid, bool burning, double power, double f, double t)
    {
        Block b;
        b.from = planned;
        b.to = to;
        b.rapid = rapid;
        b.burning = burning;
        b.power = power;
        b.feed = f;
        const double length = std::hypot(to.x() - planned.x(), to.y() - planned.y());
        if (length <= 0.0)
            return; // an empty block is not planned
        b.start = std::max(t, planner.empty() ? t : planner.back().end);
        if (held && planner.empty())
            b.start = heldAt; // frozen time: it starts when the hold ends
        b.end = b.start + opt.motionMsPerLine / 1000.0 + length * opt.msPerMm / 1000.0;
        planned = to;
        planner.push_back(b);
        feed = int(f);
        setBusyUntil(std::max(busyUntil, b.end));
        publish();
    }

    void moveTo(const QString &line, double t)
    {
        const Words w = readWords(line);
        if (w.jog) {
            const bool relative = w.g.contains(91);
            QPointF to = planned;
            if (w.hasX)
                to.setX(relative ? to.x() + w.x : w.x);
            if (w.hasY)
                to.setY(relative ? to.y() + w.y : w.y);
            planBlock(to, false, false, 0.0, w.hasF ? w.f : parser.f, t);
            return;
        }
        bool setOrigin = false;
        for (double g : w.g) {
            if (g == 0 || g == 1 || g == 2 || g == 3)
                parser.motion = int(g);
            else if (g == 90)
                parser.absolute = true;
            else if (g == 91)
                parser.absolute = false;
            else if (g == 20)
                parser.inches = true;
            else if (g == 21)
                parser.inches = false;
            else if (g == 92)
                setOrigin = true;
        }
        if (w.hasS)
            parser.s = w.s;
        if (w.hasF)
            parser.f = parser.inches ? w.f * 25.4 : w.f;
        if (const int spindle = spindleAfter(w))
            parser.spindle = spindle;
        if (!w.hasX && !w.hasY)
            return;
        const double unit = parser.inches ? 25.4 : 1.0;
        if (setOrigin) { // the position becomes the given one
            planned = QPointF(w.hasX ? w.x * unit : planned.x(), w.hasY ? w.y * unit : planned.y());
            if (planner.empty()) {
                x = planned.x();
                y = planned.y();
                publish();
            }
            return;
        }
        QPointF to = planned;
        if (parser.absolute) {
            if (w.hasX)
                to.setX(w.x * unit);
            if (w.hasY)
                to.setY(w.y * unit);
        } else {
            to += QPointF(w.hasX ? w.x * unit : 0.0, w.hasY ? w.y * unit : 0.0);
        }
        const bool rapid = parser.motion == 0;
        const bool laserMode = settingValue(32) != 0;
        const bool burning = parser.spindle != 5 && parser.s > 0 && (!rapid || !laserMode);
        planBlock(to, rapid, burning, parser.s, rapid ? settingValue(110) : parser.f, t);
    }

    bool setSetting(const QString &cmd)
    {
        static const QRegularExpression set(QStringLiteral("^\\$(\\d+)=(.*)$"));
        const auto m = set.match(cmd);
        if (!m.hasMatch())
            return false;
        std::lock_guard<std::mutex> lock(mutex);
        opt.settings.insert(m.captured(1).toInt(), m.captured(2).trimmed());
        return true;
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
            planner.clear();
            x = y = 0.0;
            planned = QPointF();
            publish();
        } else if (setSetting(cmd)) {
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
        killMotion(now());
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
        runPlanner(t);
        waitingForPlanner = false;
        size_t end;
        while ((end = rx.find('\n')) != std::string::npos) {
            if (headReadyAt < 0.0)
                headReadyAt = t + opt.processingDelayMs / 1000.0;
            if (headReadyAt > t)
                return;
            if (!canTake(QString::fromLatin1(rx.data(), int(end)).trimmed())) {
                waitingForPlanner = true;
                return;
            }
            processLine(t);
            runPlanner(t);
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
        if (!planner.empty() && !held)
            next = std::min(next, planner.front().end);
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
        // A closed far end (unplugged) still runs what the planner holds.
        while (!stopping.load() && (master >= 0 || !planner.empty())) {
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
    return {{0, "10"},        {1, "25"},         {10, "3"},         {22, "1"},
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
    // A process the test starts must not hold the far end open: unplugging
    // would go unnoticed.
    ::fcntl(d->master, F_SETFD, FD_CLOEXEC);
    ::fcntl(d->slave, F_SETFD, FD_CLOEXEC);
    d->wake = ::eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC);
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

QList<GrblFake::ExecutedMove> GrblFake::executedMoves() const
{
    return locked(d->mutex, d->executed);
}
int GrblFake::blocksQueued() const
{
    return d->queuedShared.load();
}
QPointF GrblFake::position() const
{
    return locked(d->mutex, d->positionShared);
}
int GrblFake::setting(int number) const
{
    Impl *p = d.get();
    std::lock_guard<std::mutex> lock(p->mutex);
    return p->opt.settings.value(number).toInt();
}
