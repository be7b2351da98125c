/// \file
/// A pointer that keeps a reference-counted object alive.
#ifndef OXECAD_OXKUTILS_SMARTPTR_H
#define OXECAD_OXKUTILS_SMARTPTR_H

#include <cassert>
#include <functional>
#include <type_traits>
#include <utility>

namespace oxkutils {

/// Holds one reference to an object of a class with `AddReference` and `RemoveReference` (see `RefCounted`), or
/// nothing. The count lies in the object, so that a plain pointer may be turned into a `SmartPtr` at any time, as often
/// as wanted. Everything costs constant time but for the deletion of the object with its last reference.
template <class T>
class SmartPtr {
 public:
  /// The class of the object, as generic code asks for it.
  using element_type = T;

  constexpr SmartPtr() noexcept = default;
  /// Takes a reference to the object; null makes an empty pointer.
  SmartPtr(T* object) : m_object(object) { Acquire(); }
  /// Takes a reference of its own to the other's object.
  SmartPtr(const SmartPtr& other) : m_object(other.m_object) { Acquire(); }
  /// Takes over the other's reference and leaves it empty; the count stays.
  SmartPtr(SmartPtr&& other) noexcept : m_object(other.Detach()) {}
  /// The same from a pointer to a derived class.
  template <class U, class = std::enable_if_t<std::is_convertible_v<U*, T*>>>
  SmartPtr(const SmartPtr<U>& other) : m_object(other.get()) {
    Acquire();
  }
  /// Takes over the reference of a pointer to a derived class and leaves that empty.
  template <class U, class = std::enable_if_t<std::is_convertible_v<U*, T*>>>
  SmartPtr(SmartPtr<U>&& other) noexcept : m_object(other.Detach()) {}
  ~SmartPtr() {
    if (m_object) m_object->RemoveReference();
  }

  /// Takes the new reference before the old one is dropped: assigning a pointer to itself, or to what the old object
  /// held alone, is safe.
  SmartPtr& operator=(SmartPtr other) noexcept {
    std::swap(m_object, other.m_object);
    return *this;
  }

  /// The object, or null; the reference stays here, so it is good as long as some pointer holds the object.
  T* get() const noexcept { return m_object; }
  /// The object's members. There must be an object.
  T* operator->() const noexcept {
    assert(m_object);
    return m_object;
  }
  /// The object itself. There must be one.
  T& operator*() const noexcept {
    assert(m_object);
    return *m_object;
  }
  /// Whether an object is held.
  explicit operator bool() const noexcept { return m_object != nullptr; }

  /// Whether exactly this object is held; null asks for an empty pointer.
  friend bool operator==(const SmartPtr& a, const T* b) noexcept { return a.m_object == b; }
  /// Whether something else than this object is held.
  friend bool operator!=(const SmartPtr& a, const T* b) noexcept { return a.m_object != b; }

 private:
  template <class U>
  friend class SmartPtr;

  void Acquire() const {
    if (m_object) m_object->AddReference();
  }
  T* Detach() noexcept { return std::exchange(m_object, nullptr); }

  T* m_object = nullptr;
};

/// Two smart pointers are equal when they hold the same object, or both nothing.
template <class T, class U>
bool operator==(const SmartPtr<T>& a, const SmartPtr<U>& b) noexcept {
  return a.get() == b.get();
}
/// Whether the two hold different objects, or only one of them holds any.
template <class T, class U>
bool operator!=(const SmartPtr<T>& a, const SmartPtr<U>& b) noexcept {
  return a.get() != b.get();
}
/// By address: a strict order for ordered containers.
template <class T>
bool operator<(const SmartPtr<T>& a, const SmartPtr<T>& b) noexcept {
  return std::less<T*>()(a.get(), b.get());
}

}  // namespace oxkutils

#endif
