// One slot for every value, widened by its sign.
#include <gtest/gtest.h>
#include <oxk/ecad/CompareColorVis.h>
#include <tests/support/RecordingToolkit.h>
#include <uicomps/toolkit/ComponentCalls.h>
#include <uicomps/toolkit/NodeCalls.h>
#include <uicomps/tree/Tree.h>

#include <cstdint>
#include <limits>
#include <type_traits>

namespace oxecad_ui::wire {
namespace {

/// The whole word that travels.
template <class T>
std::uint64_t Word(T value) {
  const auto slot = Slot(value);
  static_assert(sizeof slot == sizeof(void*), "a value fills one pointer-sized slot");
  if constexpr (std::is_pointer_v<decltype(slot)>) {
    return reinterpret_cast<std::uintptr_t>(slot);
  } else {
    return static_cast<std::uint64_t>(slot);
  }
}

TEST(Slot, ExtendsSignedNumbersBySign) {
  EXPECT_EQ(Word(-1), 0xFFFFFFFFFFFFFFFFu);
  EXPECT_EQ(Word(-32768), 0xFFFFFFFFFFFF8000u);
  EXPECT_EQ(Word(std::numeric_limits<int>::min()), 0xFFFFFFFF80000000u);
  EXPECT_EQ(Word(std::numeric_limits<int>::max()), 0x7FFFFFFFu);
  EXPECT_EQ(Word(0), 0u);
}

TEST(Slot, ExtendsUnsignedNumbersByZeros) {
  EXPECT_EQ(Word(0xFFFFFFFFu), 0xFFFFFFFFu);
  EXPECT_EQ(Word(0x80000000u), 0x80000000u);
  EXPECT_EQ(Word(std::uint64_t{0xFFFFFFFFFFFFFFFFu}), 0xFFFFFFFFFFFFFFFFu);
}

TEST(Slot, MakesOneOrZeroOfABool) {
  EXPECT_EQ(Word(true), 1u);
  EXPECT_EQ(Word(false), 0u);
}

TEST(Slot, WidensAnEnumLikeItsNumber) {
  EXPECT_EQ(Word(Tree::PartlyChecked), 2u);
  EXPECT_EQ(Word(static_cast<Tree::NodeState>(0xFFFFFFFFu)), 0xFFFFFFFFu);
  EXPECT_EQ(Word(oxk::ecad::CompareColorVis::Mixed), 0xFFFFFFFFFFFFFFFFu);
  EXPECT_EQ(Word(ExpandDepth::Subtree), 1u);
}

TEST(Slot, KeepsPointersWhole) {
  int place = 0;
  EXPECT_EQ(Word(&place), reinterpret_cast<std::uintptr_t>(&place));
  EXPECT_EQ(Word("text") != 0, true);
  EXPECT_EQ(Word(static_cast<const wchar_t*>(nullptr)), 0u);
  EXPECT_EQ(Word(nullptr), 0u);
}

TEST(Slot, EndIsAWholeSlotToo) {
  static_assert(sizeof kEnd == sizeof(void*));
  EXPECT_EQ(kEnd, 0);
}

TEST(Result, IsTrueForZeroAlone) {
  EXPECT_TRUE(Result{});
  EXPECT_TRUE(Result{0});
  EXPECT_FALSE(Result{1});
  EXPECT_FALSE(Result{-1});
  EXPECT_FALSE((std::is_convertible_v<Result, bool>)) << "nobody takes it for a number by mistake";
}

constexpr Widget kTree{"dev", "tree"};

TEST(Slot, TravelsWholeThroughEveryCall) {
  test_support::RecordingToolkit toolkit;
  SetNode(kTree, "n", kNodeExpanded(-1), kNodeCheckState(0xFFFFFFFFu), kNodeUserData(reinterpret_cast<void*>(0x5)),
          kNodeSetCheckSensitive(true));
  SetNode(kTree, "n", kNodeColor(0xFFFFFFFFu));
  Modify(kTree, kTextMode(-2), kBackgroundColor(0x80FFFFFFu), kShown(false));
  AddNode(kTree, "n", L"", "", "", {L"", -1, std::numeric_limits<int>::min(), 0, nullptr});
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2201 SetNode "n" | 4=-1 31=4294967295 260=0x5 544=1 | 0
    do dev:tree 2201 SetNode "n" | 260=0xffffffff | 0
    modify dev:tree | 124=-2 211=2164260863 3=0 | 0
    do dev:tree 2029 AddNode "n" L"" "" "" | 2=L"" 128=-1 256=-2147483648 512=0 1024=null | 0)"));
}

}  // namespace
}  // namespace oxecad_ui::wire
