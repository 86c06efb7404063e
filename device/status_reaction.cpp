#include "status_reaction.h"

#include <QRegularExpression>

namespace {

bool readNumber(const QRegularExpression &re, const QString &text, double &value)
{
    const QRegularExpressionMatch m = re.match(text);
    if (!m.hasMatch())
        return false;
    value = m.captured(1).toDouble();
    return true;
}

} // namespace

StatusReaction reactToStatus(StatusLink link, StatusDisplayState &state, const QString &text,
                             int consoleLength)
{
    StatusReaction r;
    const bool serial = link == StatusLink::Serial;
    if (!serial) {
        if (text.contains(QLatin1Char('$'))) {
            r.ignored = true;
            return r;
        }
        ++state.wifiTextCount;
    }

    static const QRegularExpression xField(QStringLiteral("X:(-?\\d+[\\.]\\d+)"));
    static const QRegularExpression yField(QStringLiteral("Y:(-?\\d+[\\.]\\d+)"));
    r.hasX = readNumber(xField, text, r.x);
    r.hasY = readNumber(yField, text, r.y);

    if (serial) {
        static const QRegularExpression address(
            QStringLiteral("\\b(\\d{1,3}\\.\\d{1,3}\\.\\d{1,3}\\.\\d{1,3})\\b"));
        const QRegularExpressionMatch m = address.match(text);
        if (m.hasMatch() && m.captured(1) != state.cameraAddress) {
            state.cameraAddress = m.captured(1);
            r.cameraChanged = true;
            r.cameraAddress = state.cameraAddress;
        }
    }

    if (text.contains(QLatin1String("Run")) || text.contains(QLatin1String("Hold"))) {
        state.busy = true;
        state.idleCounter = 0;
        r.showIndicator = true;
        r.startIndicatorTimer = !serial;
    } else if (text.contains(QLatin1String("Idle"))) {
        state.busy = false;
        if (state.idleCounter >= 3 && state.idleCounter <= 9) {
            r.stopIndicatorTimer = true;
            r.hideIndicator = true;
        }
        state.idleCounter =
            state.idleCounter >= kIdleCounterCeiling ? kIdleCounterRestart : state.idleCounter + 1;
    }

    if (serial) {
        r.clearConsole = consoleLength > 1200;
        r.appendConsole = text.simplified() != QLatin1String("ok");
    } else {
        r.clearConsole = consoleLength > 1000;
        r.appendConsole = !text.contains(QLatin1String("ok"));
    }

    if (text.contains(QLatin1String("Alarm")) && !state.alarmShown) {
        state.alarmShown = true;
        r.stopIndicatorTimer = true;
        r.hideIndicator = r.hideIndicator || serial;
        r.showAlarm = true;
    }
    return r;
}
