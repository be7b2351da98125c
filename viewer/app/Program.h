/// \file
/// The program without its window.
#ifndef OXECAD_VIEWER_APP_PROGRAM_H
#define OXECAD_VIEWER_APP_PROGRAM_H

#include <viewer/app/CommandLine.h>
#include <viewer/board/Board.h>
#include <viewer/board/Result.h>
#include <viewer/diff/BoardDiff.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace oxviewer {

/// How the program ends.
enum ExitStatus : int { kSuccess = 0, kDifferent = 1, kFailure = 2 };

/// The boards that the program was asked to show.
struct LoadedBoards {
  std::shared_ptr<const Board> a;         ///< null: none was named
  std::shared_ptr<const Board> b;         ///< null: nothing to compare with
  std::shared_ptr<const BoardDiff> diff;  ///< null without b
};

/// Opens the window, for the user or for the picture that `options` ask for, and gives the exit status. The only part
/// of the program that needs a window system.
using WindowRunner = std::function<int(const Options& options, const LoadedBoards& boards)>;

/// Does what the arguments ask for and gives the exit status. Standard error gets one line when that is kFailure, and
/// nothing otherwise. Files are read, and headless work is done, before the window system is touched.
int RunProgram(int argc, char** argv, const WindowRunner& window);

/// Reads a board and, if one is named, the board to compare it with.
Result<LoadedBoards> LoadBoards(const std::string& a, const std::optional<std::string>& b);

/// Writes one line to standard error: the program's name and the message, with control characters escaped.
void PrintError(const std::string& message);

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_APP_PROGRAM_H
