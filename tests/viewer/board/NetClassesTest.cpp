#include <gtest/gtest.h>
#include <tests/viewer/board/Texts.h>
#include <viewer/board/NetClassTable.h>

#include <string>

namespace oxviewer::testing {
namespace {

// "net:class" of each net, in one line.
std::string Classes(const Board& board) {
  std::string line;
  for (const Net& net : board.nets) {
    line +=
        (line.empty() ? "" : " ") + net.name + ':' + board.netClasses.at(static_cast<std::size_t>(net.netClass)).name;
  }
  return line;
}

Board FourNets() { return Read(BoardText("(net 1 \"GND\") (net 2 \"+5V\") (net 3 \"/usb/D+\") (net 4 \"/usb/D-\")")); }

// The classes that a project gives to the four nets, or its refusal.
std::string Applied(const std::string& project, const ReaderLimits& limits = {}) {
  Board board = FourNets();
  ReadError error;
  if (!ApplyNetClasses(project, "test.kicad_pro", limits, board, error)) {
    EXPECT_EQ(Classes(board), "GND:Default +5V:Default /usb/D+:Default /usb/D-:Default");
    return error.ToLine();
  }
  return Classes(board);
}

std::string Settings(const std::string& inside) {
  return "{\"board\":{\"x\":[1,2]},\"net_settings\":{" + inside + "}}";
}

TEST(NetClasses, OfABoardOfVersion5AreItsOwn) {
  const Board board = Read(BoardText(R"((net 1 GND) (net 2 +5V) (net 3 X)
    (net_class Default "the usual one" (clearance 0.2) (trace_width 0.25) (add_net X))
    (net_class Power "" (clearance 0.2) (add_net GND) (add_net "+5V") (add_net "not on the board")))"));
  EXPECT_EQ(Classes(board), "GND:Power +5V:Power X:Default");
  ASSERT_EQ(board.netClasses.size(), 2u);
  EXPECT_EQ(board.netClasses[0].name, "Default");
}

TEST(NetClasses, AreDefaultWhereNothingIsSaid) {
  const Board board = FourNets();
  EXPECT_EQ(board.netClasses.size(), 1u);
  EXPECT_EQ(Classes(board), "GND:Default +5V:Default /usb/D+:Default /usb/D-:Default");
}

TEST(NetClasses, OfAProjectOfVersion6ListTheirNets) {
  EXPECT_EQ(Applied(Settings(R"json("classes":[{"name":"Default","nets":[]},
    {"bus_width":6.0,"name":"Power","nets":["GND","+5V"],"pcb_color":"rgba(0, 0, 0, 0.0)"}],
    "meta":{"version":2},"net_colors":null)json")),
            "GND:Power +5V:Power /usb/D+:Default /usb/D-:Default");
}

TEST(NetClasses, OfAProjectOfVersion7AreAssignedByNameAndByPattern) {
  EXPECT_EQ(Applied(Settings(R"("classes":[{"name":"Default"},{"name":"Power"},{"name":"USB"}],
    "netclass_assignments":{"GND":"Power","/usb/D-":"Default"},
    "netclass_patterns":[{"netclass":"USB","pattern":"/usb/*"},{"netclass":"Power","pattern":"*"}])")),
            "GND:Power +5V:Power /usb/D+:USB /usb/D-:Default");
}

TEST(NetClasses, OfAProjectOfVersion9AreListsOfWhichTheFirstCounts) {
  EXPECT_EQ(Applied(Settings(R"("classes":[{"name":"Power"},{"name":"USB"}],
    "netclass_assignments":{"GND":["USB","Power"],"+5V":[],"/usb/D+":null})")),
            "GND:USB +5V:Default /usb/D+:Default /usb/D-:Default");
}

TEST(NetClasses, ThatAreNotDeclaredCountAsDefault) {
  EXPECT_EQ(Applied(Settings(R"("classes":[],"netclass_assignments":{"GND":"Ghost"},
    "netclass_patterns":[{"netclass":"Ghost","pattern":"*"},{"netclass":"","pattern":"+*"}])")),
            "GND:Default +5V:Default /usb/D+:Default /usb/D-:Default");
}

TEST(NetClasses, UnsetSettingsAndOtherSectionsDoNotMatter) {
  const std::string usual = "GND:Default +5V:Default /usb/D+:Default /usb/D-:Default";
  EXPECT_EQ(Applied("{}"), usual);
  EXPECT_EQ(Applied("{\"net_settings\":null}"), usual);
  EXPECT_EQ(Applied(Settings("\"classes\":null,\"netclass_assignments\":null,\"netclass_patterns\":[]")), usual);
  EXPECT_EQ(Applied("{\"other\":{\"net_settings\":{\"classes\":7}},\"net_settings\":{\"x\":{\"classes\":7}}}"), usual);
  EXPECT_EQ(Applied(Settings("\"classes\":[{\"nets\":[\"GND\"]}]")), usual);
}

TEST(NetClasses, OfADamagedProjectAreRefusedWithTheirPlace) {
  EXPECT_EQ(Applied(""), "test.kicad_pro:1:1: expected JSON, found the end of the file");
  EXPECT_EQ(Applied("{\n  \"net_settings\": }"), "test.kicad_pro:2:19: expected JSON, found \"\"net_settings\": }\"");
  for (const char* cut : {"{\"a\": ", "{\"a\":12", "{\"a\":tr", "{\"a\": \"", "{\"a\":[{}"}) {
    EXPECT_EQ(Applied(cut), "test.kicad_pro:1:" + std::to_string(std::string(cut).size() + 1) +
                                ": expected JSON, found the end of the file");
  }
  EXPECT_EQ(Applied("[]"), "test.kicad_pro:1:1: expected an object, found an array");
  EXPECT_EQ(Applied("7"), "test.kicad_pro:1:1: expected an object, found a number");
  EXPECT_EQ(Applied("null"), "test.kicad_pro:1:4: expected an object, found null");
}

TEST(NetClasses, OfTheWrongKindAreRefused) {
  const auto message = [](const std::string& settings) {
    const std::string line = Applied(Settings(settings));
    return line.substr(line.find("expected"));
  };
  EXPECT_EQ(Applied("{\"net_settings\":[]}"), "test.kicad_pro:1:17: expected an object, found an array");
  EXPECT_EQ(Applied("{\"net_settings\":\"x\"}"), "test.kicad_pro:1:19: expected an object, found a string");
  EXPECT_EQ(message("\"classes\":{}"), "expected an array, found an object");
  EXPECT_EQ(message("\"classes\":true"), "expected an array, found a boolean");
  EXPECT_EQ(message("\"classes\":[\"x\"]"), "expected an object, found a string");
  EXPECT_EQ(message("\"classes\":[{\"name\":7}]"), "expected a string, found a number");
  EXPECT_EQ(message("\"classes\":[{\"name\":{}}]"), "expected a string, found an object");
  EXPECT_EQ(message("\"classes\":[{\"name\":\"A\",\"nets\":\"B\"}]"), "expected an array, found a string");
  EXPECT_EQ(message("\"classes\":[{\"name\":\"A\",\"nets\":[1.5]}]"), "expected a string, found a number");
  EXPECT_EQ(message("\"netclass_assignments\":[]"), "expected an object, found an array");
  EXPECT_EQ(message("\"netclass_assignments\":{\"GND\":1}"), "expected the name of a net class, found a number");
  EXPECT_EQ(message("\"netclass_assignments\":{\"GND\":{}}"), "expected the name of a net class, found an object");
  EXPECT_EQ(message("\"netclass_assignments\":{\"GND\":[[]]}"), "expected a string, found an array");
  EXPECT_EQ(message(R"("classes":[{"name":"A\u0000B"}])"), "expected text, found a NUL");
  EXPECT_EQ(message("\"netclass_patterns\":{}"), "expected an array, found an object");
  EXPECT_EQ(message("\"netclass_patterns\":[{\"pattern\":-1}]"), "expected a string, found a number");
}

TEST(NetClasses, NestingAndTextsOfAProjectAreLimited) {
  ReaderLimits limits;
  limits.nesting = 3;
  EXPECT_EQ(Applied("{\"a\":[{}]}", limits), "GND:Default +5V:Default /usb/D+:Default /usb/D-:Default");
  EXPECT_EQ(Applied("{\"a\":[[[]]]}", limits), "test.kicad_pro:1:8: expected at most 3 nested values");
  limits = {};
  limits.stringBytes = 3;
  EXPECT_EQ(Applied("{\"abc\":\"abc\"}", limits), "GND:Default +5V:Default /usb/D+:Default /usb/D-:Default");
  EXPECT_EQ(Applied("{\"abcd\":1}", limits), "test.kicad_pro:1:7: expected a text of at most 3 bytes");
  EXPECT_EQ(Applied("{\"a\":\"abcd\"}", limits), "test.kicad_pro:1:11: expected a text of at most 3 bytes");
}

TEST(NetClasses, EffortSpentOnPatternsIsLimited) {
  const std::string project = Settings(
      "\"classes\":[{\"name\":\"A\"}],\n\"netclass_patterns\":[{\"netclass\":\"A\",\n"
      "\"pattern\":\"GND\"}]");
  ReaderLimits limits;
  limits.patternSteps = 100;
  EXPECT_EQ(Applied(project, limits), "GND:A +5V:Default /usb/D+:Default /usb/D-:Default");
  limits.patternSteps = 3;
  EXPECT_EQ(Applied(project, limits), "test.kicad_pro:3:16: expected simpler net class patterns or fewer of them");
}

TEST(NetClasses, OfTheProjectFileBesideTheBoardAreTaken) {
  const TemporaryFolder folder;
  const std::string board = folder.Write("a.b.kicad_pcb", BoardText("(net 1 \"GND\")"));
  folder.Write("a.b.kicad_pro", Settings(R"("classes":[{"name":"Power","nets":["GND"]}])"));
  const Result<Board> result = ReadBoard(board);
  ASSERT_TRUE(result) << result.error().ToLine();
  EXPECT_EQ(Classes(*result), "GND:Power");
}

TEST(NetClasses, OfTheBoardCountMoreThanADamagedProjectFile) {
  const TemporaryFolder folder;
  const std::string board = folder.Write("a.kicad_pcb", BoardText("(net 1 A) (net_class C \"\" (add_net A))"));
  folder.Write("a.kicad_pro", "damaged");
  const Result<Board> result = ReadBoard(board);
  ASSERT_TRUE(result) << result.error().ToLine();
  EXPECT_EQ(Classes(*result), "A:C");
}

TEST(NetClasses, OfADamagedProjectFileRefuseTheBoard) {
  const TemporaryFolder folder;
  const std::string board = folder.Write("a.kicad_pcb", BoardText("(net 1 A)"));
  folder.Write("a.kicad_pro", "{\"net_settings\":{\"classes\":3}}");
  const Result<Board> damaged = ReadBoard(board);
  ASSERT_FALSE(damaged);
  EXPECT_EQ(damaged.error().ToLine(), folder.PathOf("a.kicad_pro") + ":1:28: expected an array, found a number");
  folder.Write("a.kicad_pro", "{} ");
  ReaderLimits limits;
  limits.projectBytes = 3;
  EXPECT_TRUE(ReadBoard(board, limits));
  limits.projectBytes = 2;
  const Result<Board> large = ReadBoard(board, limits);
  ASSERT_FALSE(large);
  EXPECT_EQ(large.error().ToLine(), folder.PathOf("a.kicad_pro") + ": expected a file of at most 2 bytes");
}

TEST(NetClasses, WithoutAProjectFileAreDefault) {
  const TemporaryFolder folder;
  const Result<Board> result = ReadBoard(folder.Write("a.kicad_pcb", BoardText("(net 1 A)")));
  ASSERT_TRUE(result);
  EXPECT_EQ(Classes(*result), "A:Default");
}

bool Matches(std::string_view text, std::string_view pattern) {
  std::uint64_t steps = 1000;
  return MatchesPattern(text, pattern, steps);
}

TEST(NetClassPattern, CoversTheWholeName) {
  EXPECT_TRUE(Matches("GND", "GND"));
  EXPECT_FALSE(Matches("GND", "gnd"));
  EXPECT_FALSE(Matches("GND", "GN"));
  EXPECT_FALSE(Matches("GND", "GNDA"));
  EXPECT_FALSE(Matches("AGND", "GND"));
  EXPECT_TRUE(Matches("", ""));
  EXPECT_FALSE(Matches("A", ""));
}

TEST(NetClassPattern, StarStandsForAnyCharacters) {
  EXPECT_TRUE(Matches("", "*"));
  EXPECT_TRUE(Matches("/usb/D+", "/usb/*"));
  EXPECT_TRUE(Matches("/usb/", "/usb/*"));
  EXPECT_TRUE(Matches("abcabcabd", "*abd"));
  EXPECT_TRUE(Matches("aXbXc", "a*b*c"));
  EXPECT_FALSE(Matches("aXbXd", "a*b*c"));
  EXPECT_TRUE(Matches("abc", "***"));
}

TEST(NetClassPattern, QuestionMarkStandsForOneCharacterOfAnyLength) {
  EXPECT_TRUE(Matches("D1", "D?"));
  EXPECT_FALSE(Matches("D", "D?"));
  EXPECT_FALSE(Matches("D12", "D?"));
  EXPECT_TRUE(Matches("\xE2\x82\xAC", "?"));
  EXPECT_FALSE(Matches("\xE2\x82\xAC", "??"));
}

TEST(NetClassPattern, GivesUpWhenItsStepsAreUsed) {
  const std::string text(1000, 'a');
  std::uint64_t steps = 500;
  EXPECT_FALSE(MatchesPattern(text, "*a*a*a*a*b", steps));
  EXPECT_EQ(steps, 0u);
}

}  // namespace
}  // namespace oxviewer::testing
