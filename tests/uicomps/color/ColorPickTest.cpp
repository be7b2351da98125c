#include <tests/uicomps/color/ColorTreeWire.h>

#include <memory>

namespace color_tests {
namespace {

/// A tree that has been told its main frame; what `Init` asks is not written.
class ColorPick : public ColorTreeWire {
 protected:
  ColorPick() {
    tree.Init(mainframe);
    toolkit.TakeLines();
  }
  static oxcore::ColorPickerRequest TheRequest() {
    const auto requests = oxcore::TakeColorPickerRequests();
    EXPECT_EQ(requests.size(), 1u);
    return requests.empty() ? oxcore::ColorPickerRequest{} : requests.front();
  }
  /// Through a name of its own, since the overload for a list is not meant.
  void Ask(const char* node) { tree.ChangeNodeColor(node); }
};

TEST_F(ColorPick, AsksWithTheNodesColorOnTheMainFrame) {
  Node("n", "root", {}, 5);
  Ask("n");
  const oxcore::ColorPickerRequest request = TheRequest();
  EXPECT_EQ(request.parent, mainframe);
  EXPECT_EQ(request.title, L"");
  EXPECT_EQ(request.initialColor, 5u);
}

TEST_F(ColorPick, CancelledChangesNothingAndCallsNobody) {
  Node("n", "root", {}, 5);
  ListenToChanges();
  changed = {"before"};
  Ask("n");
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2202 GetNode "n" | 282->"t" | 0
    free 282 "t" | 0
    do dev:tree 2203 InquireNode "n" | 260->0x5 | 0
  )"));
  EXPECT_EQ(spy.TakeReasons(), Reasons{});
  EXPECT_EQ(changed, Names{"before"});
}

TEST_F(ColorPick, GoesDownAndUpAndTells) {
  Node("root", "", {"n"}, 7);
  Node("n", "root", {}, 5);
  ListenToChanges();
  changed = {"before"};
  oxcore::QueueColorAnswer(7);
  toolkit.When(Doing(2033, "n")).Run([this](const uiox::Call&) { Node("n", "root", {}, 7); });
  spy.action = [this] { EXPECT_EQ(changed, Names{"n"}) << "the list is there before the handler is called"; };
  Ask("n");
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2202 GetNode "n" | 282->"t" | 0
    free 282 "t" | 0
    do dev:tree 2203 InquireNode "n" | 260->0x5 | 0
    do dev:tree 2202 GetNode "n" | 284->[] | 0
    do dev:tree 2243 NodeTypeExists "color_square.png_7" ->1 | 0
    do dev:tree 2033 ChangeNode "n" | 8="color_square.png_7" 1024=0x7 | 0
    do dev:tree 2202 GetNode "n" | 283->"root" | 0
    free 283 "root" | 0
    do dev:tree 2202 GetNode "root" | 284->["n"] | 0
    free 284 ["n"] | 0
    do dev:tree 2203 InquireNode "n" | 260->0x7 | 0
    do dev:tree 2203 InquireNode "root" | 260->0x7 | 0
  )"));
  EXPECT_EQ(spy.TakeReasons(), Reasons{1});
  EXPECT_EQ(changed, Names{"n"});
}

TEST_F(ColorPick, SparesAColorlessNode) {
  toolkit.When(Doing(2202, "n")).Give(282, "colorless");
  ListenToChanges();
  oxcore::QueueColorAnswer(7);
  Ask("n");
  EXPECT_TRUE(oxcore::TakeColorPickerRequests().empty());
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2202 GetNode "n" | 282->"colorless" | 0
    free 282 "colorless" | 0
  )"));
  EXPECT_EQ(spy.TakeReasons(), Reasons{});
}

