#include "FrontFixture.h"

#include <uicomps/dialogs/BalloonMessage.h>
#include <uicomps/oxecad_ui.h>
#include <uiox/UserEvents.h>
#include <uiox_qt/BalloonShape.h>
#include <uitoolsox/BalloonStyle.h>

#include <QLabel>
#include <QMainWindow>
#include <QPushButton>
#include <QScreen>

namespace uiox_qt_tests {
namespace {

class BalloonTest : public FrontFixture {
 protected:
  void SetUp() override {
    FrontFixture::SetUp();
    ObtainBalloonDevice();
    device_ = &Make("d", R"({"arrangement": "row", "components": [{"name": "field", "class": "InputPanel"}]})");
    main_.setCentralWidget(Front().WidgetFor("d"));
    device_->Show();
    main_.resize(120, 60);
    main_.show();
    Front().SetMainWindow(&main_);
  }

  /// Puts the field at a place of the screen and the user into it.
  void PutAnchor(const QPoint& at) {
    main_.move(at);
    Settle();
    uiox::user::FocusIn(*device_->Find("field"));
  }

  QWidget& Balloon() { return *Front().WindowFor(kBalloon); }
  QPushButton& Button(const char* name) { return Part<QPushButton>(*Suite().FindDevice(kBalloon), name); }

  /// Runs a balloon with these buttons; `meanwhile` is done while it is up.
  int Ask(unsigned int buttons, unsigned int default_button, std::function<void()> meanwhile) {
    const auto asked = std::make_shared<std::function<void()>>(std::move(meanwhile));
    Soon([asked] {
      if (*asked) (*asked)();
    });
    const int answer =
        oxecad_ui::ShowBalloonMessage(1, "The name \"VCC\" is taken.", 2, buttons, default_button, "field");
    *asked = nullptr;  // nobody waits any more, should it not have come up
    return answer;
  }

