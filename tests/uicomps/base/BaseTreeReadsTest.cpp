// The operations that read a tree, on the wire.
#include <tests/uicomps/base/BaseTreeTest.h>

#include <string>

namespace oxecad_ui {
namespace {

using BaseTreeReads = BaseTreeTest;

TEST_F(BaseTreeReads, HasRootLooksAtAttribute54) {
  EXPECT_FALSE(tree.HasRoot());
  toolkit.When(Retrieving(54)).Give(54, "root");
  EXPECT_TRUE(tree.HasRoot());
  toolkit.When(Retrieving(54)).Give(54, " blank first");
  EXPECT_FALSE(tree.HasRoot());
  toolkit.When(Retrieving(54)).Give(54, "");
  EXPECT_FALSE(tree.HasRoot());
  toolkit.When(Retrieving(54)).Refuse().Give(54, "root");
  EXPECT_FALSE(tree.HasRoot()) << "what a failed call wrote does not count";
  EXPECT_TRUE(toolkit.Took(R"(
    retrieve dev:tree | 54->null | 0
    retrieve dev:tree | 54->"root" | 0
    retrieve dev:tree | 54->" blank first" | 0
    retrieve dev:tree | 54->"" | 0
    retrieve dev:tree | 54=? | 0 => 1)"));
}

TEST_F(BaseTreeReads, BackgroundColorIsPresetToNone) {
  EXPECT_EQ(tree.GetBackgroundColor(), 0xFFFFFFFFu);
  toolkit.When(Retrieving(211)).Give(211, 0x00FF8000);
  EXPECT_EQ(tree.GetBackgroundColor(), 0x00FF8000u);
  toolkit.When(Retrieving(211)).Refuse().Scribble();
  EXPECT_EQ(tree.GetBackgroundColor(), 0xFFFFFFFFu);
  EXPECT_TRUE(toolkit.Took(R"(
    retrieve dev:tree | 211->4294967295 | 0
    retrieve dev:tree | 211->16744448 | 0
    retrieve dev:tree | 211=? | 0 => 1)"));
}

TEST_F(BaseTreeReads, LabelIsCopiedAndReleased) {
  toolkit.When(Doing(2202, "n1").With(2)).Give(2, L"<b>R9</b>");
  EXPECT_EQ(tree.GetNodeLabel("n1"), L"<b>R9</b>");
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2202 GetNode "n1" | 2->L"<b>R9</b>" | 0
    free 2 L"<b>R9</b>" | 0)"));
}

TEST_F(BaseTreeReads, LabelKeepsPairsOfSurrogates) {
  const std::wstring label{wchar_t(0xD83D), wchar_t(0xDE00), L'x', wchar_t(0xFFFF)};
  toolkit.When(Doing(2202)).Give(2, label.c_str());
  EXPECT_EQ(tree.GetNodeLabel("n1"), label);
}

TEST_F(BaseTreeReads, NullTextsAreEmptyAndReleased) {
  EXPECT_EQ(tree.GetNodeLabel("n1"), L"");
  EXPECT_EQ(tree.GetNodeType("n1"), "");
  EXPECT_EQ(tree.GetParent("n1", nullptr), "");
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2202 GetNode "n1" | 2->null | 0
    free 2 null | 0
    do dev:tree 2202 GetNode "n1" | 282->null | 0
    free 282 null | 0
    do dev:tree 2202 GetNode "n1" | 283->null | 0
    free 283 null | 0)"));
}

TEST_F(BaseTreeReads, TextsOfAFailedReadAreEmptyAndNullIsReleased) {
  toolkit.When(Doing(2202)).Refuse(5).Scribble();
  int status = 0;
  EXPECT_EQ(tree.GetNodeLabel("n1"), L"");
  EXPECT_EQ(tree.GetNodeType("n1"), "");
  EXPECT_EQ(tree.GetParent("n1", &status), "");
  EXPECT_EQ(status, 5);
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2202 GetNode "n1" | 2=? | 0 => 5
    free 2 null | 0
    do dev:tree 2202 GetNode "n1" | 282=? | 0 => 5
    free 282 null | 0
    do dev:tree 2202 GetNode "n1" | 283=? | 0 => 5
    free 283 null | 0)"));
}

TEST_F(BaseTreeReads, TypeIsCopiedAndReleased) {
  toolkit.When(Doing(2202, "n1").With(282)).Give(282, "net\xC3\xA4");
  EXPECT_EQ(tree.GetNodeType("n1"), "net\xC3\xA4");
  EXPECT_TRUE(toolkit.Took("do dev:tree 2202 GetNode \"n1\" | 282->\"net\xC3\xA4\" | 0\nfree 282 \"net\xC3\xA4\" | 0"));
}

TEST_F(BaseTreeReads, ParentIsCopiedAndReleasedAndItsStatusGiven) {
  toolkit.When(Doing(2202, "n1").With(283)).Give(283, "root");
  int status = 77;
  EXPECT_EQ(tree.GetParent("n1", &status), "root");
  EXPECT_EQ(status, 0);
  EXPECT_EQ(tree.GetParent("n1", nullptr), "root");
  EXPECT_EQ(tree.GetParent("n1"), "root");
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2202 GetNode "n1" | 283->"root" | 0
    free 283 "root" | 0
    do dev:tree 2202 GetNode "n1" | 283->"root" | 0
    free 283 "root" | 0
    do dev:tree 2202 GetNode "n1" | 283->"root" | 0
    free 283 "root" | 0)"));
}

