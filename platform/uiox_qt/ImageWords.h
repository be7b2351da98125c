/// \file
/// What the suite's images say, in words.
#ifndef OXECAD_UIOX_QT_IMAGEWORDS_H
#define OXECAD_UIOX_QT_IMAGEWORDS_H

#include <uiox_qt/Export.h>

#include <QColor>
#include <QString>

#include <optional>
#include <string_view>

namespace uiox_qt {

/// The everyday word for a colour ("red", "light blue"), translated: the nearest of some twenty, as the eye measures.
OXECAD_UIOX_QT_API QString ColorWord(QRgb color);

/// The colour of a colour square by the image's name ("color_square.png_255"); nothing for any other image.
OXECAD_UIOX_QT_API std::optional<QRgb> ColorOfSquare(std::string_view image);

/// "colour red", "mixed", "only A" and so on for an image of the suite, translated; empty for one without a meaning.
OXECAD_UIOX_QT_API QString ImageWords(std::string_view image);

/// A label in words: its text, and for each image of its markup the image's words.
OXECAD_UIOX_QT_API QString LabelWords(const QString& label, bool markup);

}  // namespace uiox_qt

#endif
