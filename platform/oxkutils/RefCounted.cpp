#include <oxkutils/RefCounted.h>

#include <cassert>

namespace oxkutils {

RefCounted::RefCounted() noexcept = default;

RefCounted::RefCounted(const RefCounted&) noexcept {}

RefCounted& RefCounted::operator=(const RefCounted&) noexcept { return *this; }

RefCounted::~RefCounted() = default;

bool RefCounted::ZeroReferenceCountHook() { return true; }

void RefCounted::AddReference() const noexcept { m_references.fetch_add(1, std::memory_order_relaxed); }

void RefCounted::RemoveReference() const {
  const long before = m_references.fetch_sub(1, std::memory_order_acq_rel);
  assert(before > 0 && "a reference was dropped that nobody held");
  if (before == 1 && const_cast<RefCounted*>(this)->ZeroReferenceCountHook()) delete this;
}

long RefCounted::GetReferenceCount() const noexcept { return m_references.load(std::memory_order_relaxed); }

}  // namespace oxkutils
