#ifndef OXECAD_TESTS_MINIMAL_OXCORE_COLORPICKERDLG_H
#define OXECAD_TESTS_MINIMAL_OXCORE_COLORPICKERDLG_H

#include <string>

namespace oxcore {

class Mainframe;

class ColorPickerDlg {
 public:
  ColorPickerDlg(Mainframe* parent, const std::string& title);
  ColorPickerDlg(Mainframe* parent, const std::wstring& title);
  virtual ~ColorPickerDlg();
  unsigned int ShowDialog(unsigned int initialColor);
};

}  // namespace oxcore

#endif
