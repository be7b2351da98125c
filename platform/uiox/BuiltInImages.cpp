#include <uiox/Images.h>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace uiox {

namespace {

struct Color {
  std::uint8_t red, green, blue;
};

// Told apart with any kind of colour vision, on light and on dark ground.
constexpr Color kFrame{0x60, 0x60, 0x60};
constexpr Color kGround{0xFF, 0xFF, 0xFF};
constexpr Color kDesignA{0xE6, 0x9F, 0x00};
constexpr Color kDesignB{0x38, 0x8E, 0xD1};
constexpr Color kOverlap{0x00, 0x9E, 0x73};
constexpr Color kOutline{0x80, 0x80, 0x80};

/// Parts of the picture of two designs as overlapping discs.
enum Part : unsigned { kOnlyA = 1, kOnlyB = 2, kBoth = 4 };

struct ShowImage {
  const char* name;
  unsigned parts;
};

constexpr ShowImage kShowImages[] = {
    {"ecad_compare_show_both.png", kOnlyA | kBoth | kOnlyB},
    {"ecad_compare_show_a.png", kOnlyA | kBoth},
    {"ecad_compare_show_b.png", kBoth | kOnlyB},
    {"ecad_compare_show_a-b.png", kOnlyA},
    {"ecad_compare_show_b-a.png", kOnlyB},
    {"ecad_compare_show_diff.png", kOnlyA | kOnlyB},
    {"ecad_compare_show_overlap.png", kBoth},
};

Image Blank(int side) {
  Image image;
  image.width = image.height = side;
  image.pixels.resize(4 * static_cast<std::size_t>(side) * static_cast<std::size_t>(side));
  return image;
}

void Paint(Image& image, int x, int y, Color color, std::uint8_t coverage) {
  std::uint8_t* pixel = image.Pixel(x, y);
  pixel[0] = color.red;
  pixel[1] = color.green;
  pixel[2] = color.blue;
  pixel[3] = coverage;
}

int FrameWidth(int side) { return std::max(1, side / 16); }

bool IsFrame(int x, int y, int side) {
  const int frame = FrameWidth(side);
  return x < frame || y < frame || x >= side - frame || y >= side - frame;
}

Image Square(int side) {
  Image image = Blank(side);
  for (int y = 0; y < side; ++y) {
    for (int x = 0; x < side; ++x) Paint(image, x, y, IsFrame(x, y, side) ? kFrame : kGround, Image::kOpaque);
  }
  return image;
}

/// A framed square with thick diagonal stripes: mixed, whatever colours one can see.
Image Mix(int side) {
  Image image = Square(side);
  const int period = std::max(4, side * 5 / 16);
  for (int y = 0; y < side; ++y) {
    for (int x = 0; x < side; ++x) {
      if (!IsFrame(x, y, side) && (x + y) % period < period / 2) Paint(image, x, y, kFrame, Image::kOpaque);
    }
  }
  return image;
}

/// The two discs in a square of side 1.
constexpr double kRadius = 0.31;
constexpr double kLine = 0.05;
constexpr double kCentreA = 0.34;
constexpr double kCentreB = 0.66;

/// The colour of a point, or null where nothing is painted.
const Color* ColorAt(double x, double y, unsigned parts) {
  const double from_a = std::hypot(x - kCentreA, y - 0.5);
  const double from_b = std::hypot(x - kCentreB, y - 0.5);
  if (std::abs(from_a - kRadius) < kLine / 2 || std::abs(from_b - kRadius) < kLine / 2) return &kOutline;
  const bool in_a = from_a < kRadius;
  const bool in_b = from_b < kRadius;
  if (in_a && in_b) return (parts & kBoth) != 0 ? &kOverlap : nullptr;
  if (in_a) return (parts & kOnlyA) != 0 ? &kDesignA : nullptr;
  if (in_b) return (parts & kOnlyB) != 0 ? &kDesignB : nullptr;
  return nullptr;
}

/// A pixel is the mean of a grid of points in it.
Image Discs(int side, unsigned parts) {
  constexpr int kGrid = 4;
  Image image = Blank(side);
  for (int y = 0; y < side; ++y) {
    for (int x = 0; x < side; ++x) {
      int hits = 0;
      int red = 0;
      int green = 0;
      int blue = 0;
      for (int i = 0; i < kGrid * kGrid; ++i) {
        const int column = i % kGrid;
        const int row = i / kGrid;
        const double at_x = (x + (column + 0.5) / kGrid) / side;
        const double at_y = (y + (row + 0.5) / kGrid) / side;
        const Color* color = ColorAt(at_x, at_y, parts);
        if (!color) continue;
        ++hits;
        red += color->red;
        green += color->green;
        blue += color->blue;
      }
      if (hits == 0) continue;
      const auto mean = [hits](int sum) { return static_cast<std::uint8_t>(sum / hits); };
      const int alpha = 255 * hits / (kGrid * kGrid);
      Paint(image, x, y, {mean(red), mean(green), mean(blue)},
            alpha == 255 ? Image::kOpaque : static_cast<std::uint8_t>(alpha));
    }
  }
  return image;
}

}  // namespace

bool DrawBuiltInImage(std::string_view name, int side, Image& image) {
  if (side < 1 || side > kMaxImageSide) return false;
  if (name == "color_square.png") {
    image = Square(side);
    return true;
  }
  if (name == "mix.png") {
    image = Mix(side);
    return true;
  }
  for (const ShowImage& show : kShowImages) {
    if (name != show.name) continue;
    image = Discs(side, show.parts);
    return true;
  }
  return false;
}

}  // namespace uiox
