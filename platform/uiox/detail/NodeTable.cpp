#include <uiox/detail/NodeTable.h>
#include <uiox/detail/WideCodec.h>

#include <algorithm>
#include <new>
#include <vector>

namespace uiox {

using detail::LentAnswers;
using detail::NodeBits;
using detail::NodeRecord;
using detail::WideCodec;

// --- Shape -----------------------------------------------------------------------------------------------------------

NodeId NodeTable::Make(const NewNode& node) {
  index_.Reserve();
  blocks_.EnsureRoom();
  const NodeId id = nodes_.Take();
  try {
    NodeRecord& record = nodes_[id];
    texts_.SetName(record, node.name);
    texts_.SetLabel(record, node.label);
    record.user_data = node.user_data;
    SetType(id, node.type);
    SetInt(id, kFirst, node.first_int);
    SetInt(id, kSecond, node.expanded);
    SetInt(id, kThird, node.third_int);
    SetSecondText(id, node.second_text);
    blocks_.EnsureRoom();
  } catch (...) {
    Free(id);
    throw;
  }
  return id;
}

NodeId NodeTable::Find(std::string_view name) const {
  const NodeId node = index_.Find(detail::Hash(name), [&](NodeId candidate) {
    return detail::AreSame(NameOf(candidate), name);
  });
  return node == kTop ? kNoNode : node;
}

NodeId NodeTable::FindAnew(std::string_view name) const {
  if (const NodeId node = guess_.TryOthers(name)) return node;
  NodeId node = search_guess_.Try(name);
  if (node == kTop) {
    node = Find(name);
    if (node == kNoNode) return node;
    search_guess_.FoundElsewhere(node);
  }
  guess_.FoundElsewhere(node, NameOf(node));
  return node;
}

/// Where the children of a node are listed; they may be those of another one yet.
detail::ListedChildren& NodeTable::ListOf(NodeId parent) const {
  constexpr std::uint32_t kScatter = 0x9E3779B1u;
  return lists_[(parent * kScatter) >> (32 - kListBits)];
}

const detail::ListedChildren& NodeTable::ListChildren(NodeId parent) const {
  detail::ListedChildren& list = ListOf(parent);
  const bool more = list.AreOf(parent);
  if (!more || list.Size() < children_.Count(parent)) {
    if (guess_.Last() != kTop) guess_.SetLastName(Name(guess_.Last()));  // it may stand in the list
    guess_.ListForgotten(list);
    if (!more) list.Begin(parent);
    AppendListed(list, parent);
  }
  guess_.ChildrenListed(list);
  return list;
}

/// Appends what is not in the list yet.
void NodeTable::AppendListed(detail::ListedChildren& list, NodeId parent) const {
  list.Forget();
  for (;;) {
    const detail::ChildLists::Run run = children_.RunFrom(parent, static_cast<std::uint32_t>(list.Size()));
    if (run.begin == run.end) break;
    // Records, and long names even more, lie anywhere in memory: all of a run are on their way before the first is
    // needed.
    for (const NodeId* child = run.begin; child != run.end; ++child) __builtin_prefetch(&nodes_[*child]);
    for (const NodeId* child = run.begin; child != run.end; ++child) __builtin_prefetch(Name(*child));
    for (const NodeId* child = run.begin; child != run.end; ++child) list.Append(*child, NameOf(*child));
  }
  list.Finish();
}

void NodeTable::ForgetListed(NodeId parent) noexcept {
  detail::ListedChildren& list = ListOf(parent);
  if (!list.AreOf(parent)) return;
  list.Forget();
  guess_.ListForgotten(list);
}

void NodeTable::Place(NodeId node, NodeId parent, NodeId before) noexcept {
  children_.Insert(node, parent, before);
  if (before != kNoNode) ForgetListed(parent);
  index_.Insert(detail::Hash(NameOf(node)), node);
  ChildrenChanged(parent);
}

std::vector<NodeId> NodeTable::Subtree(NodeId node) const {
  std::vector<NodeId> nodes{node};
  for (std::size_t i = 0; i < nodes.size(); ++i) {
    children_.ForEach(nodes[i], [&](NodeId child) { nodes.push_back(child); });
  }
  return nodes;
}

void NodeTable::Remove(const std::vector<NodeId>& subtree) noexcept {
  const NodeId parent = nodes_[subtree.front()].parent;
  children_.Remove(subtree.front());
  NodesGone();
  ChildrenChanged(parent);
  for (const NodeId node : subtree) {
    index_.Erase(detail::Hash(NameOf(node)), node);
    Free(node);
  }
}

/// What a node has besides its place.
void NodeTable::Free(NodeId node) noexcept {
  NodeRecord& record = nodes_[node];
  if ((record.bits & detail::kHasLent) != 0) lent_.Forget(node);
  if ((record.bits & detail::kHasRare) != 0) {
    second_texts_.Free(rare_[node].second_text);
    rare_.erase(node);
  }
  if (record.selected != 0) selection_.Remove(node);
  std::replace(std::begin(marks_), std::end(marks_), node, kNoNode);
  texts_.Free(record);
  cells_.Drop(node);
  children_.Drop(node);
  nodes_.Give(node);
}

void NodeTable::NodesGone() noexcept {
  for (detail::ListedChildren& list : lists_) list.Forget();
  guess_.NodesGone();
  search_guess_.NodesGone();
}

void NodeTable::Clear() noexcept {
  NodesGone();
  for (detail::ListedChildren& list : lists_) list.Clear();
  std::fill(std::begin(marks_), std::end(marks_), kNoNode);
  selection_.Clear();
  cells_.Clear();
  std::unordered_map<NodeId, Rare>().swap(rare_);
  lent_.Clear();
  index_.Clear();
  nodes_.Clear();
  blocks_.Clear();
}

void NodeTable::Move(NodeId node, NodeId parent, NodeId before) noexcept {
  const NodeId former = nodes_[node].parent;
  children_.Remove(node);
  children_.Insert(node, parent, before);
  ForgetListed(former);
  ForgetListed(parent);
  ChildrenChanged(former);
  ChildrenChanged(parent);
}

void NodeTable::ChildrenChanged(NodeId parent) noexcept {
  if (HasBit(parent, detail::kHasLent)) lent_.ForgetChildren(parent);
}

// --- Texts -----------------------------------------------------------------------------------------------------------

bool NodeTable::SetLabel(NodeId node, std::wstring_view label) {
  if (!texts_.SetLabel(nodes_[node], label)) return false;
  if (HasBit(node, detail::kHasLent)) lent_.ForgetText(node, LentAnswers::kLabel);
  return true;
}

const void* NodeTable::SecondText(NodeId node) const {
  const Rare* rare = FindRare(node);
  return rare ? second_texts_.At(rare->second_text) : nullptr;
}

bool NodeTable::SetSecondText(NodeId node, std::wstring_view text) {
  const void* before = SecondText(node);
  if (before ? WideCodec::Equals(before, text) : text.empty()) return false;
  second_texts_.Replace(NeedRare(node).second_text, text);
  if (HasBit(node, detail::kHasLent)) lent_.ForgetText(node, LentAnswers::kSecondText);
  return true;
}

// --- Values ----------------------------------------------------------------------------------------------------------

bool NodeTable::SetType(NodeId node, TypeId type) {
  if (Type(node) == type) return false;
  constexpr std::uint32_t kFlags = (1u << detail::kFlagBits) - 1;
  nodes_[node].bits = (nodes_[node].bits & kFlags) | type << detail::kFlagBits;
  return true;
}

bool NodeTable::SetBit(NodeId node, NodeBits bit, bool on) {
  if (HasBit(node, bit) == on) return false;
  nodes_[node].bits ^= bit;
  return true;
}

bool NodeTable::SetUserData(NodeId node, void* data) {
  if (nodes_[node].user_data == data) return false;
  nodes_[node].user_data = data;
  return true;
}

const NodeTable::Rare* NodeTable::FindRare(NodeId node) const {
  return HasBit(node, detail::kHasRare) ? &rare_.find(node)->second : nullptr;
}

NodeTable::Rare& NodeTable::NeedRare(NodeId node) {
  if (HasBit(node, detail::kHasRare)) return rare_.find(node)->second;
  Rare rare;
  for (const Int which : {kFirst, kSecond, kThird}) rare.ints[which] = CommonInt(node, which);
  Rare& placed = rare_.emplace(node, rare).first->second;
  nodes_[node].bits |= detail::kHasRare;
  return placed;
}

int NodeTable::CommonInt(NodeId node, Int which) const {
  if (which == kThird) return nodes_[node].selected != 0 ? 1 : 0;
  return HasBit(node, which == kFirst ? detail::kFirstIntBit : detail::kExpandedBit) ? 1 : 0;
}

int NodeTable::GetInt(NodeId node, Int which) const {
  const Rare* rare = FindRare(node);
  return rare ? rare->ints[which] : CommonInt(node, which);
}

bool NodeTable::SetInt(NodeId node, Int which, int value) {
  if (GetInt(node, which) == value) return false;
  const bool common = value == 0 || value == 1;
  if (!common) NeedRare(node);
  if (which == kThird) {
    const bool selected = nodes_[node].selected != 0;
    if (value != 0 && !selected) selection_.Add(node);
    if (value == 0 && selected) selection_.Remove(node);
  } else {
    SetBit(node, which == kFirst ? detail::kFirstIntBit : detail::kExpandedBit, value != 0);
  }
  if (HasBit(node, detail::kHasRare)) NeedRare(node).ints[which] = value;
  return true;
}

void NodeTable::Select(const std::vector<NodeId>& nodes) {
  selection_.Reserve(nodes.size());
  std::vector<NodeId> before;
  before.reserve(selection_.Size());
  selection_.ForEach([&](NodeId node) { before.push_back(node); });
  for (const NodeId node : before) SetInt(node, kThird, 0);
  for (const NodeId node : nodes) SetInt(node, kThird, 1);
}

// --- Answers ---------------------------------------------------------------------------------------------------------

const char* const* NodeTable::LentChildren(NodeId node) {
  const std::uint32_t count = children_.Count(node);
  if (count == 0) return nullptr;
  LentAnswers::Answers& answers = lent_.Of(node);
  if (!answers.children) {
    const detail::ListedChildren& list = ListChildren(node);
    answers.children = std::make_unique<const char*[]>(count);
    for (std::size_t row = 0; row < count; ++row) answers.children[row] = Name(list.Ids()[row]);
    nodes_[node].bits |= detail::kHasLent;
  } else if (ListOf(node).AreOf(node)) {
    guess_.ChildrenListed(ListOf(node));
  }
  return answers.children.get();
}

const wchar_t* NodeTable::Lend(NodeId node, LentAnswers::Text which, const void* block) {
  if (!block) return L"";
  std::unique_ptr<wchar_t[]>& text = lent_.Of(node).texts[which];
  if (!text) {
    const std::size_t length = WideCodec::Length(block);
    text = std::make_unique<wchar_t[]>(length + 1);
    WideCodec::Read(block, text.get());
    nodes_[node].bits |= detail::kHasLent;
  }
  return text.get();
}

const wchar_t* NodeTable::LentLabel(NodeId node) { return Lend(node, LentAnswers::kLabel, Label(node)); }

const wchar_t* NodeTable::LentSecondText(NodeId node) { return Lend(node, LentAnswers::kSecondText, SecondText(node)); }

const char* const* NodeTable::LentSelection() {
  if (selection_.Size() == 0) return nullptr;
  if (lent_selection_version_ != selection_.Version()) {
    lent_selection_ = std::make_unique<const char*[]>(selection_.Size());
    const char** name = lent_selection_.get();
    selection_.ForEach([&](NodeId node) { *name++ = Name(node); });
    lent_selection_version_ = selection_.Version();
  }
  return lent_selection_.get();
}

std::size_t NodeTable::MemoryUse() const {
  std::size_t lists = 0;
  for (const detail::ListedChildren& list : lists_) lists += list.MemoryUse();
  return lists + nodes_.MemoryUse() + blocks_.MemoryUse() + index_.MemoryUse() + cells_.MemoryUse() +
         selection_.MemoryUse() + rare_.size() * (sizeof(Rare) + 4 * sizeof(void*));
}

}  // namespace uiox
