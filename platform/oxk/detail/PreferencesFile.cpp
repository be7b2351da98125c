#include <oxk/detail/PreferencesFile.h>

#include <signal.h>
#include <unistd.h>

#include <cerrno>
#include <charconv>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <system_error>

#include <oxk/PreferencesFolder.h>
#include <oxk/detail/FileTransfer.h>

namespace oxk {
namespace {

constexpr std::size_t kLargestFile = std::size_t{16} << 20;
constexpr int kDeepestNesting = 64;  // writing an object recurses
constexpr const char* kTemporarySuffix = ".tmp-";

void Report(const std::string& path, const std::string& what) {
  std::fprintf(stderr, "oxecad: %s: %s\n", path.c_str(), what.c_str());
}

/// The object in a file's text, or the reason why there is none.
std::optional<nlohmann::json> Parse(const std::string& text, std::string& reason) {
  if (const std::size_t zero = text.find('\0'); zero != std::string::npos) {  // would count as the end of the text
    reason = "not valid JSON: a zero byte at offset " + std::to_string(zero);
    return std::nullopt;
  }
  bool tooDeep = false;
  const auto watchDepth = [&tooDeep](int outerLevels, nlohmann::json::parse_event_t event, nlohmann::json&) {
    using Event = nlohmann::json::parse_event_t;
    const bool opens = event == Event::object_start || event == Event::array_start;
    tooDeep = tooDeep || (opens && outerLevels >= kDeepestNesting);
    return !tooDeep;
  };
  try {
    nlohmann::json values = nlohmann::json::parse(text, watchDepth);
    if (tooDeep) {
      reason = "nested more than " + std::to_string(kDeepestNesting) + " levels deep";
    } else if (!values.is_object()) {
      reason = "not a JSON object";
    } else {
      return values;
    }
  } catch (const nlohmann::json::exception& error) {
    const std::string what = error.what();  // "[the exception's name] what is wrong and where"
    reason = "not valid JSON: " + what.substr(what.find("] ") + 2);
  }
  return std::nullopt;
}

/// Whether a file's name is that of a temporary file whose process is gone.
bool IsLeftover(const std::string& name) {
  const std::string prefix = std::string(kPreferencesFileName) + kTemporarySuffix;
  if (name.compare(0, prefix.size(), prefix) != 0) return false;
  pid_t process = 0;
  const auto [end, error] = std::from_chars(name.data() + prefix.size(), name.data() + name.size(), process);
  if (error != std::errc() || end != name.data() + name.size() || process <= 0) return false;
  return ::kill(process, 0) != 0 && errno == ESRCH;
}

}  // namespace

PreferencesFile::PreferencesFile(std::string folder, FileOperations& operations)
    : m_folder(std::move(folder)), m_path(m_folder + '/' + kPreferencesFileName), m_operations(&operations) {}

nlohmann::json PreferencesFile::Load() {
  nlohmann::json values = nlohmann::json::object();
  if (m_folder.empty()) return values;
  RemoveLeftovers();

  std::string text;
  std::string reason;
  if (const int error = ReadWholeFile(*m_operations, m_path, kLargestFile, text)) {
    if (error == ENOENT || error == ENOTDIR) return values;
    reason = "cannot be read: " + ErrorText(error);
  } else if (auto parsed = Parse(text, reason)) {
    return std::move(*parsed);
  }
  m_damagedInPlace = !KeepDamaged(reason);
  return values;
}

bool PreferencesFile::KeepDamaged(const std::string& reason) {
  std::string outcome;
  const bool away = MoveAside(*m_operations, m_path, outcome);
  if (!outcome.empty()) Report(m_path, reason + "; " + outcome + (away ? "" : "; preferences are not saved"));
  return away;
}

void PreferencesFile::Save(const nlohmann::json& values) {
  if (m_folder.empty()) {
    Report(kPreferencesFileName, "not saved: the user has no home folder");
    return;
  }
  if (m_damagedInPlace && !KeepDamaged("damaged since it was read")) return;
  m_damagedInPlace = false;

  const std::string text = values.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) + '\n';
  const std::string temporary = m_path + kTemporarySuffix + std::to_string(::getpid());
  if (const int error = ReplaceFile(*m_operations, m_folder, temporary, m_path, text)) {
    Report(m_path, "not saved: " + ErrorText(error));
  }
}

void PreferencesFile::RemoveLeftovers() {
  std::error_code ignored;
  for (std::filesystem::directory_iterator at(m_folder, ignored), end; !ignored && at != end; at.increment(ignored)) {
    if (IsLeftover(at->path().filename().string())) m_operations->Remove(at->path().string());
  }
}

}  // namespace oxk
