#include <gtest/gtest.h>
#include <tests/viewer/board/Texts.h>
#include <viewer/board/Geometry.h>

#include <cmath>
#include <limits>
#include <numbers>

namespace oxviewer::testing {
namespace {

constexpr Nm kMost = std::numeric_limits<Nm>::max();

TEST(Turned, QuarterTurnsAreExactAndRunCounterClockwise) {
  EXPECT_EQ(Turned({3, 1}, 0), (Point{3, 1}));
  EXPECT_EQ(Turned({3, 1}, kFullTurn / 4), (Point{1, -3}));
  EXPECT_EQ(Turned({3, 1}, kFullTurn / 2), (Point{-3, -1}));
  EXPECT_EQ(Turned({3, 1}, kFullTurn / 4 * 3), (Point{-1, 3}));
  EXPECT_EQ(Turned({kMost, -kMost}, kFullTurn / 4), (Point{-kMost, -kMost}));
}

TEST(Turned, OtherAnglesAreRounded) {
  EXPECT_EQ(Turned({1'000'000, 0}, kFullTurn / 12), (Point{866'025, -500'000}));
  EXPECT_EQ(Turned({kMost, kMost}, kFullTurn / 8 * 7), std::nullopt);
}

TEST(Shifted, StaysWithinTheRange) {
  EXPECT_EQ(Shifted({kMost - 1, 0}, {1, -kMost}), (Point{kMost, -kMost}));
  EXPECT_EQ(Shifted({kMost, 0}, {1, 0}), std::nullopt);
  EXPECT_EQ(Shifted({0, -kMost}, {0, -1}), std::nullopt);
}

TEST(ArcThrough, ThreePointsGivesCentreRadiusAndSense) {
  const auto arc = ArcThrough({1'000'000, 0}, {707'107, 707'107}, {0, 1'000'000});
  ASSERT_TRUE(arc);
  EXPECT_NEAR(arc->centerX, 0, 1);
  EXPECT_NEAR(arc->centerY, 0, 1);
  EXPECT_NEAR(arc->radius, 1'000'000, 1);
  EXPECT_NEAR(arc->start, 0, 1e-6);
  EXPECT_NEAR(arc->sweep, std::numbers::pi / 2, 1e-5);
  const auto longWay = ArcThrough({1'000'000, 0}, {-707'107, -707'107}, {0, 1'000'000});
  ASSERT_TRUE(longWay);
  EXPECT_NEAR(longWay->sweep, -1.5 * std::numbers::pi, 1e-5);
}

TEST(ArcThrough, PointsOnOneLineIsNone) {
  EXPECT_FALSE(ArcThrough({0, 0}, {5, 5}, {9, 9}));
  EXPECT_FALSE(ArcThrough({0, 0}, {0, 0}, {9, 9}));
  EXPECT_FALSE(ArcThrough({0, 0}, {9, 9}, {9, 9}));
}

TEST(ArcThrough, SameStartAndEndIsAFullCircle) {
  const auto arc = ArcThrough({0, 0}, {200, 0}, {0, 0});
  ASSERT_TRUE(arc);
  EXPECT_EQ(arc->centerX, 100);
  EXPECT_EQ(arc->radius, 100);
  EXPECT_NEAR(arc->sweep, 2 * std::numbers::pi, 1e-12);
}

TEST(Flattened, FollowsAnArcWithinTheTolerance) {
  Polygon half;
  half.points = {{-1'000'000, 0}, {0, -1'000'000}, {1'000'000, 0}};
  half.arcs = {1};
  const std::vector<Point> points = Flattened(half, 1000);
  ASSERT_GT(points.size(), 20u);
  EXPECT_EQ(points.front(), (Point{-1'000'000, 0}));
  EXPECT_EQ(points.back(), (Point{1'000'000, 0}));
  for (std::size_t i = 0; i + 1 < points.size(); ++i) {
    EXPECT_NEAR(std::hypot(points[i].x, points[i].y), 1'000'000, 2);
    EXPECT_LE(points[i].y, 0);
    const double middle = std::hypot((points[i].x + points[i + 1].x) / 2.0, (points[i].y + points[i + 1].y) / 2.0);
    EXPECT_GE(middle, 1'000'000 - 1002);
  }
}

TEST(Flattened, AnArcMayCloseThePolygon) {
  Polygon half;
  half.points = {{1'000'000, 0}, {-1'000'000, 0}, {0, -1'000'000}};
  half.arcs = {2};
  const std::vector<Point> points = Flattened(half, 100'000);
  ASSERT_GT(points.size(), 3u);
  EXPECT_EQ(points[1], (Point{-1'000'000, 0}));
  EXPECT_LT(points.back().y, 0);
}

TEST(Flattened, StraightArcsAreLines) {
  Polygon flat;
  flat.points = {{0, 0}, {5, 0}, {10, 0}};
  flat.arcs = {1};
  EXPECT_EQ(Flattened(flat, 0), flat.points);
}

TEST(Outline, IsThatOfTheEdge) {
  const Board board = Read(BoardText(R"(
    (gr_line (start 10 10) (end 30 10) (layer "Edge.Cuts")) (gr_line (start 0 0) (end 99 99) (layer "F.SilkS"))
    (gr_arc (start 30 10) (mid 35 15) (end 30 20) (layer "Edge.Cuts"))
    (via (at 90 90) (size 1) (net 0)))"));
  const auto box = Outline(board);
  ASSERT_TRUE(box);
  EXPECT_EQ(box->low, (Point{Mm(10), Mm(10)}));
  EXPECT_EQ(box->high, (Point{Mm(35), Mm(20)}));
}

TEST(Outline, WithoutAnEdgeIsThatOfAllItems) {
  const Board board = Read(BoardText(R"(
    (via (at 10 10) (size 2) (net 0)) (segment (start 20 20) (end 30 5) (layer "F.Cu"))
    (zone (layer "F.Cu") (polygon (pts (xy 5 6) (xy 7 8))))
    (gr_circle (center 30 30) (end 34 30) (layer "F.SilkS")))"));
  const auto box = Outline(board);
  ASSERT_TRUE(box);
  EXPECT_EQ(box->low, (Point{Mm(5), Mm(5)}));
  EXPECT_EQ(box->high, (Point{Mm(34), Mm(34)}));
  EXPECT_FALSE(Outline(Board{}));
}

}  // namespace
}  // namespace oxviewer::testing
