#include <algorithm>
#include <cstddef>
#include <memory_resource>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include <uicomps/base/NoRedraw.h>
#include <uicomps/base/Text.h>
#include <uicomps/tree/LabelOrder.h>
#include <uicomps/tree/SortedNames.h>
#include <uicomps/tree/Tree.h>

namespace oxecad_ui {

/// One load of many nodes. Nodes are gathered by parent as long as none can make another one succeed or fail, and so
/// may reach the toolkit in any order; then each parent's nodes are sorted and merged with the siblings that are
/// remembered. What is remembered can be out of date: a sibling that was deleted may be among the nodes to be added,
/// anywhere in the tree. Then all are added as they come.
class EcadLoad {
 public:
  EcadLoad(Tree& tree, Tree::NodeComparableType order, const std::vector<Tree::EcadNode>& nodes)
      : m_tree(tree), m_order(order), m_nodes(nodes), m_added(nodes.size(), false) {}

  std::vector<bool> Run() {
    m_names.reserve(m_nodes.size());
    m_gathered.reserve(m_nodes.size());
    for (std::size_t index = 0; index < m_nodes.size(); ++index) {
      const Tree::EcadNode& node = m_nodes[index];
      if (!MayWait(node)) {
        AddGathered();
        AddByItself(index);
        continue;
      }
      if (DependsOnGathered(node)) AddGathered();
      Gather(index);
    }
    AddGathered();
    return std::move(m_added);
  }

 private:
  struct Group {
    const char* parent;
    std::vector<std::size_t> nodes;
  };
  /// What a node's place costs at most when it is searched: about as many reads as a binary search makes.
  static constexpr std::size_t kReadsOfSearch = 16;
  struct Sibling {
    std::string name;
    std::wstring label;
  };
  enum class Labels { Unknown, AsAdded, OtherThanAdded };

  static const wchar_t* LabelOf(const Tree::EcadNode& node) { return TextOrEmpty(node.label); }

  /// There can be one root only, a null parent empties the memory of names, and an empty name is remembered by chance.
  bool MayWait(const Tree::EcadNode& node) const {
    return m_order == Tree::ByLabel && !IsEmpty(node.name) && !IsEmpty(node.parent);
  }

  /// Of two nodes of one name the first succeeds; a parent must be there before its children, and not before those
  /// that came too early.
  bool DependsOnGathered(const Tree::EcadNode& node) const {
    if (m_groups.empty()) return false;
    if (m_names.count(node.name) != 0 || m_groupOf.count(node.name) != 0) return true;
    return !IsLastParent(node.parent) && m_names.count(node.parent) != 0;
  }

  bool IsLastParent(std::string_view parent) const { return !m_groups.empty() && parent == m_groups[m_last].parent; }

  void Gather(std::size_t index) {
    const Tree::EcadNode& node = m_nodes[index];
    m_gathered.push_back(index);
    m_names.insert(node.name);
    if (!IsLastParent(node.parent)) {
      const auto [found, isNew] = m_groupOf.emplace(node.parent, m_groups.size());
      if (isNew) m_groups.push_back({node.parent, {}});
      m_last = found->second;
    }
    m_groups[m_last].nodes.push_back(index);
  }

  void AddGathered() {
    if (MayGroup()) {
      for (Group& group : m_groups) AddGroup(group);
    } else {
      AddRuns();
    }
    m_gathered.clear();
    m_groups.clear();
    m_last = 0;
    m_groupOf.clear();
    m_names.clear();
  }

  const SortedNames* Remembered(const char* parent) const {
    const auto found = m_tree.m_childNames.find(parent);
    return found != m_tree.m_childNames.end() ? found->second.get() : nullptr;
  }

  /// Whether one of the siblings that are remembered is to be added now.
  bool ComesAgain(const SortedNames* siblings) const {
    if (siblings == nullptr) return false;
    for (std::size_t index = 0; index < siblings->Size(); ++index) {
      if (m_names.count(siblings->At(index)) != 0) return true;
    }
    return false;
  }

  bool MayGroup() const {
    std::size_t siblings = 0;
    for (const Group& group : m_groups) {
      if (const SortedNames* const names = Remembered(group.parent)) siblings += names->Size();
    }
    if (siblings > m_gathered.size() * kReadsOfSearch) return false;  // it would take longer to find out
    return std::none_of(m_groups.begin(), m_groups.end(),
                        [this](const Group& group) { return ComesAgain(Remembered(group.parent)); });
  }

  /// Adds in the order in which the nodes came, with those together that follow each other below one parent.
  void AddRuns() {
    for (auto first = m_gathered.begin(); first != m_gathered.end();) {
      const char* const parent = m_nodes[*first].parent;
      const auto last = std::find_if(first, m_gathered.end(), [&](std::size_t index) {
        return std::string_view(m_nodes[index].parent) != parent;
      });
      Group run{parent, {first, last}};
      const SortedNames* const siblings = Remembered(parent);
      if (siblings != nullptr && (siblings->Size() > run.nodes.size() * kReadsOfSearch || ComesAgain(siblings))) {
        for (const std::size_t index : run.nodes) AddByItself(index);
      } else {
        AddGroup(run);
      }
      first = last;
    }
  }

