/// \file
/// The application's main window, known by its address only.
#ifndef OXECAD_OXCORE_MAINFRAME_H
#define OXECAD_OXCORE_MAINFRAME_H

namespace oxcore {

/// The parent of dialogs. The application defines it; nothing here looks inside.
class Mainframe;

}  // namespace oxcore

#endif
