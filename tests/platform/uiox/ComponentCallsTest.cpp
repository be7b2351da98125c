#include "Wire.h"

namespace {

using uiox::WidgetClass;
using uiox_test::kEnd;
using uiox_test::Slot;
using uiox_test::WireTest;

class ComponentCalls : public WireTest {
 protected:
  uiox::Device& device = *suite.FindDevice("dev");
  uiox::Widget& field = *device.Add(WidgetClass::InputPanel, "field");
  uiox::Widget& button = *device.Add(WidgetClass::PushButton, "button");
  uiox::Widget& message = *device.Add(WidgetClass::Message, "message");
  uiox::Widget& icon = *device.Add(WidgetClass::Icon, "icon");
};

TEST_F(ComponentCalls, TextsGoBothWays) {
  EXPECT_EQ(Modify("field", 15, L"12.5"), 0);
  const wchar_t* text = nullptr;
  EXPECT_EQ(Retrieve("field", 15, &text), 0);
  EXPECT_STREQ(text, L"12.5");
  EXPECT_EQ(Modify("field", 15, nullptr), 0);
  EXPECT_EQ(field.Text(), L"");
}

TEST_F(ComponentCalls, OnlyFieldsAndMenusHaveText) {
  const wchar_t* text = L"preset";
  EXPECT_NE(Retrieve("button", 15, &text), 0);
  EXPECT_NE(Modify("button", 15, L"x"), 0);
  EXPECT_STREQ(text, L"preset");
  device.Add(WidgetClass::OptionMenu, "menu");
  EXPECT_EQ(Modify("menu", 15, L"mm"), 0);
  EXPECT_EQ(Retrieve("menu", 15, &text), 0);
  EXPECT_STREQ(text, L"mm");
}

TEST_F(ComponentCalls, ClassNamesAreThoseOfTheWire) {
  const struct {
    const char* component;
    const char* name;
  } rows[] = {{"field", "InputPanel"}, {"button", "PushButton"}, {"message", "Message"},
              {"icon", "Icon"},        {"tree", "Tree"},         {"dev", "Dialog"}};
  for (const auto& row : rows) {
    const char* name = nullptr;
    EXPECT_EQ(Retrieve(row.component, 282, &name), 0);
    EXPECT_STREQ(name, row.name);
  }
}

TEST_F(ComponentCalls, FlagsGoBothWays) {
  for (const int code : {3, 5, 52}) {
    int value = 77;
    EXPECT_EQ(Modify("tree", code, 0), 0);
    EXPECT_EQ(Retrieve("tree", code, &value), 0);
    EXPECT_EQ(value, 0) << code;
    EXPECT_EQ(Modify("tree", code, 1), 0);
    EXPECT_EQ(Retrieve("tree", code, &value), 0);
    EXPECT_EQ(value, 1) << code;
  }
}

TEST_F(ComponentCalls, TheBackgroundIsAColour) {
  unsigned color = 0;
  EXPECT_EQ(Retrieve("tree", 211, &color), 0);
  EXPECT_EQ(color, 0x00FFFFFFu);
  EXPECT_EQ(Modify("tree", 211, 0x00336699u), 0);
  EXPECT_EQ(Retrieve("tree", 211, &color), 0);
  EXPECT_EQ(color, 0x00336699u);
}

TEST_F(ComponentCalls, AMessageHasATextAndAMode) {
  EXPECT_EQ(Modify("message", 2, L"Taken", 124, 2), 0);
  EXPECT_EQ(message.Label(), L"Taken");
  EXPECT_EQ(message.TextMode(), 2);
  EXPECT_NE(Modify("button", 2, L"x", 124, 2), 0);
  EXPECT_EQ(button.Label(), L"") << "a refused call changes nothing";
}

TEST_F(ComponentCalls, AnIconHasNamesOfImages) {
  const char* const names[] = {"error"};
  EXPECT_EQ(Modify("icon", 72, 1, &names[0]), 0);
  EXPECT_EQ(icon.Images(), std::vector<std::string>{"error"});
  int count = 0;
  const char* const* read = nullptr;
  EXPECT_EQ(Retrieve("icon", 72, &count, &read), 0);
  ASSERT_EQ(count, 1);
  EXPECT_STREQ(read[0], "error");
  EXPECT_NE(Modify("message", 72, 1, &names[0]), 0);
}

TEST_F(ComponentCalls, ADeviceHasAFocusAndADefaultButton) {
  EXPECT_EQ(Modify("dev", 234, "button", 29, "button"), 0);
  EXPECT_EQ(device.DefaultButton(), "button");
  EXPECT_EQ(device.Focus(), "button");
  const char* focus = nullptr;
  EXPECT_EQ(Retrieve("dev", 29, &focus), 0);
  EXPECT_STREQ(focus, "button");
  EXPECT_NE(Modify("dev", 234, "", 29, "missing"), 0);
  EXPECT_EQ(device.DefaultButton(), "button");
  EXPECT_EQ(Modify("dev", 234, ""), 0);
  EXPECT_EQ(device.DefaultButton(), "");
  EXPECT_NE(Modify("button", 29, "button"), 0) << "only a device has them";
}

TEST_F(ComponentCalls, TheSelectionIsReadAndSet) {
  Add("root", "");
  Add("a", "root");
  Add("b", "root");
  int count = 77;
  const char* something = nullptr;
  const char* const* names = &something;
  EXPECT_EQ(Retrieve("tree", 72, &count, &names), 0);
  EXPECT_EQ(count, 0);
  EXPECT_EQ(names, nullptr);
  const char* const wanted[] = {"b", "a"};
  EXPECT_EQ(Modify("tree", 72, 2, &wanted[0]), 0);
  EXPECT_EQ(Retrieve("tree", 72, &count, &names), 0);
  ASSERT_EQ(count, 2);
  EXPECT_STREQ(names[0], "b");
  EXPECT_STREQ(names[1], "a");
  const char* const wrong[] = {"b", "missing"};
  EXPECT_NE(Modify("tree", 72, 2, &wrong[0]), 0);
  EXPECT_EQ(store.SelectionSize(), 2u);
  EXPECT_EQ(Modify("tree", 72, 0, nullptr), 0);
  EXPECT_EQ(store.SelectionSize(), 0u);
}

TEST_F(ComponentCalls, TheRootIsNullInAnEmptyTree) {
  const char* root = "preset";
  EXPECT_EQ(Retrieve("tree", 54, &root), 0);
  EXPECT_EQ(root, nullptr);
  Add("top", "");
  EXPECT_EQ(Retrieve("tree", 54, &root), 0);
  EXPECT_STREQ(root, "top");
}

TEST_F(ComponentCalls, WithoutAnEventThereIsNoCurrentNode) {
  Add("top", "");
  for (const int code : {53, 175, 346}) {
    const char* node = "preset";
    int kind = 77;
    EXPECT_NE(Retrieve("tree", 267, &kind, code, &node), 0) << code;
    EXPECT_STREQ(node, "preset");
    EXPECT_EQ(kind, 77) << "a refused call writes nothing";
  }
}

TEST_F(ComponentCalls, TheCurrentNodeIsWhatAFrontOrTheProgramSays) {
  Add("top", "");
  EXPECT_EQ(Modify("tree", 53, "top"), 0);
  const char* node = nullptr;
  EXPECT_EQ(Retrieve("tree", 53, &node), 0);
  EXPECT_STREQ(node, "top");
  EXPECT_NE(Modify("tree", 53, "missing"), 0);
  Do(2031, "top");
  EXPECT_NE(Retrieve("tree", 53, &node), 0) << "it went with its node";
}

TEST_F(ComponentCalls, WhatIsOnlyReadIsNotWritten) {
  for (const int code : {54, 175, 267, 282, 346}) EXPECT_NE(Modify("tree", code, Slot(0)), 0) << code;
}

TEST_F(ComponentCalls, TreeAttributesBelongToTrees) {
  const char* node = "preset";
  for (const int code : {53, 54, 175, 232, 233, 346}) EXPECT_NE(Retrieve("field", code, &node), 0) << code;
  EXPECT_STREQ(node, "preset");
}

TEST_F(ComponentCalls, AStyleIsKeptAsItIs) {
  int style = 0;
  EXPECT_EQ(Modify("button", 519, &style), 0);
  EXPECT_EQ(button.BalloonStyle(), reinterpret_cast<std::uintptr_t>(&style));
  void* read = nullptr;
  EXPECT_EQ(Retrieve("button", 519, &read), 0);
  EXPECT_EQ(read, &style);
}

TEST_F(ComponentCalls, UnknownComponentsAreRefused) {
  int value = 77;
  EXPECT_NE(Retrieve("missing", 5, &value), 0);
  EXPECT_NE(ui_retrieve("missing", "tree", 5, &value, kEnd), 0);
  EXPECT_NE(ui_retrieve(nullptr, nullptr, 5, &value, kEnd), 0);
  EXPECT_NE(Modify("missing", 5, 0), 0);
  EXPECT_NE(Retrieve("tree", 5, nullptr), 0);
  EXPECT_EQ(value, 77);
}

TEST_F(ComponentCalls, PlacesAreReadAndChanged) {
  device.SetGeometry({100, 50, 400, 300});
  button.SetGeometry({10, 20, 80, 24});
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
  EXPECT_EQ(ui_do_operation("dev", "button", 2005, &x, &y, kEnd), 0);
  EXPECT_EQ(ui_do_operation("dev", "button", 2003, &width, &height, kEnd), 0);
  EXPECT_EQ(x, 110) << "on the screen";
  EXPECT_EQ(y, 70);
  EXPECT_EQ(width, 80);
  EXPECT_EQ(height, 24);
  EXPECT_EQ(ui_do_operation("dev", "dev", 2002, Slot(7), Slot(9), Slot(-32768), Slot(-32768), kEnd), 0);
  EXPECT_EQ(device.Geometry(), (uiox::Rect{7, 9, 400, 300}));
  EXPECT_NE(ui_do_operation("dev", "dev", 2002, Slot(7), Slot(9), Slot(-5), Slot(1), kEnd), 0);
  EXPECT_NE(ui_do_operation("dev", "button", 2005, &x, nullptr, kEnd), 0);
  EXPECT_EQ(Retrieve("dev", 71, &height, 70, &width), 0);
  EXPECT_EQ(width, 400);
  EXPECT_EQ(height, 300);
}

TEST_F(ComponentCalls, ANewLayoutFollowsWhatIsShown) {
  message.SetLabel(std::wstring(60, L'x'));
  EXPECT_EQ(ui_do_operation("dev", "dev", 2013, kEnd), 0);
  const int wide = device.Geometry().width;
  message.SetShown(false);
  EXPECT_EQ(ui_do_operation("dev", "dev", 2013, kEnd), 0);
  EXPECT_LT(device.Geometry().width, wide);
  EXPECT_NE(ui_do_operation("dev", "button", 2013, kEnd), 0);
}

TEST_F(ComponentCalls, TextIsMarkedUpToItsEnd) {
  Modify("field", 15, L"12345");
  EXPECT_EQ(ui_do_operation("dev", "field", 2094, Slot(0), Slot(4294967295u), kEnd), 0);
  EXPECT_EQ(field.SelectedText().from, 0u);
  EXPECT_EQ(field.SelectedText().to, 5u);
  EXPECT_EQ(ui_do_operation("dev", "field", 2094, Slot(1), Slot(3u), kEnd), 0);
  EXPECT_EQ(field.SelectedText().to, 3u);
  EXPECT_NE(ui_do_operation("dev", "button", 2094, Slot(0), Slot(1u), kEnd), 0);
}

}  // namespace
