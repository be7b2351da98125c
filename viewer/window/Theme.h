/// \file
/// The colours of the program's windows.
#ifndef OXECAD_VIEWER_WINDOW_THEME_H
#define OXECAD_VIEWER_WINDOW_THEME_H

#include <QPalette>
#include <QString>

#include <array>

namespace oxviewer {

enum class Theme { System, Light, Dark };

/// The word by which a theme is kept in the preferences.
const char* NameOf(Theme theme);
/// `Theme::System` for any other word.
Theme ThemeNamed(const QString& name);

/// The palette of a theme. `system` is the palette that the program began with; it decides whether the system's theme
/// is a light or a dark one.
QPalette PaletteOf(Theme theme, const QPalette& system);

/// Gives the whole program a theme.
void ApplyTheme(Theme theme);

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_WINDOW_THEME_H
