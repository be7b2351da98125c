// The operations that change a tree, on the wire.
#include <tests/uicomps/base/BaseTreeTest.h>

#include <climits>

namespace oxecad_ui {
namespace {

using BaseTreeChanges = BaseTreeTest;

TEST_F(BaseTreeChanges, AddNodeAppendsWithFiveOptions) {
  EXPECT_TRUE(tree.AddNode("n1", L"Label", "root", "net", L"second", -7, 1, INT_MAX, Word(0xff)));
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2029 AddNode "n1" L"Label" "root" "net" | 2=L"second" 128=-7 256=1 512=2147483647 1024=0xff | 0)"));
}

TEST_F(BaseTreeChanges, AddNodeHandsNullsOn) {
  tree.AddNode(nullptr, nullptr, nullptr, nullptr, nullptr, INT_MIN, 0, -1, nullptr);
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2029 AddNode null null null null | 2=null 128=-2147483648 256=0 512=-1 1024=null | 0)"));
}

TEST_F(BaseTreeChanges, AddNodeHandsBothWidthsOfTextOn) {
  const wchar_t label[] = {0xD83D, 0xDE00, L'\u00e4', 0};
  tree.AddNode("n\xC3\xA4", label, "root", "t\xC3\xBC", L"\u03a9", 0, 0, 0, nullptr);
  EXPECT_TRUE(
      toolkit.Took("do dev:tree 2029 AddNode \"n\xC3\xA4\" L\"\xF0\x9F\x98\x80\xC3\xA4\" \"root\" \"t\xC3\xBC\" "
                   "| 2=L\"\xCE\xA9\" 128=0 256=0 512=0 1024=null | 0"));
}

TEST_F(BaseTreeChanges, AddNodeCarriesAPointerOfFullWidth) {
  toolkit.NamePointer(&toolkit, "&data");
  tree.AddNode("n", L"", "root", "", L"", 0, 0, 0, &toolkit);
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2029 AddNode "n" L"" "root" "" | 2=L"" 128=0 256=0 512=0 1024=&data | 0)"));
}

TEST_F(BaseTreeChanges, AddNodeSaysWhetherTheToolkitAccepted) {
  toolkit.When(Doing(2029)).Refuse(-3);
  EXPECT_FALSE(tree.AddNode("n", L"", "root", "", L"", 0, 0, 0, nullptr));
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2029 AddNode "n" L"" "root" "" | 2=L"" 128=0 256=0 512=0 1024=null | 0 => -3)"));
}

TEST_F(BaseTreeChanges, AddNodeBeforeNamesTheSiblingBetweenParentAndType) {
  EXPECT_TRUE(tree.AddNodeBefore("n1", L"Label", "root", "n0", "net", L"second", 1, 2, 3, Word(0xff)));
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2030 AddNodeBefore "n1" L"Label" "root" "n0" "net" | 2=L"second" 128=1 256=2 512=3 1024=0xff | 0)"));
}

TEST_F(BaseTreeChanges, AddNodeBeforeNothingGivesANullSibling) {
  toolkit.When(Doing(2030)).Refuse();
  EXPECT_FALSE(tree.AddNodeBefore("n1", L"Label", "root", nullptr, "net", L"", 1, 0, 0, nullptr));
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2030 AddNodeBefore "n1" L"Label" "root" null "net" | 2=L"" 128=1 256=0 512=0 1024=null | 0 => 1)"));
}

TEST_F(BaseTreeChanges, DeleteNodeNamesTheNode) {
  EXPECT_TRUE(tree.DeleteNode("n1"));
  toolkit.When(Doing(2031)).Refuse();
  EXPECT_FALSE(tree.DeleteNode(""));
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2031 DeleteNode "n1" | 0
    do dev:tree 2031 DeleteNode "" | 0 => 1)"));
}

TEST_F(BaseTreeChanges, MoveNodeBeforeHasThreeValuesAndNoList) {
  EXPECT_TRUE(tree.MoveNodeBefore("n1", "root", "n0"));
  toolkit.When(Doing(2032)).Refuse();
  EXPECT_FALSE(tree.MoveNodeBefore("n1", "root", nullptr));
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2032 MoveNode "n1" "root" "n0"
    do dev:tree 2032 MoveNode "n1" "root" null => 1)"));
}

TEST_F(BaseTreeChanges, ModifyNodeLabelSetsAttribute2) {
  EXPECT_TRUE(tree.ModifyNodeLabel("n1", L"<b>x</b>"));
  toolkit.When(Doing(2201)).Refuse();
  EXPECT_FALSE(tree.ModifyNodeLabel("n1", nullptr));
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2201 SetNode "n1" | 2=L"<b>x</b>" | 0
    do dev:tree 2201 SetNode "n1" | 2=null | 0 => 1)"));
}

