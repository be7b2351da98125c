/// \file
/// What a tree looked like.
#ifndef OXECAD_VIEWER_WINDOW_TREEMEMORY_H
#define OXECAD_VIEWER_WINDOW_TREEMEMORY_H

#include <functional>
#include <set>
#include <string>
#include <unordered_set>
#include <vector>

#include <uiox/Observer.h>
#include <uiox/TreeWidget.h>

namespace oxviewer {

/// What of a node a user changes: its check, its colour, and the values of its cells.
struct NodeMemory {
  unsigned check = 0;
  uiox::TypeId type = 0;
  void* data = nullptr;
  std::vector<std::wstring> cells;
  std::vector<unsigned> boxes;  // by column: the check button's state, or 3 without one

  friend bool operator==(const NodeMemory&, const NodeMemory&) = default;
};

/// What is selected: nodes, and the objects that the application takes for selected where that is more.
struct SelectionMemory {
  std::vector<uiox::NodeId> nodes;
  std::set<void*> objects;

  friend bool operator==(const SelectionMemory&, const SelectionMemory&) = default;
};

/// What one gesture changed in one tree.
struct TreeStep {
  struct Node {
    uiox::NodeId node;
    NodeMemory before;
    NodeMemory after;
  };
  std::vector<Node> nodes;
  SelectionMemory selectedBefore;
  SelectionMemory selectedAfter;

  bool Any() const { return !nodes.empty() || selectedBefore != selectedAfter; }
};

/// Remembers a filled tree as it is and finds out what has become of it since: it listens to the tree for what may have
/// changed, and compares that with what it remembers. Nodes must neither come nor go. Nothing is asked of the library.
class TreeMemory : private uiox::TreeObserver {
 public:
  /// The objects selected, and the way to select them again; both may be empty.
  struct Objects {
    std::function<std::set<void*>()> read;
    std::function<void(const std::set<void*>&)> write;
  };

  /// Linear in the number of nodes and cells. `changed` is called at every change; the tree must outlive this.
  TreeMemory(uiox::TreeWidget& tree, Objects objects, std::function<void()> changed);
  ~TreeMemory() override;
  TreeMemory(const TreeMemory&) = delete;
  TreeMemory& operator=(const TreeMemory&) = delete;

  /// What has changed since the last call; remembers it. Linear in what was touched.
  TreeStep Take();
  /// Puts the nodes and the selection of a step back to what they were before it, or to what they were after it.
  void Put(const TreeStep& step, bool before);

 private:
  NodeMemory Read(uiox::NodeId node) const;
  void Write(uiox::NodeId node, const NodeMemory& memory);
  SelectionMemory ReadSelection() const;
  void Note(uiox::NodeId node);

  void NodeChanged(uiox::NodeId node, uiox::NodeChanges changes) override;
  void CellChanged(uiox::CellPlace cell) override;
  void ControlChanged(uiox::CellPlace cell, uiox::ControlId control) override;
  void SelectionChanged() override;

  uiox::TreeWidget& tree_;
  Objects objects_;
  std::function<void()> changed_;
  std::vector<NodeMemory> nodes_;  // by id
  SelectionMemory selection_;
  std::unordered_set<uiox::NodeId> touched_;
};

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_WINDOW_TREEMEMORY_H
