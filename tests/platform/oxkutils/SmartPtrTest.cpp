#include <oxkutils/SmartPtr.h>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <memory>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

#include "Counted.h"

using oxkutils::SmartPtr;

namespace {

struct Derived : Counted {
  using Counted::Counted;
};
struct Unrelated : oxkutils::RefCounted {};

/// Holds another object, so that a chain of them goes when its head goes.
struct Link : Counted {
  SmartPtr<Link> next;
};

}  // namespace

static_assert(std::is_convertible_v<SmartPtr<Derived>, SmartPtr<Counted>>);
static_assert(std::is_convertible_v<SmartPtr<Counted>, SmartPtr<const Counted>>);
static_assert(!std::is_constructible_v<SmartPtr<Derived>, SmartPtr<Counted>>, "down the class tree needs a cast");
static_assert(!std::is_constructible_v<SmartPtr<Counted>, SmartPtr<const Counted>>, "const is not dropped");
static_assert(!std::is_constructible_v<SmartPtr<Counted>, SmartPtr<Unrelated>>);
static_assert(!std::is_convertible_v<SmartPtr<Counted>, bool>, "a test for null is meant");
static_assert(std::is_nothrow_move_constructible_v<SmartPtr<Counted>>);
static_assert(sizeof(SmartPtr<Counted>) == sizeof(Counted*));

TEST(SmartPtr, HoldsNothingByDefault) {
  const SmartPtr<Counted> empty;
  const SmartPtr<Counted> null(nullptr);
  EXPECT_FALSE(empty);
  EXPECT_EQ(empty.get(), nullptr);
  EXPECT_EQ(empty, null);
}

TEST(SmartPtr, GivesTheObject) {
  auto* const object = new Counted(7);
  const SmartPtr<Counted> pointer(object);
  EXPECT_TRUE(pointer);
  EXPECT_EQ(pointer.get(), object);
  EXPECT_EQ(&*pointer, object);
  EXPECT_EQ(pointer->value, 7);
}

TEST(SmartPtr, DeletesTheObjectWithTheLastPointer) {
  {
    const SmartPtr<Counted> first(new Counted);
    {
      const SmartPtr<Counted> second(first.get());
      EXPECT_EQ(first->GetReferenceCount(), 2);
    }
    EXPECT_EQ(first->GetReferenceCount(), 1);
    EXPECT_EQ(Counted::Alive(), 1);
  }
  EXPECT_EQ(Counted::Alive(), 0);
}

TEST(SmartPtr, CopyAddsAReferenceAndMoveDoesNot) {
  SmartPtr<Counted> first(new Counted);
  SmartPtr<Counted> copy(first);
  EXPECT_EQ(first->GetReferenceCount(), 2);
  const SmartPtr<Counted> moved(std::move(copy));
  EXPECT_EQ(first->GetReferenceCount(), 2);
  EXPECT_FALSE(copy);  // NOLINT(bugprone-use-after-move): what a moved pointer holds is promised
  EXPECT_EQ(moved, first);
}

TEST(SmartPtr, AssignmentReleasesWhatWasHeld) {
  SmartPtr<Counted> pointer(new Counted(1));
  const SmartPtr<Counted> other(new Counted(2));
  pointer = other;
  EXPECT_EQ(Counted::Alive(), 1);
  EXPECT_EQ(pointer->value, 2);
  EXPECT_EQ(other->GetReferenceCount(), 2);
  pointer = nullptr;
  EXPECT_FALSE(pointer);
  EXPECT_EQ(other->GetReferenceCount(), 1);
}

TEST(SmartPtr, SelfAssignmentKeepsTheObject) {
  SmartPtr<Counted> pointer(new Counted(1));
  SmartPtr<Counted>& same = pointer;
  pointer = same;
  ASSERT_TRUE(pointer);
  EXPECT_EQ(pointer->GetReferenceCount(), 1);
  pointer = std::move(same);
  ASSERT_TRUE(pointer);
  EXPECT_EQ(pointer->GetReferenceCount(), 1);
  pointer = pointer.get();
  EXPECT_EQ(pointer->GetReferenceCount(), 1);
  EXPECT_EQ(Counted::Alive(), 1);
}

