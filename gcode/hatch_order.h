// The order in which hatch spans are burnt.
//
// Spans lie on parallel lines (line k at offset k x spacing); each span runs
// from u0 to u1 (u0 < u1) along its line. The order keeps travel short: from
// the end of one span it goes on to the nearest unburnt span of the next line
// in the current sweep direction that overlaps it, so each connected region is
// swept like a lawn; when there is none it jumps to the nearest unburnt span
// anywhere. Alternating spans are entered at whichever end is nearer (so
// consecutive lines reverse); with oneDirection every span runs u0 to u1.
#pragma once

#include <QVector>

namespace lumitra {

struct HatchSpan
{
    double u0 = 0;
    double u1 = 0;
};

struct HatchLine
{
    double v = 0;             // offset of the line across the hatch direction, mm
    QVector<HatchSpan> spans; // sorted by u0, not overlapping
};

struct OrderedSpan
{
    int line = 0;
    int span = 0;
    bool reversed = false; // burnt from u1 to u0
};

QVector<OrderedSpan> orderHatchSpans(const QVector<HatchLine> &lines, bool oneDirection);

} // namespace lumitra
