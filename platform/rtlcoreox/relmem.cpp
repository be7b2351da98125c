#include <oxkutils/Export.h>
#include <uicomps/toolkit/Toolkit.h>

#include <cstdlib>
#include <cstring>

// The blocks that the toolkit hands out come from malloc. The pointer may be of any object type: its bytes are copied.
OXECAD_PLATFORM_EXPORT int relmem(void* pointer_address) {
  if (!pointer_address) return 0;
  void* block = nullptr;
  std::memcpy(&block, pointer_address, sizeof block);
  std::free(block);
  block = nullptr;
  std::memcpy(pointer_address, &block, sizeof block);
  return 0;
}
