// Labels and names that nobody would think of: through every path, what is read back is what was set.

#include <gtest/gtest.h>
#include <oxecadutils/StringConversion.h>
#include <tests/support/Soundness.h>
#include <uicomps/color/ColorTree.h>
#include <uicomps/color/EcadTree.h>
#include <uicomps/compare/CompareColorTree.h>
#include <uicomps/dialogs/MarkupTags.h>
#include <uicomps/userdata/UserDataTree.h>
#include <uiox/Driver.h>
#include <uiox/Suite.h>

#include <memory>
#include <string>
#include <vector>

namespace {

using namespace oxecad_ui;

/// Every opening with every content and every end.
std::vector<std::wstring> NastyLabels() {
  const std::wstring openings[] = {L"",
                                   L"<b>",
                                   L"<B ",
                                   L"</b>",
                                   L"<img src=\"color_square.png_255\">",
                                   L"<img src='file:///etc/passwd'>",
                                   L"<a href=\"http://example.org\">",
                                   L"<font color=#ff0000 size=99999999>",
                                   L"<span style=\"background:ff0000\">",
                                   L"<script>",
                                   L"<!-- ",
                                   L"&lt;&#0;&#x110000;&unknown;",
                                   L"<<<<<<<<"};
  const std::wstring pair{wchar_t(0xD83D), wchar_t(0xDE00)};
  const std::wstring contents[] = {L"net",
                                   L"<mix>",
                                   L"<both_show>",
                                   L"Parts (3)",
                                   L"\u202Ereversed\u202C",
                                   L"zero\u200Bwidth\u200D\uFEFF",
                                   pair,
                                   std::wstring(1, wchar_t(0xD800)),
                                   L"tab\tnew\nline\r",
                                   L"100 % %s %n",
                                   L"\uFFFF\u0001\u007F",
                                   std::wstring(10'000, L'x')};
  const std::wstring ends[] = {L"", L"</b>", L" (3)", L"<"};
  std::vector<std::wstring> labels;
  for (const std::wstring& opening : openings) {
    for (const std::wstring& content : contents) {
      for (const std::wstring& end : ends) labels.push_back(opening + content + end);
    }
  }
  return labels;
}

std::vector<std::string> NastyNames() {
  return {"a/b/c",
          "//",
          "groups/",
          "x groups/ y",
          " begins with a blank",
          "ends with one ",
          std::string(10'000, 'n'),
          "\xFF\xFE is no UTF-8",
          "cut \xE2\x82",
          "\xF0\x9F\x98\x80 beyond U+FFFF",
          "<b>bold</b>",
          "SelAll_",
          "mix",
          "colorless",
          "color_square.png_255",
          "tab\tnew\nline",
          "100 % %s %n",
          "root (1)"};
}

template <class Kind>
std::unique_ptr<Kind> Make() {
  uiox::Suite::Get().Reset();
  uiox::Suite::Get().ObtainTree("dev", "tree", {"a", "b", "overlap", "showMode", "dimOverlap"});
  std::unique_ptr<Kind> tree;
  if constexpr (std::is_same_v<Kind, UserDataTree>) {
    tree = std::make_unique<Kind>("dev", "tree", "leaf");
  } else {
    tree = std::make_unique<Kind>("dev", "tree");
  }
  static_cast<BaseTree&>(*tree).AddNode("root", L"root", "", "type", L"", 1, 1, 0, nullptr);
  return tree;
}

template <class Kind>
class NastyText : public testing::Test {};
using Kinds = testing::Types<Tree, ColorTree, EcadTree, CompareColorTree, UserDataTree>;
TYPED_TEST_SUITE(NastyText, Kinds);

TYPED_TEST(NastyText, LabelsAreReadBackAsTheyWereSet) {
  const std::vector<std::wstring> labels = NastyLabels();
  ASSERT_GE(labels.size(), 500u);
  const std::unique_ptr<TypeParam> tree = Make<TypeParam>();
  BaseTree& base = *tree;
  int number = 0;
  for (const std::wstring& label : labels) {
    const std::string name = std::to_string(++number);
    ASSERT_TRUE(base.AddNode(name.c_str(), label.c_str(), "root", "type", label.c_str(), 1, 0, 0, nullptr));
    ASSERT_EQ(base.GetNodeLabel(name.c_str()), label);
    ASSERT_TRUE(base.ModifyNodeLabel(name.c_str(), (label + label).c_str()));
    ASSERT_EQ(base.GetNodeLabel(name.c_str()), label + label);
    Tree::NodeInfo record;
    record.name = "record " + name;
    record.label = label;
    record.type = "type";
    ASSERT_TRUE(static_cast<Tree&>(*tree).Tree::AddNode(record));
    ASSERT_EQ(base.GetNodeLabel(record.name.c_str()), label);
    ASSERT_TRUE(tree->AddEcadNode(("sorted " + name).c_str(), label.c_str(), "record 1", Tree::ByLabel, "type", L"", 1,
                                  0, 0, nullptr) ||
                number == 0);
  }
  EXPECT_TRUE(tree->SortNodesByType("root", Tree::ByLabel));
  EXPECT_TRUE(test_support::IsSound(*tree));
  tree->Clear();
}

TYPED_TEST(NastyText, NamesAreFoundAgain) {
  const std::unique_ptr<TypeParam> tree = Make<TypeParam>();
  tree->Init();
  BaseTree& base = *tree;
  const uiox::Driver user("dev");
  tree->SetOnDirtyHandler([](void*, void*) { return 0; }, nullptr, nullptr);
  for (const std::string& name : NastyNames()) {
    SCOPED_TRACE(name.substr(0, 40));
    ASSERT_TRUE(base.AddNode(name.c_str(), L"", "root", name.c_str(), L"", 1, 0, 0, nullptr));
    const std::string below = name + "/below";
    ASSERT_TRUE(base.AddNode(below.c_str(), L"", name.c_str(), "type", L"", 1, 0, 0, nullptr));
    EXPECT_EQ(base.GetNodeType(name.c_str()), name) << "a type may be named like that, too";
    EXPECT_EQ(base.GetParent(below.c_str()), name);
    std::vector<std::string> children;
    EXPECT_EQ(tree->GetChildren(name.c_str(), children), 1);
    EXPECT_EQ(children, std::vector<std::string>{below});
    EXPECT_FALSE(base.DoesNotExist("root", name.c_str()));
    EXPECT_TRUE(user.Select("tree", {name, below}));
    EXPECT_TRUE(user.Check("tree", name));
    EXPECT_TRUE(user.Activate("tree", below));
    EXPECT_TRUE(base.MoveNodeBefore(below.c_str(), "root", name.c_str()));
    std::string rest;
    std::string head;
    BaseTree::DivideName(name, rest, head);
    EXPECT_LE(rest.size() + head.size(), name.size() + 4);
  }
  EXPECT_TRUE(test_support::IsSound(*tree));
  tree->Clear();
}

TEST(NastyText, OfCompareNodesStaysInTheTree) {
  const std::unique_ptr<CompareColorTree> tree = Make<CompareColorTree>();
  tree->Init(nullptr);
  const uiox::Driver user("dev");
  for (const std::string& name : NastyNames()) {
    SCOPED_TRACE(name.substr(0, 40));
    CompareColorTree::CompareNodeInfo info;
    info.name = name;
    info.type = CompareColorTree::s_compareType;
    info.label = L"<mix>";
    info.colorA = info.colorB = 7;
    info.designFlag = CompareColorTree::DesignBoth;
    std::string rest;
    std::string head;
    BaseTree::DivideName(name, rest, head);
    if (head != "root") static_cast<BaseTree&>(*tree).AddNode(head.c_str(), L"", "root", "type", L"", 1, 0, 0, nullptr);
    tree->AddNode(info);
    if (tree->GetNodeType(name.c_str()) != CompareColorTree::s_compareType) continue;
    EXPECT_TRUE(user.ToggleCellCheck("tree", name, "dimOverlap") || name.find('/') != std::string::npos);
  }
  EXPECT_TRUE(test_support::IsSound(*tree));
}

TEST(NastyText, BetweenColourTagsStaysText) {
  for (const std::wstring& label : NastyLabels()) {
    std::wstring opening;
    std::wstring closing;
    GetFontColorTags(0x0000FF, opening, closing);
    const std::wstring shown = opening + label + closing;
    EXPECT_EQ(shown.substr(opening.size(), label.size()), label);
  }
}

TEST(NastyText, OfNodesBecomesLabelsWithoutALoss) {
  for (const std::string& name : NastyNames()) {
    const std::wstring wide = oxecadutils::Utf8ToWideStr(name);
    if (name.find('\xFF') == std::string::npos && name.find("cut") == std::string::npos) {
      EXPECT_EQ(oxecadutils::WideStrToUtf8(wide), name);
    }
  }
}

}  // namespace
