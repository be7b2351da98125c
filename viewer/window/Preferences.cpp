#include <viewer/window/Preferences.h>

#include <QLocale>

#include <oxg/LengthUnit.h>
#include <oxk/World.h>
#include <oxkutils/Symbol.h>

namespace oxviewer {
namespace {

using oxkutils::Symbol;

constexpr const char* kTheme = "OxViewer/Theme";
constexpr const char* kUnit = "OxViewer/Unit";
constexpr const char* kLanguage = "OxViewer/Language";
constexpr const char* kLetters = "OxViewer/LettersInSquares";
constexpr const char* kGrid = "OxViewer/Grid";
constexpr const char* kLineWidth = "OxViewer/LineWidth";
constexpr const char* kDim = "OxViewer/DimStrength";
constexpr const char* kRoom = "OxViewer/RoomAround";
constexpr const char* kGridUnit = "OxViewer/GridUnit";
constexpr const char* kLineWidthUnit = "OxViewer/LineWidthUnit";

std::string Read(const char* key) {
  std::string value;
  oxk::World::GetWorld()->GetPreferences()->GetString(Symbol(key), value, "");
  return value;
}

void Write(const char* key, const std::string& value) {
  oxk::World::GetWorld()->GetPreferences()->SetString(Symbol(key), value, false);
}

void ReadNumber(const char* key, double largest, double& value) {
  bool read = false;
  const double number = QLocale::c().toDouble(QString::fromStdString(Read(key)), &read);
  if (read && number >= 0 && number <= largest) value = number;
}

void WriteNumber(const char* key, double value) { Write(key, QLocale::c().toString(value, 'g', 17).toStdString()); }

}  // namespace

const char* NameOf(DisplayUnit unit) {
  switch (unit) {
    case DisplayUnit::Mil:
      return "mil";
    case DisplayUnit::Inch:
      return "in";
    case DisplayUnit::Millimetre:
      break;
  }
  return "mm";
}

QString LengthText(double millimetres, DisplayUnit unit) {
  using oxg::LengthUnit;
  switch (unit) {
    case DisplayUnit::Mil:
      return QLocale::c().toString(LengthUnit::Convert(LengthUnit::Millimetre, LengthUnit::Mil, millimetres, 1), 'f',
                                   1) +
             " mil";
    case DisplayUnit::Inch:
      return QLocale::c().toString(LengthUnit::Convert(LengthUnit::Millimetre, LengthUnit::Inch, millimetres, 1), 'f',
                                   4) +
             " in";
    case DisplayUnit::Millimetre:
      break;
  }
  QLocale plain = QLocale::c();
  plain.setNumberOptions(QLocale::OmitGroupSeparator);
  return plain.toString(millimetres, 'f', 3) + " mm";
}

Remembered ReadPreferences() {
  Remembered remembered;
  remembered.theme = ThemeNamed(QString::fromStdString(Read(kTheme)));
  const std::string unit = Read(kUnit);
  for (const DisplayUnit known : {DisplayUnit::Mil, DisplayUnit::Inch}) {
    if (unit == NameOf(known)) remembered.unit = known;
  }
  for (const char* language : {"en", "de"}) {
    if (Read(kLanguage) == language) remembered.language = language;
  }
  remembered.letters = Read(kLetters) == "yes";
  ReadNumber(kGrid, ViewSettings::kLargestGrid, remembered.view.grid);
  ReadNumber(kLineWidth, ViewSettings::kLargestLineWidth, remembered.view.lineWidth);
  ReadNumber(kDim, 1, remembered.view.dimStrength);
  ReadNumber(kRoom, ViewSettings::kLargestRoom, remembered.view.room);
  remembered.viewUnits = {Read(kGridUnit), Read(kLineWidthUnit)};
  return remembered;
}

void WritePreferences(const Remembered& remembered) {
  Write(kTheme, NameOf(remembered.theme));
  Write(kUnit, NameOf(remembered.unit));
  Write(kLanguage, remembered.language);
  Write(kLetters, remembered.letters ? "yes" : "no");
  WriteNumber(kGrid, remembered.view.grid);
  WriteNumber(kLineWidth, remembered.view.lineWidth);
  WriteNumber(kDim, remembered.view.dimStrength);
  WriteNumber(kRoom, remembered.view.room);
  Write(kGridUnit, remembered.viewUnits[0]);
  Write(kLineWidthUnit, remembered.viewUnits[1]);
  oxk::World::GetWorld()->SaveAndApplyPreferences();
}

}  // namespace oxviewer
