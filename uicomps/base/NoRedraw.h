/// \file
/// A tree that is not drawn while much of it changes.
#ifndef OXECAD_UI_BASE_NOREDRAW_H
#define OXECAD_UI_BASE_NOREDRAW_H

#include <uicomps/base/BaseTree.h>

namespace oxecad_ui {

/// Redrawing is off for as long as this object lives.
class NoRedraw {
 public:
  explicit NoRedraw(const BaseTree& tree) : m_tree(tree) { m_tree.SetRedraw(false); }
  NoRedraw(const NoRedraw&) = delete;
  NoRedraw& operator=(const NoRedraw&) = delete;
  ~NoRedraw() { m_tree.SetRedraw(true); }

 private:
  const BaseTree& m_tree;
};

}  // namespace oxecad_ui

#endif
