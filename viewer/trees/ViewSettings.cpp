#include <viewer/trees/LengthExpression.h>
#include <viewer/trees/ViewSettings.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>
#include <string_view>

#include <oxecadutils/StringConversion.h>
#include <oxg/LengthUnit.h>
#include <uicomps/toolkit/Actions.h>
#include <uicomps/toolkit/ComponentCalls.h>
#include <uiox/Suite.h>

namespace oxviewer {
namespace {

using oxecad_ui::InputTest;
using oxecad_ui::LengthInputTest;
using oxecad_ui::NumericInputTest;
using oxg::LengthUnit;
using oxkutils::SmartPtr;
namespace wire = oxecad_ui::wire;

constexpr const char* kDim = "dim";
constexpr const char* kRoom = "room";

struct Unit {
  const char* name;
  unsigned char code;
};
constexpr std::array kUnits{Unit{"mm", LengthUnit::Millimetre}, Unit{"um", LengthUnit::Micrometre},
                            Unit{"mil", LengthUnit::Mil}, Unit{"in", LengthUnit::Inch}};

std::optional<unsigned char> UnitOf(std::string_view name) {
  for (const Unit& unit : kUnits) {
    if (name == unit.name) return unit.code;
  }
  return std::nullopt;
}

const char* NameOfUnit(unsigned char code) {
  for (const Unit& unit : kUnits) {
    if (unit.code == code) return unit.name;
  }
  return kUnits[0].name;
}

std::optional<double> NumberOf(const std::wstring& wide) {
  const std::string text = oxecadutils::WideStrToUtf8(wide);
  std::string_view digits = text;
  if (digits.starts_with('+')) digits.remove_prefix(1);
  double value = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
  if (error != std::errc() || end != digits.data() + digits.size() || !std::isfinite(value)) return std::nullopt;
  return value;
}

std::string TextOfNumber(double value) {
  std::array<char, 64> text{};
  const auto [end, error] = std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::general, 6);
  return {text.data(), end};
}

}  // namespace

ViewSettings::ViewSettings(const char* device)
    : device_(device),
      verifier_(device),
      lengths_{LengthField{"grid", "gridUnit", kLargestGrid, &ViewSettingValues::grid, LengthUnit::Millimetre},
               LengthField{"lineWidth", "lineWidthUnit", kLargestLineWidth, &ViewSettingValues::lineWidth,
                           LengthUnit::Millimetre}} {}

ViewSettings::~ViewSettings() {
  if (!initialised_) return;
  for (const LengthField& field : lengths_) {
    wire::RemoveAction<&ViewSettings::LeftCB>({device_.c_str(), field.name}, wire::Reason::FocusOut);
    wire::RemoveAction<&ViewSettings::UnitCB>({device_.c_str(), field.unitMenu}, wire::Reason::Select);
  }
  for (const char* field : {kDim, kRoom}) {
    wire::RemoveAction<&ViewSettings::LeftCB>({device_.c_str(), field}, wire::Reason::FocusOut);
  }
  verifier_.Clear();
}

void ViewSettings::Init() {
  initialised_ = true;
  // The verifier comes first: when a field is left, it has made the text valid before it is read here.
  for (const LengthField& field : lengths_) {
    verifier_.AddControl(field.name, SmartPtr<InputTest>(new LengthInputTest(0, field.largest, field.unit)));
    wire::AddAction<&ViewSettings::LeftCB>({device_.c_str(), field.name}, wire::Reason::FocusOut, this);
    wire::AddAction<&ViewSettings::UnitCB>({device_.c_str(), field.unitMenu}, wire::Reason::Select, this);
  }
  verifier_.AddControl(kDim, SmartPtr<InputTest>(new NumericInputTest<double>(0, 100, false)));
  verifier_.AddControl(kRoom, SmartPtr<InputTest>(new LengthExpressionTest(0, kLargestRoom)));
  for (const char* field : {kDim, kRoom}) {
    wire::AddAction<&ViewSettings::LeftCB>({device_.c_str(), field}, wire::Reason::FocusOut, this);
  }
  SetValues(values_);
}

