#ifndef OXECAD_TESTS_MINIMAL_OXCORE_RENAMEDLG_H
#define OXECAD_TESTS_MINIMAL_OXCORE_RENAMEDLG_H

#include <string>

#include <oxkutils/Symbol.h>

namespace oxcore {

class Mainframe;

class RenameDlg {
 public:
  RenameDlg(bool flag, Mainframe* parent, const oxkutils::Symbol& help);
  virtual ~RenameDlg();
  bool IsAccepted() const;
  const std::wstring& GetNewName() const;

 protected:
  virtual void ClickOK();
  virtual void Close();
  virtual void NameChanged();
  virtual void ClickHelp();

  bool m_accepted;
  std::wstring m_newName;
};

}  // namespace oxcore

#endif
