#include <viewer/trees/BoardTrees.h>
#include <viewer/trees/NodeName.h>
#include <viewer/trees/Panels.h>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
#include <tests/viewer/trees/Boards.h>

#include <algorithm>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include <uiox/Driver.h>
#include <uiox/Suite.h>

namespace oxviewer {
namespace {

using testing::BoardOf;
using testing::Footprint;
using testing::SmallBoard;

// The lines of one tree of a dump, its header included.
std::string Section(const std::string& dump, const std::string& name) {
  const std::size_t begin = dump.find("# " + name + "\n");
  if (begin == std::string::npos) return {};
  const std::size_t end = dump.find("\n# ", begin);
  return dump.substr(begin, end == std::string::npos ? end : end + 1 - begin);
}

// The same with nothing but the labels.
std::string Labels(const std::string& dump, const std::string& name) {
  std::istringstream lines(Section(dump, name));
  std::string labels;
  for (std::string line; std::getline(lines, line);) labels += line.substr(0, line.find('\t')) + '\n';
  return labels;
}

TEST(LayersDump, HasLayersInBoardOrderWithColoursAndStates) {
  const Board board = SmallBoard("");
  const BoardTrees trees(board, nullptr);
  EXPECT_EQ(Section(trees.Dump(), "layers"),
            "# layers\n"
            "Copper\ttype=mix\tstate=1\tcolor=mix\n"
            "  F.Cu\ttype=color_square.png_3818966\tstate=1\tcolor=#d6453a\n"
            "  In1.Cu (Ground)\ttype=color_square.png_2597577\tstate=1\tcolor=#c9a227\n"
            "  B.Cu\ttype=color_square.png_14187838\tstate=1\tcolor=#3e7dd8\n"
            "Technical\ttype=mix\tstate=2\tcolor=mix\n"
            "  F.SilkS\ttype=color_square.png_12773100\tstate=1\tcolor=#ece6c2\n"
            "  F.Mask\ttype=color_square.png_9063072\tstate=0\tcolor=#a04a8a\n"
            "  Edge.Cuts\ttype=color_square.png_3986160\tstate=1\tcolor=#f0d23c\n"
            "Active layer\ttype=colorless\tstate=0\tcolor=none\n"
            "  F.Cu\ttype=colorless\tstate=1\tcolor=none\n"
            "  In1.Cu (Ground)\ttype=colorless\tstate=0\tcolor=none\n"
            "  B.Cu\ttype=colorless\tstate=0\tcolor=none\n");
}

TEST(NetsDump, HasNetsOfAnyNameOnceEachInNaturalOrder) {
  const Board board = SmallBoard(R"((net 0 "") (net 1 "N10") (net 2 "/cpu/A_1") (net 3 "groups/x") (net 4 "N9")
      (net 5 "root") (net 6 "SelAll_") (net 7 "a<b>&amp;") (net 8 "{slash}") (net 9 " blank") (net 10 "tab	and\\slash"))");
  const BoardTrees trees(board, nullptr);
  EXPECT_EQ(Section(trees.Dump(), "nets"),
            "# nets\n"
            "Default\ttype=netclass\tstate=0\tcolor=none\n"
            "   blank\ttype=net\tstate=0\tcolor=none\n"
            "  /cpu/A_1\ttype=net\tstate=0\tcolor=none\n"
            "  a<b>&amp;\ttype=net\tstate=0\tcolor=none\n"
            "  groups/x\ttype=net\tstate=0\tcolor=none\n"
            "  N9\ttype=net\tstate=0\tcolor=none\n"
            "  N10\ttype=net\tstate=0\tcolor=none\n"
            "  root\ttype=net\tstate=0\tcolor=none\n"
            "  SelAll_\ttype=net\tstate=0\tcolor=none\n"
            "  tab\\tand\\\\slash\ttype=net\tstate=0\tcolor=none\n"
            "  {slash}\ttype=net\tstate=0\tcolor=none\n");
}

TEST(NetsDump, HasClassesInNaturalOrderBehindTheDefault) {
  Board board = SmallBoard(R"((net 0 "") (net 1 "A") (net 2 "B") (net 3 "C"))");
  board.netClasses = {{"Default"}, {"Power10"}, {"Power9"}, {"Audio"}};
  board.nets[0].netClass = 1;
  board.nets[1].netClass = 2;
  board.nets[2].netClass = 3;
  const BoardTrees trees(board, nullptr);
  EXPECT_EQ(Labels(trees.Dump(), "nets"), "# nets\nDefault\nAudio\n  C\nPower9\n  B\nPower10\n  A\n");
}

TEST(ComponentsDump, GroupsByPrefixInNaturalOrder) {
  const Board board =
      SmallBoard(Footprint("R10", "1k") + Footprint("R9", "2k") + Footprint("C1", "100n") + Footprint("", "logo") +
                 Footprint("R9", "3k") + Footprint("REF**", "hole") + Footprint("7", "odd"));
  const BoardTrees trees(board, nullptr);
  EXPECT_EQ(Labels(trees.Dump(), "components"),
            "# components\n"
            "(no prefix)\n"
            "  7\n"
            "C\n"
            "  C1\n"
            "R\n"
            "  R9\n"
            "  R9\n"
            "  R10\n"
            "REF\n"
            "  REF**\n"
            "(no reference)\n"
            "  (lib:part)\n");
}

TEST(ObjectsDump, CountsPartsByKindInBold) {
  const Board board =
      SmallBoard(Footprint("R10", "1k") + Footprint("R9", "<2k>") + Footprint("C1", "") + Footprint("XYZ1", "what"));
  const BoardTrees trees(board, nullptr);
  EXPECT_EQ(Section(trees.Dump(), "objects"),
            "# objects\n"
            "Components (4)\ttype=partkind\tstate=0\tcolor=none\n"
            "  Resistors (2)\ttype=partkind\tstate=0\tcolor=none\n"
            "    R9  <2k>\ttype=part\tstate=0\tcolor=none\n"
            "    R10  1k\ttype=part\tstate=0\tcolor=none\n"
            "  Capacitors (1)\ttype=partkind\tstate=0\tcolor=none\n"
            "    C1\ttype=part\tstate=0\tcolor=none\n"
            "  Other parts (1)\ttype=partkind\tstate=0\tcolor=none\n"
            "    XYZ1  what\ttype=part\tstate=0\tcolor=none\n");
  const uiox::TreeStore& store = uiox::Suite::Get().FindDevice(kObjectsPanel)->FindTree(PartTree::kName)->Store();
  EXPECT_EQ(store.Label(store.Root()), L"<b>Components (4)</b>");
}

TEST(BoardTrees, OfOneBoardAfterAnotherShowNothingOfTheFirst) {
  const Board first = SmallBoard("(net 0 \"\") (net 1 \"OLD\")" + Footprint("R1", "1k"));
  const Board second = SmallBoard("(net 0 \"\") (net 1 \"B\") (net 2 \"A\")" + Footprint("C1", "1n"));
  { const BoardTrees trees(first, nullptr); }
  const BoardTrees trees(second, nullptr);
  EXPECT_EQ(Labels(trees.Dump(), "nets"), "# nets\nDefault\n  A\n  B\n");
  EXPECT_EQ(Labels(trees.Dump(), "components"), "# components\nC\n  C1\n");
}

TEST(BoardTrees, OfABoardWithoutAnythingAreEmpty) {
  const Board board = BoardOf("(kicad_pcb)");
  const BoardTrees trees(board, nullptr);
  EXPECT_EQ(Labels(trees.Dump(), "layers"), "# layers\nCopper\nTechnical\nActive layer\n");
  EXPECT_EQ(Labels(trees.Dump(), "nets"), "# nets\nDefault\n");
  EXPECT_EQ(Labels(trees.Dump(), "components"), "# components\n");
  EXPECT_EQ(Labels(trees.Dump(), "objects"), "# objects\nComponents (0)\n");
}

// Names of any bytes that a file may hold give one node each, below the class, in an order that does not depend on the
// order in which they came.
RC_GTEST_PROP(BoardTrees, HoldEveryNetOnce, (std::set<std::string> names)) {
  names.erase("");
  Board board;
  board.netClasses = {{"Default"}};
  for (const std::string& name : names) {
    if (name.find('\0') == std::string::npos) board.nets.push_back({name, 0});
  }
  const BoardTrees trees(board, nullptr);
  const uiox::TreeStore& store = uiox::Suite::Get().FindDevice(kNetsPanel)->FindTree(NetTree::kName)->Store();
  const uiox::NodeId netClass = store.Find("SelAll_Default");
  RC_ASSERT(store.ChildCount(netClass) == board.nets.size());
  for (const Net& net : board.nets) {
    const uiox::NodeId node = store.Find(NetTree::NodeOf(net));
    RC_ASSERT(node != uiox::kNoNode);
    RC_ASSERT(store.Parent(node) == netClass);
    RC_ASSERT(static_cast<const Net*>(store.UserData(node)) == &net);
  }
}

}  // namespace
}  // namespace oxviewer
