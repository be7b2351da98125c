/// \file
/// The fields that say how the board is drawn.
#ifndef OXECAD_VIEWER_TREES_VIEWSETTINGS_H
#define OXECAD_VIEWER_TREES_VIEWSETTINGS_H

#include <array>
#include <functional>
#include <string>

#include <oxkutils/SmartPtr.h>
#include <uicomps/input/InputTest.h>
#include <uicomps/input/InputVerifier.h>

namespace uiox {
class Widget;
}

namespace oxviewer {

/// Lengths are in millimetres.
struct ViewSettingValues {
  double grid = 1;            ///< distance of the grid's points; 0: no grid
  double lineWidth = 0.05;    ///< of lines that are thinner
  double dimStrength = 0.75;  ///< from 0 to 1
  double room = 2;            ///< of the board around what the view goes to
  friend bool operator==(const ViewSettingValues&, const ViewSettingValues&) = default;
};

/// Grid, line width and dim strength as fields of a panel, the lengths with a choice of units. A field takes only what
/// can become a number in its range; the value counts when the field is left. Another unit keeps the length and changes
/// the number. The room around what is shown may be reckoned ("1.5mm + 20mil").
class ViewSettings {
 public:
  static constexpr double kLargestGrid = 100;
  static constexpr double kLargestLineWidth = 5;
  static constexpr double kLargestRoom = 100;

  /// Works on the fields of the device.
  explicit ViewSettings(const char* device);
  ViewSettings(const ViewSettings&) = delete;
  ViewSettings& operator=(const ViewSettings&) = delete;
  ~ViewSettings();

  /// Registers the fields' events. The device must exist.
  void Init();
  const ViewSettingValues& Values() const { return values_; }
  /// Writes values into the fields, in the units that are chosen there.
  void SetValues(const ViewSettingValues& values);
  /// The units chosen for grid and line width: "mm", "um", "mil" or "in".
  std::array<std::string, 2> Units() const;
  /// Chooses units; unknown names are passed over.
  void SetUnits(const std::array<std::string, 2>& units);

  /// Is called after a value has changed.
  void SetOnChange(std::function<void()> onChange) { onChange_ = std::move(onChange); }

 private:
  /// A field with a choice of units.
  struct LengthField {
    const char* name;
    const char* unitMenu;
    double largest;  // mm
    double ViewSettingValues::*value;
    unsigned char unit;
  };

  static int LeftCB(ViewSettings* self);
  static int UnitCB(ViewSettings* self);
  void OnLeft();
  void OnUnit();
  void TakeUnit(std::size_t field, unsigned char unit);
  uiox::Widget* UnitMenu(const char* name) const;
  std::wstring TextOf(const char* component) const;
  void PutText(const char* component, double value) const;
  void PutLength(const LengthField& field) const;

  std::string device_;
  oxecad_ui::InputVerifier verifier_;
  std::array<LengthField, 2> lengths_;
  ViewSettingValues values_;
  std::function<void()> onChange_;
  bool initialised_ = false;
};

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_TREES_VIEWSETTINGS_H
