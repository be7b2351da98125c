#include <uiox/Codes.h>
#include <uiox/detail/CodeIndex.h>

namespace uiox {

const CodeInfo* FindCode(CodeGroup group, int code) { return detail::IndexOf(group).Find(code); }

const char* CodeName(CodeGroup group, int code) {
  const CodeInfo* row = FindCode(group, code);
  return row ? row->name : nullptr;
}

const char* GroupName(CodeGroup group) {
  switch (group) {
    case CodeGroup::None:
      return "None";
    case CodeGroup::Operation:
      return "Operation";
    case CodeGroup::GlobalOperation:
      return "GlobalOperation";
    case CodeGroup::NodeOption:
      return "NodeOption";
    case CodeGroup::NodeAttribute:
      return "NodeAttribute";
    case CodeGroup::ComponentAttribute:
      return "ComponentAttribute";
    case CodeGroup::CellAttribute:
      return "CellAttribute";
    case CodeGroup::ControlAttribute:
      return "ControlAttribute";
    case CodeGroup::Reason:
      return "Reason";
    case CodeGroup::GlobalCode:
      return "GlobalCode";
  }
  return "None";
}

CodeTable AllCodes(CodeGroup group) {
  const detail::GroupIndex& index = detail::IndexOf(group);
  return {index.table, index.count};
}

}  // namespace uiox
