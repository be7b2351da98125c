#include <oxk/World.h>

#include <gtest/gtest.h>

#include <type_traits>

#include "PreferencesFixture.h"

using oxk::World;

static_assert(std::is_base_of_v<oxkutils::RefCounted, World>);
static_assert(std::is_base_of_v<oxkutils::RefCounted, oxk::Preferences>);
static_assert(!std::is_copy_constructible_v<World> && !std::is_default_constructible_v<World>, "there is one world");
static_assert(!std::is_copy_constructible_v<oxk::Preferences> && !std::is_default_constructible_v<oxk::Preferences>);

using WorldTest = PreferencesFixture;

TEST_F(WorldTest, IsOne) {
  ASSERT_TRUE(World::GetWorld());
  EXPECT_EQ(World::GetWorld(), World::GetWorld());
  EXPECT_EQ(World::GetWorld()->GetPreferences(), World::GetWorld()->GetPreferences());
}

TEST_F(WorldTest, OutlivesItsReferences) {
  World* const address = World::GetWorld().get();
  EXPECT_EQ(address->GetReferenceCount(), 0);
  EXPECT_EQ(World::GetWorld().get(), address);
  {
    const auto held = World::GetWorld();
    EXPECT_EQ(address->GetReferenceCount(), 1);
  }
  EXPECT_EQ(address->GetReferenceCount(), 0);
}

TEST_F(WorldTest, PreferencesOutliveTheirReferences) {
  oxk::Preferences* const address = World::GetWorld()->GetPreferences().get();
  EXPECT_EQ(address->GetReferenceCount(), 0);
  Set("key", "value");
  EXPECT_EQ(World::GetWorld()->GetPreferences().get(), address);
  EXPECT_EQ(Get("key"), "value");
}
