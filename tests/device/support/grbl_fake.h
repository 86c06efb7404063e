#pragma once

#include <QByteArray>
#include <QMap>
#include <QPointF>
#include <QString>
#include <QStringList>
#include <atomic>
#include <memory>
#include <mutex>
#include <thread>

// A GRBL controller on the far end of a pseudo-terminal pair, for tests and
// benches. The link opens portName() like any serial port; the fake answers on
// its own thread: "ok" per line (or what a rule says), "$i"/"$I" build info,
// "$$" settings, "$X" unlock, "$H" home, the real-time bytes "?", "!", "~" and
// 0x18 (reset, then the banner), alarm and error lines on demand.
// Of its 128-byte receive buffer 127 bytes are usable, as in the firmware's
// ring buffer: a byte arriving when 127 wait is an overrun, recorded and
// dropped. Bytes can be paced as on a wire and each line can take a delay.
//
// Motion goes through a planner buffer as in the firmware: a line with X or Y
// words becomes a block (15 at most wait; a further motion line stays in the
// receive buffer, unanswered, until one is done), a block takes
// motionMsPerLine plus msPerMm per millimetre to run, and M3/M4/M5 changes,
// G4, M2 and M30 wait for the buffer to empty before their "ok". The parser
// keeps G0/G1/G2/G3, G90/G91, G20/G21, M3/M4/M5, S and F (arcs run as their
// chord). Status reports carry MPos (or WPos when $10 bit 0 is clear) and, when
// $10 bit 1 is set, "Bf:<free blocks>,<free bytes>". Every block run is kept
// with its laser state (laser mode: burning on G1/G2/G3 with M3/M4 and S > 0);
// a reset or an alarm cuts the running block where the head is and drops the
// rest; a hold freezes it. A closed far end does not stop the planner.
class GrblFake
{
public:
    struct Options
    {
        int receiveBuffer = 128;
        double bytesPerSecond = 0.0; // 0: as fast as the pty carries them
        int processingDelayMs = 0;   // per line, before its reply
        int motionMsPerLine = 0;     // the state reads Run this long per motion line
        double msPerMm = 0.0;        // and this long per millimetre of the block
        int plannerBlocks = 15;      // blocks the planner holds
        // The board restarts on the first byte (as boards that reset when the
        // port opens): bytes within bootMs are lost, then the banner is printed.
        bool resetOnFirstByte = false;
        int bootMs = 0;
        // A soft reset (0x18) restarts the board: bytes within this time are
        // lost, then the banner is printed. 0: the banner follows at once.
        int resetBootMs = 0;
        bool answerIdentify = true; // false: "$i" gets no answer at all
        QString model;              // reported in the "$I" answer when set
        QMap<int, QString> settings = defaultSettings();
        bool recordLines = true; // keep every received line for lines()
    };

    static QMap<int, QString> defaultSettings();
    static QByteArray banner(); // "Grbl 1.1h ['$' for help]"

    GrblFake();
    explicit GrblFake(const Options &options);
    ~GrblFake();
    GrblFake(const GrblFake &) = delete;
    GrblFake &operator=(const GrblFake &) = delete;

    // Opens the pty pair and starts answering. False when no pty is available.
    bool start();
    // The device path of the near end, e.g. "/dev/pts/3".
    QString portName() const { return m_portName; }

    // On demand, from any thread.
    void raiseAlarm(int code);             // "ALARM:<code>", state Alarm until "$X" or "$H"
    void sendRaw(const QByteArray &bytes); // written to the link as they are
    void replyInsteadOfOk(int lineNumber, const QByteArray &reply); // 1-based, lines counted
    void alarmAtLine(int lineNumber, int code); // the line gets no "ok"; alarm raised instead
    void setProcessingDelay(int ms);            // from now on
    void closeFarEnd();                         // unplug: the near end sees a hang-up

    // Observations, from any thread.
    QStringList lines() const;        // lines received, "\r" and "\n" cut, real-time bytes excluded
    int lineCount() const;            // lines received (also when not recorded)
    QByteArray realTimeBytes() const; // "?", "!", "~", 0x18 in arrival order
    int resetCount() const;
    bool overrun() const;
    int peakWaiting() const;      // most bytes ever waiting in the receive buffer
    qint64 bytesReceived() const; // every byte that arrived, real-time ones included
    QByteArray received() const;  // those bytes in arrival order (when lines are recorded)
    bool inAlarm() const;         // raised and not yet unlocked
    bool moving() const;          // the state would read Run now

    // A block the machine ran (or the part of it run before a reset or alarm).
    struct ExecutedMove
    {
        QPointF from, to;
        bool burning = false;
        bool rapid = false;
        double power = 0.0; // S
    };
    QList<ExecutedMove> executedMoves() const;
    int blocksQueued() const;      // blocks in the planner now (the running one included)
    QPointF position() const;      // where the head is now
    int setting(int number) const; // current value of a numeric setting ($10 ...)

private:
    struct Impl;
    std::unique_ptr<Impl> d;
    QString m_portName;
};
