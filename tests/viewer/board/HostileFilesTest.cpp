#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
#include <tests/viewer/board/Texts.h>

#include <clocale>
#include <ctime>
#include <functional>
#include <locale>
#include <ostream>
#include <string>

namespace oxviewer::testing {
namespace {

constexpr std::size_t kTenMegabytes = 10'000'000;

// Repeats `text`, in which "#" becomes a running number, up to just below ten megabytes.
std::string Filled(const std::string& head, const std::string& text, const std::string& tail) {
  std::string all = head;
  for (std::size_t n = 1; all.size() + text.size() + tail.size() + 16 < kTenMegabytes; ++n) {
    const std::size_t mark = text.find('#');
    all += text.substr(0, mark);
    if (mark != std::string::npos) all += std::to_string(n) + text.substr(mark + 1);
  }
  return all + tail;
}

// What counts is the time of this process, not of others that keep the machine busy, and a build that is meant to run.
#ifdef NDEBUG
constexpr double kSecondsAllowed = 2;
#else
constexpr double kSecondsAllowed = 30;
#endif

void ExpectAnswerInTime(const std::function<bool()>& read) {
  const std::clock_t start = std::clock();
  read();
  EXPECT_LT(static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC, kSecondsAllowed);
}

struct HostileText {
  const char* name;
  const char* head;
  const char* repeated;
  const char* tail;
  friend std::ostream& operator<<(std::ostream& out, const HostileText& text) { return out << text.name; }
};

class HostileTexts : public ::testing::TestWithParam<HostileText> {};

TEST_P(HostileTexts, AreAnsweredWithinTwoSeconds) {
  const HostileText& hostile = GetParam();
  const std::string text = Filled(hostile.head, hostile.repeated, hostile.tail);
  ASSERT_GT(text.size(), kTenMegabytes - 100'000);
  bool refused = false;
  ExpectAnswerInTime([&] { return refused = !ReadBoardText(text, "x"); });
  EXPECT_TRUE(refused);  // each of them has its fault at the very end
}

INSTANTIATE_TEST_SUITE_P(
    All, HostileTexts,
    ::testing::Values(
        HostileText{"open_lists", "(kicad_pcb", "(a)", "("},
        HostileText{"many_nets", "(kicad_pcb", "(net # \"N#\")", "(net"},
        HostileText{"net_numbers_far_apart", "(kicad_pcb", "(net #00000000 N)", "(net"},
        HostileText{"unnamed_net_numbers", "(kicad_pcb", "(via(net #))", "(via"},
        HostileText{"long_alike_names", "(kicad_pcb",
                    "(via(net \"aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa#\"))", "x"},
        HostileText{"many_components", "(kicad_pcb", "(module(at 1 1 1)(pad # smd))", "("},
        HostileText{"items_before_their_layers", "(kicad_pcb", "(via(at 1 1))", "(layers (0 F.Cu signal)"},
        HostileText{"pads_on_all_layers", "(kicad_pcb (module A ", "(pad # smd rect(layers *.Cu *.Mask))", ""},
        HostileText{"many_classes", "(kicad_pcb", "(net_class C# \"\" (add_net N))", "("},
        HostileText{"comments", "(kicad_pcb", "\n#\n", "("}, HostileText{"escapes", "(kicad_pcb", "\"\\x41\\n\"", "\""},
        HostileText{"points", "(kicad_pcb(zone(polygon(pts", "(xy # 1e-9)", "(xy 1"},
        HostileText{"arcs", "(kicad_pcb(zone(polygon(pts", "(arc(start 0 0)(mid 1 1)(end 2 0))", "("}),
    [](const auto& test) { return std::string(test.param.name); });

TEST(HostileText, EndlessNestingIsRefusedAtOnce) {
  ExpectAnswerInTime(
      [] { return Refusal(std::string(kTenMegabytes, '(')) == "1:2: expected \"kicad_pcb\", found \"(\""; });
  EXPECT_EQ(Refusal("(kicad_pcb" + std::string(kTenMegabytes, '(')), "1:266: expected at most 256 nested lists");
}

TEST(HostileText, AnEndlessStringIsRefused) {
  EXPECT_EQ(Refusal("(kicad_pcb \"" + std::string(kTenMegabytes, 'a')),
            "1:12: expected a closing quote for this one, found the end of the file");
  EXPECT_EQ(Refusal("(kicad_pcb " + std::string(kTenMegabytes, 'a')), "1:12: expected a text of at most 65536 bytes");
}

TEST(HostileText, BinaryIsRefused) {
  EXPECT_EQ(Refusal(std::string(1000, '\0')), "1:1: expected text, found a NUL byte");
  EXPECT_EQ(Refusal("\x7f"
                    "ELF\x02\x01"),
            "1:1: expected \"(kicad_pcb\", found \"\x7f"
            "ELF\x02\x01\"");
  EXPECT_EQ(Refusal("PCBNEW-BOARD Version 1"), "1:1: expected \"(kicad_pcb\", found \"PCBNEW-BOARD\"");
}

TEST(HostileText, WhatFollowsTheBoardIsRefused) {
  EXPECT_EQ(Refusal("(kicad_pcb)\n(kicad_pcb)"), "2:1: expected the end of the file, found \"(\"");
  EXPECT_EQ(Refusal("(kicad_pcb))"), "1:12: expected no \")\" without its \"(\"");
}

TEST(HostileProject, PatternsOfAllKindsAreAnsweredWithinTwoSeconds) {
  Board board = Read(BoardText(Filled("", "(net \"aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa#\")", "")));
  const std::string project = Filled("{\"net_settings\":{\"netclass_patterns\":[{\"pattern\":\"x\"}",
                                     ",{\"netclass\":\"C\",\"pattern\":\"*a*a*a*a*a*a*a*b#\"}", "]}}");
  ReadError error;
  bool applied = true;
  ExpectAnswerInTime([&] { return applied = ApplyNetClasses(project, "p", {}, board, error); });
  EXPECT_FALSE(applied);
  EXPECT_EQ(error.message, "expected simpler net class patterns or fewer of them");
}

TEST(HostileProject, DeepNestingIsRefused) {
  Board board;
  ReadError error;
  const std::string project = "{\"a\":" + std::string(kTenMegabytes, '[');
  EXPECT_FALSE(ApplyNetClasses(project, "p", {}, board, error));
  EXPECT_EQ(error.ToLine(), "p:1:261: expected at most 256 nested values");
}

// Every way to break a small board by chance: the answer is a board or one error, and its line is one line.
RC_GTEST_PROP(MutatedBoard, IsReadOrRefusedCleanly, ()) {
  static const std::string kOriginal = BoardText(R"((net 0 "") (net 1 "A")
    (footprint "L:R" (layer "F.Cu") (at 1 2 90) (attr smd) (fp_text reference "R1" (at 0 0) (layer "F.SilkS"))
      (pad "1" smd rect (at 0 1) (size 1 1) (layers "F.Cu" "*.Mask") (net 1 "A"))
      (fp_arc (start 0 0) (end 1 0) (angle 90) (layer "F.SilkS") (width 0.1)))
    (segment (start 0 0) (end 1 1) (width 0.2) (layer "F.Cu") (net 1))
    (zone (net 1) (net_name "A") (layer "F.Cu") (polygon (pts (xy 0 0) (xy 1 0) (xy 1 1)))))");
  std::string text = kOriginal;
  const auto changes = *rc::gen::container<std::vector<std::pair<std::size_t, char>>>(rc::gen::pair(
      rc::gen::inRange<std::size_t>(0, kOriginal.size()),
      rc::gen::oneOf(rc::gen::elementOf(std::string("()\"\\ \n#-.e019\xFF")), rc::gen::arbitrary<char>())));
  for (const auto& [place, byte] : changes) text[place] = byte;
  const Result<Board> result = ReadBoardText(text, "x");
  if (result) return;
  RC_ASSERT(result.error().line >= 1);
  RC_ASSERT(result.error().column >= 1);
  RC_ASSERT(result.error().ToLine().find('\n') == std::string::npos);
}

TEST(Locale, WithADecimalCommaChangesNothing) {
  const char* wanted[] = {"de_DE.UTF-8", "fr_FR.UTF-8", "de_DE.utf8", "hi_IN.UTF-8"};
  for (const char* name : wanted) {
    if (std::setlocale(LC_ALL, name) == nullptr) continue;
    const Board board = Read(BoardText("(via (at 1.5 2.25) (net 12345))"));
    EXPECT_EQ(board.vias.at(0).position, (Point{Mm(1.5), Mm(2.25)})) << name;
    EXPECT_EQ(board.nets.at(0).name, "12345") << name;
  }
  std::setlocale(LC_ALL, "C");
  struct Grouping : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\1"; }
  };
  const std::locale before = std::locale::global(std::locale(std::locale::classic(), new Grouping));
  const Board board = Read(BoardText("(via (at 1.5 2.25) (net 12345))"));
  const std::string refusal = Refusal("(kicad_pcb\n\n\n\n\n\n\n\n\n\n\n\n (via (at x)))");
  std::locale::global(before);
  EXPECT_EQ(board.vias.at(0).position, (Point{Mm(1.5), Mm(2.25)}));
  EXPECT_EQ(board.nets.at(0).name, "12345");
  EXPECT_EQ(refusal, "13:11: expected a number, found \"x\"");
}

}  // namespace
}  // namespace oxviewer::testing
