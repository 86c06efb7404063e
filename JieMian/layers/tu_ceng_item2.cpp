#include "tu_ceng_item2.h"

#include "tu_ceng.h"
#include "ui_tu_ceng_item2.h"
#include "wheel_guard.h"

#include <QHBoxLayout>
#include <QMouseEvent>
#include <QStyle>
#include <QToolButton>

namespace {
constexpr int kSwatchFontPx = 14;
// Room around a name so that it never touches the neighbouring columns.
constexpr int kNamePadding = 8;
const QColor kTickedBackground(204, 228, 247);

QToolButton *arrowButton(Qt::ArrowType arrow, const QString &name, const QString &tip,
                         QWidget *parent)
{
    auto *b = new QToolButton(parent);
    b->setObjectName(name);
    b->setArrowType(arrow);
    b->setAutoRaise(true);
    b->setToolTip(tip);
    b->setFocusPolicy(Qt::NoFocus);
    return b;
}
} // namespace

TuCengItem2::TuCengItem2(TuCeng *layer, QWidget *parent)
    : QWidget(parent), ui(new Ui::TuCengItem2), m_layer(layer)
{
    ui->setupUi(this);
    m_plainBackground = palette().color(QPalette::Window);
    setAutoFillBackground(true);

    m_order = new QWidget(this);
    m_order->setObjectName(QStringLiteral("order"));
    auto *orderLayout = new QHBoxLayout(m_order);
    orderLayout->setContentsMargins(0, 0, 0, 0);
    orderLayout->setSpacing(0);
    m_up = arrowButton(Qt::UpArrow, QStringLiteral("up_Btn"), tr("上移图层"), m_order);
    m_down = arrowButton(Qt::DownArrow, QStringLiteral("down_Btn"), tr("下移图层"), m_order);
    orderLayout->addWidget(m_up);
    orderLayout->addWidget(m_down);
    // Before the stretch that closes the row.
    ui->rowLayout->insertWidget(ui->rowLayout->count() - 1, m_order);

    ui->moshi->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    ui->moshi->addItems(modeLabelsForRow(layer->tupian));
    lumitra::guardWheel(this);
    for (int c = 0; c < ColumnCount; ++c)
        m_leastWidth[c] = columnWidget(Column(c))->minimumWidth();
    refresh();
    for (int c = 0; c < ColumnCount; ++c)
        setColumnWidth(Column(c), naturalWidth(Column(c)));

    connect(ui->moshi, QOverload<int>::of(&QComboBox::activated), this, [this](int index) {
        TuCeng value;
        value.moshi = index;
        requestEdit(LayerField::Mode, value);
    });
    connect(ui->shuchu, &QCheckBox::clicked, this, [this](bool on) {
        TuCeng value;
        value.shuchu = on;
        requestEdit(LayerField::Output, value);
    });
    connect(ui->xianshi, &QCheckBox::clicked, this, [this](bool on) {
        TuCeng value;
        value.xianshi = on;
        requestEdit(LayerField::Show, value);
    });
    connect(m_up, &QToolButton::clicked, this, [this] { emit moveRequested(key(), -1); });
    connect(m_down, &QToolButton::clicked, this, [this] { emit moveRequested(key(), +1); });
}

TuCengItem2::~TuCengItem2()
{
    delete ui;
}

QAbstractButton *TuCengItem2::deleteButton() const
{
    return ui->delete_Btn;
}

QAbstractButton *TuCengItem2::upButton() const
{
    return m_up;
}

QAbstractButton *TuCengItem2::downButton() const
{
    return m_down;
}

void TuCengItem2::requestEdit(LayerField field, const TuCeng &value)
{
    emit editRequested(LayerEdit{key(), field, value, 0});
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
    showName();
    ui->moshi->setCurrentIndex(m_layer->moshi);
    ui->shuchu->setChecked(m_layer->shuchu);
    ui->xianshi->setChecked(m_layer->xianshi);
    showTick();
}

void TuCengItem2::setMoveEnabled(bool up, bool down)
{
    m_up->setEnabled(up);
    m_down->setEnabled(down);
}

QWidget *TuCengItem2::columnWidget(Column column) const
{
    switch (column) {
    case SwatchColumn:
        return ui->ceng;
    case NameColumn:
        return ui->mingcheng;
    case OutputColumn:
        return ui->shuchu;
    case ModeColumn:
        return ui->moshi;
    case ShowColumn:
        return ui->xianshi;
    case DeleteColumn:
        return ui->delete_Btn;
    case OrderColumn:
    case ColumnCount:
        break;
    }
    return m_order;
}

int TuCengItem2::naturalWidth(Column column) const
{
    QWidget *w = columnWidget(column);
    w->ensurePolished();
    // The form's widths (50 / 60 px) are the least a column gets.
    int width = qMax(m_leastWidth[column], w->sizeHint().width());
    if (column == NameColumn) {
        const QFontMetrics fm(ui->mingcheng->font());
        width = qMax(width, fm.horizontalAdvance(m_layer->mingcheng) + kNamePadding);
    } else if (column == DeleteColumn) {
        // The text and the button's frame; some styles would widen every
        // button with a text to 80 px, far more than the column needs.
        const QStyle *s = w->style();
        width = qMax(m_leastWidth[column],
                     w->fontMetrics().horizontalAdvance(ui->delete_Btn->text())
                         + 2 * s->pixelMetric(QStyle::PM_ButtonMargin, nullptr, w)
                         + 2 * s->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, w));
    }
    return width;
}

void TuCengItem2::setColumnWidth(Column column, int width)
{
    columnWidget(column)->setFixedWidth(width);
    if (column == NameColumn)
        showName();
}

void TuCengItem2::showName()
{
    const QString &name = m_layer->mingcheng;
    const QFontMetrics fm(ui->mingcheng->font());
    const int room = ui->mingcheng->maximumWidth() - kNamePadding;
    const bool fits = fm.horizontalAdvance(name) <= room;
    ui->mingcheng->setText(fits ? name : fm.elidedText(name, Qt::ElideRight, room));
    ui->mingcheng->setToolTip(fits ? QString() : name);
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
