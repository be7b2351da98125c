#include <tests/uicomps/compare/CompareWire.h>

#include <memory>

namespace compare_tests {
namespace {

using C = CompareColorTree;

struct Values {
  unsigned a = 1;
  unsigned b = 1;
  unsigned overlap = 1;
  ShowMode show = ShowMode::OnlyB;
  Tree::NodeState dim = Tree::Checked;
  C::DesignFlag flag = C::DesignNone;
};

class CompareRead : public CompareWire {
 protected:
  Values Read(const char* node) {
    Values v;
    static_cast<const C&>(tree).GetNodeInfo(node, v.a, v.b, v.overlap, v.show, v.dim, v.flag);
    return v;
  }
};

TEST_F(CompareRead, AsksForTheCellsInOrder) {
  Cells("n", "<a_show>", 2, "5", "6", "7");
  const Values v = Read("n");
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2162 GetCell "n" "showMode" | 2->L"<a_show>" | 0
    do dev:tree 2165 GetCellControl "n" "dimOverlap" | 31->2 | 0
    do dev:tree 2162 GetCell "n" "a" | 2->L"<img src=\"color_square.png_5\">" | 0
    do dev:tree 2162 GetCell "n" "b" | 2->L"<img src=\"color_square.png_6\">" | 0
    do dev:tree 2162 GetCell "n" "overlap" | 2->L"<img src=\"color_square.png_7\">" | 0
  )"));
  EXPECT_EQ(v.show, ShowMode::OnlyA);
  EXPECT_EQ(v.dim, Tree::PartlyChecked);
  EXPECT_EQ(v.a, 5u);
  EXPECT_EQ(v.b, 6u);
  EXPECT_EQ(v.overlap, 7u);
  EXPECT_EQ(v.flag, C::DesignBoth);
}

TEST_F(CompareRead, TellsTheDesignsByTheFilledCells) {
  Cells("none", "", 0, "", "", "7");
  EXPECT_EQ(Read("none").flag, C::DesignNone);
  Cells("a", "", 0, "5", "", "");
  EXPECT_EQ(Read("a").flag, C::DesignA);
  Cells("b", "", 0, "", "<mix>", "");
  EXPECT_EQ(Read("b").flag, C::DesignB);
  Cells("both", "", 0, "?", "?", "");
  EXPECT_EQ(Read("both").flag, C::DesignBoth) << "whatever they hold";
}

TEST_F(CompareRead, GivesDefaultsForCellsThatCannotBeRead) {
  for (const Failure failure : {Failure::Refused, Failure::Scribbled, Failure::Ignored}) {
    toolkit.FailAll(failure);
    const Values v = Read("n");
    EXPECT_EQ(v.a, kNone) << Name(failure);
    EXPECT_EQ(v.b, kNone) << Name(failure);
    EXPECT_EQ(v.overlap, kNone) << Name(failure);
    EXPECT_EQ(v.show, ShowMode::Mixed) << Name(failure);
    EXPECT_EQ(static_cast<unsigned>(v.dim), kNone) << Name(failure);
    EXPECT_EQ(v.flag, C::DesignNone) << Name(failure);
  }
}

TEST_F(CompareRead, TakesANullLabelAsEmpty) {
  toolkit.FailAll(Failure::NullAnswers);
  const Values v = Read("n");
  EXPECT_EQ(v.a, kNone);
  EXPECT_EQ(v.show, ShowMode::Mixed);
  EXPECT_EQ(v.dim, Tree::Unchecked);
  EXPECT_EQ(v.flag, C::DesignNone);
}

class CompareRecord : public CompareWire {
 protected:
  CompareRecord() {
    toolkit.When(Doing(2202, "n")).Give(2, L"Net").Give(282, "colorvis").Give(4, 1);
    toolkit.When(Doing(2203, "n")).Give(177, 0).Give(31, 1);
    Cells("n", "<diff_show>", 1, "5", "6", "7");
  }
  std::unique_ptr<Tree::NodeInfo> Read(const char* node) {
    return std::unique_ptr<Tree::NodeInfo>(static_cast<const C&>(tree).GetNodeInfo(node));
  }
};

TEST_F(CompareRecord, IsReadAsThePlainTreesAndThenByCells) {
  const auto record = Read("n");
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2202 GetNode "n" | 2->L"Net" | 0
    free 2 L"Net" | 0
    do dev:tree 2203 InquireNode "n" | 177->0 31->1 | 0
    do dev:tree 2202 GetNode "n" | 282->"colorvis" | 0
    free 282 "colorvis" | 0
    do dev:tree 2202 GetNode "n" | 4->1 | 0
    do dev:tree 2162 GetCell "n" "showMode" | 2->L"<diff_show>" | 0
    do dev:tree 2165 GetCellControl "n" "dimOverlap" | 31->1 | 0
    do dev:tree 2162 GetCell "n" "a" | 2->L"<img src=\"color_square.png_5\">" | 0
    do dev:tree 2162 GetCell "n" "b" | 2->L"<img src=\"color_square.png_6\">" | 0
    do dev:tree 2162 GetCell "n" "overlap" | 2->L"<img src=\"color_square.png_7\">" | 0
  )"));
  const auto* const info = dynamic_cast<C::CompareNodeInfo*>(record.get());
  ASSERT_NE(info, nullptr);
  EXPECT_EQ(info->name, "n");
  EXPECT_EQ(info->label, L"Net");
  EXPECT_EQ(info->type, "colorvis");
  EXPECT_EQ(info->state, Tree::Checked);
  EXPECT_TRUE(info->expanded);
  EXPECT_EQ(info->colorA, 5u);
  EXPECT_EQ(info->colorB, 6u);
  EXPECT_EQ(info->colorOverlap, 7u);
  EXPECT_EQ(info->showMode, ShowMode::Diff);
  EXPECT_EQ(info->dim, Tree::Checked);
  EXPECT_EQ(info->designFlag, C::DesignBoth);
}

