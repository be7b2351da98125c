#include <viewer/trees/BoardTrees.h>
#include <viewer/trees/NaturalNames.h>
#include <viewer/trees/Panels.h>

#include <gtest/gtest.h>
#include <tests/viewer/trees/Boards.h>

#include <string>
#include <vector>

#include <oxcore/ColorPicker.h>
#include <uiox/Driver.h>
#include <uiox/Suite.h>

namespace oxviewer {
namespace {

using testing::Footprint;
using testing::SmallBoard;
using ShowMode = oxk::ecad::CompareColorVis::ShowMode;

const char* const kTrack = "(segment (start 1 1) (end 2 2) (width 0.2) (layer \"F.Cu\") (net 2))";

class CompareTreeTest : public ::testing::Test {
 protected:
  CompareTreeTest() {
    oxcore::ResetColorPicker();
    Tree().SetOnChange([this] { ++changes_; });
  }
  ~CompareTreeTest() override { oxcore::ResetColorPicker(); }

  CompareTree& Tree() { return *trees_.Compare(); }
  std::size_t Subject(const std::string& node) { return Tree().SubjectOf(node); }
  CompareLook Look(const std::string& node) { return Tree().LookOf(Subject(node)); }
  std::string NodeOf(std::size_t subject) { return Tree().Subjects().at(subject).node; }

