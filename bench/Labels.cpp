#include "bench/Labels.h"

#include <algorithm>
#include <random>

namespace oxecad_bench {

namespace {

std::wstring NetLabel(std::size_t number, std::mt19937& random) {
  const auto pick = [&](unsigned choices) { return static_cast<unsigned>(random() % choices); };
  const std::wstring digits = std::to_wstring(number);
  static const wchar_t* const kSheets[] = {L"/cpu", L"/cpu/ddr", L"/power", L"/io/usb", L"/io/ethernet"};
  static const wchar_t* const kRails[] = {L"VCC3V3_", L"VDD1V8_", L"GND_", L"VBUS_"};
  static const wchar_t* const kBeyondAscii[] = {L"Mess\u00fcberwachung_", L"\u03a9_SENSE_", L"\u96fb\u6e90_"};
  switch (pick(20)) {
    case 0:
      return kBeyondAscii[pick(3)] + digits;
    case 1:
    case 2:
    case 3:
    case 4:
      return L"N$" + digits;
    case 5:
    case 6:
    case 7:
      return L"DDR_DQ" + digits;
    case 8:
    case 9:
    case 10:
    case 11:
    case 12:
      return L"Net-(R" + digits + L"-Pad" + std::to_wstring(1 + pick(8)) + L")";
    case 13:
    case 14:
    case 15:
      return std::wstring(kSheets[pick(5)]) + L"/" + kRails[pick(4)] + digits;
    default:
      return std::wstring(kSheets[pick(5)]) + L"/A" + digits + (pick(2) != 0 ? L"_P" : L"_N");
  }
}

}  // namespace

std::vector<std::wstring> NetLabels(std::size_t count, unsigned seed) {
  std::mt19937 random(seed);
  std::vector<std::wstring> labels;
  labels.reserve(count);
  for (std::size_t number = 0; number < count; ++number) labels.push_back(NetLabel(number, random));
  // The standard's own shuffle is free to differ between libraries.
  for (std::size_t last = count; last > 1; --last) std::swap(labels[last - 1], labels[random() % last]);
  return labels;
}

std::vector<std::string> Narrow(const std::vector<std::wstring>& labels) {
  std::vector<std::string> narrow;
  narrow.reserve(labels.size());
  for (const std::wstring& label : labels) {
    std::string& text = narrow.emplace_back();
    for (const wchar_t unit : label) text += unit < 0x80 ? static_cast<char>(unit) : '?';
  }
  return narrow;
}

}  // namespace oxecad_bench
