/// \file
/// The callbacks of a component.
#ifndef OXECAD_UIOX_ACTIONS_H
#define OXECAD_UIOX_ACTIONS_H

#include <uicomps/toolkit/Toolkit.h>
#include <uiox/Export.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace uiox {

/// A callback as it was registered.
struct Action {
  /// What the callback waits for (table Reason of Toolkit.h).
  int reason;
  /// The function that is called, with the next two as its arguments.
  ui_callback callback;
  /// The caller's, handed on untouched.
  void* client_data;
  /// The caller's further value; null where none was given.
  void* value;
};

/// The callbacks of one component, for all reasons, in the order of their registration.
class OXECAD_UIOX_API ActionTable {
 public:
  ActionTable();
  ~ActionTable();
  ActionTable(const ActionTable&) = delete;
  ActionTable& operator=(const ActionTable&) = delete;

  /// Puts a callback behind those that its reason has.
  void Add(const Action& action);
  /// Takes the place of all callbacks of its reason.
  void Set(const Action& action);
  /// Removes the first callback of the reason that is this function; false when there is none.
  bool Remove(int reason, ui_callback callback);

  /// How many callbacks a reason has.
  std::size_t Count(int reason) const;
  /// A copy of all callbacks in the order of their registration.
  std::vector<Action> All() const;

  /// Calls the callbacks of a reason in order and gives how many were called. They may add and remove callbacks and
  /// destroy the component: those that were there at the start and still are when their turn comes are called.
  std::size_t Call(int reason) const;

 private:
  struct List;
  std::shared_ptr<List> list_;  // null as long as there was no callback
};

}  // namespace uiox

#endif
