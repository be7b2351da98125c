#include <uiox/Memory.h>

#include <cstdlib>

namespace uiox {

void* AllocateBlock(std::size_t bytes) { return std::malloc(bytes == 0 ? 1 : bytes); }

void ReleaseBlock(void* block) { std::free(block); }

}  // namespace uiox
