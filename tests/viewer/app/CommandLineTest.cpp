#include <viewer/app/CommandLine.h>

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace oxviewer {
namespace {

using Arguments = std::vector<std::string_view>;

Options Parsed(const Arguments& arguments) {
  auto parsed = ParseCommandLine(arguments);
  if (const auto* error = std::get_if<std::string>(&parsed)) {
    ADD_FAILURE() << *error;
    return {};
  }
  return std::get<Options>(parsed);
}

std::string Refusal(const Arguments& arguments) {
  auto parsed = ParseCommandLine(arguments);
  const auto* error = std::get_if<std::string>(&parsed);
  return error ? *error : "accepted";
}

TEST(CommandLine, WithNothingOpensAnEmptyWindow) {
  const Options options = Parsed({});
  EXPECT_TRUE(options.IsInteractive());
  EXPECT_EQ(options.board, "");
}

TEST(CommandLine, TakesBoardAndOptionsInAnyOrder) {
  const Options options = Parsed({"--dump", "a.kicad_pcb", "--compare", "b.kicad_pcb", "--report=r.json"});
  EXPECT_EQ(options.board, "a.kicad_pcb");
  EXPECT_EQ(options.compare, "b.kicad_pcb");
  EXPECT_EQ(options.report, "r.json");
  EXPECT_TRUE(options.dump);
  EXPECT_FALSE(options.IsInteractive());
}

TEST(CommandLine, TakesTheSizeOfThePicture) {
  const Options options = Parsed({"a", "--screenshot", "p.png", "--size", "640x480"});
  EXPECT_EQ(options.screenshot, "p.png");
  EXPECT_EQ(options.size.width, 640);
  EXPECT_EQ(options.size.height, 480);
}

TEST(CommandLine, BehindTwoDashesHasFilesOnly) { EXPECT_EQ(Parsed({"--", "--dump"}).board, "--dump"); }

TEST(CommandLine, HelpAndVersionNeedNothingElse) {
  EXPECT_TRUE(Parsed({"--help"}).help);
  EXPECT_TRUE(Parsed({"-h"}).help);
  EXPECT_TRUE(Parsed({"--version", "a", "b"}).version);
}

struct RefusalRow {
  const char* fact;
  Arguments arguments;
  const char* message;
};
void PrintTo(const RefusalRow& row, std::ostream* out) { *out << row.fact; }

class CommandLineRefusal : public ::testing::TestWithParam<RefusalRow> {};

TEST_P(CommandLineRefusal, SaysWhatIsWrong) {
  EXPECT_EQ(Refusal(GetParam().arguments), std::string(GetParam().message) + " (see --help)");
}

const char* const kSizeMessage =
    "option --size needs a width and a height such as 1280x800, from 320x240 to 8192x8192, not ";

INSTANTIATE_TEST_SUITE_P(
    Rows, CommandLineRefusal,
    ::testing::Values(
        RefusalRow{"UnknownOption", {"--foo", "a"}, "unknown option \"--foo\""},
        RefusalRow{"UnknownShortOption", {"-x"}, "unknown option \"-x\""},
        RefusalRow{"TwoBoards", {"a", "b"}, "one board at a time: \"a\" and \"b\""},
        RefusalRow{"EmptyBoard", {""}, "the name of the board is empty"},
        RefusalRow{"MissingBoardToDump", {"--dump"}, "no board given"},
        RefusalRow{"MissingBoardToCompare", {"--compare", "b"}, "no board given"},
        RefusalRow{"MissingValueAtTheEnd", {"a", "--compare"}, "option --compare needs a value"},
        RefusalRow{"OptionInPlaceOfAValue", {"a", "--screenshot", "--dump"}, "option --screenshot needs a value"},
        RefusalRow{"EmptyValue", {"a", "--report="}, "option --report needs a value"},
        RefusalRow{"ValueOfAFlag", {"a", "--dump=yes"}, "option --dump takes no value"},
        RefusalRow{"OptionTwice", {"a", "--compare", "b", "--compare", "c"}, "option --compare is given twice"},
        RefusalRow{"ReportWithoutComparison", {"a", "--report", "r"}, "option --report needs --compare"},
        RefusalRow{"SizeWithoutPicture", {"a", "--size", "640x480"}, "option --size needs --screenshot"}),
    [](const auto& row) { return std::string(row.param.fact); });

TEST(CommandLine, RefusesEverySizeThatIsNone) {
  for (const std::string size : {"640", "x480", "640x", "640x480x", "640X480", "-640x480", "319x480", "640x239",
                                 "8193x480", "640x8193", "99999999999x480", " 640x480", "640x480 "}) {
    EXPECT_EQ(Refusal({"a", "--screenshot", "p", "--size", size}), kSizeMessage + ('"' + size + "\" (see --help)"));
  }
}

TEST(CommandLine, TakesSizesUpToTheLimits) {
  EXPECT_EQ(Parsed({"a", "--screenshot", "p", "--size", "320x240"}).size.width, 320);
  EXPECT_EQ(Parsed({"a", "--screenshot", "p", "--size", "8192x8192"}).size.height, 8192);
}

}  // namespace
}  // namespace oxviewer
