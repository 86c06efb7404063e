#include "tu_ceng_item2.h"

#include "tu_ceng.h"
#include "ui_tu_ceng_item2.h"

#include <QMouseEvent>

namespace {
constexpr int kSwatchFontPx = 14;
const QColor kTickedBackground(204, 228, 247);
} // namespace

TuCengItem2::TuCengItem2(TuCeng *layer, QWidget *parent)
    : QWidget(parent), ui(new Ui::TuCengItem2), m_layer(layer)
{
    ui->setupUi(this);
    m_plainBackground = palette().color(QPalette::Window);
    setAutoFillBackground(true);
    ui->moshi->addItems(modeLabelsForRow(layer->tupian));
    refresh();

    connect(ui->moshi, QOverload<int>::of(&QComboBox::activated), this, [this](int index) {
        m_layer->moshi = index;
        emit layerEdited(m_layer);
    });
    connect(ui->shuchu, &QCheckBox::clicked, this, [this](bool on) {
        m_layer->shuchu = on;
        emit layerEdited(m_layer);
    });
    connect(ui->xianshi, &QCheckBox::clicked, this, [this](bool on) {
        m_layer->xianshi = on;
        emit layerEdited(m_layer);
    });
}

TuCengItem2::~TuCengItem2()
{
    delete ui;
}

QAbstractButton *TuCengItem2::deleteButton() const
{
    return ui->delete_Btn;
}

void TuCengItem2::refresh()
{
    const QColor c = layerColor(m_layer->yanse);
    // The swatch text follows the screen's scale like the rest of the form.
    const int fontPx = qRound(kSwatchFontPx * logicalDpiX() / 96.0);
    ui->ceng->setText(layerLabel(m_layer->yanse));
    ui->ceng->setStyleSheet(QStringLiteral("color: white; background-color: rgb(%1, %2, %3);"
                                           " border-right: 1px solid #E6E6E6; font-size: %4px;")
                                .arg(c.red())
                                .arg(c.green())
                                .arg(c.blue())
                                .arg(fontPx));
    ui->mingcheng->setText(m_layer->mingcheng);
    ui->moshi->setCurrentIndex(m_layer->moshi);
    ui->shuchu->setChecked(m_layer->shuchu);
    ui->xianshi->setChecked(m_layer->xianshi);
    showTick();
}

void TuCengItem2::showTick()
{
    QPalette p = palette();
    p.setColor(QPalette::Window, m_layer->xuanzhong ? kTickedBackground : m_plainBackground);
    setPalette(p);
    update();
}

void TuCengItem2::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        QWidget::mousePressEvent(event);
        return;
    }
    m_layer->xuanzhong = !m_layer->xuanzhong;
    emit sendCengChecked(m_layer, m_layer->xuanzhong);
    showTick();
}

void TuCengItem2::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        emit sendCengDblClick(m_layer);
    else
        QWidget::mouseDoubleClickEvent(event);
}
