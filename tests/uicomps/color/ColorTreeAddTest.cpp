#include <tests/uicomps/color/ColorTreeWire.h>

namespace color_tests {
namespace {

class ColorTreeAdd : public ColorTreeWire {
 protected:
  static ColorTree::ColorNodeInfo Record(const char* name, unsigned int color) {
    ColorTree::ColorNodeInfo info;
    info.name = name;
    info.color = color;
    return info;
  }
};

TEST_F(ColorTreeAdd, PassesItsIntsInTheOrderOfTheBaseAndSumsTheParentUp) {
  Node("n", "p", {}, 5);
  Node("p", "", {"n"}, kNone);
  EXPECT_TRUE(tree.AddNode("n", L"Net", "q", 5, 11, L"second", 22, 33));
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2243 NodeTypeExists "color_square.png_5" ->1 | 0
    do dev:tree 2029 AddNode "n" L"Net" "q" "color_square.png_5" | 2=L"second" 128=22 256=33 512=11 1024=0x5 | 0
    do dev:tree 2202 GetNode "n" | 283->"p" | 0
    free 283 "p" | 0
    do dev:tree 2202 GetNode "p" | 284->["n"] | 0
    free 284 ["n"] | 0
    do dev:tree 2203 InquireNode "n" | 260->0x5 | 0
    do dev:tree 2203 InquireNode "p" | 260->0xffffffff | 0
    do dev:tree 2243 NodeTypeExists "color_square.png_5" ->1 | 0
    do dev:tree 2033 ChangeNode "p" | 8="color_square.png_5" 1024=0x5 | 0
    do dev:tree 2202 GetNode "p" | 283->"" | 0
    free 283 "" | 0
  )")) << "the parent is asked for by name after the insertion";
}

TEST_F(ColorTreeAdd, BeforeASiblingPassesTheSibling) {
  Node("n", "p", {}, 5);
  Node("p", "", {"n"}, 5);
  EXPECT_TRUE(tree.AddNodeBefore("n", L"Net", "p", "m", 5, 11, L"second", 22, 33));
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2243 NodeTypeExists "color_square.png_5" ->1 | 0
    do dev:tree 2030 AddNodeBefore "n" L"Net" "p" "m" "color_square.png_5" | 2=L"second" 128=22 256=33 512=11 1024=0x5 | 0
    do dev:tree 2202 GetNode "n" | 283->"p" | 0
    free 283 "p" | 0
    do dev:tree 2202 GetNode "p" | 284->["n"] | 0
    free 284 ["n"] | 0
    do dev:tree 2203 InquireNode "n" | 260->0x5 | 0
    do dev:tree 2203 InquireNode "p" | 260->0x5 | 0
  )"));
}

TEST_F(ColorTreeAdd, BeforeNothingGoesToTheEnd) {
  EXPECT_TRUE(tree.AddNodeBefore("n", L"", "", nullptr, kNone, -1, L"", -2, -3));
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2030 AddNodeBefore "n" L"" "" null "mix" | 2=L"" 128=-2 256=-3 512=-1 1024=0xffffffff | 0
    do dev:tree 2202 GetNode "n" | 283->null | 0
    free 283 null | 0
  )"));
}

TEST_F(ColorTreeAdd, GivesTheTypeMixToNoColor) {
  EXPECT_TRUE(tree.AddNode("n", L"n", "p", kNone, 0, L"", 1, 0));
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2029 AddNode "n" L"n" "p" "mix" | 2=L"" 128=1 256=0 512=0 1024=0xffffffff | 0
    ...
  )"));
}

TEST_F(ColorTreeAdd, StopsAtTheTopLevel) {
  toolkit.When(Doing(2202, "n")).Give(283, "");
  EXPECT_TRUE(tree.AddNode("n", L"n", "", 5, 0, L"", 1, 0));
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2243 NodeTypeExists "color_square.png_5" ->1 | 0
    do dev:tree 2029 AddNode "n" L"n" "" "color_square.png_5" | 2=L"" 128=1 256=0 512=0 1024=0x5 | 0
    do dev:tree 2202 GetNode "n" | 283->"" | 0
    free 283 "" | 0
  )"));
}