TEST_F(BaseTreeChanges, EnableAndSetRedrawModifyTheComponent) {
  tree.Enable(true);
  tree.Enable(false);
  tree.SetRedraw(true);
  tree.SetRedraw(false);
  EXPECT_TRUE(toolkit.Took(R"(
    modify dev:tree | 5=1 | 0
    modify dev:tree | 5=0 | 0
    modify dev:tree | 52=1 | 0
    modify dev:tree | 52=0 | 0)"));
}

TEST_F(BaseTreeChanges, ClearDeletesTheRoot) {
  toolkit.When(Retrieving(54)).Give(54, "root");
  tree.Clear();
  EXPECT_TRUE(toolkit.Took(R"(
    retrieve dev:tree | 54->"root" | 0
    do dev:tree 2031 DeleteNode "root" | 0)"));
}

TEST_F(BaseTreeChanges, ClearDeletesNothingWithoutARoot) {
  tree.Clear();
  toolkit.When(Retrieving(54)).Give(54, "");
  tree.Clear();
  toolkit.When(Retrieving(54)).Give(54, " root");
  tree.Clear();
  toolkit.When(Retrieving(54)).Refuse();
  tree.Clear();
  toolkit.When(Retrieving(54)).Refuse().Scribble();
  tree.Clear();
  EXPECT_TRUE(toolkit.Took(R"(
    retrieve dev:tree | 54->null | 0
    retrieve dev:tree | 54->"" | 0
    retrieve dev:tree | 54->" root" | 0
    retrieve dev:tree | 54=? | 0 => 1
    retrieve dev:tree | 54=? | 0 => 1)"));
}

TEST_F(BaseTreeChanges, ClearTestsTheFirstCharacterWithTheMaskOnly) {
  // 0xDF takes away bit 5 alone: the blank is the only character besides NUL that becomes nothing.
  for (int c = 1; c < 256; ++c) {
    const std::string root(1, static_cast<char>(c));
    toolkit.When(Retrieving(54)).Give(54, root.c_str());
    EXPECT_EQ(tree.HasRoot(), c != ' ') << "character " << c;
  }
}

TEST_F(BaseTreeChanges, ExpandAllExpandsTheRootWithItsSubtree) {
  toolkit.When(Retrieving(54)).Give(54, "root");
  tree.ExpandAll();
  EXPECT_TRUE(toolkit.Took(R"(
    retrieve dev:tree | 54->"root" | 0
    do dev:tree 2036 ExpandNode "root" 1 | 0)"));
}

TEST_F(BaseTreeChanges, CollapseAllLeavesTheRootItselfOpen) {
  toolkit.When(Retrieving(54)).Give(54, "root");
  tree.CollapseAll();
  EXPECT_TRUE(toolkit.Took(R"(
    retrieve dev:tree | 54->"root" | 0
    do dev:tree 2037 CollapseNode "root" | 0
    do dev:tree 2036 ExpandNode "root" 0 | 0)"));
}

TEST_F(BaseTreeChanges, ExpandAllAndCollapseAllTakeARootThatBeginsWithABlank) {
  toolkit.When(Retrieving(54)).Give(54, " r");
  tree.ExpandAll();
  tree.CollapseAll();
  EXPECT_TRUE(toolkit.Took(R"(
    retrieve dev:tree | 54->" r" | 0
    do dev:tree 2036 ExpandNode " r" 1 | 0
    retrieve dev:tree | 54->" r" | 0
    do dev:tree 2037 CollapseNode " r" | 0
    do dev:tree 2036 ExpandNode " r" 0 | 0)"));
}

TEST_F(BaseTreeChanges, ExpandAllAndCollapseAllDoNothingWithoutARoot) {
  toolkit.When(Retrieving(54)).Give(54, "").Times(2);
  tree.ExpandAll();
  tree.CollapseAll();
  toolkit.When(Retrieving(54)).Refuse().Scribble();
  tree.ExpandAll();
  tree.CollapseAll();
  EXPECT_TRUE(toolkit.Took(R"(
    retrieve dev:tree | 54->"" | 0
    retrieve dev:tree | 54->"" | 0
    retrieve dev:tree | 54=? | 0 => 1
    retrieve dev:tree | 54=? | 0 => 1)"));
}

}  // namespace
}  // namespace oxecad_ui
