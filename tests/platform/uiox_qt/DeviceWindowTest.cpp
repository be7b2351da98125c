#include "FrontFixture.h"

#include <uicomps/toolkit/Toolkit.h>
#include <uiox_qt/TreeView.h>

#include <QDialog>
#include <QMainWindow>
#include <QPushButton>
#include <QScreen>

namespace uiox_qt_tests {
namespace {

class DeviceWindowTest : public FrontFixture {
 protected:
  void SetUp() override {
    FrontFixture::SetUp();
    device_ = &Make("d", R"({"title": "Nets", "defaultButton": "ok", "components": [
        {"name": "field", "class": "InputPanel"},
        {"name": "nets", "class": "Tree"},
        {"name": "ok", "class": "PushButton", "label": "OK"},
        {"name": "no", "class": "PushButton", "label": "No"}]})");
    for (const char* button : {"ok", "no"}) Listen(*device_, button, 4);
  }

  /// As a program does: the callback that ends the run, registered for a reason of a component.
  void EndBy(const std::string& component, int reason, std::intptr_t result) {
    device_->Find(component)->Actions().Set(
        {reason, &ui_exit_device, const_cast<char*>("d"), reinterpret_cast<void*>(result)});
  }

  uiox::Device* device_ = nullptr;
};

TEST_F(DeviceWindowTest, IsADialogOfItsOwnWithTheDevicesTitle) {
  QWidget& window = Show(*device_);
  EXPECT_TRUE(qobject_cast<QDialog*>(&window));
  EXPECT_EQ(window.windowTitle(), QStringLiteral("Nets"));
  device_->SetLabel(L"Layers");
  EXPECT_EQ(window.windowTitle(), QStringLiteral("Layers"));
}

TEST_F(DeviceWindowTest, ComesUpWhenTheEventLoopIsBackAndGoesAtOnce) {
  device_->Show();
  QWidget* window = Front().WindowFor("d");
  ASSERT_TRUE(window);
  EXPECT_FALSE(window->isVisible());
  Settle();
  EXPECT_TRUE(window->isVisible());
  device_->Hide();
  EXPECT_FALSE(window->isVisible());
}

TEST_F(DeviceWindowTest, NeverComesUpWhereItIsHiddenAtOnce) {
  device_->Show();
  device_->Hide();
  Settle();
  EXPECT_FALSE(Front().WindowFor("d")->isVisible());
}

TEST_F(DeviceWindowTest, TellsTheProgramItsSizeBeforeItComesUp) {
  device_->Show();
  uiox::Rect rect;
  ASSERT_TRUE(Front().QueryGeometry(*device_, rect));
  Settle();
  const QWidget* window = Front().WindowFor("d");
  EXPECT_EQ(QSize(rect.width, rect.height), window->size());
  EXPECT_GT(rect.width, 50);
}

TEST_F(DeviceWindowTest, IsWhereTheProgramPutsIt) {
  device_->Show();
  device_->MoveAndResize(120, 60, oxecad_ui::toolkit::kKeepSize, oxecad_ui::toolkit::kKeepSize);
  const QSize size = Front().WindowFor("d")->size();
  Settle();
  EXPECT_EQ(Front().WindowFor("d")->pos(), QPoint(120, 60));
  EXPECT_EQ(Front().WindowFor("d")->size(), size);
  device_->MoveAndResize(130, 70, 400, 300);
  EXPECT_EQ(Front().WindowFor("d")->pos(), QPoint(130, 70));
  EXPECT_EQ(Front().WindowFor("d")->size(), QSize(400, 300));
}

TEST_F(DeviceWindowTest, PressesTheDefaultButtonByEnter) {
  QWidget& window = Show(*device_);
  EXPECT_TRUE(Part<QPushButton>(*device_, "ok").isDefault());
  Part<QLineEdit>(*device_, "field").setFocus();
  QTest::keyClick(window.focusWidget(), Qt::Key_Return);
  EXPECT_EQ(Heard(), Words{"ok:4"});
}

TEST_F(DeviceWindowTest, PressesTheButtonThatHasTheFocusByEnter) {
  Show(*device_);
  Part<QPushButton>(*device_, "no").setFocus();
  QTest::keyClick(&Part<QPushButton>(*device_, "no"), Qt::Key_Return);
  EXPECT_EQ(Heard(), Words{"no:4"});
}

TEST_F(DeviceWindowTest, PressesNothingByEnterWithoutADefaultButton) {
  device_->SetDefaultButton("");
  Show(*device_);
  EXPECT_FALSE(Part<QPushButton>(*device_, "ok").isDefault());
  Part<QLineEdit>(*device_, "field").setFocus();
  QTest::keyClick(&Part<QLineEdit>(*device_, "field"), Qt::Key_Return);
  EXPECT_EQ(Heard(), Words{});
}

TEST_F(DeviceWindowTest, LeavesClosingToTheCallbacks) {
  QWidget& window = Show(*device_);
  QTest::keyClick(&window, Qt::Key_Escape);
  EXPECT_TRUE(window.isVisible());
  window.close();
  EXPECT_TRUE(window.isVisible());
  Listen(*device_, "d", 5);
  window.close();
  QTest::keyClick(&window, Qt::Key_Escape);
  EXPECT_EQ(Heard(), (Words{"d:5", "d:5"}));
  EXPECT_TRUE(window.isVisible());
}

TEST_F(DeviceWindowTest, RunsUntilAButtonEndsIt) {
  EndBy("ok", 4, 32);
  Soon([this] {
    QWidget* window = Front().WindowFor("d");
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(QApplication::activeModalWidget(), window);
    QTest::mouseClick(&Part<QPushButton>(*device_, "ok"), Qt::LeftButton);
  });
  EXPECT_EQ(Suite().RunModal(*device_), 32);
}

