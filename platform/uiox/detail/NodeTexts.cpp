#include <uiox/detail/NodeTexts.h>
#include <uiox/detail/WideCodec.h>

#include <utility>

namespace uiox::detail {

void NodeTexts::SetName(NodeRecord& record, std::string_view name) {
  const std::size_t bytes = NameBlock::Bytes(name);
  if (bytes <= sizeof record.texts) return NameBlock::Write(record.texts, name);
  const Handle handle = blocks_.Allocate(bytes);
  NameBlock::Write(blocks_.At(handle), name);
  record.texts[0] = kElsewhere;
  std::memcpy(record.texts + kHandleStart, &handle, sizeof handle);
}

bool NodeTexts::SetLabel(NodeRecord& record, std::wstring_view label) {
  const void* before = Label(record);
  if (before ? WideCodec::Equals(before, label) : label.empty()) return false;
  const WideCodec codec(label);
  const std::size_t start = LabelStart(record);
  if (codec.Bytes() <= sizeof record.texts - start && codec.IsOfBytes()) {
    const Handle block = std::exchange(record.label, label.empty() ? BlockArena::kNone : kInside);
    codec.Write(record.texts + start);
    if (block != kInside) labels_.Free(block);
  } else if (record.label == kInside) {
    record.label = labels_.New(label);
  } else {
    labels_.Replace(record.label, label);
  }
  return true;
}

void NodeTexts::Free(NodeRecord& record) noexcept {
  if (record.label != kInside) labels_.Free(record.label);
  if (record.texts[0] == kElsewhere) blocks_.Free(NameHandle(record), NameBlock::Bytes(Name(record)));
}

}  // namespace uiox::detail
