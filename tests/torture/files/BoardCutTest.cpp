// A board file that ends too early, wherever: read or refused cleanly.

#include <gtest/gtest.h>
#include <viewer/board/BoardReader.h>

#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

namespace {

TEST(BoardCut, AtEachByteIsReadOrRefused) {
  const std::string path = OXECAD_DEMO_BOARDS "/test_pads_inside_pads/test_pads_inside_pads.kicad_pcb";
  std::ifstream file(path, std::ios::binary);
  const std::string text(std::istreambuf_iterator<char>(file), {});
  ASSERT_GT(text.size(), 1000u) << path;
  const std::size_t last = text.find_last_of(')');
  for (std::size_t size = 0; size <= text.size(); ++size) {
    // A copy of exactly this size: a look behind its end is seen.
    const std::string cut(text, 0, size);
    const oxviewer::Result<oxviewer::Board> board = oxviewer::ReadBoardText(cut, "cut", {});
    ASSERT_EQ(bool(board), size > last) << "cut at " << size;
    if (!board) {
      const std::string line = board.error().ToLine();
      ASSERT_NE(line.find("cut:"), std::string::npos) << line;
      ASSERT_EQ(line.find('\n'), std::string::npos) << line;
    }
  }
}

}  // namespace
