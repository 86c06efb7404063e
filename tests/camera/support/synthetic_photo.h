#pragma once

#include <QByteArray>
#include <QImage>
#include <QPointF>
#include <QSize>
#include <QTransform>

// A camera still of a burnt calibration: the five marks of a 400 x 400 mm
// work area, black on white, seen through a perspective with a keystone
// (the far edge about 18 % narrower than the near one), delivered upside
// down as the camera sends it.
struct SyntheticPhoto
{
    QImage upright;  // the photo after the program turns it by 180°
    QByteArray jpeg; // the camera's bytes: `upright` turned back, JPEG-encoded
    QTransform view; // scene mm (y down, -400..0) to continuous pixels of `upright`
    // The cross centres in pixel-index coordinates of `upright` (pixel (i, j)
    // has its centre at (i, j)): top-left, top-right, bottom-right, bottom-left.
    QPointF centres[4];
};

// `size` is the photo's size; the work area fills most of it.
SyntheticPhoto makeSyntheticPhoto(const QSize &size = QSize(1600, 1200));

// Centre of the dark cross nearest `expected` in `image`: the darkness-weighted
// centroid of the pixels within `radius` of `expected` that lie in the two arm
// bands (|dx| <= band or |dy| <= band), which keeps the frame's corner out.
QPointF findCrossCentre(const QImage &image, const QPointF &expected, int radius = 8, int band = 3);
