// The tree in front of the stand-in toolkit, as drawings before and after.
#include <tests/support/Check.h>
#include <tests/support/Soundness.h>
#include <tests/support/TreeFixture.h>
#include <tests/uicomps/userdata/UserDataTreeTest.h>

#include <algorithm>
#include <map>

namespace oxecad_ui {
namespace {

using test_support::Drawn;
using test_support::IsSound;
using test_support::Plant;
constexpr unsigned kParts = test_support::kTypes | test_support::kUserData;

class UserDataOnStandIn : public test_support::TreeFixture {
 protected:
  RecordingToolkit toolkit{RecordingToolkit::StandIn};
  OpenUserDataTree tree{kDevice, kTree, "leaf"};
};

TEST_F(UserDataOnStandIn, ALeafTwoLevelsDeepCountsForParentAndGrandparent) {
  Plant(tree, R"(
    root  "Board"
      parts  "<b>Parts</b>"
        R1  <leaf> =0xa1
      nets  "Nets")");
  tree.OnLeafAdded("R1");
  EXPECT_EQ(Drawn(tree, kParts), R"_(
    root  "Board (1)" =0x1
      parts  "<b>Parts (1)</b>" =0x1
        R1  <leaf> =0xa1
      nets  "Nets")_");
  tree.AddNodeBefore(Record("parts/R0", L"R0", "leaf", Word(0xa0)), "R1");
  tree.OnLeafAdded("parts/R0");
  EXPECT_EQ(Drawn(tree, kParts), R"_(
    root  "Board (2)" =0x2
      parts  "<b>Parts (2)</b>" =0x2
        parts/R0 "R0"  <leaf> =0xa0
        R1  <leaf> =0xa1
      nets  "Nets")_");
  EXPECT_TRUE(IsSound(widget));
}

TEST_F(UserDataOnStandIn, ALeafBelowTheRootChangesTheRootOnly) {
  Plant(tree, R"(
    root
      N1    <leaf>
      parts =0x5)");
  tree.OnLeafAdded("N1");
  EXPECT_EQ(Drawn(tree, kParts), R"_(
    root "root (1)" =0x1
      N1    <leaf>
      parts =0x5)_");
}

TEST_F(UserDataOnStandIn, AnUpdateTrustsTheChildrensTotals) {
  Plant(tree, R"_(
    root  "Board (99)" =0x63
      parts "Parts (7)" =0x7
        R1  <leaf> =0xa1
        R2  <leaf> =0xa2
      nets "Nets (3)" =0x3
        N1  <leaf>
      T1  <leaf> =0xffffffff)_");
  tree.UpdateParentTotals("parts");
  EXPECT_EQ(Drawn(tree, kParts), R"_(
    root  "Board (11)" =0xb
      parts "Parts (7)" =0x7
        R1  <leaf> =0xa1
        R2  <leaf> =0xa2
      nets "Nets (3)" =0x3
        N1  <leaf>
      T1  <leaf> =0xffffffff)_");
  tree.UpdateParentTotals("R1");
  EXPECT_EQ(Drawn(tree, kParts), R"_(
    root  "Board (6)" =0x6
      parts "Parts (2)" =0x2
        R1  <leaf> =0xa1
        R2  <leaf> =0xa2
      nets "Nets (3)" =0x3
        N1  <leaf>
      T1  <leaf> =0xffffffff)_");
}

TEST_F(UserDataOnStandIn, SetReplacesTheTreeInTheOrderOfTheRecords) {
  Plant(tree, "root\n  old\n    older");
  Tree::TreeInfo info;
  for (const char* name : {"root", "parts", "parts/R2", "parts/R1", "nowhere/X", "nets"}) {
    info.records.push_back(new auto(Record(name, L"", "leaf", Word(1), Tree::Checked)));
  }
  tree.Set(info);
  EXPECT_EQ(Drawn(tree, test_support::kMarks), R"(
    root [x]
      parts [x]
        parts/R2 "R2" [x]
        parts/R1 "R1" [x]
      nets [x])");
  EXPECT_TRUE(widget.Redraw());
}

TEST_F(UserDataOnStandIn, WhatIsSetIsReadBack) {
  Plant(tree, "root");
  ASSERT_TRUE(tree.AddNode(Record("n", L"\xD83D\xDD0C <b>N</b>", "leaf", Word(0x1234'56789abc), Tree::Checked, true)));
  UserDataTree::DataNodeInfo info;
  ASSERT_TRUE(tree.GetNodeInfo("n", info));
  EXPECT_EQ(info.label, L"\xD83D\xDD0C <b>N</b>");
  EXPECT_EQ(info.type, "leaf");
  EXPECT_EQ(info.data, Word(0x1234'56789abc));
  EXPECT_EQ(info.state, Tree::Checked);
  EXPECT_TRUE(info.expanded);
}

TEST_F(UserDataOnStandIn, CollectsTheDataOfCheckedLeaves) {
  Plant(tree, R"(
    root           [-]
      parts        [x] =0x3
        R1  <leaf> [x] =0xa1
        R2  <leaf> [ ] =0xa2
      nets         [ ]
        N1  <leaf> [x] =0xb1
      more         [-]
        R3  <leaf> [x] =0xa1)");
  std::vector<void*> out;
  tree.GetData(out, nullptr, false, Tree::CheckedOnly());
  EXPECT_EQ(out, (std::vector<void*>{Word(3), Word(0xa1), Word(0xa1)})) << "a branch's total cannot be told apart";
  out.clear();
  tree.GetData(out, Word(3), true, Tree::CheckedOnly());
  EXPECT_EQ(out, (std::vector<void*>{Word(0xa1)}));
}

TEST_F(UserDataOnStandIn, BothWaysOfCountingAgreeOnAnyTreeOfLeaves) {
  toolkit.WriteOnly([](const uiox::Call&) { return false; });
  rc::check("leaves added one by one, then counted anew from below", [this] {
    const auto picks = rc::gen::resize(30, rc::gen::container<std::vector<unsigned>>(rc::gen::arbitrary<unsigned>()));
    const auto parents = *picks;
    const auto leaves = *picks;
    widget.Store().Clear();
    RC_ASSERT(tree.BaseTree::AddNode("b0", L"<b>B</b>", "", "branch", L"", 1, 0, 0, nullptr));
    std::vector<std::size_t> parent_of{0};
    for (const unsigned pick : parents) {
      const std::size_t parent = pick % parent_of.size();
      const std::string name = "b" + std::to_string(parent_of.size());
      RC_ASSERT(tree.BaseTree::AddNode(name.c_str(), L"B", ("b" + std::to_string(parent)).c_str(), "branch", L"", 1, 0,
                                       0, nullptr));
      parent_of.push_back(parent);
    }
    std::vector<unsigned> expected(parent_of.size());
    for (std::size_t i = 0; i < leaves.size(); ++i) {
      std::size_t branch = leaves[i] % parent_of.size();
      const std::string name = "leaf" + std::to_string(i);
      RC_ASSERT(tree.BaseTree::AddNode(name.c_str(), L"L", ("b" + std::to_string(branch)).c_str(), "leaf", L"", 1, 0, 0,
                                       Word(0xffff)));
      tree.OnLeafAdded(name.c_str());
      for (++expected[branch]; branch != 0;) ++expected[branch = parent_of[branch]];
    }
    const auto check = [&] {
      for (std::size_t i = 0; i < expected.size(); ++i) {
        const std::string name = "b" + std::to_string(i);
        void* total = nullptr;
        RC_ASSERT(tree.GetNodeData(name.c_str(), total));
        RC_ASSERT(reinterpret_cast<std::uintptr_t>(total) == expected[i]);
        if (expected[i] == 0) continue;
        const std::wstring number = L" (" + std::to_wstring(expected[i]) + L")";
        RC_ASSERT(tree.GetNodeLabel(name.c_str()) == (i == 0 ? L"<b>B" + number + L"</b>" : L"B" + number));
      }
    };
    check();
    // Branches stand behind their parents, so that the last ones are the deepest of each chain.
    for (std::size_t i = leaves.size(); i-- > 0;) tree.UpdateParentTotals(("leaf" + std::to_string(i)).c_str());
    check();
  });
}

}  // namespace
}  // namespace oxecad_ui
