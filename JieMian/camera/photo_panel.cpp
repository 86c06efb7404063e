#include "photo_panel.h"

#include "ui_photo_panel.h"

#include <QCloseEvent>

PhotoPanel::PhotoPanel(QWidget *parent) : QWidget(parent), ui(new Ui::PhotoPanel)
{
    ui->setupUi(this);
    connect(ui->opacity_Slider, &QSlider::valueChanged, this,
            [this] { emit opacityChanged(opacity()); });
    connect(ui->hide_Btn, &QPushButton::toggled, this, &PhotoPanel::hiddenToggled);
    connect(ui->takePhoto_Btn, &QPushButton::clicked, this, &PhotoPanel::takePhotoClicked);
    connect(ui->cancel_Btn, &QPushButton::clicked, this, &PhotoPanel::cancelClicked);
    connect(ui->close_Btn, &QPushButton::clicked, this, &PhotoPanel::closeRequested);
}

PhotoPanel::~PhotoPanel()
{
    delete ui;
}

double PhotoPanel::opacity() const
{
    const QSlider *s = ui->opacity_Slider;
    return double(s->value() - s->minimum()) / double(s->maximum() - s->minimum());
}

bool PhotoPanel::photoHidden() const
{
    return ui->hide_Btn->isChecked();
}

void PhotoPanel::setStatus(const QString &text, bool cancellable)
{
    ui->status_Lab->setText(text);
    ui->cancel_Btn->setEnabled(cancellable);
}

QString PhotoPanel::status() const
{
    return ui->status_Lab->text();
}

QAbstractSlider *PhotoPanel::opacitySlider() const
{
    return ui->opacity_Slider;
}

QAbstractButton *PhotoPanel::hideButton() const
{
    return ui->hide_Btn;
}

QAbstractButton *PhotoPanel::takePhotoButton() const
{
    return ui->takePhoto_Btn;
}

QAbstractButton *PhotoPanel::cancelButton() const
{
    return ui->cancel_Btn;
}

QAbstractButton *PhotoPanel::closeButton() const
{
    return ui->close_Btn;
}

void PhotoPanel::closeEvent(QCloseEvent *event)
{
    // The user closing a floating panel goes through the same question as the
    // close button; the controller hides it when confirmed.
    if (event->spontaneous()) {
        event->ignore();
        emit closeRequested();
        return;
    }
    QWidget::closeEvent(event);
}
