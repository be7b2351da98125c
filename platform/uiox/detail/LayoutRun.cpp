#include <uiox/detail/LayoutRun.h>
#include <uiox/detail/WidgetDetails.h>

#include <algorithm>

namespace uiox::detail {

namespace {

constexpr int kCharacter = 8;
constexpr int kLine = 20;
constexpr int kGap = 6;
constexpr int kMargin = 8;

int TextWidth(const std::wstring& text) {
  std::size_t widest = 0;
  std::size_t line = 0;
  for (const wchar_t unit : text) {
    line = unit == L'\n' ? 0 : line + 1;
    widest = std::max(widest, line);
  }
  return static_cast<int>(std::min<std::size_t>(widest, 1000)) * kCharacter;
}

int TextHeight(const std::wstring& text) {
  return kLine * static_cast<int>(std::min<std::ptrdiff_t>(1 + std::count(text.begin(), text.end(), L'\n'), 1000));
}

}  // namespace

void LayoutRun::Run() {
  const Size size = Wanted(device_);
  device_.geometry_.width = size.width;
  device_.geometry_.height = size.height;
  PlaceChildren(device_, kMargin, kMargin);
}

LayoutRun::Size LayoutRun::Wanted(const Widget& widget) const {
  const Widget::Details& details = widget.Known();
  Size size;
  if (!details.fixed_width || !details.fixed_height) size = WantedByClass(widget);
  if (details.fixed_width) size.width = widget.geometry_.width;
  if (details.fixed_height) size.height = widget.geometry_.height;
  return size;
}

LayoutRun::Size LayoutRun::WantedByClass(const Widget& widget) const {
  switch (widget.Class()) {
    case WidgetClass::Dialog: {
      const Size inside = WantedByChildren(widget);
      return {inside.width + 2 * kMargin, inside.height + 2 * kMargin};
    }
    case WidgetClass::Panel:
      return WantedByChildren(widget);
    case WidgetClass::Tree:
      return {240, 320};
    case WidgetClass::InputPanel:
    case WidgetClass::OptionMenu:
      return {160, 24};
    case WidgetClass::PushButton:
      return {std::max(72, TextWidth(widget.Label()) + 24), 24};
    case WidgetClass::CheckButton:
      return {TextWidth(widget.Label()) + 24, kLine};
    case WidgetClass::Label:
    case WidgetClass::Message:
      return {TextWidth(widget.Label()), TextHeight(widget.Label())};
    case WidgetClass::Icon:
      return {32, 32};
  }
  return {};
}

LayoutRun::Size LayoutRun::WantedByChildren(const Widget& panel) const {
  Size size;
  int gap = 0;
  for (const Widget* child : panel.Children()) {
    if (!child->Shown() || child->Known().fixed_place) continue;
    const Size wanted = Wanted(*child);
    switch (panel.Layout()) {
      case Arrangement::Column:
        size = {std::max(size.width, wanted.width), size.height + gap + wanted.height};
        break;
      case Arrangement::Row:
        size = {size.width + gap + wanted.width, std::max(size.height, wanted.height)};
        break;
      case Arrangement::Stack:
        size = {std::max(size.width, wanted.width), std::max(size.height, wanted.height)};
        break;
    }
    gap = kGap;
  }
  return size;
}

void LayoutRun::Place(Widget& widget, int x, int y) {
  const Size size = Wanted(widget);
  if (widget.Known().fixed_place) {
    x = widget.geometry_.x;
    y = widget.geometry_.y;
  }
  widget.geometry_ = {x, y, size.width, size.height};
  PlaceChildren(widget, x, y);
}

void LayoutRun::PlaceChildren(Widget& panel, int x, int y) {
  for (Widget* child : panel.Children()) {
    if (!child->Shown()) continue;
    Place(*child, x, y);
    if (child->Known().fixed_place) continue;
    if (panel.Layout() == Arrangement::Column) y += child->geometry_.height + kGap;
    if (panel.Layout() == Arrangement::Row) x += child->geometry_.width + kGap;
  }
}

}  // namespace uiox::detail
