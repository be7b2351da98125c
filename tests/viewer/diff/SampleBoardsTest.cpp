#include <gtest/gtest.h>
#include <tests/viewer/diff/DiffTexts.h>

#include <algorithm>
#include <filesystem>
#include <string>

namespace oxviewer::testing {
namespace {

Board Opened(const std::string& path) {
  Result<Board> result = ReadBoard(path);
  if (result) return std::move(*result);
  ADD_FAILURE() << result.error().ToLine();
  return {};
}

TEST(DemoBoards, EqualThemselves) {
  std::error_code error;
  int count = 0;
  for (std::filesystem::recursive_directory_iterator at(OXECAD_DEMO_BOARDS, error), end; !error && at != end;
       at.increment(error)) {
    if (at->path().extension() != ".kicad_pcb") continue;
    const Board board = Opened(at->path().string());
    EXPECT_TRUE(CompareBoards(board, board, EcadOrder()).Equal()) << at->path();
    ++count;
  }
  EXPECT_GT(count, 0) << "no boards below " << OXECAD_DEMO_BOARDS << ": install the package kicad-demos";
}

TEST(DemoBoards, InTwoVersionsDiffer) {
  const std::string folder = std::string(OXECAD_DEMO_BOARDS) + "/ecc83/";
  const BoardDiff diff =
      CompareBoards(Opened(folder + "ecc83-pp.kicad_pcb"), Opened(folder + "ecc83-pp_v2.kicad_pcb"), EcadOrder());
  EXPECT_FALSE(diff.Equal());
  EXPECT_FALSE(diff.nets.Equal());
}

}  // namespace
}  // namespace oxviewer::testing
