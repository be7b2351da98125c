#include "TreeFixture.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QImage>

namespace uiox_qt_tests {
namespace {

constexpr char kColumns[] =
    R"("columns": [{"name": "a", "width": 40}, {"name": "show", "width": 60}, {"name": "dim", "width": 40}])";

class TreeCellsTest : public TreeFixture {
 protected:
  static constexpr uiox::ColumnIndex kColorColumn = 0;
  static constexpr uiox::ColumnIndex kShowColumn = 1;
  static constexpr uiox::ColumnIndex kDimColumn = 2;

  void Plant() {
    Make(kColumns);
    Add("n1");
    Add("n2");
    for (const char* name : {"n1", "n2"}) {
      uiox::Widget* dim = Tree().CreateControl(std::string(name) + "_dim", uiox::WidgetClass::CheckButton);
      Store().SetCellControl({Id(name), kDimColumn}, dim->Control());
      dim->Actions().Add({4, &TreeCellsTest::HearControl, this, dim});
    }
    menu_ = Tree().CreateControl("menu", uiox::WidgetClass::OptionMenu);
    menu_->SetItems({{"none", "", L""}, {"a_show", "ecad_compare_show_a.png", L""}, {"b_show", "", L"only B"}});
    menu_->Actions().Add({3, &TreeCellsTest::HearControl, this, menu_});
    Show();
  }

  /// The tree's program puts the menu into the cell that is clicked.
  void OpenMenuOnClick() {
    on_hear_ = [this](const std::string& word) {
      if (word != "cell" || Tree().SelectedCell().column != kShowColumn) return;
      Store().SetCellControl(Tree().SelectedCell(), menu_->Control());
      menu_->SetSelectedItem("a_show");
    };
  }

  QComboBox* BoxIn(const std::string& name) {
    return qobject_cast<QComboBox*>(View().indexWidget(Index(name, kShowColumn + 1)));
  }
  void ClickCell(const std::string& name, uiox::ColumnIndex column) { Click(Middle(name, column + 1)); }
  /// The colour of a pixel of the view, as "#rrggbb".
  std::string ColorAt(const QPoint& at) {
    const QImage image = View().viewport()->grab().toImage();
    return image.pixelColor(at).name().toStdString();
  }

  std::vector<std::string> heard_controls_;
  uiox::Widget* menu_ = nullptr;