  uiox::Device* device_ = nullptr;
  QMainWindow main_;
};

TEST_F(BalloonTest, ShowsTextSignAndTheButtonsOfItsMask) {
  PutAnchor({100, 100});
  Ask(8 | 16 | 128, 8, [this] {
    EXPECT_TRUE(Balloon().isVisible());
    EXPECT_TRUE(Balloon().windowFlags() & Qt::FramelessWindowHint);
    const QLabel& text = Part<QLabel>(*Suite().FindDevice(kBalloon), "message");
    EXPECT_EQ(text.text(), QStringLiteral("The name \"VCC\" is taken."));
    EXPECT_TRUE(text.wordWrap());
    for (const char* name : {"yes", "no", "cancel"}) EXPECT_TRUE(Button(name).isVisible()) << name;
    for (const char* name : {"abort", "retry", "ignore", "ok", "confirm"})
      EXPECT_FALSE(Button(name).isVisible()) << name;
    EXPECT_TRUE(Button("yes").isDefault());
    EXPECT_EQ(Balloon().focusWidget(), &Button("yes"));
    Suite().EndModalRun(kBalloon, 0);
  });
}

TEST_F(BalloonTest, GivesTheBitOfWhatEndedIt) {
  PutAnchor({100, 100});
  EXPECT_EQ(Ask(32 | 128, 32, [this] { QTest::mouseClick(&Button("ok"), Qt::LeftButton); }), 32);
  EXPECT_EQ(Ask(32 | 128, 32, [this] { QTest::mouseClick(&Button("cancel"), Qt::LeftButton); }), 128);
  EXPECT_EQ(Ask(32 | 128, 32, [this] { QTest::keyClick(Balloon().focusWidget(), Qt::Key_Return); }), 32);
  EXPECT_EQ(Ask(32 | 128, 32, [this] { QTest::keyClick(&Balloon(), Qt::Key_Escape); }), 128);
  EXPECT_EQ(Ask(32 | 128, 32, [this] { Balloon().close(); }), 128);
  EXPECT_FALSE(Balloon().isVisible());
}

TEST_F(BalloonTest, CannotBeClosedWithoutACancelButton) {
  PutAnchor({100, 100});
  const int result = Ask(32, 32, [this] {
    QTest::keyClick(&Balloon(), Qt::Key_Escape);
    Balloon().close();
    EXPECT_TRUE(Balloon().isVisible());
    QTest::mouseClick(&Button("ok"), Qt::LeftButton);
  });
  EXPECT_EQ(result, 32);
}

TEST_F(BalloonTest, HidesButtonsThatAnEarlierOneShowed) {
  PutAnchor({100, 100});
  Ask(1 | 2 | 4, 1, [this] { QTest::mouseClick(&Button("abort"), Qt::LeftButton); });
  Ask(32, 32, [this] {
    EXPECT_FALSE(Button("abort").isVisible());
    EXPECT_TRUE(Button("ok").isVisible());
    QTest::mouseClick(&Button("ok"), Qt::LeftButton);
  });
}

TEST_F(BalloonTest, GrowsWithItsText) {
  PutAnchor({100, 100});
  QSize small;
  Ask(32, 32, [&] {
    small = Balloon().size();
    Suite().EndModalRun(kBalloon, 0);
  });
  Soon([&] {
    EXPECT_GT(Balloon().height(), small.height());
    EXPECT_LT(Balloon().width(), 600);
    const QLabel& text = Part<QLabel>(*Suite().FindDevice(kBalloon), "message");
    EXPECT_GE(text.height(), text.heightForWidth(text.width()));
    Suite().EndModalRun(kBalloon, 0);
  });
  oxecad_ui::ShowBalloonMessage(1, std::string(300, 'x') + " and many more words, so many that they need some lines", 2,
                                32, 32, "field");
}

/// Where the arrow's tip is, on the screen.
QPoint Tip(const QWidget& balloon, int quadrant) {
  const bool left = quadrant == 1 || quadrant == 7;
  const bool top = quadrant == 1 || quadrant == 3;
  return balloon.mapToGlobal(QPoint(left ? 24 : balloon.width() - 24, top ? 0 : balloon.height()));
}

struct QuadrantRow {
  int quadrant;
  QPoint anchor;
};

class BalloonQuadrant : public BalloonTest, public ::testing::WithParamInterface<QuadrantRow> {};

TEST_P(BalloonQuadrant, PointsAtItsAnchor) {
  PutAnchor(GetParam().anchor);
  const QWidget& field = *Front().ComponentFor("d", "field");
  const QRect anchor(field.mapToGlobal(QPoint(0, 0)), field.size());
  Ask(32, 32, [&] {
    const int quadrant = GetParam().quadrant;
    const QPoint tip = Tip(Balloon(), quadrant);
    EXPECT_EQ(tip.x(), anchor.x() + anchor.width() / 2);
    EXPECT_EQ(tip.y(), quadrant < 7 ? anchor.y() + anchor.height() : anchor.y());
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    EXPECT_TRUE(screen.contains(Balloon().geometry()));

    // The arrow is drawn where the tip is, and the opposite edge is straight.
    const QImage picture = Balloon().grab().toImage();
    const bool top = quadrant < 7;
    const int near_edge = top ? 4 : picture.height() - 5;
    const int x = tip.x() - Balloon().x();
    EXPECT_GT(qAlpha(picture.pixel(x, near_edge)), 128);
    EXPECT_EQ(qAlpha(picture.pixel(picture.width() - 1 - x, near_edge)), 0);
    EXPECT_GT(qAlpha(picture.pixel(picture.width() - 1 - x, picture.height() - 1 - near_edge)), 128);
    Suite().EndModalRun(kBalloon, 0);
  });
}

INSTANTIATE_TEST_SUITE_P(Of, BalloonQuadrant,
                         ::testing::Values(QuadrantRow{1, {60, 60}}, QuadrantRow{3, {600, 60}},
                                           QuadrantRow{7, {60, 600}}, QuadrantRow{9, {600, 600}}),
                         [](const ::testing::TestParamInfo<QuadrantRow>& row) {
                           return "quadrant_" + std::to_string(row.param.quadrant);
                         });

TEST_F(BalloonTest, HasItsArrowWhereTheStyleSays) {
  for (const int quadrant : {1, 3, 7, 9}) {
    const uitoolsox::BalloonStyle* style = nullptr;
    ASSERT_EQ(uit_SkinGetBalloonDlgStyle(static_cast<unsigned char>(quadrant), &style, 0), 0);
    uiox_qt::BalloonArrow arrow;
    ASSERT_TRUE(uiox_qt::FindBalloonArrow(reinterpret_cast<std::uintptr_t>(style), arrow));
    EXPECT_EQ(arrow.at_top, quadrant < 7);
    EXPECT_EQ(arrow.at_left, quadrant == 1 || quadrant == 7);
    EXPECT_EQ(arrow.inset, 24);
  }
  uiox_qt::BalloonArrow arrow;
  EXPECT_FALSE(uiox_qt::FindBalloonArrow(0, arrow));
}

}  // namespace
}  // namespace uiox_qt_tests
