// Counts what operator new hands out. The program's own one replaces that of every library it uses.
#include <cstdlib>
#include <new>

#include "bench/reporting/Measure.h"

namespace {

std::uint64_t g_count = 0;  // the report works on one thread

void* Counted(void* block) {
  ++g_count;
  if (!block) throw std::bad_alloc();
  return block;
}

void* Allocate(std::size_t bytes) { return Counted(std::malloc(bytes == 0 ? 1 : bytes)); }

/// Only whole multiples of an alignment are allocated so.
void* Allocate(std::size_t bytes, std::align_val_t alignment) {
  return Counted(std::aligned_alloc(static_cast<std::size_t>(alignment), bytes));
}

}  // namespace

void* operator new(std::size_t bytes) { return Allocate(bytes); }
void* operator new[](std::size_t bytes) { return Allocate(bytes); }
void* operator new[](std::size_t bytes, std::align_val_t alignment) { return Allocate(bytes, alignment); }
void operator delete(void* block) noexcept { std::free(block); }
void operator delete[](void* block) noexcept { std::free(block); }
void operator delete[](void* block, std::align_val_t) noexcept { std::free(block); }
void operator delete(void* block, std::size_t) noexcept { std::free(block); }
void operator delete[](void* block, std::size_t) noexcept { std::free(block); }

std::uint64_t oxecad_bench::AllocationCount() { return g_count; }
