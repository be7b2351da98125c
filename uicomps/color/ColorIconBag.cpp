#include <uicomps/color/ColorIconBag.h>

#include <charconv>
#include <cstddef>
#include <cstring>
#include <limits>
#include <locale>
#include <sstream>
#include <string_view>

#include <uicomps/toolkit/ImageCalls.h>

namespace oxecad_ui {

using toolkit::kNoColor;

namespace {

constexpr std::size_t kBytesPerPixel = 4;

/// Fills the square inside the image's frame of one pixel: paints row 1 between its first and last pixel, then copies
/// that row, frame included, over the rows below it but the last.
void PaintSquare(const wire::LoadedImage& image, unsigned int color) {
  if (image.Pixels() == nullptr || image.Width() < 1 || image.Height() < 2) return;
  const auto width = static_cast<std::size_t>(image.Width());
  const auto height = static_cast<std::size_t>(image.Height());
  const std::size_t rowBytes = width * kBytesPerPixel;
  unsigned char* const firstRow = image.Pixels() + rowBytes;
  const unsigned char pixel[kBytesPerPixel] = {static_cast<unsigned char>(color & 0xFF),
                                               static_cast<unsigned char>((color >> 8) & 0xFF),
                                               static_cast<unsigned char>((color >> 16) & 0xFF), 1};
  for (std::size_t column = 1; column + 1 < width; ++column) {
    std::memcpy(firstRow + column * kBytesPerPixel, pixel, kBytesPerPixel);
  }
  for (std::size_t row = height - 2; row >= 2; --row) std::memcpy(image.Pixels() + row * rowBytes, firstRow, rowBytes);
}

/// Loads the base image, paints it and defines it under the icon's name. The pixels are gone when this returns.
bool MakeIcon(const char* base, const char* icon, unsigned int color) {
  wire::LoadedImage image(base);
  if (!image.IsLoaded()) return false;
  PaintSquare(image, color);
  image.DefineAs(icon);
  return true;
}

/// What a stream makes of text that is more than a few digits: blanks, signs, numbers too large.
unsigned int ReadNumber(const char* text) {
  std::istringstream stream;
  stream.imbue(std::locale::classic());
  stream.str(text);
  unsigned int number = kNoColor;
  if (!(stream >> number) || !stream.eof()) return kNoColor;
  return number;
}

}  // namespace

ColorIconBag::ColorIconBag() = default;

ColorIconBag::~ColorIconBag() = default;

ColorIconBag& ColorIconBag::Get() {
  static ColorIconBag bag;
  return bag;
}

ColorIconBag::KnownIcons& ColorIconBag::IconsOf(const char* name) {
  for (KnownIcons& known : m_known) {
    if (known.base == name) return known;
  }
  return m_known.emplace_back(KnownIcons{name, {}});
}

const char* ColorIconBag::GetColorIcon(const char* name, unsigned int color) {
  if (color == kNoColor) return nullptr;
  auto& icons = IconsOf(name).icons;
  if (const auto found = icons.find(color); found != icons.end()) return found->second.c_str();
  // Remembered first: when that fails the toolkit has not been asked yet, and is not asked twice.
  const std::string& icon = icons.emplace(color, GetIconName(name, color)).first->second;
  if (MakeIcon(name, icon.c_str(), color)) return icon.c_str();
  IconsOf(name).icons.erase(color);
  return nullptr;
}

std::string ColorIconBag::GetIconName(const char* name, unsigned int color) {
  char digits[std::numeric_limits<unsigned int>::digits10 + 1];
  const std::to_chars_result written = std::to_chars(std::begin(digits), std::end(digits), color);
  const std::string_view base(name);
  const std::string_view number(digits, static_cast<std::size_t>(written.ptr - digits));
  std::string icon;
  icon.reserve(base.size() + 1 + number.size());
  icon.append(base).append(1, '_').append(number);
  return icon;
}

unsigned int ColorIconBag::GetColorFromIcon(const char* icon, const char* name) const {
  const std::size_t length = std::strlen(icon);
  const std::size_t skipped = std::strlen(name) + 1;
  if (length <= skipped) return kNoColor;
  const char* const text = icon + skipped;
  const char* const end = icon + length;
  unsigned int number = 0;
  const std::from_chars_result read = std::from_chars(text, end, number);
  if (read.ec == std::errc() && read.ptr == end) return number;
  return ReadNumber(text);
}

}  // namespace oxecad_ui
