#include <viewer/trees/BoardTrees.h>
#include <viewer/trees/Panels.h>
#include <viewer/trees/PartKinds.h>
#include <viewer/trees/ReferencePrefix.h>
#include <viewer/trees/TextSearch.h>

#include <gtest/gtest.h>
#include <tests/viewer/trees/Boards.h>

#include <algorithm>
#include <string>
#include <vector>

#include <uiox/Driver.h>
#include <uiox/Suite.h>
#include <uiox/UserEvents.h>

namespace oxviewer {
namespace {

using testing::Footprint;
using testing::SmallBoard;

TEST(ReferencePrefix, IsWhatStandsBeforeTheNumber) {
  EXPECT_EQ(ReferencePrefix("R105"), "R");
  EXPECT_EQ(ReferencePrefix("TP?"), "TP");
  EXPECT_EQ(ReferencePrefix("REF**"), "REF");
  EXPECT_EQ(ReferencePrefix("U1A"), "U");
  EXPECT_EQ(ReferencePrefix("7"), "");
  EXPECT_EQ(ReferencePrefix(""), "");
}

TEST(PartKinds, FollowThePrefixWhateverItsCase) {
  const auto name = [](const char* reference) { return std::string(PartKindName(PartKindOf(reference))); };
  EXPECT_EQ(name("R1"), "Resistors");
  EXPECT_EQ(name("r1"), "Resistors");
  EXPECT_EQ(name("RV1"), "Potentiometers");
  EXPECT_EQ(name("LED3"), "Diodes");
  EXPECT_EQ(name("CON1"), "Connectors");
  EXPECT_EQ(name("NOSUCH1"), "Other parts");
  EXPECT_EQ(name("5"), "Other parts");
  EXPECT_EQ(name(""), "Other parts");
}

TEST(TextSearch, LooksPastTheCaseOfAsciiLettersOnly) {
  EXPECT_TRUE(HoldsText("Resistor_SMD", "r_smd"));
  EXPECT_TRUE(HoldsText("anything", ""));
  EXPECT_FALSE(HoldsText("R1", "R10"));
  EXPECT_FALSE(HoldsText("\xC3\xA4", "\xC3\x84"));  // the umlaut, small and capital
}

class ObjectTreesTest : public ::testing::Test {
 protected:
  std::vector<std::string> SelectedNets() {
    std::vector<std::string> names;
    for (const void* net : trees_.Nets().SelectedObjects()) names.push_back(static_cast<const Net*>(net)->name);
    std::sort(names.begin(), names.end());
    return names;
  }
  std::vector<std::string> SelectedParts() {
    std::vector<std::string> names;
    for (const Component* part : trees_.Parts().Selected()) names.push_back(part->reference);
    std::sort(names.begin(), names.end());
    return names;
  }
  std::wstring PartsLabel(const char* node) { return trees_.Parts().GetNodeLabel(node); }

