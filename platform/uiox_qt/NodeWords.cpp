#include <uiox_qt/NodeWords.h>

#include <uiox_qt/ImageWords.h>
#include <uiox_qt/Markup.h>
#include <uiox_qt/TreeModel.h>

#include <QCoreApplication>
#include <QStringList>

#include <vector>

namespace uiox_qt {
namespace {

using uiox::NodeId;

QString Words(const char* text) { return QCoreApplication::translate("uiox_qt::NodeWords", text); }

QString CheckWord(int state) {
  switch (state) {
    case Qt::Checked:
      return Words(QT_TRANSLATE_NOOP("uiox_qt::NodeWords", "checked"));
    case Qt::PartiallyChecked:
      return Words(QT_TRANSLATE_NOOP("uiox_qt::NodeWords", "partly checked"));
    default:
      return Words(QT_TRANSLATE_NOOP("uiox_qt::NodeWords", "not checked"));
  }
}

/// "12 below", and where there are check boxes how many of them are checked.
QString CountWords(const TreeModel& model, NodeId node) {
  const uiox::TreeStore& store = model.Tree()->Store();
  std::vector<NodeId> children;
  store.AppendChildren(node, children);
  if (children.empty()) return {};
  if (!model.Tree()->Style().check_boxes)
    return Words(QT_TRANSLATE_NOOP("uiox_qt::NodeWords", "%1 below")).arg(children.size());
  std::size_t checked = 0;
  for (const NodeId child : children) checked += store.CheckState(child) == 1 ? 1 : 0;
  return Words(QT_TRANSLATE_NOOP("uiox_qt::NodeWords", "%1 below, %2 of them checked"))
      .arg(children.size())
      .arg(checked);
}

int LevelOf(const TreeModel& model, NodeId node) {
  const uiox::TreeStore& store = model.Tree()->Store();
  int level = model.Tree()->Style().root_shown ? 1 : 0;
  for (NodeId up = store.Parent(node); up != uiox::kTop; up = store.Parent(up)) ++level;
  return level;
}

}  // namespace

QString ItemWords(const TreeModel& model, const QModelIndex& index) {
  if (!index.isValid() || !model.Tree() || model.IsSuspended()) return {};
  if (index.column() > 0) {
    const QVariant check = index.data(Qt::CheckStateRole);
    if (check.isValid()) return CheckWord(check.toInt());
  }
  return LabelWords(index.data(TreeModel::MarkupRole).toString(), model.ColumnAt(index.column()).markup);
}

QString ItemFacts(const TreeModel& model, const QModelIndex& index) {
  if (!index.isValid() || !model.Tree() || model.IsSuspended()) return {};
  if (index.column() > 0) return model.headerData(index.column(), Qt::Horizontal, Qt::DisplayRole).toString();
  const NodeId node = model.NodeOf(index);
  QStringList facts{ImageWords(model.ImageName(node))};
  const QVariant check = index.data(Qt::CheckStateRole);
  if (check.isValid()) facts << CheckWord(check.toInt());
  facts << CountWords(model, node);
  facts << Words(QT_TRANSLATE_NOOP("uiox_qt::NodeWords", "level %1")).arg(LevelOf(model, node));
  if (model.hasChildren(index)) {
    facts << (model.Tree()->Store().Expanded(node) != 0 ? Words(QT_TRANSLATE_NOOP("uiox_qt::NodeWords", "expanded"))
                                                        : Words(QT_TRANSLATE_NOOP("uiox_qt::NodeWords", "collapsed")));
  }
  facts.removeAll(QString());
  return facts.join(QStringLiteral(", "));
}

QString ItemTip(const TreeModel& model, const QModelIndex& index, bool clipped) {
  if (!index.isValid() || !model.Tree() || model.IsSuspended()) return {};
  const QString name = ItemWords(model, index);
  if (index.column() > 0) {
    const bool pictured = model.ColumnAt(index.column()).markup || index.data(Qt::CheckStateRole).isValid();
    if (name.isEmpty() || !(clipped || pictured)) return {};
    return pictured ? QStringLiteral("%1: %2").arg(ItemFacts(model, index), name) : name;
  }
  const NodeId node = model.NodeOf(index);
  QStringList lines;
  const QString image = ImageWords(model.ImageName(node));
  const auto color = ColorOfSquare(model.ImageName(node));
  if (!image.isEmpty()) lines << (color ? QStringLiteral("%1 (%2)").arg(image, QColor(*color).name()) : image);
  const QString counts = CountWords(model, node);
  if (!counts.isEmpty()) lines << counts;
  if (lines.isEmpty() && !clipped) return {};
  lines.prepend(name);
  return lines.join(u'\n');
}

}  // namespace uiox_qt
