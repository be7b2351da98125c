/// \file
/// Kinds of electronic parts.
#ifndef OXECAD_VIEWER_TREES_PARTKINDS_H
#define OXECAD_VIEWER_TREES_PARTKINDS_H

#include <cstddef>
#include <string_view>

namespace oxviewer {

/// The number of kinds; the last one takes all parts that no other does.
std::size_t PartKindCount();
/// What a kind is called ("Resistors").
const char* PartKindName(std::size_t kind);
/// The kind that a reference tells by its prefix, whatever the case of its letters.
std::size_t PartKindOf(std::string_view reference);

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_TREES_PARTKINDS_H
