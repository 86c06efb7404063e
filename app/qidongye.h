#pragma once

#include <QWidget>

namespace Ui {
class QiDongYe;
}

// The splash shown while the main window is built: a frameless picture that
// stays up for a short minimum time so it does not merely flicker.
class QiDongYe : public QWidget
{
    Q_OBJECT

public:
    explicit QiDongYe(QWidget *parent = nullptr);
    ~QiDongYe() override;

    // Closes the splash once `window` is shown and at least kMinimumMs have
    // passed since the splash appeared.
    void finish(QWidget *window);

    static constexpr int kMinimumMs = 900;

private:
    Ui::QiDongYe *ui;
    qint64 m_shownAt = 0;
};
