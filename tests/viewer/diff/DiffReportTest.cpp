#include <gtest/gtest.h>
#include <sys/stat.h>
#include <tests/viewer/board/Texts.h>
#include <tests/viewer/diff/DiffTexts.h>
#include <viewer/diff/DiffReport.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <nlohmann/json.hpp>

namespace oxviewer::testing {
namespace {

std::string ContentOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

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

TEST(ReportFile, IsWrittenAndReplaced) {
  const TemporaryFolder folder;
  const std::string path = folder.PathOf("report.json");
  EXPECT_FALSE(WriteReport(path, "first, and longer\n"));
  EXPECT_EQ(ContentOf(path), "first, and longer\n");
  EXPECT_FALSE(WriteReport(path, "second\n"));
  EXPECT_EQ(ContentOf(path), "second\n");
  const auto begin = std::filesystem::directory_iterator(folder.PathOf(""));
  EXPECT_EQ(std::distance(begin, std::filesystem::directory_iterator()), 1);
}

TEST(ReportFile, KeepsTheRightsAndTheLinkOfTheOldOne) {
  const TemporaryFolder folder;
  const std::string path = folder.Write("report.json", "old");
  ASSERT_EQ(::chmod(path.c_str(), 0640), 0);
  std::filesystem::create_symlink("report.json", folder.PathOf("link"));
  EXPECT_FALSE(WriteReport(folder.PathOf("link"), "new"));
  EXPECT_TRUE(std::filesystem::is_symlink(folder.PathOf("link")));
  EXPECT_EQ(ContentOf(path), "new");
  struct stat status {};
  ASSERT_EQ(::stat(path.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0640u);
}

TEST(ReportFile, ThatCannotBeWrittenIsAnError) {
  const TemporaryFolder folder;
  const auto missing = WriteReport(folder.PathOf("no/report.json"), "x");
  ASSERT_TRUE(missing);
  EXPECT_EQ(missing->ToLine(), folder.PathOf("no/report.json") + ": expected a writable file: there is no such folder");
  const auto directory = WriteReport(folder.PathOf(""), "x");
  ASSERT_TRUE(directory);
  EXPECT_EQ(directory->ToLine(), folder.PathOf("") + ": expected a writable file: it is a directory");
  const auto full = WriteReport("/dev/full", "x");
  ASSERT_TRUE(full);
  EXPECT_EQ(full->ToLine(), "/dev/full: expected a writable file: no space is left");
}

TEST(ReportFile, MayBeADevice) {
  EXPECT_FALSE(WriteReport("/dev/null", "x"));
  EXPECT_TRUE(std::filesystem::is_character_file("/dev/null"));
}

}  // namespace
}  // namespace oxviewer::testing
