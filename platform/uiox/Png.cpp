#include <uiox/Images.h>

#include <png.h>

namespace uiox {

namespace {

/// Ends the decoder's state in any case.
struct Decoder : png_image {
  Decoder() : png_image{} { version = PNG_IMAGE_VERSION; }
  Decoder(const Decoder&) = delete;
  Decoder& operator=(const Decoder&) = delete;
  ~Decoder() { png_image_free(this); }
};

std::uint8_t Coverage(std::uint8_t alpha) {
  if (alpha == 255) return Image::kOpaque;
  return alpha == 1 ? 2 : alpha;  // 1 would mean opaque
}

}  // namespace

bool DecodePng(const void* data, std::size_t size, Image& image, std::string& why) {
  Decoder decoder;
  if (!png_image_begin_read_from_memory(&decoder, data, size)) {
    why = decoder.message;
    return false;
  }
  constexpr auto kMostSide = static_cast<png_uint_32>(kMaxImageSide);
  if (decoder.width > kMostSide || decoder.height > kMostSide ||
      std::int64_t{decoder.width} * decoder.height > kMaxImagePixels) {
    why = "the image is too large";
    return false;
  }
  decoder.format = PNG_FORMAT_RGBA;
  Image decoded;
  decoded.width = static_cast<int>(decoder.width);
  decoded.height = static_cast<int>(decoder.height);
  decoded.pixels.resize(PNG_IMAGE_SIZE(decoder));
  if (!png_image_finish_read(&decoder, nullptr, decoded.pixels.data(), 0, nullptr)) {
    why = decoder.message;
    return false;
  }
  for (std::size_t i = 3; i < decoded.pixels.size(); i += 4) decoded.pixels[i] = Coverage(decoded.pixels[i]);
  image = std::move(decoded);
  return true;
}

}  // namespace uiox
