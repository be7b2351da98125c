/// \file
/// What the built-in toolkit answers. Callers look only at whether it is 0.
#ifndef OXECAD_UIOX_DETAIL_WIRE_STATUS_H
#define OXECAD_UIOX_DETAIL_WIRE_STATUS_H

namespace uiox::wire {

enum Status : int {
  kOk = 0,
  kBadList = 1,         ///< the variable list itself is wrong (`Fault`)
  kNoComponent = 2,     ///< there is no such device or component
  kWrongComponent = 3,  ///< the component is of a class that cannot do that
  kUnknownNode = 4,
  kNoCell = 5,  ///< no such column, or nothing in the cell that the call needs
  kRefused = 6,
  kNoAnswer = 7,  ///< there is nothing to be read
  kNoMemory = 8,
  kNoPlace = 9  ///< the address that an answer is to go to is null
};

}  // namespace uiox::wire

#endif
