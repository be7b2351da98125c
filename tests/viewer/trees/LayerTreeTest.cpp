#include <viewer/trees/BoardTrees.h>
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

using testing::SmallBoard;

constexpr const char* kCopper = "layers:copper";
constexpr const char* kTechnical = "layers:technical";
constexpr LayerId kFront = 0;
constexpr LayerId kInner = 1;
constexpr LayerId kBack = 2;
constexpr LayerId kSilk = 3;
constexpr LayerId kMask = 4;

class LayerTreeTest : public ::testing::Test {
 protected:
  LayerTreeTest() {
    oxcore::ResetColorPicker();
    trees_.Layers().SetOnChange([this] { ++changes_; });
  }
  ~LayerTreeTest() override { oxcore::ResetColorPicker(); }

  LayerTree& Layers() { return trees_.Layers(); }
  int State(const char* node) { return static_cast<int>(Layers().GetNodeState(node)); }
  bool Check(const char* node) { return user_.Check(LayerTree::kName, node); }

  Board board_ = SmallBoard("");
  BoardTrees trees_{board_, nullptr};
  uiox::Driver user_{kLayersPanel};
  int changes_ = 0;
};

TEST_F(LayerTreeTest, UncheckedLayerIsInvisibleAndItsGroupMixed) {
  ASSERT_TRUE(Check("layer:In1.Cu"));
  EXPECT_FALSE(Layers().IsVisible(kInner));
  EXPECT_TRUE(Layers().IsVisible(kFront));
  EXPECT_EQ(State(kCopper), 2);
  EXPECT_EQ(changes_, 1);
}

TEST_F(LayerTreeTest, GroupWhoseLastLayerIsUncheckedIsUnchecked) {
  for (const char* layer : {"layer:F.Cu", "layer:In1.Cu", "layer:B.Cu"}) ASSERT_TRUE(Check(layer));
  EXPECT_EQ(State(kCopper), 0);
}

TEST_F(LayerTreeTest, UncheckedGroupHidesAllItsLayersAndNoOthers) {
  ASSERT_TRUE(Check(kCopper));
  for (const LayerId layer : {kFront, kInner, kBack}) EXPECT_FALSE(Layers().IsVisible(layer));
  EXPECT_TRUE(Layers().IsVisible(kSilk));
  EXPECT_EQ(State(kCopper), 0);
  EXPECT_EQ(changes_, 1);
}

TEST_F(LayerTreeTest, MixedGroupShowsAllItsLayersWhenItIsChecked) {
  ASSERT_EQ(State(kTechnical), 2);
  ASSERT_TRUE(Check(kTechnical));
  EXPECT_TRUE(Layers().IsVisible(kMask));
  EXPECT_TRUE(Layers().IsVisible(kSilk));
  EXPECT_EQ(State(kTechnical), 1);
}

TEST_F(LayerTreeTest, CheckOfOneSelectedLayerCountsForAllOfThem) {
  ASSERT_TRUE(user_.Select(LayerTree::kName, {"layer:F.Cu", "layer:B.Cu", "layer:F.SilkS"}));
  ASSERT_TRUE(Check("layer:B.Cu"));
  EXPECT_FALSE(Layers().IsVisible(kFront));
  EXPECT_FALSE(Layers().IsVisible(kBack));
  EXPECT_FALSE(Layers().IsVisible(kSilk));
  EXPECT_TRUE(Layers().IsVisible(kInner));
  EXPECT_EQ(State(kCopper), 2);
  EXPECT_EQ(changes_, 1);
}

TEST_F(LayerTreeTest, OnlyOneLayerIsActive) {
  EXPECT_EQ(Layers().ActiveLayer(), kFront);
  ASSERT_TRUE(Check("active:B.Cu"));
  EXPECT_EQ(Layers().ActiveLayer(), kBack);
  EXPECT_EQ(State("active:F.Cu"), 0);
  ASSERT_TRUE(Check("active:B.Cu"));
  EXPECT_EQ(Layers().ActiveLayer(), kNoLayer);
}

