#include <uiox_qt/ImageScaling.h>

#include <vector>

namespace uiox_qt {
namespace {

/// For each new pixel the old one: both halves are counted from their own edge.
std::vector<int> Sources(int from, int to) {
  std::vector<int> sources(static_cast<std::size_t>(to));
  for (int i = 0; i < to; ++i) {
    const bool upper = 2 * i >= to;
    const int from_edge = static_cast<int>(std::int64_t{upper ? to - 1 - i : i} * from / to);
    sources[static_cast<std::size_t>(i)] = upper ? from - 1 - from_edge : from_edge;
  }
  return sources;
}

}  // namespace

QImage ToQImage(const uiox::Image& image) {
  QImage result(image.width, image.height, QImage::Format_ARGB32);
  for (int y = 0; y < image.height; ++y) {
    auto* line = reinterpret_cast<QRgb*>(result.scanLine(y));
    for (int x = 0; x < image.width; ++x) {
      const std::uint8_t* pixel = image.Pixel(x, y);
      line[x] = qRgba(pixel[0], pixel[1], pixel[2], uiox::Image::Alpha(pixel[3]));
    }
  }
  return result.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

QImage Enlarged(const QImage& image, QSize size) {
  const QImage source = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
  QImage result(size, QImage::Format_ARGB32_Premultiplied);
  const std::vector<int> columns = Sources(source.width(), size.width());
  const std::vector<int> rows = Sources(source.height(), size.height());
  for (int y = 0; y < size.height(); ++y) {
    const auto* from = reinterpret_cast<const QRgb*>(source.constScanLine(rows[static_cast<std::size_t>(y)]));
    auto* to = reinterpret_cast<QRgb*>(result.scanLine(y));
    for (int x = 0; x < size.width(); ++x) to[x] = from[columns[static_cast<std::size_t>(x)]];
  }
  return result;
}

}  // namespace uiox_qt
