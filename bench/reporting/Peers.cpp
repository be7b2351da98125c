#include "bench/reporting/Peers.h"

#include <QPixmap>

namespace oxecad_bench {

namespace {

constexpr int kIconSide = 16;

}  // namespace

QCollator NaturalCollator() {
  QCollator collator(QLocale(QLocale::English, QLocale::UnitedStates));
  collator.setNumericMode(true);
  collator.setCaseSensitivity(Qt::CaseInsensitive);
  return collator;
}

QStandardItem* InsertSorted(QStandardItem& parent, const QCollator& collator, const QString& text) {
  const int row = SortedPlace(
      collator, parent.rowCount(), [&](int index) { return parent.child(index)->text(); }, text);
  auto* item = new QStandardItem(text);
  parent.insertRow(row, item);
  return item;
}

QTreeWidgetItem* InsertSorted(QTreeWidgetItem& parent, const QCollator& collator, const QString& text) {
  const int row = SortedPlace(
      collator, parent.childCount(), [&](int index) { return parent.child(index)->text(0); }, text);
  auto* item = new QTreeWidgetItem(QStringList(text));
  parent.insertChild(row, item);
  return item;
}

const QIcon& ColorIcons::Icon(unsigned int color) {
  QIcon& icon = icons_[color];
  if (icon.isNull()) {
    QPixmap pixmap(kIconSide, kIconSide);
    pixmap.fill(QColor(static_cast<int>(color & 0xFF), static_cast<int>(color >> 8 & 0xFF),
                       static_cast<int>(color >> 16 & 0xFF)));
    icon = QIcon(pixmap);
  }
  return icon;
}

void SetColor(QStandardItem& item, unsigned int color, ColorIcons& icons) {
  item.setData(color, kColorRole);
  item.setIcon(icons.Icon(color));
}

void SetColor(QTreeWidgetItem& item, unsigned int color, ColorIcons& icons) {
  item.setData(0, kColorRole, color);
  item.setIcon(0, icons.Icon(color));
}

QStandardItem* AppendItem(QStandardItem& parent, const QString& text) {
  auto* item = new QStandardItem(text);
  parent.appendRow(item);
  return item;
}

QTreeWidgetItem* AppendItem(QTreeWidgetItem& parent, const QString& text) {
  return new QTreeWidgetItem(&parent, QStringList(text));
}

}  // namespace oxecad_bench
