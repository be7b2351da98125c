#ifndef OXECAD_TESTS_MINIMAL_OXKUTILS_SMARTPTR_H
#define OXECAD_TESTS_MINIMAL_OXKUTILS_SMARTPTR_H

namespace oxkutils {

template <class T>
class SmartPtr {
 public:
  explicit SmartPtr(T* object);
  SmartPtr(const SmartPtr& other);
  SmartPtr(SmartPtr&& other) noexcept;
  SmartPtr& operator=(const SmartPtr& other);
  SmartPtr& operator=(SmartPtr&& other) noexcept;
  ~SmartPtr();
  T* operator->() const;
  T& operator*() const;
  T* get() const;
  explicit operator bool() const;
  bool operator==(const SmartPtr& other) const;

 private:
  T* object_;
};

}  // namespace oxkutils

#endif
