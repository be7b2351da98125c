#ifndef OXECAD_VIEWER_BOARD_BOARDPARSER_H
#define OXECAD_VIEWER_BOARD_BOARDPARSER_H

#include <viewer/board/Board.h>
#include <viewer/board/BoardReader.h>

#include <string_view>

namespace oxviewer {

struct ParsedBoard {
  Board board;
  bool hasNetClasses = false;  ///< the board itself says which net is of which class, as up to version 5
};

/// Reads the text of a board file; Board::name is left empty. Throws SyntaxError.
ParsedBoard ParseBoard(std::string_view text, const ReaderLimits& limits);

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_BOARD_BOARDPARSER_H
