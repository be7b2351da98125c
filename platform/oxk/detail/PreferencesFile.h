/// \file
/// The file in which preferences outlive the process.
#ifndef OXECAD_OXK_DETAIL_PREFERENCESFILE_H
#define OXECAD_OXK_DETAIL_PREFERENCESFILE_H

#include <nlohmann/json.hpp>
#include <string>

#include <oxk/FileOperations.h>

namespace oxk {

/// A JSON object, one text for each preference. Entries that are no texts are kept as they are.
///
/// A file that cannot be read, or is no such object, is never written over: it is renamed to the first free name of
/// "preferences.json.damaged-1", "-2" and so on, and while that fails nothing is saved. Each failure is one line on
/// standard error that names the file and the reason.
class PreferencesFile {
 public:
  /// An empty folder: nothing is read or written.
  PreferencesFile(std::string folder, FileOperations& operations);

  /// Gives the file's object, empty when there is no file or no readable one.
  nlohmann::json Load();

  /// Replaces the file: a temporary file in the same folder is written, flushed and renamed. A process that is killed
  /// at any moment leaves the old file or the new one.
  void Save(const nlohmann::json& values);

 private:
  bool KeepDamaged(const std::string& reason);
  void RemoveLeftovers();

  std::string m_folder;
  std::string m_path;
  FileOperations* m_operations;
  bool m_damagedInPlace = false;  // the file is damaged and could not be renamed
};

}  // namespace oxk

#endif
