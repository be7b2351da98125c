/// \file
/// Wide texts that many cells share.
#ifndef OXECAD_UIOX_DETAIL_WIDETEXTS_H
#define OXECAD_UIOX_DETAIL_WIDETEXTS_H

#include <uiox/detail/IdIndex.h>

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

namespace uiox::detail {

/// Interned wide texts with a count of their users. Cells hold few different texts, and an answer on the wire can point
/// to the text itself.
class WideTexts {
 public:
  using Id = std::uint32_t;  // 0: the empty text

  /// The id of a text, with one user more. Throws std::bad_alloc.
  Id Use(std::wstring_view text);
  void Release(Id id) noexcept;
  /// Ends with a 0; good as long as the text has a user.
  const wchar_t* Text(Id id) const { return id == 0 ? L"" : entries_[id - 1].text.get(); }
  std::wstring_view View(Id id) const {
    return id == 0 ? std::wstring_view() : std::wstring_view(entries_[id - 1].text.get(), entries_[id - 1].length);
  }
  void Clear() noexcept;
  std::size_t MemoryUse() const;

 private:
  struct Entry {
    std::unique_ptr<wchar_t[]> text;
    std::uint32_t length = 0;
    std::uint32_t hash = 0;
    std::uint32_t users = 0;
  };

  static constexpr std::size_t kRecent = 4;
  Id Recent(Id id);

  std::vector<Entry> entries_;
  std::vector<Id> free_;
  IdIndex index_;
  Id recent_[kRecent] = {0, 0, 0, 0};  // found or made last: one text mostly goes into many cells
  std::size_t next_recent_ = 0;
};

}  // namespace uiox::detail

#endif
