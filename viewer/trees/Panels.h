/// \file
/// The devices of the viewer's trees.
#ifndef OXECAD_VIEWER_TREES_PANELS_H
#define OXECAD_VIEWER_TREES_PANELS_H

#include <functional>
#include <string>
#include <string_view>

namespace oxviewer {

/// Devices, each with the component of which the class behind it takes care.
constexpr const char* kLayersPanel = "oxviewer.layers";
constexpr const char* kNetsPanel = "oxviewer.nets";
constexpr const char* kComponentsPanel = "oxviewer.components";
constexpr const char* kObjectsPanel = "oxviewer.objects";
constexpr const char* kComparePanel = "oxviewer.compare";
constexpr const char* kSettingsPanel = "oxviewer.settings";

/// Gives a text of a description in another language.
using TranslateText = std::function<std::string(const std::string&)>;

/// Makes the viewer's devices where they are missing, from the descriptions that are part of the program, with their
/// titles and labels translated. Throws std::logic_error, which says why, when a description is wrong.
void CreatePanels(const TranslateText& translate = {});

/// Ends the viewer's devices, so that they can be made anew. Nothing may work on them any more.
void RemovePanels();

/// A resource of the program by its file name ("layers.json"); empty when there is none.
std::string_view EmbeddedResource(std::string_view name);

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_TREES_PANELS_H
