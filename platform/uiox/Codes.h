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
  None,                ///< no table: where an operation has no options
  Operation,           ///< second argument of `ui_do_operation`
  GlobalOperation,     ///< first argument of `ui_global_do_operation`
  NodeOption,          ///< what a node is given when it is added
  NodeAttribute,       ///< what a node is asked for, or given afterwards
  ComponentAttribute,  ///< of `ui_retrieve` and `ui_modify`
  CellAttribute,       ///< of a cell of a tree
  ControlAttribute,    ///< of a control in a cell
  Reason,              ///< what a callback waits for
  GlobalCode           ///< first argument of `ui_global_inquire`
};

/// A row of a table.
struct CodeInfo {
  /// As in Toolkit.h ("AddNode").
  const char* name;
  /// The number on the wire.
  int code;
  /// As Toolkit.h explains: of an operation its positional slots and ending, of an attribute one letter.
  const char* shape;
  /// What it is, in English words.
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
  /// The first row; the table lives as long as the process.
  const CodeInfo* rows;
  /// How many rows there are.
  std::size_t count;
  /// For a loop over all rows.
  const CodeInfo* begin() const { return rows; }
  /// Behind the last row.
  const CodeInfo* end() const { return rows + count; }
};
/// The rows of a table in the order of Toolkit.h; none for `CodeGroup::None`.
OXECAD_UIOX_API CodeTable AllCodes(CodeGroup group);

}  // namespace uiox

#endif
