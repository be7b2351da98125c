#include <uiox_qt/TreeDelegate.h>

#include <uiox_qt/CheckGesture.h>
#include <uiox_qt/Icons.h>
#include <uiox_qt/LabelPainter.h>
#include <uiox_qt/NodeWords.h>
#include <uiox_qt/TreeModel.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

#include <algorithm>

namespace uiox_qt {
namespace {

/// Between the parts of an item, and at its ends.
constexpr int kGap = 3;
/// Above and below the text.
constexpr int kLeading = 2;

QStyle* StyleOf(const QWidget* view) { return view ? view->style() : QApplication::style(); }

QSize CheckSize(const QWidget* view) {
  QStyleOptionButton option;
  return {StyleOf(view)->pixelMetric(QStyle::PM_IndicatorWidth, &option, view),
          StyleOf(view)->pixelMetric(QStyle::PM_IndicatorHeight, &option, view)};
}

QRect Centered(QSize size, const QRect& rect) {
  return QRect(rect.left() + (rect.width() - size.width()) / 2, rect.top() + (rect.height() - size.height()) / 2,
               size.width(), size.height());
}

}  // namespace

TreeDelegate::TreeDelegate(const TreeModel& model, const CheckGesture& check, QObject* parent)
    : QStyledItemDelegate(parent), model_(model), check_(check) {}

TreeDelegate::Parts TreeDelegate::LayOut(const QRect& item, const QModelIndex& index, const QWidget* view) const {
  Parts parts;
  const bool check = index.data(Qt::CheckStateRole).isValid();
  if (index.column() > 0 && check) {
    parts.check = Centered(CheckSize(view), item);
    return parts;
  }
  int x = item.left() + kGap;
  if (check) {
    const QSize size = CheckSize(view);
    parts.check = Centered(size, QRect(x, item.top(), size.width(), item.height()));
    x += size.width() + kGap;
  }
  if (index.column() == 0 && !model_.ImageName(model_.NodeOf(index)).empty()) {
    parts.image = Centered({kIconSide, kIconSide}, QRect(x, item.top(), kIconSide, item.height()));
    x += kIconSide + kGap;
  }
  parts.text = QRect(x, item.top(), std::max(0, item.left() + item.width() - kGap - x), item.height());
  return parts;
}

QRect TreeDelegate::CheckRect(const QRect& item, const QModelIndex& index, const QWidget* view) const {
  return LayOut(item, index, view).check;
}

void TreeDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
  if (!index.isValid() || !model_.Tree()) return;
  QStyle* style = StyleOf(option.widget);
  style->drawPrimitive(QStyle::PE_PanelItemViewItem, &option, painter, option.widget);
  const Parts parts = LayOut(option.rect, index, option.widget);
  if (parts.check.isValid()) PaintCheck(*painter, option, index, parts.check);
  if (parts.image.isValid()) {
    const QPixmap image =
        ImagePixmap(model_.ImageName(model_.NodeOf(index)), kIconSide, painter->device()->devicePixelRatioF());
    const QRect place = Centered(image.deviceIndependentSize().toSize(), parts.image);
    if (option.state & QStyle::State_Selected) {
      painter->fillRect(place.adjusted(-1, -1, 1, 1), option.palette.color(QPalette::Base));
    }
    painter->drawPixmap(place.topLeft(), image);
  }
  if (parts.text.isValid()) PaintText(*painter, option, index, parts.text);
  if (option.state & QStyle::State_HasFocus) {
    QStyleOptionFocusRect focus;
    focus.QStyleOption::operator=(option);
    focus.state |= QStyle::State_KeyboardFocusChange | QStyle::State_Item;
    focus.backgroundColor = option.palette.color(QPalette::Base);
    style->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, painter, option.widget);
  }
}

void TreeDelegate::PaintCheck(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index,
                              QRect rect) const {
  QStyleOptionViewItem box(option);
  box.rect = rect;
  box.state &= ~(QStyle::State_HasFocus | QStyle::State_On | QStyle::State_Off | QStyle::State_NoChange);
  int state = index.data(Qt::CheckStateRole).toInt();
  bool checked = false;
  if (index.column() == 0 && check_.Shows(model_.NodeOf(index), checked)) state = checked ? Qt::Checked : Qt::Unchecked;
  box.state |= state == Qt::Checked            ? QStyle::State_On
               : state == Qt::PartiallyChecked ? QStyle::State_NoChange
                                               : QStyle::State_Off;
  if (index.column() == 0 && !(index.flags() & Qt::ItemIsUserCheckable)) box.state &= ~QStyle::State_Enabled;
  StyleOf(option.widget)->drawPrimitive(QStyle::PE_IndicatorItemViewItemCheck, &box, &painter, option.widget);
}

void TreeDelegate::PaintText(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index,
                             QRect rect) const {
  const bool selected = option.state & QStyle::State_Selected;
  const QPalette::ColorGroup group = !(option.state & QStyle::State_Enabled) ? QPalette::Disabled
                                     : option.state & QStyle::State_Active   ? QPalette::Normal
                                                                             : QPalette::Inactive;
  LabelStyle style;
  style.font = option.font;
  style.color = option.palette.color(group, selected ? QPalette::HighlightedText : QPalette::Text);
  style.own_colors = !selected;
  if (selected) style.ground = option.palette.color(group, QPalette::Base);
  const QString label = index.data(TreeModel::MarkupRole).toString();
  const bool markup = model_.ColumnAt(index.column()).markup;
  style.center = index.column() > 0 && markup && label.startsWith(u'<');
  PaintLabel(painter, rect, label, markup, style);
}

QSize TreeDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  const int height = std::max(
      {option.fontMetrics.height() + 2 * kLeading, kIconSide + 2 * kLeading, CheckSize(option.widget).height() + 2});
  if (!model_.Tree()) return {0, height};
  const Parts parts = LayOut(QRect(0, 0, 1 << 20, height), index, option.widget);
  if (index.column() > 0 && parts.check.isValid()) return {CheckSize(option.widget).width() + 2 * kGap, height};
  const int text =
      LabelWidth(index.data(TreeModel::MarkupRole).toString(), model_.ColumnAt(index.column()).markup, option.font);
  return {parts.text.left() + text + kGap, height};
}

bool TreeDelegate::editorEvent(QEvent*, QAbstractItemModel*, const QStyleOptionViewItem&, const QModelIndex&) {
  return false;
}

bool TreeDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                             const QModelIndex& index) {
  if (index.isValid() && event->type() == QEvent::ToolTip) {
    const bool clipped = sizeHint(option, index).width() > option.rect.width();
    const QString tip = ItemTip(model_, index, clipped);
    if (!tip.isEmpty()) {
      // As it stands: a name is no markup.
      QToolTip::showText(event->globalPos(),
                         QStringLiteral("<p style='white-space:pre'>%1</p>").arg(tip.toHtmlEscaped()), view,
                         option.rect);
      return true;
    }
  }
  QToolTip::hideText();
  return true;
}

}  // namespace uiox_qt
