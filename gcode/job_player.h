// The play state of a job preview: the moment of the job shown, playing or
// paused, and how much faster than the machine it plays. Driven by a wall
// clock in milliseconds that the caller reads (any origin), so that it can be
// tested without waiting. Plain class, any thread. Units: seconds.
#pragma once

#include <QtGlobal>

class JobPlayer
{
public:
    static constexpr double kSpeeds[] = {1.0, 10.0, 100.0};

    void setDuration(double seconds);
    double duration() const { return m_duration; }

    double position() const { return m_position; }
    // Goes to a moment of the job (clamped); playing goes on from there.
    void seek(double seconds);
    bool atEnd() const { return m_position >= m_duration; }

    bool isPlaying() const { return m_playing; }
    // Starts playing at the wall time `nowMs` (from the start again when at
    // the end). False when there is nothing to play.
    bool play(qint64 nowMs);
    void pause() { m_playing = false; }

    double speed() const { return m_speed; }
    // Job seconds per wall second (clamped to at least 0.01); the time played
    // so far at the old speed is taken first.
    void setSpeed(double speed, qint64 nowMs);

    // Moves on to the wall time `nowMs`; stops at the end. True when the
    // position changed.
    bool tick(qint64 nowMs);

private:
    double m_duration = 0.0;
    double m_position = 0.0;
    double m_speed = 1.0;
    bool m_playing = false;
    qint64 m_last = 0;
};
