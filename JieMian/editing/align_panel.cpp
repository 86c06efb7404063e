#include "align_panel.h"

#include "ui_align_panel.h"

using lumitra::Alignment;

AlignPanel::AlignPanel(QWidget *parent) : QWidget(parent), ui(new Ui::AlignPanel)
{
    ui->setupUi(this);
    const std::pair<QToolButton *, Alignment> aligns[] = {
        {ui->zuo_Btn, Alignment::Left},
        {ui->shuipingjuzhong_Btn, Alignment::HorizontalCentre},
        {ui->you_Btn, Alignment::Right},
        {ui->shang_Btn, Alignment::Top},
        {ui->chuizhijuzhong_Btn, Alignment::VerticalCentre},
        {ui->xia_Btn, Alignment::Bottom},
        {ui->gongzuoqu_Btn, Alignment::WorkAreaCentre}};
    for (const auto &a : aligns) {
        const Alignment alignment = a.second;
        connect(a.first, &QToolButton::clicked, this,
                [this, alignment] { emit alignRequested(alignment); });
    }
    connect(ui->hengxiangfenbu_Btn, &QToolButton::clicked, this,
            [this] { emit distributeRequested(Qt::Horizontal); });
    connect(ui->zongxiangfenbu_Btn, &QToolButton::clicked, this,
            [this] { emit distributeRequested(Qt::Vertical); });
}

AlignPanel::~AlignPanel()
{
    delete ui;
}
