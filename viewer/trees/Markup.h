/// \file
/// Texts in a tree's markup.
#ifndef OXECAD_VIEWER_TREES_MARKUP_H
#define OXECAD_VIEWER_TREES_MARKUP_H

#include <string>
#include <string_view>

namespace oxviewer {

/// Markup that reads as the given text: '&', '<', '>' and '"' become entities.
std::wstring EscapedMarkup(std::wstring_view text);

/// The text that a person reads: tags are left out, a line break is a blank, entities are characters (the named ones of
/// XML, "nbsp", and numeric ones). A '<' that begins no tag and a '&' that begins no entity stay. Linear.
std::wstring TextOfMarkup(std::wstring_view markup);

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_TREES_MARKUP_H
