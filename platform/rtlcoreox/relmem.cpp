#include <oxkutils/Export.h>
#include <uicomps/toolkit/Toolkit.h>
#include <uiox/Backend.h>
#include <uiox/Memory.h>

#include <cstring>

namespace {

/// The pointer may be of any object type: its bytes are copied.
int Release(const uiox::Call& call) {
  if (!call.value) return 0;
  void* block = nullptr;
  std::memcpy(&block, call.value, sizeof block);
  uiox::ReleaseBlock(block);
  block = nullptr;
  std::memcpy(call.value, &block, sizeof block);
  return 0;
}

}  // namespace

OXECAD_PLATFORM_EXPORT int relmem(void* pointer_address) {
  uiox::Call call(uiox::Function::ReleaseMemory);
  call.value = pointer_address;
  call.answer = Release;
  return uiox::Dispatch(call);
}
