#pragma once

#include "layer_edit.h"
#include "tu_ceng.h"

#include <QWidget>

class QAbstractButton;
class QToolButton;
namespace Ui {
class TuCengItem2;
}

// One row of the layer list: the swatch `ceng` (layer number, white on the
// palette colour), the name `mingcheng`, the mode selector `moshi`, the check
// boxes `shuchu` and `xianshi`, the delete button `delete_Btn` and two small
// buttons that move the layer up or down the list. The row never writes a
// setting into its record: it asks for the edit (editRequested) and shows the
// record again when told to (refresh). A click on the row toggles its tick
// (`xuanzhong`), a double-click asks for the parameter panel.
// The row does not own its record; the layer list does.
class TuCengItem2 : public QWidget
{
    Q_OBJECT

public:
    // The widgets of the row's columns, left to right, as the header names them.
    enum Column {
        SwatchColumn,
        NameColumn,
        OutputColumn,
        ModeColumn,
        ShowColumn,
        DeleteColumn,
        OrderColumn,
        ColumnCount
    };

    explicit TuCengItem2(TuCeng *layer, QWidget *parent = nullptr);
    ~TuCengItem2() override;

    TuCeng *layer() const { return m_layer; }
    LayerKey key() const { return LayerKey{m_layer->yanse, m_layer->tupian}; }
    QAbstractButton *deleteButton() const;
    QAbstractButton *upButton() const;
    QAbstractButton *downButton() const;
    // Shows the record's current values again.
    void refresh();
    // The first row cannot move up, the last not down.
    void setMoveEnabled(bool up, bool down);

    QWidget *columnWidget(Column column) const;
    // The width a column needs to show its content uncut.
    int naturalWidth(Column column) const;
    // Fixes a column's width; a name wider than its column is elided and shown
    // whole in the tooltip.
    void setColumnWidth(Column column, int width);

signals:
    void sendCengChecked(TuCeng *layer, bool checked);
    void sendCengDblClick(TuCeng *layer);
    // The mode, output or show setting was changed in the row.
    void editRequested(const LayerEdit &edit);
    // Up (-1) or down (+1) the list.
    void moveRequested(const LayerKey &key, int step);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    void showTick();
    void showName();
    void requestEdit(LayerField field, const TuCeng &value);

    Ui::TuCengItem2 *ui;
    TuCeng *m_layer;
    QColor m_plainBackground;
    QWidget *m_order = nullptr;
    QToolButton *m_up = nullptr;
    QToolButton *m_down = nullptr;
    int m_leastWidth[ColumnCount] = {};
};
