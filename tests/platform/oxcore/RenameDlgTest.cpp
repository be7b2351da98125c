#include <oxcore/RenameDlg.h>

#include <gtest/gtest.h>
#include <oxcore/Help.h>
#include <tests/support/RecordingToolkit.h>

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <string>
#include <type_traits>
#include <vector>

using oxcore::RenameDlg;
using oxkutils::Symbol;
using test_support::Calling;
using test_support::RecordingToolkit;
using test_support::Retrieving;

static_assert(std::is_copy_constructible_v<RenameDlg> && std::is_copy_assignable_v<RenameDlg>);
static_assert(std::has_virtual_destructor_v<RenameDlg>);

namespace {

constexpr int kActivate = 4;
constexpr int kClose = 5;
constexpr int kInput = 8;
constexpr int kText = 15;

/// Opens what is protected, and writes down which virtual operation was reached.
class OpenDlg : public RenameDlg {
 public:
  using RenameDlg::m_accepted;
  using RenameDlg::m_newName;
  using RenameDlg::RenameDlg;

  void ClickOK() override {
    reached += "OK ";
    RenameDlg::ClickOK();
  }
  void Close() override {
    reached += "Close ";
    RenameDlg::Close();
  }
  void NameChanged() override {
    reached += "NameChanged ";
    RenameDlg::NameChanged();
  }
  void ClickHelp() override {
    reached += "Help ";
    RenameDlg::ClickHelp();
  }

  std::string reached;
};

/// A toolkit in which the device stands, the field holds a name, and the user does one thing.
class RenameDlgTest : public testing::Test {
 protected:
  RenameDlgTest() { NameInField(L"R9"); }

  void NameInField(const wchar_t* name) { m_toolkit.When(Retrieving(kText)).Give(kText, name); }
  template <class Action>
  void UserDoes(Action action) {
    m_toolkit.When(Calling(uiox::Function::ActivateDevice)).Run([action](const uiox::Call&) { action(); });
  }
  void Fire(const char* component, int reason) { EXPECT_EQ(m_toolkit.Fire(component, reason), 0); }

  RecordingToolkit m_toolkit;
  oxcore::Mainframe* const m_parent = reinterpret_cast<oxcore::Mainframe*>(this);  // its address is all that counts
};

std::ptrdiff_t Count(const RecordingToolkit& toolkit, const std::string& function) {
  return std::count_if(toolkit.Lines().begin(), toolkit.Lines().end(),
                       [&](const std::string& line) { return line.rfind(function, 0) == 0; });
}

}  // namespace

TEST_F(RenameDlgTest, IsMadeCopiedAndDestroyedWithoutAToolkitCall) {
  {
    OpenDlg dialog(true, m_parent, Symbol("help/rename"));
    EXPECT_FALSE(dialog.IsAccepted());
    EXPECT_EQ(dialog.GetNewName(), L"");
    EXPECT_EQ(dialog.GetParent(), m_parent);
    dialog.m_accepted = true;
    dialog.m_newName = L"R10";

    const OpenDlg copy(dialog);
    EXPECT_TRUE(copy.IsAccepted());
    EXPECT_EQ(copy.GetNewName(), L"R10");
    OpenDlg assigned(false, nullptr, Symbol::EMPTY);
    assigned = dialog;
    EXPECT_TRUE(assigned.IsAccepted());
    EXPECT_EQ(assigned.GetNewName(), L"R10");
    EXPECT_EQ(assigned.GetParent(), m_parent);
  }
  EXPECT_TRUE(m_toolkit.Took(""));
}

