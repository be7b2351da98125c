// Natural order of labels: the library's comparator, the C library's strverscmp, Qt's collator in numeric mode, and a
// hand-written loop as the floor. Random pairs, and neighbours in sort order, which share long beginnings.
#include <benchmark/benchmark.h>
#include <string.h>

#include <QCollator>
#include <QString>
#include <algorithm>

#include "bench/Labels.h"
#include "uicomps/tree/Comparators.h"
#include "uicomps/tree/NaturalOrder.h"

namespace {

using oxecad_ui::CAlphaNumericWStringComparator;

constexpr std::size_t kLabels = 4096;

/// Pairs stand side by side: 0 and 1, 1 and 2, ...
std::vector<std::wstring> Labels(bool neighbours) {
  std::vector<std::wstring> labels = oxecad_bench::NetLabels(kLabels);
  if (neighbours) {
    const CAlphaNumericWStringComparator order;
    std::sort(labels.begin(), labels.end(),
              [&](const std::wstring& a, const std::wstring& b) { return order.Compare(a, b); });
  }
  return labels;
}

template <class Text, class Compare>
void Measure(benchmark::State& state, const std::vector<Text>& labels, Compare compare) {
  std::size_t index = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(compare(labels[index], labels[index + 1]));
    index = (index + 1) & (kLabels - 1);
    if (index + 1 == kLabels) index = 0;
  }
  state.SetItemsProcessed(state.iterations());
}

void Comparator(benchmark::State& state) {
  const CAlphaNumericWStringComparator comparator;
  const oxecad_ui::CComparator<std::wstring>* order = &comparator;
  benchmark::DoNotOptimize(order);
  Measure(state, Labels(state.range(0) != 0),
          [&](const std::wstring& a, const std::wstring& b) { return order->Compare(a, b); });
}

/// As a caller would write it, out of line.
[[gnu::noinline]] bool Floor(const wchar_t* a, const wchar_t* b) { return oxecad_ui::IsNaturallyBefore<true>(a, b); }

void HandWritten(benchmark::State& state) {
  Measure(state, Labels(state.range(0) != 0),
          [](const std::wstring& a, const std::wstring& b) { return Floor(a.c_str(), b.c_str()); });
}

void Strverscmp(benchmark::State& state) {
  Measure(state, oxecad_bench::Narrow(Labels(state.range(0) != 0)),
          [](const std::string& a, const std::string& b) { return strverscmp(a.c_str(), b.c_str()); });
}

void Collator(benchmark::State& state) {
  QCollator collator(QLocale::c());
  collator.setNumericMode(true);
  collator.setCaseSensitivity(Qt::CaseInsensitive);
  std::vector<QString> labels;
  for (const std::wstring& label : Labels(state.range(0) != 0)) labels.push_back(QString::fromStdWString(label));
  Measure(state, labels, [&](const QString& a, const QString& b) { return collator.compare(a, b); });
}

BENCHMARK(HandWritten)->ArgName("neighbours")->Arg(0)->Arg(1);
BENCHMARK(Comparator)->ArgName("neighbours")->Arg(0)->Arg(1);
BENCHMARK(Strverscmp)->ArgName("neighbours")->Arg(0)->Arg(1);
BENCHMARK(Collator)->ArgName("neighbours")->Arg(0)->Arg(1);

}  // namespace
