// What the toolkit is asked for a balloon that can be shown.
#include <tests/support/DecimalComma.h>
#include <tests/uicomps/dialogs/BalloonTest.h>

namespace oxecad_ui {
namespace {

using BalloonWire = BalloonTest;

TEST_F(BalloonWire, TheFirstBalloonCreatesPlacesRunsAndHidesTheDialog) {
  EXPECT_EQ(ShowBalloonMessage(0, "Name exists", 2, kOk, kOk, "field"), 32);
  EXPECT_TRUE(toolkit.Took(Spelled(R"(
    create_search_path 1 "oxecad" => 7
    create_device_ext "BALLOON" "BALLOON" 7 => 1
    modify BALLOON:icon | 72=["error"] | 0
    modify BALLOON:message | 2=L"Name exists" 124=2 | 0
    modify BALLOON:abort | 3=0 | 0
    modify BALLOON:retry | 3=0 | 0
    modify BALLOON:ignore | 3=0 | 0
    modify BALLOON:yes | 3=0 | 0
    modify BALLOON:no | 3=0 | 0
    set_action BALLOON:ok 4 Activate f1 p1 32
    modify BALLOON:ok | 3=1 | 0
    modify BALLOON:confirm | 3=0 | 0
    modify BALLOON:cancel | 3=0 | 0
    modify BALLOON:BALLOON | 234="ok" 29="ok" | 0
    global_inquire | 4001->1920 4002->1080 | 0
    global_inquire | 4003->"dlg" 4004->"name" | 0
    do dlg:field 2005 GetPosition ->300 ->200 | 0
    do dlg:field 2003 GetSize ->100 ->30 | 0
    retrieve BALLOON:BALLOON | 71->120 70->400 | 0
    balloon_style 1 ->0x571e
    modify BALLOON:abort | 519=0x571e | 0
    modify BALLOON:retry | 519=0x571e | 0
    modify BALLOON:ignore | 519=0x571e | 0
    modify BALLOON:yes | 519=0x571e | 0
    modify BALLOON:no | 519=0x571e | 0
    modify BALLOON:ok | 519=0x571e | 0
    modify BALLOON:confirm | 519=0x571e | 0
    modify BALLOON:cancel | 519=0x571e | 0
    modify BALLOON:BALLOON | 519=0x571e | 0
    do BALLOON:BALLOON 2013 UpdateLayout | 0
    manage_device "BALLOON"
    retrieve BALLOON:BALLOON | 71->120 70->400 | 0
    do BALLOON:BALLOON 2002 MoveAndResize 326 230 -32768 -32768 | 0
    activate_device "BALLOON" => 32
    modify BALLOON:BALLOON | 234="" | 0
    unmanage_device "BALLOON")")));
}

TEST_F(BalloonWire, ButtonsEndTheRunWithTheirBitAndTheWindowWithCancel) {
  EXPECT_EQ(Show(1 | 2 | 4 | 8 | 16 | 32 | 64 | 128, 2), 32);
  EXPECT_TRUE(toolkit.Took(Spelled(R"(
    ...
    modify BALLOON:message | 2=L"Name exists" 124=2 | 0
    set_action BALLOON:abort 4 Activate f1 p1 1
    modify BALLOON:abort | 3=1 | 0
    set_action BALLOON:retry 4 Activate f1 p1 2
    modify BALLOON:retry | 3=1 | 0
    set_action BALLOON:ignore 4 Activate f1 p1 4
    modify BALLOON:ignore | 3=1 | 0
    set_action BALLOON:yes 4 Activate f1 p1 8
    modify BALLOON:yes | 3=1 | 0
    set_action BALLOON:no 4 Activate f1 p1 16
    modify BALLOON:no | 3=1 | 0
    set_action BALLOON:ok 4 Activate f1 p1 32
    modify BALLOON:ok | 3=1 | 0
    set_action BALLOON:confirm 4 Activate f1 p1 64
    modify BALLOON:confirm | 3=1 | 0
    set_action BALLOON:cancel 4 Activate f1 p1 128
    modify BALLOON:cancel | 3=1 | 0
    set_action BALLOON:BALLOON 5 Close f1 p1 128
    modify BALLOON:BALLOON | 234="retry" 29="retry" | 0
    global_inquire | 4001->1920 4002->1080 | 0
    ...
    activate_device "BALLOON" => 32
    modify BALLOON:BALLOON | 234="" | 0
    remove_action BALLOON:BALLOON 5 Close f1
    unmanage_device "BALLOON")")));
}

TEST_F(BalloonWire, WhatIsRegisteredIsTheToolkitsOwnEndOfARun) {
  toolkit.When(Calling(Function::ActivateDevice)).Run([this](const uiox::Call&) {
    ASSERT_EQ(toolkit.Registered().size(), 2u);
    for (const auto& registration : toolkit.Registered()) {
      EXPECT_EQ(registration.callback, &ui_exit_device);
      EXPECT_STREQ(static_cast<const char*>(registration.client_data), kBalloon);
      EXPECT_EQ(registration.value, reinterpret_cast<void*>(kCancel));
    }
  });
  Show(kCancel, 0);
  ASSERT_EQ(toolkit.Registered().size(), 1u) << "the one for closing is gone";
  EXPECT_STREQ(static_cast<const char*>(toolkit.Registered()[0].client_data), kBalloon) << "it outlives the balloon";
}

TEST_F(BalloonWire, NoButtonMeansNoDefaultAndNoWayToClose) {
  EXPECT_EQ(Show(0, kOk), 32);
  std::size_t hidden = 0;
  for (const std::string& line : toolkit.TakeLines()) {
    hidden += line.find("| 3=0 | 0") != std::string::npos ? 1 : 0;
    EXPECT_FALSE(line.starts_with("set_action") || line.starts_with("remove_action")) << line;
    EXPECT_EQ(line.find("29="), std::string::npos) << line;
  }
  EXPECT_EQ(hidden, 8u);
}

TEST_F(BalloonWire, OnlyAShownButtonBecomesTheDefault) {
  const auto default_of = [this](unsigned buttons, unsigned default_button) -> std::string {
    for (const std::string& line : LinesOf(buttons, default_button)) {
      if (const auto at = line.find("234=\""); at != std::string::npos && line.find("29=") != std::string::npos) {
        return line.substr(at);
      }
    }
    return "none";
  };
  EXPECT_EQ(default_of(8 | 16, 16), "234=\"no\" 29=\"no\" | 0");
  EXPECT_EQ(default_of(8 | 16, 32), "none");
  EXPECT_EQ(default_of(8 | 16, 0), "none");
  EXPECT_EQ(default_of(8 | 16, 8 | 16), "none") << "the default is one bit";
  EXPECT_EQ(default_of(256, 256), "none");
}

TEST_F(BalloonWire, TheDefaultIsClearedAfterEveryRun) {
  const std::string cleared = Spelled("modify BALLOON:BALLOON | 234=\"\" | 0");
  for (const unsigned default_button : {0u, kOk}) {
    const auto lines = LinesOf(kOk, default_button);
    ASSERT_GE(lines.size(), 2u);
    EXPECT_EQ(lines[lines.size() - 2], cleared);
  }
}

TEST_F(BalloonWire, TheIconIsTheTypesWord) {
  const std::pair<int, const char*> rows[] = {{1, "warning"}, {2, "info"},   {3, "question"},   {0, "error"},
                                              {4, "error"},   {-1, "error"}, {1 << 30, "error"}};
  for (const auto& [type, word] : rows) {
    toolkit.TakeLines();
    ShowBalloonMessage(type, "text", 2, kOk, kOk, "name");
    EXPECT_TRUE(toolkit.Took(Spelled("...\nmodify BALLOON:icon | 72=[\"" + std::string(word) + "\"] | 0\n...")));
  }
}

TEST_F(BalloonWire, TheTextIsWideAndItsModeIsPassedOn) {
  CreateDialog();
  ShowBalloonMessage(2,
                     "Gr\xC3\xB6\xC3\x9F"
                     "e \xF0\x9F\x94\x8C <b>&amp;",
                     5, kOk, kOk, "name");
  EXPECT_TRUE(toolkit.Took(Spelled("...\nmodify BALLOON:message | 2=L\"Größe 🔌 <b>&amp;\" 124=5 | 0\n...")));
  ShowBalloonMessage(2, "", -1, kOk, kOk, "name");
  EXPECT_TRUE(toolkit.Took(Spelled("...\nmodify BALLOON:message | 2=L\"\" 124=-1 | 0\n...")));
}

TEST_F(BalloonWire, ALaterBalloonUsesTheDialogThatIsThere) {
  CreateDialog();
  EXPECT_EQ(Show(), 32);
  EXPECT_TRUE(toolkit.Took(Spelled("modify BALLOON:icon | 72=[\"error\"] | 0\n...")));
}

TEST_F(BalloonWire, TheResultIsWhatEndedTheRun) {
  for (const int ended : {1, 8, 128, -1, 0, 77}) {
    toolkit.When(Calling(Function::ActivateDevice)).Result(ended);
    EXPECT_EQ(Show(kOk | kCancel), ended);
  }
}

TEST_F(BalloonWire, WithoutAnAnchorItPointsAtTheCurrentComponent) {
  CreateDialog();
  Show(kOk, kOk, "");
  EXPECT_TRUE(toolkit.Took(R"(
    ...
    do dlg:name 2005 GetPosition ->300 ->200 | 0
    do dlg:name 2003 GetSize ->100 ->30 | 0
    ...)"));
}

TEST_F(BalloonWire, TheSizeAfterShowingCounts) {
  CreateDialog();
  toolkit.When(Calling(Function::ManageDevice)).Run([this](const uiox::Call&) { GiveBalloon(700, 300); });
  GiveAnchor({1500, 800, 100, 30});
  Show();
  EXPECT_TRUE(toolkit.Took(Spelled(R"(
    ...
    retrieve BALLOON:BALLOON | 71->120 70->400 | 0
    balloon_style 9 ->0x571e
    ...
    retrieve BALLOON:BALLOON | 71->300 70->700 | 0
    do BALLOON:BALLOON 2002 MoveAndResize 874 500 -32768 -32768 | 0
    ...)")));
}

TEST_F(BalloonWire, AStyleAsWideAsAPointerArrivesWhole) {
  CreateDialog();
  int handle = 0;
  toolkit.NamePointer(&handle, "&style");
  toolkit.When(Calling(Function::BalloonStyle)).GiveInOrder({reinterpret_cast<std::intptr_t>(&handle)});
  Show();
  EXPECT_TRUE(toolkit.Took(Spelled(R"(
    ...
    balloon_style 1 ->&style
    modify BALLOON:abort | 519=&style | 0
    ...
    modify BALLOON:BALLOON | 519=&style | 0
    ...)")));
}

TEST_F(BalloonWire, IsTheSameWithADecimalComma) {
  CreateDialog();
  const test_support::DecimalComma locale;
  GiveScreen(19200, 10800);
  GiveAnchor({8000, 4000, 100, 30});
  Show();
  EXPECT_TRUE(toolkit.Took(Spelled("...\ndo BALLOON:BALLOON 2002 MoveAndResize 8026 4030 -32768 -32768 | 0\n...")));
}

}  // namespace
}  // namespace oxecad_ui
