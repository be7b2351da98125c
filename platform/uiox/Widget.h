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

/// What kind of component it is.
enum class WidgetClass : std::uint8_t {
  Dialog,       ///< a device itself
  Panel,        ///< holds other components
  Tree,         ///< a `TreeWidget`
  InputPanel,   ///< a field with one line of text
  OptionMenu,   ///< a choice of one of its items
  PushButton,   ///< does something when it is pressed
  CheckButton,  ///< on, off or mixed
  Label,        ///< a text beside other components
  Message,      ///< a longer text, in one line or wrapped (`TextMode`)
  Icon          ///< images, side by side
};

/// The name that travels on the wire ("InputPanel").
OXECAD_UIOX_API const char* ClassName(WidgetClass widget_class);
/// False for a name that is no class.
OXECAD_UIOX_API bool ParseClassName(std::string_view name, WidgetClass& widget_class);

/// How a panel or a device lays its components out, one after the other.
enum class Arrangement : std::uint8_t {
  Column,  ///< below each other
  Row,     ///< beside each other
  Stack    ///< on top of each other, all in the same place
};

/// An entry of an option menu.
struct Item {
  /// By which the wire names it; unique in its menu.
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
  /// Only its device (`Device::Add`) or tree (`TreeWidget::CreateControl`) makes a component.
  Widget(Device& device, WidgetClass widget_class, std::string name);
  virtual ~Widget();
  Widget(const Widget&) = delete;
  Widget& operator=(const Widget&) = delete;

  /// Unique in its device; good as long as the component.
  const char* Name() const { return name_.c_str(); }
  /// What kind it is; never changes.
  WidgetClass Class() const { return class_; }
  /// The device that it lies in; of a device, itself.
  Device& Owner() const { return device_; }
  /// Null for a device and for a cell control.
  Widget* Parent() const { return parent_; }
  /// Null for any other class.
  TreeWidget* AsTree();
  /// The same for reading.
  const TreeWidget* AsTree() const { return const_cast<Widget*>(this)->AsTree(); }
  /// Its callbacks.
  ActionTable& Actions() { return actions_; }
  /// Its callbacks, for reading.
  const ActionTable& Actions() const { return actions_; }

  /// Attribute 3: whether it is to be shown wherever its surroundings are.
  bool Shown() const { return shown_; }
  /// Shows or hides it.
  void SetShown(bool shown);
  /// Whether it and everything that it lies in is shown; of a device, whether it is on the screen.
  bool Visible() const;
  /// Attribute 5: whether the user may work with it.
  bool Sensitive() const { return sensitive_; }
  /// Lets the user work with it or greys it out; the program may change it in either case.
  void SetSensitive(bool sensitive);
  /// Attribute 52: whether a front shows changes as they come.
  bool Redraw() const { return redraw_; }
  /// With false holds its painting back during many changes; with true it catches up with them.
  void SetRedraw(bool redraw);

  /// Attribute 2: label of a button, text of a label or message, title of a device.
  const std::wstring& Label() const;
  /// Gives it another label; the text is copied.
  void SetLabel(std::wstring_view label);
  /// Attribute 15: text of an entry field or an option menu.
  const std::wstring& Text() const;
  /// Gives it another text, copied, with nothing marked; no callback is called.
  void SetText(std::wstring_view text);
  /// The marked part of the text: from a position, as many units as it has or up to `kEndOfText`.
  struct TextRange {
    /// Where the marked part begins, in UTF-16 code units.
    std::uint32_t from = 0;
    /// Where it ends, itself not marked.
    std::uint32_t to = 0;
  };
  /// What is marked now; empty, at the caret, where nothing is.
  TextRange SelectedText() const;
  /// Marks a part; positions behind the end count as the end, and the two may come in either order.
  void SelectText(std::uint32_t from, std::uint32_t to);
  /// Attribute 124: how a message lays its text out; 0 at first.
  int TextMode() const;
  /// Sets attribute 124; any number is kept.
  void SetTextMode(int mode);
  /// Attribute 72 of an icon.
  const std::vector<std::string>& Images() const;
  /// Names of images, which are shown side by side; an unknown name shows nothing.
  void SetImages(std::vector<std::string> images);
  /// 0x00BBGGRR; 0x00FFFFFF by default.
  std::uint32_t BackgroundColor() const;
  /// Gives it another colour; the upper byte is kept and means nothing.
  void SetBackgroundColor(std::uint32_t color);
  /// Attribute 519 as it was given: a handle of the skin library. 0: none.
  std::uintptr_t BalloonStyle() const;
  /// Sets attribute 519.
  void SetBalloonStyle(std::uintptr_t style);

  /// Entries of an option menu.
  const std::vector<Item>& Items() const;
  /// Replaces the entries. What was chosen stays so where it is among them; else the first is.
  void SetItems(std::vector<Item> items);
  /// How many entries the open menu shows at a time; 0: as the front likes.
  int VisibleItems() const;
  /// Sets how many entries the open menu shows at a time.
  void SetVisibleItems(int count);
  /// The chosen entry's name, empty when there is none. Setting it is refused for a name that is no entry.
  const std::string& SelectedItem() const;
  /// Chooses an entry by its name; false, and nothing changes, where there is none of that name.
  bool SetSelectedItem(std::string_view name);
  /// Of a check button: 0 off, 1 on, 2 mixed.
  unsigned CheckState() const { return check_state_; }
  /// Gives a check button another state; no callback is called.
  void SetCheckState(unsigned state);

  /// Relative to the device; of a device on the screen. A front that knows better answers on the wire (`Front`).
  const Rect& Geometry() const { return geometry_; }
  /// The layout leaves it so from then on.
  void SetGeometry(const Rect& geometry);
  /// The same for a part of it; `kKeepSize` keeps what is there.
  void MoveAndResize(int x, int y, int width, int height);

  /// Components inside, in order; of a panel or a device.
  const std::vector<Widget*>& Children() const;
  /// How it lays out what is inside.
  Arrangement Layout() const;
  /// A property that the resource gives to a front ("properties"), or null.
  const std::string* Property(std::string_view key) const;

  /// Lists of names that the wire asks for.
  enum class NameList {
    Images,     ///< of an icon
    ItemNames,  ///< of a menu's entries
    ItemImages  ///< of a menu's entries; empty where an entry has none
  };
  /// The names and how many they are; null for none. They stay the widget's: good until the list is asked for again or
  /// the names change.
  const char* const* LentNames(NameList list, int& count);

  /// Of a cell control: the tree and its number there; else null and `kNoControl`.
  TreeWidget* ControlOf() const { return control_of_; }
  /// The number in its tree, or `kNoControl`.
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
  // What calls about a cell control look at lies in its first bytes.
  WidgetClass class_;
  std::uint8_t check_state_ = 0;
  bool shown_ = true;
  bool sensitive_ = true;
  bool redraw_ = true;
  ControlId control_ = kNoControl;
  TreeWidget* control_of_ = nullptr;
  Widget* parent_ = nullptr;
  std::string name_;
  ActionTable actions_;
  Rect geometry_;
  std::unique_ptr<Details> details_;  // what few components have
};

}  // namespace uiox

#endif
