#include <viewer/window/Theme.h>

#include <viewer/window/ThemeStyle.h>

#include <QApplication>

namespace oxviewer {
namespace {

struct Shades {
  QRgb window, base, alternate, button, text, weakText, highlight, highlightedText, link, tip;
};

constexpr Shades kLight{0xFFF3F4F6, 0xFFFFFFFF, 0xFFF7F8FA, 0xFFECEEF1, 0xFF1F2429,
                        0xFF6B7580, 0xFF1F6FC4, 0xFFFFFFFF, 0xFF1F6FC4, 0xFFFFFFE6};
constexpr Shades kDark{0xFF25292E, 0xFF1C1F23, 0xFF212529, 0xFF2E3338, 0xFFE4E7EA,
                       0xFF98A1AB, 0xFF2F75C0, 0xFFFFFFFF, 0xFF6FB2F0, 0xFF33383E};

QPalette Painted(const Shades& shades) {
  QPalette palette;
  const auto set = [&](QPalette::ColorRole role, QRgb color) { palette.setColor(role, QColor(color)); };
  set(QPalette::Window, shades.window);
  set(QPalette::WindowText, shades.text);
  set(QPalette::Base, shades.base);
  set(QPalette::AlternateBase, shades.alternate);
  set(QPalette::Text, shades.text);
  set(QPalette::PlaceholderText, shades.weakText);
  set(QPalette::Button, shades.button);
  set(QPalette::ButtonText, shades.text);
  set(QPalette::BrightText, shades.highlightedText);
  set(QPalette::Highlight, shades.highlight);
  set(QPalette::HighlightedText, shades.highlightedText);
  set(QPalette::Link, shades.link);
  set(QPalette::ToolTipBase, shades.tip);
  set(QPalette::ToolTipText, shades.text);
  set(QPalette::Light, QColor(shades.button).lighter(108).rgb());
  set(QPalette::Midlight, QColor(shades.button).lighter(104).rgb());
  set(QPalette::Mid, QColor(shades.button).darker(118).rgb());
  set(QPalette::Dark, QColor(shades.button).darker(140).rgb());
  set(QPalette::Shadow, QColor(shades.window).darker(200).rgb());
  for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, QColor(shades.weakText));
  }
  return palette;
}

}  // namespace

const char* NameOf(Theme theme) {
  switch (theme) {
    case Theme::Light:
      return "light";
    case Theme::Dark:
      return "dark";
    case Theme::System:
      break;
  }
  return "system";
}

Theme ThemeNamed(const QString& name) {
  for (const Theme theme : {Theme::Light, Theme::Dark}) {
    if (name == QLatin1String(NameOf(theme))) return theme;
  }
  return Theme::System;
}

QPalette PaletteOf(Theme theme, const QPalette& system) {
  const bool dark = theme == Theme::Dark ||
                    (theme == Theme::System &&
                     system.color(QPalette::Window).lightness() < system.color(QPalette::WindowText).lightness());
  return Painted(dark ? kDark : kLight);
}

void ApplyTheme(Theme theme) {
  static const QPalette system = QApplication::palette();
  QApplication::setStyle(new ThemeStyle);
  QApplication::setPalette(PaletteOf(theme, system));
}

}  // namespace oxviewer
