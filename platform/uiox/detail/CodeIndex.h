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
#include <iterator>

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

/// A table and the way from a code to its row.
struct GroupIndex {
  const CodeInfo* table;
  std::size_t count;
  const std::uint8_t* rows;  // by the code's distance from the first one: the row plus 1, or 0
  int first;
  std::size_t span;

  constexpr const CodeInfo* Find(int code) const {
    const auto place = static_cast<std::size_t>(static_cast<std::int64_t>(code) - first);
    if (place >= span || rows[place] == 0) return nullptr;
    return table + (rows[place] - 1);
  }
};

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
  static constexpr GroupIndex kIndex{Rows, std::size(Rows), kRows.data(), kFirst, kSpan};
};

/// By `CodeGroup`.
inline constexpr GroupIndex kGroups[] = {
    {nullptr, 0, nullptr, 0, 0},        CodeIndex<kOperations>::kIndex,        CodeIndex<kGlobalOperations>::kIndex,
    CodeIndex<kNodeOptions>::kIndex,    CodeIndex<kNodeAttributes>::kIndex,    CodeIndex<kComponentAttributes>::kIndex,
    CodeIndex<kCellAttributes>::kIndex, CodeIndex<kControlAttributes>::kIndex, CodeIndex<kReasons>::kIndex,
    CodeIndex<kGlobalCodes>::kIndex,
};
static_assert(std::size(kGroups) == static_cast<std::size_t>(CodeGroup::GlobalCode) + 1);

inline const GroupIndex& IndexOf(CodeGroup group) { return kGroups[static_cast<std::size_t>(group)]; }

/// How many slots a positional shape has, and what follows them.
struct PositionalShape {
  std::uint8_t count;
  char ending;
};

template <std::size_t N>
constexpr std::array<PositionalShape, N> PositionalShapes(const CodeInfo (&rows)[N]) {
  std::array<PositionalShape, N> shapes{};
  for (std::size_t i = 0; i < N; ++i) {
    const char* letter = rows[i].shape;
    while (*letter >= 'A') ++letter;
    shapes[i] = {static_cast<std::uint8_t>(letter - rows[i].shape), *letter};
  }
  return shapes;
}

/// Row by row.
inline constexpr auto kOperationShapes = PositionalShapes(kOperations);
inline constexpr auto kGlobalOperationShapes = PositionalShapes(kGlobalOperations);

}  // namespace uiox::detail

#endif
