#include <viewer/trees/NodeName.h>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <string>
#include <vector>

namespace oxviewer {
namespace {

TEST(NodeName, KeepsLettersDigitsAndSigns) { EXPECT_EQ(EscapedName("Az09+-."), "Az09+-."); }

TEST(NodeName, EscapesEveryOtherByteInUpperCaseHex) {
  EXPECT_EQ(EscapedName("/cpu/A_0"), "%2Fcpu%2FA%5F0");
  EXPECT_EQ(EscapedName("100% <b>"), "100%25%20%3Cb%3E");
  EXPECT_EQ(EscapedName("\xC2\xB5"), "%C2%B5");
  EXPECT_EQ(EscapedName(std::string("\0\x1F", 2)), "%00%1F");
}

TEST(NodeName, OfTheEmptyTextIsNotEmpty) {
  EXPECT_EQ(EscapedName(""), "%");
  EXPECT_EQ(UnescapedName("%"), "");
}

TEST(NodeName, RefusesWhatNoTextIsEscapedTo) {
  for (const char* name : {"", "/", "a b", "%2", "%2f", "%G0", "%%", "a%", "%41", "%2D", "a_b", "net:x"}) {
    EXPECT_EQ(UnescapedName(name), std::nullopt) << name;
  }
}

TEST(NodeName, TellsTheKind) {
  EXPECT_EQ(NodeName("net", "groups/x"), "net:groups%2Fx");
  EXPECT_EQ(TextOfNode("net", "net:groups%2Fx"), "groups/x");
  EXPECT_EQ(TextOfNode("layer", "net:GND"), std::nullopt);
  EXPECT_EQ(TextOfNode("net", "net"), std::nullopt);
  EXPECT_EQ(TextOfNode("net", "net:"), std::nullopt);
}

RC_GTEST_PROP(NodeName, GivesTheTextBack, (const std::string& text)) {
  RC_ASSERT(UnescapedName(EscapedName(text)) == text);
  RC_ASSERT(TextOfNode("net", NodeName("net", text)) == text);
}

RC_GTEST_PROP(NodeName, HoldsNothingThatMeansSomethingInATree, (const std::string& text)) {
  const std::string name = EscapedName(text);
  RC_ASSERT(!name.empty());
  for (const char c : name) {
    RC_ASSERT((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '+' || c == '-' ||
              c == '.' || c == '%');
  }
}

// Another spelling of a text would let two nodes stand for one net.
RC_GTEST_PROP(NodeName, IsTheOnlyOneOfItsText, ()) {
  const std::vector<std::string> pool{"%2F", "%5F", "a", "4", "%41", "%2f", "%",  "/",
                                      "%2B", "%0",  "b", "c", "-",   "%20", "%3C"};
  const auto parts = *rc::gen::container<std::vector<std::string>>(rc::gen::elementOf(pool));
  std::string name;
  for (const std::string& part : parts) name += part;
  const auto text = UnescapedName(name);
  RC_CLASSIFY(text.has_value());
  // The assertion takes its expression apart and evaluates both sides of an "or".
  const bool isTheOnlyOne = !text || EscapedName(*text) == name;
  RC_ASSERT(isTheOnlyOne);
}

}  // namespace
}  // namespace oxviewer
