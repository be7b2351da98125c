// Reading: presets before, presets after a failure, whatever was written.
#include <gtest/gtest.h>
#include <tests/support/RecordingToolkit.h>
#include <uicomps/toolkit/CellCalls.h>
#include <uicomps/toolkit/ComponentCalls.h>
#include <uicomps/toolkit/DeviceCalls.h>
#include <uicomps/toolkit/ImageCalls.h>

namespace oxecad_ui::wire {
namespace {

using test_support::Doing;
using test_support::Failure;
using test_support::RecordingToolkit;
using test_support::Retrieving;

constexpr Widget kTree{"dev", "tree"};

class Presets : public testing::Test {
 protected:
  RecordingToolkit toolkit;
};

TEST_F(Presets, CountWhenTheToolkitLeavesAnAnswerAlone) {
  const auto [read, root, color, selected] = Retrieve(kTree, kRootNode, kBackgroundColor, kSelectedNodes);
  EXPECT_TRUE(read);
  EXPECT_EQ(root, nullptr);
  EXPECT_EQ(color, 0xFFFFFFFFu);
  EXPECT_EQ(selected.count, 0);
  EXPECT_EQ(selected.names, nullptr);
  EXPECT_TRUE(toolkit.Took("retrieve dev:tree | 54->null 211->4294967295 72->[] | 0"));
}

TEST_F(Presets, CountAfterAFailureWhateverWasWritten) {
  toolkit.FailAll(Failure::Scribbled);
  const auto [read, root, color, selected] = Retrieve(kTree, kRootNode, kBackgroundColor, kSelectedNodes);
  EXPECT_EQ(read.code, 1);
  EXPECT_EQ(root, nullptr);
  EXPECT_EQ(color, 0xFFFFFFFFu);
  EXPECT_EQ(selected.count, 0);
  EXPECT_EQ(selected.names, nullptr);

  const auto [asked, partly, checked, userColor] =
      InquireNode(kTree, "n", kNodePartlyChecked, kNodeCheckState, kNodeColor);
  EXPECT_FALSE(asked);
  EXPECT_EQ(partly, 0);
  EXPECT_EQ(checked, 0u);
  EXPECT_EQ(userColor, 0xFFFFFFFFu);

  EXPECT_EQ(GetCellControl(kTree, {"n", "dim"}, kControlCheckState), 0xFFFFFFFFu);
  EXPECT_EQ(GetCellControl(kTree, {"n", "show"}, kSelectedItem), nullptr);
  EXPECT_STREQ(CellLabel(kTree, {"n", "a"}), L"");
  EXPECT_EQ(ChildCount(kTree, "n"), 0);
  EXPECT_FALSE(NodeTypeExists(kTree, "type"));
  EXPECT_EQ(RootNode(kTree), nullptr);

  const auto [inquired, width, device] = Inquire(kScreenWidth, kCurrentDevice);
  EXPECT_FALSE(inquired);
  EXPECT_EQ(width, 0);
  EXPECT_EQ(device, nullptr);

  Position position{7, 7};
  Size size{7, 7};
  void* style = &size;
  EXPECT_FALSE(GetPosition(kTree, position));
  EXPECT_FALSE(GetSize(kTree, size));
  EXPECT_FALSE(BalloonStyle(7, style));
  EXPECT_EQ(position.x, 0);
  EXPECT_EQ(position.y, 0);
  EXPECT_EQ(size.width, 0);
  EXPECT_EQ(size.height, 0);
  EXPECT_EQ(style, nullptr);
}

TEST_F(Presets, OfAListCountWhereACountHasNoArray) {
  toolkit.When(Retrieving(72)).GiveNullArray(72, 3);
  const auto [read, selected] = Retrieve(kTree, kSelectedNodes);
  EXPECT_TRUE(read);
  EXPECT_EQ(selected.count, 0);
}

TEST_F(Presets, OfAListLeaveACountBelowOneAsItIs) {
  toolkit.When(Retrieving(72)).GiveNullArray(72, -3);
  const auto [read, selected] = Retrieve(kTree, kSelectedNodes);
  EXPECT_EQ(selected.count, -3);
  EXPECT_EQ(selected.begin(), selected.end());
}

TEST_F(Presets, UserValuesHaveAPlaceAsWideAsAPointer) {
  int far = 0;
  toolkit.When(Doing(2203)).Give(260, static_cast<void*>(&far));
  const auto [read, value] = InquireNode(kTree, "n", kNodeColor);
  EXPECT_TRUE(read);
  EXPECT_EQ(value, reinterpret_cast<std::uintptr_t>(&far));
}

TEST_F(Presets, NullLabelsOfCellsAreEmpty) {
  EXPECT_STREQ(CellLabel(kTree, {"n", "a"}), L"");
  toolkit.When(Doing(2162)).Give(2, L"#ff0000");
  EXPECT_STREQ(CellLabel(kTree, {"n", "a"}), L"#ff0000");
}

}  // namespace
}  // namespace oxecad_ui::wire