  Board a_ = SmallBoard("(net 0 \"\") (net 1 \"ONLY_A\") (net 2 \"N10\") (net 3 \"N9\")" + Footprint("R1", "10k") +
                        Footprint("R2", "1k"));
  Board b_ = SmallBoard(std::string("(net 0 \"\") (net 1 \"/b\") (net 2 \"N10\") (net 3 \"N9\")") + kTrack +
                        Footprint("R1", "12k") + Footprint("R2", "1k"));
  BoardDiff diff_ = CompareBoards(a_, b_, NaturalNameOrder());
  BoardTrees trees_{a_, b_, diff_, nullptr};
  uiox::Driver user_{kComparePanel};
  int changes_ = 0;
};

const std::string kBoth = "\tstate=0\tcolor=none\ta=#d97706\tb=#3b8be8\toverlap=#6f747a\tshow=both\tdim=0";
const std::string kOnlyA = "\tstate=0\tcolor=none\ta=#d97706\tb=none\toverlap=none\tshow=both\tdim=0";
const std::string kOnlyB = "\tstate=0\tcolor=none\ta=none\tb=#3b8be8\toverlap=none\tshow=both\tdim=0";

TEST_F(CompareTreeTest, DumpHasFiveCellsAndTheDifferenceOfEachNode) {
  const std::string type = "\ttype=colorvis";
  const std::string dump = trees_.Dump();
  EXPECT_EQ(dump.substr(dump.find("# compare\n")),
            "# compare\n"
            "board.kicad_pcb and board.kicad_pcb" +
                type + kBoth + "\n" + "  Layers" + type + kBoth + "\tdifference=equal\n" + "    F.Cu" + type + kBoth +
                "\n" + "    In1.Cu (Ground)" + type + kBoth + "\n" + "    B.Cu" + type + kBoth + "\n" + "    F.SilkS" +
                type + kBoth + "\n" + "    F.Mask" + type + kBoth + "\n" + "    Edge.Cuts" + type + kBoth + "\n" +
                "  Components" + type + kBoth + "\tdifference=1 changed\n" + "    R1" + type + kBoth +
                "\tdifference=value\n" + "    R2" + type + kBoth + "\n" + "  Nets" + type + kBoth +
                "\tdifference=1 changed, 1 only in A, 1 only in B\n" + "    /b" + type + kOnlyB +
                "\tdifference=only in B\n" + "    N9" + type + kBoth + "\n" + "    N10" + type + kBoth +
                "\tdifference=tracks\n" + "    ONLY_A" + type + kOnlyA + "\tdifference=only in A\n");
}

TEST_F(CompareTreeTest, ColourOfAHeadingGoesToAllBelowItThatADesignHas) {
  oxcore::QueueColorAnswer(0x0000FF);
  ASSERT_TRUE(user_.ClickCell(CompareTree::kName, "nets", "a"));
  EXPECT_EQ(Look("nets/net:N9").colorA, 0x0000FFu);
  EXPECT_EQ(Look("components/component:R1").colorA, CompareTree::kColorA);
  EXPECT_EQ(changes_, 1);
}

TEST_F(CompareTreeTest, ColourOfOneNetMakesItsHeadingMixed) {
  oxcore::QueueColorAnswer(0x0000FF);
  ASSERT_TRUE(user_.ClickCell(CompareTree::kName, "nets/net:N9", "b"));
  EXPECT_EQ(Look("nets/net:N9").colorB, 0x0000FFu);
  EXPECT_NE(trees_.Dump().find("  Nets\ttype=colorvis\tstate=0\tcolor=none\ta=#d97706\tb=mix"), std::string::npos);
}

TEST_F(CompareTreeTest, ChosenShowModeIsThatOfTheBranch) {
  ASSERT_TRUE(user_.ClickCell(CompareTree::kName, "nets", "showMode"));
  ASSERT_TRUE(user_.ChooseCellOption(CompareTree::kName, "nets", "showMode", "diff_show"));
  EXPECT_EQ(Look("nets/net:N9").showMode, ShowMode::Diff);
  EXPECT_EQ(Look("layers/layer:F.Cu").showMode, ShowMode::Both);
  EXPECT_EQ(changes_, 1);
}

TEST_F(CompareTreeTest, DimBoxIsThatOfTheBranch) {
  ASSERT_TRUE(user_.ToggleCellCheck(CompareTree::kName, "components", "dimOverlap"));
  EXPECT_TRUE(Look("components/component:R2").dimOverlap);
  EXPECT_FALSE(Look("nets/net:N9").dimOverlap);
}

TEST_F(CompareTreeTest, NextDifferenceGoesRoundTheEndBothWays) {
  const auto any = [](std::size_t) { return true; };
  std::vector<std::string> visited;
  std::size_t at = CompareTree::kNone;
  for (int i = 0; i < 5; ++i) visited.push_back(NodeOf(at = Tree().NextDifference(at, false, any)));
  EXPECT_EQ(visited, (std::vector<std::string>{"components/component:R1", "nets/net:%2Fb", "nets/net:N10",
                                               "nets/net:ONLY%5FA", "components/component:R1"}));
  EXPECT_EQ(NodeOf(Tree().NextDifference(at, true, any)), "nets/net:ONLY%5FA");
  EXPECT_EQ(NodeOf(Tree().NextDifference(CompareTree::kNone, true, any)), "nets/net:ONLY%5FA");
}

TEST_F(CompareTreeTest, NextDifferencePassesOverWhatIsRefused) {
  const auto components = [this](std::size_t subject) {
    return Tree().Subjects()[subject].kind == CompareSubject::Kind::Component;
  };
  const std::size_t first = Tree().NextDifference(CompareTree::kNone, false, components);
  EXPECT_EQ(Tree().NextDifference(first, false, components), first);
  EXPECT_EQ(Tree().NextDifference(first, false, [](std::size_t) { return false; }), CompareTree::kNone);
}

TEST_F(CompareTreeTest, SelectedHeadingStandsForAllBelowIt) {
  int told = 0;
  Tree().SetOnSelection([&] { ++told; });
  ASSERT_TRUE(user_.Select(CompareTree::kName, {"components", "nets/net:N9", "components/component:R1"}));
  EXPECT_EQ(Tree().Selected(), (std::vector<std::size_t>{Subject("components/component:R1"),
                                                         Subject("components/component:R2"), Subject("nets/net:N9")}));
  EXPECT_EQ(told, 1);
}

TEST_F(CompareTreeTest, FilterTextIsFoundInNamesAndDifferences) {
  EXPECT_TRUE(Tree().Matches(Subject("nets/net:N10"), HoldingText("n1")));
  EXPECT_TRUE(Tree().Matches(Subject("nets/net:N10"), HoldingText("TRACK")));
  EXPECT_FALSE(Tree().Matches(Subject("nets/net:N9"), HoldingText("track")));
}

TEST(CompareTreeNodes, OfComponentsThatShareAReferenceAreDifferent) {
  const Board a = SmallBoard(Footprint("R1", "1") + Footprint("R1", "2") + Footprint("", "3"));
  const BoardDiff diff = CompareBoards(a, a, NaturalNameOrder());
  BoardTrees trees(a, a, diff, nullptr);
  std::vector<std::string> children;
  trees.Compare()->GetChildren("components", children);
  EXPECT_EQ(children, (std::vector<std::string>{"components/component:%", "components/component:R1",
                                                "components/component:R1:2"}));
}

TEST(CompareTreeNodes, OfARenamedNetNameEachOther) {
  const std::string pad = "(pad \"1\" smd rect (at 0 0) (size 1 1) (layers \"F.Cu\") (net 1 \"";
  const Board a = SmallBoard("(net 0 \"\") (net 1 \"OLD\")" + Footprint("R1", "1", pad + "OLD\"))"));
  const Board b = SmallBoard("(net 0 \"\") (net 1 \"NEW\")" + Footprint("R1", "1", pad + "NEW\"))"));
  const BoardDiff diff = CompareBoards(a, b, NaturalNameOrder());
  const BoardTrees trees(a, b, diff, nullptr);
  EXPECT_NE(trees.Dump().find("difference=only in A, in B NEW"), std::string::npos);
  EXPECT_NE(trees.Dump().find("difference=only in B, in A OLD"), std::string::npos);
}

}  // namespace
}  // namespace oxviewer
