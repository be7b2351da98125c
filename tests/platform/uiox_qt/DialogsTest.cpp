#include "FrontFixture.h"

#include <oxcore/ColorPicker.h>
#include <oxcore/ColorPickerDlg.h>
#include <uicomps/oxecad_ui.h>

#include <QColorDialog>
#include <QMainWindow>
#include <QPushButton>

#include <set>

namespace uiox_qt_tests {
namespace {

// --- The colour picker
// -------------------------------------------------------------------------------------------------

class ColorPickerTest : public FrontFixture {
 protected:
  static QColorDialog* Dialog() { return qobject_cast<QColorDialog*>(QApplication::activeModalWidget()); }
};

TEST_F(ColorPickerTest, OpensAtTheCurrentColourOnTheMainWindow) {
  QMainWindow main;
  main.show();
  Front().SetMainWindow(&main);
  Soon([&main] {
    ASSERT_TRUE(Dialog());
    EXPECT_EQ(Dialog()->currentColor(), QColor(0x33, 0x66, 0x99));
    EXPECT_EQ(Dialog()->parentWidget(), &main);
    Dialog()->reject();
  });
  oxcore::ColorPickerDlg(nullptr, std::string()).ShowDialog(0x00996633);
}

TEST_F(ColorPickerTest, GivesTheChosenColour) {
  Soon([] {
    ASSERT_TRUE(Dialog());
    Dialog()->setCurrentColor(QColor(1, 2, 3));
    Dialog()->accept();
  });
  EXPECT_EQ(oxcore::ColorPickerDlg(nullptr, std::wstring(L"Colour of A")).ShowDialog(0), 0x00030201u);
}

TEST_F(ColorPickerTest, GivesNoColourWhenTheUserCancels) {
  Soon([] { QTest::keyClick(Dialog(), Qt::Key_Escape); });
  EXPECT_EQ(oxcore::ColorPickerDlg(nullptr, std::string()).ShowDialog(5), 0xFFFFFFFFu);
}

TEST_F(ColorPickerTest, OutlivesItsMainWindow) {
  auto main = std::make_unique<QMainWindow>();
  main->show();
  Front().SetMainWindow(main.get());
  Soon([&main] { main.reset(); });
  EXPECT_EQ(oxcore::ColorPickerDlg(nullptr, std::string()).ShowDialog(5), 0xFFFFFFFFu);
}

TEST(ColorPickerAfterwards, AnswersFromTheQueueAgain) {
  { const uiox_qt::QtFront front; }
  oxcore::QueueColorAnswer(9);
  EXPECT_EQ(oxcore::ColorPickerDlg(nullptr, std::string()).ShowDialog(0), 9u);
}

// --- Renaming
// ----------------------------------------------------------------------------------------------------------

class RenameTest : public FrontFixture {
 protected:
  void SetUp() override {
    FrontFixture::SetUp();
    ObtainBalloonDevice();
  }

  QLineEdit& Name() { return Part<QLineEdit>(*Suite().FindDevice("RenameDlg"), "Name_Text"); }
  QPushButton& Button(const char* name) { return Part<QPushButton>(*Suite().FindDevice("RenameDlg"), name); }
};

TEST_F(RenameTest, GivesTheTypedName) {
  oxecad_ui::RenameWithBalloonDlg dialog({L"VCC"}, "taken", true);
  dialog.SetNewName(L"GND");
  Soon([this] {
    EXPECT_TRUE(Name().hasFocus());
    EXPECT_EQ(Name().selectedText(), QStringLiteral("GND"));
    QTest::keyClicks(&Name(), QStringLiteral("AGND"));
    QTest::keyClick(&Name(), Qt::Key_Return);
  });
  EXPECT_TRUE(dialog.Run());
  EXPECT_EQ(dialog.GetNewName(), L"AGND");
}

TEST_F(RenameTest, GivesNoNameWhenTheUserCancels) {
  oxecad_ui::RenameWithBalloonDlg dialog({}, "taken", false);
  for (const char* way : {"button", "escape", "window"}) {
    Soon([this, way = std::string(way)] {
      if (way == "button") QTest::mouseClick(&Button("Cancel"), Qt::LeftButton);
      if (way == "escape") QTest::keyClick(&Name(), Qt::Key_Escape);
      if (way == "window") Front().WindowFor("RenameDlg")->close();
    });
    EXPECT_FALSE(dialog.Run()) << way;
  }
}

TEST_F(RenameTest, PointsABalloonAtANameThatIsTakenAndStaysOpen) {
  oxecad_ui::RenameWithBalloonDlg dialog({L"VCC"}, "This name is taken.", true);
  Soon([this] {
    QTest::keyClicks(&Name(), QStringLiteral("VCC"));
    Soon([this] {
      QWidget* balloon = Front().WindowFor(kBalloon);
      ASSERT_TRUE(balloon && balloon->isVisible());
      EXPECT_EQ(QApplication::activeModalWidget(), balloon);
      QTest::keyClick(balloon->focusWidget(), Qt::Key_Return);
    });
    QTest::mouseClick(&Button("OK"), Qt::LeftButton);
    EXPECT_TRUE(Front().WindowFor("RenameDlg")->isVisible());
    EXPECT_EQ(Front().WindowFor("RenameDlg")->focusWidget(), &Name());
    Name().selectAll();
    QTest::keyClicks(&Name(), QStringLiteral("vcc"));
    QTest::mouseClick(&Button("OK"), Qt::LeftButton);
  });
  EXPECT_TRUE(dialog.Run());
  EXPECT_EQ(dialog.GetNewName(), L"vcc");
}

}  // namespace
}  // namespace uiox_qt_tests
