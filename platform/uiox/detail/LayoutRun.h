/// \file
/// Where the components of a device stand.
#ifndef OXECAD_UIOX_DETAIL_LAYOUTRUN_H
#define OXECAD_UIOX_DETAIL_LAYOUTRUN_H

#include <uiox/Device.h>
#include <uiox/Geometry.h>

namespace uiox::detail {

/// One layout of a device. Sizes follow from classes and texts alone (8 pixels a character, 20 a line), so that they
/// are the same on every machine. Hidden components take no room. What a resource or a caller has fixed stays.
class LayoutRun {
 public:
  explicit LayoutRun(Device& device) : device_(device) {}
  void Run();

 private:
  struct Size {
    int width = 0;
    int height = 0;
  };
  Size Wanted(const Widget& widget) const;
  Size WantedByClass(const Widget& widget) const;
  Size WantedByChildren(const Widget& panel) const;
  void Place(Widget& widget, int x, int y);
  void PlaceChildren(Widget& panel, int x, int y);

  Device& device_;
};

}  // namespace uiox::detail

#endif
