/// \file
/// Comparing short texts.
#ifndef OXECAD_UIOX_DETAIL_SHORTTEXT_H
#define OXECAD_UIOX_DETAIL_SHORTTEXT_H

namespace uiox::detail {

/// The same as std::strcmp() == 0. Names of devices, components and nodes are short, and most differ in their first
/// characters: a call costs more than the loop.
inline bool AreEqual(const char* a, const char* b) {
  for (; *a == *b; ++a, ++b) {
    if (*a == 0) return true;
  }
  return false;
}

}  // namespace uiox::detail

#endif
