#include "TreeFixture.h"

namespace uiox_qt_tests {
namespace {

using uiox_qt::CheckRule;

class TreeChecksTest : public TreeFixture {
 protected:
  /// root with a, b, c and d, all with check boxes.
  void Plant() {
    Make(R"("checkBoxes": true)");
    Add("root");
    for (const char* name : {"a", "b", "c", "d"}) Add(name, "root");
    Store().SetExpanded(Id("root"), 1);
    Show();
  }

  /// The names of the checked nodes.
  Words Checked() {
    Words names;
    for (const char* name : {"a", "b", "c", "d"}) {
      if (Store().CheckState(Id(name)) == 1) names.emplace_back(name);
    }
    return names;
  }

  void Drag(const std::vector<std::string>& way, bool release = true) {
    QTest::mousePress(View().viewport(), Qt::LeftButton, {}, Box(way.front()));
    for (const std::string& name : way) Move(Box(name));
    if (release) QTest::mouseRelease(View().viewport(), Qt::LeftButton, {}, Box(way.back()));
  }

  void Move(const QPoint& at) {
    QMouseEvent move(QEvent::MouseMove, at, View().viewport()->mapToGlobal(at), Qt::NoButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(View().viewport(), &move);
  }
};

TEST_F(TreeChecksTest, ShiftClickGivesTheRangeTheStateOfItsEnd) {
  Plant();
  Click(Box("b"));
  Click(Box("d"), Qt::ShiftModifier);
  EXPECT_EQ(Checked(), (Words{"b", "c", "d"}));
  Click(Box("c"), Qt::ShiftModifier);
  EXPECT_EQ(Checked(), Words{"b"});
  EXPECT_EQ(Selected(), Words{});
}

TEST_F(TreeChecksTest, ShiftClickWithoutABeginningTogglesOneBox) {
  Plant();
  Click(Box("c"), Qt::ShiftModifier);
  EXPECT_EQ(Checked(), Words{"c"});
}

TEST_F(TreeChecksTest, DraggingGivesAllBoxesTheStateOfTheFirst) {
  Plant();
  Store().SetCheckState(Id("b"), 1);
  Drag({"a", "b", "c"});
  EXPECT_EQ(Checked(), (Words{"a", "b", "c"}));
  Drag({"c", "b"});
  EXPECT_EQ(Checked(), Words{"a"});
}

TEST_F(TreeChecksTest, DraggingBackLeavesTheBoxesOut) {
  Plant();
  Drag({"a", "b", "c", "b"});
  EXPECT_EQ(Checked(), (Words{"a", "b"}));
}

TEST_F(TreeChecksTest, NothingHappensBeforeTheButtonIsReleased) {
  Plant();
  Drag({"a", "b"}, false);
  EXPECT_EQ(Heard(), Words{});
  EXPECT_EQ(Checked(), Words{});
}

TEST_F(TreeChecksTest, LockedBoxesStay) {
  Plant();
  Store().SetCheckSensitive(Id("b"), false);
  Drag({"a", "b", "c"});
  EXPECT_EQ(Checked(), (Words{"a", "c"}));
  Drag({"b", "c"});
  EXPECT_EQ(Checked(), (Words{"a", "c"}));
}

TEST_F(TreeChecksTest, EachBoxIsToldWhereTheTreeKnowsNoOtherWay) {
  Plant();
  Drag({"a", "b", "c"});
  EXPECT_EQ(Heard(), (Words{"check", "check", "check"}));
}

TEST_F(TreeChecksTest, TreeThatTakesItsSelectionAlongIsToldOnce) {
  Plant();
  View().SetCheckRule(CheckRule::WithSelection);
  Click("d");
  Heard();
  on_hear_ = [this](const std::string&) {
    EXPECT_EQ(Selected(), (Words{"c", "a", "b"}));
    EXPECT_EQ(Tree().CheckedNode(), Id("c"));
    for (const uiox::NodeId node : Store().Selection()) Store().SetCheckState(node, 1);
  };
  Drag({"c", "b", "a"});
  EXPECT_EQ(Heard(), Words{"check"});
  EXPECT_EQ(Checked(), (Words{"a", "b", "c"}));
  EXPECT_EQ(Selected(), Words{"d"});
  EXPECT_EQ(SelectedInView(), Words{"d"});
}

TEST_F(TreeChecksTest, TreeMayEndWhileItIsTold) {
  Plant();
  View().SetCheckRule(CheckRule::WithSelection);
  on_hear_ = [this](const std::string&) {
    View().Detach();
    uiox::Suite::Get().Reset();
  };
  Drag({"a", "b"});
  EXPECT_EQ(Heard(), Words{"check"});
}

TEST_F(TreeChecksTest, SpaceTogglesTheWholeSelectionLikeTheCurrentNode) {
  Plant();
  Store().SetCheckState(Id("b"), 1);
  Click("a");
  Click("c", Qt::ShiftModifier);
  Heard();
  Press(Qt::Key_Space);
  EXPECT_EQ(Checked(), (Words{"a", "b", "c"}));
  EXPECT_EQ(Heard(), (Words{"check", "check"}));
  Press(Qt::Key_Space);
  EXPECT_EQ(Checked(), Words{});
}

// --- Keys that begin a search ----------------------------------------------------------------------------------------

TEST_F(TreeChecksTest, EveryPrintableKeyButSpaceBeginsASearch) {
  Plant();
  std::string searched;
  View().SetSearch([&](const QString& text) { searched += text.toStdString(); });
  Click("a");
  Heard();
  QTest::keyClicks(&View(), "h*+-7");
  EXPECT_EQ(searched, "h*+-7");
  Press(Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(searched, "h*+-7");
  Press(Qt::Key_Space);
  EXPECT_EQ(searched, "h*+-7");
  EXPECT_EQ(Store().CheckState(Id("a")), 1u);
}

TEST_F(TreeChecksTest, SearchComesBeforeTheWindowsShortcuts) {
  Plant();
  View().SetSearch([](const QString&) {});
  QKeyEvent letter(QEvent::ShortcutOverride, Qt::Key_H, {}, "h");
  letter.ignore();
  QCoreApplication::sendEvent(&View(), &letter);
  EXPECT_TRUE(letter.isAccepted());
  QKeyEvent command(QEvent::ShortcutOverride, Qt::Key_H, Qt::ControlModifier, "\b");
  command.ignore();
  QCoreApplication::sendEvent(&View(), &command);
  EXPECT_FALSE(command.isAccepted());
}

TEST_F(TreeChecksTest, ShiftRightExpandsTheBranch) {
  Plant();
  View().SetSearch([](const QString&) {});
  Add("e", "d");
  Add("f", "e");
  Click("d");
  Press(Qt::Key_Right, Qt::ShiftModifier);
  EXPECT_EQ(Rows(), "root a b c d e f");
}

}  // namespace
}  // namespace uiox_qt_tests
