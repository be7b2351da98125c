#include <uiox_qt/ImageWords.h>

#include <uiox_qt/Markup.h>
#include <uiox_qt/Text.h>

#include <QCoreApplication>
#include <QStringList>

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>

namespace uiox_qt {
namespace {

constexpr const char* kContext = "uiox_qt::ImageWords";
constexpr std::string_view kSquare = "color_square.png_";

struct NamedColor {
  QRgb color;
  const char* word;
};

constexpr NamedColor kColors[] = {
    {0xFF000000, QT_TRANSLATE_NOOP("uiox_qt::ImageWords", "black")},
    {0xFF505050, QT_TRANSLATE_NOOP("uiox_qt::ImageWords", "dark grey")},
    {0xFF888888, QT_TRANSLATE_NOOP("uiox_qt::ImageWords", "grey")},
    {0xFFC4C4C4, QT_TRANSLATE_NOOP("uiox_qt::ImageWords", "light grey")},
    {0xFFFFFFFF, QT_TRANSLATE_NOOP("uiox_qt::ImageWords", "white")},
    {0xFFE02020, QT_TRANSLATE_NOOP("uiox_qt::ImageWords", "red")},
    {0xFF801010, QT_TRANSLATE_NOOP("uiox_qt::ImageWords", "dark red")},
    {0xFFF08C10, QT_TRANSLATE_NOOP("uiox_qt::ImageWords", "orange")},
    {0xFF80481C, QT_TRANSLATE_NOOP("uiox_qt::ImageWords", "brown")},
    {0xFFF0DC28, QT_TRANSLATE_NOOP("uiox_qt::ImageWords", "yellow")},
    {0xFFEDE3B8, QT_TRANSLATE_NOOP("uiox_qt::ImageWords", "beige")},
    {0xFF808000, QT_TRANSLATE_NOOP("uiox_qt::ImageWords", "olive")},
    {0xFF28B428, QT_TRANSLATE_NOOP("uiox_qt::ImageWords", "green")},
    {0xFFA0E0A0, QT_TRANSLATE_NOOP("uiox_qt::ImageWords", "light green")},
    {0xFF0C5C20, QT_TRANSLATE_NOOP("uiox_qt::ImageWords", "dark green")},
    {0xFF28B0A8, QT_TRANSLATE_NOOP("uiox_qt::ImageWords", "turquoise")},
    {0xFF90C8F0, QT_TRANSLATE_NOOP("uiox_qt::ImageWords", "light blue")},
    {0xFF2868E0, QT_TRANSLATE_NOOP("uiox_qt::ImageWords", "blue")},
    {0xFF101C78, QT_TRANSLATE_NOOP("uiox_qt::ImageWords", "dark blue")},
    {0xFF8438B8, QT_TRANSLATE_NOOP("uiox_qt::ImageWords", "violet")},
    {0xFFD838C8, QT_TRANSLATE_NOOP("uiox_qt::ImageWords", "magenta")},
    {0xFFF4A8C0, QT_TRANSLATE_NOOP("uiox_qt::ImageWords", "pink")},
};

struct NamedImage {
  std::string_view image;
  const char* words;
};

constexpr NamedImage kImages[] = {
    {"mix.png", QT_TRANSLATE_NOOP("uiox_qt::ImageWords", "mixed")},
    {"ecad_compare_show_both.png", QT_TRANSLATE_NOOP("uiox_qt::ImageWords", "A and B")},
    {"ecad_compare_show_a.png", QT_TRANSLATE_NOOP("uiox_qt::ImageWords", "A")},
    {"ecad_compare_show_b.png", QT_TRANSLATE_NOOP("uiox_qt::ImageWords", "B")},
    {"ecad_compare_show_a-b.png", QT_TRANSLATE_NOOP("uiox_qt::ImageWords", "A without B")},
    {"ecad_compare_show_b-a.png", QT_TRANSLATE_NOOP("uiox_qt::ImageWords", "B without A")},
    {"ecad_compare_show_overlap.png", QT_TRANSLATE_NOOP("uiox_qt::ImageWords", "what both have")},
    {"ecad_compare_show_diff.png", QT_TRANSLATE_NOOP("uiox_qt::ImageWords", "what differs")},
};

using Lab = std::array<double, 3>;

Lab LabOf(QRgb color) {
  const auto linear = [](int channel) {
    const double c = channel / 255.0;
    return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
  };
  const double r = linear(qRed(color));
  const double g = linear(qGreen(color));
  const double b = linear(qBlue(color));
  const auto curve = [](double t) { return t > 216.0 / 24389 ? std::cbrt(t) : (24389.0 / 27 * t + 16) / 116; };
  const double x = curve((0.4124564 * r + 0.3575761 * g + 0.1804375 * b) / 0.95047);
  const double y = curve(0.2126729 * r + 0.7151522 * g + 0.0721750 * b);
  const double z = curve((0.0193339 * r + 0.1191920 * g + 0.9503041 * b) / 1.08883);
  return {116 * y - 16, 500 * (x - y), 200 * (y - z)};
}

double DistanceBetween(const Lab& a, const Lab& b) { return std::hypot(a[0] - b[0], a[1] - b[1], a[2] - b[2]); }

QString Word(const char* word) { return QCoreApplication::translate(kContext, word); }

}  // namespace

QString ColorWord(QRgb color) {
  const Lab lab = LabOf(color);
  const char* nearest = "";
  double least = std::numeric_limits<double>::max();
  for (const NamedColor& named : kColors) {
    const double distance = DistanceBetween(lab, LabOf(named.color));
    if (distance >= least) continue;
    least = distance;
    nearest = named.word;
  }
  return Word(nearest);
}

std::optional<QRgb> ColorOfSquare(std::string_view image) {
  if (image.substr(0, kSquare.size()) != kSquare) return std::nullopt;
  const std::string_view digits = image.substr(kSquare.size());
  std::uint32_t value = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
  if (error != std::errc() || end != digits.data() + digits.size()) return std::nullopt;
  // The suite has red in the lowest byte.
  return qRgb(static_cast<int>(value & 0xFF), static_cast<int>(value >> 8 & 0xFF),
              static_cast<int>(value >> 16 & 0xFF));
}

QString ImageWords(std::string_view image) {
  if (const auto color = ColorOfSquare(image))
    return Word(QT_TRANSLATE_NOOP("uiox_qt::ImageWords", "colour %1")).arg(ColorWord(*color));
  for (const NamedImage& named : kImages) {
    if (image == named.image) return Word(named.words);
  }
  return {};
}

QString LabelWords(const QString& label, bool markup) {
  if (!markup || !HasMarkup(label)) return label;
  QStringList words;
  for (const MarkupRun& run : ParseMarkup(label)) {
    const QString part = run.image.isEmpty() ? run.text.trimmed() : ImageWords(run.image.toStdString());
    if (!part.isEmpty()) words.append(part);
  }
  return words.join(u' ');
}

}  // namespace uiox_qt
