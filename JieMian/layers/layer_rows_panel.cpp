#include "layer_rows_panel.h"

#include "tu_ceng_item2.h"
#include "ui_layer_rows_panel.h"

#include <QButtonGroup>

LayerRowsPanel::LayerRowsPanel(QWidget *parent)
    : QWidget(parent), ui(new Ui::LayerRowsPanel), m_rowButtons(new QButtonGroup(this))
{
    ui->setupUi(this);
    m_rowButtons->setExclusive(false);
    connect(m_rowButtons, &QButtonGroup::idClicked, this, [this](int id) {
        if (id >= 0 && id < m_rows.size())
            emit deleteRequested(m_rows.at(id)->layer());
    });
    setRows({});
}

LayerRowsPanel::~LayerRowsPanel()
{
    delete ui;
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
        connect(row, &TuCengItem2::layerEdited, this, &LayerRowsPanel::layerEdited);
        m_rowButtons->addButton(row->deleteButton(), m_rows.size());
        ui->rowsLayout->addWidget(row);
        m_rows.append(row);
    }
    ui->rowsLayout->addStretch();
}

void LayerRowsPanel::refreshRows()
{
    for (TuCengItem2 *row : qAsConst(m_rows))
        row->refresh();
}
