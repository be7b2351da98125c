// The toolkit's functions over the nodes. Lists are read as they are written: codes as ints, values as whole slots; the
// tables of codes tell what a value is.
#include <uicomps/toolkit/Toolkit.h>

#include <cstdarg>
#include <cstdlib>
#include <cstring>
#include <cwchar>

#include "Nodes.h"

namespace {

using other_toolkit::Node;
using other_toolkit::Nodes;
using oxecad_ui::toolkit::ComponentAttribute;
using oxecad_ui::toolkit::NodeAttribute;
using oxecad_ui::toolkit::NodeOption;
using oxecad_ui::toolkit::Operation;

constexpr int kDone = 0;
constexpr int kRefused = 1;

/// Reads what follows the named arguments of a call, from left to right.
class Arguments {
 public:
  explicit Arguments(std::va_list& list) { va_copy(list_, list); }
  ~Arguments() { va_end(list_); }
  Arguments(const Arguments&) = delete;
  Arguments& operator=(const Arguments&) = delete;

  int Code() { return va_arg(list_, int); }
  std::intptr_t Slot() { return va_arg(list_, std::intptr_t); }
  const char* Text() { return reinterpret_cast<const char*>(Slot()); }
  template <class T>
  T* Address() {
    return reinterpret_cast<T*>(Slot());
  }

 private:
  std::va_list list_;
};

char ShapeOf(int attribute) {
#define SHAPE_CASE(name, code, shape, meaning) \
  case code:                                   \
    return shape[0];
  switch (attribute) { OXECAD_UI_NODE_ATTRIBUTES(SHAPE_CASE) }
#undef SHAPE_CASE
  return 0;
}

/// The attribute that an option of `AddNode` or `ChangeNode` sets.
int AttributeOf(int option) {
  switch (NodeOption(option)) {
    case NodeOption::SecondText:
      return int(NodeAttribute::SecondText);
    case NodeOption::Type:
      return int(NodeAttribute::Type);
    case NodeOption::FirstInt:
      return int(NodeAttribute::FirstInt);
    case NodeOption::Expanded:
      return int(NodeAttribute::Expanded);
    case NodeOption::ThirdInt:
      return int(NodeAttribute::ThirdInt);
    case NodeOption::UserData:
      return int(NodeAttribute::UserData);
  }
  return 0;
}

std::wstring Wide(std::intptr_t slot) { return slot != 0 ? reinterpret_cast<const wchar_t*>(slot) : L""; }
std::string Narrow(std::intptr_t slot) { return slot != 0 ? reinterpret_cast<const char*>(slot) : ""; }

void Set(Node& node, int attribute, std::intptr_t value) {
  switch (NodeAttribute(attribute)) {
    case NodeAttribute::Label:
      node.label = Wide(value);
      break;
    case NodeAttribute::SecondText:
      node.text2 = Wide(value);
      break;
    case NodeAttribute::Type:
      node.type = Narrow(value);
      break;
    default:
      node.numbers[attribute] = value;
  }
}

int SetAll(Node* node, Arguments& arguments, bool areOptions) {
  if (node == nullptr) return kRefused;
  while (const int code = arguments.Code()) Set(*node, areOptions ? AttributeOf(code) : code, arguments.Slot());
  return kDone;
}

template <class Character>
Character* Copied(const std::basic_string<Character>& text) {
  const std::size_t bytes = (text.size() + 1) * sizeof(Character);
  return static_cast<Character*>(std::memcpy(std::malloc(bytes), text.c_str(), bytes));
}

char** CopiedNames(const std::vector<std::string>& names) {
  if (names.empty()) return nullptr;
  char** const array = static_cast<char**>(std::malloc(names.size() * sizeof(char*)));
  for (std::size_t i = 0; i < names.size(); ++i) array[i] = Copied(names[i]);
  return array;
}

/// Names that stay the toolkit's, until the next list of this kind is asked for.
char** LentNames(std::vector<std::string>& names) {
  static std::vector<char*> lent;
  lent.clear();
  for (std::string& name : names) lent.push_back(name.data());
  return lent.data();
}

void Answer(Node& node, int attribute, Arguments& arguments, bool copies) {
  const auto text = [&](std::string& own) { *arguments.Address<const char*>() = copies ? Copied(own) : own.c_str(); };
  const auto wide = [&](std::wstring& own) {
    *arguments.Address<const wchar_t*>() = copies ? Copied(own) : own.c_str();
  };
  switch (NodeAttribute(attribute)) {
    case NodeAttribute::Label:
      return wide(node.label);
    case NodeAttribute::SecondText:
      return wide(node.text2);
    case NodeAttribute::Type:
      return text(node.type);
    case NodeAttribute::Parent:
      return text(node.parent);
    case NodeAttribute::Children: {
      *arguments.Address<int>() = static_cast<int>(node.children.size());
      char*** const names = arguments.Address<char**>();
      if (names != nullptr) *names = copies ? CopiedNames(node.children) : LentNames(node.children);
      return;
    }
    default:
      if (ShapeOf(attribute) == 'p') {
        *arguments.Address<std::intptr_t>() = node.numbers[attribute];
      } else {
        *arguments.Address<std::int32_t>() = static_cast<std::int32_t>(node.numbers[attribute]);
      }
  }
}

int AnswerAll(Node* node, Arguments& arguments, bool copies) {
  if (node == nullptr) return kRefused;
  while (const int code = arguments.Code()) Answer(*node, code, arguments, copies);
  return kDone;
}

int AddNode(Nodes& nodes, Arguments& arguments, bool hasSibling) {
  const char* const name = arguments.Text();
  const std::intptr_t label = arguments.Slot();
  const char* const parent = arguments.Text();
  const char* const before = hasSibling ? arguments.Text() : nullptr;
  const std::string type = Narrow(arguments.Slot());
  Node* const node = nodes.Add(name, parent, before);
  if (node == nullptr) return kRefused;
  node->label = Wide(label);
  node->type = type;
  return SetAll(node, arguments, true);
}

int MoveNode(Nodes& nodes, Arguments& arguments) {
  const char* const node = arguments.Text();
  const char* const parent = arguments.Text();
  return nodes.Move(node, parent, arguments.Text()) ? kDone : kRefused;
}

}  // namespace