 private:
  static int HearControl(void* fixture, void* control) {
    auto* self = static_cast<TreeCellsTest*>(fixture);
    self->heard_controls_.emplace_back(static_cast<uiox::Widget*>(control)->Name());
    if (control == self->menu_) {
      const uiox::CellPlace place = self->Store().PlaceOf(self->menu_->Control());
      self->Store().SetCellControl(place, uiox::kNoControl);
    }
    return 0;
  }
};

TEST_F(TreeCellsTest, ShowsTheImageThatALabelNames) {
  Plant();
  uiox::Image square;
  square.width = square.height = 16;
  for (int i = 0; i < 16 * 16; ++i) square.pixels.insert(square.pixels.end(), {0x12, 0x34, 0x56, uiox::Image::kOpaque});
  ASSERT_TRUE(uiox::Suite::Get().Images().Define("square", square));
  Store().SetCellLabel({Id("n1"), kColorColumn}, L"<img src=\"square\">");
  Settle();
  EXPECT_EQ(ColorAt(Middle("n1", 1)), "#123456");
  EXPECT_NE(ColorAt(Middle("n2", 1)), "#123456");
}

TEST_F(TreeCellsTest, LoadsNoImageFromAFile) {
  Plant();
  QImage red(16, 16, QImage::Format_RGB32);
  red.fill(Qt::red);
  const QString path = QDir::temp().filePath(QStringLiteral("uiox_qt_red.png"));
  ASSERT_TRUE(red.save(path));
  Store().SetCellLabel({Id("n1"), kColorColumn}, L"<img src=\"" + path.toStdWString() + L"\">");
  Store().SetCellLabel({Id("n2"), kColorColumn}, L"<img src=\"file://" + path.toStdWString() + L"\">");
  Settle();
  EXPECT_NE(ColorAt(Middle("n1", 1)), "#ff0000");
  EXPECT_NE(ColorAt(Middle("n2", 1)), "#ff0000");
  QFile::remove(path);
}

TEST_F(TreeCellsTest, TellsAClickOnACell) {
  Plant();
  ClickCell("n2", kColorColumn);
  EXPECT_EQ(Heard(), (Words{"select", "cell"}));
  EXPECT_EQ(Tree().SelectedCell(), (uiox::CellPlace{Id("n2"), kColorColumn}));
}

TEST_F(TreeCellsTest, TellsTheSameCellAgain) {
  Plant();
  ClickCell("n2", kColorColumn);
  ClickCell("n2", kColorColumn);
  EXPECT_EQ(Heard(), (Words{"select", "cell", "cell"}));
}

TEST_F(TreeCellsTest, TellsNoCellForAClickOnALabel) {
  Plant();
  Click("n2");
  EXPECT_EQ(Heard(), Words{"select"});
}

TEST_F(TreeCellsTest, DoesNotActivateByADoubleClickOnACell) {
  Plant();
  DoubleClick(Middle("n1", kColorColumn + 1));
  EXPECT_EQ(Heard(), (Words{"select", "cell", "cell"}));
}

TEST_F(TreeCellsTest, ShowsTheThreeStatesOfACheckButton) {
  Plant();
  uiox::Widget* dim = Tree().ControlIn({Id("n1"), kDimColumn});
  const QModelIndex cell = Index("n1", kDimColumn + 1);
  EXPECT_EQ(cell.data(Qt::CheckStateRole).toInt(), Qt::Unchecked);
  const QImage off = View().grab(View().visualRect(cell).translated(View().viewport()->pos())).toImage();
  dim->SetCheckState(1);
  EXPECT_EQ(cell.data(Qt::CheckStateRole).toInt(), Qt::Checked);
  Settle();
  const QImage on = View().grab(View().visualRect(cell).translated(View().viewport()->pos())).toImage();
  dim->SetCheckState(2);
  EXPECT_EQ(cell.data(Qt::CheckStateRole).toInt(), Qt::PartiallyChecked);
  Settle();
  const QImage mixed = View().grab(View().visualRect(cell).translated(View().viewport()->pos())).toImage();
  EXPECT_NE(off, on);
  EXPECT_NE(on, mixed);
  EXPECT_NE(off, mixed);
}

TEST_F(TreeCellsTest, TogglesACheckButtonByAClick) {
  Plant();
  ClickCell("n2", kDimColumn);
  EXPECT_EQ(heard_controls_, Words{"n2_dim"});
  EXPECT_EQ(Tree().ControlIn({Id("n2"), kDimColumn})->CheckState(), 1u);
  EXPECT_EQ(Tree().ControlIn({Id("n1"), kDimColumn})->CheckState(), 0u);
  EXPECT_EQ(Heard(), Words{});
}

TEST_F(TreeCellsTest, TogglesACheckButtonWithTheKeyboard) {
  Plant();
  Click("n1");
  for (int i = 0; i < 3; ++i) Press(Qt::Key_Right, Qt::ControlModifier);
  Press(Qt::Key_Space);
  EXPECT_EQ(heard_controls_, Words{"n1_dim"});
}

TEST_F(TreeCellsTest, OpensTheMenuThatAClickBringsIntoTheCell) {
  Plant();
  OpenMenuOnClick();
  ClickCell("n1", kShowColumn);
  QComboBox* box = BoxIn("n1");
  ASSERT_TRUE(box);
  EXPECT_TRUE(box->view()->isVisible());
  EXPECT_EQ(box->count(), 3);
  EXPECT_EQ(box->currentText(), QStringLiteral("a_show"));
  EXPECT_EQ(box->itemText(2), QStringLiteral("only B"));
  EXPECT_FALSE(box->itemIcon(1).isNull());
  EXPECT_TRUE(box->itemIcon(0).isNull());
}

TEST_F(TreeCellsTest, TellsTheChosenOptionAndLosesTheMenu) {
  Plant();
  OpenMenuOnClick();
  ClickCell("n1", kShowColumn);
  QComboBox* box = BoxIn("n1");
  ASSERT_TRUE(box);
  QTest::keyClick(box->view(), Qt::Key_Down);
  QTest::keyClick(box->view(), Qt::Key_Return);
  EXPECT_EQ(heard_controls_, Words{"menu"});
  EXPECT_EQ(menu_->SelectedItem(), "b_show");
  EXPECT_EQ(BoxIn("n1"), nullptr);
  Settle();
}

TEST_F(TreeCellsTest, TellsTheOptionThatWasChosenAlready) {
  Plant();
  OpenMenuOnClick();
  ClickCell("n1", kShowColumn);
  QTest::keyClick(BoxIn("n1")->view(), Qt::Key_Return);
  EXPECT_EQ(heard_controls_, Words{"menu"});
  EXPECT_EQ(menu_->SelectedItem(), "a_show");
}

TEST_F(TreeCellsTest, KeepsTheMenuWhereNothingIsChosen) {
  Plant();
  OpenMenuOnClick();
  ClickCell("n1", kShowColumn);
  QTest::keyClick(BoxIn("n1")->view(), Qt::Key_Escape);
  Settle();
  EXPECT_EQ(heard_controls_, Words{});
  ASSERT_TRUE(BoxIn("n1"));
  EXPECT_FALSE(BoxIn("n1")->view()->isVisible());
}

TEST_F(TreeCellsTest, MovesTheMenuToTheCellThatIsClickedNext) {
  Plant();
  OpenMenuOnClick();
  ClickCell("n1", kShowColumn);
  BoxIn("n1")->hidePopup();
  ClickCell("n2", kShowColumn);
  EXPECT_EQ(BoxIn("n1"), nullptr);
  ASSERT_TRUE(BoxIn("n2"));
  QTest::keyClick(BoxIn("n2")->view(), Qt::Key_Down);
  QTest::keyClick(BoxIn("n2")->view(), Qt::Key_Return);
  EXPECT_EQ(menu_->SelectedItem(), "b_show");
  EXPECT_EQ(heard_controls_, Words{"menu"});
}

TEST_F(TreeCellsTest, ShowsAMenuThatWasThereBeforeTheView) {
  Make(kColumns);
  Add("n1");
  menu_ = Tree().CreateControl("menu", uiox::WidgetClass::OptionMenu);
  menu_->SetItems({{"x", "", L""}});
  Store().SetCellControl({Id("n1"), kShowColumn}, menu_->Control());
  Show();
  EXPECT_TRUE(BoxIn("n1"));
  Tree().DestroyControl("menu");
  EXPECT_EQ(BoxIn("n1"), nullptr);
}

TEST_F(TreeCellsTest, OutlivesAMenuWhoseNodeIsRemovedByTheChoice) {
  Plant();
  OpenMenuOnClick();
  ClickCell("n1", kShowColumn);
  QComboBox* box = BoxIn("n1");
  menu_->Actions().Set({3,
                        [](void* fixture, void*) {
                          static_cast<uiox::TreeStore*>(fixture)->Clear();
                          return 0;
                        },
                        &Store(), nullptr});
  QTest::keyClick(box->view(), Qt::Key_Return);
  Settle();
  EXPECT_EQ(Store().Size(), 0u);
}

}  // namespace
}  // namespace uiox_qt_tests
