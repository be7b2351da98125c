/// \file
/// Texts between the toolkit and Qt.
#ifndef OXECAD_UIOX_QT_TEXT_H
#define OXECAD_UIOX_QT_TEXT_H

#include <uiox_qt/Export.h>

#include <QString>

#include <string>
#include <string_view>

namespace uiox_qt {

/// A wide text holds UTF-16 code units, as a QString does; a unit beyond U+FFFF becomes the two that it stands for.
OXECAD_UIOX_QT_API QString FromWide(std::wstring_view text);
/// One `wchar_t` for each UTF-16 code unit.
OXECAD_UIOX_QT_API std::wstring ToWide(const QString& text);
/// Names are UTF-8; what is not becomes U+FFFD.
inline QString FromName(std::string_view name) {
  return QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
}

}  // namespace uiox_qt

#endif
