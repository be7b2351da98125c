/// \file
/// Who stands between the calls and the built-in toolkit.
#ifndef OXECAD_UIOX_DETAIL_WATCHERS_H
#define OXECAD_UIOX_DETAIL_WATCHERS_H

namespace uiox {
class Backend;
class StrictMode;
}  // namespace uiox

namespace uiox::detail {

struct Watchers {
  Backend* backend = nullptr;    ///< answers instead of the built-in toolkit
  StrictMode* strict = nullptr;  ///< checks what the built-in toolkit is asked

  bool AreNone() const { return !backend && !strict; }
};

inline constinit Watchers g_watchers;

}  // namespace uiox::detail

#endif
