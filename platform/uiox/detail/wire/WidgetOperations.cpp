#include <uiox/detail/CodeIndex.h>
#include <uiox/detail/NodeTable.h>
#include <uiox/detail/wire/Handlers.h>

#include <array>
#include <utility>

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

Status DefineNodeType(TreeWidget&, const Call& call) {
  const auto* record = call.positional[0].Out<const NodeTypeRecord>();
  if (!record || !record->name) return kRefused;
  NodeTypes& types = Suite::Get().Types();
  const auto text = [](const char* name) { return name ? std::string_view(name) : std::string_view(); };
  if (!types.Define(record->name, text(record->image), text(record->expandedImage))) return kRefused;
  Suite::Get().Tell(&SuiteObserver::NodeTypeDefined, types.Intern(record->name));
  return kOk;
}

Status NodeTypeExists(TreeWidget&, const Call& call) {
  if (!call.positional[0].Text()) return kRefused;
  if (call.positional[1].word == 0) return kNoPlace;
  Answer<int>(call.positional[1], Suite::Get().Types().IsDefined(call.positional[0].Text()) ? 1 : 0);
  return kOk;
}

namespace {

using TreeHandler = Status (*)(TreeWidget&, const Call&);

/// What trees do, by the number of the operation's row; null for what they do not.
constexpr auto kTreeHandlers = [] {
  constexpr std::pair<Operation, TreeHandler> kHandlers[] = {
      {Operation::AddNode, AddNode},
      {Operation::AddNodeBefore, AddNode},
      {Operation::DeleteNode, DeleteNode},
      {Operation::MoveNode, MoveNode},
      {Operation::ChangeNode, ChangeNode},
      {Operation::QueryNode, QueryNode},
      {Operation::ExpandNode, ExpandNode},
      {Operation::CollapseNode, CollapseNode},
      {Operation::CreateControl, CreateControl},
      {Operation::DestroyControl, DestroyControl},
      {Operation::DefineNodeType, DefineNodeType},
      {Operation::SetCell, SetCell},
      {Operation::GetCell, GetCell},
      {Operation::SetCellControl, SetCellControl},
      {Operation::GetCellControl, GetCellControl},
      {Operation::SetNode, SetNode},
      {Operation::GetNode, GetNode},
      {Operation::InquireNode, InquireNode},
      {Operation::NodeTypeExists, NodeTypeExists},
      {Operation::InsertNode, InsertNode},
  };
  constexpr const detail::GroupIndex& kIndex = detail::kGroups[static_cast<std::size_t>(CodeGroup::Operation)];
  std::array<TreeHandler, std::size(detail::kOperations) + 1> by_number{};
  for (const auto& [operation, handler] : kHandlers) by_number[kIndex.NumberOf(static_cast<int>(operation))] = handler;
  return by_number;
}();

int OperateOnAny(Widget& widget, const Call& call) {
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
      return kBadList;
  }
}

}  // namespace

int Operate(Widget& widget, const Call& call) {
  const TreeHandler handle = kTreeHandlers[detail::IndexOf(CodeGroup::Operation).NumberOf(call.code)];
  if (!handle) return OperateOnAny(widget, call);
  return widget.Class() == WidgetClass::Tree ? handle(static_cast<TreeWidget&>(widget), call) : kWrongComponent;
}

}  // namespace uiox::wire
