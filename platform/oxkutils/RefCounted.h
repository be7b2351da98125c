/// \file
/// The base of objects that count their references themselves.
#ifndef OXECAD_OXKUTILS_REFCOUNTED_H
#define OXECAD_OXKUTILS_REFCOUNTED_H

#include <atomic>

#include <oxkutils/Export.h>

namespace oxkutils {

/// An object with a reference count, usually held through `SmartPtr`. The count belongs to the object and not to its
/// value: a new object and a copy start at 0, and assignment leaves both counts alone. Counting is safe from several
/// threads; the object itself is as safe as its class makes it.
class OXECAD_PLATFORM_EXPORT RefCounted {
 public:
  RefCounted() noexcept;
  /// A copy is a new object: nobody refers to it yet, whatever the count of the other.
  RefCounted(const RefCounted&) noexcept;
  /// Leaves the counts of both objects alone.
  RefCounted& operator=(const RefCounted&) noexcept;
  virtual ~RefCounted();

  /// Called when the last reference goes. True, as here, lets the object be deleted; false keeps it, with a count of 0,
  /// for an owner of another kind. It must not take a reference to the object and drop it again.
  virtual bool ZeroReferenceCountHook();

  /// Takes one reference, to be dropped with `RemoveReference`.
  void AddReference() const noexcept;
  /// Drops one reference that `AddReference` took. With the last one, and the hook's consent, the object is deleted; it
  /// must then have been made with `new`.
  void RemoveReference() const;
  /// How many references there are now; with several threads it may be another number by the time it is read.
  long GetReferenceCount() const noexcept;

 private:
  mutable std::atomic<long> m_references{0};
};

}  // namespace oxkutils

#endif
