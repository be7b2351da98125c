#include <uiox/StrictMode.h>
#include <uiox/detail/FoundComponent.h>
#include <uiox/detail/LayoutRun.h>
#include <uiox/detail/ResourceLoader.h>
#include <uiox/detail/SuiteState.h>

#include <algorithm>
#include <utility>

namespace uiox {

Suite& Suite::Get() {
  // Never ended: components may still call the toolkit while the process ends.
  static Suite& suite = *new Suite;
  return suite;
}

Suite::Suite() : state_(std::make_unique<State>()) {}
Suite::~Suite() = default;

// --- Devices ---------------------------------------------------------------------------------------------------------

Device* Suite::FindDevice(std::string_view name) const { return static_cast<Device*>(state_->index.Find(name)); }

Widget* Suite::Find(std::string_view device, std::string_view component) const {
  const Device* found = FindDevice(device);
  return found ? found->Find(component) : nullptr;
}

Device* Suite::CreateDevice(std::string_view resource, std::string_view name, std::string* why) {
  std::string json;
  if (!state_->resources.Read(resource, json)) {
    if (why) *why = "there is no resource \"" + std::string(resource) + "\"";
    return nullptr;
  }
  Device* device = LoadDevice(json, name, why);
  if (!device && why) *why = "resource \"" + std::string(resource) + "\": " + *why;
  if (device) device->resource_ = resource;
  return device;
}

Device* Suite::LoadDevice(std::string_view json, std::string_view name, std::string* why) {
  std::string reason;
  if (name.empty() || FindDevice(name)) {
    if (why) *why = "the name \"" + std::string(name) + "\" is empty or in use";
    return nullptr;
  }
  auto made = std::make_unique<Device>(*this, std::string(name), std::string());
  if (!detail::ResourceLoader(*made).Load(json, reason)) {
    if (why) *why = reason;
    return nullptr;
  }
  detail::LayoutRun(*made).Run();
  Device& device = *made;
  state_->devices.reserve(state_->devices.size() + 1);
  state_->owned.reserve(state_->owned.size() + 1);
  state_->index.Add(device);
  state_->devices.push_back(&device);
  state_->owned.push_back(std::move(made));
  device.announced_ = true;
  Tell(&SuiteObserver::DeviceCreated, device);
  return &device;
}

TreeWidget& Suite::ObtainTree(std::string_view device, std::string_view tree, const std::vector<std::string>& columns) {
  Device* holder = FindDevice(device);
  if (!holder) holder = LoadDevice("{}", device);
  if (TreeWidget* there = holder->FindTree(tree)) return *there;
  TreeStyle style;
  style.check_boxes = true;
  for (const std::string& column : columns) style.columns.push_back({column, {}, true, 0});
  return *holder->AddTree(tree, std::move(style));
}

bool Suite::DestroyDevice(std::string_view name) {
  Device* device = FindDevice(name);
  if (!device) return false;
  device->Hide();
  for (const std::unique_ptr<State::Run>& run : state_->runs) {
    if (run->device != device) continue;
    if (!run->over) Tell(&SuiteObserver::ModalRunEnded, *device, kNoResult);
    run->over = true;
    run->device = nullptr;
  }
  Tell(&SuiteObserver::AboutToDestroyDevice, *device);
  if (state_->current_device == name) SetCurrent({}, {});
  detail::g_found_component.Forget();
  state_->index.Remove(*device);
  std::erase(state_->devices, device);
  std::erase_if(state_->owned, [&](const std::unique_ptr<Device>& owned) { return owned.get() == device; });
  return true;
}

const std::vector<Device*>& Suite::Devices() const { return state_->devices; }

// --- What all devices share ------------------------------------------------------------------------------------------

ResourcePath& Suite::Resources() { return state_->resources; }
ImageBag& Suite::Images() { return state_->images; }
NodeTypes& Suite::Types() { return state_->types; }
void Suite::SetScreen(ScreenSize size) { state_->screen = size; }
const std::string& Suite::CurrentDevice() const { return state_->current_device; }
const std::string& Suite::CurrentComponent() const { return state_->current_component; }
std::size_t Suite::Beeps() const { return state_->beeps; }

ScreenSize Suite::Screen() const {
  ScreenSize size;
  if (state_->front && state_->front->QueryScreen(size)) return size;
  return state_->screen;
}

Rect Suite::GeometryOnScreen(const Widget& widget) const {
  Rect rect;
  if (state_->front && state_->front->QueryGeometry(widget, rect)) return rect;
  const Device& device = widget.Owner();
  rect = widget.ControlOf() ? widget.ControlOf()->Geometry() : widget.Geometry();
  if (&widget != &device) {
    rect.x += device.Geometry().x;
    rect.y += device.Geometry().y;
  }
  return rect;
}

void Suite::SetCurrent(std::string_view device, std::string_view component) {
  std::string kept_device(device);
  std::string kept_component(component);
  state_->current_device.swap(kept_device);
  state_->current_component.swap(kept_component);
}

void Suite::Beep() {
  ++state_->beeps;
  if (state_->front) state_->front->Beep();
}

// --- Fronts and observers --------------------------------------------------------------------------------------------

Front* Suite::SetFront(Front* front) { return std::exchange(state_->front, front); }
Front* Suite::CurrentFront() const { return state_->front; }
void Suite::AddObserver(SuiteObserver* observer) { state_->observers.push_back(observer); }
void Suite::RemoveObserver(SuiteObserver* observer) { std::erase(state_->observers, observer); }
std::vector<SuiteObserver*> Suite::Observers() const { return state_->observers; }
bool Suite::HasObservers() const { return !state_->observers.empty(); }

bool Suite::IsObserver(const SuiteObserver* observer) const {
  return std::find(state_->observers.begin(), state_->observers.end(), observer) != state_->observers.end();
}

void Suite::Reset() {
  if (StrictMode* strict = StrictMode::Current()) strict->BeforeReset();
  while (!state_->devices.empty()) DestroyDevice(std::string(state_->devices.back()->Name()));
  state_->resources.Clear();
  state_->images.Clear();
  state_->types.Clear();
  state_->screen = {};
  SetCurrent({}, {});
  state_->beeps = 0;
  state_->queue.clear();
}

}  // namespace uiox
