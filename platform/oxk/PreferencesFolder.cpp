#include <oxk/PreferencesFolder.h>

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <vector>

#include <oxk/detail/PreferencesStore.h>

namespace oxk {
namespace {

/// The user's home: from the environment, or else from the system's list of users. Empty when neither has one.
std::string HomeFolder() {
  if (const char* const home = std::getenv("HOME"); home && home[0] == '/') return home;
  std::vector<char> buffer(16384);
  passwd entry{};
  passwd* found = nullptr;
  if (::getpwuid_r(::getuid(), &entry, buffer.data(), buffer.size(), &found) != 0 || !found) return {};
  return found->pw_dir && found->pw_dir[0] == '/' ? found->pw_dir : "";
}

}  // namespace

std::string UserPreferencesFolder() {
  // A relative path in the variable is invalid and counts as none.
  if (const char* const configuration = std::getenv("XDG_CONFIG_HOME"); configuration && configuration[0] == '/') {
    return std::string(configuration) + "/oxecad";
  }
  const std::string home = HomeFolder();
  return home.empty() ? std::string() : home + "/.config/oxecad";
}

void UsePreferencesFolder(const std::string& folder, FileOperations& operations) {
  PreferencesStore::Get().Use(folder.empty() ? UserPreferencesFolder() : std::filesystem::absolute(folder).string(),
                              operations);
}

}  // namespace oxk
