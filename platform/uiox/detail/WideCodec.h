/// \file
/// Wide texts in as few bytes as their units need.
#ifndef OXECAD_UIOX_DETAIL_WIDECODEC_H
#define OXECAD_UIOX_DETAIL_WIDECODEC_H

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace uiox::detail {

/// A wide text as bytes: a head of 2 bytes (8 for 16,383 units and more), then its units, each in 1, 2 or 4 bytes.
/// Every value of a unit survives. The block is aligned to 4 bytes. The empty text has no block.
class WideCodec {
 public:
  explicit WideCodec(std::wstring_view text);
  /// Size of the block; 0 for the empty text.
  std::size_t Bytes() const { return bytes_; }
  /// Whether each unit is one byte, so that the block needs no alignment.
  bool IsOfBytes() const { return kind_ == 0; }
  void Write(void* block) const;

  static std::size_t Bytes(const void* block);
  static std::size_t Length(const void* block);
  /// Writes `Length(block)` units.
  static void Read(const void* block, wchar_t* text);
  static bool Equals(const void* block, std::wstring_view text);

 private:
  std::wstring_view text_;
  std::size_t bytes_ = 0;
  unsigned kind_ = 0;  // a unit has 1 << kind bytes
};

}  // namespace uiox::detail

#endif