  Board board_ = SmallBoard("(net 0 \"\") (net 1 \"A\") (net 2 \"B\")" + Footprint("R1", "10k") +
                            Footprint("R2", "4k7") + Footprint("C1", "10k"));
  BoardTrees trees_{board_, nullptr};
  uiox::Driver nets_{kNetsPanel};
  uiox::Driver parts_{kObjectsPanel};
};

using Names = std::vector<std::string>;

TEST_F(ObjectTreesTest, SelectedClassStandsForItsNetsAndIsNotSelectedItself) {
  int told = 0;
  trees_.Nets().SetOnSelection([&] { ++told; });
  ASSERT_TRUE(nets_.Select(NetTree::kName, {"SelAll_Default"}));
  EXPECT_EQ(SelectedNets(), (Names{"A", "B"}));
  EXPECT_EQ(told, 1);
  const uiox::TreeStore& store = uiox::Suite::Get().FindDevice(kNetsPanel)->FindTree(NetTree::kName)->Store();
  EXPECT_EQ(store.SelectionSize(), 0u);
}

TEST_F(ObjectTreesTest, NetTakenOutOfTheSelectionIsOutOfTheSet) {
  ASSERT_TRUE(nets_.Select(NetTree::kName, {"net:A", "net:B"}));
  ASSERT_TRUE(nets_.ToggleSelected(NetTree::kName, "net:A"));
  EXPECT_EQ(SelectedNets(), Names{"B"});
  ASSERT_TRUE(nets_.Select(NetTree::kName, {}));
  EXPECT_EQ(SelectedNets(), Names{});
}

TEST_F(ObjectTreesTest, ActivatedNodeTellsItsObject) {
  const void* told = &told;
  trees_.Nets().SetOnActivation([&](const void* net) { told = net; });
  ASSERT_TRUE(nets_.Activate(NetTree::kName, "net:B"));
  EXPECT_EQ(told, &board_.nets[1]);
  ASSERT_TRUE(nets_.Activate(NetTree::kName, "SelAll_Default"));
  EXPECT_EQ(told, nullptr);
}

TEST_F(ObjectTreesTest, NetOfAnotherTypeKeepsPlaceObjectAndSelection) {
  ASSERT_TRUE(nets_.Select(NetTree::kName, {"net:A"}));
  trees_.Nets().SetType(board_.nets[0], trees_.Layers().TypeOfColor(ColorOf(1, 2, 3)));
  EXPECT_EQ(trees_.Nets().GetNodeType("net:A"), "color_square.png_197121");
  EXPECT_EQ(SelectedNets(), Names{"A"});
  std::vector<std::string> children;
  trees_.Nets().GetChildren("SelAll_Default", children);
  EXPECT_EQ(children, (Names{"net:A", "net:B"}));
  EXPECT_EQ(trees_.Nets().EcadTree::GetNodeData("net:A"), &board_.nets[0]);
}

TEST_F(ObjectTreesTest, FilterCountsWhatItLeaves) {
  trees_.Parts().SetFilter("10K");
  EXPECT_EQ(PartsLabel("root"), L"<b>Components (2)</b>");
  EXPECT_EQ(PartsLabel("kind:3"), L"<b>Resistors (1)</b>");
  EXPECT_EQ(PartsLabel("component:R1"), L"R1  10k");
  EXPECT_EQ(PartsLabel("component:R2"), L"");
  trees_.Parts().SetFilter("nothing of the kind");
  EXPECT_EQ(PartsLabel("root"), L"<b>Components (0)</b>");
  EXPECT_EQ(trees_.Parts().GetNoOfChildren(), 0);
  trees_.Parts().SetFilter("");
  EXPECT_EQ(PartsLabel("root"), L"<b>Components (3)</b>");
  EXPECT_EQ(PartsLabel("kind:3"), L"<b>Resistors (2)</b>");
}

TEST_F(ObjectTreesTest, FilterShowsWhatItLeavesAndThenEverythingAsItWas) {
  ASSERT_TRUE(parts_.Expand(PartTree::kName, "kind:3"));
  trees_.Parts().SetFilter("1");
  EXPECT_TRUE(trees_.Parts().GetNodeExpanded("kind:3"));
  EXPECT_TRUE(trees_.Parts().GetNodeExpanded("kind:5"));
  trees_.Parts().SetFilter("10");
  trees_.Parts().SetFilter("");
  EXPECT_TRUE(trees_.Parts().GetNodeExpanded("kind:3"));
  EXPECT_FALSE(trees_.Parts().GetNodeExpanded("kind:5"));
}

TEST_F(ObjectTreesTest, ShownPartsAreThoseThatTheFilterLeaves) {
  EXPECT_EQ(trees_.Parts().Shown().size(), 3u);
  trees_.Parts().SetFilter("lib:part");
  EXPECT_EQ(trees_.Parts().Shown().size(), 3u);
  trees_.Parts().SetFilter("C1");
  EXPECT_EQ(trees_.Parts().Shown(), std::vector<const Component*>{&board_.components[2]});
}

TEST_F(ObjectTreesTest, SelectedKindStandsForItsParts) {
  ASSERT_TRUE(parts_.Select(PartTree::kName, {"kind:3", "component:C1"}));
  EXPECT_EQ(SelectedParts(), (Names{"C1", "R1", "R2"}));
  ASSERT_TRUE(parts_.Select(PartTree::kName, {"component:R2"}));
  EXPECT_EQ(SelectedParts(), Names{"R2"});
}

TEST_F(ObjectTreesTest, FilteredPartsAreNotSelectedUntilTheyAreShownAgain) {
  ASSERT_TRUE(parts_.Select(PartTree::kName, {"component:R2"}));
  int told = 0;
  trees_.Parts().SetOnSelection([&] { ++told; });
  trees_.Parts().SetFilter("C");
  EXPECT_EQ(SelectedParts(), Names{});
  EXPECT_EQ(told, 1);
  trees_.Parts().SetFilter("");
  EXPECT_EQ(SelectedParts(), Names{"R2"});
  EXPECT_EQ(told, 2);
}

TEST_F(ObjectTreesTest, ActivatedPartIsTold) {
  std::string told;
  trees_.Parts().SetOnActivation([&](const Component& part) { told = part.reference; });
  ASSERT_TRUE(parts_.Activate(PartTree::kName, "component:R2"));
  EXPECT_EQ(told, "R2");
  told.clear();
  ASSERT_TRUE(parts_.Activate(PartTree::kName, "kind:3"));
  EXPECT_EQ(told, "");
}

}  // namespace
}  // namespace oxviewer
