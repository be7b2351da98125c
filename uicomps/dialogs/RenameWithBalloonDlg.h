/// \file
/// A rename dialog that refuses names that are taken.
#ifndef OXECAD_UI_DIALOGS_RENAMEWITHBALLOONDLG_H
#define OXECAD_UI_DIALOGS_RENAMEWITHBALLOONDLG_H

#include <set>
#include <string>

#include <oxcore/RenameDlg.h>

#include <uicomps/toolkit/Export.h>

namespace oxecad_ui {

/// The platform's rename dialog. When the user confirms a name that exists already, a balloon at the name field says so
/// and the dialog stays open.
class OXECAD_UI_EXPORT RenameWithBalloonDlg : public oxcore::RenameDlg {
 public:
  /// Names are compared code unit by code unit, with regard to case. `message` (UTF-8) is what the balloon says. `flag`
  /// goes to the platform's dialog.
  RenameWithBalloonDlg(const std::set<std::wstring>& existingNames, const std::string& message, bool flag);
  /// Copies all members.
  RenameWithBalloonDlg(const RenameWithBalloonDlg&);
  /// Copies all members.
  RenameWithBalloonDlg& operator=(const RenameWithBalloonDlg&);
  ~RenameWithBalloonDlg() override;

  /// Shows an error with an "ok" button in a balloon at a control of the current device, and waits until it is
  /// dismissed.
  static void StandardBaloon(const char* control, const std::string& message);

 protected:
  /// The OK button. Refuses a name that exists; otherwise accepts it and closes the dialog.
  void ClickOK() override;

 private:
  std::set<std::wstring> m_existingNames;
  std::string m_message;
};

}  // namespace oxecad_ui

#endif