TEST_F(LayerTreeTest, HeadingOfTheActiveLayerCannotBeChecked) { EXPECT_FALSE(Check("layers:active")); }

TEST_F(LayerTreeTest, ChosenColourIsTheLayersColour) {
  oxcore::QueueColorAnswer(0x00FF8040);
  ASSERT_TRUE(user_.Activate(LayerTree::kName, "layer:B.Cu"));
  EXPECT_EQ(Layers().ColorOfLayer(kBack), 0x00FF8040u);
  EXPECT_EQ(changes_, 1);
  const auto requests = oxcore::TakeColorPickerRequests();
  ASSERT_EQ(requests.size(), 1u);
  EXPECT_EQ(requests[0].initialColor, ColorOf(0x3E, 0x7D, 0xD8));
}

TEST_F(LayerTreeTest, CancelledColourChangesNothing) {
  const std::string before = trees_.Dump();
  ASSERT_TRUE(user_.Activate(LayerTree::kName, "layer:B.Cu"));
  EXPECT_EQ(trees_.Dump(), before);
  EXPECT_EQ(changes_, 0);
}

TEST_F(LayerTreeTest, ColourOfAGroupIsThatOfAllItsLayers) {
  oxcore::QueueColorAnswer(7);
  ASSERT_TRUE(user_.Activate(LayerTree::kName, kCopper));
  for (const LayerId layer : {kFront, kInner, kBack}) EXPECT_EQ(Layers().ColorOfLayer(layer), 7u);
  EXPECT_NE(Layers().ColorOfLayer(kSilk), 7u);
}

TEST_F(LayerTreeTest, ActiveLayerHasNoColourToChoose) {
  oxcore::QueueColorAnswer(7);
  ASSERT_TRUE(user_.Activate(LayerTree::kName, "active:F.Cu"));
  EXPECT_EQ(oxcore::CountColorAnswers(), 1u);
}

TEST_F(LayerTreeTest, TellsTheSelection) {
  int told = 0;
  Layers().SetOnSelection([&] { ++told; });
  ASSERT_TRUE(user_.Select(LayerTree::kName, {kCopper}));
  EXPECT_EQ(Layers().Selection(), std::vector<std::string>{kCopper});
  EXPECT_EQ(told, 1);
  EXPECT_EQ(changes_, 0);
}

TEST(LayerLabel, NamesTheUsersOwnNameWhereItSaysMore) {
  EXPECT_EQ(LayerLabel({"F.Cu", "", "signal", true}), "F.Cu");
  EXPECT_EQ(LayerLabel({"F.Cu", "F.Cu", "signal", true}), "F.Cu");
  EXPECT_EQ(LayerLabel({"F.Cu", "Top", "signal", true}), "F.Cu (Top)");
  EXPECT_EQ(LayerLabel({"B.SilkS", "B.Silkscreen", "user", false}), "B.SilkS");
  EXPECT_EQ(LayerLabel({"B.SilkS", "F.Silkscreen", "user", false}), "B.SilkS (F.Silkscreen)");
  EXPECT_EQ(LayerLabel({"Dwgs.User", "User.Drawings", "user", false}), "Dwgs.User");
}

TEST(LayerColours, OfCopperOfOtherNamesFollowThePlaceInTheStack) {
  Board board;
  for (const char* name : {"Component", "Middle", "Solder"}) board.layers.push_back({name, "", "signal", true});
  const std::vector<Color> colors = DefaultLayerColors(board);
  const std::vector<Color> named = DefaultLayerColors(SmallBoard(""));
  EXPECT_EQ(colors[0], named[0]);
  EXPECT_EQ(colors[1], named[1]);
  EXPECT_EQ(colors[2], named[2]);
}

}  // namespace
}  // namespace oxviewer
