#include <uiox/Suite.h>
#include <uiox/detail/WidgetDetails.h>

#include <algorithm>
#include <iterator>

namespace uiox {

namespace {

struct NamedClass {
  WidgetClass widget_class;
  const char* name;
};

constexpr NamedClass kClasses[] = {
    {WidgetClass::Dialog, "Dialog"},
    {WidgetClass::Panel, "Panel"},
    {WidgetClass::Tree, "Tree"},
    {WidgetClass::InputPanel, "InputPanel"},
    {WidgetClass::OptionMenu, "OptionMenu"},
    {WidgetClass::PushButton, "PushButton"},
    {WidgetClass::CheckButton, "CheckButton"},
    {WidgetClass::Label, "Label"},
    {WidgetClass::Message, "Message"},
    {WidgetClass::Icon, "Icon"},
};

}  // namespace

const char* ClassName(WidgetClass widget_class) {
  for (const NamedClass& named : kClasses) {
    if (named.widget_class == widget_class) return named.name;
  }
  return "";
}

bool ParseClassName(std::string_view name, WidgetClass& widget_class) {
  const auto* found = std::find_if(std::begin(kClasses), std::end(kClasses),
                                   [&](const NamedClass& named) { return name == named.name; });
  if (found == std::end(kClasses)) return false;
  widget_class = found->widget_class;
  return true;
}

Widget::Widget(Device& device, WidgetClass widget_class, std::string name)
    : device_(device), class_(widget_class), name_(std::move(name)) {}

Widget::~Widget() = default;

TreeWidget* Widget::AsTree() { return class_ == WidgetClass::Tree ? static_cast<TreeWidget*>(this) : nullptr; }

Widget::Details& Widget::Need() {
  if (!details_) details_ = std::make_unique<Details>();
  return *details_;
}

const Widget::Details& Widget::Known() const {
  static const Details kNothing;
  return details_ ? *details_ : kNothing;
}

void Widget::Changed(WidgetChange change) {
  if (control_of_) control_of_->Store().NotifyControl(control_);
  if (device_.announced_) device_.Host().Tell(&SuiteObserver::WidgetChanged, *this, change);
}

// --- Flags -----------------------------------------------------------------------------------------------------------

void Widget::SetShown(bool shown) {
  if (shown_ == shown) return;
  shown_ = shown;
  Changed(WidgetChange::Shown);
}

bool Widget::Visible() const {
  for (const Widget* widget = this; widget != &device_; widget = widget->parent_) {
    if (!widget->shown_) return false;
    if (widget->control_of_)
      return static_cast<bool>(widget->control_of_->Store().PlaceOf(widget->control_)) &&
             widget->control_of_->Visible();
    if (!widget->parent_) return false;
  }
  return device_.OnScreen();
}

void Widget::SetSensitive(bool sensitive) {
  if (sensitive_ == sensitive) return;
  sensitive_ = sensitive;
  Changed(WidgetChange::Sensitive);
}

void Widget::SetRedraw(bool redraw) {
  if (redraw_ == redraw) return;
  redraw_ = redraw;
  Changed(WidgetChange::Redraw);
}

void Widget::SetCheckState(unsigned state) {
  if (check_state_ == state) return;
  check_state_ = static_cast<std::uint8_t>(state);
  Changed(WidgetChange::CheckState);
}

// --- Texts -----------------------------------------------------------------------------------------------------------

const std::wstring& Widget::Label() const { return Known().label; }
const std::wstring& Widget::Text() const { return Known().text; }
Widget::TextRange Widget::SelectedText() const { return Known().selected_text; }
int Widget::TextMode() const { return Known().text_mode; }

void Widget::SetLabel(std::wstring_view label) {
  if (Label() == label) return;
  Need().label = label;
  Changed(WidgetChange::Label);
}

void Widget::SetText(std::wstring_view text) {
  if (Text() == text) return;
  Need().text = text;
  Need().selected_text = {};
  Changed(WidgetChange::Text);
}

void Widget::SelectText(std::uint32_t from, std::uint32_t to) {
  const auto length = static_cast<std::uint32_t>(Text().size());
  const TextRange range{std::min(from, length), std::min(to, length)};
  Need().selected_text = range.from <= range.to ? range : TextRange{range.to, range.from};
  Changed(WidgetChange::SelectedText);
}

void Widget::SetTextMode(int mode) {
  if (TextMode() == mode) return;
  Need().text_mode = mode;
  Changed(WidgetChange::TextMode);
}

// --- Looks -----------------------------------------------------------------------------------------------------------

const std::vector<std::string>& Widget::Images() const { return Known().images; }
std::uint32_t Widget::BackgroundColor() const { return Known().background; }
std::uintptr_t Widget::BalloonStyle() const { return Known().balloon_style; }

void Widget::SetImages(std::vector<std::string> images) {
  if (Images() == images) return;
  Need().images = std::move(images);
  Changed(WidgetChange::Images);
}

void Widget::SetBackgroundColor(std::uint32_t color) {
  if (BackgroundColor() == color) return;
  Need().background = color;
  Changed(WidgetChange::BackgroundColor);
}

void Widget::SetBalloonStyle(std::uintptr_t style) {
  if (BalloonStyle() == style) return;
  Need().balloon_style = style;
  Changed(WidgetChange::BalloonStyle);
}

void Widget::SetGeometry(const Rect& geometry) {
  Details& details = Need();
  details.fixed_place = details.fixed_width = details.fixed_height = true;
  if (geometry_ == geometry) return;
  geometry_ = geometry;
  Changed(WidgetChange::Geometry);
}

void Widget::MoveAndResize(int x, int y, int width, int height) {
  using oxecad_ui::toolkit::kKeepSize;
  Details& details = Need();
  Rect to = geometry_;
  if (x != kKeepSize) to.x = x;
  if (y != kKeepSize) to.y = y;
  if (width != kKeepSize) to.width = width;
  if (height != kKeepSize) to.height = height;
  details.fixed_place = details.fixed_place || x != kKeepSize || y != kKeepSize;
  details.fixed_width = details.fixed_width || width != kKeepSize;
  details.fixed_height = details.fixed_height || height != kKeepSize;
  if (geometry_ == to) return;
  geometry_ = to;
  Changed(WidgetChange::Geometry);
}

// --- Choices ---------------------------------------------------------------------------------------------------------

const std::vector<Item>& Widget::Items() const { return Known().items; }
int Widget::VisibleItems() const { return Known().visible_items; }
const std::string& Widget::SelectedItem() const { return Known().selected_item; }

void Widget::SetItems(std::vector<Item> items) {
  Details& details = Need();
  details.items = std::move(items);
  const bool kept = std::any_of(details.items.begin(), details.items.end(),
                                [&](const Item& item) { return item.name == details.selected_item; });
  if (!kept) details.selected_item = details.items.empty() ? std::string() : details.items.front().name;
  Changed(WidgetChange::Items);
}

void Widget::SetVisibleItems(int count) {
  if (VisibleItems() == count) return;
  Need().visible_items = count;
  Changed(WidgetChange::Items);
}

bool Widget::SetSelectedItem(std::string_view name) {
  if (std::none_of(Items().begin(), Items().end(), [&](const Item& item) { return item.name == name; })) return false;
  if (SelectedItem() == name) return true;
  Need().selected_item = name;
  Changed(WidgetChange::SelectedItem);
  return true;
}

// --- Place -----------------------------------------------------------------------------------------------------------

const std::vector<Widget*>& Widget::Children() const { return Known().children; }
Arrangement Widget::Layout() const { return Known().arrangement; }

const char* const* Widget::LentNames(NameList list, int& count) {
  Details& details = Need();
  std::vector<const char*>& lent = details.lent[static_cast<int>(list)];
  lent.clear();
  if (list == NameList::Images) {
    for (const std::string& image : details.images) lent.push_back(image.c_str());
  } else {
    for (const Item& item : details.items) {
      lent.push_back(list == NameList::ItemNames ? item.name.c_str() : item.image.c_str());
    }
  }
  count = static_cast<int>(lent.size());
  return lent.empty() ? nullptr : lent.data();
}

const std::string* Widget::Property(std::string_view key) const {
  const auto& properties = Known().properties;
  const auto found = properties.find(key);
  return found == properties.end() ? nullptr : &found->second;
}

}  // namespace uiox
