/// \file
/// The name and the label of every node.
#ifndef OXECAD_UIOX_DETAIL_NODETEXTS_H
#define OXECAD_UIOX_DETAIL_NODETEXTS_H

#include <uiox/detail/NameBlock.h>
#include <uiox/detail/NodeRecords.h>
#include <uiox/detail/TextBlocks.h>

#include <string_view>

namespace uiox::detail {

/// Most names and labels are short and stand in the node's record, the label behind the name: a look at a node is a look
/// at one cache line. Longer ones have blocks of their own, and so have labels beyond Latin-1.
///
///     texts   [4 n e t 1 0][12 0 N $ 1]          both in the record
///             [255 . . . handle][12 0 N $ 1]     a long name elsewhere
class NodeTexts {
 public:
  explicit NodeTexts(BlockArena& blocks) : blocks_(blocks), labels_(blocks) {}

  /// Ends with a 0. Good until the node is freed.
  std::string_view Name(const NodeRecord& record) const {
    const std::size_t length = record.texts[0];
    if (length == kElsewhere) return NameBlock::Name(blocks_.At(NameHandle(record)));
    return {reinterpret_cast<const char*>(record.texts + 1), length};
  }
  /// Encoded (WideCodec.h), or null for the empty one.
  const void* Label(const NodeRecord& record) const {
    return record.label == kInside ? record.texts + LabelStart(record) : labels_.At(record.label);
  }

  /// Gives a new record, which has none, its name. Throws std::bad_alloc.
  void SetName(NodeRecord& record, std::string_view name);
  /// False for the label that it has. Throws std::bad_alloc, and then nothing has changed.
  bool SetLabel(NodeRecord& record, std::wstring_view label);
  void Free(NodeRecord& record) noexcept;

 private:
  using Handle = BlockArena::Handle;
  static constexpr unsigned char kElsewhere = 255;
  static constexpr Handle kInside = 0xFFFFFFFFu;  // in place of a label's handle
  static constexpr std::size_t kHandleStart = 4;

  static Handle NameHandle(const NodeRecord& record) {
    Handle handle;
    std::memcpy(&handle, record.texts + kHandleStart, sizeof handle);
    return handle;
  }
  static std::size_t LabelStart(const NodeRecord& record) {
    return record.texts[0] == kElsewhere ? kHandleStart + sizeof(Handle) : record.texts[0] + 2u;
  }

  BlockArena& blocks_;
  TextBlocks labels_;
};

}  // namespace uiox::detail

#endif
