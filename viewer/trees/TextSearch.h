/// \file
/// Looking for a text as a person types it.
#ifndef OXECAD_VIEWER_TREES_TEXTSEARCH_H
#define OXECAD_VIEWER_TREES_TEXTSEARCH_H

#include <string_view>

namespace oxviewer {

/// Whether `text` holds `part`, ASCII letters in any case. The empty part is in every text.
bool HoldsText(std::string_view text, std::string_view part);

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_TREES_TEXTSEARCH_H
