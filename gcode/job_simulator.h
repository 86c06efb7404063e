#pragma once

#include <QIODevice>
#include <QPointF>
#include <QString>

// Follows a G-code job line by line the way the controller would (modal
// G0/G1, G2/G3 as their chord, G20/G21, G90/G91, S, F, M3/M4/M5) and reports
// every XY move. Used by the job preview
// to draw what will burn and to estimate how long the job takes. Units: mm,
// mm/min, seconds. Plain class, any thread.
class JobSimulator
{
public:
    struct Move
    {
        QPointF from;
        QPointF to;
        bool rapid = false;   // G0
        bool burning = false; // laser on with a non-zero power
        double feed = 0.0;    // mm/min the move runs at
        double power = 0.0;   // S value
    };

    struct Summary
    {
        int lines = 0;
        int moves = 0;
        double burnLength = 0.0;   // mm with the laser burning
        double travelLength = 0.0; // mm with the laser off (rapids and S0 moves)
        double seconds = 0.0;      // moves only; acceleration is ignored
    };

    // Rapids run at this speed when estimating time (a typical diode engraver).
    static constexpr double kRapidFeed = 6000.0;

    // Takes one line (without its end). Calls `onMove` for every XY move.
    template<typename OnMove> void feedLine(const QString &line, OnMove &&onMove)
    {
        Move m;
        if (step(line, &m))
            onMove(m);
    }

    const Summary &summary() const { return m_summary; }
    QPointF position() const { return m_pos; }

    // Reads a whole job; false when the device cannot be read.
    template<typename OnMove> bool run(QIODevice &device, OnMove &&onMove);

private:
    bool step(const QString &line, Move *move);

    QPointF m_pos;
    bool m_rapid = true;
    bool m_absolute = true;
    double m_unit = 1.0; // mm per programmed unit (G20: 25.4)
    bool m_laserOn = false;
    double m_power = 0.0;
    double m_feed = 0.0;
    Summary m_summary;
};

// Declared here so that run() stays a template over the callback.
bool readJobLine(QIODevice &device, QString *line);

template<typename OnMove> bool JobSimulator::run(QIODevice &device, OnMove &&onMove)
{
    if (!device.isReadable())
        return false;
    QString line;
    while (readJobLine(device, &line))
        feedLine(line, onMove);
    return true;
}
