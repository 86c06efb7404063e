#pragma once

#include "calibration.h"

#include <QDialog>
#include <QPixmap>

class JiaoZhunView;
class QAbstractButton;

namespace Ui {
class JiaoZhun;
}

// The camera calibration dialog (application-modal). The photo of the burnt
// marks is handed in with setPhoto; the user clicks the four cross centres in
// any order. On the fourth click the clicks are ordered (P1 top-left, P2
// top-right, P3 bottom-right, P4 bottom-left, photo pixels), pointsPicked is
// emitted and the button turns from "下一步" into "关闭", which then closes
// the dialog. Before that, the button asks for a photo (photoRequested).
// GUI thread only.
class JiaoZhun : public QDialog
{
    Q_OBJECT

public:
    explicit JiaoZhun(QWidget *parent = nullptr);
    ~JiaoZhun() override;

    void setPhoto(const QPixmap &photo);
    // No photo, button "下一步", no clicks, all points zero.
    void reset();

    JiaoZhunView *view() const;
    QAbstractButton *nextButton() const;
    int clickCount() const;
    // The ordered points once four clicks were made; zero before.
    lumitra::camera::CalibrationPoints points() const { return m_points; }

signals:
    // P1..P4 in photo pixels of the turned photo.
    void pointsPicked(double x1, double y1, double x2, double y2, double x3, double y3, double x4,
                      double y4);
    // "下一步" before the four clicks: the user wants a (new) photo.
    void photoRequested();

private:
    void onClicked(int count);
    void onButton();
    void showCount();

    Ui::JiaoZhun *ui;
    lumitra::camera::CalibrationPoints m_points;
    bool m_picked = false;
};
