/// \file
/// The main window as the suite's dialogs know it.
#ifndef OXECAD_VIEWER_WINDOW_MAINFRAME_H
#define OXECAD_VIEWER_WINDOW_MAINFRAME_H

#include <oxcore/Mainframe.h>

class QWidget;

namespace oxcore {

/// Stands for the main window where a component wants the parent of its dialogs.
class Mainframe {
 public:
  explicit Mainframe(QWidget& window) : window_(window) {}
  QWidget& Window() const { return window_; }

 private:
  QWidget& window_;
};

}  // namespace oxcore

#endif  // OXECAD_VIEWER_WINDOW_MAINFRAME_H
