/// \file
/// Preferences in a folder of the test's own.
#ifndef OXECAD_TESTS_PLATFORM_OXK_PREFERENCESFIXTURE_H
#define OXECAD_TESTS_PLATFORM_OXK_PREFERENCESFIXTURE_H

#include <gtest/gtest.h>
#include <oxk/PreferencesFolder.h>
#include <oxk/World.h>
#include <stdlib.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>
#include <vector>

/// A folder that goes with its content.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "oxk_test-XXXXXX").string();
    if (!::mkdtemp(pattern.data())) ADD_FAILURE() << "no folder " << pattern;
    m_path = pattern;
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
  }

  const std::filesystem::path& Path() const { return m_path; }

 private:
  std::filesystem::path m_path;
};

inline std::string ContentOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

inline void WriteFile(const std::filesystem::path& path, const std::string& content) {
  std::ofstream(path, std::ios::binary) << content;
}

/// The names in a folder, sorted.
inline std::vector<std::string> NamesIn(const std::filesystem::path& folder) {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(folder))
    names.push_back(entry.path().filename().string());
  std::sort(names.begin(), names.end());
  return names;
}

class PreferencesFixture : public testing::Test {
 protected:
  PreferencesFixture() { Restart(); }
  ~PreferencesFixture() override { oxk::UsePreferencesFolder("/nonexistent"); }

  std::filesystem::path Folder() const { return m_temporary.Path() / "config"; }
  std::filesystem::path File() const { return Folder() / "preferences.json"; }

  /// Forgets what is in memory, as a new process would.
  void Restart(oxk::FileOperations& operations = oxk::FileOperations::System()) {
    oxk::UsePreferencesFolder(Folder().string(), operations);
  }
  /// Lays a file down and starts with it.
  void StartWith(const std::string& content) {
    std::filesystem::create_directories(Folder());
    WriteFile(File(), content);
    Restart();
  }

  static std::optional<std::string> Get(const char* key) {
    std::string value;
    const bool found = oxk::World::GetWorld()->GetPreferences()->GetString(oxkutils::Symbol(key), value, nullptr);
    return found ? std::optional<std::string>(value) : std::nullopt;
  }
  static std::string Set(const char* key, const std::string& value) {
    return oxk::World::GetWorld()->GetPreferences()->SetString(oxkutils::Symbol(key), value, false);
  }
  static void Save() { oxk::World::GetWorld()->SaveAndApplyPreferences(); }

  /// Runs something and gives the lines that it wrote to standard error.
  template <class Action>
  static std::vector<std::string> ErrorLinesOf(Action action) {
    testing::internal::CaptureStderr();
    action();
    const std::string text = testing::internal::GetCapturedStderr();
    std::vector<std::string> lines;
    for (std::size_t at = 0; at < text.size();) {
      const std::size_t end = std::min(text.find('\n', at), text.size());
      lines.push_back(text.substr(at, end - at));
      at = end + 1;
    }
    return lines;
  }

 private:
  TemporaryFolder m_temporary;
};

#endif
