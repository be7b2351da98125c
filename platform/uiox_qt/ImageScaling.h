/// \file
/// Images of the suite as Qt images.
#ifndef OXECAD_UIOX_QT_IMAGESCALING_H
#define OXECAD_UIOX_QT_IMAGESCALING_H

#include <uiox/Images.h>

#include <QImage>
#include <QSize>

namespace uiox_qt {

/// A copy in a format that Qt paints fast.
QImage ToQImage(const uiox::Image& image);

/// Enlarges without blurring: each pixel stays a rectangle of one colour, and an image that is symmetric stays so, also
/// where the factor is no whole number.
QImage Enlarged(const QImage& image, QSize size);

}  // namespace uiox_qt

#endif
