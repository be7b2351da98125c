#include <viewer/trees/CompareTree.h>
#include <viewer/window/BoardScene.h>
#include <viewer/window/Legend.h>
#include <viewer/window/Theme.h>

#include <QColor>
#include <QLabel>

#include <gtest/gtest.h>
#include <tests/viewer/window/WindowFixture.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include <uiox_qt/Icons.h>

namespace oxviewer::testing {
namespace {

using Vector = std::array<double, 3>;
using Matrix = std::array<Vector, 3>;

/// What eyes with one kind of cones missing see of linear red, green and blue (Machado, Oliveira and Fernandes, 2009).
constexpr Matrix kNormal{{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};
constexpr Matrix kNoRed{
    {{0.152286, 1.052583, -0.204868}, {0.114503, 0.786281, 0.099216}, {-0.003882, -0.048116, 1.051998}}};
constexpr Matrix kNoGreen{
    {{0.367322, 0.860646, -0.227968}, {0.280085, 0.672501, 0.047413}, {-0.011820, 0.042940, 0.968881}}};
constexpr Matrix kNoBlue{
    {{1.255528, -0.076749, -0.178779}, {-0.078411, 0.930809, 0.147602}, {0.004733, 0.691367, 0.303900}}};
/// The same to linear X, Y and Z.
constexpr Matrix kToXyz{
    {{0.4124564, 0.3575761, 0.1804375}, {0.2126729, 0.7151522, 0.0721750}, {0.0193339, 0.1191920, 0.9503041}}};

Vector Times(const Matrix& matrix, const Vector& v) {
  Vector result{};
  for (std::size_t row = 0; row < 3; ++row) {
    for (std::size_t i = 0; i < 3; ++i) result[row] += matrix[row][i] * v[i];
  }
  return result;
}

Vector Linear(const QColor& color) {
  const auto linear = [](double c) { return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
  return {linear(color.redF()), linear(color.greenF()), linear(color.blueF())};
}

/// CIE L*a*b* as an eye sees it.
Vector Seen(const Vector& linear, const Matrix& eye) {
  Vector seen = Times(eye, linear);
  for (double& c : seen) c = std::clamp(c, 0.0, 1.0);
  const Vector xyz = Times(kToXyz, seen);
  const auto curve = [](double t) { return t > 216.0 / 24389 ? std::cbrt(t) : (24389.0 / 27 * t + 16) / 116; };
  const double x = curve(xyz[0] / 0.95047);
  const double y = curve(xyz[1]);
  const double z = curve(xyz[2] / 1.08883);
  return {116 * y - 16, 500 * (x - y), 200 * (y - z)};
}

QColor ToQt(Color color) { return {RedOf(color), GreenOf(color), BlueOf(color)}; }

double Contrast(const QColor& a, const QColor& b) {
  const double first = Times(kToXyz, Linear(a))[1] + 0.05;
  const double second = Times(kToXyz, Linear(b))[1] + 0.05;
  return std::max(first, second) / std::min(first, second);
}

/// What the sign for "mixed" looks like from afar.
Vector MeanOfMixSign() {
  const QImage sign = uiox_qt::ImagePixmap("mix.png", 16, 1).toImage();
  Vector sum{};
  for (int y = 0; y < sign.height(); ++y) {
    for (int x = 0; x < sign.width(); ++x) {
      const Vector pixel = Linear(sign.pixelColor(x, y));
      for (std::size_t i = 0; i < 3; ++i) sum[i] += pixel[i] / (sign.width() * sign.height());
    }
  }
  return sum;
}

TEST(ComparePalette, IsToldApartByEveryKindOfEye) {
  const std::vector<std::pair<const char*, Vector>> colors{{"A", Linear(ToQt(CompareTree::kColorA))},
                                                           {"B", Linear(ToQt(CompareTree::kColorB))},
                                                           {"both", Linear(ToQt(CompareTree::kColorOverlap))},
                                                           {"mix", MeanOfMixSign()}};
  const std::pair<const char*, Matrix> eyes[] = {
      {"all cones", kNormal}, {"no red", kNoRed}, {"no green", kNoGreen}, {"no blue", kNoBlue}};
  for (const auto& [eyeName, eye] : eyes) {
    for (std::size_t i = 0; i < colors.size(); ++i) {
      for (std::size_t j = i + 1; j < colors.size(); ++j) {
        const Vector a = Seen(colors[i].second, eye);
        const Vector b = Seen(colors[j].second, eye);
        EXPECT_GE(std::hypot(a[0] - b[0], a[1] - b[1], a[2] - b[2]), 20)
            << eyeName << ": " << colors[i].first << " and " << colors[j].first;
      }
    }
  }
}

TEST(ComparePalette, IsSeenOnTheGroundsOfBothThemesAndOfTheBoard) {
  for (const Color color : {CompareTree::kColorA, CompareTree::kColorB, CompareTree::kColorOverlap}) {
    for (const Theme theme : {Theme::Light, Theme::Dark}) {
      EXPECT_GE(Contrast(ToQt(color), PaletteOf(theme, QPalette()).color(QPalette::Base)), 3) << NameOf(theme);
    }
    EXPECT_GE(Contrast(ToQt(color), QColor(ViewStyle().background)), 3);
  }
}

class LegendTest : public WindowFixture {};

TEST_F(LegendTest, NamesTheVisibleLayersTheComparisonAndTheShowModes) {
  Show(SmallBoard(kWindowBoard));
  ClickCheckBox(Window().LayersPanel(), "layer:B.Cu");
  for (QAction* action : Window().findChildren<QAction*>()) {
    if (QString(action->text()).remove('&') == "Legend") action->trigger();
  }
  const auto* legend = Window().findChild<Legend*>();
  ASSERT_TRUE(legend);
  QStringList words;
  for (const QLabel* label : legend->findChildren<QLabel*>()) words << label->text();
  for (const char* word : {"F.Cu (red)", "Only in A (orange)", "Only in B (blue)", "In both (grey)", "A without B",
                           "what differs", "Mixed: what is below differs"}) {
    EXPECT_TRUE(words.contains(word)) << word << " in " << words.join('|').toStdString();
  }
  EXPECT_TRUE(words.filter("B.Cu").isEmpty());
  TreePanel& layers = Window().LayersPanel();
  const QImage square =
      uiox_qt::ImagePixmap(layers.View().Model().ImageName(layers.View().Tree()->Store().Find("layer:F.Cu")), 16, 1)
          .toImage();
  ASSERT_FALSE(square.isNull());
  const QList<QLabel*> labels = legend->findChildren<QLabel*>();
  EXPECT_TRUE(std::any_of(labels.begin(), labels.end(), [&](const QLabel* label) {
    return label->pixmap(Qt::ReturnByValue).toImage() == square;
  })) << "the square of the tree";
}

}  // namespace
}  // namespace oxviewer::testing
