#include <uiox/detail/Embedded.h>

namespace uiox::detail {

namespace {

constexpr std::string_view kBalloon = R"({
  "arrangement": "column",
  "properties": { "shape": "balloon" },
  "components": [
    { "name": "body", "class": "Panel", "arrangement": "row", "components": [
      { "name": "icon", "class": "Icon" },
      { "name": "message", "class": "Message" } ] },
    { "name": "buttons", "class": "Panel", "arrangement": "row", "components": [
      { "name": "abort", "class": "PushButton", "label": "Abort", "shown": false },
      { "name": "retry", "class": "PushButton", "label": "Retry", "shown": false },
      { "name": "ignore", "class": "PushButton", "label": "Ignore", "shown": false },
      { "name": "yes", "class": "PushButton", "label": "Yes", "shown": false },
      { "name": "no", "class": "PushButton", "label": "No", "shown": false },
      { "name": "ok", "class": "PushButton", "label": "OK", "shown": false },
      { "name": "confirm", "class": "PushButton", "label": "Confirm", "shown": false },
      { "name": "cancel", "class": "PushButton", "label": "Cancel", "shown": false } ] } ]
})";

constexpr std::string_view kRename = R"({
  "title": "Rename",
  "arrangement": "column",
  "focus": "Name_Text",
  "defaultButton": "OK",
  "components": [
    { "name": "Name_Label", "class": "Label", "label": "Name:" },
    { "name": "Name_Text", "class": "InputPanel", "width": 280 },
    { "name": "Buttons", "class": "Panel", "arrangement": "row", "components": [
      { "name": "OK", "class": "PushButton", "label": "OK" },
      { "name": "Cancel", "class": "PushButton", "label": "Cancel" },
      { "name": "Help", "class": "PushButton", "label": "Help" } ] } ]
})";

}  // namespace

std::string_view EmbeddedResource(std::string_view name) {
  if (name == "ui_balloon_message_dialog.res") return kBalloon;
  if (name == "RenameDlg") return kRename;
  return {};
}

}  // namespace uiox::detail
