#include <fuzz/Input.h>
#include <uiox/Driver.h>
#include <uiox/Suite.h>

// Any text is a device that can be shown and ended, or one clear error and nothing.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using fuzz::Require;
  uiox::Suite& suite = uiox::Suite::Get();
  std::string why;
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  uiox::Device* const device = suite.LoadDevice(text, "device", &why);
  if (!device) {
    Require(!why.empty() && suite.Devices().empty());
    return 0;
  }
  device->Show();
  for (uiox::Widget* widget : device->Components()) {
    Require(suite.Find("device", widget->Name()) == widget);
    uiox::user::FocusIn(*widget);
    uiox::user::Press(*widget);
  }
  uiox::user::PressDefault(*device);
  uiox::user::Close(*device);
  Require(suite.DestroyDevice("device") && suite.Devices().empty());
  return 0;
}
