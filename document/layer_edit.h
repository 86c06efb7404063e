#pragma once

#include "layer_list.h"
#include "tu_ceng.h"

#include <QMetaType>

// Which setting of a layer record an edit changes. Parameters stands for the
// whole parameter set (mode, direction, spacing, overscan, single direction,
// speed, power, output, show and passes) as a saved set fills it.
enum class LayerField {
    Mode,
    Output,
    Show,
    Name,
    Direction,
    Spacing,
    Overscan,
    Speed,
    Power,
    Passes,
    SingleDirection,
    Parameters,
    Kerf,
    CutOrder,
    FineCurves
};

// One edit asked for by the layer rows or the parameter panel: the layer, the
// field and its new value (carried in `value`; its other fields are ignored).
// Successive edits of the same field of the same layer with the same non-zero
// `session` merge into one undo step (a spin box gives each stretch of typing
// or stepping its own session).
struct LayerEdit
{
    LayerKey key;
    LayerField field = LayerField::Mode;
    TuCeng value;
    int session = 0;
};
Q_DECLARE_METATYPE(LayerEdit)

// Copies the fields `field` stands for from one record to another.
void copyLayerField(TuCeng &to, const TuCeng &from, LayerField field);
bool sameLayerField(const TuCeng &a, const TuCeng &b, LayerField field);
