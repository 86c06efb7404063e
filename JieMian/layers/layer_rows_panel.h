#pragma once

#include "tu_ceng.h"

#include <QList>
#include <QWidget>

class QButtonGroup;
class TuCengItem2;
namespace Ui {
class LayerRowsPanel;
}

// The column of layer rows under a header (columns 50, 60, 50, 60, 50, 50
// pixels). setRows replaces every row by one new TuCengItem2 per record, in
// list order; with no records only a stretch remains. The delete buttons of
// the rows are kept in one button group, their id the row's index.
class LayerRowsPanel : public QWidget
{
    Q_OBJECT

public:
    explicit LayerRowsPanel(QWidget *parent = nullptr);
    ~LayerRowsPanel() override;

    // Old rows are hidden at once and deleted later, so a row may trigger the
    // rebuild that replaces it.
    void setRows(const QList<TuCeng *> &layers);
    QList<TuCengItem2 *> rows() const { return m_rows; }
    QButtonGroup *rowButtons() const { return m_rowButtons; }
    // Every row shows its record's values again.
    void refreshRows();

signals:
    void sendCengChecked(TuCeng *layer, bool checked);
    void sendCengDblClick(TuCeng *layer);
    void layerEdited(TuCeng *layer);
    void deleteRequested(TuCeng *layer);

private:
    Ui::LayerRowsPanel *ui;
    QButtonGroup *m_rowButtons;
    QList<TuCengItem2 *> m_rows;
};
