/// \file
/// The tables of Toolkit.h as data: a code's name, shape and meaning.
#ifndef OXECAD_UIOX_CODES_H
#define OXECAD_UIOX_CODES_H

#include <uiox/Export.h>

#include <cstddef>
#include <cstdint>

namespace uiox {

/// A table of Toolkit.h. Codes mean something only together with their table.
enum class CodeGroup : std::uint8_t {
  None,
  Operation,
  GlobalOperation,
  NodeOption,
  NodeAttribute,
  ComponentAttribute,
  CellAttribute,
  ControlAttribute,
  Reason,
  GlobalCode
};

/// A row of a table.
struct CodeInfo {
  const char* name;
  int code;
  /// As Toolkit.h explains: of an operation its positional slots and ending, of an attribute one letter.
  const char* shape;
  const char* meaning;
  /// Of an operation: the table of its option codes, else `None`.
  CodeGroup options;
};

/// The row of a code, or null. Constant time.
OXECAD_UIOX_API const CodeInfo* FindCode(CodeGroup group, int code);

/// The name of a code as in Toolkit.h ("AddNode"), or null for a code that is not in the table.
OXECAD_UIOX_API const char* CodeName(CodeGroup group, int code);

/// The name of a table ("NodeAttribute"); "None" for none.
OXECAD_UIOX_API const char* GroupName(CodeGroup group);

/// All rows of a table, for documentation and for tests that walk over every code.
struct CodeTable {
  const CodeInfo* rows;
  std::size_t count;
  const CodeInfo* begin() const { return rows; }
  const CodeInfo* end() const { return rows + count; }
};
OXECAD_UIOX_API CodeTable AllCodes(CodeGroup group);

}  // namespace uiox

#endif
