/// \file
/// The tables of Toolkit.h at compile time, each with an index from code to row.
#ifndef OXECAD_UIOX_DETAIL_CODEINDEX_H
#define OXECAD_UIOX_DETAIL_CODEINDEX_H

#include <uicomps/toolkit/Toolkit.h>
#include <uiox/Codes.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace uiox::detail {

#define OXECAD_UIOX_OPERATION_ROW(name, code, shape, options, meaning) \
  CodeInfo{#name, code, shape, meaning, CodeGroup::options},
#define OXECAD_UIOX_ROW(name, code, shape, meaning) CodeInfo{#name, code, shape, meaning, CodeGroup::None},

inline constexpr CodeInfo kOperations[] = {OXECAD_UI_OPERATIONS(OXECAD_UIOX_OPERATION_ROW)};
inline constexpr CodeInfo kGlobalOperations[] = {OXECAD_UI_GLOBAL_OPERATIONS(OXECAD_UIOX_ROW)};
inline constexpr CodeInfo kNodeOptions[] = {OXECAD_UI_NODE_OPTIONS(OXECAD_UIOX_ROW)};
inline constexpr CodeInfo kNodeAttributes[] = {OXECAD_UI_NODE_ATTRIBUTES(OXECAD_UIOX_ROW)};
inline constexpr CodeInfo kComponentAttributes[] = {OXECAD_UI_COMPONENT_ATTRIBUTES(OXECAD_UIOX_ROW)};
inline constexpr CodeInfo kCellAttributes[] = {OXECAD_UI_CELL_ATTRIBUTES(OXECAD_UIOX_ROW)};
inline constexpr CodeInfo kControlAttributes[] = {OXECAD_UI_CONTROL_ATTRIBUTES(OXECAD_UIOX_ROW)};
inline constexpr CodeInfo kReasons[] = {OXECAD_UI_REASONS(OXECAD_UIOX_ROW)};
inline constexpr CodeInfo kGlobalCodes[] = {OXECAD_UI_GLOBAL_CODES(OXECAD_UIOX_ROW)};

#undef OXECAD_UIOX_OPERATION_ROW
#undef OXECAD_UIOX_ROW

template <std::size_t N>
constexpr int LowestCode(const CodeInfo (&rows)[N]) {
  return std::min_element(rows, rows + N, [](const CodeInfo& a, const CodeInfo& b) { return a.code < b.code; })->code;
}

template <std::size_t N>
constexpr int HighestCode(const CodeInfo (&rows)[N]) {
  return std::max_element(rows, rows + N, [](const CodeInfo& a, const CodeInfo& b) { return a.code < b.code; })->code;
}

/// One byte for each number between the lowest and the highest code: the row plus 1, or 0.
template <const auto& Rows>
class CodeIndex {
  static constexpr int kFirst = LowestCode(Rows);
  static constexpr std::size_t kSpan = static_cast<std::size_t>(HighestCode(Rows) - kFirst + 1);

  static constexpr std::array<std::uint8_t, kSpan> Build() {
    static_assert(std::size(Rows) < 255);
    std::array<std::uint8_t, kSpan> rows{};
    std::uint8_t number = 0;
    for (const CodeInfo& row : Rows) rows[static_cast<std::size_t>(row.code - kFirst)] = ++number;
    return rows;
  }
  static constexpr std::array<std::uint8_t, kSpan> kRows = Build();

 public:
  static constexpr const CodeInfo* Find(int code) {
    const std::size_t place = static_cast<std::size_t>(static_cast<std::int64_t>(code) - kFirst);
    if (place >= kSpan || kRows[place] == 0) return nullptr;
    return &Rows[kRows[place] - 1];
  }
};

inline const CodeInfo* FindRow(CodeGroup group, int code) {
  switch (group) {
    case CodeGroup::None:
      return nullptr;
    case CodeGroup::Operation:
      return CodeIndex<kOperations>::Find(code);
    case CodeGroup::GlobalOperation:
      return CodeIndex<kGlobalOperations>::Find(code);
    case CodeGroup::NodeOption:
      return CodeIndex<kNodeOptions>::Find(code);
    case CodeGroup::NodeAttribute:
      return CodeIndex<kNodeAttributes>::Find(code);
    case CodeGroup::ComponentAttribute:
      return CodeIndex<kComponentAttributes>::Find(code);
    case CodeGroup::CellAttribute:
      return CodeIndex<kCellAttributes>::Find(code);
    case CodeGroup::ControlAttribute:
      return CodeIndex<kControlAttributes>::Find(code);
    case CodeGroup::Reason:
      return CodeIndex<kReasons>::Find(code);
    case CodeGroup::GlobalCode:
      return CodeIndex<kGlobalCodes>::Find(code);
  }
  return nullptr;
}

}  // namespace uiox::detail

#endif
