#include <viewer/window/FilterLine.h>
#include <viewer/window/TreePanel.h>

#include <QHBoxLayout>
#include <QItemSelection>
#include <QItemSelectionModel>
#include <QVBoxLayout>

#include <utility>

#include <uiox/Device.h>
#include <uiox/TreeWidget.h>
#include <uiox_qt/Markup.h>
#include <uiox_qt/Text.h>
#include <uiox_qt/TreeModel.h>
#include <uiox_qt/TreeView.h>

namespace oxviewer {

TreePanel::TreePanel(uiox_qt::TreeView& view, const QString& placeholder, QWidget* parent)
    : QWidget(parent), view_(&view), top_(new QHBoxLayout), filter_(new FilterLine(placeholder)) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(4, 4, 4, 4);
  layout->setSpacing(4);
  layout->addLayout(top_);
  layout->addWidget(view_, 1);
  view_->setAccessibleName(uiox_qt::FromWide(view_->Tree()->Owner().Label()));
  view_->show();
  top_->addWidget(filter_, 1);
  connect(filter_, &FilterLine::Changed, this, [this] { Refilter(); });
  connect(filter_, &FilterLine::Left, view_, [this] { view_->setFocus(Qt::OtherFocusReason); });
  view_->SetSearch([this](const QString& text) { filter_->Begin(text); });
}

TreePanel::~TreePanel() {
  if (!view_) return;
  view_->SetSearch({});
  view_->SetFilter({});
  view_->hide();
  view_->setParent(nullptr);
}

void TreePanel::SetFilterAction(std::function<void(const TextMatcher&)> action) { action_ = std::move(action); }

void TreePanel::SetNodeTest(std::function<bool(const std::string&, const TextMatcher&)> test) {
  nodeTest_ = std::move(test);
}

void TreePanel::SetNarrowed(bool narrowed) {
  narrowed_ = narrowed;
  Refilter();
}

void TreePanel::Refilter() {
  const TextMatcher matcher = filter_->Matcher();
  if (!view_ || !matcher.Error().isEmpty()) return;
  if (action_) return action_(matcher);
  if (matcher.IsEmpty() && !narrowed_) return view_->SetFilter({});
  if (nodeTest_) {
    view_->SetFilter([this, matcher](const uiox::TreeStore& store, uiox::NodeId node) {
      return nodeTest_(store.Name(node), matcher);
    });
    return;
  }
  const bool markup = view_->Model().ColumnAt(0).markup;
  view_->SetFilter([matcher, markup](const uiox::TreeStore& store, uiox::NodeId node) {
    const std::wstring label = store.Label(node);
    return markup ? matcher.Matches(uiox_qt::PlainText(uiox_qt::FromWide(label))) : matcher.MatchesWide(label);
  });
}

void TreePanel::SelectNodes(const std::vector<std::string>& nodes, bool extend) {
  if (!view_ || !view_->Tree()) return;
  const uiox::TreeWidget* tree = view_->Tree();
  QItemSelection selection;
  uiox::NodeId first = uiox::kNoNode;
  for (const std::string& name : nodes) {
    const uiox::NodeId node = tree->Store().Find(name);
    if (node == uiox::kNoNode) continue;
    if (first == uiox::kNoNode) first = node;
    const QModelIndex index = view_->Model().IndexOf(node);
    selection.select(index, index.sibling(index.row(), view_->Model().columnCount() - 1));
  }
  if (first != uiox::kNoNode) view_->ShowNode(first);
  view_->selectionModel()->select(
      selection,
      (extend ? QItemSelectionModel::Select : QItemSelectionModel::ClearAndSelect) | QItemSelectionModel::Rows);
}

}  // namespace oxviewer
