// Large trees, wide and deep, many colours, many components: built, walked, changed, cleared and destroyed, twice. The
// second time takes no memory that it does not give back, and nothing needs more than the usual 8 MiB of stack:
// the headers promise 30,000 levels.

#include <gtest/gtest.h>
#include <malloc.h>
#include <oxcore/ColorPicker.h>
#include <sys/resource.h>
#include <uicomps/color/ColorIconBag.h>
#include <uicomps/color/ColorTree.h>
#include <uicomps/color/EcadTree.h>
#include <uicomps/compare/CompareColorTree.h>
#include <uicomps/userdata/UserDataTree.h>
#include <uiox/Suite.h>

#include <cstdlib>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace {

using namespace oxecad_ui;

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool kMeasured = false;
#else
constexpr bool kMeasured = true;
#endif

/// The full size in long runs, less otherwise, and least with a sanitizer, which needs many times as much.
int Sized(int full, int less, int least) {
  if (!kMeasured) return least;
  const char* wanted = std::getenv("OXECAD_LONG_TESTS");
  return wanted && *wanted ? full : less;
}
const int kNodes = Sized(1'000'000, 200'000, 20'000);
const int kSiblings = Sized(100'000, 20'000, 2'000);
const int kLevels = Sized(30'000, 30'000, 1'000);
const int kColors = Sized(10'000, 2'000, 500);
constexpr int kComponents = 1'000;
constexpr std::size_t kMostKept = 1 << 20;

class Load : public testing::Test {
 protected:
  Load() {
    suite.Reset();
    suite.ObtainTree("dev", "tree", {"a", "b", "overlap", "showMode", "dimOverlap"});
  }
  ~Load() override { suite.Reset(); }

  /// Does the work twice; the second time must give back what it takes.
  static void TwiceWithoutTrace(const std::function<void()>& work) {
    rlimit stack{};
    ASSERT_EQ(getrlimit(RLIMIT_STACK, &stack), 0);
    if (kMeasured) {
      ASSERT_LE(stack.rlim_cur, 8u << 20) << "the limit under test is that of most systems";
    }
    work();
    const std::size_t before = mallinfo2().uordblks + mallinfo2().hblkhd;
    work();
    const std::size_t after = mallinfo2().uordblks + mallinfo2().hblkhd;
    if (kMeasured) {
      EXPECT_LE(after, before + kMostKept);
    }
  }

  static std::string Name(int number) { return "n" + std::to_string(number); }
  static bool Add(BaseTree& tree, const std::string& name, const std::string& parent, const char* type = "type") {
    return tree.AddNode(name.c_str(), L"label", parent.c_str(), type, L"", 1, 1, 0, nullptr);
  }
  /// Levels below each other, from the root down; gives the deepest.
  static std::string Dig(BaseTree& tree, const char* type = "type") {
    std::string parent;
    for (int i = 0; i < kLevels; ++i) {
      EXPECT_TRUE(Add(tree, Name(i), parent, type));
      parent = Name(i);
    }
    return parent;
  }

  uiox::Suite& suite = uiox::Suite::Get();
};

TEST_F(Load, AMillionNodesInOneTree) {
  TwiceWithoutTrace([] {
    Tree tree("dev", "tree");
    tree.Init();
    Add(tree, "root", "");
    for (int i = 0; i < kNodes / 100; ++i) {
      const std::string branch = Name(i);
      Add(tree, branch, "root");
      for (int k = 1; k < 100; ++k) Add(tree, branch + '/' + std::to_string(k), branch);
    }
    std::vector<std::string> leaves;
    EXPECT_EQ(tree.GetLeaves(nullptr, leaves), kNodes / 100 * 99);
    tree.SetChildrenCheckSensitive("root", true);
    Tree::TreeInfo all;
    tree.GetTreeInfo(all, Tree::Everything(), true);
    EXPECT_EQ(all.records.size(), static_cast<std::size_t>(kNodes) + 1);
    tree.ExpandAll();
    tree.CollapseAll();
    tree.Clear();
    EXPECT_FALSE(tree.HasRoot());
  });
}

TEST_F(Load, AHundredThousandSiblings) {
  TwiceWithoutTrace([] {
    ColorTree tree("dev", "tree");
    tree.Init(nullptr);
    Add(tree, "root", "");
    for (int i = 0; i < kSiblings; ++i) {
      const std::wstring label = L"R" + std::to_wstring((i * 7919) % kSiblings);
      tree.AddEcadNode(Name(i).c_str(), label.c_str(), "root", Tree::ByLabel, "type", L"", 1, 0, 0, nullptr);
    }
    EXPECT_TRUE(tree.SortNodesByType("root", Tree::ByLabel));
    static_cast<ColorTree&>(tree).ChangeNodeColor("root", 0x123456u);
    EXPECT_EQ(tree.GetNodeColor(Name(kSiblings - 1).c_str()), 0x123456u);
    EXPECT_EQ(tree.GetNoOfChildren(), kSiblings);
    tree.Clear();
  });
}

TEST_F(Load, ThousandsOfLevels) {
  TwiceWithoutTrace([] {
    Tree tree("dev", "tree");
    tree.Init();
    const std::string deepest = Dig(tree);
    std::vector<std::string> leaves;
    EXPECT_EQ(tree.GetLeaves(nullptr, leaves), 1);
    Tree::TreeInfo all;
    tree.GetTreeInfo(all, Tree::Everything(), true);
    EXPECT_EQ(all.records.size(), static_cast<std::size_t>(kLevels));
    tree.SetChildrenCheckSensitive(deepest.c_str(), false);
    tree.ExpandAll();
    tree.CollapseAll();
    EXPECT_TRUE(tree.SetNodeState(deepest.c_str(), Tree::Checked));
    tree.GetCheckedNodes(all);
    tree.Clear();
    EXPECT_FALSE(tree.HasRoot());
  });
}

TEST_F(Load, ThousandsOfLevelsOfColours) {
  TwiceWithoutTrace([] {
    ColorTree tree("dev", "tree");
    tree.Init(nullptr);
    const std::string deepest = Dig(tree);
    static_cast<ColorTree&>(tree).ChangeNodeColor("n0", 0xABCDEFu);
    EXPECT_EQ(tree.GetNodeColor(deepest.c_str()), 0xABCDEFu);
    static_cast<ColorTree&>(tree).ChangeNodeColor(deepest.c_str(), 0x00FF00u);
    EXPECT_EQ(tree.GetNodeColor("n0"), 0x00FF00u) << "an only child gives its colour to all above";
    tree.Clear();
  });
}

TEST_F(Load, ThousandsOfLevelsOfComparedColours) {
  TwiceWithoutTrace([] {
    CompareColorTree tree("dev", "tree");
    tree.Init(nullptr);
    const std::string deepest = Dig(tree, CompareColorTree::s_compareType);
    tree.ChangeNodeInfo("n0", 1, 2, 3, CompareColorTree::ShowMode::Diff, Tree::Checked, CompareColorTree::DesignBoth);
    tree.ChangeNodeInfo(deepest.c_str(), 4, 5, 6, CompareColorTree::ShowMode::OnlyA, Tree::Unchecked,
                        CompareColorTree::DesignBoth);
    tree.Clear();
  });
}

TEST_F(Load, ThousandsOfLevelsOfTotals) {
  TwiceWithoutTrace([] {
    UserDataTree tree("dev", "tree", "leaf");
    tree.Init();
    const std::string deepest = Dig(tree);
    tree.OnLeafAdded(deepest.c_str());
    tree.UpdateParentTotals(deepest.c_str());
    std::vector<void*> data;
    tree.GetData(data, nullptr, true, Tree::Everything());
    tree.Clear();
  });
}

TEST_F(Load, TenThousandColours) {
  TwiceWithoutTrace([] {
    ColorTree tree("dev", "tree");
    tree.Init(nullptr);
    Add(tree, "root", "");
    for (int i = 0; i < kColors; ++i) {
      tree.AddNode(Name(i).c_str(), L"label", "root", static_cast<unsigned>(i), 1, L"", 0, 0);
    }
    for (int i = 0; i < kColors; ++i) ASSERT_EQ(tree.GetNodeColor(Name(i).c_str()), static_cast<unsigned>(i));
    tree.Clear();
  });
}

TEST_F(Load, AThousandComponentsOnOneDevice) {
  for (int i = 0; i < kComponents; ++i) suite.ObtainTree("dev", Name(i));
  TwiceWithoutTrace([] {
    std::vector<std::unique_ptr<EcadTree>> trees;
    for (int i = 0; i < kComponents; ++i) {
      trees.push_back(std::make_unique<EcadTree>("dev", Name(i).c_str()));
      trees.back()->Init();
      Add(*trees.back(), "root", "");
      EXPECT_TRUE(Add(*trees.back(), Name(i), "root"));
    }
    for (const auto& tree : trees) EXPECT_EQ(tree->GetNoOfChildren(), 1);
    for (const auto& tree : trees) tree->Clear();
  });
}

}  // namespace
