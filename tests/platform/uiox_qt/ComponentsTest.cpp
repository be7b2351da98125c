#include "FrontFixture.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>

namespace uiox_qt_tests {
namespace {

class ComponentsTest : public FrontFixture {
 protected:
  void SetUp() override {
    FrontFixture::SetUp();
    device_ = &Make("d", R"({"arrangement": "column", "components": [
        {"name": "label", "class": "Label", "label": "Grid & <b>width</b>"},
        {"name": "menu", "class": "OptionMenu", "items": [{"name": "mm", "label": "Millimetre"}, "mil"],
         "selected": "mm"},
        {"name": "check", "class": "CheckButton", "label": "Dim", "checked": true},
        {"name": "panel", "class": "Panel", "arrangement": "row", "components": [
          {"name": "icon", "class": "Icon", "images": ["error"]},
          {"name": "ok", "class": "PushButton", "label": "R & D"}]}]})");
    Show(*device_);
  }
  uiox::Widget& Find(const std::string& name) { return *device_->Find(name); }

  uiox::Device* device_ = nullptr;
};

TEST_F(ComponentsTest, ShowsAButtonsLabelAsItIs) {
  EXPECT_EQ(Part<QPushButton>(*device_, "ok").text(), QStringLiteral("R && D"));
}

TEST_F(ComponentsTest, ShowsALabelLiterally) {
  QLabel& label = Part<QLabel>(*device_, "label");
  EXPECT_EQ(label.text(), QStringLiteral("Grid & <b>width</b>"));
  EXPECT_EQ(label.textFormat(), Qt::PlainText);
  Find("label").SetLabel(L"x");
  EXPECT_EQ(label.text(), QStringLiteral("x"));
}

TEST_F(ComponentsTest, ShowsNoMarkupInWrappedTextEither) {
  Find("label").SetTextMode(2);
  const QLabel& label = Part<QLabel>(*device_, "label");
  EXPECT_TRUE(label.wordWrap());
  EXPECT_EQ(label.text(), QStringLiteral("Grid & <b>width</b>"));
  EXPECT_EQ(label.textFormat(), Qt::PlainText);
}

TEST_F(ComponentsTest, PressesAButtonByMouseAndKeyboard) {
  Listen(*device_, "ok", 4);
  QPushButton& button = Part<QPushButton>(*device_, "ok");
  QTest::mouseClick(&button, Qt::LeftButton);
  EXPECT_EQ(Heard(), Words{"ok:4"});
  button.setFocus();
  QTest::keyClick(&button, Qt::Key_Space);
  QTest::keyClick(&button, Qt::Key_Return);
  EXPECT_EQ(Heard(), (Words{"ok:4", "ok:4"}));
}

TEST_F(ComponentsTest, PressesNoButtonThatIsNotSensitive) {
  Listen(*device_, "ok", 4);
  Find("ok").SetSensitive(false);
  EXPECT_FALSE(Part<QPushButton>(*device_, "ok").isEnabled());
  QTest::mouseClick(&Part<QPushButton>(*device_, "ok"), Qt::LeftButton);
  EXPECT_EQ(Heard(), Words{});
}

TEST_F(ComponentsTest, HidesAndShowsAComponent) {
  Find("ok").SetShown(false);
  EXPECT_FALSE(Part<QPushButton>(*device_, "ok").isVisible());
  Find("ok").SetShown(true);
  EXPECT_TRUE(Part<QPushButton>(*device_, "ok").isVisible());
}

TEST_F(ComponentsTest, TogglesACheckButton) {
  Listen(*device_, "check", 4);
  QCheckBox& box = Part<QCheckBox>(*device_, "check");
  EXPECT_EQ(box.checkState(), Qt::Checked);
  QTest::mouseClick(&box, Qt::LeftButton, Qt::NoModifier, QPoint(8, box.height() / 2));
  EXPECT_EQ(Heard(), Words{"check:4"});
  EXPECT_EQ(Find("check").CheckState(), 0u);
  EXPECT_EQ(box.checkState(), Qt::Unchecked);
  Find("check").SetCheckState(2);
  EXPECT_EQ(box.checkState(), Qt::PartiallyChecked);
  QTest::keyClick(&box, Qt::Key_Space);
  EXPECT_EQ(Find("check").CheckState(), 1u);
  EXPECT_EQ(box.checkState(), Qt::Checked);
}

TEST_F(ComponentsTest, ChoosesAnOption) {
  Listen(*device_, "menu", 3);
  QComboBox& box = Part<QComboBox>(*device_, "menu");
  EXPECT_EQ(box.currentText(), QStringLiteral("Millimetre"));
  box.showPopup();
  QTest::keyClick(box.view(), Qt::Key_Down);
  QTest::keyClick(box.view(), Qt::Key_Return);
  EXPECT_EQ(Heard(), Words{"menu:3"});
  EXPECT_EQ(Find("menu").SelectedItem(), "mil");
  Find("menu").SetSelectedItem("mm");
  EXPECT_EQ(box.currentText(), QStringLiteral("Millimetre"));
  EXPECT_EQ(Heard(), Words{});
}

TEST_F(ComponentsTest, ShowsNewItems) {
  Find("menu").SetItems({{"in", "", L"Inch"}});
  const QComboBox& box = Part<QComboBox>(*device_, "menu");
  EXPECT_EQ(box.count(), 1);
  EXPECT_EQ(box.currentText(), QStringLiteral("Inch"));
}

TEST_F(ComponentsTest, ShowsWhatACallbackMakesOfAChoice) {
  Listen(*device_, "menu", 3);
  on_hear_ = [this](const std::string&) { Find("menu").SetSelectedItem("mm"); };
  QTest::keyClick(&Part<QComboBox>(*device_, "menu"), Qt::Key_Down);
  EXPECT_EQ(Heard(), Words{"menu:3"});
  EXPECT_EQ(Part<QComboBox>(*device_, "menu").currentText(), QStringLiteral("Millimetre"));
}

TEST_F(ComponentsTest, DrawsASignOfItsOwnForEachKindOfMessage) {
  std::vector<QImage> signs;
  for (const char* word : {"error", "warning", "info", "question"}) {
    Find("icon").SetImages({word});
    Settle();
    signs.push_back(Front().ComponentFor("d", "icon")->grab().toImage());
    for (std::size_t i = 0; i + 1 < signs.size(); ++i) EXPECT_NE(signs[i], signs.back()) << word;
  }
}

TEST_F(ComponentsTest, SaysWhereAComponentIs) {
  uiox::Rect rect;
  ASSERT_TRUE(Front().QueryGeometry(Find("ok"), rect));
  const QWidget& button = Part<QPushButton>(*device_, "ok");
  EXPECT_EQ(QPoint(rect.x, rect.y), button.mapToGlobal(QPoint(0, 0)));
  EXPECT_EQ(QSize(rect.width, rect.height), button.size());
}

TEST_F(ComponentsTest, GivesAComponentThatNobodySeesNoSize) {
  Find("ok").SetShown(false);
  uiox::Rect rect;
  ASSERT_TRUE(Front().QueryGeometry(Find("ok"), rect));
  EXPECT_EQ(rect.width, 0);
}

}  // namespace
}  // namespace uiox_qt_tests
