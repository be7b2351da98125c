#include <tests/uicomps/color/ColorTreeWire.h>

namespace color_tests {
namespace {

/// Nodes with a parent, a state and a check box that the user may toggle.
class ColorTreeChecks : public ColorTreeWire {
 protected:
  ColorTreeChecks() { toolkit.When(Doing(2202).With(544)).Give(544, 1); }

  void Parent(const std::string& name, Names children) {
    Node(name, "root", children, 5);
    for (const std::string& child : children) Node(child, name.c_str(), {}, 5);
  }
  void Checked(const Names& names) {
    for (const std::string& name : names) CheckState(name, 0, 1);
  }
  void Locked(const std::string& name) { toolkit.When(Doing(2202, name).With(544)).Give(544, 0); }
  void Selected(Names names) { toolkit.When(Retrieving(72)).Give(72, std::move(names)); }
};

class CheckOfOneNode : public ColorTreeChecks {};

TEST_F(CheckOfOneNode, AsksForSelectionAndParentAndTells) {
  ListenToChanges();
  changed = {"before"};
  toolkit.When(Doing(2202, "n")).Give(283, "p");
  spy.action = [this] { EXPECT_EQ(changed, Names{}) << "emptied, and nothing appended"; };
  tree.OnCheck("n");
  EXPECT_TRUE(toolkit.Took(R"(
    retrieve dev:tree | 72->[] | 0
    do dev:tree 2202 GetNode "n" | 283->"p" | 0
    free 283 "p" | 0
  )")) << "also without a single-check branch";
  EXPECT_EQ(spy.TakeReasons(), Reasons{2});
}

TEST_F(CheckOfOneNode, NeedsNoListener) {
  tree.OnCheck("n");
  tree.SetOnDirtyHandler(nullptr, nullptr, &changed);
  changed = {"before"};
  tree.OnCheck("n");
  EXPECT_EQ(changed, Names{"before"}) << "without a handler the list is left alone";
  tree.SetOnDirtyHandler(DirtySpy::Handler, &spy, nullptr);
  tree.OnCheck("n");
  EXPECT_EQ(spy.TakeReasons(), Reasons{2});
}

TEST_F(CheckOfOneNode, UnchecksTheOthersOfItsBranch) {
  Parent("p", {"m", "n"});
  Checked({"m", "n"});
  tree.AddSingleCheckBranch("p");
  tree.OnCheck("n");
  EXPECT_TRUE(toolkit.Took(R"(
    retrieve dev:tree | 72->[] | 0
    do dev:tree 2202 GetNode "n" | 283->"p" | 0
    free 283 "p" | 0
    do dev:tree 2202 GetNode "p" | 284->["m" "n"] | 0
    free 284 ["m" "n"] | 0
    do dev:tree 2202 GetNode "m" | 2->null | 0
    free 2 null | 0
    do dev:tree 2203 InquireNode "m" | 177->0 31->1 | 0
    do dev:tree 2202 GetNode "m" | 282->"t" | 0
    free 282 "t" | 0
    do dev:tree 2202 GetNode "m" | 4->0 | 0
    do dev:tree 2203 InquireNode "m" | 260->0x5 | 0
    do dev:tree 2202 GetNode "m" | 284->[] | 0
    do dev:tree 2202 GetNode "n" | 2->null | 0
    free 2 null | 0
    do dev:tree 2203 InquireNode "n" | 177->0 31->1 | 0
    do dev:tree 2202 GetNode "n" | 282->"t" | 0
    free 282 "t" | 0
    do dev:tree 2202 GetNode "n" | 4->0 | 0
    do dev:tree 2203 InquireNode "n" | 260->0x5 | 0
    do dev:tree 2202 GetNode "n" | 284->[] | 0
    do dev:tree 2201 SetNode "m" | 31=0 | 0
  )"));
}

TEST_F(CheckOfOneNode, UnchecksTheOthersAlsoWhenItWasUnchecked) {
  Parent("p", {"m", "n", "o"});
  Checked({"m", "o"});
  tree.AddSingleCheckBranch("p");
  WriteChangesOnly();
  tree.OnCheck("n");
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2201 SetNode "m" | 31=0 | 0
    do dev:tree 2201 SetNode "o" | 31=0 | 0
  )"));
}

TEST_F(CheckOfOneNode, UnchecksWholeBranchesBelowItsBranch) {
  Parent("p", {"m", "n"});
  Parent("m", {"m1"});
  Parent("n", {"n1"});
  Node("m", "p", {"m1"}, 5);
  Node("n", "p", {"n1"}, 5);
  Checked({"m1", "n", "n1"});
  CheckState("m", 1, 1);
  tree.AddSingleCheckBranch("p");
  WriteChangesOnly();
  tree.OnCheck("n");
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2201 SetNode "m1" | 31=0 | 0
    do dev:tree 2201 SetNode "n1" | 31=0 | 0
  )")) << "the walk goes through the partly checked m, lists what is checked, and spares the node alone";
}

TEST_F(CheckOfOneNode, LeavesOtherBranchesAlone) {
  Parent("p", {"m", "n"});
  Checked({"m", "n"});
  tree.AddSingleCheckBranch("q");
  tree.AddSingleCheckBranch("root");
  WriteChangesOnly();
  tree.OnCheck("n");
  EXPECT_TRUE(toolkit.Took("")) << "only the direct parent counts";
}

TEST_F(CheckOfOneNode, RegistersABranchOnce) {
  Parent("p", {"m", "n"});
  Checked({"m", "n"});
  tree.AddSingleCheckBranch("p");
  tree.AddSingleCheckBranch("p");
  WriteChangesOnly();
  tree.OnCheck("n");
  EXPECT_TRUE(toolkit.Took(R"(do dev:tree 2201 SetNode "m" | 31=0 | 0)"));
}

TEST_F(CheckOfOneNode, SelectedAloneOrBesideASelectionOfOthersIsOneNode) {
  Parent("p", {"m", "n"});
  Checked({"m", "n"});
  tree.AddSingleCheckBranch("p");
  WriteChangesOnly();
  Selected({"n"});
  tree.OnCheck("n");
  EXPECT_TRUE(toolkit.Took(R"(do dev:tree 2201 SetNode "m" | 31=0 | 0)"));
  Selected({"a", "b", "c"});
  tree.OnCheck("n");
  EXPECT_TRUE(toolkit.Took(R"(do dev:tree 2201 SetNode "m" | 31=0 | 0)"));
}

TEST_F(CheckOfOneNode, IsOneNodeWhenTheSelectionCannotBeRead) {
  Parent("p", {"m", "n"});
  Checked({"m", "n"});
  tree.AddSingleCheckBranch("p");
  WriteChangesOnly();
  Selected({"n", "x"});
  for (const Failure failure : {Failure::Refused, Failure::Scribbled, Failure::Ignored, Failure::NullAnswers}) {
    SCOPED_TRACE(Name(failure));
    toolkit.FailCall(1, failure);
    tree.OnCheck("n");
    EXPECT_TRUE(toolkit.Took(R"(do dev:tree 2201 SetNode "m" | 31=0 | 0)"));
  }
}

class CheckOfSeveralNodes : public ColorTreeChecks {};

TEST_F(CheckOfSeveralNodes, UnchecksAllThatTheUserMayToggle) {
  Selected({"a", "n", "b"});
  Locked("b");
  ListenToChanges();
  changed = {"before"};
  tree.OnCheck("n");
  EXPECT_TRUE(toolkit.Took(R"(
    retrieve dev:tree | 72->["a" "n" "b"] | 0
    do dev:tree 2203 InquireNode "n" | 177->0 31->0 | 0
    do dev:tree 2202 GetNode "a" | 544->1 | 0
    do dev:tree 2201 SetNode "a" | 31=0 | 0
    do dev:tree 2202 GetNode "n" | 544->1 | 0
    do dev:tree 2201 SetNode "n" | 31=0 | 0
    do dev:tree 2202 GetNode "b" | 544->0 | 0
  )"));
  EXPECT_EQ(spy.TakeReasons(), Reasons{2});
  EXPECT_EQ(changed, Names{});
}

TEST_F(CheckOfSeveralNodes, TakesANodeAsLockedWhenTheToolkitCannotSay) {
  Selected({"a", "n"});
  toolkit.When(Doing(2202, "a").With(544)).Refuse().Scribble();
  WriteChangesOnly();
  tree.OnCheck("n");
  EXPECT_TRUE(toolkit.Took(R"(do dev:tree 2201 SetNode "n" | 31=0 | 0)"));
}

TEST_F(CheckOfSeveralNodes, ChecksTheOthersThatTheUserMayToggle) {
  Parent("p", {"a", "n", "b", "c"});
  Selected({"a", "n", "b", "c"});
  Checked({"n"});
  Locked("b");
  tree.OnCheck("n");
  EXPECT_TRUE(toolkit.Took(R"(
    retrieve dev:tree | 72->["a" "n" "b" "c"] | 0
    do dev:tree 2203 InquireNode "n" | 177->0 31->1 | 0
    do dev:tree 2202 GetNode "n" | 283->"p" | 0
    free 283 "p" | 0
    do dev:tree 2202 GetNode "a" | 544->1 | 0
    do dev:tree 2202 GetNode "a" | 283->"p" | 0
    free 283 "p" | 0
    do dev:tree 2202 GetNode "b" | 544->0 | 0
    do dev:tree 2202 GetNode "c" | 544->1 | 0
    do dev:tree 2202 GetNode "c" | 283->"p" | 0
    free 283 "p" | 0
    do dev:tree 2201 SetNode "a" | 31=1 | 0
    do dev:tree 2201 SetNode "c" | 31=1 | 0
  )"));
}

TEST_F(CheckOfSeveralNodes, LeavesOneOfABranchTheToggledNode) {
  Parent("p", {"a", "b", "c", "d"});
  Selected({"a", "b", "c"});
  Checked({"b", "d"});
  tree.AddSingleCheckBranch("p");
  WriteChangesOnly();
  tree.OnCheck("b");
  EXPECT_TRUE(toolkit.Took(R"(do dev:tree 2201 SetNode "d" | 31=0 | 0)"))
      << "a and c stay unchecked, d was the branch's checked node";
}

TEST_F(CheckOfSeveralNodes, TakesTheFirstSelectedOfEachOtherBranch) {
  Parent("z", {"z1", "z2"});
  Parent("y", {"y1", "y2", "y3"});
  Parent("p", {"n"});
  Selected({"z2", "n", "y2", "z1", "y1", "n"});
  Checked({"n", "z1", "y3"});
  for (const char* branch : {"z", "y"}) tree.AddSingleCheckBranch(branch);
  WriteChangesOnly();
  tree.OnCheck("n");
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2201 SetNode "y3" | 31=0 | 0
    do dev:tree 2201 SetNode "z1" | 31=0 | 0
    do dev:tree 2201 SetNode "z2" | 31=1 | 0
    do dev:tree 2201 SetNode "y2" | 31=1 | 0
    do dev:tree 2201 SetNode "n" | 31=1 | 0
  )")) << "branches in the order of their names, nodes in the order of the selection; n's second place is another node";
}

TEST_F(CheckOfSeveralNodes, ALockedNodeIsNoChoiceOfItsBranch) {
  Parent("z", {"z1", "z2"});
  Selected({"z1", "n", "z2"});
  Checked({"n"});
  Locked("z1");
  tree.AddSingleCheckBranch("z");
  WriteChangesOnly();
  tree.OnCheck("n");
  EXPECT_TRUE(toolkit.Took(R"(do dev:tree 2201 SetNode "z2" | 31=1 | 0)"));
}

TEST_F(CheckOfSeveralNodes, InAPartialStateChangesNothingAndTells) {
  Selected({"a", "n"});
  CheckState("n", 1, 1);
  ListenToChanges();
  tree.OnCheck("n");
  EXPECT_TRUE(toolkit.Took(R"(
    retrieve dev:tree | 72->["a" "n"] | 0
    do dev:tree 2203 InquireNode "n" | 177->1 31->1 | 0
  )"));
  EXPECT_EQ(spy.TakeReasons(), Reasons{2});
}

TEST_F(CheckOfSeveralNodes, PassesNullNamesOver) {
  toolkit.When(Retrieving(72)).Give(72, {nullptr, "n", nullptr, "a"});
  WriteChangesOnly();
  tree.OnCheck("n");
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2201 SetNode "n" | 31=0 | 0
    do dev:tree 2201 SetNode "a" | 31=0 | 0
  )"));
}

TEST_F(CheckOfSeveralNodes, KeepsANameThatPointsIntoTheListOfChanges) {
  Selected({"a", "a-name-that-is-too-long-for-a-small-string"});
  ListenToChanges();
  changed = {"a-name-that-is-too-long-for-a-small-string"};
  WriteChangesOnly();
  tree.OnCheck(changed[0].c_str());
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2201 SetNode "a" | 31=0 | 0
    do dev:tree 2201 SetNode "a-name-that-is-too-long-for-a-small-string" | 31=0 | 0
  )"));
}

TEST_F(CheckOfSeveralNodes, ReachesTheTreeThroughTheCallback) {
  tree.Init(mainframe);
  ListenToChanges();
  toolkit.When(Retrieving(346)).Give(346, "n");
  Selected({"a", "n"});
  toolkit.TakeLines();
  WriteChangesOnly();
  EXPECT_EQ(toolkit.Fire("tree", 7), 0);
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2201 SetNode "a" | 31=0 | 0
    do dev:tree 2201 SetNode "n" | 31=0 | 0
  )"));
  EXPECT_EQ(spy.TakeReasons(), Reasons{2});
}

}  // namespace
}  // namespace color_tests
