#include "svg_path_data.h"

#include "arc_geometry.h"
#include "svg_numbers.h"

namespace lumitra {

namespace {

// How many numbers one repeat of a command takes.
int argumentCount(ushort upper)
{
    switch (upper) {
    case 'M':
    case 'L':
    case 'T':
        return 2;
    case 'H':
    case 'V':
        return 1;
    case 'C':
        return 6;
    case 'S':
    case 'Q':
        return 4;
    case 'A':
        return 7;
    case 'Z':
        return 0;
    default:
        return -1;
    }
}

class PathBuilder
{
public:
    QPainterPath path;

    // Reads the arguments of one repeat of `cmd`; false on a missing number.
    bool apply(ushort cmd, SvgNumberScanner &in);

private:
    QPointF m_current;
    QPointF m_start;       // start of the current subpath
    QPointF m_lastControl; // second control point of the last cubic
    QPointF m_lastQuadControl;
    ushort m_previous = 0; // upper-case letter of the last command applied
    bool m_closed = false; // the last command was Z

    void ensureStarted()
    {
        if (m_closed) {
            path.moveTo(m_current);
            m_closed = false;
        }
    }
};

bool PathBuilder::apply(ushort cmd, SvgNumberScanner &in)
{
    const bool relative = cmd >= 'a' && cmd <= 'z';
    const ushort upper = relative ? ushort(cmd - 32) : cmd;
    const QPointF base = relative ? m_current : QPointF();
    double a[7];
    const int n = argumentCount(upper);
    for (int i = 0; i < n; ++i) {
        bool ok;
        if (upper == 'A' && (i == 3 || i == 4)) {
            bool flag = false;
            ok = in.readFlag(&flag);
            a[i] = flag ? 1.0 : 0.0;
        } else {
            ok = in.readNumber(&a[i]);
        }
        if (!ok)
            return false;
    }

    switch (upper) {
    case 'M':
        m_current = base + QPointF(a[0], a[1]);
        path.moveTo(m_current);
        m_start = m_current;
        m_closed = false;
        break;
    case 'L':
        ensureStarted();
        m_current = base + QPointF(a[0], a[1]);
        path.lineTo(m_current);
        break;
    case 'H':
        ensureStarted();
        m_current.setX(base.x() + a[0]);
        path.lineTo(m_current);
        break;
    case 'V':
        ensureStarted();
        m_current.setY(base.y() + a[0]);
        path.lineTo(m_current);
        break;
    case 'C':
    case 'S': {
        ensureStarted();
        QPointF c1, c2, end;
        if (upper == 'C') {
            c1 = base + QPointF(a[0], a[1]);
            c2 = base + QPointF(a[2], a[3]);
            end = base + QPointF(a[4], a[5]);
        } else {
            // The first control point mirrors the last one of a preceding cubic.
            c1 = (m_previous == 'C' || m_previous == 'S') ? 2 * m_current - m_lastControl
                                                          : m_current;
            c2 = base + QPointF(a[0], a[1]);
            end = base + QPointF(a[2], a[3]);
        }
        path.cubicTo(c1, c2, end);
        m_lastControl = c2;
        m_current = end;
        break;
    }
    case 'Q':
    case 'T': {
        ensureStarted();
        QPointF c, end;
        if (upper == 'Q') {
            c = base + QPointF(a[0], a[1]);
            end = base + QPointF(a[2], a[3]);
        } else {
            c = (m_previous == 'Q' || m_previous == 'T') ? 2 * m_current - m_lastQuadControl
                                                         : m_current;
            end = base + QPointF(a[0], a[1]);
        }
        path.quadTo(c, end);
        m_lastQuadControl = c;
        m_current = end;
        break;
    }
    case 'A': {
        ensureStarted();
        const QPointF end = base + QPointF(a[5], a[6]);
        appendEndpointArc(path, m_current, a[0], a[1], a[2], a[3] != 0.0, a[4] != 0.0, end);
        m_current = end;
        break;
    }
    case 'Z':
        if (!m_closed)
            path.closeSubpath();
        m_current = m_start;
        m_closed = true;
        break;
    default:
        return false;
    }
    m_previous = upper;
    return true;
}

} // namespace

QPainterPath parseSvgPathData(const QString &d, bool *complete)
{
    SvgNumberScanner in(d);
    PathBuilder builder;
    bool ok = true;
    ushort command = 0;
    in.skipWhitespace();
    while (!in.atEnd()) {
        const ushort c = in.peek().unicode();
        const bool isLetter = (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
        if (isLetter) {
            const ushort upper = c >= 'a' ? ushort(c - 32) : c;
            if (argumentCount(upper) < 0) {
                ok = false;
                break;
            }
            // Path data must open with a move; anything else is in error from the start.
            if (command == 0 && upper != 'M') {
                ok = false;
                break;
            }
            command = c;
            in.advance();
            if (upper == 'Z') {
                builder.apply(command, in);
                in.skipWhitespace();
                continue;
            }
        } else if (command == 0 || !in.startsNumber() || command == 'Z' || command == 'z') {
            // Numbers without a command, or stray characters.
            ok = false;
            break;
        }
        if (!builder.apply(command, in)) {
            ok = false;
            break;
        }
        // Extra pairs after a moveto are linetos of the same kind.
        if (command == 'M')
            command = 'L';
        else if (command == 'm')
            command = 'l';
        in.skipWhitespace();
    }
    if (complete)
        *complete = ok;
    return builder.path;
}

} // namespace lumitra
