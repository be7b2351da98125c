#include <uiox/Images.h>
#include <uiox/Suite.h>
#include <uiox_qt/Icons.h>

#include <gtest/gtest.h>

#include <set>

namespace uiox_qt_tests {
namespace {

constexpr qreal kRatios[] = {1, 1.5, 2, 3};

class SharpnessTest : public ::testing::Test {
 protected:
  void SetUp() override { uiox::Suite::Get().Reset(); }
  void TearDown() override { uiox::Suite::Get().Reset(); }
};

TEST_F(SharpnessTest, ImagesOfTheToolkitAreDrawnForEachResolution) {
  for (const char* name : {"mix.png", "ecad_compare_show_a-b.png", "color_square.png"}) {
    for (const qreal ratio : kRatios) {
      const int side = qRound(16 * ratio);
      uiox::Image drawn;
      ASSERT_TRUE(uiox::DrawBuiltInImage(name, side, drawn));
      const QPixmap pixmap = uiox_qt::ImagePixmap(name, 16, ratio);
      EXPECT_EQ(pixmap.size(), QSize(side, side));
      EXPECT_EQ(pixmap.devicePixelRatio(), ratio);
      const QImage image = pixmap.toImage().convertToFormat(QImage::Format_RGBA8888);
      for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
          const std::uint8_t* pixel = drawn.Pixel(x, y);
          if (uiox::Image::Alpha(pixel[3]) != 255) continue;
          ASSERT_EQ(image.pixel(x, y), qRgb(pixel[0], pixel[1], pixel[2]))
              << name << ' ' << ratio << ' ' << x << ',' << y;
        }
      }
    }
  }
}

TEST_F(SharpnessTest, DefinedImagesKeepTheirColoursInWholeMultiples) {
  uiox::Image board;
  board.width = board.height = 16;
  for (int i = 0; i < 16 * 16; ++i) {
    const bool light = (i / 16 + i % 16) % 2 == 0;
    const auto level = static_cast<std::uint8_t>(light ? 255 : 0);
    for (const std::uint8_t part : {level, level, level, uiox::Image::kOpaque}) board.pixels.push_back(part);
  }
  ASSERT_TRUE(uiox::Suite::Get().Images().Define("sharpness.png", board));
  for (const qreal ratio : kRatios) {
    const QImage image = uiox_qt::ImagePixmap("sharpness.png", 16, ratio).toImage();
    ASSERT_EQ(image.width(), qRound(16 * ratio));
    std::set<QRgb> colors;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) colors.insert(image.pixel(x, y));
    }
    EXPECT_EQ(colors, (std::set<QRgb>{0xFF000000, 0xFFFFFFFF})) << ratio;
  }
}

}  // namespace
}  // namespace uiox_qt_tests
