#include <viewer/window/BoardGeometry.h>
#include <viewer/window/CompareScene.h>
#include <viewer/window/FrameRenderer.h>
#include <viewer/window/HitTest.h>
#include <viewer/window/Preferences.h>
#include <viewer/window/Shapes.h>
#include <viewer/window/SpatialGrid.h>

#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
#include <tests/viewer/trees/Boards.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

namespace oxviewer {
namespace {

using testing::SmallBoard;

// --- Finding items ---------------------------------------------------------------------------------------------------

RC_GTEST_PROP(SpatialGrid, FindsEverythingThatTouchesAnArea, ()) {
  const auto box = rc::gen::apply([](int x, int y, int width, int height) { return QRectF(x, y, width, height); },
                                  rc::gen::inRange(-50, 50), rc::gen::inRange(-50, 50), rc::gen::inRange(0, 30),
                                  rc::gen::inRange(0, 3));
  const auto boxes = *rc::gen::container<std::vector<QRectF>>(box);
  const QRectF area = *box;
  const SpatialGrid grid(boxes);
  std::vector<std::uint32_t> found{77};
  grid.Find(area, found);
  for (std::size_t i = 1; i < found.size(); ++i) RC_ASSERT(found[i - 1] < found[i]);
  for (std::uint32_t i = 0; i < boxes.size(); ++i) {
    const QRectF& item = boxes[i];
    const bool touches = item.left() <= area.right() && item.right() >= area.left() && item.top() <= area.bottom() &&
                         item.bottom() >= area.top();
    if (touches) RC_ASSERT(std::find(found.begin(), found.end(), i) != found.end());
  }
  for (const std::uint32_t item : found) RC_ASSERT(item < boxes.size());
}

// Lengths and widths from a point to everything, so that squares of all sizes are in use.
TEST(SpatialGrid, FindsBoxesOfAllSizes) {
  std::vector<QRectF> boxes;
  for (int i = 0; i < 3000; ++i) {
    const double side = std::ldexp(1.0, i % 11) - 1;
    boxes.emplace_back(i * 37 % 1024, i * 101 % 1024, i % 3 == 0 ? 0 : side, i % 5 == 0 ? 0 : side);
  }
  const SpatialGrid grid(boxes);
  for (const QRectF& area : {QRectF(0, 0, 0, 0), QRectF(500, 500, 1, 1), QRectF(1000, 3, 90, 400),
                             QRectF(-9, -9, 5000, 5000), QRectF(2046, 2046, 1, 1)}) {
    std::vector<std::uint32_t> found;
    grid.Find(area, found);
    EXPECT_TRUE(std::is_sorted(found.begin(), found.end()));
    for (std::uint32_t i = 0; i < boxes.size(); ++i) {
      const QRectF& item = boxes[i];
      const bool touches = item.left() <= area.right() && item.right() >= area.left() && item.top() <= area.bottom() &&
                           item.bottom() >= area.top();
      EXPECT_TRUE(!touches || std::binary_search(found.begin(), found.end(), i)) << i;
    }
  }
}

TEST(SpatialGrid, TakesNoMoreRoomForLargeBoxesThanForSmallOnes) {
  std::vector<QRectF> boxes;
  for (int i = 0; i < 10000; ++i) boxes.emplace_back(i % 100, i % 97, i % 3 == 0 ? 2000 : 0, 1000);
  EXPECT_LE(SpatialGrid(boxes).EntryCount(), 4 * boxes.size());
}

TEST(SpatialGrid, OfNothingFindsNothing) {
  std::vector<std::uint32_t> found{1};
  SpatialGrid(std::vector<QRectF>{}).Find(QRectF(0, 0, 1, 1), found);
  EXPECT_TRUE(found.empty());
}

TEST(SpatialGrid, FarAwayAreaFindsNothing) {
  std::vector<std::uint32_t> found;
  SpatialGrid(std::vector<QRectF>{QRectF(0, 0, 1, 1)}).Find(QRectF(100, 100, 1, 1), found);
  EXPECT_TRUE(found.empty());
}

class HitTestTest : public ::testing::Test {
 protected:
  std::optional<Hit> At(double x, double y) {
    return HitTest(*geometry_, {x, y}, 0.1, [this](LayerId layer) { return layer != hidden_; });
  }

