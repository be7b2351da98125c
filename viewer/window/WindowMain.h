/// \file
/// The program's window.
#ifndef OXECAD_VIEWER_WINDOW_WINDOWMAIN_H
#define OXECAD_VIEWER_WINDOW_WINDOWMAIN_H

#include <viewer/app/Program.h>

namespace oxviewer {

/// Opens the window and gives the exit status once it is closed; with a picture asked for, renders the window without a
/// display, writes the picture, and ends. What the window system has to say on standard error is kept from there: it is
/// replaced by one line of the program's own when it means that there can be no window.
int RunWindow(const Options& options, const LoadedBoards& boards);

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_WINDOW_WINDOWMAIN_H
