#include <uiox/detail/Hash.h>
#include <uiox/detail/WideTexts.h>

#include <algorithm>
#include <iterator>

namespace uiox::detail {

WideTexts::Id WideTexts::Use(std::wstring_view text) {
  if (text.empty()) return 0;
  for (const Id id : recent_) {
    if (id == 0 || View(id) != text) continue;
    ++entries_[id - 1].users;
    return id;
  }
  const std::uint32_t hash = Hash(text);
  if (const Id known = index_.Find(hash, [&](Id id) { return View(id) == text; })) {
    ++entries_[known - 1].users;
    return Recent(known);
  }
  index_.Reserve();
  if (free_.empty()) {
    // One place more in both lists, so that Release cannot fail.
    if (free_.capacity() <= entries_.size()) free_.reserve(2 * entries_.size() + 8);
    entries_.emplace_back();
    free_.push_back(static_cast<Id>(entries_.size()));
  }
  const Id id = free_.back();
  Entry& entry = entries_[id - 1];
  entry.text = std::make_unique<wchar_t[]>(text.size() + 1);
  std::copy(text.begin(), text.end(), entry.text.get());
  entry.length = static_cast<std::uint32_t>(text.size());
  entry.hash = hash;
  entry.users = 1;
  free_.pop_back();
  index_.Insert(hash, id);
  return Recent(id);
}

WideTexts::Id WideTexts::Recent(Id id) {
  recent_[next_recent_] = id;
  next_recent_ = (next_recent_ + 1) % kRecent;
  return id;
}

void WideTexts::Release(Id id) noexcept {
  if (id == 0 || --entries_[id - 1].users > 0) return;
  std::replace(std::begin(recent_), std::end(recent_), id, Id{0});
  index_.Erase(entries_[id - 1].hash, id);
  entries_[id - 1].text.reset();
  free_.push_back(id);
}

void WideTexts::Clear() noexcept {
  std::vector<Entry>().swap(entries_);
  std::vector<Id>().swap(free_);
  index_.Clear();
  std::fill(std::begin(recent_), std::end(recent_), Id{0});
}

std::size_t WideTexts::MemoryUse() const {
  std::size_t bytes = entries_.capacity() * sizeof(Entry) + free_.capacity() * sizeof(Id) + index_.MemoryUse();
  for (const Entry& entry : entries_) bytes += entry.text ? (entry.length + 1) * sizeof(wchar_t) : 0;
  return bytes;
}

}  // namespace uiox::detail
