// The structured tree with the stand-in toolkit behind it.
#include <tests/support/Check.h>
#include <tests/support/DirtySpy.h>
#include <tests/support/Soundness.h>
#include <tests/support/TreeFixture.h>
#include <tests/uicomps/tree/TreeTest.h>

#include <algorithm>

namespace oxecad_ui {
namespace {

using test_support::DirtySpy;
using test_support::Drawn;
using test_support::IsSound;
using test_support::kLocked;
using test_support::kMarks;
using test_support::kNothingMore;
using test_support::Plant;

class TreeOnStandIn : public test_support::TreeFixture {
 protected:
  void AddSorted(const char* name, const wchar_t* label, const char* parent) {
    EXPECT_TRUE(tree.AddEcadNode(name, label, parent, Tree::ByLabel, "net", L"", 1, 0, 0, nullptr)) << name;
  }
  RecordingToolkit toolkit{RecordingToolkit::StandIn};  // checks the releases
  OpenTree tree{"dev", "tree"};
};

TEST_F(TreeOnStandIn, RecordsBuildATreeByTheirNames) {
  tree.AddNode(Record("root", L"Board"));
  tree.AddNode(Record("a", L"", Tree::PartlyChecked));
  tree.AddNode(Record("a/b", L"", Tree::Checked));
  tree.AddNode(Record("a/c", L"See"));
  tree.AddNode(Record("groups", L""));
  tree.AddNode(Record("groups/g", L""));
  tree.AddNodeBefore(Record("first", L""), "a");
  EXPECT_EQ(Drawn(tree), R"(
    root "Board"      [ ]
      first           [ ]
      a               [-]
        a/b "b"       [x]
        a/c "See"     [ ]
      groups          [ ]
        groups/g "g"  [ ])");
  EXPECT_TRUE(IsSound(tree));
}

TEST_F(TreeOnStandIn, SortedInsertionGivesNaturalOrder) {
  Plant(tree, "root");
  AddSorted("n10", L"item10", "root");
  AddSorted("n9", L"item9", "root");
  AddSorted("n1", L"item1", "root");
  AddSorted("n1b", L"ITEM1", "root");
  AddSorted("m5", L"m-5", "root");
  AddSorted("m3", L"m-3", "root");
  EXPECT_EQ(Drawn(tree, kNothingMore), R"(
    root
      n1b "ITEM1"
      n1 "item1"
      n9 "item9"
      n10 "item10"
      m3 "m-3"
      m5 "m-5")");
}

TEST_F(TreeOnStandIn, SortingPutsChildrenInPlainOrderWithTheirBranches) {
  Plant(tree, R"(
    root
      R10
        R1
      R9
      m-3
      m-5)");
  EXPECT_TRUE(tree.SortNodesByType("root", Tree::ByLabel));
  EXPECT_EQ(Drawn(tree, kNothingMore), R"(
    root
      m-5
      m-3
      R9
      R10
        R1)");
  EXPECT_TRUE(IsSound(tree));
}

TEST_F(TreeOnStandIn, QueriesReadTheTree) {
  Plant(tree, R"(
    root      [ ]
      a       [x]
        a1    [x]
        a2    [ ]
          a21 [x]
      b       [-]
        b1    [x]
      c       [ ]
        c1    [x])");
  EXPECT_EQ(tree.GetNoOfChildren(), 3);
  Names leaves;
  EXPECT_EQ(tree.GetLeaves(nullptr, leaves), 4);
  EXPECT_EQ(leaves, (Names{"a1", "a21", "b1", "c1"}));
  Tree::TreeInfo info;
  tree.GetCheckedNodes(info);
  EXPECT_EQ(NamesOf(info), (Names{"a", "a1", "b1"}));
  Tree::TreeInfo all;
  tree.GetTreeInfo(all, Tree::Everything(), true);
  EXPECT_EQ(NamesOf(all), (Names{"root", "a", "a1", "a2", "a21", "b", "b1", "c", "c1"}));
}

TEST_F(TreeOnStandIn, AnEmptyTreeAnswersWithNothing) {
  Names leaves;
  Tree::TreeInfo info;
  EXPECT_EQ(tree.GetNoOfChildren(), 0);
  EXPECT_EQ(tree.GetLeaves(nullptr, leaves), 0);
  tree.GetCheckedNodes(info);
  tree.GetTreeInfo(info, Tree::Everything(), true);
  EXPECT_TRUE(info.records.empty());
}

TEST_F(TreeOnStandIn, CheckStatesGoForthAndBack) {
  Plant(tree, "root\n  a");
  for (const Tree::NodeState state : {Tree::Checked, Tree::PartlyChecked, Tree::Unchecked}) {
    EXPECT_TRUE(tree.SetNodeState("a", state));
    EXPECT_EQ(tree.GetNodeState("a"), state);
    EXPECT_EQ(tree.GetNodeState("root"), Tree::Unchecked) << "the tree carries no state to parents";
  }
}

TEST_F(TreeOnStandIn, LockingReachesTheWholeTree) {
  Plant(tree, "root\n  a\n    a1\n  b");
  tree.SetChildrenCheckSensitive("a", false);
  EXPECT_EQ(Drawn(tree, kLocked), "root locked\n  a locked\n    a1 locked\n  b locked");
  EXPECT_FALSE(user.Check("tree", "a"));
  tree.SetChildrenCheckSensitive(nullptr, true);
  EXPECT_TRUE(tree.SetCheckSensitive("b", false));
  EXPECT_EQ(Drawn(tree, kLocked), "root\n  a\n    a1\n  b locked");
}

TEST_F(TreeOnStandIn, TogglingACheckBoxTellsTheHandler) {
  Plant(tree, "root\n  a");
  tree.Init();
  EXPECT_TRUE(user.Check("tree", "a"));
  EXPECT_EQ(Drawn(tree), "root [ ]\n  a [x]") << "nothing beyond the toolkit's own state";
  DirtySpy spy;
  tree.SetOnDirtyHandler(DirtySpy::Handler, &spy, nullptr);
  EXPECT_TRUE(user.Check("tree", "a"));
  EXPECT_EQ(spy.TakeReasons(), std::vector<std::intptr_t>{1});
  EXPECT_EQ(Drawn(tree), "root [ ]\n  a [ ]");
}

TEST_F(TreeOnStandIn, AMissingNodeReadsAsAnEmptyRecord) {
  Tree::NodeInfo info;
  EXPECT_TRUE(tree.GetNodeInfo("nowhere", info));
  EXPECT_EQ(info.name, "nowhere");
  EXPECT_EQ(info.label, L"");
  EXPECT_EQ(info.state, Tree::Unchecked);
}

TEST_F(TreeOnStandIn, EveryCallMayFailInBetween) {
  test_support::ForEachFailure(
      RecordingToolkit::StandIn, [](RecordingToolkit&) {},
      [&](RecordingToolkit&) {
        uiox::Suite::Get().Reset();
        uiox::TreeWidget& fresh = uiox::Suite::Get().ObtainTree("dev", "tree");
        OpenTree other("dev", "tree");
        other.Init();
        other.AddNode(Record("root", L""));
        for (const char* name : {"c", "a", "b"}) {
          other.AddEcadNode(name, L"x", "root", Tree::ByLabel, "net", L"", 1, 0, 0, nullptr);
        }
        other.SortNodesByType("root", Tree::ByLabel);
        other.SetChildrenCheckSensitive(nullptr, false);
        Tree::TreeInfo info;
        other.GetTreeInfo(info, Tree::Everything(), true);
        EXPECT_TRUE(IsSound(fresh));
      });
}

RC_GTEST_FIXTURE_PROP(TreeOnStandIn, AnyInsertionSequenceEndsInOrder, ()) {
  tree.Clear();
  tree.AddEcadNode("forget", L"", nullptr, Tree::ByLabel, "", L"", 1, 0, 0, nullptr);
  tree.AddNode("root", L"", "", "", L"", 1, 0, 0, nullptr);
  const auto labels = *rc::gen::container<std::vector<std::wstring>>(test_support::TextOf(L"0019-aAZ_"));
  for (std::size_t i = 0; i < labels.size(); ++i) {
    const std::string name = "n" + std::to_string(i);
    RC_ASSERT(tree.AddEcadNode(name.c_str(), labels[i].c_str(), "root", Tree::ByLabel, "", L"", 1, 0, 0, nullptr));
  }
  std::vector<Tree::NodeInfo> infos;
  RC_ASSERT(tree.GetChildren("root", infos));
  RC_ASSERT(infos.size() == labels.size());
  const CAlphaNumericWStringEcadComparator comparator;
  for (std::size_t i = 1; i < infos.size(); ++i) {
    RC_ASSERT(!comparator.Compare(infos[i].label, infos[i - 1].label));
    const bool equal = !comparator.Compare(infos[i - 1].label, infos[i].label);
    if (equal) RC_ASSERT(std::stoi(infos[i - 1].name.substr(1)) > std::stoi(infos[i].name.substr(1)));
  }
  RC_ASSERT(static_cast<bool>(IsSound(tree)));
}

}  // namespace
}  // namespace oxecad_ui
