#ifndef OXECAD_TESTS_MINIMAL_OXKUTILS_SMARTPTR_H
#define OXECAD_TESTS_MINIMAL_OXKUTILS_SMARTPTR_H

#include <utility>

namespace oxkutils {

template <class T>
class SmartPtr {
 public:
  explicit SmartPtr(T* object) : object_(object) { Acquire(); }
  SmartPtr(const SmartPtr& other) : object_(other.object_) { Acquire(); }
  SmartPtr(SmartPtr&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  SmartPtr& operator=(const SmartPtr& other) { return *this = SmartPtr(other); }
  SmartPtr& operator=(SmartPtr&& other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }
  ~SmartPtr() {
    if (object_ != nullptr) object_->RemoveReference();
  }
  T* operator->() const { return object_; }
  T& operator*() const { return *object_; }
  T* get() const { return object_; }
  explicit operator bool() const { return object_ != nullptr; }
  bool operator==(const SmartPtr& other) const { return object_ == other.object_; }

 private:
  void Acquire() const {
    if (object_ != nullptr) object_->AddReference();
  }

  T* object_;
};

}  // namespace oxkutils

#endif
