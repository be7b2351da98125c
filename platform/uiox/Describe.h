/// \file
/// A call in one short line.
#ifndef OXECAD_UIOX_DESCRIBE_H
#define OXECAD_UIOX_DESCRIBE_H

#include <uiox/Call.h>
#include <uiox/Export.h>

#include <string>

namespace uiox {

/// Names the function ("do_operation").
OXECAD_UIOX_API const char* FunctionName(Function function);

/// "do_operation dev:tree SetNode "n1" | Label CheckState": function, device and component, the code's name, the narrow
/// positional texts, the options' names. For messages; reads nothing but names.
OXECAD_UIOX_API std::string Describe(const Call& call);

}  // namespace uiox

#endif
