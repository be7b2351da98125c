#ifndef OXECAD_VIEWER_DIFF_DIFFREPORT_H
#define OXECAD_VIEWER_DIFF_DIFFREPORT_H

#include <viewer/diff/BoardDiff.h>

#include <string>

namespace oxviewer {

/// The comparison as a JSON text in UTF-8, its keys in a fixed order:
///
///     {"a": nameA, "b": nameB, "equal": bool,
///      "layers": {"onlyA": [name...], "onlyB": [name...],
///                 "changed": [{"name": ..., "findings": [...]}...], "equal": count},
///      "components": {the same}, "nets": {the same, "renamed": [{"a": name, "b": name}...]}}
///
/// Bytes of names that are no UTF-8 become U+FFFD.
std::string ReportText(const BoardDiff& diff, const std::string& nameA, const std::string& nameB);

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_DIFF_DIFFREPORT_H
