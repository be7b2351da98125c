/// \file
/// Places on the screen, in pixels.
#ifndef OXECAD_UIOX_GEOMETRY_H
#define OXECAD_UIOX_GEOMETRY_H

namespace uiox {

/// A place and a size. What the place is relative to is said where a `Rect` is given.
struct Rect {
  /// Pixels to the right.
  int x = 0;
  /// Pixels down.
  int y = 0;
  /// Pixels; 0 where nothing is known.
  int width = 0;
  /// Pixels; 0 where nothing is known.
  int height = 0;
  /// Whether place and size are the same.
  friend bool operator==(const Rect& a, const Rect& b) {
    return a.x == b.x && a.y == b.y && a.width == b.width && a.height == b.height;
  }
  /// Whether anything differs.
  friend bool operator!=(const Rect& a, const Rect& b) { return !(a == b); }
};

/// The size of the screen that dialogs are placed on.
struct ScreenSize {
  /// Pixels.
  int width = 1920;
  /// Pixels.
  int height = 1080;
};

}  // namespace uiox

#endif
