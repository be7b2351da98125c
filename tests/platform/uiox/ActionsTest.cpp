#include "Wire.h"

#include <uiox/Actions.h>
#include <uiox/UserEvents.h>

#include <functional>

namespace {

using uiox::WidgetClass;
using uiox_test::kEnd;
using uiox_test::Slot;
using uiox_test::WireTest;

/// What callbacks of these tests have in common: they note that they were called and do what the test wants.
std::string g_called;
std::function<void()> g_do;

template <char Letter>
int Note(void*, void*) {
  g_called += Letter;
  if (Letter == 'a' && g_do) g_do();
  return 0;
}

struct Given {
  void* client_data = nullptr;
  void* value = nullptr;
};

int Keep(void* client_data, void* value) {
  static_cast<Given*>(client_data)->client_data = client_data;
  static_cast<Given*>(client_data)->value = value;
  return -1;
}

class Actions : public WireTest {
 protected:
  Actions() {
    g_called.clear();
    g_do = nullptr;
  }
  ~Actions() override { g_do = nullptr; }
  uiox::Widget& button = *suite.FindDevice("dev")->Add(WidgetClass::PushButton, "button");

  int AddAction(ui_callback callback) { return ui_add_action("dev", "button", 4, callback, nullptr, kEnd); }
};

TEST_F(Actions, AreCalledInTheOrderOfRegistration) {
  EXPECT_EQ(AddAction(Note<'b'>), 0);
  EXPECT_EQ(AddAction(Note<'a'>), 0);
  EXPECT_EQ(AddAction(Note<'b'>), 0);
  EXPECT_TRUE(uiox::user::Press(button));
  EXPECT_EQ(g_called, "bab");
}

TEST_F(Actions, AreGivenTheirClientDataAndValue) {
  Given given;
  EXPECT_EQ(ui_set_action("dev", "button", 4, Keep, &given, Slot(12)), 0);
  uiox::user::Press(button);
  EXPECT_EQ(given.client_data, &given);
  EXPECT_EQ(given.value, reinterpret_cast<void*>(12));
}

TEST_F(Actions, SetReplacesThoseOfItsReasonOnly) {
  AddAction(Note<'a'>);
  AddAction(Note<'b'>);
  ui_add_action("dev", "button", 31, Note<'f'>, nullptr, kEnd);
  EXPECT_EQ(ui_set_action("dev", "button", 4, Note<'c'>, nullptr, kEnd), 0);
  uiox::user::Press(button);
  uiox::user::FocusIn(button);
  EXPECT_EQ(g_called, "cf");
}

TEST_F(Actions, RemoveTakesTheFirstEqualOne) {
  AddAction(Note<'a'>);
  AddAction(Note<'b'>);
  AddAction(Note<'a'>);
  EXPECT_EQ(ui_remove_action("dev", "button", 4, Note<'a'>), 0);
  uiox::user::Press(button);
  EXPECT_EQ(g_called, "ba");
  EXPECT_EQ(ui_remove_action("dev", "button", 4, Note<'a'>), 0);
  EXPECT_NE(ui_remove_action("dev", "button", 4, Note<'a'>), 0);
  EXPECT_NE(ui_remove_action("dev", "button", 3, Note<'b'>), 0);
}

TEST_F(Actions, BadRegistrationsAreRefused) {
  EXPECT_NE(ui_add_action("dev", "button", 6, Note<'a'>, nullptr, kEnd), 0) << "no such reason";
  EXPECT_NE(ui_add_action("dev", "button", 4, nullptr, nullptr, kEnd), 0);
  EXPECT_NE(ui_add_action("dev", "missing", 4, Note<'a'>, nullptr, kEnd), 0);
  EXPECT_NE(ui_set_action("missing", "button", 4, Note<'a'>, nullptr, kEnd), 0);
  EXPECT_NE(ui_remove_action("dev", "missing", 4, Note<'a'>), 0);
  EXPECT_TRUE(button.Actions().All().empty());
}

TEST_F(Actions, OneRemovedMeanwhileIsNotCalled) {
  AddAction(Note<'a'>);
  AddAction(Note<'b'>);
  AddAction(Note<'c'>);
  g_do = [] { ui_remove_action("dev", "button", 4, Note<'b'>); };
  uiox::user::Press(button);
  EXPECT_EQ(g_called, "ac");
}

TEST_F(Actions, OneAddedMeanwhileWaitsForTheNextTime) {
  AddAction(Note<'a'>);
  g_do = [this] {
    if (button.Actions().Count(4) == 1) AddAction(Note<'b'>);
  };
  uiox::user::Press(button);
  EXPECT_EQ(g_called, "a");
  uiox::user::Press(button);
  EXPECT_EQ(g_called, "aab");
}

TEST_F(Actions, TheComponentMayEndMeanwhile) {
  AddAction(Note<'a'>);
  AddAction(Note<'b'>);
  g_do = [] { uiox::Suite::Get().DestroyDevice("dev"); };
  EXPECT_TRUE(uiox::user::Press(button));
  EXPECT_EQ(g_called, "a");
  EXPECT_EQ(suite.FindDevice("dev"), nullptr);
}

TEST_F(Actions, ACallbackMayCauseTheSameEvent) {
  AddAction(Note<'a'>);
  AddAction(Note<'b'>);
  int depth = 0;
  g_do = [&] {
    if (depth++ < 2) uiox::user::Press(button);
  };
  uiox::user::Press(button);
  EXPECT_EQ(g_called, "aaabbb");
}

TEST_F(Actions, ACopyOfAnActionIsCalledForEachRegistration) {
  AddAction(Note<'b'>);
  AddAction(Note<'b'>);
  EXPECT_EQ(button.Actions().Count(4), 2u);
  uiox::user::Press(button);
  EXPECT_EQ(g_called, "bb");
}

}  // namespace
