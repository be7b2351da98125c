#include <gtest/gtest.h>
#include <tests/viewer/board/Texts.h>

#include <string>

namespace oxviewer::testing {
namespace {

std::string Table(const Board& board) {
  std::string lines;
  for (const Layer& layer : board.layers) {
    lines += layer.name + '|' + layer.userName + '|' + layer.type + (layer.copper ? "|copper" : "") +
             (layer.declared ? "\n" : "|undeclared\n");
  }
  return lines;
}

constexpr const char* kExpected =
    "F.Cu||signal|copper\n"
    "In1.Cu|GND plane|power|copper\n"
    "B.Cu||signal|copper\n"
    "F.SilkS|F.Silkscreen|user\n"
    "Edge.Cuts||user\n";

TEST(Layers, OfVersion5To8StandInTheOrderOfTheFile) {
  EXPECT_EQ(Table(Read(BoardText(R"((layers (0 "F.Cu" signal) (1 "In1.Cu" power "GND plane") (31 "B.Cu" signal)
    (37 "F.SilkS" user "F.Silkscreen") (44 "Edge.Cuts" user)))"))),
            kExpected);
}

TEST(Layers, OfVersion9HaveOtherNumbersAndTheSameNames) {
  EXPECT_EQ(Table(Read(BoardText(R"((layers (0 "F.Cu" signal) (4 "In1.Cu" power "GND plane") (2 "B.Cu" signal)
    (5 "F.SilkS" user "F.Silkscreen") (25 "Edge.Cuts" user)))"))),
            kExpected);
}

TEST(Layers, HiddenOnesAreNoDifferent) {
  EXPECT_EQ(Table(Read(BoardText("(layers (0 F.Cu signal hide) (31 B.Cu mixed) (1 In1.Cu jumper \"x\" hide))"))),
            "F.Cu||signal|copper\nB.Cu||mixed|copper\nIn1.Cu|x|jumper|copper\n");
  EXPECT_EQ(Table(Read(BoardText("(layers (0 F.Cu signal \"hide\"))"))), "F.Cu|hide|signal|copper\n");
}

TEST(Layers, NamedByTheUserInVersion5AreCopperByTheirType) {
  EXPECT_EQ(Table(Read(BoardText("(layers (0 Top signal) (31 Bottom signal) (38 B.Mask user))"))),
            "Top||signal|copper\nBottom||signal|copper\nB.Mask||user\n");
}

TEST(Layers, NamedByItemsOnlyFollowTheDeclaredOnes) {
  const Board board = Read(BoardText(R"(
    (gr_line (start 0 0) (end 1 1) (layer "User.9") (width 0.1))
    (segment (start 0 0) (end 1 1) (layer "In7.Cu") (width 0.1))
    (layers (0 "F.Cu" signal) (31 "B.Cu" signal)))"));
  EXPECT_EQ(board.DeclaredLayerCount(), 2u);
  EXPECT_EQ(Table(board),
            "F.Cu||signal|copper\nB.Cu||signal|copper\nUser.9||user|undeclared\nIn7.Cu||signal|copper|undeclared\n");
}

TEST(Layers, NeedNotBeDeclaredAtAll) {
  const Board board = Read(R"((kicad_pcb (via (at 0 0) (net 0)) (zone (layers *.Cu))))");
  EXPECT_EQ(board.DeclaredLayerCount(), 0u);
  EXPECT_EQ(LayerNamesOf(board, board.zones.at(0).layers), "F.Cu B.Cu");
}

TEST(Layers, SameLineTwiceIsOneLayer) {
  EXPECT_EQ(Read(BoardText("(layers (0 F.Cu signal) (0 F.Cu signal))")).layers.size(), 1u);
}

TEST(Layers, SameNameWithAnotherMeaningIsRefused) {
  EXPECT_EQ(Refusal("(kicad_pcb (layers\n(0 F.Cu signal)\n(2 F.Cu signal Front)))"),
            "3:1: expected each layer once, found \"F.Cu\" again and different");
  EXPECT_EQ(Refusal("(kicad_pcb (layers\n(0 F.Cu signal)\n(2 F.Cu user)))"),
            "3:1: expected each layer once, found \"F.Cu\" again and different");
}

TEST(Layers, SecondTableAfterItemsIsRefused) {
  EXPECT_EQ(Refusal("(kicad_pcb (layers (0 A signal)) (via (at 0 0))\n(layers (1 B signal)))"),
            "2:1: expected one table of layers, found another one");
}

TEST(Layers, WithoutNameOrTypeAreRefused) {
  EXPECT_EQ(Refusal("(kicad_pcb (layers (0)))"), "1:22: expected the name of a layer, found \")\"");
  EXPECT_EQ(Refusal("(kicad_pcb (layers (0 F.Cu)))"), "1:27: expected the type of a layer, found \")\"");
  EXPECT_EQ(Refusal("(kicad_pcb (layers (0 \"\" user)))"), "1:20: expected the name of a layer, found an empty one");
}

std::string Many(int count) {
  std::string table = "(kicad_pcb (layers";
  for (int i = 0; i < count; ++i) table += " (0 L" + std::to_string(i) + " user)";
  return table + ")";
}

TEST(Layers, AreAtMostAsManyAsASetHolds) {
  EXPECT_EQ(Read(Many(kMaxLayers) + ')').layers.size(), static_cast<std::size_t>(kMaxLayers));
  EXPECT_EQ(Refusal(Many(kMaxLayers + 1) + ')').substr(0, 2), "1:");
  const std::string limit = "expected at most 256 layers";
  EXPECT_EQ(Refusal(Many(kMaxLayers) + "\n(segment (layer X)))"), "2:10: " + limit);
  EXPECT_EQ(Refusal(Many(kMaxLayers) + "\n(segment (layers X)))"), "2:10: " + limit);
  EXPECT_EQ(Refusal(Many(kMaxLayers) + "\n(via (at 0 0)))"), "2:1: " + limit);
  EXPECT_EQ(Refusal(Many(kMaxLayers) + "\n(via (layers L1 X)))"), "2:1: " + limit);
}

std::string Expanded(const std::string& names) {
  const Board board = Read(BoardText(
      "(layers (0 F.Cu signal) (1 In1.Cu signal) (2 In2.Cu power) (31 B.Cu signal) (38 B.Mask user) (39 F.Mask user))"
      "(zone (layers " +
      names + "))"));
  return LayerNamesOf(board, board.zones.at(0).layers);
}

TEST(LayerNames, StandForOneOrManyLayers) {
  EXPECT_EQ(Expanded("F.Cu"), "F.Cu");
  EXPECT_EQ(Expanded("B.Mask F.Cu B.Mask"), "F.Cu B.Mask");
  EXPECT_EQ(Expanded("*.Cu"), "F.Cu In1.Cu In2.Cu B.Cu");
  EXPECT_EQ(Expanded("*.Mask"), "B.Mask F.Mask");
  EXPECT_EQ(Expanded("F&B.Cu"), "F.Cu B.Cu");
  EXPECT_EQ(Expanded("\"F&B.Mask\""), "B.Mask F.Mask");
  EXPECT_EQ(Expanded("*In.Cu"), "In1.Cu In2.Cu");
  EXPECT_EQ(Expanded("*.Paste"), "F.Paste B.Paste");
  EXPECT_EQ(Expanded(""), "");
}

}  // namespace
}  // namespace oxviewer::testing