TEST_F(ColorPick, HandsANullNodeOnAsItIs) {
  ListenToChanges();
  oxcore::QueueColorAnswer(7);
  tree.OnActivate(nullptr);
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2202 GetNode null | 282->null | 0
    free 282 null | 0
    do dev:tree 2203 InquireNode null | 260->0xffffffff | 0
    do dev:tree 2202 GetNode null | 283->null | 0
    free 283 null | 0
  )"));
  EXPECT_EQ(spy.TakeReasons(), Reasons{1});
  EXPECT_EQ(changed, Names{""});
}

TEST_F(ColorPick, WorksWithoutListener) {
  Node("n", "root", {}, 5);
  oxcore::QueueColorAnswer(7);
  WriteChangesOnly();
  Ask("n");
  EXPECT_TRUE(toolkit.Took(R"(do dev:tree 2033 ChangeNode "n" | 8="color_square.png_7" 1024=0x7 | 0)"));
}

TEST_F(ColorPick, TellsAHandlerWithoutList) {
  Node("n", "root", {}, 5);
  tree.SetOnDirtyHandler(DirtySpy::Handler, &spy, nullptr);
  oxcore::QueueColorAnswer(7);
  Ask("n");
  EXPECT_EQ(spy.TakeReasons(), Reasons{1});
}

TEST_F(ColorPick, LeavesTheListAloneWithoutHandler) {
  Node("n", "root", {}, 5);
  tree.SetOnDirtyHandler(nullptr, nullptr, &changed);
  changed = {"before"};
  oxcore::QueueColorAnswer(7);
  Ask("n");
  EXPECT_EQ(changed, Names{"before"});
}

TEST_F(ColorPick, KeepsANameThatPointsIntoTheListOfChanges) {
  Node("a-name-that-is-too-long-for-a-small-string", "root", {}, 5);
  ListenToChanges();
  changed = {"a-name-that-is-too-long-for-a-small-string"};
  oxcore::QueueColorAnswer(7);
  Ask(changed[0].c_str());
  EXPECT_EQ(changed, Names{"a-name-that-is-too-long-for-a-small-string"});
}

class ColorPickForSeveral : public ColorPick {};

TEST_F(ColorPickForSeveral, AsksWithTheirCommonColor) {
  for (const char* node : {"a", "b", "c"}) Node(node, "p", {}, 5);
  tree.ChangeNodeColor(Names{"a", "b", "c"});
  EXPECT_EQ(TheRequest().initialColor, 5u);
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2203 InquireNode "a" | 260->0x5 | 0
    do dev:tree 2203 InquireNode "b" | 260->0x5 | 0
    do dev:tree 2203 InquireNode "c" | 260->0x5 | 0
  )"));
}

TEST_F(ColorPickForSeveral, AsksForNoneToo) {
  ListenToChanges();
  changed = {"before"};
  oxcore::QueueColorAnswer(7);
  tree.ChangeNodeColor(Names{});
  EXPECT_EQ(TheRequest().initialColor, kNone);
  EXPECT_TRUE(toolkit.Took(""));
  EXPECT_EQ(spy.TakeReasons(), Reasons{1});
  EXPECT_EQ(changed, Names{});
}

TEST_F(ColorPick, LetsAnotherTreeEndMeanwhile) {
  Node("n", "root", {}, 5);
  auto other = std::make_unique<ColorTree>("dev", "other");
  oxcore::SetColorPicker([&](const oxcore::ColorPickerRequest&) { return other.reset(), 7u; });
  WriteChangesOnly();
  Ask("n");
  EXPECT_TRUE(toolkit.Took(R"(do dev:tree 2033 ChangeNode "n" | 8="color_square.png_7" 1024=0x7 | 0)"));
}

