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
#include <uiox/detail/NodeGuess.h>
#include <uiox/detail/NodeRecords.h>
#include <uiox/detail/SelectionList.h>
#include <uiox/detail/ShortText.h>

#include <cstddef>
#include <cstring>
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

  NodeId Find(std::string_view name) const {
    const NodeId found =
        index_.Find(detail::Hash(name), [&](NodeId node) { return IsName(blocks_.As<char>(nodes_[node].name), name); });
    return found == kTop ? kNoNode : found;
  }
  /// The same for a name that ends with a 0, where the calls before may tell which node it is.
  NodeId FindAgain(const char* name) const {
    NodeId node = guess_.Next();
    if (!nodes_.Has(node) || !detail::AreEqual(Name(node), name)) node = Search(name);
    if (node == kTop) return kNoNode;
    guess_.Found(node);
    return node;
  }

  /// The names of a node's children were handed out, and are likely to come back one after the other.
  void ChildrenListed(NodeId parent) const { guess_.ChildrenListed(parent); }

  std::size_t Size() const { return index_.Size(); }
  bool Has(NodeId node) const { return nodes_.Has(node); }
  const char* Name(NodeId node) const { return blocks_.As<char>(nodes_[node].name); }
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

  const void* Label(NodeId node) const { return TextBlock(nodes_[node].label); }
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

  /// `kTop` for no node.
  NodeId Search(const char* name) const {
    return index_.Find(detail::Hash(std::string_view(name)), [&](NodeId node) {
      // The label is read next, mostly, and lies elsewhere.
      const detail::NodeRecord& record = nodes_[node];
      if (record.label != detail::BlockArena::kNone) __builtin_prefetch(blocks_.As<char>(record.label));
      return detail::AreEqual(blocks_.As<char>(record.name), name);
    });
  }
  static bool IsName(const char* stored, std::string_view name) { return std::string_view(stored) == name; }
  const void* TextBlock(detail::BlockArena::Handle handle) const {
    return handle == detail::BlockArena::kNone ? nullptr : blocks_.At(handle);
  }
  detail::BlockArena::Handle NewName(std::string_view name);
  detail::BlockArena::Handle NewText(std::wstring_view text);
  void FreeText(detail::BlockArena::Handle handle) noexcept;
  bool ReplaceText(detail::BlockArena::Handle& handle, std::wstring_view text);
  const Rare* FindRare(NodeId node) const;
  Rare& NeedRare(NodeId node);
  int CommonInt(NodeId node, Int which) const;
  const wchar_t* Lend(NodeId node, detail::LentAnswers::Text which, const void* block);
  void ChildrenChanged(NodeId parent) noexcept;
  void Free(NodeId node) noexcept;

  detail::NodeRecords nodes_;
  detail::BlockArena blocks_;
  detail::IdIndex index_;
  detail::ChildLists children_;
  detail::CellTable cells_;
  detail::SelectionList selection_;
  std::unordered_map<NodeId, Rare> rare_;
  detail::LentAnswers lent_;
  std::unique_ptr<const char*[]> lent_selection_;
  std::uint64_t lent_selection_version_ = 0;
  NodeId marks_[kMarks] = {kNoNode, kNoNode, kNoNode, kNoNode};
  mutable detail::NodeGuess guess_{children_};
};

}  // namespace uiox

#endif
