#include <iostream>
#include <streambuf>
#include <string>
#include <string_view>

#include <uicomps/base/Text.h>
#include <uicomps/tree/LabelOrder.h>
#include <uicomps/tree/SortedNames.h>
#include <uicomps/tree/Tree.h>

namespace oxecad_ui {

namespace {

using PlainLabelOrder = Tree::NodeInfoLabelComperator<CAlphaNumericWStringComparator>;
using EcadLabelOrder = Tree::NodeInfoLabelComperator<CAlphaNumericWStringEcadComparator>;

/// A child that cannot be read so many times in a row will never be.
constexpr int kMostFailedReads = 10000;

/// Writes where the program's standard output goes, also where the program has redirected its stream; a width, a
/// failure or an exception mask that the program left on the stream does not count.
void SayNotSupported() {
  constexpr std::string_view kMessage = "Not supported type..\n";
  std::streambuf* const output = std::cout.rdbuf();
  if (output == nullptr) return;
  output->sputn(kMessage.data(), static_cast<std::streamsize>(kMessage.size()));
  output->pubsync();
}

/// Makes a record as good as new; its texts keep their memory.
void Empty(Tree::NodeInfo& record) {
  record.name.clear();
  record.label.clear();
  record.type.clear();
  record.state = Tree::Unchecked;
  record.expanded = false;
}

int Middle(int low, int high) { return low + (high - low) / 2; }

/// Names in a vector, as `SortedNames::Reader` offers its own.
class ListedNames {
 public:
  explicit ListedNames(const std::vector<std::string>& names) : m_names(names) {}
  std::size_t Size() const { return m_names.size(); }
  const std::string& At(std::size_t index) const { return m_names[index]; }
  const std::string* Near(std::size_t index) const { return m_names.data() + index; }  // or the end

 private:
  const std::vector<std::string>& m_names;
};

/// The component name of the tree that filled its memory of inserted names last; empty and unset until one did. It is
/// the name and not a pointer to it, because the tree may be gone by now.
struct CacheOwner {
  bool isSet = false;
  std::string name;
};

CacheOwner& TheCacheOwner() {
  static CacheOwner owner;
  return owner;
}

}  // namespace

const CComparator<Tree::NodeInfo>* Tree::GenerateComperatorByType(NodeComparableType type) {
  if (type == ByLabel) return new PlainLabelOrder;
  SayNotSupported();
  return nullptr;
}

const CComparator<Tree::NodeInfo>* Tree::GenerateEcadComperatorByType(NodeComparableType type) {
  if (type == ByLabel) return new EcadLabelOrder;
  SayNotSupported();
  return nullptr;
}

template <class Names>
int Tree::SearchPlace(Names names, const CComparator<NodeInfo>& comparator, const NodeInfo& node) const {
  const int count = static_cast<int>(names.Size());
  int low = 0;
  int high = count - 1;
  int failedReads = 0;
  NodeInfo record;
  while (low <= high) {
    const int middle = Middle(low, high);
    const std::string& name = names.At(static_cast<std::size_t>(middle));
    // While this child is read and compared, the two names come from memory of which one is next.
    __builtin_prefetch(names.Near(static_cast<std::size_t>(Middle(low, middle - 1))));
    __builtin_prefetch(names.Near(static_cast<std::size_t>(Middle(middle + 1, high))));
    Empty(record);
    if (!GetNodeInfo(name.c_str(), record)) {
      if (++failedReads == kMostFailedReads) return count;
      continue;
    }
    failedReads = 0;
    const bool less = comparator.IsAscending() ? comparator.Compare(record, node) : comparator.Compare(node, record);
    if (less) {
      low = middle + 1;
    } else {
      high = middle - 1;
    }
  }
  return low;
}

int Tree::BinarySearchNodeLocation(std::vector<std::string>& children, const CComparator<NodeInfo>* cmp,
                                   NodeInfo& node) {
  if (children.empty()) return 0;  // without children no comparator is needed: it may be null
  return SearchPlace(ListedNames(children), *cmp, node);
}

void Tree::ClaimCache(const char* parent) {
  CacheOwner& owner = TheCacheOwner();
  if (!owner.isSet) {
    owner = {true, GetName()};
  } else if (parent == nullptr || owner.name != GetName()) {
    m_childNames.clear();
    owner.name = GetName();
  }
}

SortedNames* Tree::CachedChildren(const char* parent, const std::string& name) {
  if (parent == nullptr) return nullptr;
  const auto found = m_childNames.find(parent);
  if (found != m_childNames.end()) return found->second.get();
  if (name.empty()) return nullptr;
  return m_childNames.emplace(parent, std::make_unique<SortedNames>()).first->second.get();
}

int Tree::FindPlace(const SortedNames& children, NodeComparableType order, NodeInfo& node) const {
  if (children.Size() == 0) return 0;
  if (order != ByLabel) {
    SayNotSupported();
    return static_cast<int>(children.Size());
  }
  return SearchPlace(SortedNames::Reader(children), EcadLabelOrder(), node);
}

bool Tree::AddEcadNode(const char* name, const wchar_t* label, const char* parent, NodeComparableType order,
                       const char* type, const wchar_t* text2, int i1, int i2, int i3, void* data) {
  NodeInfo node;
  node.name = TextOrEmpty(name);
  node.label = TextOrEmpty(label);
  node.expanded = true;

  ClaimCache(parent);
  SortedNames* const children = CachedChildren(parent, node.name);
  const std::size_t place = children != nullptr ? static_cast<std::size_t>(FindPlace(*children, order, node)) : 0;
  const bool atEnd = children == nullptr || place == children->Size();
  const char* const before = atEnd ? nullptr : children->At(place).c_str();
  const bool added = BaseTree::AddNodeBefore(name, label, parent, before, type, text2, i1, i2, i3, data);
  if (added && children != nullptr) children->Insert(place, std::move(node.name));
  return added;
}

bool Tree::SortNodesByType(const char* node, NodeComparableType order) {
  std::vector<NodeInfo> children;
  if (!GetChildren(node, children)) return false;
  SortChildrenByType(children, order);
  for (const NodeInfo& child : children) MoveNodeBefore(child.name.c_str(), node, nullptr);
  return true;
}

void Tree::SortChildrenByType(std::vector<NodeInfo>& children, NodeComparableType order) {
  if (order != ByLabel) {
    SayNotSupported();
    return;
  }
  SortByLabel<true>(children, [](const NodeInfo& child) { return child.label.c_str(); });
}

}  // namespace oxecad_ui
