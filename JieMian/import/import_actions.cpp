#include "import_actions.h"

#include "colour_layers.h"
#include "import_items.h"
#include "jk_tu_yuan.h"
#include "message_box.h"
#include "moshiyulan.h"

#include <QAction>

ImportActions::ImportActions(QWidget *window)
    : QObject(window), m_window(window), m_colourLayers(new QAction(tr("按颜色分图层"), this))
{
    m_colourLayers->setObjectName(QStringLiteral("colourLayers_Act"));
    m_colourLayers->setCheckable(true);
    m_colourLayers->setChecked(lumitra::colourLayersEnabled());
    m_colourLayers->setToolTip(tr("导入时每种颜色放到单独的图层"));
    connect(m_colourLayers, &QAction::toggled, this, &lumitra::setColourLayersEnabled);
}

QList<QAction *> ImportActions::actions() const
{
    return {m_colourLayers};
}

const Jk_tu_yuan *ImportActions::bitmapOrSay(const QList<QGraphicsItem *> &selected) const
{
    const Jk_tu_yuan *item = lumitra::singleSelectedBitmap(selected);
    if (!item)
        lumitra::show_notice(m_window, tr("请先选择一张位图!"));
    return item;
}

MoShiYuLan *ImportActions::openModePreview(const QList<QGraphicsItem *> &selected)
{
    const Jk_tu_yuan *item = bitmapOrSay(selected);
    if (!item)
        return nullptr;
    auto *dialog = new MoShiYuLan(m_window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->show();
    dialog->setImage(item->source_image);
    return dialog;
}

bool ImportActions::traceSelection(const QList<QGraphicsItem *> &selected)
{
    const Jk_tu_yuan *bitmap = bitmapOrSay(selected);
    if (!bitmap)
        return false;
    Jk_tu_yuan *traced = lumitra::traceBitmapItem(bitmap);
    if (!traced) {
        lumitra::show_notice(m_window, tr("位图中没有可描摹的轮廓!"));
        return false;
    }
    emit itemsCreated({traced});
    return true;
}
