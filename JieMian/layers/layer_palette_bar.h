#pragma once

#include <QWidget>

class QAbstractButton;
class QButtonGroup;

// The row of 30 layer colour buttons (20 x 20 pixels, spacing 8) in one
// exclusive group. Each button is named and labelled "00".."29"; the current
// one shows "√" instead. Clicking a button makes its number the program-wide
// current layer and emits layerPicked; moving the selected items to that
// layer is the controller's job.
class LayerPaletteBar : public QWidget
{
    Q_OBJECT

public:
    static constexpr int kButtonSize = 20;
    static constexpr int kSpacing = 8;

    explicit LayerPaletteBar(QWidget *parent = nullptr);

    QAbstractButton *button(int number) const;
    int checkedLayer() const { return m_checked; }
    // Shows `number` as current without emitting layerPicked.
    void setCheckedLayer(int number);

signals:
    void layerPicked(int number);

private:
    void onClicked(QAbstractButton *button);
    void tick(int number);

    QButtonGroup *m_group;
    int m_checked = 0;
};
