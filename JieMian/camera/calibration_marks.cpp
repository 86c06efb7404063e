#include "calibration_marks.h"

#include "calibration.h"
#include "jk_chang_jing.h"
#include "jk_tu_yuan.h"

CalibrationMarks::CalibrationMarks(QObject *parent) : QObject(parent) {}

int CalibrationMarks::addMissing(Jk_chang_jing *scene, int width, int height)
{
    if (!scene)
        return 0;
    if (!m_marks.contains(scene))
        connect(scene, &QObject::destroyed, this, [this, scene] { m_marks.remove(scene); });
    const QVector<QPainterPath> paths = lumitra::camera::calibrationMarkPaths(width, height);
    QList<QPointer<Jk_tu_yuan>> &marks = m_marks[scene];
    while (marks.size() < paths.size())
        marks.append(nullptr);

    QList<Jk_tu_yuan *> added;
    for (int i = 0; i < paths.size(); ++i) {
        Jk_tu_yuan *mark = marks[i];
        if (mark && mark->scene() == scene)
            continue;
        mark = new Jk_tu_yuan(paths[i], 1); // at (0, 0), not selected
        mark->setSelected(false);
        marks[i] = mark;
        added.append(mark);
    }
    scene->addItemsUndoable(added);
    return added.size();
}

QList<Jk_tu_yuan *> CalibrationMarks::marksIn(Jk_chang_jing *scene) const
{
    QList<Jk_tu_yuan *> result;
    for (const QPointer<Jk_tu_yuan> &mark : m_marks.value(scene))
        if (mark && mark->scene() == scene)
            result.append(mark);
    return result;
}
