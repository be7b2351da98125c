/// \file
/// The stand-in toolkit's state: devices, images, node types, screen, modal runs.
#ifndef OXECAD_UIOX_SUITE_H
#define OXECAD_UIOX_SUITE_H

#include <uiox/Device.h>
#include <uiox/Export.h>
#include <uiox/Front.h>
#include <uiox/Geometry.h>
#include <uiox/Images.h>
#include <uiox/NodeTypes.h>
#include <uiox/Observer.h>
#include <uiox/Resources.h>

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace uiox {

/// Everything the toolkit holds. There is one in a process, used from the thread of the user interface alone.
class OXECAD_UIOX_API Suite {
 public:
  static Suite& Get();

  Suite(const Suite&) = delete;
  Suite& operator=(const Suite&) = delete;

  // --- Devices -------------------------------------------------------------------------------------------------------

  /// Null when there is none. Constant time.
  Device* FindDevice(std::string_view name) const;
  Widget* Find(std::string_view device, std::string_view component) const;
  /// The same for names that end with a 0 (null: not found). Calls that follow each other mostly name the same
  /// component.
  Widget* FindAgain(const char* device, const char* component);
  /// A component has ended: what was found is not looked at again.
  void ForgetFound();
  /// Makes a device from a resource on the path. Null, and why, when there is no such resource, it is wrong, or the
  /// name is in use.
  Device* CreateDevice(std::string_view resource, std::string_view name, std::string* why = nullptr);
  /// The same from the text of a description (Resources.h).
  Device* LoadDevice(std::string_view json, std::string_view name, std::string* why = nullptr);
  /// The tree of a device, for tests: an empty device and a tree with these columns are made where they are missing.
  TreeWidget& ObtainTree(std::string_view device, std::string_view tree, const std::vector<std::string>& columns = {});
  /// Ends a device with its components. A modal run of it ends with `kNoResult`.
  bool DestroyDevice(std::string_view name);
  /// In the order of their creation.
  const std::vector<Device*>& Devices() const;

  // --- What all devices share ----------------------------------------------------------------------------------------

  ResourcePath& Resources();
  ImageBag& Images();
  NodeTypes& Types();
  /// What the front says, else what was set.
  ScreenSize Screen() const;
  void SetScreen(ScreenSize size);
  /// What the front says, else the layout: x and y on the screen.
  Rect GeometryOnScreen(const Widget& widget) const;
  /// The device and component that the user works in (4003, 4004); empty: none. `Driver` keeps them; a test may set
  /// them.
  const std::string& CurrentDevice() const;
  const std::string& CurrentComponent() const;
  void SetCurrent(std::string_view device, std::string_view component);
  void Beep();
  /// How often the bell was rung.
  std::size_t Beeps() const;

  // --- Modal runs ----------------------------------------------------------------------------------------------------

  /// The result of a run that nothing ended.
  static constexpr int kNoResult = -1;

  /// Shows the device and runs it modally: in the front's event loop, or without a front by performing the queued user
  /// actions until the run is over. When the queue is empty first, the user is taken to press the default button, and,
  /// if that ends nothing, to close the window; if that ends nothing either, the run ends with `kNoResult`. Never
  /// waits.
  int RunModal(Device& device);
  bool HasModalRun(const Device& device) const;
  /// Ends the innermost run of a device; false when there is none.
  bool EndModalRun(std::string_view device, int result);
  /// Whether the innermost run of the device has been ended and waits for its loop to return; true without a run.
  bool IsModalRunOver(const Device& device) const;
  /// The device of the innermost run, or null.
  Device* ModalDevice() const;
  /// For runs without a front: what the user does next. Each action is performed once, by the run that comes to it.
  void QueueUserAction(std::function<void()> action);
  std::size_t QueuedUserActions() const;

  // --- Fronts and observers ------------------------------------------------------------------------------------------

  /// Null: headless. Gives the front that was there; the caller keeps the ownership.
  Front* SetFront(Front* front);
  Front* CurrentFront() const;
  void AddObserver(SuiteObserver* observer);
  void RemoveObserver(SuiteObserver* observer);
  std::vector<SuiteObserver*> Observers() const;
  bool HasObservers() const;
  bool IsObserver(const SuiteObserver* observer) const;
  /// Calls a member of every observer, for the suite's own parts. Observers may come and go meanwhile.
  template <class... Parameters, class... Arguments>
  void Tell(void (SuiteObserver::*event)(Parameters...), Arguments&&... arguments) {
    if (!HasObservers()) return;
    for (SuiteObserver* observer : Observers()) {
      if (IsObserver(observer)) (observer->*event)(arguments...);
    }
  }

  /// As at the start of the process: no device, no defined image or type, no queue, no path, the preset screen. Front
  /// and observers stay.
  void Reset();

 private:
  struct State;
  Suite();
  ~Suite();
  void PlayUser(Device& device);

  std::unique_ptr<State> state_;
};

}  // namespace uiox

#endif
