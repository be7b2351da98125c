/// \file
/// Blocks that the toolkit gives away.
#ifndef OXECAD_UIOX_MEMORY_H
#define OXECAD_UIOX_MEMORY_H

#include <uiox/Export.h>

#include <cstddef>

namespace uiox {

/// A block that `relmem` releases; null when there is no memory.
OXECAD_UIOX_API void* AllocateBlock(std::size_t bytes);

/// Releases such a block; null is accepted.
OXECAD_UIOX_API void ReleaseBlock(void* block);

}  // namespace uiox

#endif
