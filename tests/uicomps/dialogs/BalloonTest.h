/// \file
/// What the tests of the balloon share.
#ifndef OXECAD_TESTS_UICOMPS_DIALOGS_BALLOONTEST_H
#define OXECAD_TESTS_UICOMPS_DIALOGS_BALLOONTEST_H

#include <gtest/gtest.h>
#include <tests/support/RecordingToolkit.h>
#include <uicomps/dialogs/BalloonMessage.h>

#include <string>
#include <string_view>
#include <vector>

namespace oxecad_ui {

using test_support::Calling;
using test_support::Doing;
using test_support::Failure;
using test_support::Inquiring;
using test_support::Modifying;
using test_support::RecordingToolkit;
using test_support::Retrieving;
using uiox::Function;

constexpr const char* kBalloon = "ui_balloon_message_dialog.res";
constexpr const char* kButtons[] = {"abort", "retry", "ignore", "yes", "no", "ok", "confirm", "cancel"};
constexpr unsigned kOk = 32;
constexpr unsigned kCancel = 128;

/// Lines in which "BALLOON" stands for the dialog's name.
inline std::string Spelled(std::string_view lines) {
  constexpr std::string_view mark = "BALLOON";
  std::string text(lines);
  for (std::size_t at = 0; (at = text.find(mark, at)) != std::string::npos;) text.replace(at, mark.size(), kBalloon);
  return text;
}

struct Box {
  int x;
  int y;
  int width;
  int height;
};

/// A toolkit with a screen of 1920 to 1080 pixels and the field "name" of the dialog "dlg" in its left upper quarter;
/// the balloon is 400 to 120 pixels large, its style is 0x571e, and the user presses "ok".
class BalloonTest : public testing::Test {
 protected:
  BalloonTest() {
    toolkit.When(Calling(Function::CreateSearchPath)).Result(7);
    toolkit.When(Calling(Function::ActivateDevice)).Result(static_cast<int>(kOk));
    toolkit.When(Calling(Function::BalloonStyle)).GiveInOrder({0x571e});
    toolkit.When(Inquiring(4003)).Give(4003, "dlg").Give(4004, "name");
    GiveScreen(1920, 1080);
    GiveAnchor({300, 200, 100, 30});
    GiveBalloon(400, 120);
  }

  void GiveScreen(int width, int height) { toolkit.When(Inquiring(4001)).Give(4001, width).Give(4002, height); }
  void GiveAnchor(const Box& anchor) {
    toolkit.When(Doing(2005)).GiveInOrder({anchor.x, anchor.y});
    toolkit.When(Doing(2003)).GiveInOrder({anchor.width, anchor.height});
  }
  void GiveBalloon(int width, int height) { toolkit.When(Retrieving(71)).Give(71, height).Give(70, width); }

  static int Show(unsigned buttons = kOk, unsigned default_button = kOk, const std::string& anchor = "name") {
    return ShowBalloonMessage(0, "Name exists", 2, buttons, default_button, anchor);
  }
  /// Shows a first balloon, so that the dialog is there.
  void CreateDialog() {
    EXPECT_NE(Show(), -1);
    toolkit.TakeLines();
  }
  /// The lines of one balloon.
  std::vector<std::string> LinesOf(unsigned buttons, unsigned default_button) {
    toolkit.TakeLines();
    Show(buttons, default_button);
    return toolkit.TakeLines();
  }

  RecordingToolkit toolkit;
};

}  // namespace oxecad_ui

#endif
