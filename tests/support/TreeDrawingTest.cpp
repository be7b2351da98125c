#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>
#include <tests/support/Quoted.h>
#include <tests/support/Soundness.h>
#include <tests/support/TreeFixture.h>

namespace test_support {
namespace {

class TreeDrawing : public TreeFixture {
 protected:
  TreeDrawing() : TreeFixture({"a", "b"}) {}
};

constexpr const char* kNets = R"(
  root
    R10  "R 10"       [x] <part> +
      "one two"       [ ] a:"<b>x</b>" b:"b"
    R9                [-] * locked =0xff
  other               [ ])";

TEST_F(TreeDrawing, IsWhatWasPlanted) {
  Plant(widget, kNets);
  EXPECT_EQ(Drawn(widget, kEverything), R"(
    root                [ ]
      R10  "R 10"       [x] <part> +
        "one two"       [ ] a:"<b>x</b>" b:"b"
      R9                [-] * locked =0xff
    other               [ ])");
  EXPECT_TRUE(IsSound(widget));
}

TEST_F(TreeDrawing, ShowsOnlyThePartsAskedFor) {
  Plant(widget, kNets);
  EXPECT_EQ(Drawn(widget, kNothingMore), R"(
    root
      R10 "R 10"
        "one two"
      R9
    other)");
  EXPECT_EQ(Drawn(widget, kTypes | kSelected), R"(
    root
      R10 "R 10" <part>
        "one two"
      R9 *
    other)");
}

TEST_F(TreeDrawing, DiffersInOrderDepthAndMarks) {
  Plant(widget, "root\n  a\n  b");
  EXPECT_TRUE(Drawn(widget) == "root [ ]\n  a [ ]\n  b [ ]");
  EXPECT_FALSE(Drawn(widget) == "root [ ]\n  b [ ]\n  a [ ]");
  EXPECT_FALSE(Drawn(widget) == "root [ ]\n  a [ ]\n    b [ ]");
  EXPECT_FALSE(Drawn(widget) == "root [ ]\n  a [x]\n  b [ ]");
}

TEST_F(TreeDrawing, GrowsBelowANodeThatIsThere) {
  Plant(widget, "root\n  a");
  Plant(widget, "a\n  a1");
  EXPECT_EQ(Drawn(widget, kNothingMore), "root\n  a\n    a1");
}

TEST_F(TreeDrawing, ThatCannotBePlantedFailsTheTest) {
  EXPECT_NONFATAL_FAILURE(Plant(widget, "root\n  a\n  a"), "cannot be planted: a");
  EXPECT_NONFATAL_FAILURE(Plant(widget, "root\n  b nonsense"), "cannot be planted: b nonsense");
  EXPECT_NONFATAL_FAILURE(Plant(widget, "root\n  c nocolumn:\"x\""), "cannot be planted");
}

TEST(Quoted, WritesUtf16AsUtf8AndReadsItBack) {
  const std::wstring pair{L'a', wchar_t(0xD83D), wchar_t(0xDE00), L'"'};
  EXPECT_EQ(Quoted(pair.c_str()), "L\"a\xF0\x9F\x98\x80\\\"\"");
  EXPECT_EQ(Unescaped(Escaped(pair)), pair);
  const std::wstring lone{wchar_t(0xDE00), wchar_t(0xD83D)};
  EXPECT_EQ(Escaped(lone), "\\u{de00}\\u{d83d}");
  EXPECT_EQ(Unescaped(Escaped(lone)), lone);
  EXPECT_EQ(Quoted(static_cast<const char*>(nullptr)), "null");
}

}  // namespace
}  // namespace test_support
