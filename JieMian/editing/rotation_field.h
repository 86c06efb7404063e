#pragma once

#include <QObject>

class DesignPages;
class EditController;
class QDoubleSpinBox;
class QTimer;

// The window's "旋转角度：" box. It shows the angle of the selection (the
// accumulated `jiao_du` of the first selected item, within ±360°) and is
// disabled with nothing selected. A value typed and confirmed with Enter turns
// the selection to that angle as one undo step; confirming the angle it
// already has (Enter again, or the box losing focus) does nothing. After a
// turn the keyboard focus goes back to the canvas, so the next Ctrl+Z undoes
// the turn instead of the typing in the box.
class RotationField : public QObject
{
    Q_OBJECT

public:
    RotationField(QDoubleSpinBox *box, EditController *edit, DesignPages *pages,
                  QObject *parent = nullptr);

    // The angle shown for the current selection, degrees.
    double selectionAngle() const;

private:
    void apply();
    void showSelection();

    QDoubleSpinBox *m_box;
    EditController *m_edit;
    DesignPages *m_pages;
    QTimer *m_refresh;
};
