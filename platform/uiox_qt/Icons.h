/// \file
/// The suite's images for Qt.
#ifndef OXECAD_UIOX_QT_ICONS_H
#define OXECAD_UIOX_QT_ICONS_H

#include <uiox_qt/Export.h>

#include <QIcon>
#include <QPixmap>
#include <QSize>

#include <string_view>

namespace uiox_qt {

/// The side of icons in trees, menus and buttons, in device-independent pixels.
constexpr int kIconSide = 16;

/// An image by its name, for `side` device-independent pixels on a device with `ratio` pixels to each; null when there
/// is no such image. The images that come with the toolkit are drawn for that size; others keep their pixels' edges
/// when they are enlarged. A colour square that could hardly be seen on the application's ground for lists has a frame.
OXECAD_UIOX_QT_API QPixmap ImagePixmap(std::string_view name, int side, qreal ratio);

/// An image was defined anew: what was made of it is forgotten.
void ForgetImage(std::string_view name);
/// What was made of all images is forgotten: nobody watches them any more, or their letters are those of another
/// language.
OXECAD_UIOX_QT_API void ForgetImages();

/// Whether colour squares show the first letter of their colour's word, for eyes that cannot tell all colours apart.
/// Not at first.
OXECAD_UIOX_QT_API void ShowLettersInSquares(bool shown);

/// An icon of an image; null icon when there is no such image. It is drawn for each size and device anew.
OXECAD_UIOX_QT_API QIcon ImageIcon(std::string_view name);

}  // namespace uiox_qt

#endif
