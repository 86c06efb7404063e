#include "layer_commands.h"

#include "jk_chang_jing.h"
#include "jk_tu_yuan.h"

#include <QCoreApplication>

namespace {
// Command id shared by the setting edits so that QUndoStack offers them to
// each other for merging.
constexpr int kLayerSettingId = 0x4c59;
} // namespace

QList<Jk_tu_yuan *> itemsOfLayer(const Jk_chang_jing *scene, const LayerKey &key)
{
    QList<Jk_tu_yuan *> items;
    if (!scene)
        return items;
    for (Jk_tu_yuan *item : scene->designItems())
        if (item->layer_id == key.number && item->is_bitmap == key.bitmap)
            items.append(item);
    return items;
}

LayerSettingCommand::LayerSettingCommand(Jk_chang_jing *scene, const LayerEdit &edit)
    : DesignCommand(scene, QCoreApplication::translate("DesignCommand", "修改图层参数")),
      m_key(edit.key), m_field(edit.field), m_session(edit.session)
{
    if (const TuCeng *layer = LayerList::instance().find(edit.key)) {
        m_before = *layer;
        m_after = *layer;
        copyLayerField(m_after, edit.value, edit.field);
        m_valid = !sameLayerField(m_before, m_after, m_field);
    }
}

int LayerSettingCommand::id() const
{
    return m_session != 0 ? kLayerSettingId : -1;
}

bool LayerSettingCommand::mergeWith(const QUndoCommand *other)
{
    const auto *next = dynamic_cast<const LayerSettingCommand *>(other);
    if (!next || next->m_session != m_session || !(next->m_key == m_key)
        || next->m_field != m_field)
        return false;
    copyLayerField(m_after, next->m_after, m_field);
    // Typed back to where it started: the step is dropped.
    setObsolete(sameLayerField(m_before, m_after, m_field));
    return true;
}

void LayerSettingCommand::apply()
{
    if (TuCeng *layer = LayerList::instance().find(m_key))
        copyLayerField(*layer, m_after, m_field);
}

void LayerSettingCommand::revert()
{
    if (TuCeng *layer = LayerList::instance().find(m_key))
        copyLayerField(*layer, m_before, m_field);
}

MoveLayerCommand::MoveLayerCommand(Jk_chang_jing *scene, const LayerKey &key, int to)
    : DesignCommand(scene, QCoreApplication::translate("DesignCommand", "移动图层")), m_key(key),
      m_to(to)
{
    const LayerList &list = LayerList::instance();
    m_from = list.indexOf(key);
    m_valid = m_from >= 0 && to >= 0 && to < list.count() && to != m_from;
}

void MoveLayerCommand::apply()
{
    LayerList &list = LayerList::instance();
    list.move(list.indexOf(m_key), m_to);
}

void MoveLayerCommand::revert()
{
    LayerList &list = LayerList::instance();
    list.move(list.indexOf(m_key), m_from);
}

DeleteLayerCommand::DeleteLayerCommand(Jk_chang_jing *scene, const LayerKey &key)
    : DeleteItemsCommand(scene, itemsOfLayer(scene, key),
                         QCoreApplication::translate("DesignCommand", "删除图层"))
{
}
