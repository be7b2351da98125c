#include <gtest/gtest.h>
#include <tests/viewer/diff/DiffTexts.h>

#include <string>

namespace oxviewer::testing {
namespace {

std::string LayersBetween(const std::string& a, const std::string& b) {
  return Drawn(Compare("(layers " + a + ")", "(layers " + b + ")").layers);
}

std::string ComponentsBetween(const std::string& a, const std::string& b) { return Drawn(Compare(a, b).components); }

std::string NetsBetween(const std::string& a, const std::string& b) {
  const std::string table = "(net 1 \"N\")";
  return Drawn(Compare(table + a, table + b).nets);
}

// A component with one text per property that counts.
std::string Part(const std::string& reference, const std::string& at = "1 2", const std::string& value = "V",
                 const std::string& footprint = "L:F", const std::string& layer = "F.Cu") {
  return "(footprint \"" + footprint + "\" (layer \"" + layer + "\") (at " + at + ") (fp_text reference \"" +
         reference + "\" (at 0 0)) (fp_text value \"" + value + "\" (at 0 0)))";
}

// A component that joins nets: "1:A 2:B" is pad 1 on net A and pad 2 on net B.
std::string Joining(const std::string& reference, const std::string& pads) {
  std::string text = "(footprint \"F\" (layer \"F.Cu\") (at 0 0) (fp_text reference \"" + reference + "\" (at 0 0))";
  for (std::size_t at = 0; at < pads.size();) {
    const std::size_t end = std::min(pads.find(' ', at), pads.size());
    const std::size_t colon = pads.find(':', at);
    text += "(pad \"" + pads.substr(at, colon - at) + "\" smd rect (at 0 0) (size 1 1) (layers \"F.Cu\") (net \"" +
            pads.substr(colon + 1, end - colon - 1) + "\"))";
    at = end + 1;
  }
  return text + ')';
}

TEST(LayerDiff, MatchesByCanonicalName) {
  EXPECT_EQ(LayersBetween("(0 F.Cu signal) (1 In1.Cu signal) (31 B.Cu signal)",
                          "(0 F.Cu signal) (4 In2.Cu signal) (2 B.Cu signal)"),
            "-In1.Cu +In2.Cu =2");
}

TEST(LayerDiff, FindsNewUserNamesAndTypes) {
  EXPECT_EQ(LayersBetween("(0 F.Cu signal) (1 In1.Cu signal) (31 B.Cu signal \"x\")",
                          "(0 F.Cu signal Top) (1 In1.Cu power GND) (31 B.Cu signal \"x\")"),
            "F.Cu(renamed) In1.Cu(renamed type) =1");
}

TEST(LayerDiff, AUserNameLikeTheCanonicalOneIsNone) {
  EXPECT_EQ(LayersBetween("(0 F.Cu signal F.Cu)", "(0 F.Cu signal)"), "=1");
}

TEST(LayerDiff, KnowsOnlyDeclaredLayers) {
  EXPECT_EQ(Drawn(Compare("(gr_line (start 0 0) (end 1 1) (layer \"User.1\"))", "").layers), "=3");
}

TEST(ComponentDiff, FindsEachKindOfChangeInItsOrder) {
  const std::string before = Part("R1");
  EXPECT_EQ(ComponentsBetween(before, Part("R1")), "=1");
  EXPECT_EQ(ComponentsBetween(before, Part("R1", "1 2.000001")), "R1(moved) =0");
  EXPECT_EQ(ComponentsBetween(before, Part("R1", "1 2 90")), "R1(rotated) =0");
  EXPECT_EQ(ComponentsBetween(before, Part("R1", "1 2", "V", "L:F", "B.Cu")), "R1(side) =0");
  EXPECT_EQ(ComponentsBetween(before, Part("R1", "1 2", "W")), "R1(value) =0");
  EXPECT_EQ(ComponentsBetween(before, Part("R1", "1 2", "V", "L:G")), "R1(footprint) =0");
  EXPECT_EQ(ComponentsBetween(before, Part("R1", "5 5 45", "W", "L:G", "B.Cu")),
            "R1(moved rotated side value footprint) =0");
}

TEST(ComponentDiff, SpellingOfNumbersAndWholeTurnsAreNoChange) {
  EXPECT_EQ(ComponentsBetween(Part("R1", "1 2 -90"), Part("R1", "1.0 2.000 270.0")), "=1");
  EXPECT_EQ(ComponentsBetween(Part("R1", "1 2"), Part("R1", "1.0000004 2 720")), "=1");
  EXPECT_EQ(ComponentsBetween(Part("R1", "1 2"), Part("R1", "1.0000006 2")), "R1(moved) =0");
}

TEST(ComponentDiff, ListsWhatOnlyOneBoardHasInNaturalOrder) {
  EXPECT_EQ(ComponentsBetween(Part("R10") + Part("R9") + Part("C1") + Part("X"), Part("X") + Part("U2") + Part("U11")),
            "-C1 -R9 -R10 +U2 +U11 =1");
}

TEST(ComponentDiff, WithoutAReferenceMatchesByPlace) {
  EXPECT_EQ(ComponentsBetween(Part("", "1 1") + Part("", "2 2"), Part("", "2 2") + Part("", "3 3")), "- + =1");
  EXPECT_EQ(ComponentsBetween(Part("", "1 1", "V"), Part("", "1 1", "W")), "(value) =0");
}

TEST(ComponentDiff, WithAReferenceUsedTwiceInEitherBoardMatchesByPlace) {
  EXPECT_EQ(ComponentsBetween(Part("H1", "1 1") + Part("H1", "2 2"), Part("H1", "2 2") + Part("H1", "3 3")),
            "-H1 +H1 =1");
  EXPECT_EQ(ComponentsBetween(Part("H1", "1 1"), Part("H1", "2 2") + Part("H1", "1 1 90")), "+H1 H1(rotated) =0");
  EXPECT_EQ(ComponentsBetween(Part("H1", "2 2") + Part("H1", "1 1 90"), Part("H1", "1 1")), "-H1 H1(rotated) =0");
  EXPECT_EQ(ComponentsBetween(Part("H1", "1 1"), Part("H1", "2 2") + Part("H1", "3 3")), "-H1 +H1 +H1 =0");
}

TEST(ComponentDiff, SeveralAtOnePlacePairTheirEqualsFirst) {
  EXPECT_EQ(ComponentsBetween(Part("", "1 1", "A") + Part("", "1 1", "B") + Part("", "1 1", "C"),
                              Part("", "1 1", "D") + Part("", "1 1", "B") + Part("", "1 1", "A")),
            "(value) =2");
  EXPECT_EQ(ComponentsBetween(Part("", "1 1", "A") + Part("", "1 1", "A"), Part("", "1 1", "A")), "- =1");
}

TEST(ComponentDiff, KnowsWhichOnesItMatched) {
  const BoardDiff diff = Compare(Part("R1") + Part("R2") + Part("R3", "7 7"), Part("R3") + Part("R4") + Part("R1"));
  ASSERT_EQ(diff.components.equal.size(), 1u);
  EXPECT_EQ(diff.components.equal[0].a, 0);
  EXPECT_EQ(diff.components.equal[0].b, 2);
  EXPECT_EQ(diff.components.changed.at(0).a, 2);
  EXPECT_EQ(diff.components.changed.at(0).b, 0);
  EXPECT_EQ(diff.components.onlyA.at(0).id, 1);
  EXPECT_EQ(diff.components.onlyB.at(0).id, 1);
}

constexpr const char* kTrack = "(segment (start 0 0) (end 5 0) (width 0.2) (layer \"F.Cu\") (net 1) (tstamp a))";

TEST(NetDiff, ADirectionAnIdOrANumberSpelledOtherwiseIsNoChange) {
  EXPECT_EQ(NetsBetween(kTrack, "(segment (start 5.0 0) (end 0 0.000) (width 0.20) (layer F.Cu) (net 1) (tstamp b))"),
            "=1");
}

TEST(NetDiff, FindsOtherTracks) {
  EXPECT_EQ(NetsBetween(kTrack, ""), "N(tracks) =0");
  EXPECT_EQ(NetsBetween("", kTrack), "N(tracks) =0");
  EXPECT_EQ(NetsBetween(kTrack, "(segment (start 0 0) (end 5 0) (width 0.2) (layer \"B.Cu\") (net 1))"),
            "N(tracks) =0");
  EXPECT_EQ(NetsBetween(kTrack, "(segment (start 0 0) (end 5 0.000001) (width 0.2) (layer \"F.Cu\") (net 1))"),
            "N(tracks) =0");
  EXPECT_EQ(NetsBetween(kTrack, "(arc (start 0 0) (mid 2 1) (end 5 0) (width 0.2) (layer \"F.Cu\") (net 1))"),
            "N(tracks) =0");
}

TEST(NetDiff, TracksAreASet) { EXPECT_EQ(NetsBetween(std::string(kTrack) + kTrack, kTrack), "=1"); }

TEST(NetDiff, ATrackOfAnotherNetOrOfNoneIsAnotherMatter) {
  EXPECT_EQ(NetsBetween(kTrack, "(segment (start 0 0) (end 5 0) (width 0.2) (layer \"F.Cu\") (net 0))"),
            "N(tracks) =0");
  EXPECT_EQ(NetsBetween("", "(segment (start 0 0) (end 5 0) (width 0.2) (layer \"F.Cu\") (net 0))"), "=1");
}

TEST(NetDiff, ArcsMatchByTheirThreePoints) {
  const std::string arc = "(arc (start 0 0) (mid 1 1) (end 2 0) (width 0.2) (layer \"F.Cu\") (net 1))";
  EXPECT_EQ(NetsBetween(arc, "(arc (start 2 0) (mid 1 1) (end 0 0) (width 0.2) (layer \"F.Cu\") (net 1))"), "=1");
  EXPECT_EQ(NetsBetween(arc, "(arc (start 0 0) (mid 1 -1) (end 2 0) (width 0.2) (layer \"F.Cu\") (net 1))"),
            "N(tracks) =0");
}

TEST(NetDiff, FindsOtherWidths) {
  const std::string wider = "(segment (start 5 0) (end 0 0) (width 0.3) (layer \"F.Cu\") (net 1))";
  EXPECT_EQ(NetsBetween(kTrack, wider), "N(width) =0");
  EXPECT_EQ(NetsBetween(kTrack, wider + "(segment (start 5 0) (end 9 9) (width 1) (layer \"F.Cu\") (net 1))"),
            "N(tracks width) =0");
  EXPECT_EQ(NetsBetween(kTrack, kTrack + wider), "N(width) =0");
}

TEST(NetDiff, FindsOtherVias) {
  const std::string via = "(via (at 1 1) (size 0.8) (drill 0.4) (layers \"F.Cu\" \"B.Cu\") (net 1))";
  EXPECT_EQ(NetsBetween(via, "(via (at 1 1) (size 0.6) (drill 0.3) (layers \"B.Cu\" \"F.Cu\") (net 1))"), "=1");
  EXPECT_EQ(NetsBetween(via, "(via (at 1 1.1) (size 0.8) (layers \"F.Cu\" \"B.Cu\") (net 1))"), "N(vias) =0");
  EXPECT_EQ(NetsBetween(via, "(via blind (at 1 1) (size 0.8) (layers \"F.Cu\" \"In1.Cu\") (net 1))"), "N(vias) =0");
}

std::string ZoneOf(const std::string& points, const std::string& layers = "\"F.Cu\"", const std::string& more = "") {
  return "(zone (net 1) (net_name \"N\") (layers " + layers + ") (polygon (pts " + points + "))" + more + ")";
}

TEST(NetDiff, FindsOtherZones) {
  const std::string zone = ZoneOf("(xy 0 0) (xy 4 0) (xy 4 3)");
  EXPECT_EQ(NetsBetween(zone, ""), "N(zones) =0");
  EXPECT_EQ(NetsBetween(zone, ZoneOf("(xy 0 0) (xy 4 0) (xy 4 3.5)")), "N(zones) =0");
  EXPECT_EQ(NetsBetween(zone, ZoneOf("(xy 0 0) (xy 4 0) (xy 4 3)", "\"B.Cu\"")), "N(zones) =0");
  EXPECT_EQ(NetsBetween(zone, ZoneOf("(xy 0 0) (xy 4 0) (xy 4 3)", "F&B.Cu")), "N(zones) =0");
  EXPECT_EQ(
      NetsBetween(zone, ZoneOf("(xy 0 0) (xy 4 0) (xy 4 3)", "\"F.Cu\"", "(polygon (pts (xy 1 1) (xy 2 1) (xy 2 2)))")),
      "N(zones) =0");
}

TEST(NetDiff, ZonesMayStartAnywhereAndRunEitherWayRoundAndBeFilledOtherwise) {
  const std::string zone = ZoneOf("(xy 0 0) (xy 4 0) (xy 4 3)");
  EXPECT_EQ(NetsBetween(zone, ZoneOf("(xy 4 0) (xy 4 3) (xy 0 0)")), "=1");
  EXPECT_EQ(NetsBetween(zone, ZoneOf("(xy 4 3) (xy 4 0) (xy 0 0)")), "=1");
  EXPECT_EQ(NetsBetween(zone, ZoneOf("(xy 4 3) (xy 4 0) (xy 0 0) (xy 4 3)")), "=1");
  EXPECT_EQ(NetsBetween(zone, ZoneOf("(xy 0 0) (xy 4 0) (xy 4 3)", "\"F.Cu\"",
                                     "(filled_polygon (layer F.Cu) (pts (xy 1 1) (xy 2 1) (xy 2 2)))")),
            "=1");
  EXPECT_EQ(NetsBetween(ZoneOf("(xy 0 0) (xy 4 0) (xy 4 3)", "\"F.Cu\" \"B.Cu\""),
                        ZoneOf("(xy 0 0) (xy 4 0) (xy 4 3)", "\"B.Cu\" \"F.Cu\"")),
            "=1");
}

TEST(NetDiff, FindsOtherPads) {
  EXPECT_EQ(Drawn(Compare(Joining("R1", "1:A 2:B"), Joining("R1", "1:A 3:B")).nets), "B(pads) =1");
  EXPECT_EQ(Drawn(Compare(Joining("R1", "1:A 2:A"), Joining("R1", "2:A 1:A 1:A")).nets), "=1");
  EXPECT_EQ(Drawn(Compare(Joining("R1", "1:A"), Joining("R2", "1:A")).nets), "A(pads) =0");
}

TEST(NetDiff, FindingsStandInTheirOrder) {
  EXPECT_EQ(NetsBetween(kTrack + Joining("R1", "1:N"),
                        "(segment (start 0 0) (end 5 0) (width 0.5) (layer \"F.Cu\") (net 1))"
                        "(segment (start 1 0) (end 5 0) (width 0.5) (layer \"F.Cu\") (net 1))"
                        "(via (at 1 1) (net 1))" +
                            ZoneOf("(xy 0 0) (xy 1 1)")),
            "N(pads tracks width vias zones) =0");
}

TEST(NetDiff, SizesOfPadsFillsAndDrawingsAreNoFinding) {
  EXPECT_TRUE(Compare("(gr_line (start 0 0) (end 1 1) (layer \"Edge.Cuts\"))" + Joining("R1", "1:A"),
                      "(footprint \"F\" (layer \"F.Cu\") (at 0 0) (fp_text reference \"R1\" (at 0 0))"
                      "(fp_line (start 0 0) (end 1 1) (layer \"F.SilkS\"))"
                      "(pad \"1\" thru_hole circle (at 2 2) (size 3 3) (drill 1) (layers *.Cu) (net \"A\")))")
                  .Equal());
}

TEST(NetDiff, NumbersOfNetsMeanNothing) {
  EXPECT_EQ(Drawn(Compare("(net 1 \"A\") (net 2 \"B\") (via (at 0 0) (net 1))",
                          "(net 1 \"B\") (net 2 \"A\") (via (at 0 0) (net 2))")
                      .nets),
            "=2");
}

TEST(NetDiff, ListsStandInNaturalOrder) {
  EXPECT_EQ(Drawn(Compare("(net 1 \"D10\") (net 2 \"D9\") (net 3 \"b\") (net 4 \"A\")",
                          "(net 1 \"-5\") (net 2 \"-3\") (net 3 \"x01\") (net 4 \"x1\")")
                      .nets),
            "-A -b -D9 -D10 +-3 +-5 +x1 +x01 =0");
}

TEST(NetDiff, NamesThatAreEquivalentStandInTheOrderOfTheirBytes) {
  EXPECT_EQ(Drawn(Compare("(net 1 \"gnd\") (net 2 \"GND\") (net 3 \"Gnd\")", "").nets), "-GND -Gnd -gnd =0");
}

TEST(RenamedNets, JoinTheSamePads) {
  const BoardDiff diff =
      Compare(Joining("R1", "1:A 2:B") + Joining("R2", "1:A"), Joining("R1", "1:X 2:B") + Joining("R2", "1:X"));
  EXPECT_EQ(Drawn(diff.nets), "-A +X =1");
  EXPECT_EQ(Drawn(diff.renamed), "A>X");
  EXPECT_EQ(diff.renamed.at(0).a.id, diff.nets.onlyA.at(0).id);
  EXPECT_EQ(diff.renamed.at(0).b.id, diff.nets.onlyB.at(0).id);
}

TEST(RenamedNets, WithoutPadsAreNotKnown) {
  EXPECT_EQ(Drawn(Compare("(net 1 A) (via (at 0 0) (net 1))", "(net 1 B) (via (at 0 0) (net 1))").renamed), "");
}

TEST(RenamedNets, AreThoseOfOneBoardOnly) {
  EXPECT_EQ(Drawn(Compare(Joining("R1", "1:A"), "(net 1 \"A\")" + Joining("R1", "1:X")).renamed), "");
}

TEST(RenamedNets, WithSeveralChoicesPairInNaturalOrder) {
  // Pads without a reference, all named 1: four nets and three with the same set.
  const BoardDiff diff = Compare(Joining("", "1:N10") + Joining("", "1:N9") + Joining("", "1:N1") + Joining("", "1:N2"),
                                 Joining("", "1:M10") + Joining("", "1:M2") + Joining("", "1:M1"));
  EXPECT_EQ(Drawn(diff.renamed), "N1>M1 N2>M2 N9>M10");
}

TEST(Diff, OfEmptyBoardsIsEqual) {
  EXPECT_EQ(Drawn(CompareBoards({}, {}, EcadOrder())), "layers =0\ncomponents =0\nnets =0\nrenamed ");
  EXPECT_TRUE(CompareBoards({}, {}, EcadOrder()).Equal());
}

TEST(Diff, IsUnequalForEachSection) {
  EXPECT_FALSE(Compare("(layers (0 A signal))", "(layers (0 B signal))").Equal());
  EXPECT_FALSE(Compare(Part("R1"), Part("R1", "9 9")).Equal());
  EXPECT_FALSE(Compare("(net 1 A)", "").Equal());
  EXPECT_FALSE(Compare("", "(net 1 A)").Equal());
}

}  // namespace
}  // namespace oxviewer::testing
