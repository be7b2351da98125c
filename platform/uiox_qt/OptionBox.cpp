#include <uiox_qt/OptionBox.h>

#include <uiox_qt/Icons.h>
#include <uiox_qt/Text.h>

#include <QAbstractItemView>
#include <QSignalBlocker>
#include <QStylePainter>
#include <QWheelEvent>

#include <algorithm>

namespace uiox_qt {
namespace {

constexpr int kNameRole = Qt::UserRole;

QString ItemText(const uiox::Item& item) { return item.label.empty() ? FromName(item.name) : FromWide(item.label); }

bool HasItems(const QComboBox& box, const std::vector<uiox::Item>& items) {
  if (box.count() != static_cast<int>(items.size())) return false;
  int row = 0;
  for (const uiox::Item& item : items) {
    if (OptionName(box, row) != item.name || box.itemText(row) != ItemText(item)) return false;
    ++row;
  }
  return true;
}

}  // namespace

QSize OptionBox::minimumSizeHint() const {
  const QSize hint = QComboBox::minimumSizeHint();
  return {hint.width(), std::min(hint.height(), fontMetrics().height() + 4)};
}

void OptionBox::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  QStyleOptionComboBox option;
  initStyleOption(&option);
  if (image_only_ && !option.currentIcon.isNull()) option.currentText.clear();
  painter.drawComplexControl(QStyle::CC_ComboBox, option);
  painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

void OptionBox::wheelEvent(QWheelEvent* event) { event->ignore(); }

void FillOptionBox(QComboBox& box, const uiox::Widget& menu) {
  const QSignalBlocker quiet(box);
  if (!HasItems(box, menu.Items())) {
    box.clear();
    for (const uiox::Item& item : menu.Items()) box.addItem(ImageIcon(item.image), ItemText(item), FromName(item.name));
  }
  if (menu.VisibleItems() > 0) box.setMaxVisibleItems(menu.VisibleItems());
  int chosen = -1;
  for (int row = 0; row < box.count(); ++row) {
    if (OptionName(box, row) == menu.SelectedItem()) chosen = row;
  }
  box.setCurrentIndex(chosen);
  box.view()->setMinimumWidth(box.view()->sizeHintForColumn(0) + 2 * box.view()->frameWidth() + kIconSide);
}

std::string OptionName(const QComboBox& box, int row) { return box.itemData(row, kNameRole).toString().toStdString(); }

}  // namespace uiox_qt
