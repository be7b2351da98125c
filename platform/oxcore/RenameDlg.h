/// \file
/// The dialog in which the user types a new name for something.
#ifndef OXECAD_OXCORE_RENAMEDLG_H
#define OXECAD_OXCORE_RENAMEDLG_H

#include <string>

#include <oxcore/Mainframe.h>
#include <oxkutils/Export.h>
#include <oxkutils/Symbol.h>

namespace oxcore {

/// A modal dialog with an entry field for a name. It is the toolkit's device "RenameDlg", with the components
/// "Name_Text", "OK", "Cancel" and "Help", which all rename dialogs share: one of them runs at a time. Making, copying
/// and destroying a `RenameDlg` touches no toolkit; `Run` does.
class OXECAD_PLATFORM_EXPORT RenameDlg {
 public:
  /// `flag`: select the whole name when the dialog opens, so that typing replaces it. `parent` may be null and is not
  /// owned. `help` is the topic of the help button, which is hidden for the empty symbol.
  RenameDlg(bool flag, Mainframe* parent, const oxkutils::Symbol& help);
  /// A copy has the same settings, name and outcome; it is no second dialog, since all share the device.
  RenameDlg(const RenameDlg&);
  /// Takes over settings, name and outcome.
  RenameDlg& operator=(const RenameDlg&);
  virtual ~RenameDlg();

  /// Whether the latest run ended with a name; false before the first.
  bool IsAccepted() const;
  /// The name of the latest accepted run (UTF-16 code units), or the one that `SetNewName` gave.
  const std::wstring& GetNewName() const;

  /// The name that stands in the field when the dialog opens.
  void SetNewName(const std::wstring& name);
  /// The window that the dialog belongs to, as it was given; may be null.
  Mainframe* GetParent() const;
  /// Shows the dialog until it is closed, and gives `IsAccepted`. A dialog that cannot be built or shown counts as
  /// cancelled. The device is made by the first run and kept, hidden, for the next.
  bool Run();

 protected:
  /// The OK button: takes the name from the field, marks the dialog as accepted and closes it. Where the field cannot
  /// be read nothing happens.
  virtual void ClickOK();
  /// The Cancel button, and the window's own: ends the run.
  virtual void Close();
  /// The text of the field changed. Does nothing; for derived classes.
  virtual void NameChanged();
  /// The Help button: shows the topic (see `<oxcore/Help.h>`).
  virtual void ClickHelp();

  /// What `IsAccepted` says; each run begins by clearing it.
  bool m_accepted = false;
  /// What `GetNewName` says and what stands in the field when the dialog opens (UTF-16 code units).
  std::wstring m_newName;

 private:
  struct Callbacks;

  void ShowUntilClosed();

  bool m_flag;
  Mainframe* m_parent;
  oxkutils::Symbol m_help;
};

}  // namespace oxcore

#endif
