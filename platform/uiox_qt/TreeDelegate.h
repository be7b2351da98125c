/// \file
/// Draws the rows of a tree.
#ifndef OXECAD_UIOX_QT_TREEDELEGATE_H
#define OXECAD_UIOX_QT_TREEDELEGATE_H

#include <QStyledItemDelegate>

namespace uiox_qt {

class CheckGesture;
class TreeModel;

/// Draws check box, image and label of a node, and labels and check buttons of cells, each with the style's own parts.
/// All rows are equally high.
class TreeDelegate final : public QStyledItemDelegate {
 public:
  /// Boxes that a gesture covers are drawn as they will be.
  TreeDelegate(const TreeModel& model, const CheckGesture& check, QObject* parent = nullptr);

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  /// Checks are the view's matter.
  bool editorEvent(QEvent*, QAbstractItemModel*, const QStyleOptionViewItem&, const QModelIndex&) override;

  /// A tooltip with what an item says in words, and for what does not fit into its column.
  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override;

  /// Where the check box or the check button is in an item's rectangle; empty when there is none.
  QRect CheckRect(const QRect& item, const QModelIndex& index, const QWidget* view) const;

 private:
  /// The parts of an item from left to right.
  struct Parts {
    QRect check;
    QRect image;
    QRect text;
  };
  Parts LayOut(const QRect& item, const QModelIndex& index, const QWidget* view) const;
  void PaintCheck(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index, QRect rect) const;
  void PaintText(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index, QRect rect) const;

  const TreeModel& model_;
  const CheckGesture& check_;
};

}  // namespace uiox_qt

#endif
