/// \file
/// What only a window system can do for the suite.
#ifndef OXECAD_UIOX_FRONT_H
#define OXECAD_UIOX_FRONT_H

#include <uiox/Export.h>
#include <uiox/Geometry.h>

namespace uiox {

class Device;
class Widget;

/// A front shows the suite's state (it follows the observers) and answers what the state cannot know. At most one.
/// Everything the user does goes back through Driver.h.
class OXECAD_UIOX_API Front {
 public:
  virtual ~Front();

  /// Rings the bell once, without waiting.
  virtual void Beep() = 0;
  /// Runs an event loop until `Suite::IsModalRunOver(device)`; `SuiteObserver::ModalRunEnded` tells when.
  virtual void RunModal(Device& device) = 0;
  /// The size of the screen that the device in use is on; false: unknown.
  virtual bool QueryScreen(ScreenSize& size) = 0;
  /// Where a component is: x and y on the screen, width and height; false: it is not shown by this front.
  virtual bool QueryGeometry(const Widget& widget, Rect& on_screen) = 0;
};

}  // namespace uiox

#endif
