#include <gtest/gtest.h>
#include <tests/viewer/board/Texts.h>

#include <string>

namespace oxviewer::testing {
namespace {

using Names = std::vector<std::string>;

Names NetsOf(const std::string& sections) { return NamesOf(Read(BoardText(sections)).nets); }

TEST(Nets, NetZeroAndTheEmptyNameAreNone) {
  EXPECT_EQ(NetsOf("(net 0 \"\") (net 1 \"A\") (net 2 \"\") (net 0 \"B\") (net -3 \"C\")"), (Names{"A"}));
  const Board board = Read(BoardText("(net 2 \"\") (via (at 0 0) (net 2)) (via (at 0 0) (net 0)) (via (net 0 \"X\"))"));
  EXPECT_TRUE(board.nets.empty());
  for (const Via& via : board.vias) EXPECT_EQ(via.net, kNoNet);
}

TEST(Nets, KeepTheirTrueNames) {
  EXPECT_EQ(NetsOf(R"x((net 1 "/sheet/SDA") (net 2 "Net-(R105-Pad2)") (net 3 USB_D+) (net 4 "~{RESET}")
    (net 5 "A{slash}B") (net 6 "groups/x") (net 7 " a b ") (net 8 "<b>&amp;</b>") (net 9 "quote\"back\\slash")
    (net 10 "\u00e9") (net 11 "12"))x"),
            (Names{"/sheet/SDA", "Net-(R105-Pad2)", "USB_D+", "~{RESET}", "A{slash}B", "groups/x", " a b ",
                   "<b>&amp;</b>", "quote\"back\\slash", "u00e9", "12"}));
}

TEST(Nets, OnlyFoundOnItemsCount) {
  const Board board = Read(BoardText(R"(
    (footprint "A" (pad "1" smd rect (at 0 0) (size 1 1) (layers "F.Cu") (net "on pad")))
    (segment (start 0 0) (end 1 1) (net "on track"))
    (arc (start 0 0) (mid 1 0) (end 1 1) (net "on arc"))
    (via (at 0 0) (net "on via"))
    (zone (net "on zone") (layer "F.Cu"))
    (zone (net_name "named on zone") (layer "F.Cu")))"));
  EXPECT_EQ(NamesOf(board.nets), (Names{"on pad", "on track", "on arc", "on via", "on zone", "named on zone"}));
  EXPECT_EQ(NetNameOf(board, board.pads.at(0).net), "on pad");
  EXPECT_EQ(NetNameOf(board, board.zones.at(1).net), "named on zone");
}

TEST(Nets, NamedWithoutATableMayLookLikeNumbersInQuotes) {
  const Board board = Read(BoardText("(via (at 0 0) (net \"12\")) (via (at 0 0) (net \"0\")) (via (net \"\"))"));
  EXPECT_EQ(NamesOf(board.nets), (Names{"12", "0"}));
  EXPECT_EQ(board.vias.at(2).net, kNoNet);
}

TEST(Nets, NumbersAreBoundByAnyItemThatNamesBoth) {
  const Board board = Read(BoardText(R"(
    (segment (start 0 0) (end 1 1) (net 5))
    (footprint "A" (pad "1" smd rect (at 0 0) (size 1 1) (layers "F.Cu") (net 5 "five")))
    (zone (net 6) (net_name "six") (layer "F.Cu"))
    (via (at 0 0) (net 6)))"));
  EXPECT_EQ(NamesOf(board.nets), (Names{"five", "six"}));
  EXPECT_EQ(NetNameOf(board, board.tracks.at(0).net), "five");
  EXPECT_EQ(NetNameOf(board, board.vias.at(0).net), "six");
}

TEST(Nets, NumberThatNothingNamesGoesByItsDigits) {
  const Board board = Read(BoardText("(net 1 \"A\") (via (at 0 0) (net 7)) (via (at 1 0) (net 1)) (via (net 7))"));
  EXPECT_EQ(NamesOf(board.nets), (Names{"A", "7"}));
  EXPECT_EQ(NetNameOf(board, board.vias.at(0).net), "7");
  EXPECT_EQ(NetNameOf(board, board.vias.at(1).net), "A");
  EXPECT_EQ(board.vias.at(2).net, board.vias.at(0).net);
}

TEST(Nets, NumberUsedBeforeItsNameIsThatNet) {
  const Board board = Read(BoardText(R"(
    (via (at 0 0) (net 2)) (via (at 0 0) (net 1)) (via (at 0 0) (net 3)) (net 1 "A") (net 2 "B") (net 3 ""))"));
  EXPECT_EQ(NetNameOf(board, board.vias.at(0).net), "B");
  EXPECT_EQ(NetNameOf(board, board.vias.at(1).net), "A");
  EXPECT_EQ(board.vias.at(2).net, kNoNet);
  EXPECT_EQ(board.nets.size(), 2u);
}

TEST(Nets, SameNameUnderTwoNumbersIsOneNet) {
  const Board board = Read(BoardText(R"(
    (via (at 0 0) (net 4)) (net 1 "A") (net 2 "A") (net 3 "B") (net 4 "A") (via (net 2)) (segment (net 3)))"));
  EXPECT_EQ(board.nets.size(), 2u);
  EXPECT_EQ(NetNameOf(board, board.vias.at(0).net), "A");
  EXPECT_EQ(NetNameOf(board, board.vias.at(1).net), "A");
  EXPECT_EQ(NetNameOf(board, board.tracks.at(0).net), "B");
}

TEST(Nets, SameRowTwiceIsOneNet) { EXPECT_EQ(NetsOf("(net 1 \"A\") (net 1 \"A\")"), (Names{"A"})); }

TEST(Nets, TwoNamesForOneNumberAreRefused) {
  EXPECT_EQ(Refusal("(kicad_pcb (net 1 \"A\")\n (net 1 \"B\"))"),
            "2:2: expected one name for net 1, found another one, \"B\"");
}

TEST(Nets, NameOnAnItemCountsMoreThanItsNumber) {
  const Board board = Read(BoardText(R"((net 1 "A") (net 2 "B")
    (footprint "X" (pad "1" smd rect (at 0 0) (size 1 1) (layers "F.Cu") (net 1 "B")))
    (zone (net 1) (net_name "B") (layer "F.Cu")))"));
  EXPECT_EQ(NetNameOf(board, board.pads.at(0).net), "B");
  EXPECT_EQ(NetNameOf(board, board.zones.at(0).net), "B");
}

TEST(Nets, WithoutNumberOrNameAreRefused) {
  EXPECT_EQ(Refusal("(kicad_pcb (net))"), "1:16: expected the number or name of a net, found \")\"");
  EXPECT_EQ(Refusal("(kicad_pcb (via (net (1))))"), "1:22: expected the number or name of a net, found \"(\"");
  EXPECT_EQ(Refusal("(kicad_pcb (via (net 99999999999999999999)))"),
            "1:17: expected the number of a net, found \"99999999999999999999\"");
}

}  // namespace
}  // namespace oxviewer::testing
