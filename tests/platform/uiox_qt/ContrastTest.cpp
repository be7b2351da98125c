#include "TreeFixture.h"

#include <uiox_qt/Contrast.h>
#include <uiox_qt/Icons.h>

#include <QApplication>

#include <algorithm>

#include <uicomps/color/ColorIconBag.h>

namespace uiox_qt_tests {
namespace {

TEST(Contrast, IsThatOfTheGuidelines) {
  EXPECT_NEAR(uiox_qt::Contrast(qRgb(0, 0, 0), qRgb(255, 255, 255)), 21, 1e-9);
  EXPECT_NEAR(uiox_qt::Contrast(qRgb(9, 99, 199), qRgb(9, 99, 199)), 1, 1e-9);
  EXPECT_NEAR(uiox_qt::Contrast(qRgb(255, 255, 255), qRgb(118, 118, 118)), 4.54, 0.005);
}

TEST(Contrast, TextIsReadableOnEveryGround) {
  for (int red = 0; red < 256; red += 15) {
    for (int green = 0; green < 256; green += 15) {
      for (int blue = 0; blue < 256; blue += 15) {
        const QRgb ground = qRgb(red, green, blue);
        ASSERT_GE(uiox_qt::Contrast(uiox_qt::ReadableOn(ground), ground), 4.5) << red << ' ' << green << ' ' << blue;
      }
    }
  }
}

/// Squares of all greys and of full colours on a ground, at a resolution.
class SquareContrastTest : public TreeFixture {
 protected:
  void TearDown() override {
    QApplication::setPalette(QPalette());
    TreeFixture::TearDown();
  }

  static void ExpectSeen(QRgb color, QRgb ground, qreal ratio) {
    const auto number = static_cast<unsigned>(qRed(color) | qGreen(color) << 8 | qBlue(color) << 16);
    const char* const name = oxecad_ui::ColorIconBag::Get().GetColorIcon("color_square.png", number);
    const QImage image = uiox_qt::ImagePixmap(name, 16, ratio).toImage();
    ASSERT_FALSE(image.isNull()) << name;
    const QRgb middle = image.pixel(image.width() / 2, image.height() / 2);
    EXPECT_EQ(middle, color) << name;
    for (int way = 0; way < 4; ++way) {
      const int far = image.width() - 1;
      const QPoint edge[] = {{0, far / 2}, {far, far / 2}, {far / 2, 0}, {far / 2, far}};
      const double seen =
          std::max(uiox_qt::Contrast(middle, ground), uiox_qt::Contrast(image.pixel(edge[way]), ground));
      EXPECT_GE(seen, 3) << name << " on " << std::hex << ground;
    }
  }
};

TEST_F(SquareContrastTest, EverySquareIsSeenOnLightAndDarkGrounds) {
  for (const QRgb ground : {qRgb(255, 255, 255), qRgb(0x1C, 0x1F, 0x23), qRgb(0, 0, 0), qRgb(127, 127, 127)}) {
    QPalette palette;
    palette.setColor(QPalette::Base, QColor(ground));
    palette.setColor(QPalette::Text, QColor(uiox_qt::ReadableOn(ground)));
    QApplication::setPalette(palette);
    for (const qreal ratio : {1.0, 1.5, 2.0, 3.0}) {
      for (int grey = 0; grey < 256; grey += 17) ExpectSeen(qRgb(grey, grey, grey), ground, ratio);
      for (int corner = 0; corner < 8; ++corner) {
        ExpectSeen(qRgb(255 * (corner & 1), 255 * (corner >> 1 & 1), 255 * (corner >> 2 & 1)), ground, ratio);
      }
    }
  }
}

}  // namespace
}  // namespace uiox_qt_tests
