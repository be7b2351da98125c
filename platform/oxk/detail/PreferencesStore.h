/// \file
/// The preferences of the process and the file that they belong to.
#ifndef OXECAD_OXK_DETAIL_PREFERENCESSTORE_H
#define OXECAD_OXK_DETAIL_PREFERENCESSTORE_H

#include <mutex>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>

#include <oxk/detail/PreferencesFile.h>

namespace oxk {

/// Safe from several threads. The file is read when the first value is asked for.
class PreferencesStore {
 public:
  /// The one of this process; it is never destroyed.
  static PreferencesStore& Get();

  /// Forgets the values. An empty folder: they are kept in memory alone.
  void Use(const std::string& folder, FileOperations& operations);
  std::optional<std::string> Read(const std::string& key);
  /// Gives the former value.
  std::optional<std::string> Write(const std::string& key, const std::string& value);
  void Load();
  void Save();

 private:
  PreferencesStore();
  nlohmann::json& Values();  // the caller holds the lock

  std::mutex m_mutex;
  PreferencesFile m_file;
  std::optional<nlohmann::json> m_values;  // nothing: not yet read
};

}  // namespace oxk

#endif
