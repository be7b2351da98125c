#include <uitoolsox/BalloonStyle.h>

#include <gtest/gtest.h>
#include <tests/support/RecordingToolkit.h>
#include <uicomps/toolkit/Toolkit.h>

#include <cstdint>
#include <ostream>
#include <set>

using uitoolsox::BalloonStyle;

namespace {

const BalloonStyle* StyleOf(unsigned char quadrant) {
  const BalloonStyle* style = nullptr;
  EXPECT_EQ(uit_SkinGetBalloonDlgStyle(quadrant, &style, 0), 0);
  return style;
}

struct Row {
  const char* name;
  unsigned char quadrant;
  bool arrowAtTop;
  bool arrowAtLeft;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }

class BalloonStyleOf : public testing::TestWithParam<Row> {};

}  // namespace

// The balloon stands below an anchor in the upper half and above one in the lower half, and its edge lies 24 pixels
// beside the anchor's centre: the left edge in the left half, the right edge in the right half.
TEST_P(BalloonStyleOf, PointsAtTheAnchor) {
  const BalloonStyle* const style = StyleOf(GetParam().quadrant);
  ASSERT_NE(style, nullptr);
  EXPECT_EQ(style->quadrant, GetParam().quadrant);
  EXPECT_EQ(style->arrowAtTop, GetParam().arrowAtTop);
  EXPECT_EQ(style->arrowAtLeft, GetParam().arrowAtLeft);
  EXPECT_EQ(style->arrowInset, 24);
}

INSTANTIATE_TEST_SUITE_P(BalloonStyle, BalloonStyleOf,
                         testing::Values(Row{"left_upper", 1, true, true}, Row{"right_upper", 3, true, false},
                                         Row{"left_lower", 7, false, true}, Row{"right_lower", 9, false, false}),
                         [](const testing::TestParamInfo<Row>& row) { return row.param.name; });

TEST(BalloonStyle, IsRefusedForAnythingButAQuadrant) {
  for (int selector = 0; selector <= 255; ++selector) {
    if (std::set<int>{1, 3, 7, 9}.count(selector)) continue;
    std::intptr_t style = 0x5a5a5a5a;
    EXPECT_NE(uit_SkinGetBalloonDlgStyle(static_cast<unsigned char>(selector), &style, 0), 0) << selector;
    EXPECT_EQ(style, 0x5a5a5a5a) << selector;
  }
}

TEST(BalloonStyle, IsRefusedWithoutAPlaceForIt) { EXPECT_NE(uit_SkinGetBalloonDlgStyle(1, nullptr, 0), 0); }

TEST(BalloonStyle, IsTheSameHandleEachTime) {
  EXPECT_EQ(StyleOf(9), StyleOf(9));
  EXPECT_NE(StyleOf(9), StyleOf(7));
}

TEST(BalloonStyle, IsAskedForThroughTheToolkitInPlace) {
  using test_support::Calling;
  test_support::RecordingToolkit toolkit(test_support::RecordingToolkit::StandIn);
  EXPECT_NE(StyleOf(1), nullptr);
  toolkit.When(Calling(uiox::Function::BalloonStyle)).Refuse(5);
  std::intptr_t style = 0;
  EXPECT_EQ(uit_SkinGetBalloonDlgStyle(1, &style, 0), 5);
  EXPECT_EQ(style, 0);
  EXPECT_EQ(toolkit.Lines().size(), 2u);
}
