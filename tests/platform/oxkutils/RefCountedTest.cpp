#include <oxkutils/RefCounted.h>

#include <gtest/gtest.h>

#include <thread>
#include <vector>

#include "Counted.h"

TEST(RefCounted, StartsWithoutReferences) {
  const Counted object;
  EXPECT_EQ(object.GetReferenceCount(), 0);
}

TEST(RefCounted, IsDeletedWithItsLastReference) {
  const auto* const object = new Counted;
  object->AddReference();
  object->AddReference();
  EXPECT_EQ(object->GetReferenceCount(), 2);
  object->RemoveReference();
  ASSERT_EQ(Counted::Alive(), 1);
  EXPECT_EQ(object->GetReferenceCount(), 1);
  object->RemoveReference();
  EXPECT_EQ(Counted::Alive(), 0);
}

TEST(RefCounted, IsKeptWhenItsHookSaysSo) {
  Kept object;
  object.AddReference();
  object.AddReference();
  object.RemoveReference();
  EXPECT_EQ(object.hookCalls, 0);
  object.RemoveReference();
  EXPECT_EQ(object.hookCalls, 1);
  EXPECT_EQ(object.GetReferenceCount(), 0);
  object.AddReference();
  object.RemoveReference();
  EXPECT_EQ(object.hookCalls, 2);
}

TEST(RefCounted, CopyStartsWithoutReferences) {
  Kept original;
  original.AddReference();
  original.value = 7;
  const Kept copy(original);
  EXPECT_EQ(copy.GetReferenceCount(), 0);
  EXPECT_EQ(copy.value, 7);
  EXPECT_EQ(original.GetReferenceCount(), 1);
  original.RemoveReference();
}

TEST(RefCounted, AssignmentKeepsBothCounts) {
  Kept from;
  Kept to;
  from.AddReference();
  to.AddReference();
  to.AddReference();
  from.value = 7;
  to = from;
  EXPECT_EQ(to.value, 7);
  EXPECT_EQ(from.GetReferenceCount(), 1);
  EXPECT_EQ(to.GetReferenceCount(), 2);
  from.RemoveReference();
  to.RemoveReference();
  to.RemoveReference();
}

TEST(RefCounted, CountsReferencesOfSeveralThreads) {
  constexpr int kThreads = 4;
  constexpr int kReferences = 20'000;
  Kept object;
  std::vector<std::thread> threads;
  for (int thread = 0; thread < kThreads; ++thread) {
    threads.emplace_back([&object] {
      for (int i = 0; i < kReferences; ++i) {
        object.AddReference();
        object.AddReference();
        object.RemoveReference();
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(object.GetReferenceCount(), kThreads * kReferences);
}