TEST_F(ColorTreeAdd, SumsTheParentUpAlsoWhenTheNodeWasRefused) {
  toolkit.When(Doing(2029)).Refuse();
  toolkit.When(Doing(2030)).Refuse();
  Node("n", "p", {}, 5);
  Node("p", "", {"n"}, 6);
  EXPECT_FALSE(tree.AddNode("n", L"n", "p", 5, 0, L"", 1, 0));
  EXPECT_TRUE(toolkit.Took(R"(
    ...
    do dev:tree 2029 AddNode "n" L"n" "p" "color_square.png_5" | 2=L"" 128=1 256=0 512=0 1024=0x5 | 0 => 1
    do dev:tree 2202 GetNode "n" | 283->"p" | 0
    ...
    do dev:tree 2033 ChangeNode "p" | 8="color_square.png_5" 1024=0x5 | 0
    ...
  )"));
  EXPECT_FALSE(tree.AddNodeBefore("n", L"n", "p", nullptr, 5, 0, L"", 1, 0));
  EXPECT_TRUE(toolkit.Took(R"(
    ...
    do dev:tree 2033 ChangeNode "p" | 8="color_square.png_5" 1024=0x5 | 0
    ...
  )"));
}

TEST_F(ColorTreeAdd, FromARecordDividesTheNameAndSetsTheState) {
  Node("p/n", "elsewhere", {}, 5);
  Node("p", "", {"p/n"}, 5);
  ColorTree::ColorNodeInfo info = Record("p/n", 5);
  info.state = Tree::Checked;
  info.expanded = true;
  EXPECT_TRUE(tree.AddNode(info));
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2243 NodeTypeExists "color_square.png_5" ->1 | 0
    do dev:tree 2029 AddNode "p/n" L"n" "p" "color_square.png_5" | 2=L"" 128=1 256=1 512=0 1024=0x5 | 0
    do dev:tree 2202 GetNode "p" | 284->["p/n"] | 0
    free 284 ["p/n"] | 0
    do dev:tree 2203 InquireNode "p/n" | 260->0x5 | 0
    do dev:tree 2203 InquireNode "p" | 260->0x5 | 0
    do dev:tree 2201 SetNode "p/n" | 31=1 | 0
  )")) << "the parent is the one that the name gives";
}

TEST_F(ColorTreeAdd, FromARecordBeforeASiblingDoesTheSame) {
  Node("p/n", "elsewhere", {}, 5);
  Node("p", "", {"p/n"}, 5);
  ColorTree::ColorNodeInfo info = Record("p/n", 5);
  info.label = L"<b>Net</b>";
  info.state = Tree::PartlyChecked;
  EXPECT_TRUE(tree.AddNodeBefore(info, "p/m"));
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2243 NodeTypeExists "color_square.png_5" ->1 | 0
    do dev:tree 2030 AddNodeBefore "p/n" L"<b>Net</b>" "p" "p/m" "color_square.png_5" | 2=L"" 128=1 256=0 512=0 1024=0x5 | 0
    do dev:tree 2202 GetNode "p" | 284->["p/n"] | 0
    free 284 ["p/n"] | 0
    do dev:tree 2203 InquireNode "p/n" | 260->0x5 | 0
    do dev:tree 2203 InquireNode "p" | 260->0x5 | 0
    do dev:tree 2201 SetNode "p/n" | 31=2 | 0
  )"));
}

TEST_F(ColorTreeAdd, FromARecordTakesTheColorAndNotTheRecordsType) {
  ColorTree::ColorNodeInfo info = Record("n", kNone);
  info.type = "net";
  EXPECT_TRUE(tree.AddNode(info));
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2029 AddNode "n" L"n" "root" "mix" | 2=L"" 128=1 256=0 512=0 1024=0xffffffff | 0
    do dev:tree 2202 GetNode "root" | 284->[] | 0
    do dev:tree 2201 SetNode "n" | 31=0 | 0
  )"));
}

