#include "layer_palette_bar.h"

#include "program_state.h"
#include "tu_ceng.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QPushButton>

namespace {
const QString kTick = QStringLiteral("√");

QString buttonStyle(int number)
{
    const QColor c = layerColor(number);
    return QStringLiteral("QPushButton { background-color: rgb(%1, %2, %3); color: %4;"
                          " border: none; font-size: 10px; padding: 0px; }")
        .arg(c.red())
        .arg(c.green())
        .arg(c.blue())
        .arg(layerUsesDarkText(number) ? QStringLiteral("black") : QStringLiteral("white"));
}
} // namespace

LayerPaletteBar::LayerPaletteBar(QWidget *parent) : QWidget(parent), m_group(new QButtonGroup(this))
{
    m_group->setExclusive(true);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(kSpacing);
    for (int n = 0; n < kLayerCount; ++n) {
        auto *b = new QPushButton(layerLabel(n), this);
        b->setObjectName(layerLabel(n));
        b->setCheckable(true);
        b->setFixedSize(kButtonSize, kButtonSize);
        b->setStyleSheet(buttonStyle(n));
        b->setFocusPolicy(Qt::NoFocus);
        m_group->addButton(b, n);
        layout->addWidget(b);
    }
    layout->addStretch();
    connect(m_group, QOverload<QAbstractButton *>::of(&QButtonGroup::buttonClicked), this,
            &LayerPaletteBar::onClicked);
    tick(0);
}

QAbstractButton *LayerPaletteBar::button(int number) const
{
    return m_group->button(number);
}

void LayerPaletteBar::setCheckedLayer(int number)
{
    if (number >= 0 && number < kLayerCount)
        tick(number);
}

void LayerPaletteBar::tick(int number)
{
    if (QAbstractButton *old = m_group->button(m_checked))
        old->setText(layerLabel(m_checked));
    m_checked = number;
    QAbstractButton *b = m_group->button(number);
    b->setChecked(true);
    b->setText(kTick);
}

void LayerPaletteBar::onClicked(QAbstractButton *button)
{
    // The number is read back from the button's name.
    bool ok = false;
    const int number = button->objectName().toInt(&ok);
    if (!ok)
        return;
    tick(number);
    lumitra::programState().currentLayer = number;
    emit layerPicked(number);
}
