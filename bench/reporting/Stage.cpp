#include "bench/reporting/Stage.h"

#include <oxecadutils/StringConversion.h>

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

GroupedNets::GroupedNets(std::size_t groupCount, std::size_t leaves) : groups(groupCount), nets(groupCount * leaves) {
  for (std::size_t net = 0; net < nets.names.size(); ++net) {
    nets.names[net] = GroupName(GroupOf(net)).append("/").append(oxecadutils::WideStrToUtf8(nets.labels[net]));
  }
}

std::size_t NodesOnStage() { return uiox::Suite::Get().FindDevice("bench")->FindTree("tree")->Store().Size(); }

void SetStage() {
  uiox::Suite::Get().Reset();
  uiox::Suite::Get().ObtainTree("bench", "tree", {"a", "b", "overlap", "showMode", "dimOverlap"});
}

}  // namespace oxecad_bench
