/// \file
/// The root of the kernel's objects.
#ifndef OXECAD_OXK_WORLD_H
#define OXECAD_OXK_WORLD_H

#include <oxk/Preferences.h>
#include <oxkutils/Export.h>
#include <oxkutils/RefCounted.h>
#include <oxkutils/SmartPtr.h>

namespace oxk {

/// One for the whole process. It and its preferences live until the process ends, whatever becomes of the references.
class OXECAD_PLATFORM_EXPORT World : public oxkutils::RefCounted {
 public:
  World(const World&) = delete;
  World& operator=(const World&) = delete;

  /// The one world of the process, made by the first call; never null. Safe from several threads.
  static oxkutils::SmartPtr<World> GetWorld();

  /// The preferences. The first call reads them from the user's configuration folder, or from the folder that
  /// `UsePreferencesFolder` names. Never null: a file that cannot be read is reported on standard error, kept under
  /// another name, and the preferences are empty.
  oxkutils::SmartPtr<Preferences> GetPreferences();

  /// Writes the preferences to their file, all or nothing: a failure is reported on standard error in one line, and the
  /// file still holds what it held. Settings of this process are in force as soon as they are made.
  void SaveAndApplyPreferences();

 private:
  World();
  ~World() override;
  bool ZeroReferenceCountHook() override;
};

}  // namespace oxk

#endif
