// A code knows the type of its value: a wrong pair does not compile, a value takes its place in the list.
#include <gtest/gtest.h>
#include <tests/support/RecordingToolkit.h>
#include <uicomps/toolkit/CellCalls.h>
#include <uicomps/toolkit/ComponentCalls.h>

#include <type_traits>

namespace oxecad_ui::wire {
namespace {

/// Whether an attribute takes a value of this type without narrowing it.
template <class Attribute, class Value>
concept Takes = requires(const Attribute& attribute, Value value) {
  attribute({value});
};

static_assert(Takes<decltype(kNodeLabel), const wchar_t*>);
static_assert(!Takes<decltype(kNodeLabel), const char*>);
static_assert(!Takes<decltype(kNodeLabel), int>);
static_assert(Takes<decltype(kNodeType), const char*>);
static_assert(!Takes<decltype(kNodeType), const wchar_t*>);
static_assert(Takes<decltype(kNodeExpanded), int>);
static_assert(!Takes<decltype(kNodeExpanded), const char*>);
static_assert(!Takes<decltype(kNodeExpanded), double>);
static_assert(Takes<decltype(kNodeUserData), void*>);
static_assert(!Takes<decltype(kNodeUserData), int>);
static_assert(Takes<decltype(kSensitive), bool>);
static_assert(!Takes<decltype(kText), const char*>);
static_assert(!Takes<decltype(kFocus), const wchar_t*>);
static_assert(!Takes<decltype(kSelectedItem), const wchar_t*>);

static_assert(std::is_same_v<decltype(kNodeLabel)::Value, const wchar_t*>);
static_assert(std::is_same_v<decltype(kCellLabel)::Value, const wchar_t*>);
static_assert(std::is_same_v<decltype(kControlCheckState)::Value, std::uint32_t>);

TEST(Attributes, ArePresetToWhatMeansNothing) {
  EXPECT_EQ(kNodeLabel.PresetValue(), nullptr);
  EXPECT_EQ(kNodeExpanded.PresetValue(), 0);
  EXPECT_EQ(kNodeUserData.PresetValue(), nullptr);
  EXPECT_EQ(kNodeChildren.PresetValue().count, 0);
  EXPECT_EQ(kNodeChildren.PresetValue().names, nullptr);
  EXPECT_EQ(kBackgroundColor.PresetValue(), 0xFFFFFFFFu) << "a colour";
  EXPECT_EQ(kNodeColor.PresetValue(), 0xFFFFFFFFu) << "a colour in a place as wide as a pointer";
  EXPECT_EQ(kControlCheckState.PresetValue(), 0xFFFFFFFFu) << "the state of a dim box";
  EXPECT_EQ(kNodeCheckState.PresetValue(), 0u) << "the state of a node";
}

TEST(Attributes, StandInTheListInTheOrderGiven) {
  test_support::RecordingToolkit toolkit;
  constexpr Widget tree{"dev", "tree"};
  Modify(tree, kSelectedCellColumn(""), kSelectedCellNode(""));
  Modify(tree, kLabel(L"text"), kTextMode(2));
  EXPECT_TRUE(toolkit.Took(R"(
    modify dev:tree | 233="" 232="" | 0
    modify dev:tree | 2=L"text" 124=2 | 0)"));
}

TEST(Attributes, ListsTakeTwoSlots) {
  test_support::RecordingToolkit toolkit;
  const char* const names[] = {"none", "both"};
  const char* const images[] = {"", "both.png"};
  CreateControl({"dev", "tree"}, "menu", "OptionMenu", kItemNames(names), kItemImages(images), kVisibleItems(2));
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2053 CreateControl "menu" "OptionMenu" | 67=["none" "both"] 87=["" "both.png"] 32=2 | 0)"));
}

TEST(Names, AreWalkedOnlyWhereThereIsSomething) {
  char a[] = "a";
  char* array[] = {a, a};
  const auto length = [](Names names) { return names.end() - names.begin(); };
  EXPECT_EQ(length({2, array}), 2);
  EXPECT_EQ(length({0, array}), 0);
  EXPECT_EQ(length({-3, array}), 0);
  EXPECT_EQ(length({0, nullptr}), 0);
  EXPECT_EQ(length({-3, nullptr}), 0);
}

}  // namespace
}  // namespace oxecad_ui::wire
