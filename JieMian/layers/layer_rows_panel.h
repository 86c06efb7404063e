#pragma once

#include "layer_edit.h"
#include "tu_ceng.h"
#include "tu_ceng_item2.h"

#include <QList>
#include <QWidget>

class QButtonGroup;
class QLabel;
class QScrollArea;
namespace Ui {
class LayerRowsPanel;
}

// The column of layer rows under a header. setRows replaces every row by one
// new TuCengItem2 per record, in list order; with no records only a stretch
// remains. The delete buttons of the rows are kept in one button group, their
// id the row's index. Columns are at least 50, 60, 50, 60, 50 and 50 pixels
// wide and grow to what the header and every row need (the widest mode label
// of both mode sets in the current language, the longest name up to a limit
// beyond which names are elided), so that header and rows stay aligned. The
// panel asks for room for six rows (minimumSizeHint and sizeHint); more rows
// scroll.
class LayerRowsPanel : public QWidget
{
    Q_OBJECT

public:
    static constexpr int kVisibleRows = 6;

    explicit LayerRowsPanel(QWidget *parent = nullptr);
    ~LayerRowsPanel() override;

    // Old rows are hidden at once and deleted later, so a row may trigger the
    // rebuild that replaces it.
    void setRows(const QList<TuCeng *> &layers);
    QList<TuCengItem2 *> rows() const { return m_rows; }
    QButtonGroup *rowButtons() const { return m_rowButtons; }
    QScrollArea *scrollArea() const;
    // Every row shows its record's values again.
    void refreshRows();

    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

    // The row a point of the rows container (its own coordinates) falls on,
    // clamped to the first and last row; -1 without rows.
    int rowIndexAt(int containerY) const;

protected:
    // Dragging a row up or down asks to move its layer (moveRequested with the
    // rows it travelled); a press that is released without a drag ticks the
    // row as a click always did.
    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    void sendCengChecked(TuCeng *layer, bool checked);
    void sendCengDblClick(TuCeng *layer);
    void editRequested(const LayerEdit &edit);
    void moveRequested(const LayerKey &key, int step);
    void deleteRequested(const LayerKey &key);

private:
    void measureProbeRows();
    void layoutColumns();
    QLabel *headerCell(int column) const;

    Ui::LayerRowsPanel *ui;
    QButtonGroup *m_rowButtons;
    QLabel *m_headerOrder;
    QList<TuCengItem2 *> m_rows;
    int m_probeWidth[TuCengItem2::ColumnCount] = {};
    int m_columnWidth[TuCengItem2::ColumnCount] = {};
    int m_rowHeight = 0;
    TuCengItem2 *m_pressedRow = nullptr;
    QPoint m_pressPos; // global
    bool m_dragging = false;
    bool m_replaying = false;
};
