#include <uiox_qt/Text.h>

namespace uiox_qt {

QString FromWide(std::wstring_view text) {
  QString result;
  result.reserve(static_cast<qsizetype>(text.size()));
  for (const wchar_t unit : text) {
    const auto value = static_cast<char32_t>(unit);
    if (value <= 0xFFFF) {
      result += QChar(static_cast<char16_t>(value));
    } else if (value <= 0x10FFFF) {
      result += QChar(QChar::highSurrogate(value));
      result += QChar(QChar::lowSurrogate(value));
    } else {
      result += QChar(QChar::ReplacementCharacter);
    }
  }
  return result;
}

std::wstring ToWide(const QString& text) {
  std::wstring result;
  result.reserve(static_cast<std::size_t>(text.size()));
  for (const QChar unit : text) result += static_cast<wchar_t>(unit.unicode());
  return result;
}

}  // namespace uiox_qt
