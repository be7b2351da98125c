#include <viewer/diff/DiffReport.h>

#include <nlohmann/json.hpp>
#include <utility>

namespace oxviewer {

namespace {

using Json = nlohmann::ordered_json;

Json Names(const std::vector<Unmatched>& list) {
  Json names = Json::array();
  for (const Unmatched& entry : list) names.push_back(entry.name);
  return names;
}

Json Section(const SectionDiff& section) {
  Json changed = Json::array();
  for (const Matched& pair : section.changed) {
    Json findings = Json::array();
    for (const Finding finding : pair.findings) findings.push_back(NameOf(finding));
    changed.push_back({{"name", pair.name}, {"findings", std::move(findings)}});
  }
  Json json;
  json["onlyA"] = Names(section.onlyA);
  json["onlyB"] = Names(section.onlyB);
  json["changed"] = std::move(changed);
  json["equal"] = section.equal.size();
  return json;
}

}  // namespace

std::string ReportText(const BoardDiff& diff, const std::string& nameA, const std::string& nameB) {
  Json report;
  report["a"] = nameA;
  report["b"] = nameB;
  report["equal"] = diff.Equal();
  report["layers"] = Section(diff.layers);
  report["components"] = Section(diff.components);
  report["nets"] = Section(diff.nets);
  Json& renamed = report["nets"]["renamed"] = Json::array();
  for (const RenamedNet& pair : diff.renamed) renamed.push_back({{"a", pair.a.name}, {"b", pair.b.name}});
  return report.dump(2, ' ', false, Json::error_handler_t::replace) + '\n';
}

}  // namespace oxviewer
