#include "bitmap_trace.h"

#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <potracelib.h>

namespace lumitra {

namespace {

constexpr int kWordBits = int(sizeof(potrace_word) * CHAR_BIT);
constexpr potrace_word kLeftmostBit = potrace_word(1) << (kWordBits - 1);

// Rows are stored top row first, so potrace's y axis runs down the image like Qt's and no
// flip is needed when the curves come back. Pixel x of a row sits in word x / kWordBits,
// the most significant bit being the leftmost pixel.
bool fillBitmap(potrace_bitmap_t &bm, const QImage &image)
{
    bm.w = image.width();
    bm.h = image.height();
    bm.dy = (bm.w + kWordBits - 1) / kWordBits;
    bm.map = static_cast<potrace_word *>(
        std::calloc(size_t(bm.dy) * size_t(bm.h) + 1, sizeof(potrace_word)));
    if (!bm.map)
        return false;
    const QImage argb = image.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < bm.h; ++y) {
        const QRgb *line = reinterpret_cast<const QRgb *>(argb.constScanLine(y));
        potrace_word *row = bm.map + size_t(y) * size_t(bm.dy);
        for (int x = 0; x < bm.w; ++x) {
            // Opaque and not pure white (R + B + grey reaches 765 only for white).
            const QRgb c = line[x];
            if (qAlpha(c) == 255 && (c & 0x00ffffffu) != 0x00ffffffu)
                row[x / kWordBits] |= kLeftmostBit >> (x % kWordBits);
        }
    }
    return true;
}

QPainterPath curvesToPath(const potrace_path_t *list, double scale, const QPointF &offset)
{
    auto place = [&](const potrace_dpoint_t &p) {
        return QPointF(p.x * scale + offset.x(), p.y * scale + offset.y());
    };
    QPainterPath path;
    for (const potrace_path_t *p = list; p; p = p->next) {
        const potrace_curve_t &curve = p->curve;
        if (curve.n <= 0)
            continue;
        path.moveTo(place(curve.c[curve.n - 1][2]));
        for (int i = 0; i < curve.n; ++i) {
            const potrace_dpoint_t *c = curve.c[i];
            if (curve.tag[i] == POTRACE_CORNER) {
                path.lineTo(place(c[1]));
                path.lineTo(place(c[2]));
            } else {
                path.cubicTo(place(c[0]), place(c[1]), place(c[2]));
            }
        }
    }
    return path;
}

} // namespace

std::optional<QPainterPath> traceBitmap(const QImage &image, double scale, const QPointF &offset)
{
    if (image.isNull())
        return QPainterPath();

    potrace_bitmap_t bm{};
    if (!fillBitmap(bm, image)) {
        std::fprintf(stderr, "Error allocating bitmap: %s\n", std::strerror(errno));
        return std::nullopt;
    }
    potrace_param_t *param = potrace_param_default();
    if (!param) {
        std::fprintf(stderr, "Error allocating parameters: %s\n", std::strerror(errno));
        std::free(bm.map);
        return std::nullopt;
    }
    param->turdsize = 0;

    potrace_state_t *state = potrace_trace(param, &bm);
    std::free(bm.map);
    if (!state || state->status != POTRACE_STATUS_OK) {
        std::fprintf(stderr, "Error tracing bitmap: %s\n", std::strerror(errno));
        if (state)
            potrace_state_free(state);
        potrace_param_free(param);
        return std::nullopt;
    }
    QPainterPath path = curvesToPath(state->plist, scale, offset);
    potrace_state_free(state);
    potrace_param_free(param);
    return path;
}

} // namespace lumitra
