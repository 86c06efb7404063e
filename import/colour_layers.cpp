#include "colour_layers.h"

#include "jk_tu_yuan.h"
#include "layer_list.h"
#include "settings_store.h"
#include "tu_ceng.h"

#include <algorithm>
#include <tuple>

namespace lumitra {

bool colourLayersEnabled()
{
    return get_setting(kColourLayersSetting) == QLatin1String("1");
}

void setColourLayersEnabled(bool on)
{
    set_setting(kColourLayersSetting, on ? QStringLiteral("1") : QStringLiteral("0"));
}

namespace {

// Squared distance with the usual weights of a quick perceptual colour difference.
int colourDistance(QRgb a, QRgb b)
{
    const int r = (qRed(a) + qRed(b)) / 2;
    const int dr = qRed(a) - qRed(b), dg = qGreen(a) - qGreen(b), db = qBlue(a) - qBlue(b);
    return ((512 + r) * dr * dr >> 8) + 4 * dg * dg + ((767 - r) * db * db >> 8);
}

} // namespace

QVector<int> assignColourLayers(const QVector<QRgb> &colours)
{
    const int n = colours.size();
    QVector<int> layer(n, -1);
    std::vector<std::tuple<int, int, int>> pairs; // distance, colour, layer
    pairs.reserve(size_t(n) * kLayerCount);
    for (int c = 0; c < n; ++c)
        for (int l = 0; l < kLayerCount; ++l)
            pairs.emplace_back(colourDistance(colours[c], layerColor(l).rgb()), c, l);
    std::sort(pairs.begin(), pairs.end());
    QVector<bool> taken(kLayerCount, false);
    int left = n;
    for (const auto &[d, c, l] : pairs) {
        if (left == 0)
            break;
        if (layer[c] >= 0 || taken[l])
            continue;
        layer[c] = l;
        taken[l] = true;
        --left;
    }
    // More colours than layers: the rest share their nearest.
    for (int c = 0; c < n; ++c)
        if (layer[c] < 0) {
            int best = 0;
            for (int l = 1; l < kLayerCount; ++l)
                if (colourDistance(colours[c], layerColor(l).rgb())
                    < colourDistance(colours[c], layerColor(best).rgb()))
                    best = l;
            layer[c] = best;
        }
    return layer;
}

QRgb aciColour(int index)
{
    static const QRgb first[10] = {qRgb(0, 0, 0),      qRgb(255, 0, 0),   qRgb(255, 255, 0),
                                   qRgb(0, 255, 0),    qRgb(0, 255, 255), qRgb(0, 0, 255),
                                   qRgb(255, 0, 255),  qRgb(0, 0, 0),     qRgb(128, 128, 128),
                                   qRgb(192, 192, 192)};
    if (index <= 0 || index > 255)
        return qRgb(0, 0, 0);
    if (index < 10)
        return first[index];
    if (index >= 250) {
        const int grey = 51 + (index - 250) * 204 / 5 * 1; // 51 .. 255 in six steps
        return qRgb(grey, grey, grey);
    }
    // 10..249: 24 hues 15 degrees apart; in each, five brightness steps, each full and
    // half saturated.
    const int hue = (index - 10) / 10 * 15;
    const int v = (index - 10) % 10;
    static const int value[5] = {255, 165, 127, 76, 38};
    const QColor c = QColor::fromHsv(hue, v % 2 ? 127 : 255, value[v / 2]);
    return c.rgb();
}

QVector<int> applyColourLayers(const QList<ColourGroup> &groups)
{
    QVector<QRgb> colours;
    for (const ColourGroup &g : groups)
        colours.append(g.colour);
    const QVector<int> layers = assignColourLayers(colours);
    LayerList &list = LayerList::instance();
    for (int i = 0; i < groups.size(); ++i) {
        for (Jk_tu_yuan *item : groups[i].items)
            item->layer_id = layers[i];
        bool bitmapOnly = !groups[i].items.isEmpty();
        for (const Jk_tu_yuan *item : groups[i].items)
            bitmapOnly = bitmapOnly && item->is_bitmap;
        if (bitmapOnly || list.find(layers[i], false))
            continue;
        auto *record = new TuCeng(layers[i], false);
        record->mingcheng = groups[i].origin;
        list.append(record);
    }
    return layers;
}

} // namespace lumitra