TEST_F(CompareRecord, IsAPlainOneForAnyOtherType) {
  for (const char* type : {"", "group", "colorvis2", "Colorvis"}) {
    toolkit.When(Doing(2202, "n").With(282)).Give(282, type);
    const auto record = Read("n");
    ASSERT_NE(record, nullptr);
    EXPECT_EQ(dynamic_cast<C::CompareNodeInfo*>(record.get()), nullptr) << type;
    EXPECT_EQ(record->type, type);
    EXPECT_EQ(toolkit.TakeLines().size(), 6u) << "no cell is read";
  }
}

TEST_F(CompareRecord, IsNullWithoutAName) {
  EXPECT_EQ(Read(nullptr), nullptr);
  EXPECT_EQ(Read(""), nullptr);
  EXPECT_TRUE(toolkit.Took(""));
}

TEST_F(CompareRecord, IsCopiedWithAllFields) {
  C::CompareNodeInfo info = Record("n");
  C::CompareNodeInfo assigned;
  assigned = C::CompareNodeInfo(info);
  EXPECT_EQ(assigned.name, "n");
  EXPECT_EQ(assigned.colorA, 5u);
  EXPECT_EQ(assigned.colorB, 6u);
  EXPECT_EQ(assigned.colorOverlap, 7u);
  EXPECT_EQ(assigned.showMode, ShowMode::Diff);
  EXPECT_EQ(assigned.dim, Tree::Checked);
  EXPECT_EQ(assigned.designFlag, C::DesignBoth);
}

class CompareFilter : public CompareWire {
 protected:
  const C::ColorNodeFilter filter;
};

TEST_F(CompareFilter, TakesCompareRecordsAlone) {
  Tree::NodeInfo info;
  info.type = "colorvis";
  EXPECT_EQ(filter(info), Tree::NodeFilter::Accept);
  for (const char* type : {"", "group", "colorvis ", "COLORVIS"}) {
    info.type = type;
    EXPECT_EQ(filter(info), Tree::NodeFilter::StopSiblings) << type;
  }
}

TEST_F(CompareFilter, AsksTheTreeForTheTypeOfANode) {
  Node("n", "p", {});
  Node("g", "p", {}, "group");
  EXPECT_EQ(filter(&tree, "n"), Tree::NodeFilter::Accept);
  EXPECT_EQ(filter(&tree, "g"), Tree::NodeFilter::StopSiblings);
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2202 GetNode "n" | 282->"colorvis" | 0
    free 282 "colorvis" | 0
    do dev:tree 2202 GetNode "g" | 282->"group" | 0
    free 282 "group" | 0
  )"));
}

TEST_F(CompareFilter, TakesNothingWithoutATreeOrAnAnswer) {
  EXPECT_EQ(filter(nullptr, "n"), Tree::NodeFilter::StopSiblings);
  EXPECT_TRUE(toolkit.Took(""));
  Node("n", "p", {});
  for (const Failure failure : {Failure::Refused, Failure::Scribbled, Failure::Ignored, Failure::NullAnswers}) {
    toolkit.FailCall(1, failure);
    EXPECT_EQ(filter(&tree, "n"), Tree::NodeFilter::StopSiblings) << Name(failure);
  }
}

}  // namespace
}  // namespace compare_tests
