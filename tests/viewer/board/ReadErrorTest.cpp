#include <gtest/gtest.h>
#include <tests/viewer/board/Texts.h>

namespace oxviewer::testing {
namespace {

TEST(ReadErrorLine, NamesFilePlaceAndExpectation) {
  EXPECT_EQ((ReadError{"a.kicad_pcb", 3, 7, "expected a number"}).ToLine(), "a.kicad_pcb:3:7: expected a number");
  EXPECT_EQ((ReadError{"a.kicad_pcb", 0, 0, "expected a regular file"}).ToLine(),
            "a.kicad_pcb: expected a regular file");
}

TEST(ReadErrorLine, StaysOneLineWhateverItQuotes) {
  EXPECT_EQ((ReadError{"a\nb", 1, 2, "x\ty\rz\x1b[31m\x7f"}).ToLine(), "a\\nb:1:2: x\\ty\\x0dz\\x1b[31m\\x7f");
  EXPECT_EQ((ReadError{"\xC2\x85\xE2\x80\xA8\xE2\x80\xAE", 0, 0, "m"}).ToLine(),
            "\\xc2\\x85\\xe2\\x80\\xa8\\xe2\\x80\\xae: m");
}

TEST(ReadErrorLine, KeepsTextAndShowsBytesThatAreNone) {
  EXPECT_EQ((ReadError{"\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80", 0, 0, "m"}).ToLine(),
            "\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80: m");
  EXPECT_EQ((ReadError{"a\xFF\xC3", 0, 0, "\x80m"}).ToLine(), "a\\xff\\xc3: \\x80m");
}

TEST(ReadErrorLine, OfAHostileWordIsReadable) {
  const auto result = ReadBoardText("(kicad_pcb (via (at \x1b]0;title\x07 1)))", "x");
  ASSERT_FALSE(result);
  EXPECT_EQ(result.error().ToLine(), "x:1:21: expected a number, found \"\\x1b]0;title\\x07\"");
}

}  // namespace
}  // namespace oxviewer::testing
