/// \file
/// The main window's actions, for its own sources.
#ifndef OXECAD_VIEWER_WINDOW_MAINWINDOWACTIONS_H
#define OXECAD_VIEWER_WINDOW_MAINWINDOWACTIONS_H

#include <viewer/window/MainWindow.h>

#include <QList>

class QAction;
class QToolBar;

namespace oxviewer {

struct MainWindow::Actions {
  QToolBar* bar = nullptr;
  QAction* compareWith = nullptr;
  QAction* savePicture = nullptr;
  QAction* undo = nullptr;
  QAction* redo = nullptr;
  QAction* fit = nullptr;
  QAction* fitSelection = nullptr;
  QAction* zoomIn = nullptr;
  QAction* zoomOut = nullptr;
  QAction* flip = nullptr;
  QAction* references = nullptr;
  QList<QAction*> layers;
  QAction* onlyLayers = nullptr;
  QAction* highlight = nullptr;
  QAction* isolate = nullptr;
  QAction* clear = nullptr;
  QAction* netColor = nullptr;
  QAction* noNetColor = nullptr;
  QAction* renameGroup = nullptr;
  QAction* next = nullptr;
  QAction* previous = nullptr;
};

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_WINDOW_MAINWINDOWACTIONS_H
