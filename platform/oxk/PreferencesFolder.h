/// \file
/// Where a process keeps its preferences: for hosts that have a place of their own, and for tests.
#ifndef OXECAD_OXK_PREFERENCESFOLDER_H
#define OXECAD_OXK_PREFERENCESFOLDER_H

#include <string>

#include <oxk/FileOperations.h>
#include <oxkutils/Export.h>

namespace oxk {

/// The name of the preferences' file inside their folder.
inline constexpr const char* kPreferencesFileName = "preferences.json";

/// The folder of the user's configuration: "oxecad" below `XDG_CONFIG_HOME` where that is an absolute path, otherwise
/// below ".config" in the user's home. Empty when there is no home: preferences then last as long as the process.
OXECAD_PLATFORM_EXPORT std::string UserPreferencesFolder();

/// Keeps the preferences in `folder`, which is made by the first save; empty: in `UserPreferencesFolder()`. What is in
/// memory is forgotten, and the next `World::GetPreferences` reads the file there; preferences that were handed out
/// before show the new values then. `operations` must stay alive until the next call of this function.
OXECAD_PLATFORM_EXPORT void UsePreferencesFolder(const std::string& folder,
                                                 FileOperations& operations = FileOperations::System());

}  // namespace oxk

#endif
