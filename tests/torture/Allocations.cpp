#include <tests/torture/Allocations.h>

#include <cstdlib>
#include <new>
#include <utility>

namespace {

bool g_library_works = false;
bool g_counting = false;
bool g_failed = false;
long g_count = 0;
long g_failing = 0;
torture::Spread g_spread = torture::Spread::Once;

bool FailsNow() {
  if (!g_library_works || !g_counting) return false;
  ++g_count;
  const bool fails = torture::Fails(g_count, g_failing, g_spread);
  g_failed = g_failed || fails;
  return fails;
}

void* Allocate(std::size_t bytes) {
  void* block = FailsNow() ? nullptr : std::malloc(bytes == 0 ? 1 : bytes);
  if (!block) throw std::bad_alloc();
  return block;
}

}  // namespace

void* operator new(std::size_t bytes) { return Allocate(bytes); }
void* operator new[](std::size_t bytes) { return Allocate(bytes); }
void* operator new(std::size_t bytes, const std::nothrow_t&) noexcept {
  return FailsNow() ? nullptr : std::malloc(bytes == 0 ? 1 : bytes);
}
void operator delete(void* block) noexcept { std::free(block); }
void operator delete[](void* block) noexcept { std::free(block); }
void operator delete(void* block, const std::nothrow_t&) noexcept { std::free(block); }
void operator delete(void* block, std::size_t) noexcept { std::free(block); }
void operator delete[](void* block, std::size_t) noexcept { std::free(block); }

namespace torture {

void Allocations::Start(long failing, Spread spread) {
  g_counting = true;
  g_spread = spread;
  g_failed = false;
  g_count = 0;
  g_failing = failing;
}
void Allocations::Pause() { g_counting = false; }
void Allocations::Resume() { g_counting = true; }
long Allocations::Count() { return g_count; }
bool Allocations::HasFailed() { return g_failed; }

WhoWorks::WhoWorks(Who who) : before_(std::exchange(g_library_works, who == Library)) {}
WhoWorks::~WhoWorks() { g_library_works = before_; }

}  // namespace torture
