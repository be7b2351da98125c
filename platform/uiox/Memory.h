/// \file
/// Blocks that the toolkit gives away.
#ifndef OXECAD_UIOX_MEMORY_H
#define OXECAD_UIOX_MEMORY_H

#include <uiox/Export.h>

#include <cstddef>

namespace uiox {

/// A block that `relmem` releases; null when there is no memory.
OXECAD_UIOX_API void* AllocateBlock(std::size_t bytes);

/// The whole of `relmem`, for the library that exports it: releases the block that the pointer at this address points
/// to and sets the pointer to null. A null pointer there is accepted. Goes through `Dispatch`. 0 means success.
OXECAD_UIOX_API int ReleaseBlock(void* pointer_address);

/// The whole of `uit_SkinGetBalloonDlgStyle`, for the library that exports it. A style is the quadrant itself. Goes
/// through `Dispatch`. 0 means success; a selector that is no quadrant (1, 3, 7, 9) is refused.
OXECAD_UIOX_API int BalloonStyle(unsigned char selector, void* style);

}  // namespace uiox

#endif
