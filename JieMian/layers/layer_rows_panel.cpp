#include "layer_rows_panel.h"

#include "tu_ceng_item2.h"
#include "ui_layer_rows_panel.h"
#include "wheel_guard.h"

#include <QApplication>
#include <QButtonGroup>
#include <QLabel>
#include <QMouseEvent>
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
    m_pressedRow = nullptr;
    m_dragging = false;
    for (TuCengItem2 *row : qAsConst(m_rows)) {
        row->hide();
        row->removeEventFilter(this);
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
        row->installEventFilter(this);
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

int LayerRowsPanel::rowIndexAt(int containerY) const
{
    if (m_rows.isEmpty())
        return -1;
    for (int i = 0; i < m_rows.size(); ++i) {
        if (containerY < m_rows[i]->geometry().bottom())
            return i;
    }
    return m_rows.size() - 1;
}

bool LayerRowsPanel::eventFilter(QObject *watched, QEvent *event)
{
    auto *row = qobject_cast<TuCengItem2 *>(watched);
    if (!row || m_replaying || !m_rows.contains(row))
        return QWidget::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::MouseButtonPress: {
        auto *e = static_cast<QMouseEvent *>(event);
        if (e->button() != Qt::LeftButton)
            break;
        // Held back until the release tells a click from a drag.
        m_pressedRow = row;
        m_pressPos = e->globalPos();
        m_dragging = false;
        return true;
    }
    case QEvent::MouseMove: {
        auto *e = static_cast<QMouseEvent *>(event);
        if (m_pressedRow != row)
            break;
        if (!m_dragging
            && (e->globalPos() - m_pressPos).manhattanLength()
                   >= QApplication::startDragDistance()) {
            m_dragging = true;
            row->setCursor(Qt::SizeVerCursor);
        }
        return m_dragging;
    }
    case QEvent::MouseButtonRelease: {
        auto *e = static_cast<QMouseEvent *>(event);
        if (e->button() != Qt::LeftButton || m_pressedRow != row)
            break;
        m_pressedRow = nullptr;
        if (!m_dragging) {
            // A click: the row ticks as it did before rows could be dragged.
            QMouseEvent press(QEvent::MouseButtonPress, e->localPos(), e->windowPos(),
                              e->screenPos(), Qt::LeftButton, Qt::LeftButton, e->modifiers());
            m_replaying = true;
            QCoreApplication::sendEvent(row, &press);
            m_replaying = false;
            return true;
        }
        m_dragging = false;
        row->unsetCursor();
        const int from = m_rows.indexOf(row);
        const int to = rowIndexAt(ui->rowsContainer->mapFromGlobal(e->globalPos()).y());
        if (from >= 0 && to >= 0 && to != from)
            emit moveRequested(row->key(), to - from);
        return true;
    }
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}
