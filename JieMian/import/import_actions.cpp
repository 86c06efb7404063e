#include "import_actions.h"

#include "import_items.h"
#include "jk_tu_yuan.h"
#include "moshiyulan.h"

ImportActions::ImportActions(QWidget *window) : QObject(window), m_window(window) {}

MoShiYuLan *ImportActions::openModePreview(const QList<QGraphicsItem *> &selected)
{
    const Jk_tu_yuan *item = lumitra::singleSelectedBitmap(selected);
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
    Jk_tu_yuan *traced = lumitra::traceBitmapItem(lumitra::singleSelectedBitmap(selected));
    if (!traced)
        return false;
    emit itemsCreated({traced});
    return true;
}
