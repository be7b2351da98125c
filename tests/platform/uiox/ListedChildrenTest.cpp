// What is remembered of a list that was handed out never shows: each list is that of the children now.

#include "Wire.h"

namespace {

using uiox_test::kEnd;
using uiox_test::WireTest;

class ListedChildren : public WireTest {
 protected:
  ListedChildren() {
    for (const char* parent : {"p", "q"}) EXPECT_EQ(Add(parent, ""), 0);
    for (const char* child : {"a", "b", "c"}) EXPECT_EQ(Add(child, "p"), 0);
    EXPECT_EQ(Add("d", "q"), 0);
  }

  /// The names of a copy, one blank between.
  static std::string Copied(const char* parent) {
    int count = 0;
    char** names = nullptr;
    EXPECT_EQ(Do(2202, parent, 284, &count, &names), 0);
    std::string all;
    for (int i = 0; i < count; ++i) all += (i == 0 ? "" : " ") + std::string(names[i]);
    EXPECT_EQ(ui_free(284, static_cast<std::intptr_t>(count), &names, kEnd), 0);
    return all;
  }
  /// The same of an answer that stays the toolkit's.
  static std::string Inquired(const char* parent) {
    int count = 0;
    char** names = nullptr;
    EXPECT_EQ(Do(2203, parent, 284, &count, &names), 0);
    std::string all;
    for (int i = 0; i < count; ++i) all += (i == 0 ? "" : " ") + std::string(names[i]);
    return all;
  }
  static void ExpectChildren(const char* parent, const std::string& names) {
    EXPECT_EQ(Copied(parent), names);
    EXPECT_EQ(Copied(parent), names) << "once more";
    EXPECT_EQ(Inquired(parent), names);
    EXPECT_EQ(Copied(parent), names) << "after an inquiry";
  }
  static int AddBefore(const char* node, const char* parent, const char* before) {
    return Do(2030, node, L"", parent, before, "type");
  }
};

TEST_F(ListedChildren, AppendedOnesComeBehind) {
  ExpectChildren("p", "a b c");
  EXPECT_EQ(Add("e", "p"), 0);
  EXPECT_EQ(Add("f", "p"), 0);
  ExpectChildren("p", "a b c e f");
  EXPECT_EQ(AddBefore("g", "p", nullptr), 0);
  ExpectChildren("p", "a b c e f g");
}

TEST_F(ListedChildren, OnesInsertedBetweenAreThere) {
  ExpectChildren("p", "a b c");
  EXPECT_EQ(AddBefore("e", "p", "a"), 0);
  ExpectChildren("p", "e a b c");
  EXPECT_EQ(AddBefore("f", "p", "c"), 0);
  EXPECT_EQ(Add("g", "p"), 0);
  ExpectChildren("p", "e a b f c g");
}

TEST_F(ListedChildren, MovedOnesAreWhereTheyAre) {
  ExpectChildren("p", "a b c");
  EXPECT_EQ(Do(2032, "a", "p", nullptr), 0);
  ExpectChildren("p", "b c a");
  EXPECT_EQ(Do(2032, "d", "p", "c"), 0);
  ExpectChildren("p", "b d c a");
  ExpectChildren("q", "");
  EXPECT_EQ(Do(2032, "c", "q", nullptr), 0);
  ExpectChildren("p", "b d a");
  ExpectChildren("q", "c");
}

TEST_F(ListedChildren, DeletedOnesAreGone) {
  ExpectChildren("p", "a b c");
  EXPECT_EQ(Do(2031, "b"), 0);
  ExpectChildren("p", "a c");
  EXPECT_EQ(Add("b", "p"), 0);
  ExpectChildren("p", "a c b");
}

TEST_F(ListedChildren, OfAnotherParentAreNotMixedUp) {
  for (int round = 0; round < 3; ++round) {
    ExpectChildren("p", "a b c");
    ExpectChildren("q", "d");
  }
  EXPECT_EQ(Add("e", "q"), 0);
  EXPECT_EQ(Copied("p"), "a b c");
  EXPECT_EQ(Copied("q"), "d e");
}

TEST_F(ListedChildren, OfManyParentsAreTheirOwn) {
  constexpr int kParents = 40;
  std::vector<std::string> expected(kParents);
  const auto name = [](int parent) { return "parent" + std::to_string(parent); };
  for (int parent = 0; parent < kParents; ++parent) ASSERT_EQ(Add(name(parent), ""), 0);
  for (int round = 0; round < 5; ++round) {
    for (int parent = 0; parent < kParents; ++parent) {
      const std::string child = "child" + std::to_string(round) + "of" + std::to_string(parent);
      std::string& all = expected[static_cast<std::size_t>(parent)];
      const bool in_front = (round + parent) % 3 == 0;
      const std::string first = all.substr(0, all.find(' '));
      ASSERT_EQ(AddBefore(child.c_str(), name(parent).c_str(), in_front && round > 0 ? first.c_str() : nullptr), 0);
      if (round == 0) {
        all = child;
      } else {
        all = in_front ? child + " " + all : all + " " + child;
      }
      for (const int listed : {parent, 0, parent / 2}) {
        const std::string& names = expected[static_cast<std::size_t>(listed)];
        EXPECT_EQ(Copied(name(listed).c_str()), names);
        if (names.empty()) continue;
        int value = -1;
        EXPECT_EQ(Do(2203, names.substr(0, names.find(' ')).c_str(), 3, &value), 0);
      }
    }
  }
}

TEST_F(ListedChildren, OfADeletedParentAreNotThoseOfTheNextOne) {
  ExpectChildren("p", "a b c");
  EXPECT_EQ(Do(2031, "p"), 0);
  EXPECT_EQ(Add("r", ""), 0);
  ExpectChildren("r", "");
  EXPECT_EQ(Add("x", "r"), 0);
  ExpectChildren("r", "x");
}

TEST_F(ListedChildren, OfAClearedTreeAreGone) {
  ExpectChildren("p", "a b c");
  EXPECT_EQ(Do(2031, "p"), 0);
  EXPECT_EQ(Do(2031, "q"), 0);
  EXPECT_EQ(Add("p", ""), 0);
  ExpectChildren("p", "");
}

TEST_F(ListedChildren, AreWalkedOnThroughWhatIsAppended) {
  const auto read = [](const char* node) {
    int value = -1;
    EXPECT_EQ(Do(2203, node, 3, &value), 0) << node;
    return value;
  };
  EXPECT_EQ(Copied("p"), "a b c");
  EXPECT_EQ(read("a"), 0);
  EXPECT_EQ(Do(2029, "e", L"", "p", "type", 128, 5), 0);
  EXPECT_EQ(read("b"), 0);
  EXPECT_EQ(read("c"), 0);
  EXPECT_EQ(read("e"), 5);
  EXPECT_EQ(Copied("p"), "a b c e");
  for (int i = 0; i < 300; ++i) EXPECT_EQ(Do(2029, ("more" + std::to_string(i)).c_str(), L"", "p", "type", 128, i), 0);
  EXPECT_EQ(Copied("q"), "d");
  EXPECT_EQ(Copied("p").size(), std::string("a b c e").size() + 300 * 5 + 10 + 90 * 2 + 200 * 3);
  for (int i = 0; i < 300; ++i) EXPECT_EQ(read(("more" + std::to_string(i)).c_str()), i);
}

}  // namespace
