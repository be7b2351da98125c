#include <tests/support/HandOuts.h>
#include <tests/support/Quoted.h>

namespace test_support {

void HandOuts::Enter(const uiox::Call& get_node) {
  const std::string node = Quoted(get_node.positional[0].Text());
  for (const uiox::Option& option : get_node) {
    const bool list = option.shape == 'L';
    if (!list && option.shape != 'S' && option.shape != 'W') continue;
    const uiox::Slot place = list ? option.array : option.value;
    if (!place.Pointer()) continue;
    const void* const given = *place.Out<void*>();
    if (!given) continue;
    const int count = list ? *option.value.Out<int>() : -1;
    entries_[given] = {option.code, count, "attribute " + std::to_string(option.code) + " of " + node};
  }
}

bool HandOuts::IsReadable(const uiox::Call& free) const {
  for (const uiox::Option& option : free) {
    const bool list = option.shape == 'l';
    const uiox::Slot place = list ? option.array : option.value;
    if (!place.Pointer()) return false;
    const void* const given = *place.Out<void*>();
    if (!given) continue;
    const auto entry = entries_.find(given);
    const int count = list ? option.value.Int() : -1;
    if (entry == entries_.end() || entry->second.count != count) return false;
  }
  return true;
}

std::string HandOuts::Return(const uiox::Call& free) {
  if (free.option_count != 1) return "a release names one attribute";
  const uiox::Option& option = free.options[0];
  const bool list = option.shape == 'l';
  const uiox::Slot place = list ? option.array : option.value;
  if (!place.Pointer()) return "a release without an address";
  const void* const given = *place.Out<void*>();
  if (!given) return {};
  const auto entry = entries_.find(given);
  if (entry == entries_.end()) return "released what was not handed out, or twice";
  const Entry was = entry->second;
  entries_.erase(entry);
  ++releases_;
  if (was.attribute != option.code) return was.what + " released as attribute " + std::to_string(option.code);
  if (list && was.count != option.value.Int()) {
    return was.what + " with " + std::to_string(was.count) + " names released with the count " +
           std::to_string(option.value.Int());
  }
  return {};
}

std::vector<std::string> HandOuts::Outstanding() const {
  std::vector<std::string> lines;
  for (const auto& [pointer, entry] : entries_) lines.push_back("never released: " + entry.what);
  return lines;
}

}  // namespace test_support
