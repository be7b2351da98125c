/// \file
/// What is left when everything is left out that a required call, a name or a record costs.
#ifndef OXECAD_BENCH_REPORTING_FLOORS_H
#define OXECAD_BENCH_REPORTING_FLOORS_H

#include <uicomps/tree/NaturalOrder.h>
#include <uicomps/tree/OrderKey.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "bench/reporting/Stage.h"

namespace oxecad_bench {

/// Labels kept in order by keys of 16 bytes, in chunks that are never long.
class ChunkedKeys {
 public:
  void Insert(const wchar_t* label) {
    const Entry entry{oxecad_ui::MakeOrderKey<false>(label), label};
    if (chunks_.empty()) chunks_.emplace_back();
    auto chunk = std::partition_point(chunks_.begin(), chunks_.end() - 1,
                                      [&](const Chunk& each) { return IsBefore(each.back(), entry); });
    chunk->insert(
        std::partition_point(chunk->begin(), chunk->end(), [&](const Entry& each) { return IsBefore(each, entry); }),
        entry);
    if (chunk->size() < kLongest) return;
    const auto middle = chunk->begin() + static_cast<std::ptrdiff_t>(kLongest / 2);
    Chunk upper(middle, chunk->end());
    chunk->erase(middle, chunk->end());
    chunks_.insert(chunk + 1, std::move(upper));
  }

 private:
  struct Entry {
    oxecad_ui::OrderKey key;
    const wchar_t* label;
  };
  using Chunk = std::vector<Entry>;
  static constexpr std::size_t kLongest = 512;

  static bool IsBefore(const Entry& a, const Entry& b) {
    return a.key == b.key ? oxecad_ui::IsNaturallyBefore<false>(a.label, b.label) : a.key < b.key;
  }
  std::vector<Chunk> chunks_;
};

/// Nodes that are found by name, with lean lists of children: what calls by name cost at least.
template <class Value>
class NamedNodes {
 public:
  NamedNodes() = default;
  /// The nodes of grouped nets; `valueOf(group)` gives their values.
  template <class ValueOfGroup>
  NamedNodes(const GroupedNets& grouped, const ValueOfGroup& valueOf) {
    ForEachNode(grouped, [&](const std::string& name, const std::string& parent, const std::wstring&,
                             std::size_t group) { Add(name, parent, valueOf(group)); });
  }

  void Add(const std::string& name, const std::string& parent, Value value) {
    const auto node = static_cast<std::uint32_t>(values_.size());
    if (!parent.empty()) children_[Find(parent)].push_back(name);
    index_.emplace(name, node);
    values_.push_back(value);
    children_.emplace_back();
  }
  std::uint32_t Find(const std::string& name) const { return index_.find(name)->second; }
  Value& At(const std::string& name) { return values_[Find(name)]; }
  const std::vector<std::string>& Children(const std::string& name) const { return children_[Find(name)]; }

  void SetBranch(const std::string& name, const Value& value) {
    for (const std::string& child : Children(name)) SetBranch(child, value);
    At(name) = value;
  }

 private:
  std::unordered_map<std::string, std::uint32_t> index_;
  std::vector<Value> values_;
  std::vector<std::vector<std::string>> children_;
};

}  // namespace oxecad_bench

#endif
