// What a GRBL 1.1 controller would refuse in a job, for tests of generated jobs.
#pragma once

#include <QByteArray>
#include <QString>

// Checks every line of `job`: at most 80 characters; only printable ASCII
// without the real-time characters "?", "!" and "~"; comments start with ";";
// other lines are words G0 G1 G90 G91, M2 M4 M5 M8 M9 M30, X Y Z S F with
// well-formed numbers, no letter twice in a line; a G1 move needs a positive
// feed set on an earlier or the same line. Returns an empty string when the
// job passes, else "line N: reason" for the first problem.
QString grblProblem(const QByteArray &job);
