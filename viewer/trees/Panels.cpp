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

// The texts of a description are what stands behind "title" and "label"; they hold no quotes.
std::string Translated(std::string_view resource, const TranslateText& translate) {
  std::string text(resource);
  for (const std::string_view key : {"\"title\": \"", "\"label\": \""}) {
    for (std::size_t at = text.find(key); at != std::string::npos; at = text.find(key, at)) {
      at += key.size();
      const std::size_t end = text.find('"', at);
      if (end == std::string::npos) break;
      const std::string word = translate(text.substr(at, end - at));
      text.replace(at, end - at, word);
      at += word.size();
    }
  }
  return text;
}

}  // namespace

void CreatePanels(const TranslateText& translate) {
  uiox::Suite& suite = uiox::Suite::Get();
  for (const Panel& panel : kPanels) {
    if (suite.FindDevice(panel.device)) continue;
    std::string why;
    const std::string_view resource = EmbeddedResource(panel.resource);
    if (!suite.LoadDevice(translate ? Translated(resource, translate) : std::string(resource), panel.device, &why)) {
      throw std::logic_error(std::string(panel.resource) + ": " + why);
    }
  }
}

void RemovePanels() {
  for (const Panel& panel : kPanels) uiox::Suite::Get().DestroyDevice(panel.device);
}

}  // namespace oxviewer
