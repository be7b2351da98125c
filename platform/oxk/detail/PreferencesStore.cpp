#include <oxk/detail/PreferencesStore.h>

#include <oxk/PreferencesFolder.h>

namespace oxk {
namespace {

std::optional<std::string> TextOf(const nlohmann::json& values, const std::string& key) {
  const auto found = values.find(key);
  if (found == values.end() || !found->is_string()) return std::nullopt;
  return found->get<std::string>();
}

}  // namespace

PreferencesStore::PreferencesStore() : m_file(UserPreferencesFolder(), FileOperations::System()) {}

PreferencesStore& PreferencesStore::Get() {
  static PreferencesStore& store = *new PreferencesStore;
  return store;
}

void PreferencesStore::Use(const std::string& folder, FileOperations& operations) {
  const std::lock_guard<std::mutex> lock(m_mutex);
  m_file = PreferencesFile(folder, operations);
  m_values.reset();
}

nlohmann::json& PreferencesStore::Values() {
  if (!m_values) m_values = m_file.Load();
  return *m_values;
}

std::optional<std::string> PreferencesStore::Read(const std::string& key) {
  const std::lock_guard<std::mutex> lock(m_mutex);
  return TextOf(Values(), key);
}

std::optional<std::string> PreferencesStore::Write(const std::string& key, const std::string& value) {
  const std::lock_guard<std::mutex> lock(m_mutex);
  nlohmann::json& values = Values();
  std::optional<std::string> former = TextOf(values, key);
  values[key] = value;
  return former;
}

void PreferencesStore::Load() {
  const std::lock_guard<std::mutex> lock(m_mutex);
  Values();
}

void PreferencesStore::Save() {
  const std::lock_guard<std::mutex> lock(m_mutex);
  m_file.Save(Values());
}

}  // namespace oxk
