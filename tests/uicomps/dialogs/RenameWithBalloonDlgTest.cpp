// The rename dialog: which names it takes, which it refuses, and what the toolkit is asked meanwhile.
#include <tests/uicomps/VirtualSlot.h>
#include <tests/uicomps/dialogs/BalloonTest.h>
#include <uicomps/dialogs/RenameWithBalloonDlg.h>

#include <set>
#include <type_traits>

namespace oxecad_ui {
namespace {

using Names = std::set<std::wstring>;

/// Shows what derived dialogs may use, and counts how often it is closed.
struct OpenDialog : RenameWithBalloonDlg {
  using RenameDlg::m_accepted;
  using RenameDlg::m_newName;
  using RenameWithBalloonDlg::RenameWithBalloonDlg;
  void Close() override {
    ++closed;
    accepted_at_close = m_accepted;
    name_at_close = m_newName;
  }
  void Press() { ClickOK(); }

  int closed = 0;
  bool accepted_at_close = false;
  std::wstring name_at_close;
};

class RenameDialog : public BalloonTest {
 protected:
  void Type(const wchar_t* name) { toolkit.When(Retrieving(15)).Give(15, name); }

  OpenDialog dialog{Names{L"VCC", L"Net 1", L"\xD83D\xDD0C"}, "That name is taken", true};
};

TEST_F(RenameDialog, IsMadeWithoutACall) { EXPECT_TRUE(toolkit.Took("")); }

TEST_F(RenameDialog, TakesANewNameAndCloses) {
  Type(L"GND");
  dialog.Press();
  EXPECT_TRUE(toolkit.Took("retrieve RenameDlg:Name_Text | 15->L\"GND\" | 0"));
  EXPECT_TRUE(dialog.IsAccepted());
  EXPECT_EQ(dialog.GetNewName(), L"GND");
  EXPECT_EQ(dialog.closed, 1);
  EXPECT_TRUE(dialog.accepted_at_close) << "all is set before it closes";
  EXPECT_EQ(dialog.name_at_close, L"GND");
}

TEST_F(RenameDialog, RefusesANameThatIsTakenWithABalloonAtTheField) {
  Type(L"Net 1");
  dialog.Press();
  EXPECT_TRUE(toolkit.Took(Spelled(R"(
    retrieve RenameDlg:Name_Text | 15->L"Net 1" | 0
    create_search_path 1 "oxecad" => 7
    create_device_ext "BALLOON" "BALLOON" 7 => 1
    modify BALLOON:icon | 72=["error"] | 0
    modify BALLOON:message | 2=L"That name is taken" 124=2 | 0
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
    ...
    do dlg:Name_Text 2005 GetPosition ->300 ->200 | 0
    do dlg:Name_Text 2003 GetSize ->100 ->30 | 0
    ...
    activate_device "BALLOON" => 32
    modify BALLOON:BALLOON | 234="" | 0
    unmanage_device "BALLOON"
    modify RenameDlg:RenameDlg | 29="Name_Text" | 0)")));
  EXPECT_FALSE(dialog.IsAccepted());
  EXPECT_EQ(dialog.GetNewName(), L"");
  EXPECT_EQ(dialog.closed, 0) << "it stays open";
}

TEST_F(RenameDialog, ComparesNamesUnitByUnit) {
  for (const wchar_t* const fresh : {L"vcc", L"VCC ", L"VC", L"Net  1", L"net 1", L"\xD83D", L"\xD83D\xDD0D"}) {
    OpenDialog one{Names{L"VCC", L"Net 1", L"\xD83D\xDD0C"}, "taken", false};
    Type(fresh);
    one.Press();
    EXPECT_EQ(one.closed, 1);
    EXPECT_EQ(one.GetNewName(), fresh);
  }
  for (const wchar_t* const taken : {L"VCC", L"Net 1", L"\xD83D\xDD0C"}) {
    Type(taken);
    dialog.Press();
    EXPECT_EQ(dialog.closed, 0);
  }
}

TEST_F(RenameDialog, TakesAnEmptyNameUnlessItExists) {
  Type(L"");
  dialog.Press();
  EXPECT_EQ(dialog.closed, 1);
  EXPECT_TRUE(dialog.IsAccepted());
  OpenDialog strict{Names{L""}, "taken", true};
  strict.Press();
  EXPECT_EQ(strict.closed, 0);
}

TEST_F(RenameDialog, ReadsAnUnreadableNameAsEmpty) {
  for (const Failure failure : test_support::kAllFailures) {
    SCOPED_TRACE(Name(failure));
    OpenDialog one{Names{L"VCC"}, "taken", true};
    Type(L"VCC");
    toolkit.FailCall(1, failure);
    one.Press();
    toolkit.FailNone();
    EXPECT_EQ(one.closed, 1);
    EXPECT_EQ(one.GetNewName(), L"");
  }
}

TEST_F(RenameDialog, GivesTheFocusBackAlsoWithoutABalloon) {
  Type(L"VCC");
  toolkit.When(Calling(Function::CreateDeviceExt)).Result(0);
  dialog.Press();
  EXPECT_TRUE(toolkit.Took(Spelled(R"(
    retrieve RenameDlg:Name_Text | 15->L"VCC" | 0
    create_search_path 1 "oxecad" => 7
    create_device_ext "BALLOON" "BALLOON" 7 => 0
    modify RenameDlg:RenameDlg | 29="Name_Text" | 0)")));
  EXPECT_EQ(dialog.closed, 0);
}

TEST_F(RenameDialog, MayBeConfirmedAgainAfterARefusal) {
  Type(L"VCC");
  dialog.Press();
  Type(L"VDD");
  dialog.Press();
  EXPECT_EQ(dialog.closed, 1);
  EXPECT_EQ(dialog.GetNewName(), L"VDD");
}

TEST_F(RenameDialog, CopiesHaveTheNamesAndTheMessage) {
  dialog.m_accepted = true;
  dialog.m_newName = L"before";
  OpenDialog copy(dialog);
  OpenDialog assigned(Names{L"GND"}, "other", false);
  assigned = dialog;
  for (OpenDialog* const each : {&copy, &assigned}) {
    EXPECT_TRUE(each->IsAccepted());
    EXPECT_EQ(each->GetNewName(), L"before");
    toolkit.TakeLines();
    Type(L"VCC");
    each->Press();
    EXPECT_EQ(each->closed, 0);
    EXPECT_TRUE(toolkit.Took(Spelled("...\nmodify BALLOON:message | 2=L\"That name is taken\" 124=2 | 0\n...")));
    Type(L"GND");
    each->Press();
    EXPECT_EQ(each->closed, 1);
  }
}

TEST_F(RenameDialog, HasNoMainFrameAndNoHelp) {
  EXPECT_EQ(dialog.GetParent(), nullptr);
  EXPECT_FALSE(dialog.IsAccepted());
}

TEST_F(RenameDialog, TheStandardBalloonIsAnErrorWithOk) {
  RenameWithBalloonDlg::StandardBaloon("Grid_Text", "Too large \xC3\x97 2");
  EXPECT_TRUE(toolkit.Took(Spelled(R"(
    create_search_path 1 "oxecad" => 7
    create_device_ext "BALLOON" "BALLOON" 7 => 1
    modify BALLOON:icon | 72=["error"] | 0
    modify BALLOON:message | 2=L"Too large × 2" 124=2 | 0
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
    ...
    do dlg:Grid_Text 2005 GetPosition ->300 ->200 | 0
    ...
    unmanage_device "BALLOON")")));
}

TEST_F(RenameDialog, TheStandardBalloonIgnoresFailures) {
  toolkit.FailAll(Failure::Refused);
  RenameWithBalloonDlg::StandardBaloon("Grid_Text", "Too large");
  EXPECT_EQ(toolkit.Lines().size(), 2u);
}

/// Makes protected operations nameable.
struct NamedOperations : RenameWithBalloonDlg {
  using RenameWithBalloonDlg::ClickHelp;
  using RenameWithBalloonDlg::ClickOK;
  using RenameWithBalloonDlg::Close;
  using RenameWithBalloonDlg::NameChanged;
};

TEST(RenameDialogSlots, AreTheBasesInItsOrder) {
  EXPECT_EQ(VirtualSlot(&NamedOperations::ClickOK), 1);
  EXPECT_EQ(VirtualSlot(&NamedOperations::Close), 2);
  EXPECT_EQ(VirtualSlot(&NamedOperations::NameChanged), 3);
  EXPECT_EQ(VirtualSlot(&NamedOperations::ClickHelp), 4);
  static_assert(std::is_base_of_v<oxcore::RenameDlg, RenameWithBalloonDlg>);
  static_assert(std::is_copy_constructible_v<RenameWithBalloonDlg> && std::is_copy_assignable_v<RenameWithBalloonDlg>);
}

TEST(RenameDialogSlots, OnlyTheOkButtonIsOverridden) {
  const auto slots = [](const oxcore::RenameDlg& dialog) {
    const void* const* table = nullptr;
    std::memcpy(&table, static_cast<const void*>(&dialog), sizeof table);
    return std::vector<const void*>(table + 2, table + 6);
  };
  const auto base = slots(oxcore::RenameDlg(true, nullptr, oxkutils::Symbol::EMPTY));
  const auto derived = slots(RenameWithBalloonDlg({}, "", true));
  EXPECT_NE(base[0], derived[0]);
  for (const std::size_t slot : {1u, 2u, 3u}) EXPECT_EQ(base[slot], derived[slot]);
}

}  // namespace
}  // namespace oxecad_ui
