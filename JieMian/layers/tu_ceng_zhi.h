#pragma once

#include "layer_edit.h"
#include "layer_list.h"
#include "tu_ceng.h"

#include <QWidget>

class QAbstractSpinBox;
namespace Ui {
class Tu_Ceng_Zhi;
}

// The layer parameter panel: shows one record and asks for every edit
// (editRequested) instead of writing it; whoever applies the edit tells the
// panel to show the record again (refresh). Number boxes ask on every value
// change; the edits of one stretch of typing or stepping in one box carry the
// same session, which ends when the box finishes editing or another layer is
// shown. For a vector layer in line mode the three fill fields (direction,
// spacing, overscan) are blank and read-only. The panel follows its layer by
// key (number and bitmap flag), since the layer list may replace records; it
// does not own the record.
class Tu_Ceng_Zhi : public QWidget
{
    Q_OBJECT

public:
    explicit Tu_Ceng_Zhi(QWidget *parent = nullptr);
    ~Tu_Ceng_Zhi() override;

    // Fills the panel from a record; nullptr empties and disables it. Widgets
    // already showing the record's value are left alone, so text being typed
    // keeps its cursor.
    void setLayer(TuCeng *layer);
    TuCeng *layer() const { return m_layer; }
    // The key of the shown layer; meaningful while layer() is not null.
    LayerKey layerKey() const { return m_key; }
    // Shows the record's values again.
    void refresh() { setLayer(m_layer); }

signals:
    void editRequested(const LayerEdit &edit);
    void confirmed();

private:
    void onModeActivated(int index);
    // Blank and read-only in line mode of a vector layer, else filled and editable.
    void updateFillFields();
    void request(LayerField field, const TuCeng &value, int session);
    template<typename Box, typename Value>
    void bind(Box *box, LayerField field, Value TuCeng::*member);

    Ui::Tu_Ceng_Zhi *ui;
    TuCeng *m_layer = nullptr;
    LayerKey m_key;
    bool m_loading = false;
    int m_session = 1;
};
