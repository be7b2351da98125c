/// \file
/// The typed side of the codes: each constant ties a code to the type of its value, so that a wrong pair does not
/// compile. The types are held against the shapes that the tables of codes give.
#ifndef OXECAD_UI_TOOLKIT_ATTRIBUTES_H
#define OXECAD_UI_TOOLKIT_ATTRIBUTES_H

#include <uicomps/toolkit/Slot.h>
#include <uicomps/toolkit/Toolkit.h>

namespace oxecad_ui::wire {

/// A list of names as the wire carries it. A count without an array is an empty list.
struct Names {
  int count = 0;
  char** names = nullptr;

  char** begin() const { return names; }
  char** end() const { return count > 0 ? names + count : names; }
};

/// The shape letter of a value's type.
template <class T>
constexpr char kShape = 0;
template <>
inline constexpr char kShape<const char*> = 's';
template <>
inline constexpr char kShape<const wchar_t*> = 'w';
template <>
inline constexpr char kShape<std::int32_t> = 'i';
template <>
inline constexpr char kShape<bool> = 'i';
template <>
inline constexpr char kShape<std::uint32_t> = 'u';
template <>
inline constexpr char kShape<void*> = 'p';
template <>
inline constexpr char kShape<std::uintptr_t> = 'p';
template <>
inline constexpr char kShape<Names> = 'l';

// One function for each table: the shape letter of a code's value.
#define OXECAD_UI_SHAPE_CASE(name, code, shape, meaning) \
  case Codes::name:                                      \
    return shape[0];
#define OXECAD_UI_SHAPES(Enum, TABLE)             \
  constexpr char ShapeOf(toolkit::Enum code) {    \
    using Codes = toolkit::Enum;                  \
    switch (code) { TABLE(OXECAD_UI_SHAPE_CASE) } \
    return 0;                                     \
  }
OXECAD_UI_SHAPES(NodeOption, OXECAD_UI_NODE_OPTIONS)
OXECAD_UI_SHAPES(NodeAttribute, OXECAD_UI_NODE_ATTRIBUTES)
OXECAD_UI_SHAPES(ComponentAttribute, OXECAD_UI_COMPONENT_ATTRIBUTES)
OXECAD_UI_SHAPES(CellAttribute, OXECAD_UI_CELL_ATTRIBUTES)
OXECAD_UI_SHAPES(ControlAttribute, OXECAD_UI_CONTROL_ATTRIBUTES)
OXECAD_UI_SHAPES(GlobalCode, OXECAD_UI_GLOBAL_CODES)
#undef OXECAD_UI_SHAPES
#undef OXECAD_UI_SHAPE_CASE

/// One attribute with the value that is about to be set: two slots of an option list. It remembers the table of its
/// code.
template <class Table, class SlotType>
struct Option {
  using Codes = Table;

  int code;
  SlotType slot;
  auto Slots() const { return std::make_tuple(code, slot); }
};

/// A list attribute with the list that is about to be set: three slots of an option list.
template <class Table>
struct ListOption {
  using Codes = Table;

  int code;
  int count;
  const char* const* names;
  auto Slots() const { return std::make_tuple(code, Slot(count), Slot(names)); }
};

/// An attribute whose values are `T`s. `Preset` is what a reader gets when the toolkit gives nothing.
template <auto Code, class T, auto Preset = 0>
struct Attribute {
  using Codes = decltype(Code);
  using Value = T;
  static constexpr int code = static_cast<int>(Code);
  static_assert(ShapeOf(Code) == kShape<T>, "the table of codes gives this code another type");

  /// The attribute with a value to set.
  constexpr auto operator()(T value) const {
    auto slot = Slot(value);
    return Option<Codes, decltype(slot)>{code, slot};
  }

  /// What counts until the toolkit has answered, and when it refuses.
  static constexpr T PresetValue() {
    if constexpr (std::is_pointer_v<T>) {
      return nullptr;
    } else {
      return static_cast<T>(Preset);
    }
  }
};

/// An attribute whose value is a list of names.
template <auto Code>
struct Attribute<Code, Names, 0> {
  using Codes = decltype(Code);
  using Value = Names;
  static constexpr int code = static_cast<int>(Code);
  static_assert(ShapeOf(Code) == kShape<Names>, "the table of codes gives this code another type");

