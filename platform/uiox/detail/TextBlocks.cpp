#include <uiox/detail/TextBlocks.h>
#include <uiox/detail/WideCodec.h>

namespace uiox::detail {

TextBlocks::Handle TextBlocks::New(std::wstring_view text) {
  if (text.empty()) return BlockArena::kNone;
  const WideCodec codec(text);
  const Handle handle = blocks_.Allocate(codec.Bytes());
  codec.Write(blocks_.At(handle));
  return handle;
}

void TextBlocks::Free(Handle handle) noexcept {
  if (handle != BlockArena::kNone) blocks_.Free(handle, WideCodec::Bytes(blocks_.At(handle)));
}

void TextBlocks::Replace(Handle& handle, std::wstring_view text) {
  const WideCodec codec(text);
  const std::size_t before = handle == BlockArena::kNone ? 0 : WideCodec::Bytes(blocks_.At(handle));
  if (before != 0 && codec.Bytes() != 0 && before <= BlockArena::kLargestSmall &&
      BlockArena::SameSize(before, codec.Bytes())) {
    codec.Write(blocks_.At(handle));
    return;
  }
  const Handle replacement = New(text);
  Free(handle);
  handle = replacement;
}

}  // namespace uiox::detail
