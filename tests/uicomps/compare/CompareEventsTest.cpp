#include <tests/uicomps/compare/CompareEvents.h>

namespace compare_tests {
namespace {

using C = CompareColorTree;

class CompareCallbacks : public CompareEvents {};

TEST_F(CompareCallbacks, GiveMinus1WithoutATree) {
  EXPECT_EQ(C::CellSelectCB(nullptr), -1);
  EXPECT_EQ(C::DimCheckActivatedCB(nullptr, nullptr), -1);
  EXPECT_EQ(C::ShowModeSelectCB(nullptr, nullptr), -1);
  EXPECT_TRUE(toolkit.Took(""));
}

TEST_F(CompareCallbacks, ReachTheTreeAndGive0) {
  EXPECT_EQ(toolkit.Fire("tree", 35), 0);
  EXPECT_TRUE(toolkit.Took("retrieve dev:tree | 233->null 232->null | 0"));
  ASSERT_TRUE(tree.OnNodeAdded(Record("x")));
  toolkit.TakeLines();
  ListenToChanges();
  EXPECT_EQ(toolkit.Fire("x_dim", 4), 0);
  EXPECT_EQ(changed, Names{"x"}) << "the control's value is the node's index";
  Clicked("n", "showMode");
  EXPECT_EQ(toolkit.Fire("tree", 35), 0);
  toolkit.When(Doing(2165, "n").Second("showMode")).Give(468, "b_show");
  EXPECT_EQ(toolkit.Fire("ShowModeOM", 3), 0);
  EXPECT_EQ(changed, Names{"n"});
  EXPECT_EQ(spy.TakeReasons(), (Reasons{1, 1}));
}

TEST_F(CompareCallbacks, CheckTellsReason2AndNothingElse) {
  ListenToChanges();
  changed = {"before"};
  tree.OnCheck("n");
  EXPECT_EQ(spy.TakeReasons(), Reasons{2});
  EXPECT_EQ(changed, Names{"before"});
  tree.SetOnDirtyHandler(nullptr, nullptr, &changed);
  tree.OnCheck("n");
  EXPECT_EQ(changed, Names{"before"});
  EXPECT_TRUE(toolkit.Took(""));
}

class DimCheck : public CompareEvents {
 protected:
  DimCheck() { ListenToChanges(); }
};

TEST_F(DimCheck, GoesDownAndUpAndTells) {
  Cells("n", "", 0, "", "", "");
  tree.OnDimCheck(1);
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2165 GetCellControl "n" "dimOverlap" | 31->0 | 0
    do dev:tree 2202 GetNode "n" | 284->["c"] | 0
    free 284 ["c"] | 0
    do dev:tree 2202 GetNode "c" | 282->"colorvis" | 0
    free 282 "colorvis" | 0
    do dev:tree 2202 GetNode "c" | 284->[] | 0
    do dev:tree 2163 SetCellControl "c" "dimOverlap" | 31=0 | 0
    do dev:tree 2163 SetCellControl "n" "dimOverlap" | 31=0 | 0
    do dev:tree 2202 GetNode "n" | 283->"top" | 0
    free 283 "top" | 0
    do dev:tree 2202 GetNode "top" | 284->["n"] | 0
    free 284 ["n"] | 0
    do dev:tree 2202 GetNode "n" | 282->"colorvis" | 0
    free 282 "colorvis" | 0
    do dev:tree 2165 GetCellControl "n" "dimOverlap" | 31->0 | 0
    do dev:tree 2165 GetCellControl "top" "dimOverlap" | 31->1 | 0
    do dev:tree 2163 SetCellControl "top" "dimOverlap" | 31=0 | 0
    do dev:tree 2202 GetNode "top" | 283->"" | 0
    free 283 "" | 0
  )"));
  EXPECT_EQ(spy.TakeReasons(), Reasons{1});
  EXPECT_EQ(changed, Names{"n"});
}

TEST_F(DimCheck, GoesDownWithAnUnknownStateToo) {
  toolkit.When(Doing(2165, "c").Second("dimOverlap")).Refuse().Scribble();
  BeBrief();
  tree.OnDimCheck(2);
  EXPECT_EQ(brief.Take(), Lined(R"(
    read c: dimOverlap
    children c
    write c: dimOverlap=4294967295
    parent c
    children n
    type c
    read c: dimOverlap
    read n: dimOverlap
    write n: dimOverlap=4294967295
    parent n
    children top
    type n
    read n: dimOverlap
    read top: dimOverlap)"));
  EXPECT_EQ(spy.TakeReasons(), Reasons{1});
}

/// A handler may end the tree as the last thing that is done with it.
class CompareEndedByItsHandler : public CompareEvents {
 protected:
  CompareEndedByItsHandler() {
    mortal = std::make_unique<C>("dev", "mortal");
    mortal->m_nodes = {"n"};
    mortal->SetOnDirtyHandler(DirtySpy::Handler, &spy, &changed);
    spy.action = [this] { mortal.reset(); };
    toolkit.When(Doing(2165, "n").Second("showMode")).Give(468, "b_show");
    Clicked("n", "a");
  }
  std::unique_ptr<C> mortal;
};

TEST_F(CompareEndedByItsHandler, OnACheck) {
  mortal->OnCheck("n");
  EXPECT_EQ(mortal, nullptr);
}
TEST_F(CompareEndedByItsHandler, OnADimBox) {
  EXPECT_EQ(C::DimCheckActivatedCB(mortal.get(), nullptr), 0);
  EXPECT_EQ(mortal, nullptr);
}
TEST_F(CompareEndedByItsHandler, OnAChoice) {
  EXPECT_EQ(C::ShowModeSelectCB(mortal.get(), nullptr), 0);
  EXPECT_EQ(mortal, nullptr);
}
TEST_F(CompareEndedByItsHandler, OnAColor) {
  oxcore::QueueColorAnswer(8);
  EXPECT_EQ(C::CellSelectCB(mortal.get()), 0);
  EXPECT_EQ(mortal, nullptr);
}
TEST_F(CompareEndedByItsHandler, OnACancelledColor) {
  EXPECT_EQ(C::CellSelectCB(mortal.get()), 0);
  EXPECT_EQ(mortal, nullptr);
}

}  // namespace
}  // namespace compare_tests
