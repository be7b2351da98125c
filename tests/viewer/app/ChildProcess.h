/// \file
/// The program as its user sees it.
#ifndef OXECAD_TESTS_VIEWER_APP_CHILDPROCESS_H
#define OXECAD_TESTS_VIEWER_APP_CHILDPROCESS_H

#include <string>
#include <vector>

namespace oxviewer::testing {

/// What a program has left behind.
struct Ended {
  int status = -1;  ///< exit status; 128 and the signal's number when one ended it
  std::string out;
  std::string err;
};

/// Runs the viewer with these arguments, with no display and with a configuration folder of its own, and waits for it.
Ended RunViewer(const std::vector<std::string>& arguments, const std::vector<std::string>& environment = {});

/// Whether a text is exactly one line, with its end.
bool IsOneLine(const std::string& text);

}  // namespace oxviewer::testing

#endif  // OXECAD_TESTS_VIEWER_APP_CHILDPROCESS_H
