// Balloons and the rename dialog of the stand-in toolkit, with a user who presses, types and closes.
#include <gtest/gtest.h>
#include <tests/support/RecordingToolkit.h>
#include <uicomps/dialogs/BalloonMessage.h>
#include <uicomps/dialogs/RenameWithBalloonDlg.h>
#include <uiox/Driver.h>
#include <uiox/Suite.h>
#include <uitoolsox/BalloonStyle.h>

#include <functional>
#include <set>

namespace oxecad_ui {
namespace {

constexpr const char* kBalloon = "ui_balloon_message_dialog.res";
constexpr const char* kButtons[] = {"abort", "retry", "ignore", "yes", "no", "ok", "confirm", "cancel"};

/// The dialog "dlg" with the field "name" on the screen; the user works in the field.
class DialogsOnStandIn : public testing::Test {
 protected:
  DialogsOnStandIn() {
    suite.Reset();
    std::string why;
    uiox::Device* const device = suite.LoadDevice(
        R"({ "x": 100, "y": 100, "width": 400, "height": 200,
             "components": [ { "name": "name", "class": "InputPanel", "width": 200 } ] })",
        "dlg", &why);
    EXPECT_NE(device, nullptr) << why;
    device->Show();
    suite.SetCurrent("dlg", "name");
  }
  ~DialogsOnStandIn() override { suite.Reset(); }

  void Then(std::function<void()> action) { suite.QueueUserAction(std::move(action)); }
  /// Shows a balloon at the field that the user works in; the user then does what was queued.
  int Show(unsigned buttons, unsigned default_button = 0) {
    return ShowBalloonMessage(BalloonQuestion, "Overwrite?", 2, buttons, default_button, "name");
  }
  uiox::Widget& Part(const char* name) { return *suite.Find(kBalloon, name); }

  uiox::Suite& suite = uiox::Suite::Get();
  test_support::RecordingToolkit toolkit{test_support::RecordingToolkit::StandIn};
  uiox::Driver balloon{kBalloon};
  uiox::Driver rename{"RenameDlg"};
};

TEST_F(DialogsOnStandIn, EachButtonGivesItsBit) {
  unsigned bit = 1;
  for (const char* const button : kButtons) {
    Then([this, button] { EXPECT_TRUE(balloon.Press(button)); });
    EXPECT_EQ(Show(255), static_cast<int>(bit)) << button;
    EXPECT_EQ(suite.QueuedUserActions(), 0u);
    bit *= 2;
  }
}

TEST_F(DialogsOnStandIn, TheDialogShowsWhatWasAskedFor) {
  Then([this] {
    EXPECT_TRUE(suite.FindDevice(kBalloon)->OnScreen());
    EXPECT_TRUE(suite.HasModalRun(*suite.FindDevice(kBalloon)));
    EXPECT_EQ(Part("icon").Images(), (std::vector<std::string>{"question"}));
    EXPECT_EQ(Part("message").Label(), L"Overwrite?");
    EXPECT_EQ(Part("message").TextMode(), 2);
    for (const char* const button : kButtons) {
      const std::string name = button;
      EXPECT_EQ(Part(button).Shown(), name == "yes" || name == "no") << name;
    }
    EXPECT_EQ(suite.FindDevice(kBalloon)->DefaultButton(), "no");
    EXPECT_EQ(suite.FindDevice(kBalloon)->Focus(), "no");
    balloon.Press("yes");
  });
  EXPECT_EQ(Show(BalloonYes | BalloonNo, BalloonNo), BalloonYes);
  EXPECT_FALSE(suite.FindDevice(kBalloon)->OnScreen());
  EXPECT_EQ(suite.FindDevice(kBalloon)->DefaultButton(), "");
}

TEST_F(DialogsOnStandIn, ButtonsOfAnEarlierBalloonAreHidden) {
  Then([this] { balloon.Press("retry"); });
  EXPECT_EQ(Show(255), BalloonRetry);
  Then([this] {
    for (const char* const button : kButtons) {
      EXPECT_EQ(Part(button).Shown(), std::string("ok") == button) << button;
    }
    balloon.Press("ok");
  });
  EXPECT_EQ(Show(BalloonOk), BalloonOk);
}

TEST_F(DialogsOnStandIn, EnterPressesTheDefaultButton) {
  Then([this] { EXPECT_TRUE(balloon.PressDefault()); });
  EXPECT_EQ(Show(BalloonYes | BalloonNo, BalloonNo), BalloonNo);
}

TEST_F(DialogsOnStandIn, TheWindowClosesOnlyWithCancel) {
  Then([this] { EXPECT_TRUE(balloon.Close()); });
  EXPECT_EQ(Show(BalloonYes | BalloonCancel, BalloonYes), BalloonCancel);
  Then([this] {
    EXPECT_FALSE(balloon.Close()) << "what was allowed before is not any more";
    EXPECT_TRUE(balloon.Press("yes"));
  });
  EXPECT_EQ(Show(BalloonYes, BalloonYes), BalloonYes);
}

