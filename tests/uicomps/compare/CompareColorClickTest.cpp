#include <tests/uicomps/compare/CompareEvents.h>

namespace compare_tests {
namespace {

class ClickOnColor : public CompareEvents {
 protected:
  ClickOnColor() { ListenToChanges(); }
};

TEST_F(ClickOnColor, AsksGoesDownAndUpClearsTheCellAndTells) {
  Clicked("n", "b");
  oxcore::QueueColorAnswer(8);
  spy.action = [this] {
    EXPECT_EQ(changed, Names{"n"});
    EXPECT_EQ(toolkit.Lines().back(), "modify dev:tree | 233=\"\" 232=\"\" | 0");
  };
  tree.OnCellSelect();
  EXPECT_TRUE(toolkit.Took(R"(
    retrieve dev:tree | 233->"b" 232->"n" | 0
    do dev:tree 2162 GetCell "n" "b" | 2->L"<img src=\"color_square.png_6\">" | 0
    do dev:tree 2202 GetNode "n" | 284->["c"] | 0
    free 284 ["c"] | 0
    do dev:tree 2202 GetNode "c" | 282->"colorvis" | 0
    free 282 "colorvis" | 0
    do dev:tree 2202 GetNode "c" | 284->[] | 0
    do dev:tree 2160 SetCell "c" "b" | 2=L"<img src=\"color_square.png_8\">" | 0
    do dev:tree 2160 SetCell "n" "b" | 2=L"<img src=\"color_square.png_8\">" | 0
    do dev:tree 2202 GetNode "n" | 283->"top" | 0
    free 283 "top" | 0
    do dev:tree 2202 GetNode "top" | 284->["n"] | 0
    free 284 ["n"] | 0
    do dev:tree 2202 GetNode "n" | 282->"colorvis" | 0
    free 282 "colorvis" | 0
    do dev:tree 2162 GetCell "n" "b" | 2->L"<img src=\"color_square.png_6\">" | 0
    do dev:tree 2162 GetCell "top" "b" | 2->L"<img src=\"color_square.png_6\">" | 0
    modify dev:tree | 233="" 232="" | 0
  )"));
  const auto requests = oxcore::TakeColorPickerRequests();
  ASSERT_EQ(requests.size(), 1u);
  EXPECT_EQ(requests[0].parent, mainframe);
  EXPECT_EQ(requests[0].title, L"");
  EXPECT_EQ(requests[0].initialColor, 6u);
  EXPECT_EQ(spy.TakeReasons(), Reasons{1});
}

TEST_F(ClickOnColor, CancelledStillClearsTheCellAndTells) {
  for (const char* column : {"a", "b", "overlap"}) {
    Clicked("n", column);
    tree.OnCellSelect();
    EXPECT_EQ(spy.TakeReasons(), Reasons{1});
    EXPECT_EQ(changed, Names{"n"});
    EXPECT_EQ(toolkit.Lines().size(), 3u);
    EXPECT_TRUE(toolkit.Took("...\nmodify dev:tree | 233=\"\" 232=\"\" | 0"));
  }
}

TEST_F(ClickOnColor, BeginsWithNoColorForAMixedOrEmptyCell) {
  for (const char* label : {"<mix>", ""}) {
    Cells("n", "", 0, label, label, label);
    Clicked("n", "overlap");
    tree.OnCellSelect();
    EXPECT_EQ(oxcore::TakeColorPickerRequests().at(0).initialColor, kNone);
  }
}

TEST_F(ClickOnColor, WorksWithoutListener) {
  tree.SetOnDirtyHandler(nullptr, nullptr, &changed);
  changed = {"before"};
  Clicked("c", "a");
  oxcore::QueueColorAnswer(8);
  BeBrief();
  tree.OnCellSelect();
  EXPECT_EQ(brief.Take(), Lined(R"(
    read c: a
    children c
    write c: a=8
    parent c
    children n
    type c
    read c: a
    read n: a)"));
  EXPECT_EQ(changed, Names{"before"});
}

TEST_F(ClickOnColor, OfANodeWithoutNameSumsUpAboveIt) {
  Clicked("", "a");
  oxcore::QueueColorAnswer(8);
  BeBrief();
  tree.OnCellSelect();
  EXPECT_EQ(brief.Take(), "read : a\nparent \n");
  EXPECT_EQ(spy.TakeReasons(), Reasons{1});
  EXPECT_EQ(changed, Names{""});
}

TEST_F(ClickOnColor, InAnyOtherColumnIsNothing) {
  for (const char* column : {"dimOverlap", "", "A", "label", "showmode", "overlapp"}) {
    Clicked("n", column);
    tree.OnCellSelect();
    EXPECT_EQ(toolkit.TakeLines().size(), 1u) << column;
  }
  EXPECT_EQ(spy.TakeReasons(), Reasons{});
}

TEST_F(ClickOnColor, ThatCannotBeReadIsNothing) {
  Clicked("n", "a");
  for (const Failure failure : {Failure::Refused, Failure::Scribbled, Failure::Ignored, Failure::NullAnswers}) {
    toolkit.FailCall(1, failure);
    tree.OnCellSelect();
    EXPECT_EQ(toolkit.TakeLines().size(), 1u) << Name(failure);
  }
  EXPECT_EQ(spy.TakeReasons(), Reasons{});
}

TEST_F(ClickOnColor, KeepsTheNamesOfTheCellWhileThePickerIsOpen) {
  auto node = std::make_unique<std::string>("c");
  auto column = std::make_unique<std::string>("a");
  toolkit.When(Retrieving(233)).Run([&](const uiox::Call& call) {
    *call.Find(233)->value.Out<const char*>() = column->c_str();
    *call.Find(232)->value.Out<const char*>() = node->c_str();
  });
  oxcore::SetColorPicker([&](const oxcore::ColorPickerRequest&) {
    node.reset();
    column.reset();
    return 8u;
  });
  BeBrief();
  tree.OnCellSelect();
  EXPECT_NE(brief.Take().find("write c: a=8"), std::string::npos);
  EXPECT_EQ(changed, Names{"c"});
}

}  // namespace
}  // namespace compare_tests
