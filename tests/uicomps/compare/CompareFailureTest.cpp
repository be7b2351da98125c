// Every call of every operation goes wrong in every way.
#include <tests/support/Soundness.h>
#include <tests/support/TreeFixture.h>
#include <tests/uicomps/compare/CompareWire.h>

namespace compare_tests {
namespace {

using namespace test_support;
using C = CompareColorTree;

/// A fresh suite before each run.
void Begin(RecordingToolkit&) {
  ForgetIcons();
  oxcore::ResetColorPicker();
  uiox::Suite::Get().Reset();
  Plant(uiox::Suite::Get().ObtainTree("dev", "tree", {"a", "b", "overlap", "showMode", "dimOverlap"}), R"(
    root   <heading>
      top  <colorvis>)");
}

C::CompareNodeInfo Record(const char* name) {
  C::CompareNodeInfo info;
  info.name = name;
  info.type = "colorvis";
  info.colorA = 5;
  info.colorB = 6;
  info.colorOverlap = 7;
  info.designFlag = C::DesignBoth;
  return info;
}

void ExpectSound() { EXPECT_TRUE(IsSound(uiox::Suite::Get().ObtainTree("dev", "tree"))); }

TEST(CompareFailure, AddingMindsNoFailedCall) {
  ForEachFailure(RecordingToolkit::StandIn, Begin, [](RecordingToolkit&) {
    C tree("dev", "tree");
    tree.Init(nullptr);
    tree.AddNode(Record("top/x"));
    tree.AddNodeBefore(Record("top/y"), "top/x");
    Tree::NodeInfo heading;
    heading.name = "h";
    tree.AddNode(heading);
    ExpectSound();
  });
}

TEST(CompareFailure, ChangingMindsNoFailedCall) {
  ForEachFailure(RecordingToolkit::StandIn, Begin, [](RecordingToolkit&) {
    C tree("dev", "tree");
    tree.AddNode(Record("top/x"));
    tree.ChangeNodeInfo("top", 8, 9, 1, ShowMode::Diff, Tree::Checked, C::DesignBoth);
    tree.ChildInfoChanged("root");
    Tree::TreeInfo info;
    tree.GetTreeInfo(info, C::ColorNodeFilter(), false);
    ExpectSound();
  });
}

TEST(CompareFailure, EventsMindNoFailedCall) {
  ForEachFailure(RecordingToolkit::StandIn, Begin, [](RecordingToolkit&) {
    C tree("dev", "tree");
    DirtySpy spy;
    Names changed;
    tree.Init(nullptr);
    tree.SetOnDirtyHandler(DirtySpy::Handler, &spy, &changed);
    tree.AddNode(Record("top/x"));
    const uiox::Driver user("dev");
    for (const char* column : {"a", "b", "overlap", "showMode"}) {
      oxcore::QueueColorAnswer(8);
      user.ClickCell("tree", "top/x", column);
    }
    user.ChooseCellOption("tree", "top/x", "showMode", "diff_show");
    user.ToggleCellCheck("tree", "top/x", "dimOverlap");
    user.Check("tree", "top/x");
    // The handlers themselves, whether or not their callbacks could be registered.
    tree.OnCellSelect();
    tree.OnShowModeSelect(0);
    tree.OnDimCheck(0);
    tree.OnCheck("top/x");
    ExpectSound();
  });
}

TEST(CompareFailure, NoToolkitAtAllIsSurvived) {
  for (const Failure failure : kAllFailures) {
    SCOPED_TRACE(Name(failure));
    RecordingToolkit toolkit;
    Begin(toolkit);
    toolkit.FailAll(failure);
    C tree("dev", "tree");
    tree.Init(nullptr);
    tree.AddNode(Record("x"));
    tree.ChangeNodeInfo("x", 8, 9, 1, ShowMode::Diff, Tree::Checked, C::DesignBoth);
    tree.OnNodeAdded(Record("y"));
    tree.OnCellSelect();
    tree.OnShowModeSelect(0);
    tree.OnDimCheck(0);
  }
}

}  // namespace
}  // namespace compare_tests
