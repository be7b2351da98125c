// Operation 2202 and ui_free: answers that the caller owns until they are released.

#include <uiox/detail/NodeTable.h>
#include <uiox/detail/WideCodec.h>
#include <uiox/detail/wire/PlainValues.h>

#include <cstdlib>
#include <cstring>
#include <new>
#include <string_view>

namespace uiox::wire {

using oxecad_ui::toolkit::NodeAttribute;

namespace {

void* NewBlock(std::size_t bytes) {
  void* block = std::malloc(bytes);
  if (!block) throw std::bad_alloc();
  return block;
}

void* CopyWide(const void* encoded) {
  const std::size_t length = encoded ? detail::WideCodec::Length(encoded) : 0;
  auto* copy = static_cast<wchar_t*>(NewBlock((length + 1) * sizeof(wchar_t)));
  if (encoded) detail::WideCodec::Read(encoded, copy);
  copy[length] = 0;
  return copy;
}

void* CopyText(const char* text) {
  const std::size_t bytes = std::strlen(text) + 1;
  return std::memcpy(NewBlock(bytes), text, bytes);
}

/// A list as one block: the pointers, then the characters that they point to. Null for an empty list.
void* CopyChildren(const NodeTable& table, NodeId node) {
  if (table.Children().Count(node) == 0) return nullptr;
  const detail::ListedChildren& listed = table.ListChildren(node);
  const std::string_view names = listed.Names();
  auto* pointers = static_cast<char**>(NewBlock(listed.Size() * sizeof(char*) + names.size()));
  char* characters = reinterpret_cast<char*>(pointers + listed.Size());
  std::memcpy(characters, names.data(), names.size());
  for (std::size_t row = 0; row < listed.Size(); ++row) {
    pointers[row] = characters;
    characters += listed.Sizes()[row] + 1;
  }
  return pointers;
}

const char* ParentName(const NodeTable& table, NodeId node) {
  const NodeId parent = table.Parent(node);
  return parent == kTop ? "" : table.Name(parent);
}

/// A copy of a text; null for what is no text.
void* CopyOfText(const NodeTable& table, NodeId node, std::size_t row) {
  switch (row) {
    case AttributeRow(NodeAttribute::Label):
      return CopyWide(table.Label(node));
    case AttributeRow(NodeAttribute::SecondText):
      return CopyWide(table.SecondText(node));
    case AttributeRow(NodeAttribute::Type):
      return CopyText(Suite::Get().Types().Name(table.Type(node)));
    case AttributeRow(NodeAttribute::Parent):
      return CopyText(ParentName(table, node));
    default:
      return nullptr;
  }
}

/// The copy that an option asks for, or null where it asks for no copy (or for that of an empty list).
void* Copy(const NodeTable& table, NodeId node, const Option& option) {
  if (option.shape != 'L') return CopyOfText(table, node, AttributeRow(option.code));
  return option.array.word != 0 ? CopyChildren(table, node) : nullptr;
}

void Hand(const TreeStore& store, NodeId node, const Option& option, void* copy) {
  const Slot place = option.value;
  const auto attribute = static_cast<NodeAttribute>(option.code);
  switch (attribute) {
    case NodeAttribute::Label:
    case NodeAttribute::SecondText:
    case NodeAttribute::Type:
    case NodeAttribute::Parent:
      return Answer<void*>(place, copy);
    case NodeAttribute::Children:
      if (option.array.word != 0) Answer<void*>(option.array, copy);
      return Answer<int>(place, static_cast<int>(store.ChildCount(node)));
    default:
      return AnswerPlain(store, node, AttributeRow(attribute), place);
  }
}

}  // namespace

Status GetNode(TreeWidget& tree, const Call& call) {
  const NodeId node = FindNode(tree, call.positional[0]);
  if (node == kNoNode) return kUnknownNode;
  if (!HasPlaces(call)) return kNoPlace;
  void* copies[Call::kMaxOptions];
  std::size_t made = 0;
  try {
    for (const Option& option : call) {
      copies[made] = Copy(tree.Store().Table(), node, option);
      ++made;
    }
  } catch (const std::bad_alloc&) {
    while (made > 0) std::free(copies[--made]);
    return kNoMemory;
  }
  for (std::size_t i = 0; i < made; ++i) Hand(tree.Store(), node, call.options[i], copies[i]);
  return kOk;  // NOLINT(clang-analyzer-unix.Malloc): the copies are the caller's now
}

Status HandCopy(const TreeWidget& tree, NodeId node, std::size_t row, Slot place) {
  try {
    Answer<void*>(place, CopyOfText(tree.Store().Table(), node, row));
    return kOk;
  } catch (const std::bad_alloc&) {
    return kNoMemory;
  }
}

Status Release(const Option& option) {
  const Slot place = option.shape == 'l' ? option.array : option.value;
  if (option.shape != 's' && option.shape != 'w' && option.shape != 'l') return kRefused;
  if (place.word == 0) return kNoPlace;
  void* copy = nullptr;
  std::memcpy(&copy, place.Pointer(), sizeof copy);
  std::free(copy);
  Answer<void*>(place, nullptr);
  return kOk;
}

}  // namespace uiox::wire
