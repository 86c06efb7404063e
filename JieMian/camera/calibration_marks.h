#pragma once

#include <QHash>
#include <QList>
#include <QObject>
#include <QPointer>

class Jk_chang_jing;
class Jk_tu_yuan;

// The five calibration marks (four crosses and the frame) as vector items,
// created once per scene: asking again adds only the marks that are no
// longer items of that scene (deleted by the user, or never added).
// GUI thread only.
class CalibrationMarks : public QObject
{
    Q_OBJECT

public:
    explicit CalibrationMarks(QObject *parent = nullptr);

    // Adds the missing marks for a work area of `width` × `height` mm to
    // `scene`, deselected, as one undoable add. Returns how many were added.
    int addMissing(Jk_chang_jing *scene, int width, int height);

    // The marks made for `scene` that are items of it now.
    QList<Jk_tu_yuan *> marksIn(Jk_chang_jing *scene) const;

private:
    // Per scene: one slot per mark, in the order of calibrationMarkPaths.
    QHash<Jk_chang_jing *, QList<QPointer<Jk_tu_yuan>>> m_marks;
};
