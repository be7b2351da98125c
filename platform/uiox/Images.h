/// \file
/// Named images.
#ifndef OXECAD_UIOX_IMAGES_H
#define OXECAD_UIOX_IMAGES_H

#include <uiox/Export.h>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace uiox {

/// Four bytes a pixel, row 0 first, no padding: red, green, blue, and how much the pixel covers: 0 not at all, 1
/// wholly, 2 to 255 as an alpha value.
struct Image {
  /// Pixels in a row.
  int width = 0;
  /// Number of rows.
  int height = 0;
  /// 4 × width × height bytes, as said above.
  std::vector<std::uint8_t> pixels;

  /// The fourth byte of a pixel that is not seen.
  static constexpr std::uint8_t kClear = 0;
  /// The fourth byte of a pixel that covers what is below it.
  static constexpr std::uint8_t kOpaque = 1;
  /// The four bytes of a pixel; the place must be inside the image.
  const std::uint8_t* Pixel(int x, int y) const {
    return pixels.data() + 4 * (std::size_t(y) * std::size_t(width) + std::size_t(x));
  }
  /// The same, to be changed.
  std::uint8_t* Pixel(int x, int y) {
    return pixels.data() + 4 * (std::size_t(y) * std::size_t(width) + std::size_t(x));
  }
  /// The fourth byte as an alpha value from 0 to 255.
  static std::uint8_t Alpha(std::uint8_t coverage) { return coverage == kOpaque ? 255 : coverage; }
};

/// Largest width and height of an image, and largest number of its pixels.
constexpr int kMaxImageSide = 16384;
/// Largest number of an image's pixels.
constexpr std::int64_t kMaxImagePixels = 64 * 1024 * 1024;

/// The images of the suite: those that were defined, then PNG files on the resource search path, then the built-in
/// ones.
class OXECAD_UIOX_API ImageBag {
 public:
  ImageBag();
  ~ImageBag();
  ImageBag(const ImageBag&) = delete;
  ImageBag& operator=(const ImageBag&) = delete;

  /// The image of that name, or null. Good until it is defined anew. Files are read once, also when they are damaged.
  const Image* Find(std::string_view name);
  /// Makes or replaces an image; refused for an empty name or a size that is not the pixels' or beyond the limits.
  bool Define(std::string_view name, Image image);
  /// Forgets all but the built-in images.
  void Clear();
  /// How many images are known now: those defined, those read from files, and the built-in ones.
  std::size_t Size() const;

 private:
  struct Entries;
  std::unique_ptr<Entries> entries_;
};

/// Draws a built-in image ("color_square.png", "mix.png", the seven "ecad_compare_show_….png") afresh, `side` pixels
/// wide and high, for screens with more than one pixel to the point. False for another name.
OXECAD_UIOX_API bool DrawBuiltInImage(std::string_view name, int side, Image& image);

/// Decodes a PNG file in memory. False, and why, when it is none, is damaged or beyond the limits.
OXECAD_UIOX_API bool DecodePng(const void* data, std::size_t size, Image& image, std::string& why);

}  // namespace uiox

#endif
