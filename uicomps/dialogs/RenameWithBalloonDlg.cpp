#include <uicomps/dialogs/RenameWithBalloonDlg.h>

#include <oxkutils/Symbol.h>

#include <uicomps/base/Text.h>
#include <uicomps/dialogs/BalloonMessage.h>
#include <uicomps/toolkit/ComponentCalls.h>

namespace oxecad_ui {

namespace {

constexpr const char* kDialog = "RenameDlg";
constexpr const char* kNameField = "Name_Text";

}  // namespace

RenameWithBalloonDlg::RenameWithBalloonDlg(const std::set<std::wstring>& existingNames, const std::string& message,
                                           bool flag)
    : RenameDlg(flag, nullptr, oxkutils::Symbol::EMPTY), m_existingNames(existingNames), m_message(message) {}

RenameWithBalloonDlg::RenameWithBalloonDlg(const RenameWithBalloonDlg&) = default;

RenameWithBalloonDlg& RenameWithBalloonDlg::operator=(const RenameWithBalloonDlg&) = default;

RenameWithBalloonDlg::~RenameWithBalloonDlg() = default;

void RenameWithBalloonDlg::StandardBaloon(const char* control, const std::string& message) {
  constexpr int kTextMode = 2;
  ShowBalloonMessage(BalloonError, message, kTextMode, BalloonOk, BalloonOk, TextOrEmpty(control));
}

void RenameWithBalloonDlg::ClickOK() {
  const auto [read, text] = wire::Retrieve({kDialog, kNameField}, wire::kText);
  const std::wstring name = TextOrEmpty(text);
  if (m_existingNames.count(name) != 0) {
    StandardBaloon(kNameField, m_message);
    wire::Modify({kDialog, kDialog}, wire::kFocus(kNameField));
    return;
  }
  m_accepted = true;
  m_newName = name;
  Close();
}

}  // namespace oxecad_ui
