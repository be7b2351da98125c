#include "Wire.h"

#include <uiox/Driver.h>

#include <functional>

namespace {

using uiox::WidgetClass;
using uiox_test::kEnd;
using uiox_test::Slot;
using uiox_test::WireTest;

/// One line for each callback, with the attributes of its event.
std::vector<std::string> g_events;

std::string Current(int code) {
  const char* node = nullptr;
  return ui_retrieve("dev", "tree", code, &node, kEnd) == 0 && node ? node : "-";
}

std::string Selection() {
  int count = 0;
  char** names = nullptr;
  int kind = -1;
  ui_retrieve("dev", "tree", 72, &count, &names, kEnd);
  ui_retrieve("dev", "tree", 267, &kind, kEnd);
  std::string text = std::to_string(kind) + ":";
  for (int i = 0; i < count; ++i) text += std::string(" ") + names[i];
  return text;
}

int OnTree(void*, void* value) {
  switch (static_cast<int>(reinterpret_cast<std::intptr_t>(value))) {
    case 3:
      g_events.push_back("select " + Selection() + " at " + Current(53));
      break;
    case 4:
      g_events.push_back("activate " + Current(53));
      break;
    case 7:
      g_events.push_back("check " + Current(346));
      break;
    case 29:
      g_events.push_back("expand " + Current(175));
      break;
    case 30:
      g_events.push_back("collapse " + Current(175));
      break;
    case 35:
      g_events.push_back("cell " + Current(232) + "/" + Current(233));
      break;
    default:
      break;
  }
  return -1;
}

int OnOther(void* name, void*) {
  g_events.push_back(static_cast<const char*>(name));
  return 0;
}

using Events = std::vector<std::string>;

class UserEvents : public WireTest {
 protected:
  UserEvents() {
    g_events.clear();
    Add("root", "");
    Add("a", "root");
    Add("b", "root");
    for (const int reason : {3, 4, 7, 29, 30, 35}) ui_add_action("dev", "tree", reason, OnTree, nullptr, Slot(reason));
  }
  uiox::Driver user{"dev"};
  uiox::Device& device = *suite.FindDevice("dev");

