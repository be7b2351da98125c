#ifndef OXECAD_TESTS_MINIMAL_OXK_WORLD_H
#define OXECAD_TESTS_MINIMAL_OXK_WORLD_H

#include <oxkutils/RefCounted.h>
#include <oxkutils/SmartPtr.h>

namespace oxk {

class Preferences;

class World : public oxkutils::RefCounted {
 public:
  static oxkutils::SmartPtr<World> GetWorld();
  oxkutils::SmartPtr<Preferences> GetPreferences();
  void SaveAndApplyPreferences();
};

}  // namespace oxk

#endif
