// Sorting records by their labels.
#include <uicomps/tree/Comparators.h>
#include <uicomps/tree/OrderKey.h>

#include <algorithm>

#include "bench/reporting/Numbers.h"
#include "bench/reporting/Peers.h"
#include "bench/reporting/Rows.h"

namespace oxecad_bench {

namespace {

using oxecad_ui::Tree;
using Records = std::vector<Tree::NodeInfo>;

class SortingTree : public Tree {
 public:
  SortingTree() : Tree("bench", "tree") {}
  using Tree::SortChildrenByType;
};

Records RecordsOf(const Nets& nets) {
  Records records(nets.names.size());
  for (std::size_t index = 0; index < records.size(); ++index) {
    records[index].name = nets.names[index];
    records[index].label = nets.labels[index];
    records[index].type = "net";
  }
  return records;
}

/// Sorts places by keys and then the records; what both the peer and the floor do.
template <class Record, class Key, class MakeKey, class IsBefore>
void SortByKeys(std::vector<Record>& records, const MakeKey& makeKey, const IsBefore& isBefore) {
  std::vector<std::pair<Key, std::size_t>> keys;
  keys.reserve(records.size());
  for (std::size_t index = 0; index < records.size(); ++index) keys.emplace_back(makeKey(records[index]), index);
  std::sort(keys.begin(), keys.end(), isBefore);
  std::vector<Record> sorted;
  sorted.reserve(records.size());
  for (const auto& [key, index] : keys) sorted.push_back(std::move(records[index]));
  records.swap(sorted);
}

/// A record as a Qt programmer has it.
struct QtRecord {
  QString name;
  QString label;
  QString type;
  int state = 0;
  bool expanded = false;
};

Contender Peer(const Nets& nets) {
  std::vector<QtRecord> records(nets.names.size());
  for (std::size_t index = 0; index < records.size(); ++index) {
    records[index].name = QString::fromStdString(nets.names[index]);
    records[index].label = nets.texts[index];
    records[index].type = QStringLiteral("net");
  }
  return {"QCollator sort keys", [records = std::move(records)](Meter& meter) {
            std::vector<QtRecord> copy = records;
            const QCollator collator = NaturalCollator();
            collator.compare(copy[0].label, copy[1].label);  // makes it ready
            meter.Run([&] {
              SortByKeys<QtRecord, QCollatorSortKey>(
                  copy, [&](const QtRecord& record) { return collator.sortKey(record.label); },
                  [](const auto& a, const auto& b) { return a.first < b.first; });
            });
          }};
}

Contender Floor(const Records& records) {
  struct Key {
    oxecad_ui::OrderKey bytes;
    const wchar_t* label;
  };
  return {"order keys of 16 bytes", [&records](Meter& meter) {
            Records copy = records;
            meter.Run([&] {
              SortByKeys<Tree::NodeInfo, Key>(
                  copy,
                  [](const Tree::NodeInfo& record) {
                    return Key{oxecad_ui::MakeOrderKey<true>(record.label.c_str()), record.label.c_str()};
                  },
                  [](const auto& a, const auto& b) {
                    return a.first.bytes == b.first.bytes
                               ? oxecad_ui::IsNaturallyBefore<true>(a.first.label, b.first.label)
                               : a.first.bytes < b.first.bytes;
                  });
            });
          }};
}

Contender Ours(const Records& records) {
  return {"SortChildrenByType", [&records](Meter& meter) {
            Records copy = records;
            SortingTree tree;
            meter.Run([&] { tree.SortChildrenByType(copy, Tree::ByLabel); });
            const oxecad_ui::CAlphaNumericWStringComparator order;
            const bool sorted = std::is_sorted(
                copy.begin(), copy.end(),
                [&](const Tree::NodeInfo& a, const Tree::NodeInfo& b) { return order.Compare(a.label, b.label); });
            Check(sorted, "the records are in the comparator's order");
          }};
}

Figure MeasureSize(std::size_t count) {
  const Nets nets(count);
  const Records records = RecordsOf(nets);
  const auto outcomes = Race({Ours(records), Peer(nets), Floor(records)}, count);
  return AgainstPeer(
      WithFloor(FigureOf(2, "sort " + Grouped(count) + " records by label, per record", outcomes), outcomes[2]), 0.5);
}

}  // namespace

Figures MeasureSorting(const Settings& settings) {
  return {MeasureSize(settings.Size(100'000)), MeasureSize(settings.Size(1'000'000))};
}

}  // namespace oxecad_bench
