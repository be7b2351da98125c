#include <uiox/detail/wire/Handlers.h>

#include <uiox/detail/NodeTable.h>

namespace uiox::wire {

using oxecad_ui::toolkit::kKeepSize;
using oxecad_ui::toolkit::NodeTypeRecord;
using oxecad_ui::toolkit::Operation;

namespace {

Status AnswerPair(const Call& call, int first, int second) {
  if (call.positional[0].word == 0 || call.positional[1].word == 0) return kNoPlace;
  Answer<int>(call.positional[0], first);
  Answer<int>(call.positional[1], second);
  return kOk;
}

}  // namespace

Status MoveAndResize(Widget& widget, const Call& call) {
  const int width = call.positional[2].Int();
  const int height = call.positional[3].Int();
  if ((width < 0 && width != kKeepSize) || (height < 0 && height != kKeepSize)) return kRefused;
  widget.MoveAndResize(call.positional[0].Int(), call.positional[1].Int(), width, height);
  return kOk;
}

Status GetSize(Widget& widget, const Call& call) {
  const Rect rect = Suite::Get().GeometryOnScreen(widget);
  return AnswerPair(call, rect.width, rect.height);
}

Status GetPosition(Widget& widget, const Call& call) {
  const Rect rect = Suite::Get().GeometryOnScreen(widget);
  return AnswerPair(call, rect.x, rect.y);
}

Status UpdateLayout(Widget& widget) {
  if (widget.Class() != WidgetClass::Dialog && widget.Class() != WidgetClass::Panel) return kWrongComponent;
  widget.Owner().UpdateLayout();
  return kOk;
}

Status SelectText(Widget& widget, const Call& call) {
  if (widget.Class() != WidgetClass::InputPanel && widget.Class() != WidgetClass::OptionMenu) return kWrongComponent;
  if (call.positional[0].Int() < 0) return kRefused;
  widget.SelectText(call.positional[0].UInt(), call.positional[1].UInt());
  return kOk;
}

Status DefineNodeType(const Call& call) {
  const auto* record = call.positional[0].Out<const NodeTypeRecord>();
  if (!record || !record->name) return kRefused;
  NodeTypes& types = Suite::Get().Types();
  const auto text = [](const char* name) { return name ? std::string_view(name) : std::string_view(); };
  if (!types.Define(record->name, text(record->image), text(record->expandedImage))) return kRefused;
  Suite::Get().Tell(&SuiteObserver::NodeTypeDefined, types.Intern(record->name));
  return kOk;
}

Status NodeTypeExists(const Call& call) {
  if (!call.positional[0].Text()) return kRefused;
  if (call.positional[1].word == 0) return kNoPlace;
  Answer<int>(call.positional[1], Suite::Get().Types().IsDefined(call.positional[0].Text()) ? 1 : 0);
  return kOk;
}

int Operate(Widget& widget, const Call& call) {
  switch (static_cast<Operation>(call.code)) {
    case Operation::MoveAndResize:
      return MoveAndResize(widget, call);
    case Operation::GetSize:
      return GetSize(widget, call);
    case Operation::GetPosition:
      return GetPosition(widget, call);
    case Operation::UpdateLayout:
      return UpdateLayout(widget);
    case Operation::SelectText:
      return SelectText(widget, call);
    default:
      return widget.AsTree() ? OperateOnTree(*widget.AsTree(), call) : kWrongComponent;
  }
}

int OperateOnTree(TreeWidget& tree, const Call& call) {
  switch (static_cast<Operation>(call.code)) {
    case Operation::AddNode:
    case Operation::AddNodeBefore:
      return AddNode(tree, call);
    case Operation::InsertNode:
      return InsertNode(tree, call);
    case Operation::DeleteNode:
      return DeleteNode(tree, call);
    case Operation::MoveNode:
      return MoveNode(tree, call);
    case Operation::ChangeNode:
      return ChangeNode(tree, call);
    case Operation::QueryNode:
      return QueryNode(tree, call);
    case Operation::ExpandNode:
      return ExpandNode(tree, call);
    case Operation::CollapseNode:
      return CollapseNode(tree, call);
    case Operation::CreateControl:
      return CreateControl(tree, call);
    case Operation::DestroyControl:
      return DestroyControl(tree, call);
    case Operation::DefineNodeType:
      return DefineNodeType(call);
    case Operation::NodeTypeExists:
      return NodeTypeExists(call);
    case Operation::SetCell:
      return SetCell(tree, call);
    case Operation::GetCell:
      return GetCell(tree, call);
    case Operation::SetCellControl:
      return SetCellControl(tree, call);
    case Operation::GetCellControl:
      return GetCellControl(tree, call);
    case Operation::SetNode:
      return SetNode(tree, call);
    case Operation::GetNode:
      return GetNode(tree, call);
    case Operation::InquireNode:
      return InquireNode(tree, call);
    default:
      return kBadList;
  }
}

}  // namespace uiox::wire
