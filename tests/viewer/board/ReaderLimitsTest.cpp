#include <gtest/gtest.h>
#include <tests/viewer/board/Texts.h>

#include <string>

namespace oxviewer::testing {
namespace {

std::string Repeated(const std::string& text, std::size_t count) {
  std::string all;
  all.reserve(text.size() * count);
  for (std::size_t i = 0; i < count; ++i) all += text;
  return all;
}

std::string Nested(std::size_t depth) {
  return "(kicad_pcb\n" + Repeated("(a", depth - 1) + Repeated(")", depth - 1) + ")";
}

TEST(ReaderLimits, AreThePromisedOnes) {
  const ReaderLimits limits;
  EXPECT_EQ(limits.fileBytes, 268435456u);
  EXPECT_EQ(limits.nesting, 256u);
  EXPECT_EQ(limits.stringBytes, 65536u);
  EXPECT_EQ(limits.items, 10000000u);
}

TEST(ReaderLimits, HoldForTheSizeOfATextToo) {
  ReaderLimits limits;
  limits.fileBytes = 11;
  EXPECT_EQ(Refusal("(kicad_pcb)", limits), "read");
  EXPECT_EQ(Refusal("(kicad_pcb) ", limits), "0:0: expected a file of at most 11 bytes");
}

TEST(ReaderLimits, HoldForNesting) {
  ReaderLimits limits;
  limits.nesting = 5;
  EXPECT_EQ(Refusal(Nested(5), limits), "read");
  EXPECT_EQ(Refusal(Nested(6), limits), "2:9: expected at most 5 nested lists");
  EXPECT_EQ(Refusal(Nested(256)), "read");
  EXPECT_EQ(Refusal(Nested(257)), "2:511: expected at most 256 nested lists");
}

TEST(ReaderLimits, HoldForOneString) {
  const auto named = [](std::size_t length) { return BoardText("(net 1 \"" + std::string(length, 'n') + "\")"); };
  ReaderLimits limits;
  limits.stringBytes = 20;
  EXPECT_EQ(Refusal(named(20), limits), "read");
  EXPECT_EQ(Refusal(named(21), limits), "3:8: expected a text of at most 20 bytes");
  EXPECT_EQ(Refusal(named(65536)), "read");
  EXPECT_EQ(Refusal(named(65537)), "3:8: expected a text of at most 65536 bytes");
}

// One of each kind of item that counts, seven in all; drawings count on the board, in a component and in a pad.
constexpr const char* kSevenItems = R"(
(segment (start 0 0) (end 1 1)) (arc (start 0 0) (mid 1 0) (end 1 1)) (via (at 0 0)) (zone (layer "F.Cu"))
(gr_line (start 0 0) (end 1 1))
(footprint "A" (pad "1" smd rect (at 0 0)) (fp_line (start 0 0) (end 1 1))))";

TEST(ReaderLimits, HoldForAllKindsOfItemsTogether) {
  ReaderLimits limits;
  limits.items = 7;
  EXPECT_EQ(Refusal(BoardText(kSevenItems), limits), "read");
  limits.items = 6;
  EXPECT_EQ(Refusal(BoardText(kSevenItems), limits), "6:44: expected at most 6 board items");
}

TEST(ReaderLimits, HoldForEachKindOfItem) {
  ReaderLimits limits;
  limits.items = 2;
  for (const char* item : {"(segment (start 0 0))", "(arc (start 0 0))", "(via (at 0 0))", "(zone (layer F.Cu))",
                           "(gr_line (start 0 0))"}) {
    EXPECT_EQ(Refusal(BoardText(Repeated(item, 2)), limits), "read") << item;
    EXPECT_EQ(Refusal(BoardText(Repeated(item, 2) + '\n' + item), limits), "4:1: expected at most 2 board items")
        << item;
  }
  for (const char* item : {"(pad 1 smd rect)", "(fp_line (start 0 0))", "(zone (layer F.Cu))"}) {
    EXPECT_EQ(Refusal(BoardText("(module A " + Repeated(item, 2) + ')'), limits), "read") << item;
    EXPECT_EQ(Refusal(BoardText("(module A " + Repeated(item, 2) + '\n' + item + ')'), limits),
              "4:1: expected at most 2 board items")
        << item;
  }
}

TEST(ReaderLimits, HoldForNetsAndComponentsToo) {
  ReaderLimits limits;
  limits.items = 2;
  EXPECT_EQ(Refusal(BoardText("(net 1 A) (net 2 B)"), limits), "read");
  EXPECT_EQ(Refusal(BoardText("(net 1 A) (net 2 B)\n(net 3 C)"), limits), "4:1: expected at most 2 nets");
  EXPECT_EQ(Refusal(BoardText("(module A) (module B)"), limits), "read");
  EXPECT_EQ(Refusal(BoardText("(module A) (module B)\n(module C)"), limits), "4:1: expected at most 2 components");
}

TEST(ReaderLimits, HoldAtTheirRealValues) {
  if (!LongTests()) GTEST_SKIP() << "a long test";
  const std::string tenMillion = BoardText(Repeated("(via(at 1 1))", 10'000'000));
  EXPECT_EQ(Read(tenMillion).vias.size(), 10'000'000u);
  EXPECT_EQ(Refusal(BoardText(Repeated("(via(at 1 1))", 10'000'000) + "\n(via)")),
            "4:1: expected at most 10000000 board items");
  const TemporaryFolder folder;
  const std::string full = "(kicad_pcb)" + std::string(256 * 1024 * 1024 - 11, ' ');
  EXPECT_TRUE(ReadBoard(folder.Write("full.kicad_pcb", full)));
  const Result<Board> tooLarge = ReadBoard(folder.Write("more.kicad_pcb", full + ' '));
  ASSERT_FALSE(tooLarge);
  EXPECT_EQ(tooLarge.error().ToLine(),
            folder.PathOf("more.kicad_pcb") + ": expected a file of at most 268435456 bytes");
}

}  // namespace
}  // namespace oxviewer::testing
