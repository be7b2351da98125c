#include <oxk/World.h>

#include <oxk/detail/PreferencesStore.h>

namespace oxk {

World::World() = default;

World::~World() = default;

bool World::ZeroReferenceCountHook() { return false; }

oxkutils::SmartPtr<World> World::GetWorld() {
  static World& world = *new World;
  return &world;
}

oxkutils::SmartPtr<Preferences> World::GetPreferences() {
  static Preferences& preferences = *new Preferences(PreferencesStore::Get());
  PreferencesStore::Get().Load();
  return &preferences;
}

void World::SaveAndApplyPreferences() { PreferencesStore::Get().Save(); }

}  // namespace oxk
