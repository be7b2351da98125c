#include <tests/uicomps/color/ColorTreeWire.h>

#include <memory>

namespace color_tests {
namespace {

class ColorTreeTypes : public ColorTreeWire {};

TEST_F(ColorTreeTypes, HaveTheNamesOfTheInterface) {
  EXPECT_STREQ(ColorTree::s_colorlessType, "colorless");
  EXPECT_STREQ(ColorTree::s_mixType, "mix");
  EXPECT_STREQ(ColorTree::s_image, "color_square.png");
}

TEST_F(ColorTreeTypes, AreColorlessWhereTheWordOccurs) {
  for (const char* type : {"colorless", "colorless_group", "my colorless", "a-colorless-b", "colorlesscolorless"}) {
    EXPECT_TRUE(ColorTree::IsColorless(type)) << type;
  }
  for (const char* type : {"", "Colorless", "color less", "colorles", "color_square.png_5", "mix", "COLORLESS"}) {
    EXPECT_FALSE(ColorTree::IsColorless(type)) << type;
  }
}

TEST_F(ColorTreeTypes, AreDefinedWithTheIconAsBothImages) {
  toolkit.When(Doing(2243)).GiveInOrder({0});
  EXPECT_STREQ(tree.GetType(255), "color_square.png_255");
  EXPECT_TRUE(toolkit.Took(R"(
    global_do 6030 LoadImage "color_square.png" image{23 3x3} | 0
    global_do 6031 DefineImage "color_square.png_255" image{23 3x3} | 0
    relmem &pixels
    do dev:tree 2243 NodeTypeExists "color_square.png_255" ->0 | 0
    do dev:tree 2139 DefineNodeType type{"color_square.png_255" "color_square.png_255" "color_square.png_255"} | 0
  )"));
}

TEST_F(ColorTreeTypes, AreTakenAsTheyAreWhenTheyExist) {
  for (const int exists : {1, 7, -1}) {
    toolkit.When(Doing(2243)).GiveInOrder({exists});
    EXPECT_STREQ(tree.GetType(5), "color_square.png_5");
    const std::string line =
        "do dev:tree 2243 NodeTypeExists \"color_square.png_5\" ->" + std::to_string(exists) + " | 0";
    EXPECT_TRUE(toolkit.Took(line));
  }
}

TEST_F(ColorTreeTypes, OfNoColorIsMixedAndCostsNothing) {
  EXPECT_STREQ(tree.GetType(kNone), "mix");
  EXPECT_TRUE(toolkit.Took(""));
}

TEST_F(ColorTreeTypes, IsMixedWhenTheImageCannotBeLoaded) {
  toolkit.When(test_support::DoingGlobally(6030)).Refuse();
  EXPECT_STREQ(tree.GetType(77), "mix");
  EXPECT_TRUE(toolkit.Took(R"(global_do 6030 LoadImage "color_square.png" image{23 0x0} | 0 => 1)"));
}

TEST_F(ColorTreeTypes, IsMixedWhenItCannotBeDefined) {
  toolkit.When(Doing(2243)).GiveInOrder({0});
  toolkit.When(Doing(2139)).Refuse().Once();
  EXPECT_STREQ(tree.GetType(5), "mix");
  EXPECT_STREQ(tree.GetType(5), "color_square.png_5") << "the next time succeeds";
}

TEST_F(ColorTreeTypes, IsDefinedWhenTheToolkitCannotSayWhetherItExists) {
  const std::string asked = "do dev:tree 2243 NodeTypeExists \"color_square.png_5\" ";
  const std::string defined =
      "\ndo dev:tree 2139 DefineNodeType type{\"color_square.png_5\" \"color_square.png_5\" \"color_square.png_5\"} | "
      "0";
  toolkit.FailCall(1, Failure::Refused);
  EXPECT_STREQ(tree.GetType(5), "color_square.png_5");
  EXPECT_TRUE(toolkit.Took(asked + "=? | 0 => 1" + defined));
  toolkit.FailCall(1, Failure::Scribbled);
  EXPECT_STREQ(tree.GetType(5), "color_square.png_5");
  EXPECT_TRUE(toolkit.Took(asked + "=? | 0 => 1" + defined));
  toolkit.FailCall(1, Failure::Ignored);
  EXPECT_STREQ(tree.GetType(5), "color_square.png_5");
  EXPECT_TRUE(toolkit.Took(asked + "->0 | 0" + defined));
}

class ColorOfANode : public ColorTreeWire {};

TEST_F(ColorOfANode, IsItsUserData) {
  Node("n", "root", {}, 0x00C0B0A0);
  EXPECT_EQ(tree.GetNodeColor("n"), 0x00C0B0A0u);
  EXPECT_TRUE(toolkit.Took(R"(do dev:tree 2203 InquireNode "n" | 260->0xc0b0a0 | 0)"));
}

TEST_F(ColorOfANode, IsTheLow32BitsOfItsUserData) {
  toolkit.When(Doing(2203, "n")).Give(260, reinterpret_cast<void*>(0x1234567800000005));
  EXPECT_EQ(tree.GetNodeColor("n"), 5u);
}

TEST_F(ColorOfANode, MayBeBlackOrNone) {
  Node("black", "root", {}, 0);
  Node("none", "root", {}, kNone);
  EXPECT_EQ(tree.GetNodeColor("black"), 0u);
  EXPECT_EQ(tree.GetNodeColor("none"), kNone);
}

TEST_F(ColorOfANode, IsNoneWhenItCannotBeRead) {
  Node("n", "root", {}, 5);
  for (const Failure failure : {Failure::Refused, Failure::Scribbled, Failure::Ignored}) {
    toolkit.FailCall(1, failure);
    EXPECT_EQ(tree.GetNodeColor("n"), kNone) << Name(failure);
  }
}

TEST_F(ColorOfANode, IsAskedForWhateverTheName) {
  tree.GetNodeColor("");
  tree.GetNodeColor(nullptr);
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2203 InquireNode "" | 260->0xffffffff | 0
    do dev:tree 2203 InquireNode null | 260->0xffffffff | 0
  )"));
}

TEST_F(ColorOfANode, IsSetTogetherWithItsType) {
  tree.SetNodeColor("n", 5);
  tree.SetNodeColor("n", 0);
  tree.SetNodeColor("n", kNone);
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2243 NodeTypeExists "color_square.png_5" ->1 | 0
    do dev:tree 2033 ChangeNode "n" | 8="color_square.png_5" 1024=0x5 | 0
    do dev:tree 2243 NodeTypeExists "color_square.png_0" ->1 | 0
    do dev:tree 2033 ChangeNode "n" | 8="color_square.png_0" 1024=null | 0
    do dev:tree 2033 ChangeNode "n" | 8="mix" 1024=0xffffffff | 0
  )"));
}

class ColorRecord : public ColorTreeWire {};

TEST_F(ColorRecord, IsReadFieldByField) {
  toolkit.When(Doing(2202, "n")).Give(2, L"Net").Give(282, "color_square.png_5").Give(4, 1);
  toolkit.When(Doing(2203, "n")).Give(177, 0).Give(31, 1).Give(260, 5);
  const std::unique_ptr<Tree::NodeInfo> record(tree.GetNodeInfo("n"));
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2202 GetNode "n" | 2->L"Net" | 0
    free 2 L"Net" | 0
    do dev:tree 2203 InquireNode "n" | 177->0 31->1 | 0
    do dev:tree 2202 GetNode "n" | 282->"color_square.png_5" | 0
    free 282 "color_square.png_5" | 0
    do dev:tree 2202 GetNode "n" | 4->1 | 0
    do dev:tree 2203 InquireNode "n" | 260->0x5 | 0
  )"));
  const auto* const info = dynamic_cast<ColorTree::ColorNodeInfo*>(record.get());
  ASSERT_NE(info, nullptr);
  EXPECT_EQ(info->name, "n");
  EXPECT_EQ(info->label, L"Net");
  EXPECT_EQ(info->state, Tree::Checked);
  EXPECT_EQ(info->type, "color_square.png_5");
  EXPECT_TRUE(info->expanded);
  EXPECT_EQ(info->color, 5u);
}

