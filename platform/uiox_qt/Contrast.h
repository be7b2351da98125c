/// \file
/// How well colours are told apart by light and dark alone.
#ifndef OXECAD_UIOX_QT_CONTRAST_H
#define OXECAD_UIOX_QT_CONTRAST_H

#include <uiox_qt/Export.h>

#include <QtGui/qrgb.h>

namespace uiox_qt {

/// What a sign or a square must have against what is behind it.
constexpr double kLeastSignContrast = 3;

/// The contrast ratio of two opaque colours by their relative luminance (WCAG 2): from 1, equally light, to 21, black
/// and white.
OXECAD_UIOX_QT_API double Contrast(QRgb a, QRgb b);

/// Black or white, whichever is better read on the ground; at least 4.5 to 1.
OXECAD_UIOX_QT_API QRgb ReadableOn(QRgb ground);

}  // namespace uiox_qt

#endif
