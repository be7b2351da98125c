// What must not be done from inside a call of the library ends a debug build with a message that says so.

#ifndef NDEBUG
#include <gtest/gtest.h>
#include <oxcore/ColorPicker.h>
#include <uicomps/color/ColorTree.h>
#include <uicomps/color/EcadTree.h>
#include <uicomps/compare/CompareColorTree.h>
#include <uicomps/input/InputVerifier.h>
#include <uiox/Driver.h>
#include <uiox/Suite.h>

#include <memory>

namespace torture {
namespace {

using namespace oxecad_ui;

class Refused : public testing::Test {
 protected:
  Refused() {
    suite.Reset();
    suite.ObtainTree("dev", "tree", {"a", "b", "overlap", "showMode", "dimOverlap"});
  }
  ~Refused() override {
    oxcore::ResetColorPicker();
    suite.Reset();
  }

  /// A tree with the nodes "root", "p" and "p/x".
  template <class Kind>
  std::unique_ptr<Kind> Make(const char* type = "type") {
    auto tree = std::make_unique<Kind>("dev", "tree");
    BaseTree& base = *tree;
    base.AddNode("root", L"", "", "type", L"", 1, 1, 0, nullptr);
    base.AddNode("p", L"", "root", type, L"", 1, 1, 0, nullptr);
    base.AddNode("p/x", L"", "p", type, L"", 1, 1, 0, nullptr);
    return tree;
  }

  uiox::Suite& suite = uiox::Suite::Get();
  uiox::Driver user{"dev"};
};

TEST_F(Refused, AColorTreeMustOutliveItsColourPicker) {
  auto tree = Make<ColorTree>();
  tree->Init(nullptr);
  unsigned int answer = 7;
  oxcore::SetColorPicker([&](const oxcore::ColorPickerRequest&) { return tree.reset(), answer; });
  EXPECT_DEATH(user.Activate("tree", "p"), "destroyed while its colour picker was open");
  EXPECT_DEATH(tree->ChangeNodeColor({"p", "p/x"}), "destroyed while its colour picker was open");
  answer = oxcore::kNoPickedColor;
  EXPECT_TRUE(user.Activate("tree", "p"));
  EXPECT_EQ(tree, nullptr) << "who cancels may destroy it";
}

TEST_F(Refused, ACompareTreeMustOutliveItsColourPicker) {
  auto tree = Make<CompareColorTree>("colorvis");
  tree->Init(nullptr);
  oxcore::SetColorPicker([&](const oxcore::ColorPickerRequest&) { return tree.reset(), 7u; });
  EXPECT_DEATH(user.ClickCell("tree", "p", "a"), "destroyed while its colour picker was open");
  oxcore::SetColorPicker([&](const oxcore::ColorPickerRequest&) { return tree.reset(), oxcore::kNoPickedColor; });
  EXPECT_DEATH(user.ClickCell("tree", "p", "a"), "destroyed while its colour picker was open");
}

/// Destroys the tree at one node.
class Destroying : public Tree::NodeFilter {
 public:
  Destroying(std::unique_ptr<Tree>& tree, const char* at, Result then) : tree_(tree), at_(at), then_(then) {}
  Result operator()(const Tree*, const char*) const override { return Accept; }
  Result operator()(const Tree::NodeInfo& info) const override {
    if (info.name != at_) return Accept;
    tree_.reset();
    return then_;
  }

 private:
  std::unique_ptr<Tree>& tree_;
  const std::string at_;
  const Result then_;
};

TEST_F(Refused, ATreeMustOutliveItsWalks) {
  auto tree = Make<Tree>();
  using Filter = Tree::NodeFilter;
  for (const char* at : {"root", "p", "p/x"}) {
    for (const Filter::Result then : {Filter::Accept, Filter::SkipNode}) {
      Tree::TreeInfo info;
      EXPECT_DEATH(tree->GetTreeInfo(info, Destroying(tree, at, then), true), "destroyed by the filter of a walk")
          << at;
    }
  }
  Tree::TreeInfo info;
  tree->GetTreeInfo(info, Destroying(tree, "root", Filter::StopSiblings), true);
  EXPECT_EQ(tree, nullptr) << "who ends the walk may destroy it";
}

std::unique_ptr<BaseTree> g_placed;

TEST_F(Refused, ATreeMustOutliveItsPlacers) {
  g_placed = Make<BaseTree>();
  const auto insert = [](BaseTree::Placer placer) {
    return g_placed->InsertNodeSortByName("n", L"", "p", placer, nullptr, "type", L"", 1, 0, 0);
  };
  const BaseTree::Placer place = [](const char*, int, const char**, const char*&) { return g_placed.reset(), true; };
  EXPECT_DEATH(insert(place), "destroyed by the placer");
  const BaseTree::Placer decline = [](const char*, int, const char**, const char*&) { return g_placed.reset(), false; };
  EXPECT_EQ(insert(decline), BaseTree::Declined);
  EXPECT_EQ(g_placed, nullptr) << "who declines may destroy it";
}

TEST_F(Refused, SomeTreesNeedADirtyHandler) {
  auto ecad = Make<EcadTree>();
  EXPECT_DEATH(ecad->OnActivate("p"), "needs a dirty handler");
  EXPECT_DEATH(ecad->OnSelect(0, nullptr, 0), "needs a dirty handler");
  auto colors = Make<ColorTree>();
  EXPECT_DEATH(colors->OnSelect(0, nullptr, 0), "needs a dirty handler");
}

class DestroyingTest : public InputTest {
 public:
  explicit DestroyingTest(std::unique_ptr<InputVerifier>& verifier) : verifier_(verifier) {}
  bool CanBeAPartOfValidInput(const wchar_t*) const override { return verifier_.reset(), true; }
  bool GetValidInput(const wchar_t*, std::wstring&) const override { return verifier_.reset(), false; }

 private:
  std::unique_ptr<InputVerifier>& verifier_;
};

TEST_F(Refused, AVerifierMustOutliveItsTestsAndNeedsThem) {
  suite.LoadDevice(R"({ "components": [ { "name": "name", "class": "InputPanel" },
    { "name": "other", "class": "InputPanel" } ] })",
                   "dlg");
  auto verifier = std::make_unique<InputVerifier>("dlg");
  const oxkutils::SmartPtr<InputTest> test(new DestroyingTest(verifier));
  ASSERT_TRUE(verifier->AddControl("name", test));
  ASSERT_TRUE(verifier->AddControl("other", oxkutils::SmartPtr<InputTest>(nullptr)));
  const uiox::Driver typist("dlg");
  EXPECT_DEATH(typist.Type("name", L"x"), "destroyed by the test of a field");
  EXPECT_DEATH((typist.FocusIn("name"), typist.FocusOut("name")), "destroyed by the test of a field");
  EXPECT_DEATH(typist.Type("other", L"x"), "a field needs a test");
  EXPECT_DEATH((typist.FocusIn("other"), typist.FocusOut("other")), "a field needs a test");
  verifier->Clear();
}

}  // namespace
}  // namespace torture
#endif
