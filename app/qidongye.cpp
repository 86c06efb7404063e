#include "qidongye.h"
#include "ui_qidongye.h"

#include <QDateTime>
#include <QGuiApplication>
#include <QScreen>
#include <QTimer>

QiDongYe::QiDongYe(QWidget *parent) : QWidget(parent), ui(new Ui::QiDongYe)
{
    ui->setupUi(this);
    setWindowFlags(Qt::FramelessWindowHint | Qt::SplashScreen | Qt::WindowStaysOnTopHint);
    setAttribute(Qt::WA_TranslucentBackground);
    if (const QScreen *screen = QGuiApplication::primaryScreen())
        move(screen->availableGeometry().center() - rect().center());
    m_shownAt = QDateTime::currentMSecsSinceEpoch();
}

QiDongYe::~QiDongYe()
{
    delete ui;
}

void QiDongYe::finish(QWidget *window)
{
    const qint64 elapsed = QDateTime::currentMSecsSinceEpoch() - m_shownAt;
    const int wait = int(qMax<qint64>(0, kMinimumMs - elapsed));
    QTimer::singleShot(wait, this, [this, window] {
        if (window)
            window->raise();
        close();
    });
}
