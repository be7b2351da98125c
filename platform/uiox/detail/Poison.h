/// \file
/// Tells the address sanitizer which memory of our own pools is free, so that a use of a released block is found there
/// too.
#ifndef OXECAD_UIOX_DETAIL_POISON_H
#define OXECAD_UIOX_DETAIL_POISON_H

#include <cstddef>

#if defined(__SANITIZE_ADDRESS__)
#define OXECAD_UIOX_POISONS 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define OXECAD_UIOX_POISONS 1
#endif
#endif

#ifdef OXECAD_UIOX_POISONS
#include <sanitizer/asan_interface.h>
#endif

namespace uiox::detail {

inline void Poison([[maybe_unused]] const void* block, [[maybe_unused]] std::size_t bytes) {
#ifdef OXECAD_UIOX_POISONS
  ASAN_POISON_MEMORY_REGION(block, bytes);
#endif
}

inline void Unpoison([[maybe_unused]] const void* block, [[maybe_unused]] std::size_t bytes) {
#ifdef OXECAD_UIOX_POISONS
  ASAN_UNPOISON_MEMORY_REGION(block, bytes);
#endif
}

}  // namespace uiox::detail

#endif