TEST_F(ColorTreeAdd, OfTheRootFromARecordSumsNothingUp) {
  EXPECT_TRUE(tree.AddNode(Record("root", 5)));
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2243 NodeTypeExists "color_square.png_5" ->1 | 0
    do dev:tree 2029 AddNode "root" L"root" "" "color_square.png_5" | 2=L"" 128=1 256=0 512=0 1024=0x5 | 0
    do dev:tree 2201 SetNode "root" | 31=0 | 0
  )"));
}

TEST_F(ColorTreeAdd, OfARefusedRecordSumsUpAndSetsNoState) {
  toolkit.When(Doing(2029)).Refuse();
  toolkit.When(Doing(2030)).Refuse();
  EXPECT_FALSE(tree.AddNode(Record("n", 5)));
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2243 NodeTypeExists "color_square.png_5" ->1 | 0
    do dev:tree 2029 AddNode "n" L"n" "root" "color_square.png_5" | 2=L"" 128=1 256=0 512=0 1024=0x5 | 0 => 1
    do dev:tree 2202 GetNode "root" | 284->[] | 0
  )"));
  EXPECT_FALSE(tree.AddNodeBefore(Record("n", 5), "m"));
  EXPECT_TRUE(toolkit.Took(R"(
    ...
    do dev:tree 2202 GetNode "root" | 284->[] | 0
  )"));
}

TEST_F(ColorTreeAdd, SucceedsThoughTheStateCannotBeSet) {
  toolkit.When(Doing(2201)).Refuse();
  EXPECT_TRUE(tree.AddNode(Record("n", 5)));
}

TEST_F(ColorTreeAdd, OfAColorlessRecordIsThePlainTrees) {
  ColorTree::ColorNodeInfo info = Record("p/n", 5);
  info.type = "my colorless group";
  info.state = Tree::Checked;
  EXPECT_TRUE(tree.AddNode(info));
  EXPECT_TRUE(tree.AddNodeBefore(info, "m"));
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2029 AddNode "p/n" L"n" "p" "my colorless group" | 2=L"" 128=1 256=0 512=0 1024=null | 0
    do dev:tree 2201 SetNode "p/n" | 31=1 | 0
    do dev:tree 2030 AddNodeBefore "p/n" L"n" "p" "m" "my colorless group" | 2=L"" 128=1 256=0 512=0 1024=null | 0
    do dev:tree 2201 SetNode "p/n" | 31=1 | 0
  )"));
  toolkit.When(Doing(2029)).Refuse();
  toolkit.When(Doing(2030)).Refuse();
  EXPECT_FALSE(tree.AddNode(info));
  EXPECT_FALSE(tree.AddNodeBefore(info, "m"));
}

TEST_F(ColorTreeAdd, ThroughThePlainInterfaceIsThePlainTrees) {
  Tree::NodeInfo info;
  info.name = "n";
  info.type = "net";
  EXPECT_TRUE(tree.AddNode(info));
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2029 AddNode "n" L"n" "root" "net" | 2=L"" 128=1 256=0 512=0 1024=null | 0
    do dev:tree 2201 SetNode "n" | 31=0 | 0
  )"));
}

TEST_F(ColorTreeAdd, ConvertsTheLabelFromUtf8) {
  EXPECT_TRUE(tree.AddNode(Record("p/\xC2\xB5\xF0\x9F\x98\x80", kNone)));
  EXPECT_TRUE(
      toolkit.Took("do dev:tree 2029 AddNode \"p/\xC2\xB5\xF0\x9F\x98\x80\" L\"\xC2\xB5\xF0\x9F\x98\x80\" \"p\" "
                   "\"mix\" | 2=L\"\" 128=1 256=0 512=0 1024=0xffffffff | 0\n..."));
}

}  // namespace
}  // namespace color_tests
