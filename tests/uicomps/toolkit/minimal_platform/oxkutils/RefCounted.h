#ifndef OXECAD_TESTS_MINIMAL_OXKUTILS_REFCOUNTED_H
#define OXECAD_TESTS_MINIMAL_OXKUTILS_REFCOUNTED_H

namespace oxkutils {

class RefCounted {
 public:
  virtual ~RefCounted();
  virtual bool ZeroReferenceCountHook();
  void AddReference() const;
  void RemoveReference() const;
  long GetReferenceCount() const;

 private:
  mutable long count_ = 0;
};

}  // namespace oxkutils

#endif