  void AddGroup(Group& group) {
    auto next = group.nodes.begin();
    while (m_labels == Labels::Unknown && next != group.nodes.end()) {
      AddByItself(*next);
      if (m_added[*next]) LookAtLabel(m_nodes[*next]);
      ++next;
    }
    group.nodes.erase(group.nodes.begin(), next);
    std::vector<Sibling> siblings;
    if (m_labels == Labels::AsAdded && ReadSiblings(group, siblings)) {
      Merge(group, siblings);
    } else {
      for (const std::size_t index : group.nodes) AddByItself(index);
    }
  }

  void AddByItself(std::size_t index) {
    const Tree::EcadNode& node = m_nodes[index];
    m_added[index] = m_tree.AddEcadNode(node.name, node.label, node.parent, m_order, node.type, node.text2, node.i1,
                                        node.i2, node.i3, node.data);
  }

  /// The place of a node depends on the labels that the tree's records give, not on those that were given to it.
  void LookAtLabel(const Tree::EcadNode& node) {
    Tree::NodeInfo record;
    const bool isRead = m_tree.GetNodeInfo(node.name, record);
    m_labels = isRead && record.label == LabelOf(node) ? Labels::AsAdded : Labels::OtherThanAdded;
  }

  /// Reads the siblings that are remembered; the load's first node was added by itself, so they are this tree's. Gives
  /// false where searching a place for each node reads less, or where only the search itself knows what it does: among
  /// siblings without records or out of order.
  bool ReadSiblings(const Group& group, std::vector<Sibling>& siblings) const {
    const SortedNames* const names = Remembered(group.parent);
    if (names == nullptr) return true;
    if (names->Size() > group.nodes.size() * kReadsOfSearch) return false;
    siblings.reserve(names->Size());
    for (std::size_t index = 0; index < names->Size(); ++index) {
      Tree::NodeInfo record;
      const std::string& name = names->At(index);
      if (!m_tree.GetNodeInfo(name.c_str(), record)) return false;
      if (index > 0 && IsNaturallyBefore<false>(record.label.c_str(), siblings.back().label.c_str())) return false;
      siblings.push_back({name, std::move(record.label)});
    }
    return true;
  }

  /// Nodes in order of their labels lie anywhere in the memory, and so do their texts: asked for early, they come while
  /// others are added.
  void PrefetchBehind(const Group& group, std::size_t place) const {
    const std::size_t size = group.nodes.size();
    if (place + 8 < size) __builtin_prefetch(&m_nodes[group.nodes[place + 8]]);
    if (place + 4 < size) {
      const Tree::EcadNode& soon = m_nodes[group.nodes[place + 4]];
      __builtin_prefetch(soon.name);
      __builtin_prefetch(soon.label);
    }
  }

  void Merge(Group& group, const std::vector<Sibling>& siblings) {
    // Of equal labels the one that is added last stands first.
    std::reverse(group.nodes.begin(), group.nodes.end());
    SortByLabel<false>(group.nodes, [&](std::size_t index) { return LabelOf(m_nodes[index]); });
    SortedNames* remembered = nullptr;
    std::size_t passed = 0;
    std::size_t added = 0;
    for (std::size_t place = 0; place < group.nodes.size(); ++place) {
      PrefetchBehind(group, place);
      const std::size_t index = group.nodes[place];
      const Tree::EcadNode& node = m_nodes[index];
      while (passed < siblings.size() && IsNaturallyBefore<false>(siblings[passed].label.c_str(), LabelOf(node))) {
        ++passed;
      }
      const char* const next = passed < siblings.size() ? siblings[passed].name.c_str() : nullptr;
      if (!m_tree.BaseTree::AddNodeBefore(node.name, node.label, node.parent, next, node.type, node.text2, node.i1,
                                          node.i2, node.i3, node.data)) {
        continue;
      }
      m_added[index] = true;
      if (remembered == nullptr) remembered = m_tree.CachedChildren(node.parent, node.name);
      remembered->Insert(passed + added, node.name);
      ++added;
    }
  }

  Tree& m_tree;
  const Tree::NodeComparableType m_order;
  const std::vector<Tree::EcadNode>& m_nodes;
  std::vector<bool> m_added;
  Labels m_labels = Labels::Unknown;

  std::vector<std::size_t> m_gathered;
  std::vector<Group> m_groups;
  std::size_t m_last = 0;  // the group that got a node last
  std::unordered_map<std::string_view, std::size_t> m_groupOf;
  std::pmr::monotonic_buffer_resource m_nameMemory;  // a name takes no allocation of its own
  std::pmr::unordered_set<std::string_view> m_names{&m_nameMemory};
};

std::vector<bool> Tree::AddEcadNodes(const std::vector<EcadNode>& nodes, NodeComparableType order) {
  if (nodes.empty()) return {};
  const NoRedraw noRedraw(*this);
  return EcadLoad(*this, order, nodes).Run();
}

}  // namespace oxecad_ui
