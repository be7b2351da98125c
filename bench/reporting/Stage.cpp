#include "bench/reporting/Stage.h"

namespace oxecad_bench {

namespace {

// Wide strings hold UTF-16 code units.
QString TextOf(const std::wstring& label) {
  QString text;
  text.reserve(static_cast<qsizetype>(label.size()));
  for (const wchar_t unit : label) text += QChar(static_cast<char16_t>(unit));
  return text;
}

}  // namespace

Nets::Nets(std::size_t count) : labels(NetLabels(count)) {
  for (std::size_t number = 0; number < count; ++number) names.push_back("net" + std::to_string(number));
  for (const std::wstring& label : labels) texts.push_back(TextOf(label));
}

std::string GroupName(std::size_t group) { return "g" + std::to_string(group); }

std::string LeafName(std::size_t group, std::size_t leaf) {
  return GroupName(group).append("/l").append(std::to_string(leaf));
}

void SetStage() {
  uiox::Suite::Get().Reset();
  uiox::Suite::Get().ObtainTree("bench", "tree", {"a", "b", "overlap", "showMode", "dimOverlap"});
}

}  // namespace oxecad_bench