  uiox::Widget& Component(WidgetClass widget_class, const char* name, int reason) {
    uiox::Widget& widget = *device.Add(widget_class, name);
    ui_add_action("dev", name, reason, OnOther, const_cast<char*>(name), kEnd);
    return widget;
  }
  static Events Taken() { return std::exchange(g_events, {}); }
};

TEST_F(UserEvents, AnActivationNamesItsNode) {
  EXPECT_TRUE(user.Activate("tree", "a"));
  EXPECT_EQ(Taken(), Events{"activate a"});
  EXPECT_FALSE(user.Activate("tree", "missing"));
  EXPECT_FALSE(user.Activate("missing", "a"));
  EXPECT_EQ(Taken(), Events{});
  EXPECT_EQ(suite.CurrentDevice(), "dev");
  EXPECT_EQ(suite.CurrentComponent(), "tree");
}

TEST_F(UserEvents, ASelectionNamesItsNodesItsKindAndTheCurrentNode) {
  EXPECT_TRUE(user.Select("tree", {"b", "a"}));
  EXPECT_TRUE(user.Select("tree", {}));
  EXPECT_TRUE(user.Select("tree", {"a"}, uiox::user::kExtended, "root"));
  EXPECT_EQ(Taken(), (Events{"select 0: b a at a", "select 0: at a", "select 1: a at root"}));
  EXPECT_FALSE(user.Select("tree", {"a", "missing"}));
  EXPECT_EQ(store.SelectionSize(), 1u);
}

TEST_F(UserEvents, OneNodeAtATimeIsKindTwo) {
  EXPECT_TRUE(user.ToggleSelected("tree", "a"));
  EXPECT_TRUE(user.ToggleSelected("tree", "b"));
  EXPECT_TRUE(user.ToggleSelected("tree", "a"));
  EXPECT_EQ(Taken(), (Events{"select 2: a at a", "select 2: a b at b", "select 2: b at a"}));
}

TEST_F(UserEvents, ExpansionChangesTheNodeFirst) {
  EXPECT_TRUE(user.Expand("tree", "root"));
  EXPECT_TRUE(store.Expanded(Node("root")));
  EXPECT_FALSE(user.Expand("tree", "root")) << "it is expanded";
  EXPECT_TRUE(user.Collapse("tree", "root"));
  EXPECT_FALSE(store.Expanded(Node("root")));
  EXPECT_EQ(Taken(), (Events{"expand root", "collapse root"}));
}

TEST_F(UserEvents, ACheckTogglesTheBoxFirst) {
  EXPECT_TRUE(user.Check("tree", "a"));
  EXPECT_EQ(store.CheckState(Node("a")), 1u);
  EXPECT_TRUE(user.Check("tree", "a"));
  EXPECT_EQ(store.CheckState(Node("a")), 0u);
  store.SetCheckState(Node("a"), 2);
  EXPECT_TRUE(user.Check("tree", "a"));
  EXPECT_EQ(store.CheckState(Node("a")), 1u) << "mixed becomes checked";
  EXPECT_EQ(Taken(), (Events{"check a", "check a", "check a"}));
}

TEST_F(UserEvents, ALockedCheckBoxStaysAsItIs) {
  store.SetCheckSensitive(Node("a"), false);
  EXPECT_FALSE(user.Check("tree", "a"));
  EXPECT_EQ(store.CheckState(Node("a")), 0u);
  EXPECT_EQ(Taken(), Events{});
}

TEST_F(UserEvents, NothingHappensInAnInsensitiveTree) {
  tree.SetSensitive(false);
  EXPECT_FALSE(user.Activate("tree", "a"));
  EXPECT_FALSE(user.Select("tree", {"a"}));
  EXPECT_FALSE(user.ToggleSelected("tree", "a"));
  EXPECT_FALSE(user.Expand("tree", "root"));
  EXPECT_FALSE(user.Check("tree", "a"));
  EXPECT_FALSE(user.ClickCell("tree", "a", "a"));
  EXPECT_EQ(Taken(), Events{});
}

TEST_F(UserEvents, AClickNamesItsCell) {
  EXPECT_TRUE(user.ClickCell("tree", "a", "b"));
  EXPECT_EQ(Taken(), Events{"cell a/b"});
  EXPECT_FALSE(user.ClickCell("tree", "a", "c"));
  EXPECT_FALSE(user.ClickCell("tree", "missing", "b"));
}

TEST_F(UserEvents, ACellsCheckButtonIsToggledFirst) {
  tree.CreateControl("dim", WidgetClass::CheckButton);
  ui_set_action("dev", "dim", 4, OnOther, const_cast<char*>("dim"), kEnd);
  EXPECT_FALSE(user.ToggleCellCheck("tree", "a", "b")) << "nothing in the cell";
  Do(2160, "a", "b", 140, "dim");
  EXPECT_TRUE(user.ToggleCellCheck("tree", "a", "b"));
  EXPECT_EQ(suite.Find("dev", "dim")->CheckState(), 1u);
  EXPECT_TRUE(user.ToggleCellCheck("tree", "a", "b"));
  EXPECT_EQ(suite.Find("dev", "dim")->CheckState(), 0u);
  EXPECT_EQ(Taken(), (Events{"dim", "dim"}));
}

TEST_F(UserEvents, AnOptionIsChosenInItsCell) {
  uiox::Widget* menu = tree.CreateControl("menu", WidgetClass::OptionMenu);
  menu->SetItems({{"none", "", L""}, {"a_show", "", L""}});
  ui_set_action("dev", "menu", 3, OnOther, const_cast<char*>("menu"), kEnd);
  Do(2160, "a", "b", 140, "menu");
  EXPECT_TRUE(user.ChooseCellOption("tree", "a", "b", "a_show"));
  EXPECT_EQ(menu->SelectedItem(), "a_show");
  EXPECT_TRUE(user.ChooseOption("menu", "a_show")) << "choosing it again is an event too";
  EXPECT_FALSE(user.ChooseCellOption("tree", "a", "b", "missing"));
  EXPECT_EQ(Taken(), (Events{"menu", "menu"}));
}

TEST_F(UserEvents, ButtonsArePressed) {
  Component(WidgetClass::PushButton, "ok", 4);
  uiox::Widget& check = Component(WidgetClass::CheckButton, "check", 4);
  EXPECT_TRUE(user.Press("ok"));
  EXPECT_TRUE(user.Press("check"));
  EXPECT_EQ(check.CheckState(), 1u);
  EXPECT_EQ(Taken(), (Events{"ok", "check"}));
  check.SetSensitive(false);
  EXPECT_FALSE(user.Press("check"));
  EXPECT_FALSE(user.Press("tree"));
  EXPECT_FALSE(user.Press("missing"));
}

TEST_F(UserEvents, TypingIsOneEventPerKeystroke) {
  uiox::Widget& field = Component(WidgetClass::InputPanel, "field", 8);
  EXPECT_TRUE(user.Type("field", L"12"));
  EXPECT_EQ(field.Text(), L"12");
  EXPECT_EQ(Taken(), (Events{"field", "field"}));
  EXPECT_TRUE(user.SetText("field", L"345"));
  EXPECT_EQ(Taken(), Events{"field"});
  field.SelectText(0, 4294967295u);
  EXPECT_TRUE(user.Type("field", L"6"));
  EXPECT_EQ(field.Text(), L"6") << "marked text is replaced";
}

int Refuse(void*, void*) { return ui_modify("dev", "field", 15, L"", kEnd); }

TEST_F(UserEvents, TypingGoesOnFromWhatACallbackLeft) {
  device.Add(WidgetClass::InputPanel, "field");
  ui_add_action("dev", "field", 8, Refuse, nullptr, kEnd);
  EXPECT_TRUE(user.Type("field", L"abc"));
  EXPECT_EQ(suite.Find("dev", "field")->Text(), L"");
}

TEST_F(UserEvents, TheFocusLeavesBeforeItComes) {
  Component(WidgetClass::InputPanel, "first", 31);
  ui_add_action("dev", "first", 32, OnOther, const_cast<char*>("first left"), kEnd);
  Component(WidgetClass::InputPanel, "second", 31);
  EXPECT_TRUE(user.FocusIn("first"));
  EXPECT_FALSE(user.FocusIn("first")) << "it is there";
  EXPECT_TRUE(user.FocusIn("second"));
  EXPECT_EQ(Taken(), (Events{"first", "first left", "second"}));
  EXPECT_EQ(device.Focus(), "second");
  EXPECT_EQ(suite.CurrentComponent(), "second");
  EXPECT_TRUE(user.FocusOut("second"));
  EXPECT_FALSE(user.FocusOut("second"));
}

TEST_F(UserEvents, TheProgramMovesTheFocusSilently) {
  Component(WidgetClass::InputPanel, "first", 31);
  EXPECT_EQ(ui_modify("dev", "dev", 29, "first", kEnd), 0);
  EXPECT_EQ(Taken(), Events{});
  EXPECT_TRUE(user.FocusIn("first")) << "now the keyboard is really there";
  EXPECT_EQ(Taken(), Events{"first"});
}

TEST_F(UserEvents, ClosingIsTheDevicesMatter) {
  EXPECT_FALSE(user.Close()) << "nobody listens";
  ui_set_action("dev", "dev", 5, OnOther, const_cast<char*>("close"), kEnd);
  EXPECT_TRUE(user.Close());
  EXPECT_EQ(Taken(), Events{"close"});
}

TEST_F(UserEvents, EnterPressesTheDefaultButton) {
  uiox::Widget& ok = Component(WidgetClass::PushButton, "ok", 4);
  EXPECT_FALSE(user.PressDefault());
  device.SetDefaultButton("ok");
  EXPECT_TRUE(user.PressDefault());
  ok.SetShown(false);
  EXPECT_FALSE(user.PressDefault()) << "it cannot be seen";
  EXPECT_EQ(Taken(), Events{"ok"});
}

int DeleteRoot(void*, void*) {
  g_events.push_back("deleted");
  return ui_do_operation("dev", "tree", 2031, "root", kEnd);
}

TEST_F(UserEvents, ACallbackMayDeleteItsNode) {
  for (const int reason : {3, 4, 7, 29, 35}) ui_set_action("dev", "tree", reason, DeleteRoot, nullptr, kEnd);
  EXPECT_TRUE(user.Activate("tree", "a"));
  EXPECT_EQ(store.Size(), 0u);
  for (const auto& event : std::vector<std::function<bool()>>{
           [&] { return user.Select("tree", {"root"}); }, [&] { return user.ToggleSelected("tree", "root"); },
           [&] { return user.Check("tree", "root"); }, [&] { return user.Expand("tree", "root"); },
           [&] { return user.ClickCell("tree", "root", "a"); }}) {
    Add("root", "");
    EXPECT_TRUE(event());
    EXPECT_EQ(store.Size(), 0u);
  }
}

TEST_F(UserEvents, SingleSelectionHoldsOneNode) {
  uiox::TreeStyle style;
  style.selection = uiox::SelectionMode::Single;
  uiox::TreeWidget& single = *device.AddTree("single", style);
  for (const char* name : {"x", "y"}) ui_do_operation("dev", "single", 2029, name, L"", "", "", kEnd);
  EXPECT_FALSE(user.Select("single", {"x", "y"}));
  EXPECT_TRUE(user.Select("single", {"x"}));
  EXPECT_TRUE(user.ToggleSelected("single", "y"));
  EXPECT_EQ(single.Store().SelectionSize(), 1u);
}

}  // namespace
