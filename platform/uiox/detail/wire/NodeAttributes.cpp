#include <uiox/detail/NodeTable.h>
#include <uiox/detail/wire/PlainValues.h>

namespace uiox::wire {

using oxecad_ui::toolkit::NodeAttribute;
using oxecad_ui::toolkit::NodeOption;

namespace {

void Set(TreeStore& store, NodeId node, NodeAttribute attribute, Slot value) {
  switch (attribute) {
    case NodeAttribute::Label:
      return store.SetLabel(node, WideOf(value));
    case NodeAttribute::FirstInt:
      return store.SetFirstInt(node, value.Int());
    case NodeAttribute::Expanded:
      return store.SetExpanded(node, value.Int());
    case NodeAttribute::SecondText:
      return store.SetSecondText(node, WideOf(value));
    case NodeAttribute::CheckState:
      return store.SetCheckState(node, value.UInt());
    case NodeAttribute::PartlyChecked:
      return store.SetPartlyChecked(node, value.Int() != 0);
    case NodeAttribute::UserData:
      return store.SetUserData(node, value.Pointer());
    case NodeAttribute::Type:
      return store.SetType(node, TypeOf(value));
    case NodeAttribute::ThirdInt:
      return store.SetThirdInt(node, value.Int());
    case NodeAttribute::CheckSensitive:
      return store.SetCheckSensitive(node, value.Int() != 0);
    case NodeAttribute::Parent:
    case NodeAttribute::Children:
      break;  // refused before
  }
}

const char* ParentName(const TreeStore& store, NodeId node) {
  const NodeId parent = store.Parent(node);
  return parent == kTop ? "" : store.Name(parent);
}

void Inquire(TreeStore& store, NodeId node, const Option& option) {
  const Slot place = option.value;
  const auto attribute = static_cast<NodeAttribute>(option.code);
  switch (attribute) {
    case NodeAttribute::Label:
      return Answer<const wchar_t*>(place, store.Table().LentLabel(node));
    case NodeAttribute::SecondText:
      return Answer<const wchar_t*>(place, store.Table().LentSecondText(node));
    case NodeAttribute::Type:
      return Answer<const char*>(place, Suite::Get().Types().Name(store.Type(node)));
    case NodeAttribute::Parent:
      return Answer<const char*>(place, ParentName(store, node));
    case NodeAttribute::Children:
      if (option.array.word != 0) Answer<const char* const*>(option.array, store.Table().LentChildren(node));
      return Answer<int>(place, static_cast<int>(store.ChildCount(node)));
    default:
      return AnswerPlain(store, node, AttributeRow(attribute), place);
  }
}

}  // namespace

Status SetNode(TreeWidget& tree, const Call& call) {
  const NodeId node = FindNode(tree, call.positional[0]);
  if (node == kNoNode) return kUnknownNode;
  for (const Option& option : call) {
    const auto attribute = static_cast<NodeAttribute>(option.code);
    if (attribute == NodeAttribute::Parent || attribute == NodeAttribute::Children) return kRefused;
  }
  for (const Option& option : call) Set(tree.Store(), node, static_cast<NodeAttribute>(option.code), option.value);
  return kOk;
}

Status InquireNode(TreeWidget& tree, const Call& call) {
  const NodeId node = FindNode(tree, call.positional[0]);
  if (node == kNoNode) return kUnknownNode;
  if (!HasPlaces(call)) return kNoPlace;
  for (const Option& option : call) Inquire(tree.Store(), node, option);
  return kOk;
}

Status ChangeNode(TreeWidget& tree, const Call& call) {
  const NodeId node = FindNode(tree, call.positional[0]);
  if (node == kNoNode) return kUnknownNode;
  TreeStore& store = tree.Store();
  for (const Option& option : call) {
    switch (static_cast<NodeOption>(option.code)) {
      case NodeOption::SecondText:
        store.SetSecondText(node, WideOf(option.value));
        break;
      case NodeOption::Type:
        store.SetType(node, TypeOf(option.value));
        break;
      case NodeOption::FirstInt:
        store.SetFirstInt(node, option.value.Int());
        break;
      case NodeOption::Expanded:
        store.SetExpanded(node, option.value.Int());
        break;
      case NodeOption::ThirdInt:
        store.SetThirdInt(node, option.value.Int());
        break;
      case NodeOption::UserData:
        store.SetUserData(node, option.value.Pointer());
        break;
    }
  }
  return kOk;
}

Status QueryNode(TreeWidget& tree, const Call& call) {
  const NodeId node = FindNode(tree, call.positional[0]);
  if (node == kNoNode) return kUnknownNode;
  if (!HasPlaces(call)) return kNoPlace;
  TreeStore& store = tree.Store();
  for (const Option& option : call) {
    switch (static_cast<NodeOption>(option.code)) {
      case NodeOption::SecondText:
        Answer<const wchar_t*>(option.value, store.Table().LentSecondText(node));
        break;
      case NodeOption::Type:
        Answer<const char*>(option.value, Suite::Get().Types().Name(store.Type(node)));
        break;
      case NodeOption::FirstInt:
        Answer<int>(option.value, store.FirstInt(node));
        break;
      case NodeOption::Expanded:
        Answer<int>(option.value, store.Expanded(node));
        break;
      case NodeOption::ThirdInt:
        Answer<int>(option.value, store.ThirdInt(node));
        break;
      case NodeOption::UserData:
        Answer<void*>(option.value, store.UserData(node));
        break;
    }
  }
  return kOk;
}

}  // namespace uiox::wire
