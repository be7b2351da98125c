/// \file
/// A component of a device.
#ifndef OXECAD_UIOX_WIDGET_H
#define OXECAD_UIOX_WIDGET_H

#include <uiox/Actions.h>
#include <uiox/Export.h>
#include <uiox/Geometry.h>
#include <uiox/NodeId.h>
#include <uiox/Observer.h>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace uiox {

class Device;
class TreeWidget;
namespace detail {
class LayoutRun;
class ResourceLoader;
}  // namespace detail

enum class WidgetClass : std::uint8_t {
  Dialog,  ///< a device itself
  Panel,   ///< holds other components
  Tree,
  InputPanel,
  OptionMenu,
  PushButton,
  CheckButton,
  Label,
  Message,
  Icon
};

/// The name that travels on the wire ("InputPanel").
OXECAD_UIOX_API const char* ClassName(WidgetClass widget_class);
/// False for a name that is no class.
OXECAD_UIOX_API bool ParseClassName(std::string_view name, WidgetClass& widget_class);

/// How a panel or a device lays its components out, one after the other.
enum class Arrangement : std::uint8_t { Column, Row, Stack };

/// An entry of an option menu.
struct Item {
  std::string name;
  std::string image;   ///< empty: none
  std::wstring label;  ///< empty: the name is shown
};

/// A component: its attributes, its callbacks and its place among the others. A cell control is a component too.
///
/// Setters tell the observers when something really changed. None of them calls a callback: those belong to what the
/// user does (Driver.h).
class OXECAD_UIOX_API Widget {
 public:
  Widget(Device& device, WidgetClass widget_class, std::string name);
  virtual ~Widget();
  Widget(const Widget&) = delete;
  Widget& operator=(const Widget&) = delete;

  const char* Name() const { return name_.c_str(); }
  WidgetClass Class() const { return class_; }
  Device& Owner() const { return device_; }
  /// Null for a device and for a cell control.
  Widget* Parent() const { return parent_; }
  /// Null for any other class.
  TreeWidget* AsTree();
  const TreeWidget* AsTree() const { return const_cast<Widget*>(this)->AsTree(); }
  ActionTable& Actions() { return actions_; }
  const ActionTable& Actions() const { return actions_; }

  bool Shown() const { return shown_; }
  void SetShown(bool shown);
  /// Whether it and everything that it lies in is shown; of a device, whether it is on the screen.
  bool Visible() const;
  bool Sensitive() const { return sensitive_; }
  void SetSensitive(bool sensitive);
  bool Redraw() const { return redraw_; }
  void SetRedraw(bool redraw);

  /// Attribute 2: label of a button, text of a label or message, title of a device.
  const std::wstring& Label() const;
  void SetLabel(std::wstring_view label);
  /// Attribute 15: text of an entry field or an option menu.
  const std::wstring& Text() const;
  void SetText(std::wstring_view text);
  /// The marked part of the text: from a position, as many units as it has or up to `kEndOfText`.
  struct TextRange {
    std::uint32_t from = 0;
    std::uint32_t to = 0;
  };
  TextRange SelectedText() const;
  void SelectText(std::uint32_t from, std::uint32_t to);
  int TextMode() const;
  void SetTextMode(int mode);
  /// Attribute 72 of an icon.
  const std::vector<std::string>& Images() const;
  void SetImages(std::vector<std::string> images);
  /// 0x00BBGGRR; 0x00FFFFFF by default.
  std::uint32_t BackgroundColor() const;
  void SetBackgroundColor(std::uint32_t color);
  /// Attribute 519 as it was given: a handle of the skin library. 0: none.
  std::uintptr_t BalloonStyle() const;
  void SetBalloonStyle(std::uintptr_t style);

  /// Entries of an option menu.
  const std::vector<Item>& Items() const;
  void SetItems(std::vector<Item> items);
  int VisibleItems() const;
  void SetVisibleItems(int count);
  /// The chosen entry's name, empty when there is none. Setting it is refused for a name that is no entry.
  const std::string& SelectedItem() const;
  bool SetSelectedItem(std::string_view name);
  /// Of a check button: 0 off, 1 on, 2 mixed.
  unsigned CheckState() const { return check_state_; }
  void SetCheckState(unsigned state);

  /// Relative to the device; of a device on the screen. A front that knows better answers on the wire (`Front`).
  const Rect& Geometry() const { return geometry_; }
  /// The layout leaves it so from then on.
  void SetGeometry(const Rect& geometry);
  /// The same for a part of it; `kKeepSize` keeps what is there.
  void MoveAndResize(int x, int y, int width, int height);

  /// Components inside, in order; of a panel or a device.
  const std::vector<Widget*>& Children() const;
  Arrangement Layout() const;
  /// A property that the resource gives to a front ("properties"), or null.
  const std::string* Property(std::string_view key) const;

  /// Answers of the wire that stay the widget's: good until it is asked again or the names change.
  enum class NameList { Images, ItemNames, ItemImages };
  const char* const* LentNames(NameList list, int& count);

  /// Of a cell control: the tree and its number there; else null and `kNoControl`.
  TreeWidget* ControlOf() const { return control_of_; }
  ControlId Control() const { return control_; }

 private:
  friend class Device;
  friend class TreeWidget;
  friend class detail::ResourceLoader;
  friend class detail::LayoutRun;
  struct Details;

  Details& Need();
  const Details& Known() const;
  void Changed(WidgetChange change);

  Device& device_;
  std::string name_;
  Widget* parent_ = nullptr;
  TreeWidget* control_of_ = nullptr;
  ControlId control_ = kNoControl;
  WidgetClass class_;
  std::uint8_t check_state_ = 0;
  bool shown_ = true;
  bool sensitive_ = true;
  bool redraw_ = true;
  ActionTable actions_;
  Rect geometry_;
  std::unique_ptr<Details> details_;  // what few components have
};

}  // namespace uiox

#endif
