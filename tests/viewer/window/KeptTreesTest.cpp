#include <QFile>
#include <QHeaderView>
#include <QStatusBar>

#include <gtest/gtest.h>
#include <tests/viewer/window/WindowFixture.h>
#include <viewer/window/History.h>

namespace oxviewer::testing {
namespace {

class KeptTreesTest : public WindowFixture {
 protected:
  void SetUp() override {
    WindowFixture::SetUp();
    file_ = QString::fromStdString(PreferencesFolder()) + "/trees.json";
    Window().KeepTreesIn(file_);
    Show(SmallBoard(kWindowBoard));
  }

  /// The program ends and begins again with this board.
  void Restart(const char* board = kWindowBoard) {
    Window().close();
    MakeWindow();
    Window().KeepTreesIn(file_);
    Show(SmallBoard(board));
  }

  QString file_;
};

TEST_F(KeptTreesTest, ChecksColoursExpansionAndFilterAreThereAgain) {
  ClickCheckBox(Window().LayersPanel(), "layer:F.Cu");
  ClickCheckBox(Window().LayersPanel(), "active:B.Cu");
  Session().Trees().Layers().SetColor(1, ColorOf(1, 2, 3));
  Session().SetNetColors({1}, ColorOf(4, 5, 6));
  Window().NetsPanel().View().collapse(IndexOf(Window().NetsPanel(), "SelAll_Default"));
  Window().ComponentsPanel().Filter().SetSyntax(SearchSyntax::Wildcards);
  Window().ComponentsPanel().Filter().setText("R*");
  Restart();
  const LayerTree& layers = Session().Trees().Layers();
  EXPECT_FALSE(layers.IsVisible(0));
  EXPECT_TRUE(layers.IsVisible(1));
  EXPECT_EQ(Session().A().layers[static_cast<std::size_t>(layers.ActiveLayer())].name, "B.Cu");
  EXPECT_EQ(layers.ColorOfLayer(1), ColorOf(1, 2, 3));
  EXPECT_EQ(Session().NetColor(1), ColorOf(4, 5, 6));
  EXPECT_FALSE(Window().NetsPanel().View().isExpanded(IndexOf(Window().NetsPanel(), "SelAll_Default")));
  EXPECT_EQ(Window().ComponentsPanel().Filter().text(), "R*");
  EXPECT_EQ(Window().ComponentsPanel().Filter().Syntax(), SearchSyntax::Wildcards);
  EXPECT_FALSE(Window().Steps().CanUndo());
}

TEST_F(KeptTreesTest, NamesThatAreGoneArePassedOverAndKept) {
  Session().SetNetColors({1}, ColorOf(4, 5, 6));
  Restart("(net 0 \"\") (net 1 \"OTHER\")");
  EXPECT_EQ(Session().NetColor(0), kNoColor);
  Restart();
  EXPECT_EQ(Session().NetColor(1), ColorOf(4, 5, 6));
}

TEST_F(KeptTreesTest, ComparisonAndItsColumnsAreThereAgain) {
  const auto compare = [this] { Compare(SmallBoard(kWindowBoard), SmallBoard("(net 0 \"\") (net 1 \"GND\")")); };
  compare();
  CompareTree* tree = Session().Trees().Compare();
  const std::size_t gnd = tree->SubjectOf("nets/net:GND");
  CompareLook look = tree->LookOf(gnd);
  look.colorA = ColorOf(1, 2, 3);
  look.showMode = oxk::ecad::CompareColorVis::Diff;
  look.dimOverlap = true;
  tree->SetLook(gnd, look);
  Window().Comparison().Panel().View().setColumnWidth(6, 233);
  Restart();
  compare();
  EXPECT_EQ(Session().Trees().Compare()->LookOf(gnd), look);
  EXPECT_EQ(Window().Comparison().Panel().View().columnWidth(6), 233);
}

TEST_F(KeptTreesTest, DamagedFileIsPutAside) {
  Window().close();
  QFile file(file_);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("{\"shown\": ");
  file.close();
  MakeWindow();
  Window().KeepTreesIn(file_);
  Show(SmallBoard(kWindowBoard));
  EXPECT_TRUE(Session().Trees().Layers().IsVisible(0));
  EXPECT_TRUE(QFile::exists(file_ + ".damaged-1"));
  EXPECT_TRUE(Window().statusBar()->currentMessage().contains("trees.json.damaged-1"));
  Window().close();
  EXPECT_TRUE(QFile::exists(file_));
}

TEST_F(KeptTreesTest, WhatCannotBeReadAndCannotBeMovedStaysAsItIs) {
  Window().close();
  // Too long for a name with something behind.
  file_ = QString::fromStdString(PreferencesFolder()) + '/' + QString(250, 'x');
  QFile file(file_);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("damage");
  file.close();
  Restart();
  ClickCheckBox(Window().LayersPanel(), "layer:F.Cu");
  Restart();
  EXPECT_TRUE(Session().Trees().Layers().IsVisible(0));
  Window().close();
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(file.readAll(), "damage");
}

TEST_F(KeptTreesTest, FileThatSaysNonsenseChangesNothing) {
  Window().close();
  QFile file(file_);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(R"({"shown": [1], "layerColors": {"F.Cu": 7, "B.Cu": "#12"}, "activeLayer": {}, "netColors": "x",
                 "trees": {"nets": {"expanded": {"SelAll_Default": "no"}, "columns": [-5], "filter": 3}}})");
  file.close();
  MakeWindow();
  Window().KeepTreesIn(file_);
  Show(SmallBoard(kWindowBoard));
  EXPECT_TRUE(Session().Trees().Layers().IsVisible(0));
  EXPECT_EQ(Session().NetColor(0), kNoColor);
  EXPECT_EQ(Window().NetsPanel().Filter().text(), "");
}

}  // namespace
}  // namespace oxviewer::testing