TEST_F(DialogsOnStandIn, TheDialogIsMadeOnce) {
  Then([this] { balloon.Press("ok"); });
  Show(BalloonOk);
  const uiox::Device* const first = suite.FindDevice(kBalloon);
  Then([this] { balloon.Press("ok"); });
  EXPECT_EQ(Show(BalloonOk), BalloonOk);
  EXPECT_EQ(suite.FindDevice(kBalloon), first);
}

TEST_F(DialogsOnStandIn, TheBalloonPointsAtItsAnchorInEveryQuadrant) {
  uiox::Device& device = *suite.FindDevice("dlg");
  const struct { int x, y, quadrant; } rows[] = {{200, 150, 1}, {1300, 150, 3}, {200, 900, 7}, {1300, 900, 9}};
  for (const auto& row : rows) {
    device.SetGeometry({row.x, row.y, 300, 100});
    const uiox::Rect anchor = suite.GeometryOnScreen(*suite.Find("dlg", "name"));
    Then([&] {
      const uiox::Rect place = suite.FindDevice(kBalloon)->Geometry();
      const bool upper = row.quadrant <= 3;
      const bool left = row.quadrant == 1 || row.quadrant == 7;
      EXPECT_EQ(upper ? place.y : place.y + place.height, upper ? anchor.y + anchor.height : anchor.y);
      EXPECT_EQ(left ? place.x + 24 : place.x + place.width - 24, anchor.x + anchor.width / 2);
      EXPECT_GT(place.width, 0);
      EXPECT_GT(place.height, 0);
      for (const char* const part : kButtons) {
        const auto* const style = reinterpret_cast<const uitoolsox::BalloonStyle*>(Part(part).BalloonStyle());
        ASSERT_NE(style, nullptr);
        EXPECT_EQ(style->quadrant, row.quadrant);
      }
      balloon.Press("ok");
    });
    EXPECT_EQ(Show(BalloonOk, BalloonOk), BalloonOk) << row.quadrant;
  }
}

TEST_F(DialogsOnStandIn, AfterABalloonTheUserIsWhereHeWas) {
  Then([this] {
    EXPECT_TRUE(balloon.Press("ok"));
    EXPECT_EQ(suite.CurrentDevice(), kBalloon);
  });
  EXPECT_EQ(Show(BalloonOk), BalloonOk);
  EXPECT_EQ(suite.CurrentDevice(), "dlg");
  EXPECT_EQ(suite.CurrentComponent(), "name");
}

TEST_F(DialogsOnStandIn, AnAnchorThatIsNotThereGivesNoBalloon) {
  EXPECT_EQ(ShowBalloonMessage(0, "x", 2, BalloonOk, BalloonOk, "missing"), -1);
  suite.SetCurrent("", "");
  EXPECT_EQ(ShowBalloonMessage(0, "x", 2, BalloonOk, BalloonOk, "name"), -1) << "nor does a user who works nowhere";
}

TEST_F(DialogsOnStandIn, ARenameIsRefusedExplainedAndThenAccepted) {
  RenameWithBalloonDlg dialog({L"VCC", L"GND"}, "There is such a net", true);
  Then([this] {
    EXPECT_TRUE(rename.SetText("Name_Text", L"GND"));
    EXPECT_TRUE(rename.Press("OK"));
  });
  Then([this] {
    EXPECT_EQ(Part("message").Label(), L"There is such a net");
    EXPECT_EQ(Part("icon").Images(), (std::vector<std::string>{"error"}));
    EXPECT_TRUE(suite.FindDevice("RenameDlg")->OnScreen()) << "it stays open behind the balloon";
    EXPECT_TRUE(balloon.Press("ok"));
  });
  Then([this] {
    EXPECT_FALSE(suite.FindDevice(kBalloon)->OnScreen());
    EXPECT_EQ(suite.FindDevice("RenameDlg")->Focus(), "Name_Text");
    EXPECT_TRUE(rename.SetText("Name_Text", L"gnd"));
    EXPECT_TRUE(rename.Press("OK"));
  });
  EXPECT_TRUE(dialog.Run());
  EXPECT_TRUE(dialog.IsAccepted());
  EXPECT_EQ(dialog.GetNewName(), L"gnd") << "another case is another name";
  EXPECT_EQ(suite.QueuedUserActions(), 0u);
}

TEST_F(DialogsOnStandIn, ACancelledRenameIsNotAccepted) {
  RenameWithBalloonDlg dialog({L"VCC"}, "There is such a net", false);
  Then([this] {
    rename.SetText("Name_Text", L"new");
    EXPECT_TRUE(rename.Press("Cancel"));
  });
  EXPECT_FALSE(dialog.Run());
  EXPECT_FALSE(dialog.IsAccepted());
}

TEST_F(DialogsOnStandIn, TheStandardBalloonWaitsForItsOk) {
  bool seen = false;
  Then([this, &seen] {
    seen = true;
    EXPECT_EQ(Part("message").Label(), L"Too large");
    EXPECT_TRUE(balloon.Press("ok"));
  });
  RenameWithBalloonDlg::StandardBaloon("name", "Too large");
  EXPECT_TRUE(seen);
}

}  // namespace
}  // namespace oxecad_ui
