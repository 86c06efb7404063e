#include "import_actions.h"

#include "import_items.h"
#include "jk_tu_yuan.h"
#include "message_box.h"
#include "moshiyulan.h"

ImportActions::ImportActions(QWidget *window) : QObject(window), m_window(window) {}

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
