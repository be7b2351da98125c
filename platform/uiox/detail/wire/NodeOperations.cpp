#include <uiox/detail/NodeTable.h>
#include <uiox/detail/wire/Handlers.h>

namespace uiox::wire {

using oxecad_ui::toolkit::NodeAttribute;
using oxecad_ui::toolkit::NodeOption;
using oxecad_ui::toolkit::Operation;

NodeId FindParent(const TreeWidget& tree, Slot slot) {
  return slot.Text() && slot.Text()[0] != 0 ? FindNode(tree, slot) : kTop;
}

namespace {

/// False for a sibling that is named but is none.
bool FindSibling(const TreeWidget& tree, Slot slot, NodeId& sibling) {
  sibling = kNoNode;
  if (!slot.Text()) return true;
  sibling = FindNode(tree, slot);
  return sibling != kNoNode;
}

/// The part of a new node that options give.
void ReadOptions(const Call& call, NewNode& node) {
  for (const Option& option : call) {
    switch (static_cast<NodeOption>(option.code)) {
      case NodeOption::SecondText:
        node.second_text = WideOf(option.value);
        break;
      case NodeOption::Type:
        node.type = TypeOf(option.value);
        break;
      case NodeOption::FirstInt:
        node.first_int = option.value.Int();
        break;
      case NodeOption::Expanded:
        node.expanded = option.value.Int();
        break;
      case NodeOption::ThirdInt:
        node.third_int = option.value.Int();
        break;
      case NodeOption::UserData:
        node.user_data = option.value.Pointer();
        break;
    }
  }
}

}  // namespace

Status AddNode(TreeWidget& tree, const Call& call) {
  const bool before_sibling = call.code == static_cast<int>(Operation::AddNodeBefore);
  NewNode node;
  node.name = TextOf(call.positional[0]);
  node.label = WideOf(call.positional[1]);
  const NodeId parent = FindParent(tree, call.positional[2]);
  NodeId sibling = kNoNode;
  if (parent == kNoNode) return kUnknownNode;
  if (before_sibling && !FindSibling(tree, call.positional[3], sibling)) return kUnknownNode;
  node.type = TypeOf(call.positional[before_sibling ? 4 : 3]);
  ReadOptions(call, node);
  return tree.Store().Add(node, parent, sibling) == kNoNode ? kRefused : kOk;
}

Status InsertNode(TreeWidget& tree, const Call& call) {
  NewNode node;
  node.name = TextOf(call.positional[1]);
  NodeId sibling = kNoNode;
  if (!FindSibling(tree, call.positional[0], sibling)) return kUnknownNode;
  NodeId parent = sibling != kNoNode ? tree.Store().Parent(sibling) : kTop;
  bool check_sensitive = true;
  unsigned check_state = 0;
  bool mixed = false;
  for (const Option& option : call) {
    switch (static_cast<NodeAttribute>(option.code)) {
      case NodeAttribute::Label:
        node.label = WideOf(option.value);
        break;
      case NodeAttribute::FirstInt:
        node.first_int = option.value.Int();
        break;
      case NodeAttribute::Expanded:
        node.expanded = option.value.Int();
        break;
      case NodeAttribute::SecondText:
        node.second_text = WideOf(option.value);
        break;
      case NodeAttribute::CheckState:
        check_state = option.value.UInt();
        break;
      case NodeAttribute::PartlyChecked:
        mixed = option.value.Int() != 0;
        break;
      case NodeAttribute::UserData:
        node.user_data = option.value.Pointer();
        break;
      case NodeAttribute::Type:
        node.type = TypeOf(option.value);
        break;
      case NodeAttribute::Parent:
        parent = FindParent(tree, option.value);
        break;
      case NodeAttribute::ThirdInt:
        node.third_int = option.value.Int();
        break;
      case NodeAttribute::CheckSensitive:
        check_sensitive = option.value.Int() != 0;
        break;
      case NodeAttribute::Children:
        return kRefused;
    }
  }
  if (parent == kNoNode) return kUnknownNode;
  const NodeId added = tree.Store().Add(node, parent, sibling);
  if (added == kNoNode) return kRefused;
  if (check_state != 0) tree.Store().SetCheckState(added, check_state);
  if (mixed) tree.Store().SetPartlyChecked(added, true);
  if (!check_sensitive) tree.Store().SetCheckSensitive(added, false);
  return kOk;
}

Status DeleteNode(TreeWidget& tree, const Call& call) {
  const NodeId node = FindNode(tree, call.positional[0]);
  if (node == kNoNode) return kUnknownNode;
  tree.Store().Remove(node);
  return kOk;
}

Status MoveNode(TreeWidget& tree, const Call& call) {
  const NodeId node = FindNode(tree, call.positional[0]);
  const NodeId parent = FindParent(tree, call.positional[1]);
  NodeId sibling = kNoNode;
  if (node == kNoNode || parent == kNoNode || !FindSibling(tree, call.positional[2], sibling)) return kUnknownNode;
  return tree.Store().Move(node, parent, sibling) ? kOk : kRefused;
}

Status ExpandNode(TreeWidget& tree, const Call& call) {
  const NodeId node = FindNode(tree, call.positional[0]);
  if (node == kNoNode) return kUnknownNode;
  const int how = call.positional[1].Int();
  if (how != 0 && how != 1) return kRefused;
  if (how == 1) {
    tree.Store().SetBranchExpanded(node, true);
  } else if (tree.Store().Expanded(node) == 0) {
    tree.Store().SetExpanded(node, 1);
  }
  return kOk;
}

Status CollapseNode(TreeWidget& tree, const Call& call) {
  const NodeId node = FindNode(tree, call.positional[0]);
  if (node == kNoNode) return kUnknownNode;
  tree.Store().SetBranchExpanded(node, false);
  return kOk;
}

}  // namespace uiox::wire
