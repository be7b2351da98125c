#include <viewer/trees/Panels.h>

#include <array>
#include <stdexcept>

#include <uiox/Suite.h>

namespace oxviewer {
namespace {

struct Panel {
  const char* device;
  const char* resource;
};

constexpr std::array kPanels{Panel{kLayersPanel, "layers.json"},         Panel{kNetsPanel, "nets.json"},
                             Panel{kComponentsPanel, "components.json"}, Panel{kObjectsPanel, "objects.json"},
                             Panel{kComparePanel, "compare.json"},       Panel{kSettingsPanel, "settings.json"}};

}  // namespace

void CreatePanels() {
  uiox::Suite& suite = uiox::Suite::Get();
  for (const Panel& panel : kPanels) {
    if (suite.FindDevice(panel.device)) continue;
    std::string why;
    if (!suite.LoadDevice(EmbeddedResource(panel.resource), panel.device, &why)) {
      throw std::logic_error(std::string(panel.resource) + ": " + why);
    }
  }
}

}  // namespace oxviewer
