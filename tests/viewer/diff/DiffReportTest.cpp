#include <gtest/gtest.h>
#include <tests/viewer/diff/DiffTexts.h>
#include <viewer/diff/DiffReport.h>

#include <nlohmann/json.hpp>

namespace oxviewer::testing {
namespace {

// Without the blanks and line ends between the values; the texts here hold none.
std::string Compact(const std::string& json) {
  std::string text;
  for (const char c : json) {
    if (c != ' ' && c != '\n') text += c;
  }
  return text;
}

TEST(DiffReport, HasItsKeysInOrder) {
  const BoardDiff diff = Compare(R"((layers (0 "F.Cu" signal) (31 "B.Cu" signal) (44 "Edge.Cuts" user))
      (net 1 "A") (net 2 "C")
      (footprint "F" (layer "F.Cu") (at 0 0) (fp_text reference "R1" (at 0 0))
        (pad "1" smd rect (at 0 0) (size 1 1) (layers "F.Cu") (net 1 "A")))
      (footprint "F" (layer "F.Cu") (at 0 0) (fp_text reference "R2" (at 0 0))))",
                                 R"((layers (0 "F.Cu" power) (31 "B.Cu" signal) (4 "In1.Cu" signal))
      (net 1 "B") (net 2 "C") (via (at 1 1) (net 2))
      (footprint "F" (layer "F.Cu") (at 0 1 90) (fp_text reference "R1" (at 0 0))
        (pad "1" smd rect (at 0 0) (size 1 1) (layers "F.Cu") (net 1 "B"))))");
  EXPECT_EQ(Compact(ReportText(diff, "a.kicad_pcb", "b.kicad_pcb")), Compact(R"({"a":"a.kicad_pcb","b":"b.kicad_pcb",
    "equal":false,
    "layers":{"onlyA":["Edge.Cuts"],"onlyB":["In1.Cu"],"changed":[{"name":"F.Cu","findings":["type"]}],"equal":1},
    "components":{"onlyA":["R2"],"onlyB":[],"changed":[{"name":"R1","findings":["moved","rotated"]}],"equal":0},
    "nets":{"onlyA":["A"],"onlyB":["B"],"changed":[{"name":"C","findings":["vias"]}],"equal":0,
      "renamed":[{"a":"A","b":"B"}]}})"));
}

TEST(DiffReport, OfEqualBoardsSaysSo) {
  EXPECT_EQ(Compact(ReportText(Compare("(net 1 A)", "(net 1 A)"), "x", "x")), Compact(R"({"a":"x","b":"x","equal":true,
    "layers":{"onlyA":[],"onlyB":[],"changed":[],"equal":3},
    "components":{"onlyA":[],"onlyB":[],"changed":[],"equal":0},
    "nets":{"onlyA":[],"onlyB":[],"changed":[],"equal":1,"renamed":[]}})"));
}

TEST(DiffReport, IsUtf8WhateverTheNamesHold) {
  const std::string report =
      ReportText(Compare("(net 1 \"\xC3\xA4\\\"\\\\\") (net 2 \"\xFF\")", ""), "\xC3\xA9.kicad_pcb", "b\n");
  const nlohmann::json json = nlohmann::json::parse(report);
  EXPECT_EQ(json["a"], "\xC3\xA9.kicad_pcb");
  EXPECT_EQ(json["b"], "b\n");
  EXPECT_EQ(json["nets"]["onlyA"][0], "\xC3\xA4\"\\");
  EXPECT_EQ(json["nets"]["onlyA"][1], "\xEF\xBF\xBD");
  EXPECT_NE(report.find("\xC3\xA4"), std::string::npos);
  EXPECT_EQ(report.back(), '\n');
}

}  // namespace
}  // namespace oxviewer::testing
