/// \file
/// The dialog in which the user chooses a colour.
#ifndef OXECAD_OXCORE_COLORPICKERDLG_H
#define OXECAD_OXCORE_COLORPICKERDLG_H

#include <string>

#include <oxcore/Mainframe.h>
#include <oxkutils/Export.h>

namespace oxcore {

/// Asks for a colour. What answers is set in `<oxcore/ColorPicker.h>`: a window of the front, or, without one, a queue
/// of prepared answers.
class OXECAD_PLATFORM_EXPORT ColorPickerDlg {
 public:
  /// `parent` may be null and is not owned. A narrow title is UTF-8.
  ColorPickerDlg(Mainframe* parent, const std::string& title);
  /// The same with a title in UTF-16 code units.
  ColorPickerDlg(Mainframe* parent, const std::wstring& title);
  virtual ~ColorPickerDlg();

  /// Shows the dialog until the user is done with it. Colours are 0x00BBGGRR; 0xFFFFFFFF as the initial colour means
  /// that there is none, and as the result that the user cancelled.
  unsigned int ShowDialog(unsigned int initialColor);

 private:
  Mainframe* m_parent;
  std::wstring m_title;
};

}  // namespace oxcore

#endif
