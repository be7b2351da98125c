#include <gtest/gtest.h>
#include <tests/viewer/board/Texts.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace oxviewer::testing {
namespace {

namespace fs = std::filesystem;

// Every board of the package, by name; a missing package fails the test that asks.
std::vector<fs::path> DemoBoards() {
  std::vector<fs::path> boards;
  std::error_code error;
  for (fs::recursive_directory_iterator at(OXECAD_DEMO_BOARDS, error), end; !error && at != end; at.increment(error)) {
    if (at->path().extension() == ".kicad_pcb") boards.push_back(at->path());
  }
  std::sort(boards.begin(), boards.end());
  EXPECT_FALSE(boards.empty()) << "no boards below " << OXECAD_DEMO_BOARDS << ": install the package kicad-demos";
  return boards;
}

std::string ContentOf(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

// How often a list begins with `keyword` at the depth of two blanks, or at any depth: these files are indented.
std::size_t CountLists(const std::string& text, const std::string& keyword, bool anyDepth = false) {
  const std::string mark = (anyDepth ? "(" : "\n  (") + keyword + ' ';
  std::size_t count = 0;
  for (std::size_t at = text.find(mark); at != std::string::npos; at = text.find(mark, at + 1)) ++count;
  return count;
}

TEST(DemoBoards, AllOpenWithEverythingThatTheirTextShows) {
  for (const fs::path& path : DemoBoards()) {
    SCOPED_TRACE(path.string());
    const Result<Board> result = ReadBoard(path.string());
    ASSERT_TRUE(result) << result.error().ToLine();
    const Board& board = *result;
    const std::string text = ContentOf(path);
    EXPECT_EQ(board.components.size(), CountLists(text, "footprint") + CountLists(text, "module"));
    EXPECT_EQ(board.tracks.size(), CountLists(text, "segment") + CountLists(text, "arc"));
    EXPECT_EQ(board.vias.size(), CountLists(text, "via"));
    EXPECT_EQ(board.nets.size() + 1, CountLists(text, "net"));  // net 0
    EXPECT_EQ(board.zones.size(), CountLists(text, "zone"));
    EXPECT_EQ(board.pads.size(), CountLists(text, "pad", true));
    EXPECT_GE(board.DeclaredLayerCount(), 20u);
    EXPECT_EQ(board.layers.at(0).name, "F.Cu");
  }
}

TEST(DemoBoards, HaveSoundReferencesThroughout) {
  for (const fs::path& path : DemoBoards()) {
    SCOPED_TRACE(path.string());
    const Result<Board> result = ReadBoard(path.string());
    ASSERT_TRUE(result) << result.error().ToLine();
    const Board& board = *result;
    const auto inside = [](auto id, std::size_t size) { return id >= -1 && id < static_cast<long long>(size); };
    for (const Pad& pad : board.pads) {
      EXPECT_TRUE(inside(pad.net, board.nets.size()) && inside(pad.component, board.components.size()));
      EXPECT_TRUE(pad.layers.any());
    }
    for (const Track& track : board.tracks) {
      EXPECT_TRUE(inside(track.net, board.nets.size()) && inside(track.layer, board.layers.size()));
    }
    for (const Net& net : board.nets) EXPECT_LT(static_cast<std::size_t>(net.netClass), board.netClasses.size());
  }
}

// Both ends of nearly every net's tracks meet a pad, a via or another track: a wrong turn of pads would show here.
TEST(DemoBoards, TracksEndOnWhatTheyJoin) {
  const fs::path path = fs::path(OXECAD_DEMO_BOARDS) / "stickhub" / "StickHub.kicad_pcb";
  const Result<Board> result = ReadBoard(path.string());
  ASSERT_TRUE(result) << result.error().ToLine();
  const Board& board = *result;
  std::size_t joined = 0;
  for (const Pad& pad : board.pads) {
    joined += std::any_of(board.tracks.begin(), board.tracks.end(), [&pad](const Track& track) {
      const auto near = [&pad](Point point) {
        return std::abs(static_cast<double>(point.x) - pad.position.x) <=
                   pad.size.width / 2.0 + pad.size.height / 2.0 &&
               std::abs(static_cast<double>(point.y) - pad.position.y) <= pad.size.width / 2.0 + pad.size.height / 2.0;
      };
      return track.net == pad.net && pad.net != kNoNet && (near(track.start) || near(track.end));
    });
  }
  const auto withNet =
      std::count_if(board.pads.begin(), board.pads.end(), [](const Pad& p) { return p.net != kNoNet; });
  EXPECT_GT(joined, static_cast<std::size_t>(withNet) * 8 / 10);
}

// The smallest demo board, cut after each byte (after each seventh in the short run).
TEST(DemoBoards, CutAnywhereAreReadOrRefusedCleanly) {
  std::vector<fs::path> boards = DemoBoards();
  ASSERT_FALSE(boards.empty());
  const fs::path smallest = *std::min_element(boards.begin(), boards.end(), [](const fs::path& a, const fs::path& b) {
    return fs::file_size(a) < fs::file_size(b);
  });
  const std::string text = ContentOf(smallest);
  const std::size_t end = text.find_last_of(')');
  const std::size_t step = LongTests() ? 1 : 7;
  for (std::size_t length = 0; length < text.size(); length += step) {
    const Result<Board> result = ReadBoardText(std::string_view(text).substr(0, length), "cut");
    ASSERT_EQ(static_cast<bool>(result), length > end) << length;
    if (result) continue;
    const std::string line = result.error().ToLine();
    EXPECT_EQ(line.rfind("cut:", 0), 0u) << line;
    EXPECT_NE(line.find(": expected "), std::string::npos) << line;
    EXPECT_EQ(line.find('\n'), std::string::npos) << line;
  }
}

}  // namespace
}  // namespace oxviewer::testing
