/// \file
/// A fast hash of short texts. The same everywhere; nothing that can be seen depends on its values.
#ifndef OXECAD_UIOX_DETAIL_HASH_H
#define OXECAD_UIOX_DETAIL_HASH_H

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace uiox::detail {

inline std::uint64_t MixBits(std::uint64_t a, std::uint64_t b) {
  __extension__ using Wide = unsigned __int128;
  const Wide product = Wide{a} * b;
  return static_cast<std::uint64_t>(product) ^ static_cast<std::uint64_t>(product >> 64);
}

inline std::uint32_t HashBytes(const void* data, std::size_t size) {
  constexpr std::uint64_t kFirst = 0x9E3779B97F4A7C15u;
  constexpr std::uint64_t kSecond = 0xD6E8FEB86659FD93u;
  const char* bytes = static_cast<const char*>(data);
  std::uint64_t hash = kFirst ^ size;
  std::uint64_t word = 0;
  for (; size >= 8; size -= 8, bytes += 8) {
    std::memcpy(&word, bytes, 8);
    hash = MixBits(hash ^ word, kSecond);
  }
  if (size >= 4) {
    std::uint32_t low = 0;
    std::uint32_t high = 0;
    std::memcpy(&low, bytes, 4);
    std::memcpy(&high, bytes + size - 4, 4);
    hash = MixBits(hash ^ (std::uint64_t{high} << 32 | low), kFirst);
  } else if (size > 0) {
    const auto at = [bytes](std::size_t i) { return std::uint64_t{static_cast<unsigned char>(bytes[i])}; };
    hash = MixBits(hash ^ (at(0) | at(size / 2) << 8 | at(size - 1) << 16), kFirst);
  }
  hash = MixBits(hash, kSecond);
  return static_cast<std::uint32_t>(hash ^ hash >> 32);
}

inline std::uint32_t Hash(std::string_view text) { return HashBytes(text.data(), text.size()); }
inline std::uint32_t Hash(std::wstring_view text) { return HashBytes(text.data(), text.size() * sizeof(wchar_t)); }

}  // namespace uiox::detail

#endif
