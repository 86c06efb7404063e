// Where a job starts on the machine.
//
// A job is normally written in the design's own coordinates (absolute mode:
// canvas x, machine Y = -y). In the two relative modes the whole job is moved so
// that one chosen point of its output bounds, the anchor, lands on the start
// point: the head's last reported position ("current position") or 0,0 of the
// work coordinates, the origin set with G92 ("user origin").
//
// The move is applied to the numbers the generator writes; no G92 line is
// emitted. GRBL keeps a G92 offset until it is cleared or the controller
// resets, so a job that set one would change every later jog, frame and
// "go to origin" of the session (and a stopped job would leave it behind).
// Writing shifted coordinates leaves the controller's state as the user set it,
// keeps the job file readable on its own and lets the preview, the framing and
// the work-area check see exactly where the laser goes.
//
// Units: millimetres; machine coordinates have Y up (machine Y = -scene y).
// The settings live in the store under "QiDian/...". Pure functions apart from
// load/save; any thread.
#pragma once

#include <QList>
#include <QPointF>
#include <QRectF>
#include <QString>
#include <QStringList>

class Jk_tu_yuan;
class LayerList;

namespace lumitra {

enum class StartMode { Absolute = 0, CurrentPosition = 1, UserOrigin = 2 };

// The anchor: a point of a 3 x 3 grid over the output bounds, numbered row by
// row from the top left as the machine sees it (top = +Y, away from the user):
// 0 top left, 1 top centre, 2 top right, 3 left centre, 4 centre, 5 right
// centre, 6 bottom left, 7 bottom centre, 8 bottom right.
constexpr int kAnchorCount = 9;
constexpr int kAnchorCentre = 4;
constexpr int kAnchorBottomLeft = 6;

struct JobStart
{
    StartMode mode = StartMode::Absolute;
    int anchor = kAnchorBottomLeft;
    // The head's last reported position, machine mm (current-position mode).
    bool headKnown = false;
    QPointF head;

    bool relative() const { return mode != StartMode::Absolute; }
};

// The settings keys.
extern const char *const kStartModeKey;   // "QiDian/MoShi": 0, 1 or 2
extern const char *const kStartAnchorKey; // "QiDian/MaoDian": 0..8

// Mode and anchor from the settings store (absolute, bottom left when missing
// or out of range); the head is left unknown.
JobStart loadJobStart();
void saveJobStart(const JobStart &start);

// The union of what the job burns (items on layers switched to output), scene
// mm; empty when nothing is output.
QRectF jobBounds(const QList<Jk_tu_yuan *> &items, const LayerList &layers);

// The anchor point of `sceneBounds` in machine coordinates.
QPointF anchorPoint(const QRectF &sceneBounds, int anchor);

// The shift added to every machine coordinate of the job: none in absolute
// mode; head - anchor for the current position; -anchor for the user origin.
// None either when the bounds are empty (nothing to place). False, with the
// shift left as it was, when the current position is needed and not known.
bool jobShift(const JobStart &start, const QRectF &sceneBounds, QPointF *shift);

// A scene rectangle moved by a machine shift (scene y = -machine Y).
QRectF shiftSceneRect(const QRectF &sceneRect, const QPointF &machineShift);

// The headless export's "--origin" value: "absolute", or "user" with an
// optional anchor after a colon ("user:centre"). Anchor names are those of
// anchorNames(). The current position is not known without a machine, so that
// mode is not offered there. False with a one-line reason otherwise.
bool parseOriginOption(const QString &text, JobStart *out, QString *error);
// "top-left", "top", "top-right", "left", "centre", "right", "bottom-left",
// "bottom", "bottom-right", by anchor number.
QStringList anchorNames();

} // namespace lumitra
