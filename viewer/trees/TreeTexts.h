/// \file
/// The words that the trees themselves put into their labels.
#ifndef OXECAD_VIEWER_TREES_TREETEXTS_H
#define OXECAD_VIEWER_TREES_TREETEXTS_H

#include <viewer/trees/Panels.h>

#include <string>

namespace oxviewer {

/// Gives the trees' words in another language from now on; an empty function: in English, as at first. Trees that are
/// filled already stay as they are.
void SetTreeTexts(TranslateText translate);

/// One of those words in the language in force.
std::string TreeText(const char* text);
std::wstring WideTreeText(const char* text);

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_TREES_TREETEXTS_H
