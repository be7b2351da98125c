#include "Wire.h"

namespace {

using uiox::Widget;
using uiox_test::kEnd;
using uiox_test::Slot;
using uiox_test::WireTest;

class CellOperations : public WireTest {
 protected:
  CellOperations() {
    Add("root", "");
    Add("n", "root");
    Add("m", "root");
  }
  int MakeMenu() {
    static const char* const names[] = {"none", "a_show", "b_show"};
    static const char* const images[] = {"", "a.png", "b.png"};
    return Do(2053, "menu", "OptionMenu", 67, 3, &names[0], 87, 3, &images[0], 32, 3);
  }
  std::wstring Label(const char* node, const char* column) {
    const wchar_t* label = nullptr;
    EXPECT_EQ(Do(2162, node, column, 2, &label), 0);
    return label ? label : L"(null)";
  }
  std::string Control(const char* node, const char* column) {
    const char* control = nullptr;
    EXPECT_EQ(Do(2162, node, column, 140, &control), 0);
    return control ? control : "(null)";
  }
};

TEST_F(CellOperations, LabelsAreSetAndRead) {
  EXPECT_EQ(Label("n", "a"), L"");
  EXPECT_EQ(Do(2160, "n", "a", 2, L"<mix>"), 0);
  EXPECT_EQ(Label("n", "a"), L"<mix>");
  EXPECT_EQ(Label("n", "b"), L"");
  EXPECT_EQ(Label("m", "a"), L"");
  EXPECT_EQ(Do(2160, "n", "a", 2, nullptr), 0);
  EXPECT_EQ(Label("n", "a"), L"");
}

TEST_F(CellOperations, UnknownNodesAndColumnsAreRefused) {
  const wchar_t* label = L"preset";
  EXPECT_NE(Do(2160, "n", "c", 2, L"x"), 0);
  EXPECT_NE(Do(2160, "missing", "a", 2, L"x"), 0);
  EXPECT_NE(Do(2160, "n", nullptr, 2, L"x"), 0);
  EXPECT_NE(Do(2160, "n", "a", 3, L"x"), 0);
  EXPECT_NE(Do(2162, "n", "c", 2, &label), 0);
  EXPECT_NE(Do(2162, "missing", "a", 2, &label), 0);
  EXPECT_STREQ(label, L"preset");
}

TEST_F(CellOperations, AMenuIsMadeWithItsItems) {
  EXPECT_EQ(MakeMenu(), 0);
  const Widget* menu = suite.Find("dev", "menu");
  ASSERT_NE(menu, nullptr);
  EXPECT_EQ(menu->Class(), uiox::WidgetClass::OptionMenu);
  ASSERT_EQ(menu->Items().size(), 3u);
  EXPECT_EQ(menu->Items()[1].name, "a_show");
  EXPECT_EQ(menu->Items()[1].image, "a.png");
  EXPECT_EQ(menu->VisibleItems(), 3);
  EXPECT_EQ(menu->ControlOf(), &tree);
}

TEST_F(CellOperations, AControlsNameIsUniqueInItsDevice) {
  EXPECT_EQ(MakeMenu(), 0);
  EXPECT_NE(MakeMenu(), 0);
  EXPECT_NE(Do(2053, "tree", "CheckButton"), 0);
  EXPECT_NE(Do(2053, "dev", "CheckButton"), 0);
  EXPECT_NE(Do(2053, "", "CheckButton"), 0);
  EXPECT_EQ(tree.Controls().size(), 1u);
}

TEST_F(CellOperations, OnlyCheckButtonsAndMenusStandInCells) {
  EXPECT_NE(Do(2053, "x", "InputPanel"), 0);
  EXPECT_NE(Do(2053, "x", "Tree"), 0);
  EXPECT_NE(Do(2053, "x", "Nonsense"), 0);
  EXPECT_NE(Do(2053, "x", nullptr), 0);
  EXPECT_EQ(suite.Find("dev", "x"), nullptr);
}

TEST_F(CellOperations, BadItemListsMakeNoControl) {
  const char* const names[] = {"a", nullptr};
  EXPECT_NE(Do(2053, "x", "OptionMenu", 67, 2, &names[0]), 0);
  EXPECT_NE(Do(2053, "x", "OptionMenu", 67, -1, &names[0]), 0);
  EXPECT_NE(Do(2053, "x", "OptionMenu", 67, 1, nullptr), 0);
  EXPECT_NE(Do(2053, "x", "CheckButton", 67, 1, &names[0]), 0) << "a check button has no items";
  EXPECT_EQ(suite.Find("dev", "x"), nullptr);
}

TEST_F(CellOperations, AControlStandsInOneCell) {
  EXPECT_EQ(MakeMenu(), 0);
  EXPECT_EQ(Do(2160, "n", "a", 140, "menu"), 0);
  EXPECT_EQ(Control("n", "a"), "menu");
  EXPECT_EQ(Do(2160, "m", "a", 140, "menu"), 0);
  EXPECT_EQ(Control("n", "a"), "");
  EXPECT_EQ(Control("m", "a"), "menu");
  EXPECT_EQ(Do(2160, "m", "a", 140, ""), 0);
  EXPECT_EQ(Control("m", "a"), "");
  EXPECT_NE(suite.Find("dev", "menu"), nullptr) << "it waits for its next cell";
}

TEST_F(CellOperations, OnlyTheTreesOwnControlsStandInItsCells) {
  suite.FindDevice("dev")->Add(uiox::WidgetClass::CheckButton, "button");
  suite.ObtainTree("dev", "other", {"a"}).CreateControl("theirs", uiox::WidgetClass::CheckButton);
  for (const char* name : {"button", "theirs", "missing", "tree"}) {
    EXPECT_NE(Do(2160, "n", "a", 2, L"label", 140, name), 0) << name;
  }
  EXPECT_EQ(Label("n", "a"), L"");
}

TEST_F(CellOperations, TheCheckStateIsTheControls) {
  EXPECT_EQ(Do(2053, "n_dim", "CheckButton"), 0);
  EXPECT_EQ(Do(2160, "n", "b", 140, "n_dim"), 0);
  unsigned state = 77;
  EXPECT_EQ(Do(2165, "n", "b", 31, &state), 0);
  EXPECT_EQ(state, 0u);
  for (const unsigned wanted : {1u, 2u, 0u}) {
    EXPECT_EQ(Do(2163, "n", "b", 31, wanted), 0);
    EXPECT_EQ(Do(2165, "n", "b", 31, &state), 0);
    EXPECT_EQ(state, wanted);
  }
  EXPECT_NE(Do(2163, "n", "b", 31, 0xFFFFFFFFu), 0) << "no check state";
  EXPECT_NE(Do(2163, "n", "b", 31, 3), 0);
  EXPECT_EQ(suite.Find("dev", "n_dim")->CheckState(), 0u);
}

TEST_F(CellOperations, TheChosenItemIsTheControls) {
  EXPECT_EQ(MakeMenu(), 0);
  EXPECT_EQ(Do(2160, "n", "a", 140, "menu"), 0);
  const char* chosen = nullptr;
  EXPECT_EQ(Do(2163, "n", "a", 468, "b_show"), 0);
  EXPECT_EQ(Do(2165, "n", "a", 468, &chosen), 0);
  EXPECT_STREQ(chosen, "b_show");
  EXPECT_NE(Do(2163, "n", "a", 468, "mix_show"), 0) << "no such item";
  EXPECT_EQ(Do(2165, "n", "a", 468, &chosen), 0);
  EXPECT_STREQ(chosen, "b_show");
  int count = 0;
  const char* const* names = nullptr;
  EXPECT_EQ(Do(2165, "n", "a", 67, &count, &names), 0);
  ASSERT_EQ(count, 3);
  EXPECT_STREQ(names[2], "b_show");
  EXPECT_EQ(Do(2165, "n", "a", 87, &count, &names), 0);
  EXPECT_STREQ(names[2], "b.png");
}

TEST_F(CellOperations, AnEmptyCellHasNoControlToAsk) {
  unsigned state = 77;
  EXPECT_NE(Do(2165, "n", "a", 31, &state), 0);
  EXPECT_NE(Do(2163, "n", "a", 31, 1), 0);
  EXPECT_EQ(state, 77u);
}

TEST_F(CellOperations, AnAttributeOfTheOtherClassIsRefused) {
  EXPECT_EQ(MakeMenu(), 0);
  EXPECT_EQ(Do(2160, "n", "a", 140, "menu"), 0);
  unsigned state = 77;
  EXPECT_NE(Do(2163, "n", "a", 31, 1), 0);
  EXPECT_NE(Do(2165, "n", "a", 31, &state), 0);
  EXPECT_EQ(state, 77u);
}

int Nothing(void*, void*) { return 0; }

TEST_F(CellOperations, ADestroyedControlLeavesItsCellAndItsName) {
  EXPECT_EQ(Do(2053, "n_dim", "CheckButton"), 0);
  EXPECT_EQ(Do(2160, "n", "b", 140, "n_dim"), 0);
  EXPECT_EQ(ui_set_action("dev", "n_dim", 4, Nothing, nullptr, Slot(1)), 0);
  EXPECT_EQ(Do(2085, "n_dim"), 0);
  EXPECT_EQ(Control("n", "b"), "");
  EXPECT_NE(ui_set_action("dev", "n_dim", 4, Nothing, nullptr, Slot(1)), 0);
  EXPECT_NE(Do(2085, "n_dim"), 0);
  EXPECT_NE(Do(2085, "tree"), 0) << "no cell control";
  EXPECT_EQ(Do(2053, "n_dim", "CheckButton"), 0);
}

TEST_F(CellOperations, AControlOutlivesItsNode) {
  EXPECT_EQ(Do(2053, "n_dim", "CheckButton"), 0);
  EXPECT_EQ(Do(2160, "n", "b", 140, "n_dim"), 0);
  Do(2031, "n");
  Add("n", "root");
  EXPECT_EQ(Control("n", "b"), "");
  EXPECT_EQ(Do(2160, "n", "b", 140, "n_dim"), 0);
  EXPECT_EQ(Do(2031, "root"), 0);
  Add("root", "");
  Add("n", "root");
  EXPECT_EQ(Control("n", "b"), "");
  EXPECT_EQ(Do(2160, "n", "b", 140, "n_dim"), 0);
}

TEST_F(CellOperations, TheSelectedCellIsNamedAndCleared) {
  const char* node = "preset";
  const char* column = "preset";
  EXPECT_EQ(Retrieve("tree", 233, &column, 232, &node), 0);
  EXPECT_STREQ(node, "");
  EXPECT_STREQ(column, "");
  EXPECT_EQ(Modify("tree", 233, "b", 232, "n"), 0);
  EXPECT_EQ(Retrieve("tree", 233, &column, 232, &node), 0);
  EXPECT_STREQ(node, "n");
  EXPECT_STREQ(column, "b");
  EXPECT_NE(Modify("tree", 233, "c", 232, "n"), 0);
  EXPECT_NE(Modify("tree", 232, "missing"), 0);
  EXPECT_EQ(Modify("tree", 233, "", 232, ""), 0);
  EXPECT_FALSE(tree.SelectedCell());
}

}  // namespace
