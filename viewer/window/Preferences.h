/// \file
/// What the program remembers from one run to the next.
#ifndef OXECAD_VIEWER_WINDOW_PREFERENCES_H
#define OXECAD_VIEWER_WINDOW_PREFERENCES_H

#include <viewer/trees/ViewSettings.h>
#include <viewer/window/Theme.h>

#include <QString>

#include <array>
#include <string>

namespace oxviewer {

/// How lengths are written.
enum class DisplayUnit { Millimetre, Mil, Inch };

struct Remembered {
  Theme theme = Theme::System;
  DisplayUnit unit = DisplayUnit::Millimetre;
  std::string language = "system";  ///< "system", "en" or "de"
  bool letters = false;             ///< letters in colour squares
  ViewSettingValues view;
  std::array<std::string, 2> viewUnits{"mm", "mm"};
};

/// What was remembered; whatever is missing or makes no sense is as at first.
Remembered ReadPreferences();
/// Remembers it in the user's preferences.
void WritePreferences(const Remembered& remembered);

/// A length given in millimetres, as text with its unit.
QString LengthText(double millimetres, DisplayUnit unit);
const char* NameOf(DisplayUnit unit);

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_WINDOW_PREFERENCES_H