  Board board_ = SmallBoard(R"((net 0 "") (net 1 "GND") (net 2 "VCC")
      (segment (start 0 0) (end 10 0) (width 1) (layer "F.Cu") (net 1))
      (segment (start 0 0) (end 10 0) (width 1) (layer "B.Cu") (net 2))
      (via (at 5 0) (size 2) (drill 1) (layers "F.Cu" "B.Cu") (net 2))
      (zone (net 1) (net_name "GND") (layer "F.Cu") (polygon (pts (xy -5 -5) (xy 20 -5) (xy 20 5) (xy -5 5)))
        (filled_polygon (layer "F.Cu") (pts (xy -5 -5) (xy 20 -5) (xy 20 5) (xy -5 5)))))");
  std::shared_ptr<const BoardGeometry> geometry_ = BoardGeometry::Make(board_);
  LayerId hidden_ = kNoLayer;
};

TEST_F(HitTestTest, TrackOnTopIsHit) {
  ASSERT_TRUE(At(2, 0.55));
  EXPECT_EQ(At(2, 0)->origin.net, 0);
  EXPECT_EQ(At(2, 0)->origin.kind, ItemKind::Track);
}

TEST_F(HitTestTest, HiddenLayerIsPassedOver) {
  hidden_ = 0;
  EXPECT_EQ(At(2, 0)->origin.net, 1);
}

TEST_F(HitTestTest, ViaComesBeforeTracks) { EXPECT_EQ(At(5, 0)->origin.kind, ItemKind::Via); }

TEST_F(HitTestTest, ZoneIsHitWhereNothingElseIs) {
  EXPECT_EQ(At(15, 3)->origin.kind, ItemKind::Zone);
  EXPECT_FALSE(At(30, 3));
}

// --- Shapes ----------------------------------------------------------------------------------------------------------

double AreaOf(const QPainterPath& path) {
  double area = 0;
  for (const QPolygonF& polygon : path.toFillPolygons()) {
    double twice = 0;
    for (qsizetype i = 0; i + 1 < polygon.size(); ++i) {
      twice += polygon[i].x() * polygon[i + 1].y() - polygon[i + 1].x() * polygon[i].y();
    }
    area += std::abs(twice) / 2;
  }
  return area;
}

TEST(Shapes, PiecesOfALargeAreaCoverItAndNothingElse) {
  Polygon star;
  constexpr int kPoints = 5000;
  for (int i = 0; i < kPoints; ++i) {
    const double radius = i % 2 == 0 ? 1e8 : 0.7e8;
    const double angle = 2 * std::numbers::pi * i / kPoints;
    star.points.push_back({static_cast<Nm>(radius * std::cos(angle)), static_cast<Nm>(radius * std::sin(angle))});
  }
  const std::vector<QPainterPath> pieces = PiecesOf(star);
  EXPECT_GT(pieces.size(), 10u);
  double area = 0;
  for (const QPainterPath& piece : pieces) area += AreaOf(piece);
  const double whole = kPoints * 0.5 * 100 * 70 * std::sin(2 * std::numbers::pi / kPoints);
  EXPECT_GE(area, whole - 0.01);
  EXPECT_LT(area, whole * 1.4);  // where they overlap is counted twice
  for (double x = -99.5; x < 100; x += 5.01) {
    for (double y = -99.5; y < 100; y += 5.03) {
      const double radius = std::hypot(x, y);
      if (radius > 69.9 && radius < 100.1) continue;  // among the points of the star
      const bool covered = std::any_of(pieces.begin(), pieces.end(),
                                       [&](const QPainterPath& piece) { return piece.contains(QPointF(x, y)); });
      EXPECT_EQ(covered, radius < 70) << x << ", " << y;
    }
  }
}

TEST(Shapes, PadTurnsCounterClockwise) {
  Pad pad;
  pad.size = {4'000'000, 1'000'000};
  pad.rotation = 45'000'000;
  const QPainterPath path = PadPath(pad);
  EXPECT_TRUE(path.contains(QPointF(1, -1)));
  EXPECT_FALSE(path.contains(QPointF(1, 1)));
}

TEST(Shapes, OvalPadHasRoundEnds) {
  Pad pad;
  pad.shape = PadShape::Oval;
  pad.size = {4'000'000, 2'000'000};
  const QPainterPath path = PadPath(pad);
  EXPECT_TRUE(path.contains(QPointF(1.9, 0)));
  EXPECT_FALSE(path.contains(QPointF(1.9, 0.9)));
}

TEST(Shapes, OffsetMovesTheCopperAndNotTheHole) {
  Pad pad;
  pad.size = {2'000'000, 2'000'000};
  pad.offset = {3'000'000, 0};
  pad.drill = {500'000, 500'000};
  EXPECT_TRUE(PadPath(pad).contains(QPointF(3, 0)));
  EXPECT_FALSE(PadPath(pad).contains(QPointF(0, 0)));
  EXPECT_TRUE(HolePath(pad).contains(QPointF(0, 0)));
}

// --- The viewport ----------------------------------------------------------------------------------------------------

RC_GTEST_PROP(Viewport, PlaceAndPixelBelongTogether, (int x, int y, bool fromBack)) {
  Viewport viewport{{x % 100 / 1.0, y % 100 / 1.0}, 3.5, fromBack, {801, 600}};
  const QPointF place(x % 37, y % 41);
  const QPointF back = viewport.ToBoard(viewport.ToPixels().map(place));
  RC_ASSERT(std::abs(back.x() - place.x()) < 1e-6 && std::abs(back.y() - place.y()) < 1e-6);
}

// --- Pictures --------------------------------------------------------------------------------------------------------

TEST(BoardGeometry, LinesOfLessThanNoWidthAreHairs) {
  const auto geometry = BoardGeometry::Make(SmallBoard(R"(
    (segment (start 0 0) (end 0 0) (width -500) (layer "F.Cu"))
    (arc (start 0 0) (mid 1 1) (end 2 0) (width -3) (layer "F.Cu"))
    (gr_line (start 0 0) (end 1 0) (width -5) (layer "F.Cu")))"));
  const LayerGeometry& layer = geometry->layers.front();
  ASSERT_GT(layer.lines.size(), 3u);
  for (const LineItem& line : layer.lines) EXPECT_EQ(line.width, 0);
  std::vector<std::uint32_t> found;
  layer.grid.Find(QRectF(-1, -1, 4, 4), found);
  EXPECT_EQ(found.size(), layer.lines.size());
}

TEST(FrameRenderer, DeliversTheLatestScene) {
  const auto geometry = BoardGeometry::Make(SmallBoard(""));
  BoardStyle style;
  style.layers.resize(geometry->layers.size());
  FrameRenderer renderer;
  QSignalSpy ready(&renderer, &FrameRenderer::FrameReady);
  std::shared_ptr<const Scene> last;
  std::vector<std::shared_ptr<const Scene>> delivered;
  QObject::connect(&renderer, &FrameRenderer::FrameReady, &renderer,
                   [&](const Frame& frame) { delivered.push_back(frame.scene); });
  Viewport viewport;
  viewport.size = {50, 40};
  for (int i = 0; i < 20; ++i) {
    last = std::make_shared<BoardScene>(geometry, style);
    renderer.Request(last, viewport, 1);
  }
  QTRY_VERIFY2_WITH_TIMEOUT(!delivered.empty(), "no picture came", 20000);
  EXPECT_EQ(delivered.back(), last);
}

TEST(FrameRenderer, EndsWhileItPaints) {
  const auto geometry = BoardGeometry::Make(SmallBoard(""));
  BoardStyle style;
  style.layers.resize(geometry->layers.size());
  Viewport viewport;
  viewport.size = {2000, 2000};
  auto renderer = std::make_unique<FrameRenderer>();
  renderer->Request(std::make_shared<BoardScene>(geometry, style), viewport, 1);
  renderer.reset();
  QCoreApplication::processEvents();
}

TEST(FrameRenderer, PictureHasThePixelsOfTheDevice) {
  const auto geometry = BoardGeometry::Make(SmallBoard(""));
  BoardStyle style;
  style.layers.resize(geometry->layers.size());
  Viewport viewport;
  viewport.size = {50, 40};
  const Frame frame = FrameRenderer::Render(std::make_shared<BoardScene>(geometry, style), viewport, 2);
  EXPECT_EQ(frame.image.size(), QSize(100, 80));
}

TEST(Scene, SeamsOfALargeZoneDoNotShow) {
  std::string points;
  for (int i = 0; i < 2000; ++i) {
    const double angle = 2 * std::numbers::pi * i / 2000;
    points += "(xy " + std::to_string(50 * std::cos(angle)) + " " + std::to_string(50 * std::sin(angle)) + ")";
  }
  const Board board = SmallBoard("(net 0 \"\") (zone (net 0) (net_name \"\") (layer \"F.Cu\") (polygon (pts " + points +
                                 ")) (filled_polygon (layer \"F.Cu\") (pts " + points + ")))");
  const auto geometry = BoardGeometry::Make(board);
  ASSERT_GT(geometry->layers[0].areas.size(), 4u);
  BoardStyle style;
  style.view.grid = 0;
  style.layers.resize(geometry->layers.size());
  style.layers[0].color = qRgb(0x80, 0x40, 0x20);
  Viewport viewport{{0.013, 0.017}, 5.37, false, {300, 300}};
  const QImage image = FrameRenderer::Render(std::make_shared<BoardScene>(geometry, style), viewport, 1).image;
  const QRgb inside = image.pixel(40, 50);
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      const QRgb pixel = image.pixel(x, y);
      ASSERT_LE(std::abs(qRed(pixel) - qRed(inside)), 2) << x << ", " << y;
    }
  }
}

TEST(LengthText, HasTheUnitAndADecimalPoint) {
  EXPECT_EQ(LengthText(1234.5678, DisplayUnit::Millimetre), "1234.568 mm");
  EXPECT_EQ(LengthText(25.4, DisplayUnit::Inch), "1.0000 in");
  EXPECT_EQ(LengthText(-2.54, DisplayUnit::Mil), "-100.0 mil");
}

TEST(Theme, IsKeptByItsName) {
  for (const Theme theme : {Theme::System, Theme::Light, Theme::Dark}) EXPECT_EQ(ThemeNamed(NameOf(theme)), theme);
  EXPECT_EQ(ThemeNamed("pink"), Theme::System);
}

double Luminance(const QColor& color) {
  const auto channel = [](double value) {
    return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * channel(color.redF()) + 0.7152 * channel(color.greenF()) + 0.0722 * channel(color.blueF());
}

double Contrast(const QColor& a, const QColor& b) {
  const double lighter = std::max(Luminance(a), Luminance(b));
  const double darker = std::min(Luminance(a), Luminance(b));
  return (lighter + 0.05) / (darker + 0.05);
}

TEST(Theme, HasReadableTexts) {
  for (const Theme theme : {Theme::Light, Theme::Dark}) {
    const QPalette palette = PaletteOf(theme, QPalette());
    for (const QPalette::ColorRole ground :
         {QPalette::Window, QPalette::Base, QPalette::AlternateBase, QPalette::Button}) {
      EXPECT_GE(Contrast(palette.color(QPalette::Text), palette.color(ground)), 7) << NameOf(theme);
    }
    EXPECT_GE(Contrast(palette.color(QPalette::HighlightedText), palette.color(QPalette::Highlight)), 4.5)
        << NameOf(theme);
    EXPECT_GE(Contrast(palette.color(QPalette::PlaceholderText), palette.color(QPalette::Base)), 4.5) << NameOf(theme);
    EXPECT_GE(Contrast(palette.color(QPalette::ToolTipText), palette.color(QPalette::ToolTipBase)), 4.5)
        << NameOf(theme);
  }
}

}  // namespace
}  // namespace oxviewer
