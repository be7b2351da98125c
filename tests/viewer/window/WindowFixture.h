/// \file
/// The main window with a board, for tests.
#ifndef OXECAD_TESTS_VIEWER_WINDOW_WINDOWFIXTURE_H
#define OXECAD_TESTS_VIEWER_WINDOW_WINDOWFIXTURE_H

#include <viewer/trees/NaturalNames.h>
#include <viewer/window/BoardSession.h>
#include <viewer/window/BoardView.h>
#include <viewer/window/ComparePanel.h>
#include <viewer/window/FilterLine.h>
#include <viewer/window/MainWindow.h>
#include <viewer/window/TreePanel.h>

#include <QApplication>
#include <QDialog>
#include <QImage>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>
#include <tests/viewer/board/Texts.h>
#include <tests/viewer/trees/Boards.h>

#include <functional>
#include <memory>
#include <string>
#include <utility>

#include <oxk/PreferencesFolder.h>
#include <uiox/Suite.h>
#include <uiox_qt/QtFront.h>
#include <uiox_qt/TreeModel.h>
#include <uiox_qt/TreeView.h>

namespace oxviewer::testing {

/// A board of 40 by 20 mm, its corner at (0, 0): GND runs level at y = 5 on the front, VCC at y = 10 on the back, R1
/// has a pad of GND at (30, 5) and one without a net at (30, 15).
inline const char* const kWindowBoard = R"(
  (net 0 "") (net 1 "GND") (net 2 "VCC")
  (gr_rect (start 0 0) (end 40 20) (layer "Edge.Cuts") (width 0.2))
  (segment (start 2 5) (end 28 5) (width 2) (layer "F.Cu") (net 1))
  (segment (start 2 10) (end 28 10) (width 2) (layer "B.Cu") (net 2))
  (footprint "lib:part" (layer "F.Cu") (at 30 10)
    (fp_text reference "R1" (at 0 0) (layer "F.SilkS")) (fp_text value "10k" (at 0 0) (layer "F.SilkS"))
    (pad "1" smd rect (at 0 -5) (size 3 3) (layers "F.Cu") (net 1 "GND"))
    (pad "2" smd rect (at 0 5) (size 3 3) (layers "F.Cu"))))";

class WindowFixture : public ::testing::Test {
 protected:
  WindowFixture() { oxk::UsePreferencesFolder(PreferencesFolder()); }

  std::string PreferencesFolder() { return folder_.PathOf("preferences"); }

  void SetUp() override {
    uiox::Suite::Get().Reset();
    front_ = std::make_unique<uiox_qt::QtFront>();
    MakeWindow();
  }

  void TearDown() override {
    EXPECT_EQ(awaited_, 0) << "a dialog never came up";
    for (QObject* watch : watches_.children()) delete watch;
    window_.reset();
    front_.reset();
    uiox::Suite::Get().Reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  void MakeWindow(bool keeps = true) {
    window_.reset();
    window_ = std::make_unique<MainWindow>(*front_, ReadPreferences(), keeps);
    window_->resize(1400, 900);
    window_->show();
    window_->activateWindow();
    Settle();
  }

  MainWindow& Window() { return *window_; }
  BoardView& View() { return window_->View(); }
  BoardSession& Session() { return *window_->Session(); }

  void Show(Board board) {
    LoadedBoards boards;
    boards.a = std::make_shared<const Board>(std::move(board));
    window_->ShowBoards(boards);
    Settle();
  }

  void Compare(Board a, Board b) {
    LoadedBoards boards;
    boards.a = std::make_shared<const Board>(std::move(a));
    boards.b = std::make_shared<const Board>(std::move(b));
    boards.diff = std::make_shared<const BoardDiff>(CompareBoards(*boards.a, *boards.b, NaturalNameOrder()));
    window_->ShowBoards(boards);
    Settle();
  }

  static void Settle() {
    for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
  }

  /// Done as soon as another dialog than now is up and waits for the user. A dialog that nobody has closed after ten
  /// seconds is closed, and the case fails.
  void Soon(std::function<void()> action) {
    QWidget* const before = QApplication::activeModalWidget();
    auto* watch = new QTimer(&watches_);
    ++awaited_;
    QObject::connect(watch, &QTimer::timeout, watch, [this, watch, before, action = std::move(action)] {
      if (!QApplication::activeModalWidget() || QApplication::activeModalWidget() == before) return;
      watch->stop();
      --awaited_;
      Settle();
      action();
    });
    watch->start(0);
    QTimer::singleShot(10'000, &watches_, [] {
      for (QWidget* left = QApplication::activeModalWidget(); left; left = QApplication::activeModalWidget()) {
        ADD_FAILURE() << "a dialog was left open: " << left->windowTitle().toStdString();
        left->hide();
        if (auto* dialog = qobject_cast<QDialog*>(left)) dialog->done(QDialog::Rejected);
      }
    });
  }

  // --- The board -----------------------------------------------------------------------------------------------------

  QPoint PixelOf(double x, double y) { return View().CurrentViewport().ToPixels().map(QPointF(x, y)).toPoint(); }

  /// What the view shows at a place of the board.
  QRgb ColorAt(double x, double y) {
    Settle();
    View().RenderNow();
    return View().grab().toImage().pixel(PixelOf(x, y)) & 0xFFFFFF;
  }

  void ClickBoard(double x, double y, Qt::KeyboardModifiers modifiers = {}) {
    QTest::mouseClick(&View(), Qt::LeftButton, modifiers, PixelOf(x, y));
    Settle();
  }

  // --- Trees ---------------------------------------------------------------------------------------------------------

  static QModelIndex IndexOf(TreePanel& panel, const std::string& node, int column = 0) {
    return panel.View().Model().IndexOf(panel.View().Tree()->Store().Find(node), column);
  }

  static QRect RowOf(TreePanel& panel, const std::string& node, int column = 0) {
    const QModelIndex index = IndexOf(panel, node, column);
    panel.View().scrollTo(index);
    Settle();
    return panel.View().visualRect(index);
  }

  static void ClickNode(TreePanel& panel, const std::string& node, Qt::KeyboardModifiers modifiers = {}) {
    const QRect row = RowOf(panel, node);
    QTest::mouseClick(panel.View().viewport(), Qt::LeftButton, modifiers, QPoint(row.right() - 4, row.center().y()));
    Settle();
  }

  static void ClickCheckBox(TreePanel& panel, const std::string& node) {
    RowOf(panel, node);
    const QRect box = panel.View().CheckBoxRect(IndexOf(panel, node));
    QTest::mouseClick(panel.View().viewport(), Qt::LeftButton, {}, box.center());
    Settle();
  }

  static void DoubleClickNode(TreePanel& panel, const std::string& node) {
    const QPoint place = QPoint(RowOf(panel, node).right() - 4, RowOf(panel, node).center().y());
    QTest::mouseClick(panel.View().viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(panel.View().viewport(), Qt::LeftButton, {}, place);
    Settle();
  }

  static bool IsHidden(TreePanel& panel, const std::string& node) {
    EXPECT_NE(panel.View().Tree()->Store().Find(node), uiox::kNoNode) << node;
    return !IndexOf(panel, node).isValid();
  }

 private:
  TemporaryFolder folder_;
  QObject watches_;
  int awaited_ = 0;
  std::unique_ptr<uiox_qt::QtFront> front_;
  std::unique_ptr<MainWindow> window_;
};

}  // namespace oxviewer::testing

#endif  // OXECAD_TESTS_VIEWER_WINDOW_WINDOWFIXTURE_H
