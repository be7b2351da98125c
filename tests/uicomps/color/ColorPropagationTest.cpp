#include <tests/uicomps/color/ColorTreeWire.h>

namespace color_tests {
namespace {

class ColorDownward : public ColorTreeWire {};

TEST_F(ColorDownward, WritesTheDeepestNodesFirst) {
  Node("p", "root", {"a", "b"}, 5);
  Node("a", "p", {"a1"}, 5);
  tree.ParentColorChanged("p", 7);
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2202 GetNode "p" | 284->["a" "b"] | 0
    free 284 ["a" "b"] | 0
    do dev:tree 2202 GetNode "a" | 284->["a1"] | 0
    free 284 ["a1"] | 0
    do dev:tree 2202 GetNode "a1" | 284->[] | 0
    do dev:tree 2243 NodeTypeExists "color_square.png_7" ->1 | 0
    do dev:tree 2033 ChangeNode "a1" | 8="color_square.png_7" 1024=0x7 | 0
    do dev:tree 2243 NodeTypeExists "color_square.png_7" ->1 | 0
    do dev:tree 2033 ChangeNode "a" | 8="color_square.png_7" 1024=0x7 | 0
    do dev:tree 2202 GetNode "b" | 284->[] | 0
    do dev:tree 2243 NodeTypeExists "color_square.png_7" ->1 | 0
    do dev:tree 2033 ChangeNode "b" | 8="color_square.png_7" 1024=0x7 | 0
    do dev:tree 2243 NodeTypeExists "color_square.png_7" ->1 | 0
    do dev:tree 2033 ChangeNode "p" | 8="color_square.png_7" 1024=0x7 | 0
  )"));
}

TEST_F(ColorDownward, DoesNotSpareColorlessNodes) {
  toolkit.When(Doing(2202)).Give(282, "colorless");
  Node("p", "root", {"a"}, 5);
  toolkit.When(Doing(2202, "a")).Give(282, "colorless");
  WriteChangesOnly();
  tree.ParentColorChanged("p", 7);
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2033 ChangeNode "a" | 8="color_square.png_7" 1024=0x7 | 0
    do dev:tree 2033 ChangeNode "p" | 8="color_square.png_7" 1024=0x7 | 0
  )"));
}

TEST_F(ColorDownward, TakesNoColorToo) {
  tree.ParentColorChanged("p", kNone);
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2202 GetNode "p" | 284->[] | 0
    do dev:tree 2033 ChangeNode "p" | 8="mix" 1024=0xffffffff | 0
  )"));
}

TEST_F(ColorDownward, DoesNothingWithoutAName) {
  tree.ParentColorChanged(nullptr, 7);
  tree.ParentColorChanged("", 7);
  EXPECT_TRUE(toolkit.Took(""));
}

TEST_F(ColorDownward, GoesOnWhenANodeRefuses) {
  Node("p", "root", {"a", "b"}, 5);
  toolkit.When(Doing(2033, "a")).Refuse();
  WriteChangesOnly();
  tree.ParentColorChanged("p", 7);
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2033 ChangeNode "a" | 8="color_square.png_7" 1024=0x7 | 0 => 1
    do dev:tree 2033 ChangeNode "b" | 8="color_square.png_7" 1024=0x7 | 0
    do dev:tree 2033 ChangeNode "p" | 8="color_square.png_7" 1024=0x7 | 0
  )"));
}

TEST_F(ColorDownward, TreatsANodeWhoseChildrenCannotBeReadAsALeaf) {
  Node("p", "root", {"a", "b"}, 5);
  for (const Failure failure : {Failure::Refused, Failure::Scribbled, Failure::Ignored, Failure::NullAnswers}) {
    SCOPED_TRACE(Name(failure));
    toolkit.WriteOnly([](const uiox::Call& call) { return call.code == 2033; });
    toolkit.FailCall(1, failure);
    tree.ParentColorChanged("p", 7);
    EXPECT_TRUE(toolkit.Took(R"(do dev:tree 2033 ChangeNode "p" | 8="color_square.png_7" 1024=0x7 | 0)"));
  }
}

class ColorUpward : public ColorTreeWire {};

