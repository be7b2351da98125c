#include <uicomps/dialogs/MarkupTags.h>

#include <uicomps/toolkit/Toolkit.h>

namespace oxecad_ui {

using toolkit::kNoColor;

namespace {

/// Red, green and blue, two lower-case hexadecimal digits each.
std::string ColorDigits(unsigned int color) {
  constexpr char kDigits[] = "0123456789abcdef";
  std::string digits;
  for (int channel = 0; channel < 3; ++channel, color >>= 8) {
    digits += kDigits[(color >> 4) & 0xF];
    digits += kDigits[color & 0xF];
  }
  return digits;
}

std::string FontOpening(unsigned int color) { return "<font color=#" + ColorDigits(color) + ">"; }
std::string BackgroundOpening(unsigned int color) { return "<span style=\"background:" + ColorDigits(color) + "\">"; }

constexpr const char* kFontClosing = "</font>";
constexpr const char* kBackgroundClosing = "</span>";

/// Tags are plain ASCII.
std::wstring Widen(const std::string& tag) { return std::wstring(tag.begin(), tag.end()); }

}  // namespace

void GetFontColorTags(unsigned int color, std::string& opening, std::string& closing) {
  if (color == kNoColor) return;
  opening = FontOpening(color);
  closing = kFontClosing;
}

void GetFontColorTags(unsigned int color, std::wstring& opening, std::wstring& closing) {
  if (color == kNoColor) return;
  opening = GetFontColorOpeningTag(color);
  closing = GetFontColorClosingTag();
}

std::wstring GetFontColorOpeningTag(unsigned int color) { return Widen(FontOpening(color)); }

std::wstring GetFontColorClosingTag() { return Widen(kFontClosing); }

void GetBgColorTags(unsigned int color, std::string& opening, std::string& closing) {
  if (color == kNoColor) return;
  opening = BackgroundOpening(color);
  closing = kBackgroundClosing;
}

void GetBgColorTags(unsigned int color, std::wstring& opening, std::wstring& closing) {
  if (color == kNoColor) return;
  opening = Widen(BackgroundOpening(color));
  closing = Widen(kBackgroundClosing);
}

}  // namespace oxecad_ui
