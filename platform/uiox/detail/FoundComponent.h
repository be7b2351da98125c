/// \file
/// The component that a call names.
#ifndef OXECAD_UIOX_DETAIL_FOUNDCOMPONENT_H
#define OXECAD_UIOX_DETAIL_FOUNDCOMPONENT_H

#include <uiox/Device.h>

#include <cstring>

namespace uiox::detail {

/// Calls that follow each other mostly name the same component: it is remembered, and found by a look at its names.
class FoundComponent {
 public:
  /// Null where there is none, or for a null name.
  Widget* Find(const char* device, const char* component) {
    if (!device || !component) return nullptr;
    const bool again = last_ && std::strcmp(component, component_name_) == 0 && std::strcmp(device, device_name_) == 0;
    return again ? last_ : FindAnew(device, component);
  }
  /// A component has ended, and is not looked at again.
  void Forget() { last_ = nullptr; }

 private:
  Widget* FindAnew(const char* device, const char* component);

  Widget* last_ = nullptr;
  const char* component_name_ = nullptr;  // theirs
  const char* device_name_ = nullptr;
};

inline constinit FoundComponent g_found_component;

}  // namespace uiox::detail

#endif
