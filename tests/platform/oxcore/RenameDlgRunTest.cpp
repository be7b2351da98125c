#include <gtest/gtest.h>
#include <oxcore/RenameDlg.h>
#include <uiox/Driver.h>
#include <uiox/Suite.h>

#include <string>

using oxcore::RenameDlg;
using oxkutils::Symbol;

namespace {

/// The user in front of the dialog, in the toolkit's own state.
class RenameDlgRun : public testing::Test {
 protected:
  RenameDlgRun() { Suite().Reset(); }
  ~RenameDlgRun() override { Suite().Reset(); }

  static uiox::Suite& Suite() { return uiox::Suite::Get(); }

  const uiox::Driver user{"RenameDlg"};
};

}  // namespace

TEST_F(RenameDlgRun, GivesWhatTheUserTyped) {
  RenameDlg dialog(true, nullptr, Symbol::EMPTY);
  dialog.SetNewName(L"Top");
  Suite().QueueUserAction([this] {
    EXPECT_TRUE(user.Type("Name_Text", L"Bottom"));  // the old name is selected: typing replaces it
    EXPECT_TRUE(user.Press("OK"));
  });
  EXPECT_TRUE(dialog.Run());
  EXPECT_EQ(dialog.GetNewName(), L"Bottom");
  EXPECT_EQ(Suite().QueuedUserActions(), 0u);
}

TEST_F(RenameDlgRun, KeepsTheNameWhenTheUserCancels) {
  RenameDlg dialog(false, nullptr, Symbol::EMPTY);
  dialog.SetNewName(L"Top");
  Suite().QueueUserAction([this] {
    EXPECT_TRUE(user.SetText("Name_Text", L"Bottom"));
    EXPECT_TRUE(user.Press("Cancel"));
  });
  EXPECT_FALSE(dialog.Run());
  EXPECT_EQ(dialog.GetNewName(), L"Top");
}

TEST_F(RenameDlgRun, EndsWhenTheWindowIsClosed) {
  RenameDlg dialog(false, nullptr, Symbol::EMPTY);
  Suite().QueueUserAction([this] { EXPECT_TRUE(user.Close()); });
  EXPECT_FALSE(dialog.Run());
}

TEST_F(RenameDlgRun, AcceptsWithTheDefaultButton) {
  RenameDlg dialog(false, nullptr, Symbol::EMPTY);
  dialog.SetNewName(L"Top");
  Suite().QueueUserAction([this] { EXPECT_TRUE(user.PressDefault()); });
  EXPECT_TRUE(dialog.Run());
  EXPECT_EQ(dialog.GetNewName(), L"Top");
}

TEST_F(RenameDlgRun, LeavesTheDeviceHiddenForTheNextOne) {
  for (const wchar_t* const name : {L"One", L"Two"}) {
    RenameDlg dialog(true, nullptr, Symbol::EMPTY);
    Suite().QueueUserAction([this, name] {
      EXPECT_TRUE(Suite().FindDevice("RenameDlg")->OnScreen());
      EXPECT_EQ(Suite().FindDevice("RenameDlg")->Focus(), "Name_Text");
      EXPECT_TRUE(user.SetText("Name_Text", name));
      EXPECT_TRUE(user.Press("OK"));
    });
    EXPECT_TRUE(dialog.Run());
    EXPECT_EQ(dialog.GetNewName(), name);
    EXPECT_FALSE(Suite().FindDevice("RenameDlg")->OnScreen());
    dialog.SetNewName(L"Three");
    user.Press("OK");
    EXPECT_EQ(dialog.GetNewName(), L"Three") << "nothing of the dialog is left behind the buttons";
  }
}