TEST_F(ColorUpward, StopsAtANodeThatHasTheSummaryAlready) {
  Node("p", "root", {"a", "b", "c"}, 5);
  for (const char* child : {"a", "b", "c"}) Node(child, "p", {}, 5);
  tree.ChildColorChanged("p");
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2202 GetNode "p" | 284->["a" "b" "c"] | 0
    free 284 ["a" "b" "c"] | 0
    do dev:tree 2203 InquireNode "a" | 260->0x5 | 0
    do dev:tree 2203 InquireNode "b" | 260->0x5 | 0
    do dev:tree 2203 InquireNode "c" | 260->0x5 | 0
    do dev:tree 2203 InquireNode "p" | 260->0x5 | 0
  )"));
}

TEST_F(ColorUpward, ReadsNoFurtherThanTheFirstDifference) {
  Node("p", "root", {"a", "b", "c", "d"}, kNone);
  Node("a", "p", {}, 5);
  Node("b", "p", {}, 5);
  Node("c", "p", {}, 6);
  tree.ChildColorChanged("p");
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2202 GetNode "p" | 284->["a" "b" "c" "d"] | 0
    free 284 ["a" "b" "c" "d"] | 0
    do dev:tree 2203 InquireNode "a" | 260->0x5 | 0
    do dev:tree 2203 InquireNode "b" | 260->0x5 | 0
    do dev:tree 2203 InquireNode "c" | 260->0x6 | 0
    do dev:tree 2203 InquireNode "p" | 260->0xffffffff | 0
  )"));
}

TEST_F(ColorUpward, LooksAtNoOtherChildWhenTheFirstIsMixed) {
  Node("p", "root", {"a", "b"}, kNone);
  Node("a", "p", {}, kNone);
  tree.ChildColorChanged("p");
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2202 GetNode "p" | 284->["a" "b"] | 0
    free 284 ["a" "b"] | 0
    do dev:tree 2203 InquireNode "a" | 260->0xffffffff | 0
    do dev:tree 2203 InquireNode "p" | 260->0xffffffff | 0
  )"));
}

TEST_F(ColorUpward, MakesAParentOfDifferentChildrenMixedAndClimbs) {
  Node("root", "", {"p"}, 5);
  Node("p", "root", {"a", "b"}, 5);
  Node("a", "p", {}, 5);
  Node("b", "p", {}, 6);
  toolkit.When(Doing(2033, "p")).Run([this](const uiox::Call&) { Node("p", "root", {"a", "b"}, kNone); });
  tree.ChildColorChanged("p");
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2202 GetNode "p" | 284->["a" "b"] | 0
    free 284 ["a" "b"] | 0
    do dev:tree 2203 InquireNode "a" | 260->0x5 | 0
    do dev:tree 2203 InquireNode "b" | 260->0x6 | 0
    do dev:tree 2203 InquireNode "p" | 260->0x5 | 0
    do dev:tree 2033 ChangeNode "p" | 8="mix" 1024=0xffffffff | 0
    do dev:tree 2202 GetNode "p" | 283->"root" | 0
    free 283 "root" | 0
    do dev:tree 2202 GetNode "root" | 284->["p"] | 0
    free 284 ["p"] | 0
    do dev:tree 2203 InquireNode "p" | 260->0xffffffff | 0
    do dev:tree 2203 InquireNode "root" | 260->0x5 | 0
    do dev:tree 2033 ChangeNode "root" | 8="mix" 1024=0xffffffff | 0
    do dev:tree 2202 GetNode "root" | 283->"" | 0
    free 283 "" | 0
  )"));
}

TEST_F(ColorUpward, GivesAnOnlyChildsColorToItsParent) {
  Node("p", "", {"a"}, kNone);
  Node("a", "p", {}, 6);
  WriteChangesOnly();
  tree.ChildColorChanged("p");
  EXPECT_TRUE(toolkit.Took(R"(do dev:tree 2033 ChangeNode "p" | 8="color_square.png_6" 1024=0x6 | 0)"));
}

TEST_F(ColorUpward, LeavesALeafAlone) {
  Node("p", "root", {}, 6);
  tree.ChildColorChanged("p");
  EXPECT_TRUE(toolkit.Took(R"(do dev:tree 2202 GetNode "p" | 284->[] | 0)"));
}

TEST_F(ColorUpward, DoesNothingWithoutAName) {
  tree.ChildColorChanged(nullptr);
  tree.ChildColorChanged("");
  EXPECT_TRUE(toolkit.Took(""));
}