extern "C" {

int ui_do_operation(const char* device, const char* component, int operation, ...) {
  std::va_list list;
  va_start(list, operation);
  Arguments arguments(list);
  va_end(list);
  Nodes& nodes = other_toolkit::NodesOf(device, component);
  switch (Operation(operation)) {
    case Operation::AddNode:
      return AddNode(nodes, arguments, false);
    case Operation::AddNodeBefore:
      return AddNode(nodes, arguments, true);
    case Operation::DeleteNode:
      return nodes.Delete(Narrow(arguments.Slot())) ? kDone : kRefused;
    case Operation::MoveNode:
      return MoveNode(nodes, arguments);
    case Operation::ChangeNode:
      return SetAll(nodes.Find(arguments.Text()), arguments, true);
    case Operation::SetNode:
      return SetAll(nodes.Find(arguments.Text()), arguments, false);
    case Operation::GetNode:
      return AnswerAll(nodes.Find(arguments.Text()), arguments, true);
    case Operation::InquireNode:
      return AnswerAll(nodes.Find(arguments.Text()), arguments, false);
    default:
      return kRefused;
  }
}

int ui_retrieve(const char* device, const char* component, ...) {
  std::va_list list;
  va_start(list, component);
  Arguments arguments(list);
  va_end(list);
  if (arguments.Code() != int(ComponentAttribute::RootNode)) return kRefused;
  *arguments.Address<const char*>() = other_toolkit::NodesOf(device, component).Root().c_str();
  return kDone;
}

int ui_free(int attribute, ...) {
  std::va_list list;
  va_start(list, attribute);
  Arguments arguments(list);
  va_end(list);
  if (NodeAttribute(attribute) != NodeAttribute::Children) {
    std::free(*arguments.Address<void*>());
    return kDone;
  }
  const std::intptr_t count = arguments.Slot();
  char** const names = *arguments.Address<char**>();
  for (std::intptr_t i = 0; names != nullptr && i < count; ++i) std::free(names[i]);
  std::free(names);
  return kDone;
}

// No user sits here: nothing is shown, nobody is called back.
int ui_modify(const char*, const char*, ...) { return kDone; }
int ui_add_action(const char*, const char*, int, ui_callback, void*, ...) { return kDone; }
int ui_remove_action(const char*, const char*, int, ui_callback) { return kDone; }
int ui_set_action(const char*, const char*, int, ui_callback, void*, ...) { return kDone; }
int ui_create_search_path(int, const char*) { return oxecad_ui::toolkit::kNoSearchPath; }
int ui_create_device_ext(const char*, const char*, int) { return 0; }
int ui_create_device(const char*, const char*) { return kDone; }
int ui_manage_device(const char*) { return kDone; }
int ui_activate_device(const char*) { return kDone; }
int ui_unmanage_device(const char*) { return kDone; }
int ui_exit_device(void*, void*) { return kDone; }
int ui_global_inquire(int, ...) { return kRefused; }
int ui_global_do_operation(int, ...) { return kRefused; }
int ui_beep(void) { return kDone; }
int uit_SkinGetBalloonDlgStyle(unsigned char, void*, int) { return kRefused; }
int relmem(void*) { return kDone; }
}
