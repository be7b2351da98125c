/// \file
/// What kind of part a reference names.
#ifndef OXECAD_VIEWER_TREES_REFERENCEPREFIX_H
#define OXECAD_VIEWER_TREES_REFERENCEPREFIX_H

#include <string_view>

namespace oxviewer {

/// The part of a reference in front of its number: "R" of "R105", "TP" of "TP?", "REF" of "REF**". Empty when there is
/// none. It is a part of `reference` and as good as that.
std::string_view ReferencePrefix(std::string_view reference);

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_TREES_REFERENCEPREFIX_H
