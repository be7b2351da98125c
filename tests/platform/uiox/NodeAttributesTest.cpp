#include "Wire.h"

#include <cstring>

namespace {

using uiox_test::kEnd;
using uiox_test::WireTest;

class NodeAttributes : public WireTest {
 protected:
  NodeAttributes() {
    Do(2029, "root", L"Root", "", "group");
    Do(2029, "n", L"label", "root", "type", 2, L"second", 128, 5, 256, 1, 512, 0, 1024, &data);
  }
  int data = 0;
};

TEST_F(NodeAttributes, AreSetAndReadBack) {
  int other = 0;
  EXPECT_EQ(Do(2201, "n", 2, L"new", 3, 8, 4, 0, 25, L"text", 31, 1, 260, &other, 282, "kind", 516, 1, 544, 0), 0);
  const wchar_t* label = nullptr;
  const wchar_t* text = nullptr;
  const char* type = nullptr;
  const char* parent = nullptr;
  int first = -1;
  int expanded = -1;
  int third = -1;
  int sensitive = -1;
  int mixed = -1;
  unsigned check = 77;
  void* user = nullptr;
  EXPECT_EQ(Do(2203, "n", 2, &label, 3, &first, 4, &expanded, 25, &text, 31, &check, 177, &mixed, 260, &user, 282,
               &type, 283, &parent, 516, &third, 544, &sensitive),
            0);
  EXPECT_STREQ(label, L"new");
  EXPECT_EQ(first, 8);
  EXPECT_EQ(expanded, 0);
  EXPECT_STREQ(text, L"text");
  EXPECT_EQ(check, 1u);
  EXPECT_EQ(mixed, 0);
  EXPECT_EQ(user, &other);
  EXPECT_STREQ(type, "kind");
  EXPECT_STREQ(parent, "root");
  EXPECT_EQ(third, 1);
  EXPECT_EQ(sensitive, 0);
}

TEST_F(NodeAttributes, CheckStateTwoIsTheMixedMark) {
  unsigned check = 0;
  int mixed = 0;
  EXPECT_EQ(Do(2201, "n", 31, 2), 0);
  EXPECT_EQ(Do(2203, "n", 177, &mixed, 31, &check), 0);
  EXPECT_NE(mixed, 0);
  EXPECT_EQ(Do(2201, "n", 31, 1), 0);
  EXPECT_EQ(Do(2203, "n", 177, &mixed, 31, &check), 0);
  EXPECT_EQ(mixed, 0);
  EXPECT_EQ(check, 1u);
  EXPECT_EQ(Do(2201, "n", 177, 1), 0);
  EXPECT_EQ(Do(2203, "n", 177, &mixed), 0);
  EXPECT_NE(mixed, 0);
}

TEST_F(NodeAttributes, TakingTheHighlightAwayTakesTheNodeOutOfTheSelection) {
  tree.Store().Select({Node("root"), Node("n")});
  EXPECT_EQ(Do(2201, "root", 516, 0), 0);
  int count = -1;
  char** names = nullptr;
  EXPECT_EQ(Retrieve("tree", 72, &count, &names), 0);
  ASSERT_EQ(count, 1);
  EXPECT_STREQ(names[0], "n");
}

TEST_F(NodeAttributes, TheRootsParentIsEmpty) {
  const char* parent = nullptr;
  EXPECT_EQ(Do(2203, "root", 283, &parent), 0);
  EXPECT_STREQ(parent, "");
  char* copy = nullptr;
  EXPECT_EQ(Do(2202, "root", 283, &copy), 0);
  EXPECT_STREQ(copy, "");
  EXPECT_EQ(ui_free(283, &copy, kEnd), 0);
}

TEST_F(NodeAttributes, ChangeAndQueryUseTheirOwnCodes) {
  int other = 0;
  EXPECT_EQ(Do(2033, "n", 8, "kind", 1024, &other), 0);
  EXPECT_EQ(store.UserData(Node("n")), &other);
  const wchar_t* text = nullptr;
  const char* type = nullptr;
  int first = -1;
  int expanded = -1;
  int third = -1;
  void* user = nullptr;
  EXPECT_EQ(Do(2034, "n", 2, &text, 8, &type, 128, &first, 256, &expanded, 512, &third, 1024, &user), 0);
  EXPECT_STREQ(text, L"second");
  EXPECT_STREQ(type, "kind");
  EXPECT_EQ(first, 5);
  EXPECT_EQ(expanded, 1);
  EXPECT_EQ(third, 0);
  EXPECT_EQ(user, &other);
}

TEST_F(NodeAttributes, ValuesOf32BitsKeepTheirSign) {
  EXPECT_EQ(Do(2201, "n", 3, -7), 0);
  int first = 0;
  EXPECT_EQ(Do(2203, "n", 3, &first), 0);
  EXPECT_EQ(first, -7);
}

TEST_F(NodeAttributes, ARefusedCallWritesNothing) {
  int first = 123;
  const wchar_t* label = L"preset";
  EXPECT_NE(Do(2203, "missing", 3, &first, 2, &label), 0);
  EXPECT_NE(Do(2202, "missing", 3, &first, 2, &label), 0);
  EXPECT_NE(Do(2034, "missing", 128, &first), 0);
  EXPECT_NE(Do(2203, "n", 3, &first, 999, &label), 0);
  EXPECT_NE(Do(2202, nullptr, 3, &first), 0);
  EXPECT_NE(Do(2203, "n", 3, &first, 2, nullptr), 0);
  EXPECT_EQ(first, 123);
  EXPECT_STREQ(label, L"preset");
}

TEST_F(NodeAttributes, ARefusedCallChangesNothing) {
  EXPECT_NE(Do(2201, "n", 2, L"new", 283, "root"), 0) << "a parent is changed by a move";
  EXPECT_NE(Do(2201, "n", 2, L"new", 999, 1), 0);
  EXPECT_NE(Do(2033, "n", 8, "kind", 31, 1), 0) << "a code of another table";
  EXPECT_NE(Do(2033, "missing", 8, "kind"), 0);
  EXPECT_NE(Do(2201, "missing", 2, L"new"), 0);
  EXPECT_EQ(store.Label(Node("n")), L"label");
  EXPECT_STREQ(suite.Types().Name(store.Type(Node("n"))), "type");
}

TEST_F(NodeAttributes, CopiesOutliveTheNode) {
  wchar_t* label = nullptr;
  wchar_t* text = nullptr;
  char* type = nullptr;
  EXPECT_EQ(Do(2202, "n", 2, &label, 282, &type, 25, &text), 0);
  Do(2031, "root");
  EXPECT_STREQ(label, L"label");
  EXPECT_STREQ(type, "type");
  EXPECT_STREQ(text, L"second");
  EXPECT_EQ(ui_free(2, &label, kEnd), 0);
  EXPECT_EQ(ui_free(282, &type, kEnd), 0);
  EXPECT_EQ(ui_free(25, &text, kEnd), 0);
  EXPECT_EQ(label, nullptr);
}

TEST_F(NodeAttributes, ACopiedListOutlivesItsNodes) {
  for (int i = 0; i < 200; ++i) Add("child" + std::to_string(i), "n");
  int count = 0;
  char** names = nullptr;
  EXPECT_EQ(Do(2202, "n", 284, &count, &names), 0);
  Do(2031, "root");
  ASSERT_EQ(count, 200);
  for (int i = 0; i < 200; ++i) EXPECT_EQ(names[i], "child" + std::to_string(i));
  EXPECT_EQ(ui_free(284, uiox_test::Slot(count), &names, kEnd), 0);
  EXPECT_EQ(names, nullptr);
}

TEST_F(NodeAttributes, TheCountAloneMayBeAsked) {
  int count = -1;
  EXPECT_EQ(Do(2202, "root", 284, &count, nullptr), 0);
  EXPECT_EQ(count, 1);
  EXPECT_EQ(Do(2203, "root", 284, &count, nullptr), 0);
  EXPECT_EQ(count, 1);
}

TEST_F(NodeAttributes, ANodeWithoutChildrenHasNoArray) {
  int count = -1;
  char* something = nullptr;
  char** names = &something;
  EXPECT_EQ(Do(2202, "n", 284, &count, &names), 0);
  EXPECT_EQ(count, 0);
  EXPECT_EQ(names, nullptr);
  EXPECT_EQ(ui_free(284, uiox_test::Slot(0), &names, kEnd), 0);
  names = &something;
  EXPECT_EQ(Do(2203, "n", 284, &count, &names), 0);
  EXPECT_EQ(names, nullptr);
}

TEST_F(NodeAttributes, AnInquiredListIsGoodUntilItsChildrenChange) {
  Add("m", "root");
  int count = 0;
  char** names = nullptr;
  EXPECT_EQ(Do(2203, "root", 284, &count, &names), 0);
  // Reading, and changes elsewhere, leave it alone.
  char** same = nullptr;
  Do(2203, "root", 284, &count, &same);
  Add("below", "n");
  Do(2201, "n", 2, L"other", 31, 1);
  EXPECT_EQ(same, names);
  ASSERT_EQ(count, 2);
  EXPECT_STREQ(names[0], "n");
  EXPECT_STREQ(names[1], "m");
  Do(2031, "m");
  EXPECT_EQ(Do(2203, "root", 284, &count, &names), 0);
  EXPECT_EQ(count, 1);
}

TEST_F(NodeAttributes, AnInquiredLabelIsGoodUntilItChanges) {
  const wchar_t* label = nullptr;
  EXPECT_EQ(Do(2203, "n", 2, &label), 0);
  Do(2201, "root", 2, L"other");
  Do(2201, "n", 31, 1);
  EXPECT_STREQ(label, L"label");
  Do(2201, "n", 2, L"changed");
  EXPECT_EQ(Do(2203, "n", 2, &label), 0);
  EXPECT_STREQ(label, L"changed");
}

TEST_F(NodeAttributes, NothingCanBeReleasedTwiceByItsPointer) {
  wchar_t* label = nullptr;
  Do(2202, "n", 2, &label);
  EXPECT_EQ(ui_free(2, &label, kEnd), 0);
  EXPECT_EQ(ui_free(2, &label, kEnd), 0) << "the pointer is null now";
}

TEST_F(NodeAttributes, WhatIsNoCopyIsNotReleased) {
  int value = 0;
  EXPECT_NE(ui_free(31, &value, kEnd), 0);
  EXPECT_NE(ui_free(999, &value, kEnd), 0);
  EXPECT_NE(ui_free(2, static_cast<void*>(nullptr), kEnd), 0);
}

}  // namespace
