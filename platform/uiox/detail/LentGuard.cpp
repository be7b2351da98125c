#include <uiox/detail/LentGuard.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <cwchar>
#include <new>

namespace uiox::detail {

using oxecad_ui::toolkit::ComponentAttribute;
using oxecad_ui::toolkit::GlobalOperation;
using oxecad_ui::toolkit::NodeAttribute;
using oxecad_ui::toolkit::NodeOption;
using oxecad_ui::toolkit::Operation;

namespace {

/// Nothing that was a pointer or a character reads like one afterwards.
constexpr int kOverwritten = 0xDD;

bool HasOption(const Call& call, NodeAttribute attribute) { return call.Find(static_cast<int>(attribute)) != nullptr; }
bool HasOption(const Call& call, NodeOption option) { return call.Find(static_cast<int>(option)) != nullptr; }

/// Whether an operation may put nodes into the selection or take them out.
bool ChangesSelection(const Call& call) {
  if (call.function == Function::Modify) return call.Find(static_cast<int>(ComponentAttribute::Names)) != nullptr;
  if (call.function != Function::DoOperation) return false;
  switch (static_cast<Operation>(call.code)) {
    case Operation::DeleteNode:
    case Operation::AddNode:
    case Operation::AddNodeBefore:
    case Operation::InsertNode:
      return true;
    case Operation::SetNode:
      return HasOption(call, NodeAttribute::ThirdInt);
    case Operation::ChangeNode:
      return HasOption(call, NodeOption::ThirdInt);
    default:
      return false;
  }
}

bool Names(Slot slot, const TreeStore& store, NodeId& node) {
  node = slot.Text() ? store.Find(slot.Text()) : kNoNode;
  return node != kNoNode;
}

/// Whether an operation on nodes may change something below a node.
bool ChangesBelow(const Call& call, const TreeStore& store, NodeId above) {
  NodeId node = kNoNode;
  const auto within = [&](Slot slot) { return Names(slot, store, node) && store.IsWithin(node, above); };
  const auto below = [&](Slot slot) { return within(slot) && node != above; };
  switch (static_cast<Operation>(call.code)) {
    case Operation::AddNode:
    case Operation::AddNodeBefore:
      return within(call.positional[2]);
    case Operation::InsertNode: {
      const Option* parent = call.Find(static_cast<int>(NodeAttribute::Parent));
      return (parent && within(parent->value)) || below(call.positional[0]);
    }
    case Operation::DeleteNode:
      return within(call.positional[0]);
    case Operation::MoveNode:
      return below(call.positional[0]) || within(call.positional[1]);
    case Operation::SetNode:
    case Operation::ChangeNode:
    case Operation::ExpandNode:
    case Operation::CollapseNode:
    case Operation::SetCell:
    case Operation::SetCellControl:
      return below(call.positional[0]);
    default:
      return false;
  }
}

void* NewBlock(std::size_t bytes) {
  void* block = std::malloc(bytes);
  if (!block) throw std::bad_alloc();
  return block;
}

}  // namespace

bool LentGuard::OnlyReads(const Call& call) {
  switch (call.function) {
    case Function::Retrieve:
    case Function::Free:
    case Function::CreateSearchPath:
    case Function::GlobalInquire:
    case Function::Beep:
    case Function::ReleaseMemory:
    case Function::BalloonStyle:
      return true;
    case Function::GlobalDoOperation:
      return call.code == static_cast<int>(GlobalOperation::LoadImage);
    case Function::DoOperation:
      break;
    default:
      return false;
  }
  switch (static_cast<Operation>(call.code)) {
    case Operation::GetSize:
    case Operation::GetPosition:
    case Operation::QueryNode:
    case Operation::GetCell:
    case Operation::GetCellControl:
    case Operation::GetNode:
    case Operation::InquireNode:
    case Operation::NodeTypeExists:
      return true;
    default:
      return false;
  }
}

bool LentGuard::IsOver(const Loan& loan, const Call& change) {
  if (loan.until == Until::AnyChange) return true;
  const bool same_tree =
      change.device && change.component && loan.device == change.device && loan.tree == change.component;
  const Device* device = Suite::Get().FindDevice(loan.device);
  const TreeWidget* tree = device ? device->FindTree(loan.tree) : nullptr;
  if (!tree) return true;
  if (!same_tree) return false;
  if (loan.until == Until::ChangeOfSelection) return ChangesSelection(change);
  const NodeId node = tree->Store().Find(loan.node);
  if (node == kNoNode) return true;
  return change.function == Function::DoOperation && ChangesBelow(change, tree->Store(), node);
}

bool LentGuard::IsArgument(const Loan& loan, const Call& call) {
  const auto begin = reinterpret_cast<std::intptr_t>(loan.block);
  const auto holds = [&](Slot slot) {
    return slot.word >= begin && slot.word < begin + static_cast<std::intptr_t>(loan.bytes);
  };
  return std::any_of(call.positional, call.positional + call.positional_count, holds) ||
         std::any_of(call.begin(), call.end(), [&](const Option& o) { return holds(o.value) || holds(o.array); });
}

template <class Predicate>
void LentGuard::EndIf(Predicate is_over) {
  const auto over = std::partition(loans_.begin(), loans_.end(), [&](const Loan& loan) { return !is_over(loan); });
  std::for_each(over, loans_.end(), End);
  loans_.erase(over, loans_.end());
}

LentGuard::ChangeScope::ChangeScope(LentGuard& guard, const Call& change)
    : guard_(guard), deferred_(++guard.last_change_) {
  std::vector<Loan>& loans = guard.loans_;
  for (Loan& loan : loans) {
    if (loan.ends_with == 0 && IsArgument(loan, change) && IsOver(loan, change)) loan.ends_with = deferred_;
  }
  guard.EndIf([&](const Loan& loan) { return loan.ends_with == 0 && IsOver(loan, change); });
}

LentGuard::ChangeScope::~ChangeScope() {
  guard_.EndIf([this](const Loan& loan) { return loan.ends_with == deferred_; });
}

void LentGuard::Replace(const Call& call) {
  const bool copies = call.function == Function::DoOperation && call.code == static_cast<int>(Operation::GetNode);
  if (copies) return;
  for (const Option& option : call) {
    if (option.shape == 'S') LendText(call, option, sizeof(char));
    if (option.shape == 'W') LendText(call, option, sizeof(wchar_t));
    if (option.shape == 'L' && option.array.word != 0) LendList(call, option);
  }
}

void LentGuard::LendText(const Call& call, const Option& option, std::size_t unit) {
  const void* text = nullptr;
  std::memcpy(&text, option.value.Pointer(), sizeof text);
  if (!text) return;
  const std::size_t length =
      unit == 1 ? std::strlen(static_cast<const char*>(text)) : std::wcslen(static_cast<const wchar_t*>(text));
  const std::size_t bytes = (length + 1) * unit;
  void* block = std::memcpy(NewBlock(bytes), text, bytes);
  Lend(call, block, bytes, Until::AnyChange);
  std::memcpy(option.value.Pointer(), &block, sizeof block);
}

void LentGuard::LendList(const Call& call, const Option& option) {
  const char* const* names = nullptr;
  int count = 0;
  std::memcpy(&names, option.array.Pointer(), sizeof names);
  std::memcpy(&count, option.value.Pointer(), sizeof count);
  if (!names) return;
  const auto size = static_cast<std::size_t>(count);
  std::size_t bytes = size * sizeof(char*);
  for (std::size_t i = 0; i < size; ++i) bytes += std::strlen(names[i]) + 1;
  auto* block = static_cast<char**>(NewBlock(bytes));
  char* characters = reinterpret_cast<char*>(block + size);
  for (std::size_t i = 0; i < size; ++i) {
    block[i] = characters;
    characters = stpcpy(characters, names[i]) + 1;
  }
  const bool selection =
      call.function == Function::Retrieve && option.code == static_cast<int>(ComponentAttribute::Names);
  const bool children = call.function == Function::DoOperation && call.code == static_cast<int>(Operation::InquireNode);
  Lend(call, block, bytes, selection ? Until::ChangeOfSelection : children ? Until::ChangeBelow : Until::AnyChange);
  std::memcpy(option.array.Pointer(), &block, sizeof block);
}

void LentGuard::Lend(const Call& call, void* block, std::size_t bytes, Until until) {
  Loan loan{block, bytes, until, {}, {}, {}, 0};
  if (until != Until::AnyChange) {
    loan.device = call.device;
    loan.tree = call.component;
    if (until == Until::ChangeBelow) loan.node = call.positional[0].Text();
  }
  loans_.push_back(std::move(loan));
}

void LentGuard::End(Loan& loan) noexcept {
  std::memset(loan.block, kOverwritten, loan.bytes);
  std::free(loan.block);
}

void LentGuard::EndAll() noexcept {
  std::for_each(loans_.begin(), loans_.end(), End);
  loans_.clear();
}

}  // namespace uiox::detail
