#include <uiox/detail/JsonReader.h>
#include <uiox/detail/ResourceLoader.h>
#include <uiox/detail/WidgetDetails.h>

#include <algorithm>

namespace uiox::detail {

namespace {

constexpr int kDeepest = 32;
constexpr int kFarthest = 1'000'000;
constexpr int kMostColumns = 1000;
constexpr int kMostItems = 100'000;
/// Of objects and arrays: two for each panel, and what stands in the innermost.
constexpr std::size_t kDeepestValue = 4 * kDeepest;

}  // namespace

bool ResourceLoader::Load(std::string_view json, std::string& why) {
  try {
    ReadDevice(ParseJson(json, kDeepestValue));
    return true;
  } catch (const BadDescription& bad) {
    why = bad.what();
  }
  return false;
}

void ResourceLoader::ReadDevice(const JsonValue& description) {
  const JsonReader reader(description, "");
  reader.AllowOnly({"title", "arrangement", "x", "y", "width", "height", "background", "properties", "focus",
                    "defaultButton", "components"});
  device_.SetLabel(reader.Wide("title"));
  ReadArrangement(reader, device_);
  ReadPlace(reader, device_);
  reader.ForEachText("properties",
                     [&](const std::string& key, const std::string& text) { device_.Need().properties[key] = text; });
  if (reader.Has("background")) {
    device_.Need().background = static_cast<std::uint32_t>(reader.Number("background", 0, 0, 0xFFFFFF));
  }
  ReadComponents(reader, device_, 0);
  if (!device_.SetFocus(reader.Text("focus", ""))) reader.Fail("focus", "there is no such component");
  if (!device_.SetDefaultButton(reader.Text("defaultButton", ""))) {
    reader.Fail("defaultButton", "there is no such component");
  }
}

void ResourceLoader::ReadArrangement(const JsonReader& reader, Widget& panel) {
  const std::string name = reader.Text("arrangement", "column");
  if (name == "row") {
    panel.Need().arrangement = Arrangement::Row;
  } else if (name == "stack") {
    panel.Need().arrangement = Arrangement::Stack;
  } else if (name != "column") {
    reader.Fail("arrangement", "\"column\", \"row\" or \"stack\" is expected");
  }
}

void ResourceLoader::ReadPlace(const JsonReader& reader, Widget& widget) {
  Rect& geometry = widget.geometry_;
  geometry.x = reader.Number("x", 0, -kFarthest, kFarthest);
  geometry.y = reader.Number("y", 0, -kFarthest, kFarthest);
  geometry.width = reader.Number("width", 0, 0, kFarthest);
  geometry.height = reader.Number("height", 0, 0, kFarthest);
  Widget::Details& details = widget.Need();
  details.fixed_place = reader.Has("x") || reader.Has("y");
  details.fixed_width = reader.Has("width");
  details.fixed_height = reader.Has("height");
}

void ResourceLoader::ReadComponents(const JsonReader& reader, Widget& panel, int depth) {
  if (depth > kDeepest) reader.Fail("components", "the panels are nested too deep");
  reader.ForEach("components", [&](const JsonValue& element, const std::string& where) {
    ReadComponent(JsonReader(element, where), panel, depth);
  });
}

void ResourceLoader::ReadComponent(const JsonReader& reader, Widget& panel, int depth) {
  const std::string name = reader.Text("name", "");
  if (name.empty()) reader.Fail("name", "a name is missing");
  WidgetClass widget_class{};
  const std::string class_name = reader.Text("class", "");
  if (!ParseClassName(class_name, widget_class) || widget_class == WidgetClass::Dialog) {
    reader.Fail("class", "there is no class \"" + class_name + "\"");
  }
  Widget* widget = widget_class == WidgetClass::Tree ? device_.AddTree(name, ReadTreeStyle(reader), &panel)
                                                     : device_.Add(widget_class, name, &panel);
  if (!widget) reader.Fail("name", "the name \"" + name + "\" is in use");
  ReadCommon(reader, *widget);
  ReadByClass(reader, *widget, depth);
}

void ResourceLoader::ReadCommon(const JsonReader& reader, Widget& widget) {
  ReadPlace(reader, widget);
  widget.shown_ = reader.Flag("shown", true);
  widget.sensitive_ = reader.Flag("sensitive", true);
  Widget::Details& details = widget.Need();
  if (widget.Class() != WidgetClass::Tree) details.label = reader.Wide("label");
  details.background = static_cast<std::uint32_t>(reader.Number("background", 0x00FFFFFF, 0, 0xFFFFFF));
  reader.ForEachText("properties",
                     [&](const std::string& key, const std::string& text) { details.properties[key] = text; });
}

#define OXECAD_UIOX_COMMON_KEYS \
  "name", "class", "label", "shown", "sensitive", "x", "y", "width", "height", "background", "properties"

void ResourceLoader::ReadByClass(const JsonReader& reader, Widget& widget, int depth) {
  switch (widget.Class()) {
    case WidgetClass::Panel:
      reader.AllowOnly({OXECAD_UIOX_COMMON_KEYS, "arrangement", "components"});
      ReadArrangement(reader, widget);
      ReadComponents(reader, widget, depth + 1);
      break;
    case WidgetClass::Tree:
      reader.AllowOnly({OXECAD_UIOX_COMMON_KEYS, "columns", "checkBoxes", "selection", "rootShown", "headerShown"});
      break;
    case WidgetClass::InputPanel:
      reader.AllowOnly({OXECAD_UIOX_COMMON_KEYS, "text"});
      widget.Need().text = reader.Wide("text");
      break;
    case WidgetClass::OptionMenu:
      reader.AllowOnly({OXECAD_UIOX_COMMON_KEYS, "text", "items", "selected", "visibleItems"});
      widget.Need().text = reader.Wide("text");
      ReadItems(reader, widget);
      break;
    case WidgetClass::CheckButton:
      reader.AllowOnly({OXECAD_UIOX_COMMON_KEYS, "checked"});
      widget.check_state_ = reader.Flag("checked", false) ? 1 : 0;
      break;
    case WidgetClass::Icon:
      reader.AllowOnly({OXECAD_UIOX_COMMON_KEYS, "images"});
      reader.ForEach("images", [&](const JsonValue& image, const std::string& where) {
        if (image.kind != JsonValue::kText) throw BadDescription(where, "a text is expected");
        widget.Need().images.push_back(image.text);
      });
      break;
    case WidgetClass::Dialog:
    case WidgetClass::PushButton:
    case WidgetClass::Label:
    case WidgetClass::Message:
      reader.AllowOnly({OXECAD_UIOX_COMMON_KEYS});
      break;
  }
}

#undef OXECAD_UIOX_COMMON_KEYS

void ResourceLoader::ReadItems(const JsonReader& reader, Widget& menu) {
  std::vector<Item> items;
  reader.ForEach("items", [&](const JsonValue& element, const std::string& where) {
    Item item;
    if (element.kind == JsonValue::kText) {
      item.name = element.text;
    } else {
      const JsonReader entry(element, where);
      entry.AllowOnly({"name", "image", "label"});
      item = {entry.Text("name", ""), entry.Text("image", ""), entry.Wide("label")};
    }
    items.push_back(std::move(item));
  });
  menu.SetItems(std::move(items));
  menu.Need().visible_items = reader.Number("visibleItems", 0, 0, kMostItems);
  if (reader.Has("selected") && !menu.SetSelectedItem(reader.Text("selected", ""))) {
    reader.Fail("selected", "there is no such item");
  }
}

TreeStyle ResourceLoader::ReadTreeStyle(const JsonReader& reader) {
  TreeStyle style;
  if (reader.Has("label")) style.label_column = ReadColumn(reader.Object("label"), false);
  reader.ForEach("columns", [&](const JsonValue& element, const std::string& where) {
    const JsonReader entry(element, where);
    Column column = ReadColumn(entry, true);
    const bool used = std::any_of(style.columns.begin(), style.columns.end(),
                                  [&](const Column& other) { return other.name == column.name; });
    if (used) entry.Fail("name", "the name \"" + column.name + "\" is in use");
    style.columns.push_back(std::move(column));
    if (style.columns.size() > kMostColumns) reader.Fail("columns", "there are too many columns");
  });
  style.check_boxes = reader.Flag("checkBoxes", false);
  style.root_shown = reader.Flag("rootShown", true);
  style.header_shown = reader.Flag("headerShown", false);
  const std::string selection = reader.Text("selection", "multiple");
  if (selection == "none") {
    style.selection = SelectionMode::None;
  } else if (selection == "single") {
    style.selection = SelectionMode::Single;
  } else if (selection != "multiple") {
    reader.Fail("selection", "\"none\", \"single\" or \"multiple\" is expected");
  }
  return style;
}

Column ResourceLoader::ReadColumn(const JsonReader& reader, bool named) {
  reader.AllowOnly({"name", "title", "markup", "width"});
  Column column;
  column.name = reader.Text("name", "");
  if (named && column.name.empty()) reader.Fail("name", "a name is missing");
  column.title = reader.Wide("title");
  column.markup = reader.Flag("markup", true);
  column.width = reader.Number("width", 0, 0, kFarthest);
  return column;
}

}  // namespace uiox::detail
