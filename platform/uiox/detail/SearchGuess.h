/// \file
/// Which child a search by halves names next.
#ifndef OXECAD_UIOX_DETAIL_SEARCHGUESS_H
#define OXECAD_UIOX_DETAIL_SEARCHGUESS_H

#include <uiox/NodeId.h>
#include <uiox/detail/ChildLists.h>
#include <uiox/detail/NodeRecords.h>
#include <uiox/detail/NodeTexts.h>

#include <cstdint>
#include <string_view>

namespace uiox::detail {

/// Whoever keeps children in order looks for the place of a new one by halves: reads the child in the middle, then that
/// in the middle of the half where the new one belongs, and so on. After each there are two that may be next. Their
/// records are fetched while the caller still compares, and comparing two names costs less than a search among all.
///
/// A guess only: rows may have moved since. The name decides.
class SearchGuess {
 public:
  SearchGuess(const NodeRecords& nodes, const ChildLists& children, const NodeTexts& texts)
      : nodes_(nodes), children_(children), texts_(texts) {}

  /// The node of that name when it is one of the two, else `kTop`.
  NodeId Try(std::string_view name);
  /// A node was found in another way: it may be the first of a search, the middle child.
  void FoundElsewhere(NodeId node);
  /// Any node may have gone.
  void NodesGone() { lower_ = upper_ = kTop; }

 private:
  /// So many nodes that were no search's, and only one in so many is looked at.
  static constexpr std::uint32_t kPatience = 16;
  /// Children worth a guess. Of more, most searches read the same few, which are near anyway, and finding a row costs
  /// more than finding a name.
  static constexpr std::uint32_t kFewest = 4;
  static constexpr std::uint32_t kMost = 2048;

  static std::uint32_t Middle(std::uint32_t first, std::uint32_t end) { return first + (end - first - 1) / 2; }
  bool IsNamed(NodeId node, std::string_view name) const;
  void LookAhead();
  NodeId Candidate(std::uint32_t first, std::uint32_t end) const;

  const NodeRecords& nodes_;
  const ChildLists& children_;
  const NodeTexts& texts_;
  NodeId parent_ = kTop;
  std::uint32_t first_ = 0;  // of the rows where the place may be, around the child that was read last
  std::uint32_t end_ = 0;
  NodeId lower_ = kTop;  // the middle of the rows before that child, `kTop` without any
  NodeId upper_ = kTop;  // of those behind it
  std::uint32_t in_vain_ = 0;
};

}  // namespace uiox::detail

#endif
