/// \file
/// Who answers the toolkit's calls: the built-in suite, or whatever a test puts in front of it.
#ifndef OXECAD_UIOX_BACKEND_H
#define OXECAD_UIOX_BACKEND_H

#include <uiox/Call.h>
#include <uiox/Export.h>

namespace uiox {

/// Answers decoded calls. One that watches or fails calls can hand the others on to `BuiltIn().Handle(call)`.
///
/// Which status means success is the called function's matter: `CreateDeviceExt` gives non-zero for success,
/// `CreateSearchPath` an id or -1, `ActivateDevice` the value of the run; all others give 0 for success.
class OXECAD_UIOX_API Backend {
 public:
  Backend() = default;
  Backend(const Backend&) = delete;
  Backend& operator=(const Backend&) = delete;
  virtual ~Backend();

  /// Answers one call; the result is the C function's. The call may be changed before it is handed on.
  virtual int Handle(Call& call) = 0;
};

/// The stand-in toolkit itself. Refuses a call with a `Fault`, and one with an unknown device, component, node, column,
/// code or value; a refused call changes nothing and leaves the out-values alone.
OXECAD_UIOX_API Backend& BuiltIn();

/// Puts a backend in place (null: the built-in one) and gives the one that was there, or null for the built-in one. The
/// caller keeps the ownership and takes it out again before it ends.
OXECAD_UIOX_API Backend* SetBackend(Backend* backend);

/// Hands a call to the backend in place. For entry functions, also for those of other libraries of the suite.
OXECAD_UIOX_API int Dispatch(Call& call);

/// Puts a backend in place for its own lifetime.
class BackendScope {
 public:
  /// Puts the backend in place; it must outlive the scope. Scopes end in the reverse order of their beginning.
  explicit BackendScope(Backend& backend) : before_(SetBackend(&backend)) {}
  ~BackendScope() { SetBackend(before_); }
  BackendScope(const BackendScope&) = delete;
  BackendScope& operator=(const BackendScope&) = delete;

 private:
  Backend* before_;
};

}  // namespace uiox

#endif
