#include <tests/uicomps/tree/TreeTest.h>

namespace oxecad_ui {
namespace {

using CheckState = TreeTest;

TEST_F(CheckState, IsSetAsItStands) {
  EXPECT_TRUE(tree.SetNodeState("n", Tree::Unchecked));
  EXPECT_TRUE(tree.SetNodeState("n", Tree::Checked));
  EXPECT_TRUE(tree.SetNodeState("n", Tree::PartlyChecked));
  toolkit.When(Doing(2201)).Refuse();
  EXPECT_FALSE(tree.SetNodeState("n", static_cast<Tree::NodeState>(0xFFFFFFFFu)));
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2201 SetNode "n" | 31=0 | 0
    do dev:tree 2201 SetNode "n" | 31=1 | 0
    do dev:tree 2201 SetNode "n" | 31=2 | 0
    do dev:tree 2201 SetNode "n" | 31=4294967295 | 0 => 1)"));
}

TEST_F(CheckState, IsReadFromTwoAttributesInOneCall) {
  toolkit.When(Doing(2203, "both")).Give(177, 1).Give(31, 1);
  toolkit.When(Doing(2203, "mixed")).Give(177, -1).Give(31, 0);
  toolkit.When(Doing(2203, "on")).Give(177, 0).Give(31, 8u);
  EXPECT_EQ(tree.GetNodeState("both"), Tree::PartlyChecked);
  EXPECT_EQ(tree.GetNodeState("mixed"), Tree::PartlyChecked);
  EXPECT_EQ(tree.GetNodeState("on"), Tree::Checked);
  EXPECT_EQ(tree.GetNodeState("off"), Tree::Unchecked);
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2203 InquireNode "both" | 177->1 31->1 | 0
    do dev:tree 2203 InquireNode "mixed" | 177->-1 31->0 | 0
    do dev:tree 2203 InquireNode "on" | 177->0 31->8 | 0
    do dev:tree 2203 InquireNode "off" | 177->0 31->0 | 0)"));
}

TEST_F(CheckState, IsUncheckedWhenItCannotBeRead) {
  toolkit.When(Doing(2203)).Refuse().Scribble();
  EXPECT_EQ(tree.GetNodeState("n"), Tree::Unchecked);
}

TEST_F(CheckState, SensitivityIsAttribute544) {
  EXPECT_TRUE(tree.SetCheckSensitive("n", true));
  toolkit.When(Doing(2201)).Refuse();
  EXPECT_FALSE(tree.SetCheckSensitive("n", false));
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2201 SetNode "n" | 544=1 | 0
    do dev:tree 2201 SetNode "n" | 544=0 | 0 => 1)"));
}

TEST_F(CheckState, SensitivityOfChildrenIsThatOfTheWholeTree) {
  GiveRoot("root");
  GiveChildren("root", {"a", "b"});
  GiveChildren("a", {"a1"});
  WriteChangesOnly();
  for (const char* node : {"b", "nowhere", ""}) {
    tree.SetChildrenCheckSensitive(node, false);
    EXPECT_TRUE(toolkit.Took(R"(
      do dev:tree 2201 SetNode "root" | 544=0 | 0
      do dev:tree 2201 SetNode "a" | 544=0 | 0
      do dev:tree 2201 SetNode "a1" | 544=0 | 0
      do dev:tree 2201 SetNode "b" | 544=0 | 0)"));
  }
  tree.SetChildrenCheckSensitive(nullptr, true);
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2201 SetNode "root" | 544=1 | 0
    do dev:tree 2201 SetNode "a" | 544=1 | 0
    do dev:tree 2201 SetNode "a1" | 544=1 | 0
    do dev:tree 2201 SetNode "b" | 544=1 | 0)"));
}

TEST_F(CheckState, SensitivityOfChildrenNeedsARoot) {
  tree.SetChildrenCheckSensitive("n", false);
  EXPECT_TRUE(toolkit.Took("retrieve dev:tree | 54->null | 0"));
}

}  // namespace
}  // namespace oxecad_ui
