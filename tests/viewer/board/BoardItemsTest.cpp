#include <gtest/gtest.h>
#include <tests/viewer/board/Texts.h>

namespace oxviewer::testing {
namespace {

TEST(Board, KnowsItsNameAndVersion) {
  const Board board = Read("(kicad_pcb (version 20241229) (generator \"pcbnew\") (generator_version \"9.0\"))");
  EXPECT_EQ(board.name, "test.kicad_pcb");
  EXPECT_EQ(board.version, 20241229);
  EXPECT_EQ(Read("(kicad_pcb)").version, 0);
}

TEST(Board, PassesOverWhatItDoesNotKnow) {
  const Board board = Read(BoardText(R"(
    (future_thing (at 1 2 3 4) (deep (er (still))) word "text")
    (generated (uuid "x") (members "a" "b"))
    (segment (start 0 0) (end 1 0) (width 0.2) (future yes) (layer "F.Cu") (net 1) (tstamp 1))
    (image (at 1 1) (data iVBORw0KGgo= AAAA))
    (embedded_files (file (name "a") (data |KLUv/QBYl abc=|))))"));
  ASSERT_EQ(board.tracks.size(), 1u);
  EXPECT_EQ(board.tracks[0].width, Mm(0.2));
}

TEST(Board, SectionsMayStandInAnyOrder) {
  const Board board = Read(R"((kicad_pcb
    (segment (net 2) (layer "B.Cu") (width 0.2) (end 1 0) (start 0 0))
    (via (layers "F.Cu" "B.Cu") (net 1) (at 1 2))
    (net 1 "A") (net 2 "B")
    (layers (0 "F.Cu" signal) (31 "B.Cu" signal))
    (version 20211014)))");
  ASSERT_EQ(board.DeclaredLayerCount(), 2u);
  EXPECT_EQ(LayerNameOf(board, board.tracks.at(0).layer), "B.Cu");
  EXPECT_EQ(NetNameOf(board, board.tracks.at(0).net), "B");
  EXPECT_EQ(NetNameOf(board, board.vias.at(0).net), "A");
}

TEST(Track, HasEndsWidthLayerAndNet) {
  const Board board = Read(BoardText(R"((net 7 "GND")
    (segment (start 1.5 -2) (end 3 4.000001) (width 0.25) (layer "B.Cu") (net 7) (tstamp abc)))"));
  const Track& track = board.tracks.at(0);
  EXPECT_FALSE(track.arc);
  EXPECT_EQ(track.start, (Point{Mm(1.5), Mm(-2)}));
  EXPECT_EQ(track.end, (Point{Mm(3), 4'000'001}));
  EXPECT_EQ(track.width, Mm(0.25));
  EXPECT_EQ(LayerNameOf(board, track.layer), "B.Cu");
  EXPECT_EQ(NetNameOf(board, track.net), "GND");
}

TEST(Track, OfArcFormHasAThirdPoint) {
  const Board board =
      Read(BoardText("(arc (start 0 0) (mid 1 1) (end 2 0) (width 0.25) (layer \"F.Cu\") (net 0) (tstamp abc))"));
  const Track& track = board.tracks.at(0);
  EXPECT_TRUE(track.arc);
  EXPECT_EQ(track.mid, (Point{Mm(1), Mm(1)}));
  EXPECT_EQ(track.net, kNoNet);
}

TEST(Track, FreeOfMaskNamesItsCopperAmongSeveralLayers) {
  const Board board =
      Read(BoardText("(segment (start 0 0) (end 1 0) (width 0.2) (layers \"F.Mask\" \"B.Cu\") (net 0) (uuid \"x\"))"));
  EXPECT_EQ(LayerNameOf(board, board.tracks.at(0).layer), "B.Cu");
}

TEST(Via, HasPositionSizeDrillLayersAndNet) {
  const Board board = Read(BoardText(R"((net 1 "A")
    (via (at 10 20) (size 0.8) (drill 0.4) (layers "F.Cu" "B.Cu") (free) (net 1) (tstamp x)))"));
  const Via& via = board.vias.at(0);
  EXPECT_EQ(via.position, (Point{Mm(10), Mm(20)}));
  EXPECT_EQ(via.size, Mm(0.8));
  EXPECT_EQ(via.drill, Mm(0.4));
  EXPECT_EQ(via.type, ViaType::Through);
  EXPECT_EQ(LayerNameOf(board, via.firstLayer) + ' ' + LayerNameOf(board, via.lastLayer), "F.Cu B.Cu");
  EXPECT_EQ(NetNameOf(board, via.net), "A");
}

TEST(Via, KnowsItsKind) {
  const Board board = Read(BoardText(R"(
    (via blind (at 1 1) (size 0.8) (layers "F.Cu" "In1.Cu") (net 0))
    (via micro locked (at 1 1) (size 0.8) (layers "F.Cu" "In1.Cu") (net 0)))"));
  EXPECT_EQ(board.vias.at(0).type, ViaType::Blind);
  EXPECT_EQ(board.vias.at(1).type, ViaType::Micro);
  EXPECT_EQ(LayerNameOf(board, board.vias.at(1).lastLayer), "In1.Cu");
}

TEST(Via, WithoutLayersRunsFromTheFirstCopperToTheLast) {
  const Board board = Read(BoardText(R"(
    (layers (0 Top signal) (1 Inner power) (31 Bottom signal) (37 F.SilkS user))
    (via (at 1 1) (size 0.8) (net 0)))"));
  EXPECT_EQ(LayerNameOf(board, board.vias.at(0).firstLayer), "Top");
  EXPECT_EQ(LayerNameOf(board, board.vias.at(0).lastLayer), "Bottom");
}

TEST(Zone, OfVersion5HasOneLayerForOutlineAndFills) {
  const Board board = Read(BoardText(R"((net 1 GND)
    (zone (net 1) (net_name GND) (layer B.Cu) (tstamp 0) (hatch edge 0.5)
      (connect_pads (clearance 0.5)) (min_thickness 0.25)
      (fill yes (arc_segments 16) (thermal_gap 0.5))
      (polygon (pts (xy 0 0) (xy 10 0) (xy 10 10)))
      (filled_polygon (pts (xy 1 1) (xy 9 1) (xy 9 9)))))"));
  const Zone& zone = board.zones.at(0);
  EXPECT_EQ(NetNameOf(board, zone.net), "GND");
  EXPECT_EQ(LayerNamesOf(board, zone.layers), "B.Cu");
  EXPECT_FALSE(zone.keepout);
  ASSERT_EQ(zone.outlines.size(), 1u);
  EXPECT_EQ(zone.outlines[0].points, (std::vector<Point>{{0, 0}, {Mm(10), 0}, {Mm(10), Mm(10)}}));
  ASSERT_EQ(zone.fills.size(), 1u);
  EXPECT_EQ(LayerNameOf(board, zone.fills[0].layer), "B.Cu");
  EXPECT_EQ(zone.fills[0].polygon.points.size(), 3u);
}

TEST(Zone, OfVersion6MayHaveSeveralLayersAndAHole) {
  const Board board = Read(BoardText(R"((net 1 "GND")
    (zone (net 1) (net_name "GND") (layers "F&B.Cu") (tstamp 0) (name "pour") (priority 2)
      (polygon (pts (xy 0 0) (xy 10 0) (xy 10 10))) (polygon (pts (xy 4 1) (xy 5 1) (xy 5 2)))
      (filled_polygon (layer "F.Cu") (island) (pts (xy 1 1) (xy 9 1) (xy 9 9)))
      (filled_polygon (layer "B.Cu") (pts (xy 1 1) (xy 9 1) (xy 9 9)))))"));
  const Zone& zone = board.zones.at(0);
  EXPECT_EQ(LayerNamesOf(board, zone.layers), "F.Cu B.Cu");
  EXPECT_EQ(zone.outlines.size(), 2u);
  ASSERT_EQ(zone.fills.size(), 2u);
  EXPECT_EQ(LayerNameOf(board, zone.fills[1].layer), "B.Cu");
}

TEST(Zone, ThatKeepsOthersAwayIsMarked) {
  const Board board = Read(BoardText(R"(
    (zone (net 0) (net_name "") (layers *.Cu) (keepout (tracks not_allowed) (vias allowed))
      (polygon (pts (xy 0 0) (xy 1 0) (xy 1 1)))))"));
  EXPECT_TRUE(board.zones.at(0).keepout);
  EXPECT_EQ(board.zones.at(0).net, kNoNet);
  EXPECT_EQ(LayerNamesOf(board, board.zones.at(0).layers), "F.Cu B.Cu");
}

TEST(Outline, KeepsTheMiddlesOfItsArcs) {
  const Board board = Read(BoardText(R"((zone (layer "F.Cu") (polygon (pts
    (xy 0 0) (xy 10 0) (arc (start 10 0) (mid 12 2) (end 10 4)) (arc (start 10 4) (mid 9 5) (end 8 4)) (xy 0 4)))))"));
  const Polygon& outline = board.zones.at(0).outlines.at(0);
  EXPECT_EQ(outline.points,
            (std::vector<Point>{
                {0, 0}, {Mm(10), 0}, {Mm(12), Mm(2)}, {Mm(10), Mm(4)}, {Mm(9), Mm(5)}, {Mm(8), Mm(4)}, {0, Mm(4)}}));
  EXPECT_EQ(outline.arcs, (std::vector<std::uint32_t>{2, 4}));
}

TEST(Drawing, OfEveryKindIsRead) {
  const Board board = Read(BoardText(R"(
    (gr_line (start 0 0) (end 1 0) (layer "Edge.Cuts") (width 0.1) (tstamp a))
    (gr_arc (start 0 0) (mid 1 1) (end 2 0) (layer "Edge.Cuts") (width 0.1))
    (gr_circle (center 5 5) (end 6 5) (layer "F.SilkS") (width 0.1) (fill solid))
    (gr_rect (start 1 2) (end 3 5) (stroke (width 0.15) (type solid)) (fill none) (layer "F.SilkS"))
    (gr_poly (pts (xy 0 0) (xy 1 0) (xy 1 1)) (layer "F.Cu") (width 0) (fill yes) (net 1))
    (gr_curve (pts (xy 0 0) (xy 1 0) (xy 1 1) (xy 2 2)) (layer "F.SilkS") (width 0.1))
    (gr_text "text" (at 1 1) (layer "F.SilkS")) (net 1 "A"))"));
  ASSERT_EQ(board.drawings.size(), 6u);
  const auto& d = board.drawings;
  EXPECT_EQ(d[0].kind, DrawingKind::Line);
  EXPECT_EQ(d[0].points[1], (Point{Mm(1), 0}));
  EXPECT_EQ(d[0].width, Mm(0.1));
  EXPECT_EQ(LayerNameOf(board, d[0].layer), "Edge.Cuts");
  EXPECT_EQ(d[1].kind, DrawingKind::Arc);
  EXPECT_EQ(d[1].points[1], (Point{Mm(1), Mm(1)}));
  EXPECT_EQ(d[1].points[2], (Point{Mm(2), 0}));
  EXPECT_EQ(d[2].kind, DrawingKind::Circle);
  EXPECT_EQ(d[2].points[0], (Point{Mm(5), Mm(5)}));
  EXPECT_EQ(d[2].points[1], (Point{Mm(6), Mm(5)}));
  EXPECT_TRUE(d[2].filled);
  EXPECT_EQ(d[3].kind, DrawingKind::Rect);
  EXPECT_EQ(d[3].width, Mm(0.15));
  EXPECT_FALSE(d[3].filled);
  EXPECT_EQ(d[3].points, (std::array<Point, 4>{{{Mm(1), Mm(2)}, {Mm(3), Mm(2)}, {Mm(3), Mm(5)}, {Mm(1), Mm(5)}}}));
  EXPECT_EQ(d[4].kind, DrawingKind::Polygon);
  EXPECT_TRUE(d[4].filled);
  EXPECT_EQ(d[4].polygon.points.size(), 3u);
  EXPECT_EQ(NetNameOf(board, d[4].net), "A");
  EXPECT_EQ(d[5].kind, DrawingKind::Curve);
  EXPECT_EQ(d[5].points[3], (Point{Mm(2), Mm(2)}));
}

TEST(Drawing, PolygonOfVersion5IsFilled) {
  const Board board = Read(BoardText("(gr_poly (pts (xy 0 0) (xy 1 0) (xy 1 1)) (layer F.SilkS) (width 0.1))"));
  EXPECT_TRUE(board.drawings.at(0).filled);
}

// The older form gives centre, start and an angle that runs clockwise: from the right by 90 degrees to the bottom.
TEST(Drawing, ArcOfVersion5BecomesThreePoints) {
  const Board board = Read(BoardText("(gr_arc (start 10 10) (end 12 10) (angle 90) (layer Edge.Cuts) (width 0.1))"));
  const Drawing& arc = board.drawings.at(0);
  EXPECT_EQ(arc.kind, DrawingKind::Arc);
  EXPECT_EQ(arc.points[0], (Point{Mm(12), Mm(10)}));
  EXPECT_EQ(arc.points[1], (Point{11'414'214, 11'414'214}));
  EXPECT_EQ(arc.points[2], (Point{Mm(10), Mm(12)}));
}

TEST(Drawing, FullTurnOfVersion5BecomesACircle) {
  const Board board = Read(BoardText("(gr_arc (start 10 10) (end 12 10) (angle -360) (layer Edge.Cuts) (width 0.1))"));
  const Drawing& circle = board.drawings.at(0);
  EXPECT_EQ(circle.kind, DrawingKind::Circle);
  EXPECT_EQ(circle.points[0], (Point{Mm(10), Mm(10)}));
  EXPECT_EQ(circle.points[1], (Point{Mm(12), Mm(10)}));
}

TEST(Drawing, CurveNeedsFourPoints) {
  EXPECT_EQ(Refusal("(kicad_pcb\n(gr_curve (pts (xy 0 0) (xy 1 0))))"),
            "2:1: expected four points in a curve, found 2");
}

TEST(Items, WithDamagedPlacesAreRefusedAtTheNumber) {
  EXPECT_EQ(Refusal("(kicad_pcb\n(segment (start 0 x)))"), "2:19: expected a number, found \"x\"");
  EXPECT_EQ(Refusal("(kicad_pcb\n(segment (start 0)))"), "2:18: expected a number, found \")\"");
  EXPECT_EQ(Refusal("(kicad_pcb\n(via (at (xy 0 0))))"), "2:10: expected a number, found \"(\"");
  EXPECT_EQ(Refusal("(kicad_pcb\n(via (at 0 2147.5)))"), "2:12: expected a length within +-2147.483647 mm");
  EXPECT_EQ(Refusal("(kicad_pcb (version x))"), "1:21: expected a number, found \"x\"");
  EXPECT_EQ(Refusal("(kicad_pcb (version 1e99))"), "1:12: expected a format version such as 20211014");
}

}  // namespace
}  // namespace oxviewer::testing
