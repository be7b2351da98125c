/// \file
/// The nodes of one tree without anyone watching.
#ifndef OXECAD_UIOX_DETAIL_NODETABLE_H
#define OXECAD_UIOX_DETAIL_NODETABLE_H

#include <uiox/TreeStore.h>
#include <uiox/detail/BlockArena.h>
#include <uiox/detail/CellTable.h>
#include <uiox/detail/ChildLists.h>
#include <uiox/detail/Hash.h>
#include <uiox/detail/IdIndex.h>
#include <uiox/detail/LentAnswers.h>
#include <uiox/detail/ListedChildren.h>
#include <uiox/detail/NodeGuess.h>
#include <uiox/detail/NodeRecords.h>
#include <uiox/detail/NodeTexts.h>
#include <uiox/detail/SearchGuess.h>
#include <uiox/detail/SelectionList.h>

#include <array>
#include <cstddef>
#include <memory>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace uiox {

/// Records, names, order, texts, cells and selection, each in its own structure, kept together here. What `TreeStore`
/// promises holds here too, but nobody is told. Setters give whether something changed.
class NodeTable {
 public:
  explicit NodeTable(std::size_t columns)
      : children_(nodes_, blocks_), cells_(nodes_, blocks_, columns), selection_(nodes_) {}
  NodeTable(const NodeTable&) = delete;
  NodeTable& operator=(const NodeTable&) = delete;

  // --- Names and shape -----------------------------------------------------------------------------------------------

  NodeId Find(std::string_view name) const;
  /// The same where the calls before may tell which node it is.
  NodeId FindAgain(std::string_view name) const {
    const NodeId node = guess_.Try(name);
    return node != kTop ? node : FindAnew(name);
  }

  /// The child so many rows behind the next one that is likely to be named, or `kTop`.
  NodeId ChildAhead(std::size_t rows) const { return guess_.ChildAhead(rows); }
  /// The children of a node, to be handed out: their names are likely to come back one after the other. Good until the
  /// next list or change. Throws std::bad_alloc.
  const detail::ListedChildren& ListChildren(NodeId parent) const;

  std::size_t Size() const { return index_.Size(); }
  bool Has(NodeId node) const { return nodes_.Has(node); }
  const char* Name(NodeId node) const { return NameOf(node).data(); }
  std::string_view NameOf(NodeId node) const { return texts_.Name(nodes_[node]); }
  NodeId Parent(NodeId node) const { return nodes_[node].parent; }
  const detail::ChildLists& Children() const { return children_; }

  /// Makes a node that stands nowhere yet; its name is not in use. Throws std::bad_alloc, and then nothing has changed.
  NodeId Make(const NewNode& node);
  /// Gives such a node its place; `before` is a child of `parent` or `kNoNode`.
  void Place(NodeId node, NodeId parent, NodeId before) noexcept;
  /// A node and all below it. Throws std::bad_alloc.
  std::vector<NodeId> Subtree(NodeId node) const;
  /// Removes a whole subtree.
  void Remove(const std::vector<NodeId>& subtree) noexcept;
  void Clear() noexcept;
  /// Before a `Move`. Throws std::bad_alloc.
  void PrepareMove() { blocks_.EnsureRoom(); }
  void Move(NodeId node, NodeId parent, NodeId before) noexcept;

  // --- Attributes ----------------------------------------------------------------------------------------------------

  const void* Label(NodeId node) const { return texts_.Label(nodes_[node]); }
  bool SetLabel(NodeId node, std::wstring_view label);
  const void* SecondText(NodeId node) const;
  bool SetSecondText(NodeId node, std::wstring_view text);
  TypeId Type(NodeId node) const { return nodes_[node].bits >> detail::kFlagBits; }
  bool SetType(NodeId node, TypeId type);
  bool HasBit(NodeId node, detail::NodeBits bit) const { return (nodes_[node].bits & bit) != 0; }
  bool SetBit(NodeId node, detail::NodeBits bit, bool on);
  void* UserData(NodeId node) const { return nodes_[node].user_data; }
  bool SetUserData(NodeId node, void* data);

  enum Int { kFirst, kSecond, kThird };
  int GetInt(NodeId node, Int which) const;
  bool SetInt(NodeId node, Int which, int value);

  /// A node that is remembered as long as it is there, else `kNoNode`.
  static constexpr unsigned kMarks = 4;
  NodeId& Mark(unsigned mark) { return marks_[mark]; }

  // --- Parts ---------------------------------------------------------------------------------------------------------

  detail::CellTable& Cells() { return cells_; }
  const detail::CellTable& Cells() const { return cells_; }
  const detail::SelectionList& Selection() const { return selection_; }
  /// Makes these nodes the selection. Throws std::bad_alloc, and then nothing has changed.
  void Select(const std::vector<NodeId>& nodes);

  // --- Answers that stay the toolkit's -------------------------------------------------------------------------------

  /// Null for a node without children. Good until its children change.
  const char* const* LentChildren(NodeId node);
  /// Good until the label, the second text, changes.
  const wchar_t* LentLabel(NodeId node);
  const wchar_t* LentSecondText(NodeId node);
  /// The names of the selected nodes; good until it is asked for after the selection has changed.
  const char* const* LentSelection();

  std::size_t MemoryUse() const;

 private:
  struct Rare {
    int ints[3] = {0, 0, 0};
    detail::BlockArena::Handle second_text = detail::BlockArena::kNone;
  };

  NodeId FindAnew(std::string_view name) const;
  detail::ListedChildren& ListOf(NodeId parent) const;
  void AppendListed(detail::ListedChildren& list, NodeId parent) const;
  void ForgetListed(NodeId parent) noexcept;
  void NodesGone() noexcept;
  const Rare* FindRare(NodeId node) const;
  Rare& NeedRare(NodeId node);
  int CommonInt(NodeId node, Int which) const;
  const wchar_t* Lend(NodeId node, detail::LentAnswers::Text which, const void* block);
  void ChildrenChanged(NodeId parent) noexcept;
  void Free(NodeId node) noexcept;

  detail::NodeRecords nodes_;
  detail::BlockArena blocks_;
  detail::NodeTexts texts_{blocks_};
  detail::TextBlocks second_texts_{blocks_};
  detail::IdIndex index_;
  detail::ChildLists children_;
  detail::CellTable cells_;
  detail::SelectionList selection_;
  std::unordered_map<NodeId, Rare> rare_;
  detail::LentAnswers lent_;
  std::unique_ptr<const char*[]> lent_selection_;
  std::uint64_t lent_selection_version_ = 0;
  NodeId marks_[kMarks] = {kNoNode, kNoNode, kNoNode, kNoNode};
  static constexpr unsigned kListBits = 3;  // a walk up a tree lists the same few nodes again and again
  mutable std::array<detail::ListedChildren, 1u << kListBits> lists_;
  mutable detail::NodeGuess guess_;
  mutable detail::SearchGuess search_guess_{nodes_, children_, texts_};
};

}  // namespace uiox

#endif
