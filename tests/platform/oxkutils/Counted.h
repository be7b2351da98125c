/// \file
/// An object that tells how many of its kind are alive.
#ifndef OXECAD_TESTS_PLATFORM_OXKUTILS_COUNTED_H
#define OXECAD_TESTS_PLATFORM_OXKUTILS_COUNTED_H

#include <oxkutils/RefCounted.h>

class Counted : public oxkutils::RefCounted {
 public:
  explicit Counted(int v = 0) : value(v) { ++s_alive; }
  Counted(const Counted& other) : RefCounted(other), value(other.value) { ++s_alive; }
  Counted& operator=(const Counted&) = default;
  ~Counted() override { --s_alive; }

  static int Alive() { return s_alive; }

  int value;

 private:
  static inline int s_alive = 0;
};

/// Is not deleted with its last reference, but remembers that it went.
class Kept : public Counted {
 public:
  bool ZeroReferenceCountHook() override {
    ++hookCalls;
    return false;
  }

  int hookCalls = 0;
};

#endif
