#include "layer_rows_panel.h"

#include "tu_ceng_item2.h"
#include "ui_layer_rows_panel.h"
#include "wheel_guard.h"

#include <QButtonGroup>
#include <QLabel>
#include <QScrollArea>
#include <QStyle>

namespace {
// Room around a header text.
constexpr int kHeaderPadding = 8;
// Names wider than this many average characters are elided.
constexpr int kNameColumnChars = 16;
} // namespace

LayerRowsPanel::LayerRowsPanel(QWidget *parent)
    : QWidget(parent), ui(new Ui::LayerRowsPanel), m_rowButtons(new QButtonGroup(this))
{
    ui->setupUi(this);
    m_headerOrder = new QLabel(ui->header);
    m_headerOrder->setObjectName(QStringLiteral("header_order"));
    ui->headerLayout->insertWidget(ui->headerLayout->count() - 1, m_headerOrder);
    m_rowButtons->setExclusive(false);
    connect(m_rowButtons, &QButtonGroup::idClicked, this, [this](int id) {
        if (id >= 0 && id < m_rows.size())
            emit deleteRequested(m_rows.at(id)->key());
    });
    lumitra::guardWheel(this);
    measureProbeRows();
    setRows({});
}

LayerRowsPanel::~LayerRowsPanel()
{
    delete ui;
}

QScrollArea *LayerRowsPanel::scrollArea() const
{
    return ui->rowsArea;
}

void LayerRowsPanel::measureProbeRows()
{
    // A vector and a bitmap row measure the mode column for both mode sets, so
    // the columns do not jump when the first bitmap layer appears.
    for (bool bitmap : {false, true}) {
        TuCeng probe(0, bitmap);
        TuCengItem2 row(&probe, this);
        row.hide();
        row.ensurePolished();
        for (int c = 0; c < TuCengItem2::ColumnCount; ++c)
            m_probeWidth[c] = qMax(m_probeWidth[c], row.naturalWidth(TuCengItem2::Column(c)));
        m_rowHeight = qMax(m_rowHeight, row.sizeHint().height());
    }
}

QLabel *LayerRowsPanel::headerCell(int column) const
{
    switch (column) {
    case TuCengItem2::SwatchColumn:
        return ui->header_ceng;
    case TuCengItem2::NameColumn:
        return ui->header_mingcheng;
    case TuCengItem2::OutputColumn:
        return ui->header_shuchu;
    case TuCengItem2::ModeColumn:
        return ui->header_moshi;
    case TuCengItem2::ShowColumn:
        return ui->header_xianshi;
    case TuCengItem2::DeleteColumn:
        return ui->header_delete;
    default:
        return m_headerOrder;
    }
}

void LayerRowsPanel::setRows(const QList<TuCeng *> &layers)
{
    for (QAbstractButton *b : m_rowButtons->buttons())
        m_rowButtons->removeButton(b);
    for (TuCengItem2 *row : qAsConst(m_rows)) {
        row->hide();
        row->disconnect(this);
        row->deleteLater();
    }
    m_rows.clear();
    while (QLayoutItem *item = ui->rowsLayout->takeAt(0))
        delete item; // widgets are already on their way out; this drops the stretch

    ui->header->setVisible(!layers.isEmpty());
    for (TuCeng *layer : layers) {
        auto *row = new TuCengItem2(layer, ui->rowsContainer);
        connect(row, &TuCengItem2::sendCengChecked, this, &LayerRowsPanel::sendCengChecked);
        connect(row, &TuCengItem2::sendCengDblClick, this, &LayerRowsPanel::sendCengDblClick);
        connect(row, &TuCengItem2::editRequested, this, &LayerRowsPanel::editRequested);
        connect(row, &TuCengItem2::moveRequested, this, &LayerRowsPanel::moveRequested);
        row->setMoveEnabled(!m_rows.isEmpty(), m_rows.size() + 1 < layers.size());
        m_rowButtons->addButton(row->deleteButton(), m_rows.size());
        ui->rowsLayout->addWidget(row);
        m_rows.append(row);
    }
    ui->rowsLayout->addStretch();
    layoutColumns();
}

void LayerRowsPanel::layoutColumns()
{
    const int nameLimit = fontMetrics().averageCharWidth() * kNameColumnChars;
    int height = m_rowHeight;
    for (int c = 0; c < TuCengItem2::ColumnCount; ++c) {
        const auto column = TuCengItem2::Column(c);
        QLabel *cell = headerCell(c);
        cell->ensurePolished();
        const int title = cell->fontMetrics().horizontalAdvance(cell->text()) + kHeaderPadding;
        int width = qMax(m_probeWidth[c], title);
        for (const TuCengItem2 *row : qAsConst(m_rows))
            width = qMax(width, row->naturalWidth(column));
        if (column == TuCengItem2::NameColumn)
            width = qMax(m_probeWidth[c], qMin(width, nameLimit));
        m_columnWidth[c] = width;
        cell->setFixedWidth(width);
        for (TuCengItem2 *row : qAsConst(m_rows))
            row->setColumnWidth(column, width);
    }
    for (const TuCengItem2 *row : qAsConst(m_rows))
        height = qMax(height, row->sizeHint().height());
    m_rowHeight = height;
    updateGeometry();
}

QSize LayerRowsPanel::minimumSizeHint() const
{
    const int frame = 2 * ui->rowsArea->frameWidth();
    int width = frame + style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, ui->rowsArea);
    for (int w : m_columnWidth)
        width += w;
    const int rows = kVisibleRows * m_rowHeight + (kVisibleRows - 1) * ui->rowsLayout->spacing();
    return QSize(width, ui->header->sizeHint().height() + rows + frame);
}

QSize LayerRowsPanel::sizeHint() const
{
    return minimumSizeHint();
}

void LayerRowsPanel::refreshRows()
{
    for (TuCengItem2 *row : qAsConst(m_rows))
        row->refresh();
    layoutColumns(); // a name may have changed its width
}
