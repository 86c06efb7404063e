#pragma once

#include "tu_ceng.h"

#include <QWidget>

class QAbstractButton;
namespace Ui {
class TuCengItem2;
}

// One row of the layer list: the swatch `ceng` (layer number, white on the
// palette colour), the name `mingcheng`, the mode selector `moshi`, the check
// boxes `shuchu` and `xianshi` and the delete button `delete_Btn`. Edits in
// the row are written straight into the record. A click on the row toggles its
// tick (`xuanzhong`), a double-click asks for the parameter panel.
// The row does not own its record; the layer list does.
class TuCengItem2 : public QWidget
{
    Q_OBJECT

public:
    explicit TuCengItem2(TuCeng *layer, QWidget *parent = nullptr);
    ~TuCengItem2() override;

    TuCeng *layer() const { return m_layer; }
    QAbstractButton *deleteButton() const;
    // Shows the record's current values again.
    void refresh();

signals:
    void sendCengChecked(TuCeng *layer, bool checked);
    void sendCengDblClick(TuCeng *layer);
    // The mode, output or show setting was changed in the row.
    void layerEdited(TuCeng *layer);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    void showTick();

    Ui::TuCengItem2 *ui;
    TuCeng *m_layer;
    QColor m_plainBackground;
};
