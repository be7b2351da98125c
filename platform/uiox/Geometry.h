/// \file
/// Places on the screen, in pixels.
#ifndef OXECAD_UIOX_GEOMETRY_H
#define OXECAD_UIOX_GEOMETRY_H

namespace uiox {

struct Rect {
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
  friend bool operator==(const Rect& a, const Rect& b) {
    return a.x == b.x && a.y == b.y && a.width == b.width && a.height == b.height;
  }
  friend bool operator!=(const Rect& a, const Rect& b) { return !(a == b); }
};

struct ScreenSize {
  int width = 1920;
  int height = 1080;
};

}  // namespace uiox

#endif
