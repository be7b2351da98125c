#include <gtest/gtest.h>
#include <tests/viewer/board/Texts.h>

#include <string>

namespace oxviewer::testing {
namespace {

TEST(Component, OfVersion5IsAModule) {
  const Board board = Read(BoardText(R"(
    (module Resistors_SMD:R_0805 (layer B.Cu) (tedit 5A) (tstamp 5B)
      (at 10 20 90) (descr "a resistor") (tags R) (path /5C) (attr smd)
      (fp_text reference R1 (at 0 -2 90) (layer B.SilkS) (effects (font (size 1 1))))
      (fp_text value 10k (at 0 2) (layer B.Fab))
      (fp_text user %R (at 0 0) (layer B.Fab))
      (pad 1 smd rect (at -1 0 90) (size 1 1.2) (layers B.Cu B.Paste B.Mask) (net 1 GND))))"));
  const Component& component = board.components.at(0);
  EXPECT_EQ(component.reference, "R1");
  EXPECT_EQ(component.value, "10k");
  EXPECT_EQ(component.footprint, "Resistors_SMD:R_0805");
  EXPECT_EQ(component.position, (Point{Mm(10), Mm(20)}));
  EXPECT_EQ(component.rotation, 90'000'000);
  EXPECT_EQ(component.side, Side::Back);
  EXPECT_EQ(component.attributes, kAttributeSmd);
}

TEST(Component, OfVersion6IsAFootprint) {
  const Board board = Read(BoardText(R"(
    (footprint "Lib:Part" locked (layer "F.Cu") (tedit 5A) (tstamp 5B) (at 1 2 -90)
      (property "Sheetfile" "a.kicad_sch") (attr through_hole exclude_from_pos_files exclude_from_bom)
      (fp_text reference "U1" (at 0 0) (layer "F.SilkS") hide) (fp_text value "MCU" (at 0 0) (layer "F.Fab"))))"));
  const Component& component = board.components.at(0);
  EXPECT_EQ(component.reference, "U1");
  EXPECT_EQ(component.value, "MCU");
  EXPECT_EQ(component.rotation, 270'000'000);
  EXPECT_EQ(component.side, Side::Front);
  EXPECT_EQ(component.attributes,
            kAttributeLocked | kAttributeThroughHole | kAttributeExcludeFromPositions | kAttributeExcludeFromBom);
}

TEST(Component, OfVersion8IsNamedByItsProperties) {
  const Board board = Read(BoardText(R"(
    (footprint "Lib:Part" (locked yes) (layer "F.Cu") (uuid "x") (at 1 2)
      (property "Reference" "U1" (at 0 0 0) (layer "F.SilkS") (uuid "y") (effects (font (size 1 1))))
      (property "Value" "MCU" (at 0 0) (layer "F.Fab")) (property "Datasheet" "" (at 0 0))
      (attr smd dnp)))"));
  const Component& component = board.components.at(0);
  EXPECT_EQ(component.reference, "U1");
  EXPECT_EQ(component.value, "MCU");
  EXPECT_EQ(component.attributes, kAttributeLocked | kAttributeSmd | kAttributeDoNotPopulate);
}

TEST(Component, MayHaveNeitherReferenceNorPlace) {
  const Board board = Read(BoardText("(footprint \"Logo\" (layer \"F.Cu\"))(footprint)"));
  ASSERT_EQ(board.components.size(), 2u);
  EXPECT_EQ(board.components[0].reference, "");
  EXPECT_EQ(board.components[0].position, Point{});
  EXPECT_EQ(board.components[1].footprint, "");
}

TEST(Component, OnTheLastCopperLayerIsOnTheBackWhateverItsName) {
  const Board board = Read(BoardText(R"(
    (layers (0 Top signal) (31 Bottom signal) (32 B.Adhes user))
    (module A (layer Bottom)) (module B (layer Top)))"));
  EXPECT_EQ(board.components.at(0).side, Side::Back);
  EXPECT_EQ(board.components.at(1).side, Side::Front);
}

TEST(Component, OnTheOnlyCopperLayerIsInFrontUnlessThatIsTheBack) {
  const auto sides = [](const std::string& layer) {
    const Board board = Read(BoardText("(layers (0 " + layer + " signal) (32 B.Adhes user)) (module A (layer " + layer +
                                       ")) (module B (layer B.Cu)) (via (at 0 0)) (module C (layer F.Cu))"));
    std::string line;
    for (const auto& component : board.components) line += component.side == Side::Front ? 'F' : 'B';
    return line + ' ' + LayerNameOf(board, board.vias.at(0).firstLayer) + ' ' +
           LayerNameOf(board, board.vias.at(0).lastLayer);
  };
  EXPECT_EQ(sides("F.Cu"), "FBF F.Cu B.Cu");
  EXPECT_EQ(sides("B.Cu"), "BBF F.Cu B.Cu");
  EXPECT_EQ(sides("Copper"), "FBF Copper B.Cu");
  EXPECT_EQ(sides("In1.Cu"), "FBF F.Cu B.Cu");
}

TEST(Component, OnTheBackIsThereThoughTheTableHasOnlyTheOtherCopper) {
  const Board board = Read(BoardText(R"(
    (module A (layer B.Cu)) (layers (0 F.Cu signal) (1 In1.Cu signal) (2 In2.Cu signal))
    (module B (layer B.Cu)) (module C (layer In2.Cu)) (module D (layer F.Cu)))"));
  EXPECT_EQ(board.components.at(0).side, Side::Back);
  EXPECT_EQ(board.components.at(1).side, Side::Back);
  EXPECT_EQ(board.components.at(2).side, Side::Front);
  EXPECT_EQ(board.components.at(3).side, Side::Front);
}

// Seen on the screen, 90 degrees turn what is right of the origin to above it: y runs down.
TEST(Pad, LiesOnTheBoardWhereTheTurnedComponentPutsIt) {
  const Board board = Read(BoardText(R"(
    (footprint "A" (layer "F.Cu") (at 100 50 90)
      (pad "1" smd roundrect (at 3 1 135) (size 2 1) (layers "F.Cu" "F.Mask") (roundrect_rratio 0.25) (net 4 "/A")
        (pinfunction "P") (pintype "passive"))))"));
  const Pad& pad = board.pads.at(0);
  EXPECT_EQ(pad.position, (Point{Mm(101), Mm(47)}));
  EXPECT_EQ(pad.rotation, 135'000'000);
  EXPECT_EQ(pad.number, "1");
  EXPECT_EQ(pad.component, 0);
  EXPECT_EQ(pad.shape, PadShape::RoundRect);
  EXPECT_EQ(pad.roundRatioMillionths, 250'000);
  EXPECT_EQ(pad.type, PadType::Smd);
  EXPECT_EQ(pad.size, (Size{Mm(2), Mm(1)}));
  EXPECT_EQ(LayerNamesOf(board, pad.layers), "F.Cu F.Mask");
  EXPECT_EQ(NetNameOf(board, pad.net), "/A");
}

TEST(Pad, FollowsAPlaceThatIsStatedAfterIt) {
  const Board board = Read(BoardText(R"(
    (footprint "A" (pad "1" smd rect (at 3 1) (size 2 1) (layers "F.Cu")) (at 100 50 180) (layer "F.Cu")))"));
  EXPECT_EQ(board.pads.at(0).position, (Point{Mm(97), Mm(49)}));
}

TEST(Pad, TurnsBySkewAnglesToTheNearestNanometre) {
  const Board board = Read(BoardText(R"(
    (footprint "A" (layer "F.Cu") (at 0 0 45) (pad "1" smd rect (at 1 0) (size 2 1) (layers "F.Cu"))))"));
  EXPECT_EQ(board.pads.at(0).position, (Point{707'107, -707'107}));
}

TEST(Pad, HolesAreRoundOrOvalAndMayLieOffTheMiddle) {
  const Board board = Read(BoardText(R"(
    (footprint "A" (layer "F.Cu") (at 0 0)
      (pad "1" thru_hole circle (at 0 0) (size 2 2) (drill 0.8) (layers *.Cu *.Mask))
      (pad "2" thru_hole oval (at 0 0 90) (size 2 3) (drill oval 1 2 (offset 0.5 0)) (layers *.Cu))
      (pad "3" thru_hole oval (at 0 0) (size 2 3) (drill oval 1) (layers *.Cu))
      (pad "4" smd trapezoid (at 0 0) (size 2 3) (rect_delta 0 1) (drill (offset 0 1)) (layers F.Cu))
      (pad "" np_thru_hole circle (at 0 0) (size 1 1) (drill 1) (layers *.Cu *.Mask))
      (pad 5 connect custom (at 0 0) (size 1 1) (layers F.Cu))))"));
  EXPECT_EQ(board.pads.at(0).drill, (Size{Mm(0.8), Mm(0.8)}));
  EXPECT_EQ(board.pads.at(0).type, PadType::ThroughHole);
  EXPECT_EQ(board.pads.at(0).shape, PadShape::Circle);
  EXPECT_EQ(LayerNamesOf(board, board.pads.at(0).layers), "F.Cu B.Cu F.Mask B.Mask");
  EXPECT_EQ(board.pads.at(1).drill, (Size{Mm(1), Mm(2)}));
  EXPECT_EQ(board.pads.at(1).offset, (Point{0, Mm(-0.5)}));
  EXPECT_EQ(board.pads.at(1).shape, PadShape::Oval);
  EXPECT_EQ(board.pads.at(2).drill, (Size{Mm(1), Mm(1)}));
  EXPECT_EQ(board.pads.at(3).drill, Size{});
  EXPECT_EQ(board.pads.at(3).offset, (Point{0, Mm(1)}));
  EXPECT_EQ(board.pads.at(3).delta, (Size{0, Mm(1)}));
  EXPECT_EQ(board.pads.at(3).shape, PadShape::Trapezoid);
  EXPECT_EQ(board.pads.at(4).type, PadType::NonPlatedHole);
  EXPECT_EQ(board.pads.at(4).number, "");
  EXPECT_EQ(board.pads.at(5).type, PadType::Connector);
  EXPECT_EQ(board.pads.at(5).shape, PadShape::Custom);
  EXPECT_EQ(board.pads.at(5).number, "5");
}

TEST(Pad, PrimitivesOfACustomShapeTurnWithThePad) {
  const Board board = Read(BoardText(R"(
    (footprint "A" (layer "F.Cu") (at 10 10 90)
      (pad "1" smd custom (at 1 0 90) (size 1 1) (layers "F.Cu") (options (clearance outline) (anchor circle))
        (primitives (gr_poly (pts (xy 0 0) (xy 2 0) (xy 2 1)) (width 0.1))
                    (gr_line (start 0 0) (end 0 3) (width 0.2)) (unknown 1)))))"));
  const Pad& pad = board.pads.at(0);
  EXPECT_EQ(pad.position, (Point{Mm(10), Mm(9)}));
  ASSERT_EQ(pad.primitives.size(), 2u);
  EXPECT_EQ(pad.primitives[0].polygon.points, (std::vector<Point>{{Mm(10), Mm(9)}, {Mm(10), Mm(7)}, {Mm(11), Mm(7)}}));
  EXPECT_EQ(pad.primitives[1].points[1], (Point{Mm(13), Mm(9)}));
  EXPECT_TRUE(board.drawings.empty());
}

TEST(ComponentDrawing, LiesOnTheBoardAndKnowsItsComponent) {
  const Board board = Read(BoardText(R"((footprint "first")
    (footprint "A" (layer "F.Cu") (at 10 10 270)
      (fp_line (start 1 0) (end 2 0) (layer "F.SilkS") (width 0.1))
      (fp_rect (start 0 0) (end 2 1) (layer "F.SilkS") (width 0.1) (fill none))))"));
  ASSERT_EQ(board.drawings.size(), 2u);
  EXPECT_EQ(board.drawings[0].component, 1);
  EXPECT_EQ(board.drawings[0].points[0], (Point{Mm(10), Mm(11)}));
  EXPECT_EQ(board.drawings[0].points[1], (Point{Mm(10), Mm(12)}));
  EXPECT_EQ(board.drawings[1].points,
            (std::array<Point, 4>{{{Mm(10), Mm(10)}, {Mm(10), Mm(12)}, {Mm(9), Mm(12)}, {Mm(9), Mm(10)}}}));
}

TEST(ComponentZone, StatesItsPlacesOnTheBoard) {
  const Board board = Read(BoardText(R"((footprint "A" (layer "F.Cu") (at 10 10 270)
    (zone (net 0) (net_name "") (layer "F.Cu") (keepout (tracks not_allowed)) (polygon (pts (xy 1 2) (xy 3 4))))))"));
  EXPECT_EQ(board.zones.at(0).component, 0);
  EXPECT_EQ(board.zones.at(0).outlines.at(0).points.at(0), (Point{Mm(1), Mm(2)}));
}

TEST(Component, ThatReachesBeyondTheRangeIsRefusedAtItsBeginning) {
  EXPECT_EQ(Refusal(R"((kicad_pcb
  (footprint "A" (at 2000 0) (pad "1" smd rect (at 2000 0) (size 1 1) (layers "F.Cu")))))"),
            "2:3: expected all of this component within +-2147.483647 mm");
  EXPECT_EQ(Refusal(R"((kicad_pcb
  (footprint "A" (at 0 -2000 45) (fp_line (start 2000 0) (end 0 0) (layer "F.Cu")))))"),
            "2:3: expected all of this component within +-2147.483647 mm");
}

}  // namespace
}  // namespace oxviewer::testing
