/// \file
/// What people would use instead: Qt's own item classes, used as a Qt programmer would.
#ifndef OXECAD_BENCH_REPORTING_PEERS_H
#define OXECAD_BENCH_REPORTING_PEERS_H

#include <QCollator>
#include <QHash>
#include <QIcon>
#include <QStandardItemModel>
#include <QTreeWidget>

#include "bench/reporting/Stage.h"

namespace oxecad_bench {

/// Numbers by value, letters in any case; the same locale everywhere.
QCollator NaturalCollator();

/// What an item says of itself.
enum ItemRole { kColorRole = Qt::UserRole + 1, kValueRole };

/// The index at which a text belongs among sorted ones; `textAt(index)` gives theirs.
template <class TextAt>
int SortedPlace(const QCollator& collator, int count, const TextAt& textAt, const QString& text) {
  int first = 0;
  while (count > 0) {
    const int half = count / 2;
    if (collator.compare(textAt(first + half), text) < 0) {
      first += half + 1;
      count -= half + 1;
    } else {
      count = half;
    }
  }
  return first;
}

/// Inserts an item among sorted siblings.
QStandardItem* InsertSorted(QStandardItem& parent, const QCollator& collator, const QString& text);
QTreeWidgetItem* InsertSorted(QTreeWidgetItem& parent, const QCollator& collator, const QString& text);

/// The icons of colours.
class ColorIcons {
 public:
  const QIcon& Icon(unsigned int color);

 private:
  QHash<unsigned int, QIcon> icons_;
};

constexpr unsigned int kMixed = 0xFFFFFFFFu;

/// Gives an item a colour, and shows it.
void SetColor(QStandardItem& item, unsigned int color, ColorIcons& icons);
void SetColor(QTreeWidgetItem& item, unsigned int color, ColorIcons& icons);
inline unsigned int ColorOf(const QStandardItem& item) { return item.data(kColorRole).toUInt(); }
inline unsigned int ColorOf(const QTreeWidgetItem& item) { return item.data(0, kColorRole).toUInt(); }

inline int ChildCount(const QStandardItem& item) { return item.rowCount(); }
inline int ChildCount(const QTreeWidgetItem& item) { return item.childCount(); }

/// Gives a colour to an item and all below it.
template <class Item>
void SetBranchColor(Item& item, unsigned int color, ColorIcons& icons) {
  for (int row = 0; row < ChildCount(item); ++row) SetBranchColor(*item.child(row), color, icons);
  SetColor(item, color, icons);
}

/// Sums up the children of an item, and of those above as long as something changes. Stops reading at the first child
/// that differs.
template <class Item>
void SumUpColors(Item* item, ColorIcons& icons) {
  for (; item != nullptr && ChildCount(*item) > 0; item = item->parent()) {
    unsigned int summary = ColorOf(*item->child(0));
    for (int row = 1; row < ChildCount(*item) && summary != kMixed; ++row) {
      if (ColorOf(*item->child(row)) != summary) summary = kMixed;
    }
    if (ColorOf(*item) == summary) return;
    SetColor(*item, summary, icons);
  }
}

QStandardItem* AppendItem(QStandardItem& parent, const QString& text);
QTreeWidgetItem* AppendItem(QTreeWidgetItem& parent, const QString& text);

/// A root with groups and nets below an item, coloured by `colorOf(group)`.
template <class Item>
struct GroupedItems {
  template <class ColorOfGroup>
  GroupedItems(Item& owner, const GroupedNets& grouped, ColorIcons& icons, const ColorOfGroup& colorOf)
      : root(AppendItem(owner, QStringLiteral("Nets"))) {
    for (std::size_t group = 0; group < grouped.groups; ++group) {
      groups.push_back(AppendItem(*root, QStringLiteral("Group")));
      SetColor(*groups.back(), colorOf(group), icons);
    }
    for (std::size_t net = 0; net < grouped.nets.texts.size(); ++net) {
      const std::size_t group = grouped.GroupOf(net);
      nets.push_back(AppendItem(*groups[group], grouped.nets.texts[net]));
      SetColor(*nets.back(), colorOf(group), icons);
    }
    SumUpColors(root, icons);
  }
  Item* root;
  std::vector<Item*> groups;
  std::vector<Item*> nets;
};

}  // namespace oxecad_bench

#endif