TEST(SmartPtr, AssignmentOfWhatTheHeldObjectHoldsIsSafe) {
  SmartPtr<Link> head(new Link);
  head->next = SmartPtr<Link>(new Link);
  head->next->value = 2;
  head = head->next;
  EXPECT_EQ(head->value, 2);
  EXPECT_EQ(Counted::Alive(), 1);
}

TEST(SmartPtr, ConvertsToABaseByCopyAndByMove) {
  SmartPtr<Derived> derived(new Derived(7));
  SmartPtr<Counted> base(derived);
  EXPECT_EQ(base->GetReferenceCount(), 2);
  EXPECT_EQ(base, derived);
  base = std::move(derived);
  EXPECT_FALSE(derived);  // NOLINT(bugprone-use-after-move): what a moved pointer holds is promised
  EXPECT_EQ(base->GetReferenceCount(), 1);
  const SmartPtr<const Counted> constant = base;
  EXPECT_EQ(constant->value, 7);
}

TEST(SmartPtr, ComparesByIdentity) {
  const SmartPtr<Counted> one(new Counted(7));
  const SmartPtr<Counted> equalValue(new Counted(7));
  const SmartPtr<Counted> same(one);
  EXPECT_TRUE(one == same);
  EXPECT_FALSE(one != same);
  EXPECT_TRUE(one != equalValue);
  EXPECT_TRUE(one == one.get());
  EXPECT_TRUE(one != equalValue.get());
  EXPECT_TRUE(one != nullptr);
  EXPECT_NE(one < equalValue, equalValue < one);
  EXPECT_FALSE(one < same);
}

TEST(SmartPtr, LeavesAnObjectThatWantsToStay) {
  const auto object = std::make_unique<Kept>();
  { const SmartPtr<Kept> pointer(object.get()); }
  EXPECT_EQ(object->hookCalls, 1);
  EXPECT_EQ(Counted::Alive(), 1);
}

// Whatever is copied, moved and dropped: an object's count is the number of pointers that hold it, and an object is
// alive exactly while one does.
RC_GTEST_PROP(SmartPtr, CountsThePointersThatHoldAnObject, ()) {
  constexpr std::size_t kPointers = 5;
  std::vector<SmartPtr<Counted>> pointers(kPointers);
  std::vector<int> held(kPointers, 0);  // which object each pointer holds; 0: none
  int nextObject = 1;

  const auto steps = *rc::gen::container<std::vector<std::tuple<int, std::size_t, std::size_t>>>(
      rc::gen::tuple(rc::gen::inRange(0, 5), rc::gen::inRange<std::size_t>(0, kPointers),
                     rc::gen::inRange<std::size_t>(0, kPointers)));
  for (const auto& [what, to, from] : steps) {
    switch (what) {
      case 0:
        pointers[to] = new Counted(nextObject);
        held[to] = nextObject++;
        break;
      case 1:
        pointers[to] = pointers[from];
        held[to] = held[from];
        break;
      case 2:
        pointers[to] = std::move(pointers[from]);
        if (to != from) held[to] = std::exchange(held[from], 0);
        break;
      case 3:
        pointers[to] = SmartPtr<Counted>();
        held[to] = 0;
        break;
      default:
        std::swap(pointers[to], pointers[from]);
        std::swap(held[to], held[from]);
    }
    std::vector<int> objects;
    for (std::size_t i = 0; i < kPointers; ++i) {
      RC_ASSERT(static_cast<bool>(pointers[i]) == (held[i] != 0));
      if (!pointers[i]) continue;
      RC_ASSERT(pointers[i]->value == held[i]);
      RC_ASSERT(pointers[i]->GetReferenceCount() == std::count(held.begin(), held.end(), held[i]));
      if (std::find(objects.begin(), objects.end(), held[i]) == objects.end()) objects.push_back(held[i]);
    }
    RC_ASSERT(static_cast<std::size_t>(Counted::Alive()) == objects.size());
  }
}
