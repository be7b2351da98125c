#include <uiox/Suite.h>
#include <uiox/detail/FoundComponent.h>

namespace uiox::detail {

Widget* FoundComponent::FindAnew(const char* device, const char* component) {
  Widget* found = Suite::Get().Find(device, component);
  if (found) {
    last_ = found;
    component_name_ = found->Name();
    device_name_ = found->Owner().Name();
  }
  return found;
}

}  // namespace uiox::detail