TEST_F(DeviceWindowTest, RunsUntilItsWindowIsClosed) {
  EndBy("d", 5, 128);
  Soon([this] { Front().WindowFor("d")->close(); });
  EXPECT_EQ(Suite().RunModal(*device_), 128);
}

TEST_F(DeviceWindowTest, RunsUntilEscape) {
  EndBy("d", 5, 128);
  Soon([this] { QTest::keyClick(Front().WindowFor("d"), Qt::Key_Escape); });
  EXPECT_EQ(Suite().RunModal(*device_), 128);
}

TEST_F(DeviceWindowTest, BlocksTheOtherWindowsDuringItsRunOnly) {
  uiox::Device& other = Make("other", R"({"components": [{"name": "b", "class": "PushButton"}]})");
  QWidget& behind = Show(other);
  EndBy("ok", 4, 1);
  device_->Show();
  Settle();
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  Soon([this, &behind] {
    EXPECT_EQ(QApplication::activeModalWidget(), Front().WindowFor("d"));
    EXPECT_NE(QApplication::activeModalWidget(), &behind);
    QTest::mouseClick(&Part<QPushButton>(*device_, "ok"), Qt::LeftButton);
  });
  Suite().RunModal(*device_);
  Settle();
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  EXPECT_TRUE(Front().WindowFor("d")->isVisible());
}

TEST_F(DeviceWindowTest, RunsOneDialogOverAnother) {
  uiox::Device& inner = Make("inner", R"({"components": [{"name": "b", "class": "PushButton"}]})");
  EndBy("ok", 4, 7);
  Soon([this, &inner] {
    Soon([this] {
      EXPECT_EQ(QApplication::activeModalWidget(), Front().WindowFor("inner"));
      Suite().EndModalRun("inner", 3);
    });
    EXPECT_EQ(Suite().RunModal(inner), 3);
    inner.Hide();
    EXPECT_EQ(QApplication::activeModalWidget(), Front().WindowFor("d"));
    QTest::mouseClick(&Part<QPushButton>(*device_, "ok"), Qt::LeftButton);
  });
  EXPECT_EQ(Suite().RunModal(*device_), 7);
}

TEST_F(DeviceWindowTest, EndsItsRunWithTheDevice) {
  Soon([] { Suite().DestroyDevice("d"); });
  EXPECT_EQ(Suite().RunModal(*device_), uiox::Suite::kNoResult);
}

TEST_F(DeviceWindowTest, OutlivesACallbackThatEndsTheDevice) {
  Show(*device_);
  on_hear_ = [](const std::string&) { Suite().DestroyDevice("d"); };
  QTest::mouseClick(&Part<QPushButton>(*device_, "ok"), Qt::LeftButton);
  Settle();
  EXPECT_EQ(Front().WindowFor("d"), nullptr);
}

// --- In the application's window
// ---------------------------------------------------------------------------------------

TEST_F(DeviceWindowTest, IsAPartOfTheApplicationsWindowOnRequest) {
  QMainWindow main;
  main.setCentralWidget(Front().WidgetFor("d"));
  main.show();
  Settle();
  const QWidget& field = Part<QLineEdit>(*device_, "field");
  EXPECT_FALSE(field.isVisible());
  device_->Show();
  EXPECT_TRUE(field.isVisible());
  EXPECT_EQ(field.window(), &main);
  EXPECT_EQ(Front().WindowFor("d"), nullptr);
  device_->Hide();
  EXPECT_FALSE(field.isVisible());
}

TEST_F(DeviceWindowTest, GivesATreeToTheApplicationsLayout) {
  QMainWindow main;
  uiox_qt::TreeView* view = Front().TreeViewFor("d", "nets");
  ASSERT_TRUE(view);
  main.setCentralWidget(view);
  main.show();
  device_->Show();
  Settle();
  EXPECT_TRUE(view->isVisible());
  EXPECT_EQ(view->window(), &main);
  Suite().DestroyDevice("d");
  Settle();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(main.centralWidget(), nullptr);
}

TEST_F(DeviceWindowTest, OutlivesTheApplicationsWindow) {
  {
    QMainWindow main;
    main.setCentralWidget(Front().WidgetFor("d"));
    device_->Show();
    main.show();
    Settle();
  }
  uiox::NewNode root;
  root.name = "root";
  device_->FindTree("nets")->Store().Add(root, uiox::kTop);
  device_->SetFocus("field");
  device_->Hide();
  EXPECT_EQ(Front().ComponentFor("d", "field"), nullptr);
}

TEST_F(DeviceWindowTest, KnowsNoDeviceThatIsNotThere) {
  EXPECT_EQ(Front().WidgetFor("x"), nullptr);
  EXPECT_EQ(Front().TreeViewFor("d", "field"), nullptr);
  EXPECT_EQ(Front().ComponentFor("d", "x"), nullptr);
}

TEST_F(DeviceWindowTest, ShowsDevicesThatWereOnTheScreenBeforeTheFrontWas) {
  uiox::Device& early = Make("early", R"({"components": []})");
  early.Show();
  uiox_qt::QtFront second;
  QWidget* window = second.WindowFor("early");
  ASSERT_TRUE(window);
  Settle();
  EXPECT_TRUE(window->isVisible());
}

TEST_F(DeviceWindowTest, SaysHowLargeTheScreenIs) {
  uiox::ScreenSize size;
  ASSERT_TRUE(Front().QueryScreen(size));
  EXPECT_EQ(QSize(size.width, size.height), QGuiApplication::primaryScreen()->size());
}

}  // namespace
}  // namespace uiox_qt_tests