  template <std::size_t N>
  ListOption<Codes> operator()(const char* const (&names)[N]) const {
    return ListOption<Codes>{code, static_cast<int>(N), names};
  }
  static constexpr Names PresetValue() { return {}; }
};

/// Whether all attributes, with or without a value, are of one table of codes: what 2 means depends on the operation.
template <class Table, class... Given>
constexpr bool kAreOf = (std::is_same_v<typename Given::Codes, Table> && ...);

using toolkit::CellAttribute;
using toolkit::ComponentAttribute;
using toolkit::ControlAttribute;
using toolkit::GlobalCode;
using toolkit::kNoColor;
using toolkit::NodeAttribute;
using toolkit::NodeOption;

inline constexpr Attribute<NodeOption::SecondText, const wchar_t*> kAddSecondText{};
inline constexpr Attribute<NodeOption::Type, const char*> kChangeType{};
inline constexpr Attribute<NodeOption::FirstInt, std::int32_t> kAddFirstInt{};
inline constexpr Attribute<NodeOption::Expanded, std::int32_t> kAddExpanded{};
inline constexpr Attribute<NodeOption::ThirdInt, std::int32_t> kAddThirdInt{};
inline constexpr Attribute<NodeOption::UserData, void*> kAddUserData{};
inline constexpr Attribute<NodeOption::UserData, std::uintptr_t> kChangeUserValue{};

inline constexpr Attribute<NodeAttribute::Label, const wchar_t*> kNodeLabel{};
inline constexpr Attribute<NodeAttribute::FirstInt, std::int32_t> kNodeFirstInt{};
inline constexpr Attribute<NodeAttribute::Expanded, std::int32_t> kNodeExpanded{};
inline constexpr Attribute<NodeAttribute::SecondText, const wchar_t*> kNodeSecondText{};
inline constexpr Attribute<NodeAttribute::CheckState, std::uint32_t> kNodeCheckState{};
inline constexpr Attribute<NodeAttribute::PartlyChecked, std::int32_t> kNodePartlyChecked{};
inline constexpr Attribute<NodeAttribute::UserData, void*> kNodeUserData{};
inline constexpr Attribute<NodeAttribute::UserData, std::uintptr_t> kNodeUserValue{};
inline constexpr Attribute<NodeAttribute::UserData, std::uintptr_t, kNoColor> kNodeColor{};
inline constexpr Attribute<NodeAttribute::Type, const char*> kNodeType{};
inline constexpr Attribute<NodeAttribute::Parent, const char*> kNodeParent{};
inline constexpr Attribute<NodeAttribute::Children, Names> kNodeChildren{};
inline constexpr Attribute<NodeAttribute::ThirdInt, std::int32_t> kNodeHighlighted{};
inline constexpr Attribute<NodeAttribute::CheckSensitive, bool> kNodeSetCheckSensitive{};
inline constexpr Attribute<NodeAttribute::CheckSensitive, std::int32_t> kNodeCheckSensitive{};

inline constexpr Attribute<ComponentAttribute::Label, const wchar_t*> kLabel{};
inline constexpr Attribute<ComponentAttribute::Shown, bool> kShown{};
inline constexpr Attribute<ComponentAttribute::Sensitive, bool> kSensitive{};
inline constexpr Attribute<ComponentAttribute::Text, const wchar_t*> kText{};
inline constexpr Attribute<ComponentAttribute::Focus, const char*> kFocus{};
inline constexpr Attribute<ComponentAttribute::Redraw, bool> kRedraw{};
inline constexpr Attribute<ComponentAttribute::ActivatedNode, const char*> kActivatedNode{};
inline constexpr Attribute<ComponentAttribute::RootNode, const char*> kRootNode{};
inline constexpr Attribute<ComponentAttribute::Width, std::int32_t> kWidth{};
inline constexpr Attribute<ComponentAttribute::Height, std::int32_t> kHeight{};
inline constexpr Attribute<ComponentAttribute::Names, Names> kSelectedNodes{};
inline constexpr Attribute<ComponentAttribute::Names, Names> kIconImages{};
inline constexpr Attribute<ComponentAttribute::TextMode, std::int32_t> kTextMode{};
inline constexpr Attribute<ComponentAttribute::ToggledNode, const char*> kToggledNode{};
inline constexpr Attribute<ComponentAttribute::BackgroundColor, std::uint32_t, kNoColor> kBackgroundColor{};
inline constexpr Attribute<ComponentAttribute::SelectedCellNode, const char*> kSelectedCellNode{};
inline constexpr Attribute<ComponentAttribute::SelectedCellColumn, const char*> kSelectedCellColumn{};
inline constexpr Attribute<ComponentAttribute::DefaultButton, const char*> kDefaultButton{};
inline constexpr Attribute<ComponentAttribute::SelectionKind, std::int32_t> kSelectionKind{};
inline constexpr Attribute<ComponentAttribute::ClassName, const char*> kClassName{};
inline constexpr Attribute<ComponentAttribute::CheckedNode, const char*> kCheckedNode{};
inline constexpr Attribute<ComponentAttribute::BalloonStyle, void*> kBalloonStyle{};

inline constexpr Attribute<CellAttribute::Label, const wchar_t*> kCellLabel{};
inline constexpr Attribute<CellAttribute::Control, const char*> kCellControl{};

/// A check state that could not be read is none of the three states.
inline constexpr Attribute<ControlAttribute::CheckState, std::uint32_t, 0xFFFFFFFFu> kControlCheckState{};
inline constexpr Attribute<ControlAttribute::VisibleItems, std::int32_t> kVisibleItems{};
inline constexpr Attribute<ControlAttribute::ItemNames, Names> kItemNames{};
inline constexpr Attribute<ControlAttribute::ItemImages, Names> kItemImages{};
inline constexpr Attribute<ControlAttribute::SelectedItem, const char*> kSelectedItem{};

inline constexpr Attribute<GlobalCode::ScreenWidth, std::int32_t> kScreenWidth{};
inline constexpr Attribute<GlobalCode::ScreenHeight, std::int32_t> kScreenHeight{};
inline constexpr Attribute<GlobalCode::CurrentDevice, const char*> kCurrentDevice{};
inline constexpr Attribute<GlobalCode::CurrentComponent, const char*> kCurrentComponent{};

}  // namespace oxecad_ui::wire

#endif
