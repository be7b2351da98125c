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
  const std::uint8_t* numbers;  // by the code's distance from the first one: the row's number, or 0
  const char* letters;          // by number: the first letter of the shape
  int first;
  std::size_t span;

  /// The number of a code's row, from 1; 0 for a code that is in no row.
  constexpr std::size_t NumberOf(int code) const {
    const auto place = static_cast<std::size_t>(static_cast<std::int64_t>(code) - first);
    return place < span ? numbers[place] : 0;
  }
  constexpr const CodeInfo* Find(int code) const {
    const std::size_t number = NumberOf(code);
    return number != 0 ? table + (number - 1) : nullptr;
  }
};

/// One byte for each number between the lowest and the highest code, and one letter for each row.
template <const auto& Rows>
class CodeIndex {
  static constexpr int kFirst = LowestCode(Rows);
  static constexpr std::size_t kSpan = static_cast<std::size_t>(HighestCode(Rows) - kFirst + 1);

  static constexpr std::array<std::uint8_t, kSpan> Numbers() {
    static_assert(std::size(Rows) < 255);
    std::array<std::uint8_t, kSpan> numbers{};
    std::uint8_t number = 0;
    for (const CodeInfo& row : Rows) numbers[static_cast<std::size_t>(row.code - kFirst)] = ++number;
    return numbers;
  }
  static constexpr std::array<char, std::size(Rows) + 1> Letters() {
    std::array<char, std::size(Rows) + 1> letters{};
    std::size_t number = 0;
    for (const CodeInfo& row : Rows) letters[++number] = row.shape[0];
    return letters;
  }
  static constexpr auto kNumbers = Numbers();
  static constexpr auto kLetters = Letters();

 public:
  static constexpr GroupIndex kIndex{Rows, std::size(Rows), kNumbers.data(), kLetters.data(), kFirst, kSpan};
};

/// By `CodeGroup`.
inline constexpr GroupIndex kGroups[] = {
    {nullptr, 0, nullptr, nullptr, 0, 0}, CodeIndex<kOperations>::kIndex,        CodeIndex<kGlobalOperations>::kIndex,
    CodeIndex<kNodeOptions>::kIndex,    CodeIndex<kNodeAttributes>::kIndex,    CodeIndex<kComponentAttributes>::kIndex,
    CodeIndex<kCellAttributes>::kIndex, CodeIndex<kControlAttributes>::kIndex, CodeIndex<kReasons>::kIndex,
    CodeIndex<kGlobalCodes>::kIndex,
};
static_assert(std::size(kGroups) == static_cast<std::size_t>(CodeGroup::GlobalCode) + 1);

constexpr const GroupIndex& IndexOf(CodeGroup group) { return kGroups[static_cast<std::size_t>(group)]; }

/// What a call of an operation brings: its positional slots, what follows them, and the table of its options.
struct OperationShape {
  const char* letters = "";
  std::uint8_t count = 0;
  char ending = '.';
  CodeGroup options = CodeGroup::None;
};

template <std::size_t N>
constexpr std::array<OperationShape, N + 1> OperationShapes(const CodeInfo (&rows)[N]) {
  std::array<OperationShape, N + 1> shapes{};
  for (std::size_t i = 0; i < N; ++i) {
    const char* letter = rows[i].shape;
    while (*letter >= 'A') ++letter;
    shapes[i + 1] = {rows[i].shape, static_cast<std::uint8_t>(letter - rows[i].shape), *letter, rows[i].options};
  }
  return shapes;
}

/// By the number of the row.
inline constexpr auto kOperationShapes = OperationShapes(kOperations);
inline constexpr auto kGlobalOperationShapes = OperationShapes(kGlobalOperations);

}  // namespace uiox::detail

#endif
