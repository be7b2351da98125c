/// \file
/// Comparing short texts.
#ifndef OXECAD_UIOX_DETAIL_SHORTTEXT_H
#define OXECAD_UIOX_DETAIL_SHORTTEXT_H

namespace uiox::detail {

/// The same as std::strcmp() == 0. Names of devices, components and nodes are short: a call costs more than the loop.
inline bool AreEqual(const char* a, const char* b) {
  for (;; a += 4, b += 4) {
    for (int i = 0; i < 4; ++i) {  // unrolled
      if (a[i] != b[i]) return false;
      if (a[i] == 0) return true;
    }
  }
}

}  // namespace uiox::detail

#endif
