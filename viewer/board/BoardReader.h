#ifndef OXECAD_VIEWER_BOARD_BOARDREADER_H
#define OXECAD_VIEWER_BOARD_BOARDREADER_H

#include <viewer/board/Board.h>
#include <viewer/board/Result.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace oxviewer {

/// What a reader accepts at most. A file exactly at a limit is read, one past it is refused.
struct ReaderLimits {
  std::uint64_t fileBytes = 256ull * 1024 * 1024;
  std::uint32_t nesting = 256;                       ///< open parentheses at a time; the outermost one counts
  std::uint32_t stringBytes = 64 * 1024;             ///< of one name, number or quoted text, escapes resolved
  std::uint32_t items = 10'000'000;                  ///< pads, tracks, arcs, vias, zones and drawings together
  std::uint64_t projectBytes = 16ull * 1024 * 1024;  ///< of the project file beside the board
  std::uint64_t patternSteps = 50'000'000;           ///< character comparisons spent on the net class patterns
};

/// Reads a board file of format version 5 to 9, and its net classes from the project file of the same name
/// (".kicad_pro") beside it when the board states none. A missing project file is no error: all nets form "Default".
///
/// Only regular files are read; a directory, a pipe or a device is refused without waiting for it. Any damage gives
/// one ReadError, never an exception other than the standard library's own allocation failure. Linear in the file.
Result<Board> ReadBoard(const std::string& path, const ReaderLimits& limits = {});

/// The same for a text in memory; `name` stands for the file in errors, and no project file is looked for.
Result<Board> ReadBoardText(std::string_view text, const std::string& name, const ReaderLimits& limits = {});

/// Gives the nets of `board` the classes that a project file's text states: the classes themselves, the nets assigned
/// one by one, then those that a pattern with "*" and "?" covers, in the order of the text. Replaces earlier classes.
/// Returns false and fills `error` when the text is damaged; the board's classes are then unchanged.
bool ApplyNetClasses(std::string_view projectText, const std::string& name, const ReaderLimits& limits, Board& board,
                     ReadError& error);

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_BOARD_BOARDREADER_H
