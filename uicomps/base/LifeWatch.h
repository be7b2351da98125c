/// \file
/// Finds out, in debug builds, that an object was destroyed from inside a call that it made.
#ifndef OXECAD_UI_BASE_LIFEWATCH_H
#define OXECAD_UI_BASE_LIFEWATCH_H

namespace oxecad_ui {

/// Stands around a call of the application's code, and says in an assertion behind it whether the object is still
/// there:
///
///     const LifeWatch<Component> watch(*this);
///     const unsigned int chosen = dialog.ShowDialog(present);
///     assert(watch.IsAlive() && "the tree was destroyed while its colour picker was open");
///
/// The object's destructor calls `End`. With `NDEBUG` nothing is done.
template <class Object>
class LifeWatch {
 public:
  LifeWatch(const LifeWatch&) = delete;
  LifeWatch& operator=(const LifeWatch&) = delete;
#ifdef NDEBUG
  explicit LifeWatch(const Object&) {}
  ~LifeWatch() {}
  static void End(const Object&) {}
#else
  explicit LifeWatch(const Object& object) : m_object(&object), m_outer(s_innermost) { s_innermost = this; }
  ~LifeWatch() { s_innermost = m_outer; }
  bool IsAlive() const { return m_object != nullptr; }
  static void End(const Object& object) {
    for (LifeWatch* watch = s_innermost; watch != nullptr; watch = watch->m_outer) {
      if (watch->m_object == &object) watch->m_object = nullptr;
    }
  }

 private:
  static inline thread_local LifeWatch* s_innermost = nullptr;
  const Object* m_object;  // null when it is gone
  LifeWatch* const m_outer;
#endif
};

}  // namespace oxecad_ui

#endif
