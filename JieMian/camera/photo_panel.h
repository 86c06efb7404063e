#pragma once

#include <QWidget>

class QAbstractButton;
class QAbstractSlider;
class QLabel;

namespace Ui {
class PhotoPanel;
}

// The small panel of the camera photo: how opaque the photo under the design
// is, whether it is hidden, the take-photo button, and a status line of the
// photo fetch with a cancel button. Says what the user did; the camera
// controller decides. GUI thread only.
class PhotoPanel : public QWidget
{
    Q_OBJECT

public:
    explicit PhotoPanel(QWidget *parent = nullptr);
    ~PhotoPanel() override;

    // 0 (invisible) .. 1 (opaque).
    double opacity() const;
    bool photoHidden() const;

    // The status line; `cancellable` enables the cancel button.
    void setStatus(const QString &text, bool cancellable);
    QString status() const;

    QAbstractSlider *opacitySlider() const;
    QAbstractButton *hideButton() const;
    QAbstractButton *takePhotoButton() const;
    QAbstractButton *cancelButton() const;
    QAbstractButton *closeButton() const;

signals:
    void opacityChanged(double opacity);
    void hiddenToggled(bool hidden);
    void takePhotoClicked();
    void cancelClicked();
    // The close button, or the user closing the panel's own window.
    void closeRequested();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    Ui::PhotoPanel *ui;
};
