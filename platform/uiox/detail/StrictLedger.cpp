#include <uiox/Describe.h>
#include <uiox/detail/StrictLedger.h>

#include <cstring>

namespace uiox::detail {

namespace {

const void* PointerAt(Slot place) {
  const void* pointer = nullptr;
  if (place.word != 0) std::memcpy(&pointer, place.Pointer(), sizeof pointer);
  return pointer;
}

}  // namespace

void StrictLedger::EnterCopies(const Call& get_node) {
  for (const Option& option : get_node) {
    const bool is_list = option.shape == 'L';
    if (!is_list && option.shape != 'S' && option.shape != 'W') continue;
    const void* copy = PointerAt(is_list ? option.array : option.value);
    if (!copy) continue;
    int count = -1;
    if (is_list) std::memcpy(&count, option.value.Pointer(), sizeof count);
    copies_[copy] = {option.code, count, Describe(get_node)};
  }
}

void StrictLedger::EnterPixels(const Call& load_image) {
  const auto* buffer = load_image.positional[1].Out<const oxecad_ui::toolkit::ImageBuffer>();
  pixels_[buffer->pixels] = Describe(load_image);
}

std::string StrictLedger::Return(const Call& free) {
  const Option& option = free.options[0];
  const bool is_list = option.shape == 'l';
  const void* copy = PointerAt(is_list ? option.array : option.value);
  if (!copy) {
    return is_list && option.value.Int() != 0 ? "a count of " + std::to_string(option.value.Int()) + " without an array"
                                              : "";
  }
  const auto found = copies_.find(copy);
  if (found == copies_.end()) return "it was not handed out, or has come back already";
  const Copy& entry = found->second;
  if (entry.attribute != option.code) return "it was handed out as attribute " + std::to_string(entry.attribute);
  if (is_list && entry.count != option.value.Int()) {
    return "it was handed out with the count " + std::to_string(entry.count);
  }
  copies_.erase(found);
  return "";
}

std::string StrictLedger::ReturnPixels(const Call& relmem) {
  const void* block = PointerAt({reinterpret_cast<std::intptr_t>(relmem.value)});
  if (!block || pixels_.erase(block) != 0) return "";
  return "it was not handed out, or has come back already";
}

void StrictLedger::AppendLeft(std::vector<std::string>& lines) const {
  for (const auto& [address, copy] : copies_) {
    lines.push_back("copy " + std::to_string(copy.attribute) + " of " + copy.call);
  }
  for (const auto& [address, call] : pixels_) lines.push_back("pixels of " + call);
}

}  // namespace uiox::detail
