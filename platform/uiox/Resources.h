/// \file
/// Resource files: where they are found and what they hold.
#ifndef OXECAD_UIOX_RESOURCES_H
#define OXECAD_UIOX_RESOURCES_H

#include <uiox/Export.h>

#include <string>
#include <string_view>
#include <vector>

namespace uiox {

/// Where resources (device descriptions in JSON, images in PNG) are looked for: in the directories added, in their
/// order; then in those of the environment variable OXECAD_UIOX_PATH (separated by ':'); then among the embedded
/// defaults: "ui_balloon_message_dialog.res" and "RenameDlg".
///
/// A device description:
///
///     { "title": "Nets", "arrangement": "column", "x": 0, "y": 0, "width": 400, "height": 600,
///       "components": [
///         { "name": "filter", "class": "InputPanel", "text": "" },
///         { "name": "buttons", "class": "Panel", "arrangement": "row", "components": [ … ] },
///         { "name": "nets", "class": "Tree", "checkBoxes": true, "selection": "multiple", "rootShown": false,
///           "headerShown": true, "label": { "title": "Net", "markup": false, "width": 200 },
///           "columns": [ { "name": "a", "title": "A", "markup": true, "width": 24 }, … ] } ] }
///
/// Every component has "name" and "class", and may have "label" (text; of a tree the column above), "shown",
/// "sensitive", "x", "y", "width", "height", "background" (0x00BBGGRR as a number), "properties" (texts by key, for
/// fronts); an InputPanel and an OptionMenu "text"; an OptionMenu "items" (names, or { "name", "label", "image" }),
/// "selected" and "visibleItems"; a CheckButton "checked"; an Icon "images". A device may have "focus" and
/// "defaultButton". An unknown key, a value of the wrong kind, a name used twice is an error that says where.
class OXECAD_UIOX_API ResourcePath {
 public:
  /// Adds a directory behind those that are there.
  void Add(std::string_view directory);
  /// Forgets the directories that were added; the environment variable and the embedded defaults stay.
  void Clear();
  /// The bytes of a resource; false when it is nowhere or its name is no plain file name ("..", "/").
  bool Read(std::string_view name, std::string& bytes) const;
  /// Whether the context names a search path; "oxecad" does.
  static bool KnowsContext(std::string_view context);

 private:
  std::vector<std::string> directories_;
};

}  // namespace uiox

#endif
