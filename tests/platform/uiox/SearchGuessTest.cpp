// Children that are searched by halves are what they are, whatever happens between two reads.

#include "Wire.h"

#include <random>

namespace {

using uiox_test::WireTest;

class SearchGuess : public WireTest {
 protected:
  static constexpr int kUnknownNode = 4;

  SearchGuess() {
    for (const char* parent : {"p", "q"}) EXPECT_EQ(Add(parent, ""), 0);
  }

  static std::string NameOf(std::intptr_t number) { return "c" + std::to_string(number); }
  static void AddChild(std::intptr_t number, const char* parent, std::intptr_t data) {
    ASSERT_EQ(Do(2029, NameOf(number).c_str(), L"", parent, "type", 1024, reinterpret_cast<void*>(data)), 0);
  }
  /// Children of "p" from 0, each with its number as its data.
  static void AddChildren(std::intptr_t count) {
    for (std::intptr_t number = 0; number < count; ++number) AddChild(number, "p", number);
  }
  static void ExpectData(std::intptr_t number, std::intptr_t data) {
    std::intptr_t read = -1;
    EXPECT_EQ(Do(2203, NameOf(number).c_str(), 260, &read), 0) << number;
    EXPECT_EQ(read, data) << number;
  }
  static void ExpectUnknown(std::intptr_t number) {
    std::intptr_t read = -1;
    EXPECT_EQ(Do(2203, NameOf(number).c_str(), 260, &read), kUnknownNode) << number;
  }
  /// Reads children as a search for the place of `target` does.
  static void Search(std::intptr_t count, std::intptr_t target) {
    for (std::intptr_t low = 0, high = count - 1; low <= high;) {
      const std::intptr_t middle = low + (high - low) / 2;
      ExpectData(middle, middle);
      if (middle < target) {
        low = middle + 1;
      } else {
        high = middle - 1;
      }
    }
  }
};

// About the sizes of a leaf (64 children) and of a block of leaves (32).
TEST_F(SearchGuess, EveryPlaceIsFound) {
  for (const std::intptr_t count : {1, 2, 3, 4, 5, 7, 8, 63, 64, 65, 100, 128, 129, 2047, 2048, 2049}) {
    ASSERT_EQ(Do(2031, "p"), 0);
    ASSERT_EQ(Add("p", ""), 0);
    AddChildren(count);
    const std::intptr_t step = count < 200 ? 1 : 97;
    for (std::intptr_t target = 0; target <= count; target += step) Search(count, target);
  }
}

TEST_F(SearchGuess, AChildThatWentIsUnknown) {
  AddChildren(9);  // 4 is read first, then 1 or 6
  ExpectData(4, 4);
  ASSERT_EQ(Do(2031, "c1"), 0);
  ExpectUnknown(1);
  ExpectData(4, 4);
  ExpectData(6, 6);
}

/// Here no name is told.
TEST_F(SearchGuess, AChildThatTheProgramTookOutIsUnknown) {
  AddChildren(9);
  ExpectData(4, 4);
  store.Remove(Node("c1"));
  ExpectUnknown(1);
  ExpectData(4, 4);
  store.Remove(Node("c6"));
  ExpectUnknown(6);
  ExpectData(4, 4);
  store.Remove(Node("p"));
  for (const std::intptr_t number : {0, 5, 4}) ExpectUnknown(number);
}

TEST_F(SearchGuess, NothingIsFoundInAnEmptyTree) {
  AddChildren(9);
  ExpectData(4, 4);
  store.Clear();
  for (const std::intptr_t number : {1, 6, 4}) ExpectUnknown(number);
}

TEST_F(SearchGuess, AChildThatCameAgainIsTheNewOne) {
  AddChildren(9);
  ExpectData(4, 4);
  ASSERT_EQ(Do(2031, "c6"), 0);
  AddChild(6, "q", 66);
  ExpectData(6, 66);
  ExpectData(7, 7);
}

TEST_F(SearchGuess, OneThatMovedIsFoundWhereItIs) {
  AddChildren(9);
  ExpectData(4, 4);
  ASSERT_EQ(Do(2032, "c1", "q", nullptr), 0);
  ExpectData(1, 1);
  ExpectData(0, 0);
  ASSERT_EQ(Do(2032, "c2", "p", nullptr), 0);
  Search(0, 0);
  for (const std::intptr_t number : {4, 5, 3, 6, 7, 8, 2}) ExpectData(number, number);
}

TEST_F(SearchGuess, OthersThatComeBetweenDoNotShow) {
  AddChildren(9);
  ExpectData(4, 4);
  for (std::intptr_t number = 20; number < 200; ++number) {
    ASSERT_EQ(Do(2030, NameOf(number).c_str(), L"", "p", "c1", "type", 1024, reinterpret_cast<void*>(number)), 0);
    ExpectData(number % 9, number % 9);
  }
  for (std::intptr_t number = 20; number < 200; ++number) ExpectData(number, number);
}

TEST_F(SearchGuess, AParentThatWentIsForgotten) {
  AddChildren(9);
  ExpectData(4, 4);
  ASSERT_EQ(Do(2031, "p"), 0);
  ExpectUnknown(1);
  AddChild(1, "q", 11);
  AddChild(4, "q", 44);
  ExpectData(4, 44);
  ExpectData(1, 11);
}

TEST_F(SearchGuess, BetweenReadsWithoutOrder) {
  constexpr std::intptr_t kCount = 300;
  AddChildren(kCount);
  std::mt19937 random(1);  // NOLINT: the same each time
  for (int round = 0; round < 200; ++round) {
    for (auto reads = random() % 40; reads > 0; --reads) {
      const auto number = static_cast<std::intptr_t>(random() % kCount);
      ExpectData(number, number);
    }
    Search(kCount, static_cast<std::intptr_t>(random() % kCount));
  }
}

}  // namespace