TEST_F(ColorRecord, IsThereForAMissingNode) {
  toolkit.FailAll(Failure::Scribbled);
  const std::unique_ptr<Tree::NodeInfo> record(tree.GetNodeInfo("n"));
  toolkit.FailNone();
  const auto* const info = dynamic_cast<ColorTree::ColorNodeInfo*>(record.get());
  ASSERT_NE(info, nullptr);
  EXPECT_EQ(info->name, "n");
  EXPECT_EQ(info->label, L"");
  EXPECT_EQ(info->type, "");
  EXPECT_EQ(info->state, Tree::Unchecked);
  EXPECT_FALSE(info->expanded);
  EXPECT_EQ(info->color, kNone);
}

TEST_F(ColorRecord, IsNullWithoutAName) {
  EXPECT_EQ(tree.GetNodeInfo(nullptr), nullptr);
  EXPECT_EQ(tree.GetNodeInfo(""), nullptr);
  EXPECT_TRUE(toolkit.Took(""));
}

TEST_F(ColorRecord, IsByDefaultEmptyAndWithoutColor) {
  const ColorTree::ColorNodeInfo info;
  EXPECT_EQ(info.color, kNone);
  EXPECT_EQ(info.name, "");
  EXPECT_EQ(info.label, L"");
  EXPECT_EQ(info.type, "");
  EXPECT_EQ(info.state, Tree::Unchecked);
  EXPECT_FALSE(info.expanded);
}

TEST_F(ColorRecord, IsCopiedWithItsColor) {
  ColorTree::ColorNodeInfo info;
  info.name = "n";
  info.color = 5;
  ColorTree::ColorNodeInfo copy(info);
  EXPECT_EQ(copy.color, 5u);
  EXPECT_EQ(copy.name, "n");
  ColorTree::ColorNodeInfo assigned;
  assigned = copy;
  EXPECT_EQ(assigned.color, 5u);
  EXPECT_EQ(assigned.name, "n");
}

}  // namespace
}  // namespace color_tests
