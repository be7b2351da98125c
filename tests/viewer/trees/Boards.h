/// \file
/// Boards for the tests of trees.
#ifndef OXECAD_TESTS_VIEWER_TREES_BOARDS_H
#define OXECAD_TESTS_VIEWER_TREES_BOARDS_H

#include <viewer/board/BoardReader.h>

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace oxviewer::testing {

/// Reads a board; a text that is none fails the test.
inline Board BoardOf(const std::string& text) {
  auto result = ReadBoardText(text, "board.kicad_pcb");
  if (!result) {
    ADD_FAILURE() << result.error().ToLine();
    return {};
  }
  return std::move(*result);
}

/// A board with a few layers and what is given besides.
inline Board SmallBoard(const std::string& items) {
  return BoardOf(R"((kicad_pcb (version 20211014) (generator test)
  (layers (0 "F.Cu" signal) (1 "In1.Cu" power "Ground") (31 "B.Cu" signal)
          (37 "F.SilkS" user "F.Silkscreen") (39 "F.Mask" user) (44 "Edge.Cuts" user))
)" + items + ")");
}

inline std::string Footprint(const std::string& reference, const std::string& value, const std::string& rest = "") {
  return "(footprint \"lib:part\" (layer \"F.Cu\") (at 10 20) (fp_text reference \"" + reference +
         "\" (at 0 0) (layer \"F.SilkS\")) (fp_text value \"" + value + "\" (at 0 0) (layer \"F.SilkS\"))" + rest +
         ")\n";
}

}  // namespace oxviewer::testing

#endif  // OXECAD_TESTS_VIEWER_TREES_BOARDS_H
