/// \file
/// The label of a colour cell.
#ifndef OXECAD_UI_COMPARE_COLORLABEL_H
#define OXECAD_UI_COMPARE_COLORLABEL_H

#include <string>

#include <uicomps/compare/CompareColorTree.h>

namespace oxecad_ui {

/// The label of one colour for many cells: made when the first needs it, and kept as soon as the colour has its icon.
/// An icon that could not be made is tried again for each cell, as it may have become possible.
class ColorLabel {
 public:
  explicit ColorLabel(unsigned int color) : m_color(color) {}

  /// Good until the next call.
  const wchar_t* Text() {
    if (!m_isKept) {
      m_text = CompareColorTree::ColorToLabel(m_color);
      m_isKept = CompareColorTree::LabelToColor(m_text) == m_color;
    }
    return m_text.c_str();
  }

 private:
  unsigned int m_color;
  bool m_isKept = false;
  std::wstring m_text;
};

}  // namespace oxecad_ui

#endif
