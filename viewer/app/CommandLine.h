/// \file
/// What the program is asked to do.
#ifndef OXECAD_VIEWER_APP_COMMANDLINE_H
#define OXECAD_VIEWER_APP_COMMANDLINE_H

#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace oxviewer {

/// Width and height of a picture in pixels.
struct PictureSize {
  int width = 1280;
  int height = 800;
  static constexpr int kMinWidth = 320;
  static constexpr int kMinHeight = 240;
  static constexpr int kMaxSide = 8192;
};

struct Options {
  bool help = false;
  bool version = false;
  bool dump = false;
  std::string board;                      ///< empty: none given
  std::optional<std::string> compare;     ///< the other board
  std::optional<std::string> report;      ///< file of the comparison's report
  std::optional<std::string> screenshot;  ///< file of the picture
  PictureSize size;

  /// Whether a window is to be opened for the user.
  bool IsInteractive() const { return !dump && !report && !screenshot; }
};

/// Reads the arguments behind the program's name. Gives what is wrong with them, in words that fit on one line, when
/// they ask for nothing that the program can do. "--help" and "--version" are found whatever else is wrong behind them.
std::variant<Options, std::string> ParseCommandLine(const std::vector<std::string_view>& arguments);

/// The text of "--help", and of "--version".
std::string HelpText();
std::string VersionText();

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_APP_COMMANDLINE_H
