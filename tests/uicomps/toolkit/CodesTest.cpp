// Every code of the wire, written down a second time: the constants carry these numbers, and there are no others.
#include <gtest/gtest.h>
#include <uicomps/toolkit/Toolkit.h>
#include <uiox/Codes.h>

#include <map>
#include <string>
#include <type_traits>

namespace oxecad_ui::toolkit {
namespace {

using Numbers = std::map<std::string, int>;

Numbers TableOf(uiox::CodeGroup group) {
  Numbers numbers;
  for (const uiox::CodeInfo& row : uiox::AllCodes(group)) numbers[row.name] = row.code;
  return numbers;
}

TEST(Codes, OfOperations) {
  EXPECT_EQ(
      TableOf(uiox::CodeGroup::Operation),
      (Numbers{{"MoveAndResize", 2002}, {"GetSize", 2003},        {"GetPosition", 2005},    {"UpdateLayout", 2013},
               {"AddNode", 2029},       {"AddNodeBefore", 2030},  {"DeleteNode", 2031},     {"MoveNode", 2032},
               {"ChangeNode", 2033},    {"QueryNode", 2034},      {"ExpandNode", 2036},     {"CollapseNode", 2037},
               {"CreateControl", 2053}, {"DestroyControl", 2085}, {"SelectText", 2094},     {"DefineNodeType", 2139},
               {"SetCell", 2160},       {"GetCell", 2162},        {"SetCellControl", 2163}, {"GetCellControl", 2165},
               {"SetNode", 2201},       {"GetNode", 2202},        {"InquireNode", 2203},    {"NodeTypeExists", 2243},
               {"InsertNode", 2331}}));
  EXPECT_EQ(TableOf(uiox::CodeGroup::GlobalOperation), (Numbers{{"LoadImage", 6030}, {"DefineImage", 6031}}));
}

TEST(Codes, OfNodes) {
  EXPECT_EQ(TableOf(uiox::CodeGroup::NodeOption), (Numbers{{"SecondText", 2},
                                                           {"Type", 8},
                                                           {"FirstInt", 128},
                                                           {"Expanded", 256},
                                                           {"ThirdInt", 512},
                                                           {"UserData", 1024}}));
  EXPECT_EQ(TableOf(uiox::CodeGroup::NodeAttribute), (Numbers{{"Label", 2},
                                                              {"FirstInt", 3},
                                                              {"Expanded", 4},
                                                              {"SecondText", 25},
                                                              {"CheckState", 31},
                                                              {"PartlyChecked", 177},
                                                              {"UserData", 260},
                                                              {"Type", 282},
                                                              {"Parent", 283},
                                                              {"Children", 284},
                                                              {"ThirdInt", 516},
                                                              {"CheckSensitive", 544}}));
}

TEST(Codes, OfComponents) {
  EXPECT_EQ(TableOf(uiox::CodeGroup::ComponentAttribute), (Numbers{{"Label", 2},
                                                                   {"Shown", 3},
                                                                   {"Sensitive", 5},
                                                                   {"Text", 15},
                                                                   {"Focus", 29},
                                                                   {"Redraw", 52},
                                                                   {"ActivatedNode", 53},
                                                                   {"RootNode", 54},
                                                                   {"Width", 70},
                                                                   {"Height", 71},
                                                                   {"Names", 72},
                                                                   {"TextMode", 124},
                                                                   {"ToggledNode", 175},
                                                                   {"BackgroundColor", 211},
                                                                   {"SelectedCellNode", 232},
                                                                   {"SelectedCellColumn", 233},
                                                                   {"DefaultButton", 234},
                                                                   {"SelectionKind", 267},
                                                                   {"ClassName", 282},
                                                                   {"CheckedNode", 346},
                                                                   {"BalloonStyle", 519}}));
}

TEST(Codes, OfCellsAndControls) {
  EXPECT_EQ(TableOf(uiox::CodeGroup::CellAttribute), (Numbers{{"Label", 2}, {"Control", 140}}));
  EXPECT_EQ(
      TableOf(uiox::CodeGroup::ControlAttribute),
      (Numbers{
          {"CheckState", 31}, {"VisibleItems", 32}, {"ItemNames", 67}, {"ItemImages", 87}, {"SelectedItem", 468}}));
}

TEST(Codes, OfEventsAndTheWholeToolkit) {
  EXPECT_EQ(TableOf(uiox::CodeGroup::Reason), (Numbers{{"Select", 3},
                                                       {"Activate", 4},
                                                       {"Close", 5},
                                                       {"Check", 7},
                                                       {"Input", 8},
                                                       {"Expand", 29},
                                                       {"Collapse", 30},
                                                       {"FocusIn", 31},
                                                       {"FocusOut", 32},
                                                       {"CellSelect", 35}}));
  EXPECT_EQ(
      TableOf(uiox::CodeGroup::GlobalCode),
      (Numbers{{"ScreenWidth", 4001}, {"ScreenHeight", 4002}, {"CurrentDevice", 4003}, {"CurrentComponent", 4004}}));
}

TEST(Codes, AreIntsGroupedByTable) {
  EXPECT_EQ(static_cast<int>(Operation::InsertNode), 2331);
  EXPECT_EQ(static_cast<int>(GlobalOperation::LoadImage), 6030);
  EXPECT_EQ(static_cast<int>(NodeOption::UserData), 1024);
  EXPECT_EQ(static_cast<int>(NodeAttribute::CheckSensitive), 544);
  EXPECT_EQ(static_cast<int>(ComponentAttribute::CheckedNode), 346);
  EXPECT_EQ(static_cast<int>(CellAttribute::Control), 140);
  EXPECT_EQ(static_cast<int>(ControlAttribute::SelectedItem), 468);
  EXPECT_EQ(static_cast<int>(Reason::CellSelect), 35);
  EXPECT_EQ(static_cast<int>(GlobalCode::CurrentDevice), 4003);
  EXPECT_TRUE((std::is_same_v<std::underlying_type_t<Operation>, int>));
}

TEST(Codes, NumbersWithNamesOfTheirOwn) {
  EXPECT_EQ(kKeepSize, -32768);
  EXPECT_EQ(kEndOfText, 4294967295u);
  EXPECT_EQ(kNoColor, 0xFFFFFFFFu);
  EXPECT_EQ(kResourceSearchPath, 1);
  EXPECT_EQ(kNoSearchPath, -1);
  EXPECT_EQ(kPixelImage, 23);
}

/// The wire's functions have exactly these types.
static_assert(std::is_same_v<ui_callback, int (*)(void*, void*)>);
static_assert(std::is_same_v<decltype(ui_do_operation), int(const char*, const char*, int, ...)>);
static_assert(std::is_same_v<decltype(ui_retrieve), int(const char*, const char*, ...)>);
static_assert(std::is_same_v<decltype(ui_modify), int(const char*, const char*, ...)>);
static_assert(std::is_same_v<decltype(ui_add_action), int(const char*, const char*, int, ui_callback, void*, ...)>);
static_assert(std::is_same_v<decltype(ui_remove_action), int(const char*, const char*, int, ui_callback)>);
static_assert(std::is_same_v<decltype(ui_set_action), int(const char*, const char*, int, ui_callback, void*, ...)>);
static_assert(std::is_same_v<decltype(ui_free), int(int, ...)>);
static_assert(std::is_same_v<decltype(ui_create_search_path), int(int, const char*)>);
static_assert(std::is_same_v<decltype(ui_create_device_ext), int(const char*, const char*, int)>);
static_assert(std::is_same_v<decltype(ui_create_device), int(const char*, const char*)>);
static_assert(std::is_same_v<decltype(ui_manage_device), int(const char*)>);
static_assert(std::is_same_v<decltype(ui_activate_device), int(const char*)>);
static_assert(std::is_same_v<decltype(ui_unmanage_device), int(const char*)>);
static_assert(std::is_same_v<decltype(ui_exit_device), int(void*, void*)>);
static_assert(std::is_same_v<decltype(ui_global_inquire), int(int, ...)>);
static_assert(std::is_same_v<decltype(ui_global_do_operation), int(int, ...)>);
static_assert(std::is_same_v<decltype(ui_beep), int()>);
static_assert(std::is_same_v<decltype(uit_SkinGetBalloonDlgStyle), int(unsigned char, void*, int)>);
static_assert(std::is_same_v<decltype(relmem), int(void*)>);

}  // namespace
}  // namespace oxecad_ui::toolkit
