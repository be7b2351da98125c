/// \file
/// A tree with its view, for tests.
#ifndef OXECAD_TESTS_UIOX_QT_TREEFIXTURE_H
#define OXECAD_TESTS_UIOX_QT_TREEFIXTURE_H

#include <uiox/Suite.h>
#include <uiox/UserEvents.h>
#include <uiox_qt/TreeModel.h>
#include <uiox_qt/TreeView.h>

#include <QAbstractItemModelTester>
#include <QCoreApplication>
#include <QTest>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace uiox_qt_tests {

/// Makes a device with one tree, and tells in one word each callback that the tree gets.
class TreeFixture : public ::testing::Test {
 protected:
  static constexpr char kDevice[] = "board";
  static constexpr char kTree[] = "nets";

  void SetUp() override { uiox::Suite::Get().Reset(); }
  void TearDown() override {
    tester_.reset();
    view_.reset();
    uiox::Suite::Get().Reset();
  }

  /// `style`: what stands in the tree's description beside its name and class.
  void Make(const std::string& style = {}) {
    std::string why;
    const std::string json =
        R"({"components": [{"name": "nets", "class": "Tree")" + (style.empty() ? std::string() : ", " + style) + "}]}";
    uiox::Device* device = uiox::Suite::Get().LoadDevice(json, kDevice, &why);
    ASSERT_TRUE(device) << why;
    tree_ = device->FindTree(kTree);
    ASSERT_TRUE(tree_);
    const std::pair<int, const char*> reasons[] = {{3, "select"},  {4, "activate"},  {7, "check"},
                                                   {29, "expand"}, {30, "collapse"}, {35, "cell"}};
    for (const auto& [reason, word] : reasons) {
      tree_->Actions().Set({reason, &TreeFixture::Hear, this, const_cast<char*>(word)});
    }
  }

  void Show(int width = 300, int height = 400) {
    view_ = std::make_unique<uiox_qt::TreeView>(*tree_);
    // It looks at all siblings after each change, which is too much for many.
    if (!view_without_tester_) {
      tester_ = std::make_unique<QAbstractItemModelTester>(&view_->Model(),
                                                           QAbstractItemModelTester::FailureReportingMode::Fatal);
    }
    view_->resize(width, height);
    view_->show();
    view_->activateWindow();
    view_->setFocus();
    Settle();
    heard_.clear();
  }

  uiox::TreeStore& Store() { return tree_->Store(); }
  uiox::TreeWidget& Tree() { return *tree_; }
  uiox_qt::TreeView& View() { return *view_; }
  uiox_qt::TreeModel& Model() { return view_->Model(); }

  uiox::NodeId Add(const std::string& name, const std::string& parent = {}, const std::wstring& label = {},
                   const std::string& before = {}) {
    uiox::NewNode node;
    node.name = name;
    const std::wstring shown = label.empty() ? std::wstring(name.begin(), name.end()) : label;
    node.label = shown;
    return Store().Add(node, parent.empty() ? uiox::kTop : Store().Find(parent),
                       before.empty() ? uiox::kNoNode : Store().Find(before));
  }
  uiox::NodeId Id(const std::string& name) { return Store().Find(name); }
  QModelIndex Index(const std::string& name, int column = 0) { return Model().IndexOf(Id(name), column); }

  QPoint Middle(const std::string& name, int column = 0) { return View().visualRect(Index(name, column)).center(); }
  QPoint Box(const std::string& name) { return View().CheckBoxRect(Index(name)).center(); }
  void Click(const QPoint& at, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::mouseClick(View().viewport(), Qt::LeftButton, modifiers, at);
  }
  void Click(const std::string& name, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    Click(Middle(name), modifiers);
  }
  /// All that a mouse sends: QTest's double click is the third of these events alone.
  void DoubleClick(const QPoint& at) {
    Click(at);
    QTest::mouseDClick(View().viewport(), Qt::LeftButton, Qt::NoModifier, at);
    QTest::mouseRelease(View().viewport(), Qt::LeftButton, Qt::NoModifier, at);
  }
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(&View(), key, modifiers);
  }
  static void Settle() { QCoreApplication::processEvents(); }

  std::vector<std::string> Selected() {
    std::vector<std::string> names;
    for (const uiox::NodeId node : Store().Selection()) names.emplace_back(Store().Name(node));
    return names;
  }
  /// What the view shows as selected, from top to bottom.
  std::vector<std::string> SelectedInView() {
    std::vector<std::string> names;
    for (QModelIndex index = View().indexAt({View().width() / 2, 1}); index.isValid();
         index = View().indexBelow(index)) {
      if (View().selectionModel()->isSelected(index)) names.emplace_back(Store().Name(Model().NodeOf(index)));
    }
    return names;
  }
  /// The labels in sight, from top to bottom, separated by blanks.
  std::string Rows() {
    std::string rows;
    QModelIndex index = Model().index(0, 0, View().rootIndex());
    for (; index.isValid(); index = View().indexBelow(index)) {
      rows += (rows.empty() ? "" : " ") + index.data().toString().toStdString();
    }
    return rows;
  }
  std::vector<std::string> Heard() { return std::exchange(heard_, {}); }

  using Words = std::vector<std::string>;

  bool view_without_tester_ = false;
  /// Called from a callback, after the word was noted.
  std::function<void(const std::string&)> on_hear_;

 private:
  static int Hear(void* fixture, void* word) {
    auto& self = *static_cast<TreeFixture*>(fixture);
    const std::string said(static_cast<const char*>(word));
    self.heard_.push_back(said);
    if (self.on_hear_) self.on_hear_(said);
    return 0;
  }

  uiox::TreeWidget* tree_ = nullptr;
  std::unique_ptr<QAbstractItemModelTester> tester_;
  std::unique_ptr<uiox_qt::TreeView> view_;
  std::vector<std::string> heard_;
};

}  // namespace uiox_qt_tests

#endif