TEST_F(RenameDlgTest, RunMakesShowsAndHidesTheDevice) {
  m_toolkit.When(Retrieving(kText)).Refuse();
  OpenDlg dialog(true, m_parent, Symbol("help/rename"));
  dialog.SetNewName(L"R9 \u00b5");
  m_toolkit.NamePointer(&dialog, "&dialog");
  EXPECT_FALSE(dialog.Run());
  EXPECT_TRUE(m_toolkit.Took(R"(
    retrieve RenameDlg:Name_Text | 15=? | 0 => 1
    create_device "RenameDlg" "RenameDlg"
    modify RenameDlg:Name_Text | 15=L"R9 µ" | 0
    modify RenameDlg:Help | 3=1 | 0
    set_action RenameDlg:OK 4 Activate f1 &dialog 0
    set_action RenameDlg:Cancel 4 Activate f2 &dialog 0
    set_action RenameDlg:Help 4 Activate f3 &dialog 0
    set_action RenameDlg:Name_Text 8 Input f4 &dialog 0
    set_action RenameDlg:RenameDlg 5 Close f2 &dialog 0
    manage_device "RenameDlg"
    modify RenameDlg:RenameDlg | 234="OK" | 0
    modify RenameDlg:RenameDlg | 29="Name_Text" | 0
    do RenameDlg:Name_Text 2094 SelectText 0 4294967295 | 0
    activate_device "RenameDlg" => 0
    unmanage_device "RenameDlg"
    remove_action RenameDlg:OK 4 Activate f1
    remove_action RenameDlg:Cancel 4 Activate f2
    remove_action RenameDlg:Help 4 Activate f3
    remove_action RenameDlg:Name_Text 8 Input f4
    remove_action RenameDlg:RenameDlg 5 Close f2)"));
  EXPECT_TRUE(m_toolkit.Registered().empty());
}

TEST_F(RenameDlgTest, RunWithoutFlagAndHelpSelectsNothingAndHidesTheButton) {
  OpenDlg(false, nullptr, Symbol::EMPTY).Run();
  EXPECT_TRUE(m_toolkit.Took(R"(
    retrieve RenameDlg:Name_Text | 15->L"R9" | 0
    modify RenameDlg:Name_Text | 15=L"" | 0
    modify RenameDlg:Help | 3=0 | 0
    ...
    modify RenameDlg:RenameDlg | 29="Name_Text" | 0
    activate_device "RenameDlg" => 0
    ...)"));
}

TEST_F(RenameDlgTest, CallbacksReachTheVirtualOperations) {
  OpenDlg dialog(false, nullptr, Symbol::EMPTY);
  UserDoes([this] {
    Fire("Name_Text", kInput);
    Fire("Help", kActivate);
    Fire("Cancel", kActivate);
    Fire("RenameDlg", kClose);
    Fire("OK", kActivate);
  });
  dialog.Run();
  EXPECT_EQ(dialog.reached, "NameChanged Help Close Close OK Close ");
}

TEST_F(RenameDlgTest, OkTakesTheNameAndCloses) {
  OpenDlg dialog(false, nullptr, Symbol::EMPTY);
  UserDoes([this] {
    NameInField(L"R10");
    m_toolkit.TakeLines();
    Fire("OK", kActivate);
    EXPECT_TRUE(m_toolkit.Took(R"(
      retrieve RenameDlg:Name_Text | 15->L"R10" | 0
      exit_device "RenameDlg" 0)"));
  });
  EXPECT_TRUE(dialog.Run());
  EXPECT_TRUE(dialog.IsAccepted());
  EXPECT_EQ(dialog.GetNewName(), L"R10");
}

TEST_F(RenameDlgTest, OkTakesAnEmptyName) {
  OpenDlg dialog(false, nullptr, Symbol::EMPTY);
  dialog.SetNewName(L"R9");
  UserDoes([this] {
    NameInField(L"");
    Fire("OK", kActivate);
  });
  EXPECT_TRUE(dialog.Run());
  EXPECT_EQ(dialog.GetNewName(), L"");
}

TEST_F(RenameDlgTest, OkDoesNothingWhereTheFieldCannotBeRead) {
  OpenDlg dialog(false, nullptr, Symbol::EMPTY);
  dialog.SetNewName(L"R9");
  UserDoes([this] {
    m_toolkit.When(Retrieving(kText)).Give(kText, nullptr);
    Fire("OK", kActivate);
    m_toolkit.When(Retrieving(kText)).Refuse().Scribble();
    Fire("OK", kActivate);
  });
  EXPECT_FALSE(dialog.Run());
  EXPECT_EQ(dialog.GetNewName(), L"R9");
  EXPECT_EQ(dialog.reached, "OK OK ");
}

TEST_F(RenameDlgTest, CancelKeepsTheNameFromBefore) {
  OpenDlg dialog(false, nullptr, Symbol::EMPTY);
  dialog.SetNewName(L"Top");
  UserDoes([this] { Fire("Cancel", kActivate); });
  EXPECT_FALSE(dialog.Run());
  EXPECT_EQ(dialog.GetNewName(), L"Top");
}

TEST_F(RenameDlgTest, EachRunStartsUnaccepted) {
  OpenDlg dialog(false, nullptr, Symbol::EMPTY);
  UserDoes([this] { Fire("OK", kActivate); });
  EXPECT_TRUE(dialog.Run());
  UserDoes([&dialog] { EXPECT_FALSE(dialog.IsAccepted()); });
  EXPECT_FALSE(dialog.Run());
}

TEST_F(RenameDlgTest, HelpShowsTheTopic) {
  std::vector<Symbol> shown;
  oxcore::SetHelpViewer([&](const Symbol& topic) { shown.push_back(topic); });
  OpenDlg(false, nullptr, Symbol("help/rename")).ClickHelp();
  OpenDlg(false, nullptr, Symbol::EMPTY).ClickHelp();
  oxcore::SetHelpViewer(nullptr);
  EXPECT_EQ(shown, std::vector<Symbol>{Symbol("help/rename")});
  EXPECT_TRUE(m_toolkit.Took(""));
}

TEST(RenameDlgFailures, LeaveADialogThatIsHiddenAndTellsTheTruth) {
  test_support::ForEachFailure(
      RecordingToolkit::Nobody,
      [](RecordingToolkit& toolkit) {
        toolkit.When(Retrieving(kText)).Give(kText, L"R10");
        toolkit.When(Calling(uiox::Function::ActivateDevice)).Run([&toolkit](const uiox::Call&) {
          toolkit.Fire("OK", kActivate);
        });
      },
      [](RecordingToolkit& toolkit) {
        OpenDlg dialog(true, nullptr, Symbol("help/rename"));
        dialog.SetNewName(L"Top");
        const bool accepted = dialog.Run();
        EXPECT_EQ(dialog.IsAccepted(), accepted);
        EXPECT_EQ(dialog.GetNewName(), accepted ? L"R10" : L"Top");
        EXPECT_EQ(dialog.reached.rfind("OK ", 0) == 0, dialog.reached != "");
        EXPECT_EQ(Count(toolkit, "activate_device"), Count(toolkit, "unmanage_device")) << "what was shown is hidden";
        EXPECT_LE(Count(toolkit, "remove_action"), Count(toolkit, "set_action"));
        EXPECT_LE(toolkit.Registered().size(), 1u) << "only an action whose removal failed is left";
      });
}

#if defined(__x86_64__)
namespace {

/// Where an operation stands in the table of virtual operations.
struct Slots : RenameDlg {
  template <class Method>
  static std::ptrdiff_t Of(Method method) {
    static_assert(sizeof method == 2 * sizeof(std::ptrdiff_t));
    std::ptrdiff_t offset = 0;
    std::memcpy(&offset, &method, sizeof offset);
    return (offset - 1) / static_cast<std::ptrdiff_t>(sizeof(void*));
  }
  static std::vector<std::ptrdiff_t> All() {
    return {Of(&Slots::ClickOK), Of(&Slots::Close), Of(&Slots::NameChanged), Of(&Slots::ClickHelp)};
  }
};

}  // namespace

// Derived dialogs that were built against the headers alone rely on these positions. The destructor has the first two.
TEST(RenameDlgSlots, StandInTheirOrder) { EXPECT_EQ(Slots::All(), (std::vector<std::ptrdiff_t>{2, 3, 4, 5})); }
#endif
