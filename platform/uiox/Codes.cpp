#include <uiox/Codes.h>
#include <uiox/detail/CodeIndex.h>

namespace uiox {

const CodeInfo* FindCode(CodeGroup group, int code) { return detail::FindRow(group, code); }

const char* CodeName(CodeGroup group, int code) {
  const CodeInfo* row = detail::FindRow(group, code);
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
  switch (group) {
    case CodeGroup::None:
      break;
    case CodeGroup::Operation:
      return {detail::kOperations, std::size(detail::kOperations)};
    case CodeGroup::GlobalOperation:
      return {detail::kGlobalOperations, std::size(detail::kGlobalOperations)};
    case CodeGroup::NodeOption:
      return {detail::kNodeOptions, std::size(detail::kNodeOptions)};
    case CodeGroup::NodeAttribute:
      return {detail::kNodeAttributes, std::size(detail::kNodeAttributes)};
    case CodeGroup::ComponentAttribute:
      return {detail::kComponentAttributes, std::size(detail::kComponentAttributes)};
    case CodeGroup::CellAttribute:
      return {detail::kCellAttributes, std::size(detail::kCellAttributes)};
    case CodeGroup::ControlAttribute:
      return {detail::kControlAttributes, std::size(detail::kControlAttributes)};
    case CodeGroup::Reason:
      return {detail::kReasons, std::size(detail::kReasons)};
    case CodeGroup::GlobalCode:
      return {detail::kGlobalCodes, std::size(detail::kGlobalCodes)};
  }
  return {nullptr, 0};
}

}  // namespace uiox
