#pragma once

#include "design_commands.h"
#include "layer_edit.h"
#include "layer_list.h"

// The design items of a scene that belong to a layer.
QList<Jk_tu_yuan *> itemsOfLayer(const Jk_chang_jing *scene, const LayerKey &key);

// Changes one setting of a layer record. The record is looked up by key in the
// program-wide layer list (the current page's layers) each time the command is
// done or undone, since the list may replace its records in between. Undo puts
// back the value the record had when the command was made.
class LayerSettingCommand : public DesignCommand
{
public:
    LayerSettingCommand(Jk_chang_jing *scene, const LayerEdit &edit);

    // False when the list has no such layer or the edit changes nothing; such a
    // command should not be pushed.
    bool isValid() const { return m_valid; }
    LayerKey key() const { return m_key; }
    LayerField field() const { return m_field; }

    int id() const override;
    bool mergeWith(const QUndoCommand *other) override;

protected:
    void apply() override;
    void revert() override;

private:
    LayerKey m_key;
    LayerField m_field;
    TuCeng m_before;
    TuCeng m_after;
    int m_session;
    bool m_valid = false;
};

// Moves a layer to another place in the list; layers are burnt in list order.
class MoveLayerCommand : public DesignCommand
{
public:
    // `to` is the layer's new position in the list.
    MoveLayerCommand(Jk_chang_jing *scene, const LayerKey &key, int to);

    // False when the layer is missing, `to` is out of range or the layer is
    // there already.
    bool isValid() const { return m_valid; }

protected:
    void apply() override;
    void revert() override;

private:
    LayerKey m_key;
    int m_from = -1;
    int m_to = -1;
    bool m_valid = false;
};

// Deletes every item of a layer as one step. The layer's record goes with its
// last item and comes back unchanged, at its old place, on undo (see
// DesignCommand).
class DeleteLayerCommand : public DeleteItemsCommand
{
public:
    DeleteLayerCommand(Jk_chang_jing *scene, const LayerKey &key);
};
