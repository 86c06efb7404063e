// Raster jobs sized for the wire: short number words, power in the steps the
// controller can produce, and the byte rate a raster needs at its feed.
//
// Raster lines are many and short, so their words are written as short as the
// controller reads them: no trailing zeros (X224.1, X224, never "-0") and S as
// a whole number. GRBL turns S into one of its PWM values: 0 for S0, 1 up to
// sMin ($31), then 254 levels spread evenly up to 255 at sMax ($30); greys
// whose power falls on the same level burn alike and are written with the
// same S. Pure functions, reentrant.
#pragma once

#include "gcode_number.h"

#include <array>

namespace lumitra {

// A serial link at 115,200 baud carries ten bits per byte.
constexpr double kSerialBytesPerSecond = 11520.0;

struct PowerSteps
{
    double sMin = 0.0;    // S of the lowest PWM level ($31)
    double sMax = 1000.0; // S of full PWM ($30)
    int steps = 256;      // PWM values, off included (0 .. 255)
};

// The PWM value the controller sets for `s` (0 off, 1 .. steps - 1), worked
// out as GRBL 1.1 does: floor((s - sMin) x 254 / (sMax - sMin)) + 1 between
// the two, 1 at or below sMin, 255 at or above sMax, in single precision.
int pwmLevel(double s, const PowerSteps &steps);

// The whole-number S that makes the controller produce the same PWM value as
// `s`: 0 stays 0 (laser off); every level has one S (the roundest in it), so
// greys on the same level are written alike.
int quantisedPower(double s, const PowerSteps &steps);

// S for every grey level (0 black .. 255 white) of a layer burning at `power`
// (S at grey 0): quantisedPower(power x (255 - grey) / 255).
std::array<int, 256> greyPowerTable(double power, const PowerSteps &steps);

// Drops trailing zeros after the point, the point when nothing follows it,
// and a zero before the point ("224.10" -> "224.1", "5.00" -> "5",
// "0.50" -> ".5", "-0.10" -> "-.1"): the controller reads ".5" as 0.5.
void trimPacked(PackedNumber &number);

// The value of a packed two-decimal text (trimmed or not) in hundredths.
qint64 packedHundredths(const PackedNumber &number);

// What a raster section asks of the link.
struct WireLoad
{
    double bytesPerSecond = 0.0; // needed at the section's feed
    double fastestFeed = 0.0;    // mm/min the link can feed (whole, rounded down)
    bool exceeds = false;        // more than the link carries
};

// `bytes` of G-code spread over `feedLength` mm of moves at `feed` mm/min,
// against a link carrying `linkBytesPerSecond`. Nothing exceeds when the
// section has no length or no feed.
WireLoad wireLoad(double bytes, double feedLength, double feed,
                  double linkBytesPerSecond = kSerialBytesPerSecond);

} // namespace lumitra
