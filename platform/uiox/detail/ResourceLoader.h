/// \file
/// Makes the components of a device from its description.
#ifndef OXECAD_UIOX_DETAIL_RESOURCELOADER_H
#define OXECAD_UIOX_DETAIL_RESOURCELOADER_H

#include <uiox/Device.h>

#include <string>
#include <string_view>
#include <vector>

namespace uiox::detail {

class JsonReader;
struct JsonValue;

/// Reads one description (Resources.h) into an empty device.
class ResourceLoader {
 public:
  explicit ResourceLoader(Device& device) : device_(device) {}

  /// False, and where and why, when the description is wrong. The device is of no use then.
  bool Load(std::string_view json, std::string& why);

 private:
  void ReadDevice(const JsonValue& description);
  void ReadComponents(const JsonReader& reader, Widget& panel, int depth);
  void ReadComponent(const JsonReader& reader, Widget& panel, int depth);
  void ReadCommon(const JsonReader& reader, Widget& widget);
  void ReadPlace(const JsonReader& reader, Widget& widget);
  void ReadByClass(const JsonReader& reader, Widget& widget, int depth);
  void ReadItems(const JsonReader& reader, Widget& menu);
  TreeStyle ReadTreeStyle(const JsonReader& reader);
  Column ReadColumn(const JsonReader& reader, bool named);
  void ReadArrangement(const JsonReader& reader, Widget& panel);

  Device& device_;
};

}  // namespace uiox::detail

#endif
