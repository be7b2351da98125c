#include <uiox/Resources.h>
#include <uiox/detail/Embedded.h>

#include <cstdlib>
#include <fstream>
#include <iterator>

namespace uiox {

namespace {

constexpr std::streamoff kMostBytes = 64 * 1024 * 1024;

bool IsPlainFileName(std::string_view name) {
  return !name.empty() && name != "." && name != ".." && name.find_first_of(std::string_view("/\0", 2)) == name.npos;
}

bool ReadFile(const std::string& path, std::string& bytes) {
  std::ifstream file(path, std::ios::binary | std::ios::ate);
  if (!file) return false;
  const std::streamoff size = file.tellg();
  if (size < 0 || size > kMostBytes) return false;
  file.seekg(0);
  std::string read(static_cast<std::size_t>(size), '\0');
  if (!file.read(read.data(), size)) return false;
  bytes = std::move(read);
  return true;
}

bool ReadIn(std::string_view directory, std::string_view name, std::string& bytes) {
  if (directory.empty()) return false;
  std::string path(directory);
  path += '/';
  path += name;
  return ReadFile(path, bytes);
}

}  // namespace

void ResourcePath::Add(std::string_view directory) { directories_.emplace_back(directory); }

void ResourcePath::Clear() { directories_.clear(); }

bool ResourcePath::Read(std::string_view name, std::string& bytes) const {
  if (!IsPlainFileName(name)) return false;
  for (const std::string& directory : directories_) {
    if (ReadIn(directory, name, bytes)) return true;
  }
  const char* variable = std::getenv("OXECAD_UIOX_PATH");
  for (std::string_view rest = variable ? variable : ""; !rest.empty();) {
    const std::size_t end = std::min(rest.find(':'), rest.size());
    if (ReadIn(rest.substr(0, end), name, bytes)) return true;
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
  bytes = detail::EmbeddedResource(name);
  return !bytes.empty();
}

bool ResourcePath::KnowsContext(std::string_view context) { return context == "oxecad"; }

}  // namespace uiox
