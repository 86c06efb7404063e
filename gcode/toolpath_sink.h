// The receiving end of a toolpath as it is built.
//
// Toolpath builders (the fill hatcher, the raster engraver) hand their moves
// over one at a time instead of building a whole path first, so that a large
// fill or raster never sits in memory. All coordinates are scene millimetres
// (y pointing down the screen); the receiver decides how they are written.
#pragma once

namespace lumitra {

class ToolpathSink
{
public:
    virtual ~ToolpathSink() = default;

    // Travel with the laser off (a move element, written as G0).
    virtual void travel(double x, double y) = 0;
    // Burn in a straight line at the layer's power (a line element).
    virtual void burn(double x, double y) = 0;
    // Move in a straight line at feed speed with the laser at zero power:
    // overscan runs and short gaps, so the head keeps its speed.
    virtual void coast(double x, double y) = 0;
    // Cross a white gap within a raster row of one power with the laser off.
    // A writer that knows the controller switches the laser off on rapid
    // moves may write a rapid; otherwise it is a coast.
    virtual void gap(double x, double y) { coast(x, y); }
    // Burn in a straight line at a power scaled by a grey level: 0 is the
    // layer's full power, 255 (white) none.
    virtual void burnGrey(double x, double y, int grey) = 0;
    // True when the builder should stop (the job was cancelled).
    virtual bool stopRequested() const = 0;
};

} // namespace lumitra
