#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
#include <viewer/diff/OutlineKey.h>

#include <algorithm>

namespace oxviewer {
namespace {

TEST(OutlineKey, IsTheSameFromEveryCornerAndEitherWayRound) {
  const OutlineKey key = KeyOf({{{0, 0}, {4, 0}, {4, 3}}, {}});
  EXPECT_EQ(KeyOf({{{4, 0}, {4, 3}, {0, 0}}, {}}), key);
  EXPECT_EQ(KeyOf({{{4, 3}, {4, 0}, {0, 0}}, {}}), key);
  EXPECT_NE(KeyOf({{{4, 3}, {4, 0}, {0, 1}}, {}}), key);
}

TEST(OutlineKey, PassesOverRepeatedCorners) {
  const OutlineKey key = KeyOf({{{0, 0}, {4, 0}, {4, 3}}, {}});
  EXPECT_EQ(KeyOf({{{0, 0}, {0, 0}, {4, 0}, {4, 3}, {0, 0}}, {}}), key);
}

TEST(OutlineKey, TellsArcsFromCorners) {
  EXPECT_NE(KeyOf({{{0, 0}, {2, 1}, {4, 0}}, {1}}), KeyOf({{{0, 0}, {2, 1}, {4, 0}}, {}}));
  EXPECT_EQ(KeyOf({{{0, 0}, {2, 1}, {4, 0}, {2, -5}}, {1}}), KeyOf({{{2, -5}, {4, 0}, {2, 1}, {0, 0}}, {2}}));
}

TEST(OutlineKey, OfNothingOrOnePointIsThat) {
  EXPECT_TRUE(KeyOf({}).empty());
  EXPECT_EQ(KeyOf({{{7, 7}, {7, 7}, {7, 7}}, {}}).size(), 1u);
}

// Few different corners, so that many rotations look alike for long.
RC_GTEST_PROP(OutlineKey, IsTheSameForEveryRotationAndReversal, ()) {
  const auto corners = *rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 3));
  RC_PRE(!corners.empty());
  Polygon polygon;
  for (const int corner : corners) polygon.points.push_back({corner, 0});
  const OutlineKey key = KeyOf(polygon);
  const auto shift = *rc::gen::inRange<std::size_t>(0, corners.size());
  std::rotate(polygon.points.begin(), polygon.points.begin() + static_cast<std::ptrdiff_t>(shift),
              polygon.points.end());
  RC_ASSERT(KeyOf(polygon) == key);
  std::reverse(polygon.points.begin(), polygon.points.end());
  RC_ASSERT(KeyOf(polygon) == key);
}

}  // namespace
}  // namespace oxviewer
