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
  /// The suite of the process, made by the first call.
  static Suite& Get();

  Suite(const Suite&) = delete;
  Suite& operator=(const Suite&) = delete;

  // --- Devices -------------------------------------------------------------------------------------------------------

  /// Null when there is none. Constant time.
  Device* FindDevice(std::string_view name) const;
  /// The component (or the device itself, by its own name) of a device; null when there is none. Constant time.
  Widget* Find(std::string_view device, std::string_view component) const;
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

  /// Where device descriptions and image files are looked for.
  ResourcePath& Resources();
  /// The images of all devices.
  ImageBag& Images();
  /// The node types of all trees.
  NodeTypes& Types();
  /// What the front says, else what was set.
  ScreenSize Screen() const;
  /// The size that `Screen` gives as long as no front knows better.
  void SetScreen(ScreenSize size);
  /// What the front says, else the layout: x and y on the screen.
  Rect GeometryOnScreen(const Widget& widget) const;
  /// The device and component that the user works in (4003, 4004); empty: none. `Driver` keeps them; a test may set
  /// them.
  const std::string& CurrentDevice() const;
  /// The same for the component.
  const std::string& CurrentComponent() const;
  /// Names the device and component that the user works in from now on; empty: none.
  void SetCurrent(std::string_view device, std::string_view component);
  /// Rings the bell of the front, where there is one, and counts it.
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
  /// Whether a run of the device has begun and has not returned.
  bool HasModalRun(const Device& device) const;
  /// Ends the innermost run of a device; false when there is none.
  bool EndModalRun(std::string_view device, int result);
  /// Whether the innermost run of the device has been ended and waits for its loop to return; true without a run.
  bool IsModalRunOver(const Device& device) const;
  /// The device of the innermost run, or null.
  Device* ModalDevice() const;
  /// For runs without a front: what the user does next. Each action is performed once, by the run that comes to it.
  void QueueUserAction(std::function<void()> action);
  /// How many of them have not been performed.
  std::size_t QueuedUserActions() const;

  // --- Fronts and observers ------------------------------------------------------------------------------------------

  /// Null: headless. Gives the front that was there; the caller keeps the ownership.
  Front* SetFront(Front* front);
  /// The front in place, or null.
  Front* CurrentFront() const;
  /// Tells an observer of everything from now on; it is not owned and must be removed before it ends.
  void AddObserver(SuiteObserver* observer);
  /// Tells an observer of nothing more, not even of what is being told; unknown ones are passed over.
  void RemoveObserver(SuiteObserver* observer);
  /// A copy of the list, in the order in which they came.
  std::vector<SuiteObserver*> Observers() const;
  /// Whether there is anybody to tell. Constant time.
  bool HasObservers() const;
  /// Whether it is told of things. Linear in the number of observers.
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
