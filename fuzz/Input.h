/// \file
/// Takes a fuzzer's bytes apart.
#ifndef OXECAD_FUZZ_INPUT_H
#define OXECAD_FUZZ_INPUT_H

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

namespace fuzz {

/// Ends the process where something does not hold.
inline void Require(bool holds) {
  if (!holds) std::abort();
}

/// The bytes in their order; 0 when they are used up.
class Input {
 public:
  Input(const std::uint8_t* data, std::size_t size) : data_(data), size_(size) {}

  bool IsEmpty() const { return at_ == size_; }
  unsigned Byte() { return IsEmpty() ? 0u : data_[at_++]; }
  unsigned Below(unsigned limit) { return Byte() % limit; }
  std::uint32_t Word() {
    std::uint32_t word = 0;
    for (int i = 0; i < 4; ++i) word = word << 8 | Byte();
    return word;
  }
  double Number() {
    std::uint64_t bits = Word();
    bits = bits << 32 | Word();
    double value;
    std::memcpy(&value, &bits, sizeof value);
    return value;
  }
  /// The next so many bytes, as they are.
  std::string Bytes(std::size_t count) {
    std::string text;
    while (count-- > 0 && !IsEmpty()) text.push_back(static_cast<char>(Byte()));
    return text;
  }
  /// The next so many UTF-16 units, two bytes each.
  std::wstring Units(std::size_t count) {
    std::wstring text;
    while (count-- > 0 && !IsEmpty()) {
      const unsigned high = Byte();
      text.push_back(static_cast<wchar_t>(high << 8 | Byte()));
    }
    return text;
  }
  std::string Rest() { return Bytes(size_ - at_); }

 private:
  const std::uint8_t* data_;
  std::size_t size_;
  std::size_t at_ = 0;
};

}  // namespace fuzz

#endif
