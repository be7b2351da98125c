#include <viewer/trees/Panels.h>
#include <viewer/trees/ViewSettings.h>

#include <gtest/gtest.h>

#include <string>

#include <uiox/Driver.h>
#include <uiox/Suite.h>

namespace oxviewer {
namespace {

class ViewSettingsTest : public ::testing::Test {
 protected:
  ViewSettingsTest() {
    CreatePanels();
    settings_.SetUnits({"mm", "mm"});
    settings_.Init();
    settings_.SetOnChange([this] { ++changes_; });
  }

  ~ViewSettingsTest() override { user_.FocusOut("grid"); }

  std::wstring Text(const char* field) { return uiox::Suite::Get().Find(kSettingsPanel, field)->Text(); }
  // The user comes to the field, types over what is there, and leaves.
  void Enter(const char* field, const wchar_t* text) {
    ASSERT_TRUE(user_.FocusIn(field));
    user_.SetText(field, text);
    ASSERT_TRUE(user_.FocusOut(field));
  }

  ViewSettings settings_{kSettingsPanel};
  uiox::Driver user_{kSettingsPanel};
  int changes_ = 0;
};

TEST_F(ViewSettingsTest, BeginWithTheirValues) {
  EXPECT_EQ(Text("grid"), L"1");
  EXPECT_EQ(Text("lineWidth"), L"0.05");
  EXPECT_EQ(Text("dim"), L"75");
}

TEST_F(ViewSettingsTest, RoomMayBeReckoned) {
  Enter("room", L"1.5mm + 20mil");
  EXPECT_EQ(Text("room"), L"2.008");
  EXPECT_EQ(settings_.Values().room, 2.008);
  EXPECT_EQ(changes_, 1);
  Enter("room", L"3 +");
  EXPECT_EQ(Text("room"), L"2.008");
}

TEST_F(ViewSettingsTest, CountWhenTheFieldIsLeft) {
  ASSERT_TRUE(user_.FocusIn("grid"));
  ASSERT_TRUE(user_.SetText("grid", L"2.5"));
  EXPECT_EQ(changes_, 0);
  ASSERT_TRUE(user_.FocusOut("grid"));
  EXPECT_EQ(settings_.Values().grid, 2.5);
  EXPECT_EQ(changes_, 1);
}

TEST_F(ViewSettingsTest, RefuseAKeystrokeThatMakesNoNumber) {
  const std::size_t beeps = uiox::Suite::Get().Beeps();
  ASSERT_TRUE(user_.FocusIn("grid"));
  user_.Type("grid", L"x");
  EXPECT_EQ(Text("grid"), L"1");
  EXPECT_EQ(uiox::Suite::Get().Beeps(), beeps + 1);
}

TEST_F(ViewSettingsTest, AreKeptWithinTheirRange) {
  Enter("grid", L"1000");
  EXPECT_EQ(settings_.Values().grid, 100);
  EXPECT_EQ(Text("grid"), L"100");
  Enter("dim", L"250");
  EXPECT_EQ(settings_.Values().dimStrength, 1);
}

TEST_F(ViewSettingsTest, EmptyGridIsNone) {
  Enter("grid", L"");
  EXPECT_EQ(settings_.Values().grid, 0);
}

TEST_F(ViewSettingsTest, AnotherUnitKeepsTheLength) {
  Enter("grid", L"2.54");
  ASSERT_TRUE(user_.ChooseOption("gridUnit", "mil"));
  EXPECT_EQ(Text("grid"), L"100");
  EXPECT_EQ(settings_.Values().grid, 2.54);
  EXPECT_EQ(Text("lineWidth"), L"0.05");
  Enter("grid", L"50");
  EXPECT_DOUBLE_EQ(settings_.Values().grid, 1.27);
}

TEST_F(ViewSettingsTest, RangeFollowsTheUnit) {
  ASSERT_TRUE(user_.ChooseOption("gridUnit", "in"));
  Enter("grid", L"50");
  EXPECT_DOUBLE_EQ(settings_.Values().grid, 100);
  EXPECT_EQ(Text("grid"), L"3.93701");
}

TEST_F(ViewSettingsTest, LeavingAFieldThatNobodyTouchedKeepsTheExactValue) {
  ASSERT_TRUE(user_.ChooseOption("gridUnit", "in"));
  ASSERT_EQ(Text("grid"), L"0.0393701");
  ASSERT_TRUE(user_.FocusIn("grid"));
  ASSERT_TRUE(user_.FocusOut("grid"));
  EXPECT_EQ(settings_.Values().grid, 1);
  EXPECT_EQ(changes_, 0);
}

TEST_F(ViewSettingsTest, UnknownUnitsArePassedOver) {
  settings_.SetUnits({"furlong", "um"});
  EXPECT_EQ(settings_.Units(), (std::array<std::string, 2>{"mm", "um"}));
  EXPECT_EQ(Text("lineWidth"), L"50");
}

}  // namespace
}  // namespace oxviewer
