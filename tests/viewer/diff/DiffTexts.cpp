#include <gtest/gtest.h>
#include <oxecadutils/StringConversion.h>
#include <tests/viewer/diff/DiffTexts.h>
#include <uicomps/tree/Comparators.h>

namespace oxviewer::testing {

NameOrder EcadOrder() {
  return {[](const std::string& name) { return oxecadutils::Utf8ToWideStr(name); },
          [](const std::wstring& a, const std::wstring& b) {
            return oxecad_ui::CAlphaNumericWStringEcadComparator().Compare(a, b);
          }};
}

Board ReadSections(const std::string& sections) {
  const std::string layers = sections.find("(layers (") == std::string::npos
                                 ? "(layers (0 \"F.Cu\" signal) (31 \"B.Cu\" signal) (44 \"Edge.Cuts\" user))"
                                 : "";
  Result<Board> result = ReadBoardText("(kicad_pcb (version 20211014) " + layers + sections + ")", "test");
  if (result) return std::move(*result);
  ADD_FAILURE() << result.error().ToLine();
  return {};
}

BoardDiff Compare(const std::string& sectionsOfA, const std::string& sectionsOfB) {
  return CompareBoards(ReadSections(sectionsOfA), ReadSections(sectionsOfB), EcadOrder());
}

std::string Drawn(const SectionDiff& section) {
  std::string line;
  for (const Unmatched& entry : section.onlyA) line += '-' + entry.name + ' ';
  for (const Unmatched& entry : section.onlyB) line += '+' + entry.name + ' ';
  for (const Matched& pair : section.changed) {
    line += pair.name + '(';
    for (const Finding finding : pair.findings) line += (line.back() == '(' ? "" : " ") + std::string(NameOf(finding));
    line += ") ";
  }
  return line + '=' + std::to_string(section.equal.size());
}

std::string Drawn(const std::vector<RenamedNet>& renamed) {
  std::string line;
  for (const RenamedNet& pair : renamed) line += (line.empty() ? "" : " ") + pair.a.name + '>' + pair.b.name;
  return line;
}

std::string Drawn(const BoardDiff& diff) {
  return "layers " + Drawn(diff.layers) + "\ncomponents " + Drawn(diff.components) + "\nnets " + Drawn(diff.nets) +
         "\nrenamed " + Drawn(diff.renamed);
}

}  // namespace oxviewer::testing