TEST_F(ColorUpward, ClimbsThoughTheNodeRefused) {
  Node("root", "", {"p"}, 5);
  Node("p", "root", {"a"}, 5);
  Node("a", "p", {}, 6);
  toolkit.When(Doing(2033)).Refuse();
  toolkit.WriteOnly([](const uiox::Call& call) { return call.code == 2033 || call.Find(283); });
  tree.ChildColorChanged("p");
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2033 ChangeNode "p" | 8="color_square.png_6" 1024=0x6 | 0 => 1
    do dev:tree 2202 GetNode "p" | 283->"root" | 0
    free 283 "root" | 0
  )"));
}

TEST_F(ColorUpward, EndsWhenTheParentCannotBeRead) {
  Node("p", "root", {"a"}, 5);
  Node("a", "p", {}, 6);
  toolkit.When(Doing(2202, "p").With(283)).Refuse().Scribble();
  WriteChangesOnly();
  tree.ChildColorChanged("p");
  EXPECT_TRUE(toolkit.Took(R"(do dev:tree 2033 ChangeNode "p" | 8="color_square.png_6" 1024=0x6 | 0)"));
}

class ColorChange : public ColorTreeWire {};

TEST_F(ColorChange, GoesDownTheBranchAndThenUpOnce) {
  Node("root", "", {"p"}, 5);
  Node("p", "root", {"a"}, 5);
  Node("a", "p", {}, 5);
  toolkit.When(Doing(2033, "p")).Run([this](const uiox::Call&) { Node("p", "root", {"a"}, 7); });
  tree.ChangeNodeColor("p", 7);
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2202 GetNode "p" | 282->"t" | 0
    free 282 "t" | 0
    do dev:tree 2202 GetNode "p" | 284->["a"] | 0
    free 284 ["a"] | 0
    do dev:tree 2202 GetNode "a" | 284->[] | 0
    do dev:tree 2243 NodeTypeExists "color_square.png_7" ->1 | 0
    do dev:tree 2033 ChangeNode "a" | 8="color_square.png_7" 1024=0x7 | 0
    do dev:tree 2243 NodeTypeExists "color_square.png_7" ->1 | 0
    do dev:tree 2033 ChangeNode "p" | 8="color_square.png_7" 1024=0x7 | 0
    do dev:tree 2202 GetNode "p" | 283->"root" | 0
    free 283 "root" | 0
    do dev:tree 2202 GetNode "root" | 284->["p"] | 0
    free 284 ["p"] | 0
    do dev:tree 2203 InquireNode "p" | 260->0x7 | 0
    do dev:tree 2203 InquireNode "root" | 260->0x5 | 0
    do dev:tree 2243 NodeTypeExists "color_square.png_7" ->1 | 0
    do dev:tree 2033 ChangeNode "root" | 8="color_square.png_7" 1024=0x7 | 0
    do dev:tree 2202 GetNode "root" | 283->"" | 0
    free 283 "" | 0
  )"));
}

TEST_F(ColorChange, SparesAColorlessNode) {
  toolkit.When(Doing(2202, "n")).Give(282, "some colorless type");
  tree.ChangeNodeColor("n", 7);
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2202 GetNode "n" | 282->"some colorless type" | 0
    free 282 "some colorless type" | 0
  )"));
}

TEST_F(ColorChange, OfANullNameIsNothing) {
  tree.ChangeNodeColor(nullptr, 7);
  EXPECT_TRUE(toolkit.Took(""));
}

TEST_F(ColorChange, OfAnEmptyNameReachesTheToolkit) {
  tree.ChangeNodeColor("", 7);
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2202 GetNode "" | 282->null | 0
    free 282 null | 0
    do dev:tree 2202 GetNode "" | 283->null | 0
    free 283 null | 0
  )"));
}

TEST_F(ColorChange, TellsNobody) {
  ListenToChanges();
  changed = {"before"};
  tree.ChangeNodeColor("n", 7);
  EXPECT_EQ(spy.TakeReasons(), Reasons{});
  EXPECT_EQ(changed, Names{"before"});
}

TEST_F(ColorChange, OfANodeWhoseTypeCannotBeReadIsMade) {
  toolkit.When(Doing(2202, "n").With(282)).Refuse().Scribble();
  WriteChangesOnly();
  tree.ChangeNodeColor("n", 7);
  EXPECT_TRUE(toolkit.Took(R"(do dev:tree 2033 ChangeNode "n" | 8="color_square.png_7" 1024=0x7 | 0)"));
}

}  // namespace
}  // namespace color_tests
