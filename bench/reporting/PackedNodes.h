/// \file
/// The least that nodes found by name can do with.
#ifndef OXECAD_BENCH_REPORTING_PACKEDNODES_H
#define OXECAD_BENCH_REPORTING_PACKEDNODES_H

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace oxecad_bench {

/// Nodes in plain arrays: names and labels end to end, an open table of names, a list of siblings. Nothing can be
/// removed or moved.
class PackedNodes {
 public:
  void Add(std::string_view name, std::wstring_view label, std::uint32_t parent) {
    if (2 * nodes_.size() >= table_.size()) Grow();
    const auto id = static_cast<std::uint32_t>(nodes_.size());
    nodes_.push_back({static_cast<std::uint32_t>(names_.size()), static_cast<std::uint32_t>(labels_.size()), parent,
                      kNone, 0, nullptr});
    names_.insert(names_.end(), name.begin(), name.end());
    names_.push_back('\0');
    for (const wchar_t unit : label) labels_.push_back(static_cast<char16_t>(unit));
    labels_.push_back(u'\0');
    if (last_ != kNone) nodes_[last_].next = id;
    last_ = id;
    *Place(name) = id;
  }

 private:
  static constexpr std::uint32_t kNone = 0xFFFFFFFFu;
  struct Node {
    std::uint32_t name;
    std::uint32_t label;
    std::uint32_t parent;
    std::uint32_t next;
    std::uint64_t state;
    void* data;
  };

  std::string_view Name(std::uint32_t node) const { return &names_[nodes_[node].name]; }

  std::uint32_t* Place(std::string_view name) {
    std::size_t at = std::hash<std::string_view>()(name) & (table_.size() - 1);
    while (table_[at] != kNone && Name(table_[at]) != name) at = (at + 1) & (table_.size() - 1);
    return &table_[at];
  }

  void Grow() {
    table_.assign(table_.empty() ? 16 : 2 * table_.size(), kNone);
    for (std::uint32_t node = 0; node < nodes_.size(); ++node) *Place(Name(node)) = node;
  }

  std::vector<char> names_;
  std::vector<char16_t> labels_;
  std::vector<Node> nodes_;
  std::vector<std::uint32_t> table_;
  std::uint32_t last_ = kNone;
};

}  // namespace oxecad_bench

#endif
