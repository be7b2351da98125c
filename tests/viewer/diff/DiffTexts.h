#ifndef OXECAD_TESTS_VIEWER_DIFF_DIFFTEXTS_H
#define OXECAD_TESTS_VIEWER_DIFF_DIFFTEXTS_H

#include <viewer/board/BoardReader.h>
#include <viewer/diff/BoardDiff.h>

#include <string>

namespace oxviewer::testing {

/// The order of the library's trees.
NameOrder EcadOrder();

/// A board of two copper layers and the given sections; a refusal fails the test.
Board ReadSections(const std::string& sections);

/// The comparison of two boards that differ in these sections.
BoardDiff Compare(const std::string& sectionsOfA, const std::string& sectionsOfB);

/// A section in one line: "-name" only in A, "+name" only in B, "name(findings)" changed, "=count" equal.
std::string Drawn(const SectionDiff& section);
/// "a>b" for each pair.
std::string Drawn(const std::vector<RenamedNet>& renamed);
/// Everything.
std::string Drawn(const BoardDiff& diff);

}  // namespace oxviewer::testing

#endif  // OXECAD_TESTS_VIEWER_DIFF_DIFFTEXTS_H
