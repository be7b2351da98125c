/// \file
/// A dialog or panel with its components.
#ifndef OXECAD_UIOX_DEVICE_H
#define OXECAD_UIOX_DEVICE_H

#include <uiox/Export.h>
#include <uiox/TreeWidget.h>
#include <uiox/Widget.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace uiox {

class Suite;
namespace detail {
class WidgetIndex;
}

/// A device is a component too: on the wire it is the component of its own name.
class OXECAD_UIOX_API Device : public Widget {
 public:
  /// An empty device that is not on the screen. Only the suite makes devices (`Suite::CreateDevice`).
  Device(Suite& suite, std::string name, std::string resource);
  ~Device() override;

  /// Whose device it is.
  Suite& Host() const { return suite_; }
  /// The resource that it was made from.
  const std::string& Resource() const { return resource_; }
  /// The component, the device itself, or a cell control of that name; null when there is none. Constant time.
  Widget* Find(std::string_view name) const;
  /// The tree of that name or null.
  TreeWidget* FindTree(std::string_view name) const;
  /// Adds a component at the end of a panel (null: of the device itself); null when the name is empty or in use.
  Widget* Add(WidgetClass widget_class, std::string_view name, Widget* panel = nullptr);
  /// Adds a tree in the same way; null when the name is empty or in use.
  TreeWidget* AddTree(std::string_view name, TreeStyle style, Widget* panel = nullptr);
  /// All components but the device and the cell controls, in the order of the resource.
  const std::vector<Widget*>& Components() const;

  /// Whether it is shown. Its components can be asked and changed all the same.
  bool OnScreen() const { return on_screen_; }
  /// Puts it on the screen and tells observers; nothing happens where it is there.
  void Show();
  /// Takes it off the screen and tells observers; components and callbacks stay.
  void Hide();
  /// Lays the components out below and beside each other, each as large as its class and texts want it; the same
  /// everywhere.
  void UpdateLayout();
  /// A modal run of it is under way.
  bool InModalRun() const;

  /// Attributes 29 and 234: a component's name, or empty. Refused for a name that is no component.
  const std::string& Focus() const { return focus_; }
  /// Moves the keyboard focus as the program does: no callback is called. Empty takes it away.
  bool SetFocus(std::string_view component);
  /// The component that the user's focus came to last and has not left; the program moves `Focus` alone.
  const std::string& UserFocus() const { return user_focus_; }
  /// For `user::FocusIn` and `user::FocusOut`.
  void SetUserFocus(std::string_view component) { user_focus_ = component; }
  /// The button that Enter presses; empty: none.
  const std::string& DefaultButton() const { return default_button_; }
  /// Makes a component the one that Enter presses; empty: none. False, and nothing changes, for an unknown name.
  bool SetDefaultButton(std::string_view component);

 private:
  friend class Suite;
  friend class TreeWidget;
  friend class Widget;
  friend class detail::ResourceLoader;
  Widget* Adopt(std::unique_ptr<Widget> widget, Widget* panel);
  void Remember(Widget& widget);
  void Forget(Widget& widget) noexcept;

  Suite& suite_;
  std::string resource_;
  std::string focus_;
  std::string user_focus_;
  std::string default_button_;
  bool on_screen_ = false;
  bool announced_ = false;  // observers know of it
  std::vector<std::unique_ptr<Widget>> owned_;
  std::vector<Widget*> components_;
  std::unique_ptr<detail::WidgetIndex> index_;
};

}  // namespace uiox

#endif
