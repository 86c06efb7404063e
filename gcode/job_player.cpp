#include "job_player.h"

#include <algorithm>

constexpr double JobPlayer::kSpeeds[];

void JobPlayer::setDuration(double seconds)
{
    m_duration = std::max(0.0, seconds);
    m_position = std::min(m_position, m_duration);
    if (atEnd())
        m_playing = false;
}

void JobPlayer::seek(double seconds)
{
    m_position = std::clamp(seconds, 0.0, m_duration);
}

bool JobPlayer::play(qint64 nowMs)
{
    if (m_duration <= 0.0)
        return false;
    if (atEnd())
        m_position = 0.0;
    m_playing = true;
    m_last = nowMs;
    return true;
}

void JobPlayer::setSpeed(double speed, qint64 nowMs)
{
    tick(nowMs);
    m_speed = std::max(0.01, speed);
}

bool JobPlayer::tick(qint64 nowMs)
{
    if (!m_playing)
        return false;
    const qint64 elapsed = std::max<qint64>(0, nowMs - m_last);
    m_last = nowMs;
    const double before = m_position;
    m_position = std::min(m_duration, m_position + elapsed / 1000.0 * m_speed);
    if (atEnd())
        m_playing = false;
    return m_position != before;
}
