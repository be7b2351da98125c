#include <uiox/detail/NodeTable.h>
#include <uiox/detail/wire/Handlers.h>

namespace uiox::wire {

using oxecad_ui::toolkit::ComponentAttribute;

namespace {

/// A node's name, or nothing to answer.
bool AnswerNode(const TreeWidget& tree, NodeId node, Slot place, bool write) {
  if (node == kNoNode) return false;
  if (write) Answer<const char*>(place, tree.Store().Name(node));
  return true;
}

void AnswerList(const Option& option, const char* const* names, int count) {
  if (option.array.word != 0) Answer<const char* const*>(option.array, names);
  Answer<int>(option.value, count);
}

/// Attributes that only a tree has. The first walk over a call asks whether there is an answer, the second writes it.
Status RetrieveOfTree(TreeWidget& tree, const Option& option, bool write) {
  const Slot place = option.value;
  TreeStore& store = tree.Store();
  switch (static_cast<ComponentAttribute>(option.code)) {
    case ComponentAttribute::ActivatedNode:
      return AnswerNode(tree, tree.ActivatedNode(), place, write) ? kOk : kNoAnswer;
    case ComponentAttribute::ToggledNode:
      return AnswerNode(tree, tree.ToggledNode(), place, write) ? kOk : kNoAnswer;
    case ComponentAttribute::CheckedNode:
      return AnswerNode(tree, tree.CheckedNode(), place, write) ? kOk : kNoAnswer;
    case ComponentAttribute::RootNode:
      if (write && !AnswerNode(tree, store.Root(), place, true)) Answer<const char*>(place, nullptr);
      return kOk;
    case ComponentAttribute::Names:
      if (write) AnswerList(option, store.Table().LentSelection(), static_cast<int>(store.SelectionSize()));
      return kOk;
    case ComponentAttribute::SelectionKind:
      if (write) Answer<int>(place, tree.SelectionKind());
      return kOk;
    case ComponentAttribute::SelectedCellNode:
      if (write && !AnswerNode(tree, tree.SelectedCell().node, place, true)) Answer<const char*>(place, "");
      return kOk;
    case ComponentAttribute::SelectedCellColumn:
      if (write) {
        const CellPlace cell = tree.SelectedCell();
        Answer<const char*>(place, cell ? tree.Style().columns[cell.column].name.c_str() : "");
      }
      return kOk;
    default:
      return kWrongComponent;
  }
}

bool HasText(const Widget& widget) {
  return widget.Class() == WidgetClass::InputPanel || widget.Class() == WidgetClass::OptionMenu;
}

/// Attributes of some classes.
Status RetrieveOfOthers(Widget& widget, const Option& option, bool write) {
  const Slot place = option.value;
  switch (static_cast<ComponentAttribute>(option.code)) {
    case ComponentAttribute::Text:
      if (!HasText(widget)) return kWrongComponent;
      if (write) Answer<const wchar_t*>(place, widget.Text().c_str());
      return kOk;
    case ComponentAttribute::Focus:
      if (widget.Class() != WidgetClass::Dialog) return kWrongComponent;
      if (write) Answer<const char*>(place, widget.Owner().Focus().c_str());
      return kOk;
    case ComponentAttribute::DefaultButton:
      if (widget.Class() != WidgetClass::Dialog) return kWrongComponent;
      if (write) Answer<const char*>(place, widget.Owner().DefaultButton().c_str());
      return kOk;
    case ComponentAttribute::TextMode:
      if (widget.Class() != WidgetClass::Message && widget.Class() != WidgetClass::Label) return kWrongComponent;
      if (write) Answer<int>(place, widget.TextMode());
      return kOk;
    case ComponentAttribute::Names:
      if (widget.Class() != WidgetClass::Icon) return kWrongComponent;
      if (write) {
        int count = 0;
        const char* const* names = widget.LentNames(Widget::NameList::Images, count);
        AnswerList(option, names, count);
      }
      return kOk;
    default:
      return kWrongComponent;
  }
}

Status RetrieveOne(Widget& widget, const Option& option, bool write) {
  const Slot place = option.value;
  switch (static_cast<ComponentAttribute>(option.code)) {
    case ComponentAttribute::Label:
      if (write) Answer<const wchar_t*>(place, widget.Label().c_str());
      return kOk;
    case ComponentAttribute::Shown:
      if (write) {
        const bool is_device = widget.Class() == WidgetClass::Dialog;
        Answer<int>(place, (is_device ? widget.Owner().OnScreen() : widget.Shown()) ? 1 : 0);
      }
      return kOk;
    case ComponentAttribute::Sensitive:
      if (write) Answer<int>(place, widget.Sensitive() ? 1 : 0);
      return kOk;
    case ComponentAttribute::Redraw:
      if (write) Answer<int>(place, widget.Redraw() ? 1 : 0);
      return kOk;
    case ComponentAttribute::Width:
      if (write) Answer<int>(place, Suite::Get().GeometryOnScreen(widget).width);
      return kOk;
    case ComponentAttribute::Height:
      if (write) Answer<int>(place, Suite::Get().GeometryOnScreen(widget).height);
      return kOk;
    case ComponentAttribute::BackgroundColor:
      if (write) Answer<std::uint32_t>(place, widget.BackgroundColor());
      return kOk;
    case ComponentAttribute::ClassName:
      if (write) Answer<const char*>(place, ClassName(widget.Class()));
      return kOk;
    case ComponentAttribute::BalloonStyle:
      if (write) Answer<std::uintptr_t>(place, widget.BalloonStyle());
      return kOk;
    default:
      return widget.AsTree() ? RetrieveOfTree(*widget.AsTree(), option, write)
                             : RetrieveOfOthers(widget, option, write);
  }
}

}  // namespace

Status Retrieve(Widget& widget, const Call& call) {
  if (!HasPlaces(call)) return kNoPlace;
  for (const Option& option : call) {
    if (const Status status = RetrieveOne(widget, option, false)) return status;
  }
  for (const Option& option : call) RetrieveOne(widget, option, true);
  return kOk;
}

}  // namespace uiox::wire
