/// \file
/// The user's preferences: texts under keys.
#ifndef OXECAD_OXK_PREFERENCES_H
#define OXECAD_OXK_PREFERENCES_H

#include <memory>
#include <string>

#include <oxkutils/Export.h>
#include <oxkutils/RefCounted.h>
#include <oxkutils/Symbol.h>

namespace oxk {

class PreferencesStore;

/// The preferences of this process, reached through `World::GetPreferences`. Keys and values are UTF-8. Reading and
/// setting touch memory only and are safe from several threads; `World::SaveAndApplyPreferences` writes the file.
class OXECAD_PLATFORM_EXPORT Preferences : public oxkutils::RefCounted {
 public:
  /// Reads a preference into `value` and gives true. A preference that is missing, or whose entry in the file is no
  /// text, is replaced by `fallback`; where that is null, `value` is left alone and the result is false.
  bool GetString(const oxkutils::Symbol& key, std::string& value, const char* fallback) const;

  /// Sets a preference and gives its former value, empty where there was none. `flag` belongs to the suite's interface
  /// and changes nothing here.
  std::string SetString(const oxkutils::Symbol& key, const std::string& value, bool flag);

 private:
  friend class World;

  explicit Preferences(PreferencesStore& store);
  ~Preferences() override;
  bool ZeroReferenceCountHook() override;

  PreferencesStore& m_store;
};

}  // namespace oxk

#endif
