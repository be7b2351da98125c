#include <viewer/window/TreePanel.h>

#include <QHBoxLayout>
#include <QItemSelection>
#include <QItemSelectionModel>
#include <QLineEdit>
#include <QVBoxLayout>

#include <uiox/TreeWidget.h>
#include <uiox_qt/Markup.h>
#include <uiox_qt/TreeModel.h>
#include <uiox_qt/TreeView.h>

namespace oxviewer {

TreePanel::TreePanel(uiox_qt::TreeView& view, const QString& placeholder, QWidget* parent)
    : QWidget(parent), view_(view), top_(new QHBoxLayout), filter_(new QLineEdit) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(4, 4, 4, 4);
  layout->setSpacing(4);
  layout->addLayout(top_);
  layout->addWidget(&view_, 1);
  filter_->setPlaceholderText(placeholder);
  filter_->setClearButtonEnabled(true);
  top_->addWidget(filter_, 1);
  connect(filter_, &QLineEdit::textChanged, this, [this] { Refilter(); });
  reset_ = connect(&view_.Model(), &QAbstractItemModel::modelReset, this, [this] {
    if (!filter_->text().isEmpty() && !action_) Refilter();
  });
}

// The view goes with the other child widgets, after this part of the panel, and its model is reset then.
TreePanel::~TreePanel() { disconnect(reset_); }

void TreePanel::SetFilterAction(std::function<void(const QString&)> action) { action_ = std::move(action); }

void TreePanel::SetLeafTest(std::function<bool(const std::string&, const QString&)> test) {
  leafTest_ = std::move(test);
}

void TreePanel::Refilter() {
  if (action_) return action_(filter_->text());
  FilterBelow({}, filter_->text());
}

bool TreePanel::FilterBelow(const QModelIndex& parent, const QString& text) {
  const uiox_qt::TreeModel& model = view_.Model();
  bool any = false;
  for (int row = 0; row < model.rowCount(parent); ++row) {
    const QModelIndex index = model.index(row, 0, parent);
    bool shown = false;
    if (model.hasChildren(index)) {
      shown = FilterBelow(index, text);
    } else if (leafTest_) {
      shown = leafTest_(index.data(uiox_qt::TreeModel::NameRole).toString().toStdString(), text);
    } else {
      shown = index.data(Qt::DisplayRole).toString().contains(text, Qt::CaseInsensitive);
    }
    view_.setRowHidden(row, parent, !shown);
    any = any || shown;
  }
  return any;
}

void TreePanel::SelectNodes(const std::vector<std::string>& nodes, bool extend) {
  const uiox::TreeWidget* tree = view_.Tree();
  if (!tree) return;
  QItemSelection selection;
  uiox::NodeId first = uiox::kNoNode;
  for (const std::string& name : nodes) {
    const uiox::NodeId node = tree->Store().Find(name);
    if (node == uiox::kNoNode) continue;
    if (first == uiox::kNoNode) first = node;
    const QModelIndex index = view_.Model().IndexOf(node);
    selection.select(index, index.sibling(index.row(), view_.Model().columnCount() - 1));
  }
  if (first != uiox::kNoNode) view_.ShowNode(first);
  view_.selectionModel()->select(
      selection,
      (extend ? QItemSelectionModel::Select : QItemSelectionModel::ClearAndSelect) | QItemSelectionModel::Rows);
}

}  // namespace oxviewer
