/// \file
/// One gesture over several check boxes.
#ifndef OXECAD_UIOX_QT_CHECKGESTURE_H
#define OXECAD_UIOX_QT_CHECKGESTURE_H

#include <uiox/NodeId.h>
#include <uiox/TreeWidget.h>

#include <vector>

namespace uiox_qt {

/// The boxes that a gesture covers, from the one where it began, and the state that they all get when it ends. Until
/// then the tree knows nothing of it.
class CheckGesture {
 public:
  bool Active() const { return first_ != uiox::kNoNode; }
  uiox::NodeId First() const { return first_; }
  /// Begins at a box, which is toggled with all that the gesture covers.
  void Begin(uiox::NodeId node, bool checked);
  /// Covers these nodes; the first one need not be among them.
  void Cover(std::vector<uiox::NodeId> nodes);
  bool CoversMore() const { return nodes_.size() > 1; }
  void End() { *this = {}; }

  /// Whether a box is shown in the state that it will get; `checked` is that state.
  bool Shows(uiox::NodeId node, bool& checked) const;
  const std::vector<uiox::NodeId>& Nodes() const { return nodes_; }
  bool Checked() const { return checked_; }

 private:
  uiox::NodeId first_ = uiox::kNoNode;
  std::vector<uiox::NodeId> nodes_;  // the first in front
  bool checked_ = false;
};

/// How a tree learns that several boxes were toggled at once.
enum class CheckRule {
  OneByOne,       ///< each box is a toggle of its own
  WithSelection,  ///< a toggle of one selected node is taken for all selected nodes by the tree itself
};

/// Gives the boxes of `nodes` a state as the user would; the first one's state changes. With `WithSelection` the tree
/// gets one notification, during which the nodes are the selection; what was selected is so again afterwards, and no
/// selection is told. Locked boxes stay. The tree may have ended afterwards.
void CheckTogether(uiox::TreeWidget& tree, std::vector<uiox::NodeId> nodes, bool checked, CheckRule rule);

}  // namespace uiox_qt

#endif