// The wire reads and sets the choice of a menu only where it stands in a tree's cell.
uiox::Widget* ViewSettings::UnitMenu(const char* name) const { return uiox::Suite::Get().Find(device_, name); }

std::wstring ViewSettings::TextOf(const char* component) const {
  const auto [read, text] = wire::Retrieve({device_.c_str(), component}, wire::kText);
  return text ? std::wstring(text) : std::wstring();
}

void ViewSettings::PutText(const char* component, double value) const {
  const std::wstring text = oxecadutils::Utf8ToWideStr(TextOfNumber(value));
  wire::Modify({device_.c_str(), component}, wire::kText(text.c_str()));
}

void ViewSettings::PutLength(const LengthField& field) const {
  PutText(field.name, LengthUnit::Convert(LengthUnit::Millimetre, field.unit, values_.*field.value, 1));
}

void ViewSettings::SetValues(const ViewSettingValues& values) {
  values_ = values;
  for (const LengthField& field : lengths_) PutLength(field);
  PutText(kDim, values_.dimStrength * 100);
  PutText(kRoom, values_.room);
}

std::array<std::string, 2> ViewSettings::Units() const {
  return {NameOfUnit(lengths_[0].unit), NameOfUnit(lengths_[1].unit)};
}

void ViewSettings::SetUnits(const std::array<std::string, 2>& units) {
  for (std::size_t i = 0; i < lengths_.size(); ++i) {
    const auto unit = UnitOf(units[i]);
    if (!unit) continue;
    if (uiox::Widget* menu = UnitMenu(lengths_[i].unitMenu)) menu->SetSelectedItem(NameOfUnit(*unit));
    TakeUnit(i, *unit);
  }
}

void ViewSettings::TakeUnit(std::size_t index, unsigned char unit) {
  LengthField& field = lengths_[index];
  if (unit == field.unit) return;
  if (auto* test = dynamic_cast<LengthInputTest*>(verifier_.GetInputTest(field.name).get())) test->SetUnit(unit);
  field.unit = unit;
  PutLength(field);
}

int ViewSettings::LeftCB(ViewSettings* self) {
  self->OnLeft();
  return 0;
}

int ViewSettings::UnitCB(ViewSettings* self) {
  self->OnUnit();
  return 0;
}

void ViewSettings::OnLeft() {
  const ViewSettingValues before = values_;
  for (const LengthField& field : lengths_) {
    const std::wstring text = TextOf(field.name);
    // What stands there has six digits: a value that was converted stays itself as long as nobody types.
    const double shown = LengthUnit::Convert(LengthUnit::Millimetre, field.unit, values_.*field.value, 1);
    if (text == oxecadutils::Utf8ToWideStr(TextOfNumber(shown))) continue;
    if (text.empty()) values_.*field.value = 0;
    if (const auto value = NumberOf(text)) {
      // In another unit the largest value has been rounded too.
      const double length = LengthUnit::Convert(field.unit, LengthUnit::Millimetre, *value, 1);
      values_.*field.value = std::clamp(length, 0.0, field.largest);
    }
  }
  if (const auto percent = NumberOf(TextOf(kDim))) values_.dimStrength = *percent / 100;
  if (const auto room = NumberOf(TextOf(kRoom))) values_.room = *room;
  if (values_ != before && onChange_) onChange_();
}

void ViewSettings::OnUnit() {
  OnLeft();
  for (std::size_t i = 0; i < lengths_.size(); ++i) {
    const uiox::Widget* menu = UnitMenu(lengths_[i].unitMenu);
    if (!menu) continue;
    if (const auto unit = UnitOf(menu->SelectedItem())) TakeUnit(i, *unit);
  }
}

}  // namespace oxviewer
