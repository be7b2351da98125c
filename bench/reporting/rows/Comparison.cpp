// Natural comparison of two labels: the library's comparator, the collator of a GUI library, the C library's function.
#include <string.h>
#include <uicomps/tree/Comparators.h>

#include <algorithm>
#include <memory>

#include "bench/reporting/Peers.h"
#include "bench/reporting/Rows.h"

namespace oxecad_bench {

namespace {

using oxecad_ui::CComparator;

constexpr std::size_t kLabels = 4096;
constexpr std::size_t kRounds = 50;
constexpr std::size_t kOperations = (kLabels - 1) * kRounds;
constexpr int kRepetitions = 15;

bool IsDigit(wchar_t c) { return c >= L'0' && c <= L'9'; }

struct Digits {
  std::int32_t value;
  std::ptrdiff_t zeros;
};

Digits TakeDigits(const wchar_t*& text) {
  const wchar_t* const start = text;
  while (*text == L'0') ++text;
  const std::ptrdiff_t zeros = text - start;
  std::uint32_t value = 0;
  for (; IsDigit(*text); ++text) value = value * 10u + static_cast<std::uint32_t>(*text - L'0');
  return {static_cast<std::int32_t>(value), zeros};
}

std::uint16_t Folded(wchar_t c) { return static_cast<std::uint16_t>(c >= L'a' && c <= L'z' ? c - 32 : c); }

/// The floor: the same order, written by hand for this one case.
[[gnu::noinline]] bool IsBefore(const wchar_t* a, const wchar_t* b) {
  wchar_t before = L'\0';
  for (;;) {
    if (IsDigit(*a) && IsDigit(*b)) {
      const Digits left = TakeDigits(a);
      const Digits right = TakeDigits(b);
      const bool negative = before == L'-';
      if (left.value != right.value) return (left.value < right.value) != negative;
      if (left.zeros != right.zeros) return (left.zeros < right.zeros) != negative;
      before = L'\0';
      continue;
    }
    if (*a != *b) {
      const std::uint16_t left = Folded(*a);
      const std::uint16_t right = Folded(*b);
      if (left != right) return left < right;
    } else if (*a == L'\0') {
      return false;
    }
    before = *a;
    ++a;
    ++b;
  }
}

/// Compares each text with the next one, many times over.
template <class Text, class Compare>
Contender Pairs(std::string name, const std::vector<Text>& texts, const Compare& compare) {
  return {std::move(name), [&texts, compare](Meter& meter) {
            meter.Run([&] {
              for (std::size_t round = 0; round < kRounds; ++round) {
                for (std::size_t index = 1; index < texts.size(); ++index) {
                  const auto order = compare(texts[index - 1], texts[index]);
                  Keep(order);
                }
              }
            });
          }};
}

void CheckFloor(const CComparator<std::wstring>& comparator, const std::vector<std::wstring>& labels) {
  for (std::size_t index = 1; index < labels.size(); ++index) {
    const std::wstring& a = labels[index - 1];
    const std::wstring& b = labels[index];
    Check(comparator.Compare(a, b) == IsBefore(a.c_str(), b.c_str()) &&
              comparator.Compare(b, a) == IsBefore(b.c_str(), a.c_str()),
          "the hand-written comparison has the comparator's order");
  }
}

Figures MeasurePairs(const std::string& workload, const CComparator<std::wstring>& comparator,
                     const std::vector<std::wstring>& labels) {
  CheckFloor(comparator, labels);
  const std::vector<std::string> narrow = Narrow(labels);
  std::vector<QString> texts;
  for (const std::wstring& label : labels) texts.push_back(QString::fromStdWString(label));
  const QCollator collator = NaturalCollator();
  const CComparator<std::wstring>* order = &comparator;
  asm volatile("" : "+r"(order));  // its type is not known any more
  const auto outcomes =
      Race({Pairs("CAlphaNumericWStringComparator", labels,
                  [order](const std::wstring& a, const std::wstring& b) { return order->Compare(a, b); }),
            Pairs("QCollator", texts, [&](const QString& a, const QString& b) { return collator.compare(a, b); }),
            Pairs("hand-written loop", labels,
                  [](const std::wstring& a, const std::wstring& b) { return IsBefore(a.c_str(), b.c_str()); }),
            Pairs("strverscmp", narrow,
                  [](const std::string& a, const std::string& b) { return strverscmp(a.c_str(), b.c_str()); })},
           kOperations, kRepetitions);
  const Figure figure = WithOther(WithFloor(FigureOf(1, workload, outcomes), outcomes[2]), outcomes[3]);
  return {AgainstFloor(figure, 1.1), AgainstPeer(figure, 0.28)};
}

}  // namespace

Figures MeasureComparison(const Settings&) {
  const oxecad_ui::CAlphaNumericWStringComparator comparator;
  std::vector<std::wstring> labels = NetLabels(kLabels);
  Figures figures = MeasurePairs("compare two labels, random pairs", comparator, labels);
  std::sort(labels.begin(), labels.end(),
            [&](const std::wstring& a, const std::wstring& b) { return comparator.Compare(a, b); });
  const Figures neighbours = MeasurePairs("compare two labels, neighbours in sort order", comparator, labels);
  figures.insert(figures.end(), neighbours.begin(), neighbours.end());
  return figures;
}

}  // namespace oxecad_bench
