#include <oxkutils/Symbol.h>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <set>
#include <string>
#include <thread>
#include <unordered_set>
#include <vector>

using oxkutils::Symbol;

namespace {

// Made before main: the table must stand by then, whatever the order of the static objects.
const Symbol kEarly("GUI/EcadView/Early");
const bool kEarlyEmpty = Symbol::EMPTY.empty();

}  // namespace

TEST(Symbol, OfEqualTextsAreOne) {
  const std::string text = "GUI/EcadView/HighlightAddToHighlight";
  const Symbol first(text.c_str());
  const Symbol second(text);
  EXPECT_EQ(first, second);
  EXPECT_FALSE(first != second);
  EXPECT_FALSE(first < second);
  EXPECT_EQ(first.c_str(), second.c_str());  // the same characters in memory, not only equal ones
  EXPECT_STREQ(first.c_str(), "GUI/EcadView/HighlightAddToHighlight");
}

TEST(Symbol, OfTextsThatDifferInCaseDiffer) {
  EXPECT_NE(Symbol("net"), Symbol("Net"));
  EXPECT_NE(Symbol("net"), Symbol("net "));
}

TEST(Symbol, OfNoTextIsTheEmptyOne) {
  const char* const null = nullptr;
  for (const Symbol& symbol : {Symbol(), Symbol(""), Symbol(std::string()), Symbol(null)}) {
    EXPECT_EQ(symbol, Symbol::EMPTY);
    EXPECT_TRUE(symbol.empty());
    EXPECT_STREQ(symbol.c_str(), "");
  }
  EXPECT_NE(Symbol("x"), Symbol::EMPTY);
  EXPECT_FALSE(Symbol("x").empty());
}

TEST(Symbol, KeepsItsTextWhenTheSourceGoes) {
  std::string text(1000, 'a');
  const Symbol symbol(text);
  text.assign(1000, 'b');
  EXPECT_EQ(symbol.c_str(), std::string(1000, 'a'));
}

TEST(Symbol, CountsTheWholeText) {
  using namespace std::string_literals;
  EXPECT_NE(Symbol("a\0b"s), Symbol("a\0c"s));
  EXPECT_NE(Symbol("a\0b"s), Symbol("a"));
}

TEST(Symbol, MayBeMadeBeforeMain) {
  EXPECT_EQ(kEarly, Symbol("GUI/EcadView/Early"));
  EXPECT_TRUE(kEarlyEmpty);
}

TEST(Symbol, IsOneForAllThreads) {
  constexpr int kTexts = 500;
  std::vector<std::vector<Symbol>> made(4);
  std::vector<std::thread> threads;
  for (auto& symbols : made) {
    threads.emplace_back([&symbols] {
      for (int i = 0; i < kTexts; ++i) symbols.emplace_back("thread/" + std::to_string(i));
    });
  }
  for (std::thread& thread : threads) thread.join();
  for (const auto& symbols : made) EXPECT_EQ(symbols, made.front());
}

RC_GTEST_PROP(Symbol, ComparesAsItsTextsDo, ()) {
  const auto shortText = rc::gen::container<std::string>(rc::gen::element('a', 'b', '\0'));
  const std::string a = *shortText;
  const std::string b = *rc::gen::oneOf(rc::gen::just(a), shortText);
  RC_CLASSIFY(a == b);
  RC_ASSERT((Symbol(a) == Symbol(b)) == (a == b));
  RC_ASSERT((Symbol(a) != Symbol(b)) == (a != b));
  RC_ASSERT((Symbol(a) < Symbol(b)) + (Symbol(b) < Symbol(a)) == (a != b));
}

RC_GTEST_PROP(Symbol, KeysContainers, (const std::vector<std::string>& texts)) {
  const std::set<std::string> different(texts.begin(), texts.end());
  std::set<Symbol> ordered;
  std::unordered_set<Symbol> hashed;
  for (const std::string& text : texts) {
    ordered.insert(Symbol(text));
    hashed.insert(Symbol(text));
  }
  RC_ASSERT(ordered.size() == different.size());
  RC_ASSERT(hashed.size() == different.size());
}
