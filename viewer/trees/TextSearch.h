/// \file
/// Looking for a text as a person types it.
#ifndef OXECAD_VIEWER_TREES_TEXTSEARCH_H
#define OXECAD_VIEWER_TREES_TEXTSEARCH_H

#include <functional>
#include <string>
#include <string_view>
#include <utility>

namespace oxviewer {

/// Whether `text` holds `part`, ASCII letters in any case. The empty part is in every text.
bool HoldsText(std::string_view text, std::string_view part);

/// Whether a text (UTF-8) is one of those looked for.
using TextTest = std::function<bool(std::string_view)>;
/// Looks for texts that hold `part`.
inline TextTest HoldingText(std::string part) {
  return [wanted = std::move(part)](std::string_view text) { return HoldsText(text, wanted); };
}

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_TREES_TEXTSEARCH_H
