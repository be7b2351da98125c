#include <errno.h>
#include <fuzz/Input.h>
#include <oxk/PreferencesFolder.h>
#include <oxk/World.h>

#include <algorithm>
#include <map>

namespace {

/// Files in memory: one folder, and nothing of the machine's own.
class MemoryFiles : public oxk::FileOperations {
 public:
  std::map<std::string, std::string> files;

  int OpenForReading(const std::string& path) override { return files.count(path) ? Open(path) : Fail(ENOENT); }
  int OpenForWriting(const std::string& path) override {
    files[path].clear();
    return Open(path);
  }
  int OpenFolder(const std::string& path) override { return Open(path); }
  ssize_t Read(int, void* buffer, std::size_t size) override {
    const std::string& content = files[path_];
    const std::size_t count = std::min(size, content.size() - at_);
    std::memcpy(buffer, content.data() + at_, count);
    at_ += count;
    return static_cast<ssize_t>(count);
  }
  ssize_t Write(int, const void* data, std::size_t size) override {
    files[path_].append(static_cast<const char*>(data), size);
    return static_cast<ssize_t>(size);
  }
  int Flush(int) override { return 0; }
  int Close(int) override { return 0; }
  int Rename(const std::string& from, const std::string& to) override {
    files[to] = files[from];
    files.erase(from);
    return 0;
  }
  int RenameToNew(const std::string& from, const std::string& to) override {
    return files.count(to) ? Fail(EEXIST) : Rename(from, to);
  }
  int Remove(const std::string& path) override { return files.erase(path) ? 0 : Fail(ENOENT); }
  int MakeFolder(const std::string&) override { return 0; }

 private:
  int Open(const std::string& path) {
    path_ = path;
    at_ = 0;
    return 1000;
  }
  static int Fail(int reason) {
    errno = reason;
    return -1;
  }

  std::string path_;
  std::size_t at_ = 0;
};

}  // namespace

// Any file of preferences is read or kept aside; afterwards values are stored and read back.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using fuzz::Require;
  static MemoryFiles& files = *new MemoryFiles;
  files.files.clear();
  const std::string text = fuzz::Input(data, size).Rest();
  files.files["/p/preferences.json"] = text;
  oxk::UsePreferencesFolder("/p", files);
  const auto world = oxk::World::GetWorld();
  const oxkutils::Symbol key("GUI/EcadView/HighlightAddToHighlight");
  std::string before = "preset";
  const bool was_there = world->GetPreferences()->GetString(key, before, nullptr);
  Require(was_there || before == "preset");
  world->GetPreferences()->SetString(key, "add_highlight", false);
  world->SaveAndApplyPreferences();

  oxk::UsePreferencesFolder("/p", files);
  std::string after;
  Require(world->GetPreferences()->GetString(key, after, nullptr) && after == "add_highlight");
  Require(!files.files.empty() && files.files.size() <= 2);
  if (files.files.size() == 2) {
    // What could not be read is kept, byte by byte.
    Require(std::any_of(files.files.begin(), files.files.end(), [&](const auto& file) { return file.second == text; }));
  }
  return 0;
}
