#include <QSignalSpy>
#include <QWheelEvent>

#include <gtest/gtest.h>
#include <tests/viewer/window/WindowFixture.h>

namespace oxviewer::testing {
namespace {

constexpr double kClose = 0.01;  // mm

class BoardViewTest : public WindowFixture {
 protected:
  void SetUp() override {
    WindowFixture::SetUp();
    Show(SmallBoard(kWindowBoard));
  }

  void Wheel(QPoint pixel, int angle, Qt::KeyboardModifiers modifiers = {}) {
    QWheelEvent event(pixel, View().mapToGlobal(QPointF(pixel)), {}, QPoint(0, angle), Qt::NoButton, modifiers,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&View(), &event);
  }

  void Drag(QPoint from, QPoint to) {
    QTest::mousePress(&View(), Qt::LeftButton, {}, from);
    QTest::mouseMove(&View(), (from + to) / 2);
    QTest::mouseMove(&View(), to);
    QTest::mouseRelease(&View(), Qt::LeftButton, {}, to);
  }

  void ExpectPlace(QPoint pixel, QPointF place) {
    const QPointF now = View().CurrentViewport().ToBoard(pixel);
    EXPECT_NEAR(now.x(), place.x(), kClose);
    EXPECT_NEAR(now.y(), place.y(), kClose);
  }
};

TEST_F(BoardViewTest, ShowsTheWholeBoardAtFirst) {
  const QRectF area = View().CurrentViewport().Area();
  EXPECT_TRUE(area.contains(QRectF(0, 0, 40, 20)));
  EXPECT_LT(area.width(), 50);
}

TEST_F(BoardViewTest, WheelZoomsAtThePointer) {
  const QPoint pixel(200, 150);
  const QPointF place = View().CurrentViewport().ToBoard(pixel);
  const double scale = View().CurrentViewport().pixelsPerMm;
  Wheel(pixel, 120);
  EXPECT_DOUBLE_EQ(View().CurrentViewport().pixelsPerMm, scale * 1.25);
  ExpectPlace(pixel, place);
  Wheel(pixel, -120);
  EXPECT_NEAR(View().CurrentViewport().pixelsPerMm, scale, 1e-9);
  ExpectPlace(pixel, place);
}

TEST_F(BoardViewTest, WheelWithModifiersMoves) {
  const QPointF center = View().CurrentViewport().center;
  const double scale = View().CurrentViewport().pixelsPerMm;
  Wheel({100, 100}, 120, Qt::ShiftModifier);
  EXPECT_LT(View().CurrentViewport().center.x(), center.x());
  EXPECT_EQ(View().CurrentViewport().center.y(), center.y());
  Wheel({100, 100}, 120, Qt::ControlModifier);
  EXPECT_LT(View().CurrentViewport().center.y(), center.y());
  EXPECT_EQ(View().CurrentViewport().pixelsPerMm, scale);
}

TEST_F(BoardViewTest, ZoomHasLimits) {
  for (int i = 0; i < 200; ++i) Wheel({100, 100}, 120);
  EXPECT_DOUBLE_EQ(View().CurrentViewport().pixelsPerMm, Viewport::kLargestScale);
  for (int i = 0; i < 400; ++i) Wheel({100, 100}, -120);
  EXPECT_DOUBLE_EQ(View().CurrentViewport().pixelsPerMm, Viewport::kSmallestScale);
}

TEST_F(BoardViewTest, DragTakesTheBoardAlong) {
  const QPoint from(300, 300);
  const QPointF place = View().CurrentViewport().ToBoard(from);
  QSignalSpy picked(&View(), &BoardView::Picked);
  Drag(from, {380, 250});
  ExpectPlace({380, 250}, place);
  EXPECT_EQ(picked.count(), 0);
}

TEST_F(BoardViewTest, ShakyClickIsAClick) {
  QSignalSpy picked(&View(), &BoardView::Picked);
  Drag({300, 300}, {301, 301});
  EXPECT_EQ(picked.count(), 1);
}

TEST_F(BoardViewTest, KeysZoomMoveAndFit) {
  const Viewport whole = View().CurrentViewport();
  QTest::keyClick(&View(), Qt::Key_Plus);
  EXPECT_GT(View().CurrentViewport().pixelsPerMm, whole.pixelsPerMm);
  QTest::keyClick(&View(), Qt::Key_Right);
  EXPECT_GT(View().CurrentViewport().center.x(), whole.center.x());
  QTest::keyClick(&View(), Qt::Key_Down);
  EXPECT_GT(View().CurrentViewport().center.y(), whole.center.y());
  QTest::keyClick(&View(), Qt::Key_F);
  EXPECT_EQ(View().CurrentViewport(), whole);
  QTest::keyClick(&View(), Qt::Key_Minus);
  QTest::keyClick(&View(), Qt::Key_Home);
  EXPECT_EQ(View().CurrentViewport(), whole);
}

TEST_F(BoardViewTest, DoubleClickShowsTheWholeBoard) {
  const Viewport whole = View().CurrentViewport();
  Wheel({100, 100}, 360);
  QTest::mouseDClick(&View(), Qt::LeftButton, {}, {100, 100});
  EXPECT_EQ(View().CurrentViewport(), whole);
}

TEST_F(BoardViewTest, FittedBoardStaysFittedWhenTheWindowGrows) {
  Window().resize(1000, 700);
  Settle();
  EXPECT_TRUE(View().CurrentViewport().Area().contains(QRectF(0, 0, 40, 20)));
  Wheel({100, 100}, 120);
  const double scale = View().CurrentViewport().pixelsPerMm;
  Window().resize(1200, 800);
  Settle();
  EXPECT_EQ(View().CurrentViewport().pixelsPerMm, scale);
}

TEST_F(BoardViewTest, SharpPictureFollowsByItself) {
  Wheel({100, 100}, 120);
  QTRY_VERIFY2_WITH_TIMEOUT(View().IsSharp(), "no picture came", 20000);
}

TEST_F(BoardViewTest, SeenFromTheBackLeftIsRight) {
  const QPoint before = PixelOf(2, 5);
  View().SetSeenFromBack(true);
  EXPECT_GT(PixelOf(2, 5).x(), PixelOf(28, 5).x());
  EXPECT_EQ(PixelOf(2, 5).y(), before.y());
  ExpectPlace(PixelOf(2, 5), {2, 5});
}

TEST_F(BoardViewTest, ShowsTracksInTheirLayersColours) {
  EXPECT_EQ(ColorAt(10, 5), 0xD6453Au);
  EXPECT_EQ(ColorAt(10, 10), 0x3E7DD8u);
  EXPECT_EQ(ColorAt(10.3, 15.3), 0x161B21u);
}

}  // namespace
}  // namespace oxviewer::testing
