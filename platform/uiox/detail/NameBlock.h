/// \file
/// Names as they lie in blocks.
#ifndef OXECAD_UIOX_DETAIL_NAMEBLOCK_H
#define OXECAD_UIOX_DETAIL_NAMEBLOCK_H

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <string_view>

namespace uiox::detail {

/// A name as bytes: its length, its characters and a closing 0. The length of a long one is counted again each time.
class NameBlock {
 public:
  static std::size_t Bytes(std::string_view name) { return name.size() + 2; }
  static void Write(void* block, std::string_view name) {
    auto* bytes = static_cast<unsigned char*>(block);
    bytes[0] = static_cast<unsigned char>(std::min(name.size(), kLong));
    std::copy(name.begin(), name.end(), bytes + 1);
    bytes[1 + name.size()] = 0;
  }

  /// Ends with a 0.
  static std::string_view Name(const void* block) {
    const std::size_t length = *static_cast<const unsigned char*>(block);
    const char* name = static_cast<const char*>(block) + 1;
    return {name, length == kLong ? std::strlen(name) : length};
  }

 private:
  static constexpr std::size_t kLong = 255;
};

}  // namespace uiox::detail

#endif