TEST_F(ColorPickForSeveral, ReadsAllColorsAlsoAfterADifference) {
  Node("a", "p", {}, 5);
  Node("b", "p", {}, 6);
  Node("c", "p", {}, 5);
  tree.ChangeNodeColor(Names{"a", "b", "c"});
  const oxcore::ColorPickerRequest request = TheRequest();
  EXPECT_EQ(request.initialColor, kNone);
  EXPECT_EQ(request.parent, mainframe);
  EXPECT_EQ(request.title, L"");
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2203 InquireNode "a" | 260->0x5 | 0
    do dev:tree 2203 InquireNode "b" | 260->0x6 | 0
    do dev:tree 2203 InquireNode "c" | 260->0x5 | 0
  )"));
}

TEST_F(ColorPickForSeveral, CancelledChangesNothingAndCallsNobody) {
  Node("a", "p", {}, 5);
  ListenToChanges();
  changed = {"before"};
  tree.ChangeNodeColor(Names{"a"});
  EXPECT_EQ(spy.TakeReasons(), Reasons{});
  EXPECT_EQ(changed, Names{"before"});
  EXPECT_TRUE(toolkit.Took(R"(do dev:tree 2203 InquireNode "a" | 260->0x5 | 0)"));
}

TEST_F(ColorPickForSeveral, GoesDownAndUpForEachInOrderColorlessOnesToo) {
  Node("a", "p", {}, 5);
  Node("b", "q", {}, 5);
  toolkit.When(Doing(2202, "b")).Give(282, "colorless").Give(283, "q").Give(284, Names{});
  Node("p", "", {}, 5);
  Node("q", "", {}, 5);
  ListenToChanges();
  oxcore::QueueColorAnswer(7);
  tree.ChangeNodeColor(Names{"a", "b"});
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2203 InquireNode "a" | 260->0x5 | 0
    do dev:tree 2203 InquireNode "b" | 260->0x5 | 0
    do dev:tree 2202 GetNode "a" | 284->[] | 0
    do dev:tree 2243 NodeTypeExists "color_square.png_7" ->1 | 0
    do dev:tree 2033 ChangeNode "a" | 8="color_square.png_7" 1024=0x7 | 0
    do dev:tree 2202 GetNode "a" | 283->"p" | 0
    free 283 "p" | 0
    do dev:tree 2202 GetNode "p" | 284->[] | 0
    do dev:tree 2202 GetNode "b" | 284->[] | 0
    do dev:tree 2243 NodeTypeExists "color_square.png_7" ->1 | 0
    do dev:tree 2033 ChangeNode "b" | 8="color_square.png_7" 1024=0x7 | 0
    do dev:tree 2202 GetNode "b" | 283->"q" | 0
    free 283 "q" | 0
    do dev:tree 2202 GetNode "q" | 284->[] | 0
  )"));
  EXPECT_EQ(spy.TakeReasons(), Reasons{1});
  EXPECT_EQ(changed, (Names{"a", "b"}));
}

TEST_F(ColorPickForSeveral, TakesTheListOfChangesItself) {
  Node("a", "p", {}, 5);
  Node("b", "p", {}, 5);
  ListenToChanges();
  changed = {"a", "b"};
  oxcore::QueueColorAnswer(7);
  tree.ChangeNodeColor(changed);
  EXPECT_EQ(changed, (Names{"a", "b"}));
  EXPECT_EQ(spy.TakeReasons(), Reasons{1});
}

TEST_F(ColorPickForSeveral, NeedsNeitherHandlerNorList) {
  Node("a", "p", {}, 5);
  oxcore::QueueColorAnswer(7);
  tree.ChangeNodeColor(Names{"a"});
  tree.SetOnDirtyHandler(DirtySpy::Handler, &spy, nullptr);
  oxcore::QueueColorAnswer(8);
  tree.ChangeNodeColor(Names{"a"});
  EXPECT_EQ(spy.TakeReasons(), Reasons{1});
  tree.SetOnDirtyHandler(nullptr, nullptr, &changed);
  changed = {"before"};
  oxcore::QueueColorAnswer(9);
  tree.ChangeNodeColor(Names{"a"});
  EXPECT_EQ(changed, Names{"before"});
}

}  // namespace
}  // namespace color_tests
