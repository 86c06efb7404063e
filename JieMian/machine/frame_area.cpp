#include "frame_area.h"

#include "job_origin.h"

QRectF outputBounds(const QList<Jk_tu_yuan *> &items, const LayerList &layers)
{
    return lumitra::jobBounds(items, layers);
}
