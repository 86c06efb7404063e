#include "jiao_zhun.h"

#include "jiao_zhun_view.h"
#include "ui_jiao_zhun.h"

using lumitra::camera::CalibrationPoints;

JiaoZhun::JiaoZhun(QWidget *parent) : QDialog(parent), ui(new Ui::JiaoZhun)
{
    ui->setupUi(this);
    setWindowModality(Qt::ApplicationModal);
    connect(ui->photo_View, &JiaoZhunView::clicked, this,
            [this](const QPointF &, int count) { onClicked(count); });
    connect(ui->next_Btn, &QPushButton::clicked, this, &JiaoZhun::onButton);
    showCount();
}

JiaoZhun::~JiaoZhun()
{
    delete ui;
}

void JiaoZhun::setPhoto(const QPixmap &photo)
{
    ui->photo_View->setPhoto(photo);
}

void JiaoZhun::reset()
{
    ui->photo_View->reset();
    ui->next_Btn->setText(tr("下一步"));
    m_points = CalibrationPoints();
    m_picked = false;
    showCount();
}

JiaoZhunView *JiaoZhun::view() const
{
    return ui->photo_View;
}

QAbstractButton *JiaoZhun::nextButton() const
{
    return ui->next_Btn;
}

int JiaoZhun::clickCount() const
{
    return ui->photo_View->clickCount();
}

void JiaoZhun::onClicked(int count)
{
    showCount();
    if (count != JiaoZhunView::kClicksNeeded || m_picked)
        return;
    m_points = lumitra::camera::orderClicks(ui->photo_View->clicks());
    m_picked = true;
    ui->next_Btn->setText(tr("关闭"));
    const QPointF *p = m_points.p;
    emit pointsPicked(p[0].x(), p[0].y(), p[1].x(), p[1].y(), p[2].x(), p[2].y(), p[3].x(),
                      p[3].y());
}

void JiaoZhun::onButton()
{
    if (m_picked) {
        accept();
        return;
    }
    emit photoRequested();
}

void JiaoZhun::showCount()
{
    ui->count_Lab->setText(
        tr("已选择 %1/%2 个点").arg(clickCount()).arg(JiaoZhunView::kClicksNeeded));
}
