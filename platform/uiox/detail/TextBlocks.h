/// \file
/// Wide texts in blocks of their own.
#ifndef OXECAD_UIOX_DETAIL_TEXTBLOCKS_H
#define OXECAD_UIOX_DETAIL_TEXTBLOCKS_H

#include <uiox/detail/BlockArena.h>

#include <string_view>

namespace uiox::detail {

/// Encoded texts (WideCodec.h), named by handles; the empty text has none.
class TextBlocks {
 public:
  using Handle = BlockArena::Handle;

  explicit TextBlocks(BlockArena& blocks) : blocks_(blocks) {}

  /// The encoded text, or null for the empty one.
  const void* At(Handle handle) const { return handle == BlockArena::kNone ? nullptr : blocks_.At(handle); }
  /// Throws std::bad_alloc.
  Handle New(std::wstring_view text);
  void Free(Handle handle) noexcept;
  /// Puts another text in the place of one. Throws std::bad_alloc, and then nothing has changed.
  void Replace(Handle& handle, std::wstring_view text);

 private:
  BlockArena& blocks_;
};

}  // namespace uiox::detail

#endif
