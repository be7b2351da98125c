#include <uiox_qt/Contrast.h>

#include <algorithm>
#include <cmath>

namespace uiox_qt {
namespace {

double Linear(int level) {
  const double value = level / 255.0;
  return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double Luminance(QRgb color) {
  return 0.2126 * Linear(qRed(color)) + 0.7152 * Linear(qGreen(color)) + 0.0722 * Linear(qBlue(color));
}

}  // namespace

double Contrast(QRgb a, QRgb b) {
  const auto [darker, lighter] = std::minmax({Luminance(a), Luminance(b)});
  return (lighter + 0.05) / (darker + 0.05);
}

QRgb ReadableOn(QRgb ground) {
  constexpr QRgb kBlack = qRgb(0, 0, 0);
  constexpr QRgb kWhite = qRgb(255, 255, 255);
  return Contrast(ground, kBlack) >= Contrast(ground, kWhite) ? kBlack : kWhite;
}

}  // namespace uiox_qt
