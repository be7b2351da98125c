// Counts what operator new hands out. The program's own one replaces that of every library it uses.
#include <cstdlib>
#include <new>

#include "bench/reporting/Measure.h"

namespace {

std::uint64_t g_count = 0;  // the report works on one thread

void* Allocate(std::size_t bytes) {
  ++g_count;
  void* block = std::malloc(bytes == 0 ? 1 : bytes);
  if (!block) throw std::bad_alloc();
  return block;
}

}  // namespace

void* operator new(std::size_t bytes) { return Allocate(bytes); }
void* operator new[](std::size_t bytes) { return Allocate(bytes); }
void operator delete(void* block) noexcept { std::free(block); }
void operator delete[](void* block) noexcept { std::free(block); }
void operator delete(void* block, std::size_t) noexcept { std::free(block); }
void operator delete[](void* block, std::size_t) noexcept { std::free(block); }

std::uint64_t oxecad_bench::AllocationCount() { return g_count; }
