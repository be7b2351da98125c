#include <oxk/Preferences.h>

#include <oxk/detail/PreferencesStore.h>

namespace oxk {

Preferences::Preferences(PreferencesStore& store) : m_store(store) {}

Preferences::~Preferences() = default;

bool Preferences::ZeroReferenceCountHook() { return false; }

bool Preferences::GetString(const oxkutils::Symbol& key, std::string& value, const char* fallback) const {
  if (auto stored = m_store.Read(key.c_str())) {
    value = std::move(*stored);
    return true;
  }
  if (!fallback) return false;
  value = fallback;
  return true;
}

std::string Preferences::SetString(const oxkutils::Symbol& key, const std::string& value, bool /*flag*/) {
  return m_store.Write(key.c_str(), value).value_or(std::string());
}

}  // namespace oxk
