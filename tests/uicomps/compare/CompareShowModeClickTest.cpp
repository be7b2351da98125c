#include <tests/uicomps/compare/CompareEvents.h>

namespace compare_tests {
namespace {

class ClickOnShowMode : public CompareEvents {
 protected:
  ClickOnShowMode() {
    ListenToChanges();
    Clicked("n", "showMode");
  }
};

TEST_F(ClickOnShowMode, MovesTheMenuIntoTheCellAndTellsNobody) {
  tree.OnCellSelect();
  EXPECT_TRUE(toolkit.Took(R"(
    retrieve dev:tree | 233->"showMode" 232->"n" | 0
    do dev:tree 2162 GetCell "n" "showMode" | 2->L"<a_show>" | 0
    do dev:tree 2160 SetCell "n" "showMode" | 140="ShowModeOM" | 0
    do dev:tree 2163 SetCellControl "n" "showMode" | 468="a_show" | 0
    set_action dev:ShowModeOM 3 Select f7 &tree 1
  )"));
  EXPECT_EQ(spy.TakeReasons(), Reasons{});
}

TEST_F(ClickOnShowMode, PreselectsNoneForAMixedNode) {
  Cells("n", "<mix_show>", 1, "", "", "");
  tree.OnCellSelect();
  EXPECT_TRUE(toolkit.Took("...\ndo dev:tree 2163 SetCellControl \"n\" \"showMode\" | 468=\"none\" | 0\n..."));
}

TEST_F(ClickOnShowMode, StopsWhenTheMenuCannotBePutThere) {
  toolkit.When(Doing(2160)).Refuse();
  tree.OnCellSelect();
  EXPECT_TRUE(toolkit.Took(R"(
    retrieve dev:tree | 233->"showMode" 232->"n" | 0
    do dev:tree 2162 GetCell "n" "showMode" | 2->L"<a_show>" | 0
    do dev:tree 2160 SetCell "n" "showMode" | 140="ShowModeOM" | 0 => 1
  )"));
}

TEST_F(ClickOnShowMode, StopsWhenNothingCanBePreselected) {
  toolkit.When(Doing(2163)).Refuse();
  tree.OnCellSelect();
  EXPECT_TRUE(toolkit.Took(R"(
    ...
    do dev:tree 2163 SetCellControl "n" "showMode" | 468="a_show" | 0 => 1
  )"));
}

TEST_F(ClickOnShowMode, StopsForANodeWithoutIndex) {
  Clicked("stranger", "showMode");
  tree.OnCellSelect();
  EXPECT_TRUE(toolkit.Took(R"(
    ...
    do dev:tree 2163 SetCellControl "stranger" "showMode" | 468="none" | 0
  )"));
}

TEST_F(ClickOnShowMode, SurvivesARefusedCallback) {
  toolkit.When(test_support::Calling(uiox::Function::SetAction)).Refuse();
  tree.OnCellSelect();
  EXPECT_EQ(spy.TakeReasons(), Reasons{});
}

TEST_F(ClickOnShowMode, BindsTheMenuToTheNodeThatWasClickedLast) {
  tree.OnCellSelect();
  Clicked("c", "showMode");
  tree.OnCellSelect();
  toolkit.TakeLines();
  toolkit.When(Doing(2165, "c").Second("showMode")).Give(468, "diff_show");
  toolkit.Fire("ShowModeOM", 3);
  EXPECT_EQ(changed, Names{"c"});
}

class ChoiceOfShowMode : public CompareEvents {
 protected:
  ChoiceOfShowMode() { ListenToChanges(); }
  void Chosen(const char* node, const char* option) {
    toolkit.When(Doing(2165, node).Second("showMode")).Give(468, option);
  }
};

TEST_F(ChoiceOfShowMode, TakesTheMenuOutAndGoesDownAndUp) {
  Chosen("n", "b_show");
  spy.action = [this] { EXPECT_EQ(changed, Names{"n"}); };
  tree.OnShowModeSelect(1);
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2165 GetCellControl "n" "showMode" | 468->"b_show" | 0
    do dev:tree 2160 SetCell "n" "showMode" | 140="" | 0
    do dev:tree 2202 GetNode "n" | 284->["c"] | 0
    free 284 ["c"] | 0
    do dev:tree 2202 GetNode "c" | 282->"colorvis" | 0
    free 282 "colorvis" | 0
    do dev:tree 2202 GetNode "c" | 284->[] | 0
    do dev:tree 2160 SetCell "c" "showMode" | 2=L"<b_show>" | 0
    do dev:tree 2160 SetCell "n" "showMode" | 2=L"<b_show>" | 0
    do dev:tree 2202 GetNode "n" | 283->"top" | 0
    free 283 "top" | 0
    do dev:tree 2202 GetNode "top" | 284->["n"] | 0
    free 284 ["n"] | 0
    do dev:tree 2202 GetNode "n" | 282->"colorvis" | 0
    free 282 "colorvis" | 0
    do dev:tree 2162 GetCell "n" "showMode" | 2->L"<a_show>" | 0
    do dev:tree 2162 GetCell "top" "showMode" | 2->L"<a_show>" | 0
  )"));
  EXPECT_EQ(spy.TakeReasons(), Reasons{1});
  EXPECT_EQ(changed, Names{"n"});
}

TEST_F(ChoiceOfShowMode, OfNothingOnlyTakesTheMenuOut) {
  changed = {"before"};
  for (const char* option : {static_cast<const char*>(nullptr), "", "none"}) {
    Chosen("n", option);
    BeBrief();
    tree.OnShowModeSelect(1);
    EXPECT_EQ(brief.Take(), "read n: showMode.468\nwrite n: showMode.140=\n");
  }
  EXPECT_EQ(spy.TakeReasons(), Reasons{});
  EXPECT_EQ(changed, Names{"before"});
}

TEST_F(ChoiceOfShowMode, ThatCannotBeReadIsNone) {
  Chosen("n", "b_show");
  BeBrief();
  for (const Failure failure : {Failure::Refused, Failure::Scribbled, Failure::Ignored, Failure::NullAnswers}) {
    toolkit.FailCall(1, failure);
    tree.OnShowModeSelect(1);
    EXPECT_EQ(brief.Take(), "read n: showMode.468\nwrite n: showMode.140=\n") << Name(failure);
  }
  EXPECT_EQ(spy.TakeReasons(), Reasons{});
}

TEST_F(ChoiceOfShowMode, OfAnUnknownOptionIsMixed) {
  Chosen("c", "sideways");
  BeBrief();
  tree.OnShowModeSelect(2);
  EXPECT_EQ(brief.Take(), Lined(R"(
    read c: showMode.468
    write c: showMode.140=
    children c
    write c: showMode=<mix_show>
    parent c
    children n
    type c
    read c: showMode
    read n: showMode)"));
  EXPECT_EQ(spy.TakeReasons(), Reasons{1});
}

TEST_F(ChoiceOfShowMode, OfAnIndexBeyondTheListIsNothing) {
  tree.OnShowModeSelect(3);
  tree.OnShowModeSelect(~0ull);
  tree.OnDimCheck(3);
  tree.OnDimCheck(~0ull);
  EXPECT_TRUE(toolkit.Took(""));
  EXPECT_EQ(spy.TakeReasons(), Reasons{});
}

TEST_F(ChoiceOfShowMode, KeepsTheOptionsNameWhenTheMenuLeavesItsCell) {
  auto option = std::make_unique<std::string>("b_show");
  toolkit.When(Doing(2165, "c").Second("showMode")).Run([&](const uiox::Call& call) {
    *call.Find(468)->value.Out<const char*>() = option->c_str();
  });
  toolkit.When(Doing(2160, "c").With(140)).Run([&](const uiox::Call&) { option.reset(); });
  BeBrief();
  tree.OnShowModeSelect(2);
  EXPECT_NE(brief.Take().find("write c: showMode=<b_show>"), std::string::npos);
}

}  // namespace
}  // namespace compare_tests