TEST_F(BaseTreeReads, ChildCountAsksForTheCountAlone) {
  toolkit.When(Doing(2202, "root")).Give(284, {"a", "b"});
  EXPECT_EQ(tree.GetNodeChildCount("root"), 2);
  EXPECT_EQ(tree.GetNodeChildCount("leaf"), 0);
  toolkit.When(Doing(2202)).Refuse().Scribble();
  EXPECT_EQ(tree.GetNodeChildCount("root"), 0);
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2202 GetNode "root" | 284->count 2 | 0
    do dev:tree 2202 GetNode "leaf" | 284->count 0 | 0
    do dev:tree 2202 GetNode "root" | 284=?count | 0 => 1)"));
}

TEST_F(BaseTreeReads, ChildrenAreLentByOperation2203) {
  toolkit.When(Doing(2203, "root").With(284)).Give(284, {"a", "b"});
  int count = -1;
  char** children = nullptr;
  ASSERT_TRUE(tree.GetNodeChildren("root", &count, &children));
  ASSERT_EQ(count, 2);
  EXPECT_STREQ(children[0], "a");
  EXPECT_STREQ(children[1], "b");
  EXPECT_TRUE(toolkit.Took(R"(do dev:tree 2203 InquireNode "root" | 284->["a" "b"] | 0)"));
}

TEST_F(BaseTreeReads, ChildrenOfAFailedReadAreNone) {
  toolkit.When(Doing(2203)).Refuse().Scribble();
  int count = -1;
  char* none = nullptr;
  char** children = &none;
  EXPECT_FALSE(tree.GetNodeChildren("root", &count, &children));
  EXPECT_EQ(count, 0);
  EXPECT_EQ(children, nullptr);
}

TEST_F(BaseTreeReads, DataIsReadIntoAPlaceOfAPointersWidth) {
  toolkit.NamePointer(&toolkit, "&data");
  toolkit.When(Doing(2202, "n1").With(260)).Give(260, static_cast<void*>(&toolkit));
  void* data = nullptr;
  EXPECT_TRUE(tree.GetNodeData("n1", data));
  EXPECT_EQ(data, &toolkit);
  EXPECT_TRUE(toolkit.Took(R"(do dev:tree 2202 GetNode "n1" | 260->&data | 0)"));
}

TEST_F(BaseTreeReads, DataIsWrittenOnSuccessOnly) {
  toolkit.When(Doing(2202)).Refuse().Scribble();
  void* data = Word(0x55);
  EXPECT_FALSE(tree.GetNodeData("n1", data));
  EXPECT_EQ(data, Word(0x55));
  toolkit.When(Doing(2202)).Give(260, 0);
  EXPECT_TRUE(tree.GetNodeData("n1", data));
  EXPECT_EQ(data, nullptr);
}

TEST_F(BaseTreeReads, ExpandedIsAttribute4) {
  toolkit.When(Doing(2202, "open").With(4)).Give(4, 1);
  toolkit.When(Doing(2202, "odd").With(4)).Give(4, -8);
  EXPECT_TRUE(tree.GetNodeExpanded("open"));
  EXPECT_TRUE(tree.GetNodeExpanded("odd"));
  EXPECT_FALSE(tree.GetNodeExpanded("closed"));
  toolkit.When(Doing(2202)).Refuse().Scribble();
  EXPECT_FALSE(tree.GetNodeExpanded("open"));
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2202 GetNode "open" | 4->1 | 0
    do dev:tree 2202 GetNode "odd" | 4->-8 | 0
    do dev:tree 2202 GetNode "closed" | 4->0 | 0
    do dev:tree 2202 GetNode "open" | 4=? | 0 => 1)"));
}

TEST_F(BaseTreeReads, DoesNotExistComparesNamesExactly) {
  toolkit.When(Doing(2203, "root").With(284)).Give(284, {"a", nullptr, "b1"});
  EXPECT_FALSE(tree.DoesNotExist("root", "a"));
  EXPECT_FALSE(tree.DoesNotExist("root", "b1"));
  EXPECT_TRUE(tree.DoesNotExist("root", "A"));
  EXPECT_TRUE(tree.DoesNotExist("root", "b"));
  EXPECT_TRUE(tree.DoesNotExist("root", ""));
  EXPECT_TRUE(tree.DoesNotExist("root", nullptr)) << "not even where a name is null";
  EXPECT_TRUE(tree.DoesNotExist("leaf", "a"));
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2203 InquireNode "root" | 284->["a" null "b1"] | 0
    ...
    do dev:tree 2203 InquireNode "leaf" | 284->[] | 0)"));
}

TEST_F(BaseTreeReads, DoesNotExistIsTrueWhenTheChildrenCannotBeRead) {
  toolkit.When(Doing(2203)).Refuse().Scribble();
  EXPECT_TRUE(tree.DoesNotExist("root", "a"));
  toolkit.When(Doing(2203)).GiveNullArray(284, 3);
  EXPECT_TRUE(tree.DoesNotExist("root", "a"));
}

TEST_F(BaseTreeReads, EmptyNamesGoToTheToolkit) {
  tree.GetNodeLabel("");
  tree.GetNodeChildCount("");
  tree.GetNodeExpanded("");
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2202 GetNode "" | 2->null | 0
    free 2 null | 0
    do dev:tree 2202 GetNode "" | 284->count 0 | 0
    do dev:tree 2202 GetNode "" | 4->0 | 0)"));
}

}  // namespace
}  // namespace oxecad_ui
