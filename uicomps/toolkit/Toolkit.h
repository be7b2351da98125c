/// \file
/// The wire to the UI toolkit: its plain C functions, and every code that travels on it as a named constant.
///
/// A call names a device (a dialog or panel loaded from a resource), a component of that device (one widget), a code,
/// the code's positional arguments, and then pairs of option code and value that a single 0 ends. In a variable list a
/// code is an `int`; every value, the closing 0 included, fills one pointer-sized slot. Device, component, node and type
/// names are narrow strings in UTF-8; labels are wide strings that hold UTF-16 code units, one in each `wchar_t`.
/// A result of 0 means success unless the function says otherwise.
///
/// The tables below are the only place that states the codes. The constants are made from them, and so is whatever else
/// needs to know a code's name or the shape of its arguments: a call log, a stand-in for the toolkit, the documentation.
#ifndef OXECAD_UI_TOOLKIT_TOOLKIT_H
#define OXECAD_UI_TOOLKIT_TOOLKIT_H

#include <cstddef>
#include <cstdint>

extern "C" {

/// What the toolkit calls back: the client data, and the further value, that were registered (0 where none was).
using ui_callback = int (*)(void* client_data, void* value);

/// Performs an `Operation` on a component. 0 means success.
int ui_do_operation(const char* device, const char* component, int operation, ...);
/// Reads `ComponentAttribute`s: pairs of code and address, ended by 0. What it gives stays the toolkit's. 0 means success.
int ui_retrieve(const char* device, const char* component, ...);
/// Writes `ComponentAttribute`s: pairs of code and value, ended by 0. 0 means success.
int ui_modify(const char* device, const char* component, ...);
/// Adds a callback for a `Reason`. One more slot follows: 0, or the value that the callback is to be given.
int ui_add_action(const char* device, const char* component, int reason, ui_callback callback, void* client_data, ...);
/// Removes a callback from a `Reason`.
int ui_remove_action(const char* device, const char* component, int reason, ui_callback callback);
/// Makes a callback the one and only callback of a `Reason`. One more slot follows: the value that it is to be given.
int ui_set_action(const char* device, const char* component, int reason, ui_callback callback, void* client_data, ...);
/// Releases what `Operation::GetNode` handed out. For a string: the address of the pointer, 0. For a list: the count, the
/// address of the array, 0. A null pointer or array is accepted.
int ui_free(int attribute, ...);
/// Makes a search path for resources of a context. Gives its id, or -1 when there is none.
int ui_create_search_path(int kind, const char* context);
/// Creates a device from a resource found on a search path. Non-zero means success, unlike everywhere else.
int ui_create_device_ext(const char* resource, const char* device, int search_path);
/// Creates a device from a resource. 0 means success.
int ui_create_device(const char* resource, const char* device);
/// Shows a device.
int ui_manage_device(const char* device);
/// Runs a device modally. Gives the value with which the run was ended.
int ui_activate_device(const char* device);
/// Hides a device.
int ui_unmanage_device(const char* device);
/// A callback that ends the modal run of the device named by the client data; the run's result is the value.
int ui_exit_device(void* client_data, void* value);
/// Reads `GlobalCode`s: pairs of code and address, ended by 0. 0 means success.
int ui_global_inquire(int code, ...);
/// Performs a `GlobalOperation`; its arguments are ended by 0. 0 means success.
int ui_global_do_operation(int operation, ...);
/// Sounds the bell.
int ui_beep(void);
/// Gives the skin's style of a balloon for a quadrant of the screen: 1 left upper, 3 right upper, 7 left lower, 9 right
/// lower. `style` is the address of a pointer-sized place; `end` is 0. 0 means success.
int uit_SkinGetBalloonDlgStyle(unsigned char selector, void* style, int end);
/// Releases a block that the toolkit allocated. Takes the address of the pointer to it.
int relmem(void* pointer_address);
}

// Each row of a table: name, code, shape, meaning. A shape has one letter for each slot.
//   in:   s narrow string   w wide string   i signed 32 bits   u unsigned 32 bits   p pointer, or a word as wide as one
//         l list: a count and an array of narrow strings (two slots)
//   out:  the address of such a value, the letter in upper case (S W I U P L)
// A positional shape ends with what follows the positional arguments:
//   <  (code, value) pairs to be set, then 0    >  (code, address) pairs to be filled, then 0
//   0  the closing 0 alone                      .  nothing

/// Operations on a component, for `ui_do_operation`. A row names, before the meaning, the table of its option codes.
#define OXECAD_UI_OPERATIONS(X)                                                                                         \
  X(MoveAndResize, 2002, "iiii0", None, "move to x, y and resize to width, height; -32768 keeps what is there")         \
  X(GetSize, 2003, "II0", None, "width and height in pixels")                                                           \
  X(GetPosition, 2005, "II0", None, "x and y on the screen in pixels")                                                  \
  X(UpdateLayout, 2013, "0", None, "lay the components of a device out anew, as after a change of style")               \
  X(AddNode, 2029, "swss<", NodeOption, "add node, label, parent, type at the end of the parent's children")            \
  X(AddNodeBefore, 2030, "swsss<", NodeOption, "add node, label, parent, sibling, type before the sibling (null: end)") \
  X(DeleteNode, 2031, "s0", None, "delete a node and its subtree")                                                      \
  X(MoveNode, 2032, "sss.", None, "move a node under a parent, before a sibling (null: at the end)")                    \
  X(ChangeNode, 2033, "s<", NodeOption, "change type and user data of a node")                                          \
  X(QueryNode, 2034, "s>", NodeOption, "read a node's options")                                                         \
  X(ExpandNode, 2036, "si0", None, "expand a node: 0 the node alone, 1 its whole subtree")                              \
  X(CollapseNode, 2037, "s0", None, "collapse a node and its subtree")                                                  \
  X(CreateControl, 2053, "ss<", ControlAttribute, "create a cell control: name, class")                                 \
  X(DestroyControl, 2085, "s0", None, "destroy a cell control")                                                         \
  X(SelectText, 2094, "iu0", None, "select the text from a position to an end (4294967295: the end of the text)")       \
  X(DefineNodeType, 2139, "p0", None, "define a node type from a record of nine slots")                                 \
  X(SetCell, 2160, "ss<", CellAttribute, "set attributes of a cell: node, column")                                      \
  X(GetCell, 2162, "ss>", CellAttribute, "read attributes of a cell: node, column; the answer stays the toolkit's")     \
  X(SetCellControl, 2163, "ss<", ControlAttribute, "set attributes of a cell's control: node, column")                  \
  X(GetCellControl, 2165, "ss>", ControlAttribute, "read attributes of a cell's control; it stays the toolkit's")       \
  X(SetNode, 2201, "s<", NodeAttribute, "set attributes of a node")                                                     \
  X(GetNode, 2202, "s>", NodeAttribute, "read attributes of a node as copies, released with ui_free")                   \
  X(InquireNode, 2203, "s>", NodeAttribute, "read attributes of a node; the answer stays the toolkit's")                \
  X(NodeTypeExists, 2243, "sI0", None, "whether a node type is defined (non-zero: yes)")                                \
  X(InsertNode, 2331, "ss<", NodeAttribute, "insert before a sibling (null: at the end): sibling, node")

/// Operations on no component, for `ui_global_do_operation`.
#define OXECAD_UI_GLOBAL_OPERATIONS(X)                                                     \
  X(LoadImage, 6030, "sp0", "load a named image into an image buffer")                     \
  X(DefineImage, 6031, "sp0", "define a named image from an image buffer")

/// Option codes of `AddNode`, `AddNodeBefore`, `ChangeNode` and `QueryNode`.
#define OXECAD_UI_NODE_OPTIONS(X)                               \
  X(SecondText, 2, "w", "second wide text of a node")           \
  X(Type, 8, "s", "node type")                                  \
  X(FirstInt, 128, "i", "first int of a node")                  \
  X(Expanded, 256, "i", "second int of a node: expanded")       \
  X(ThirdInt, 512, "i", "third int of a node: highlighted")     \
  X(UserData, 1024, "p", "user data of a node")

/// Attributes of a node.
#define OXECAD_UI_NODE_ATTRIBUTES(X)                                        \
  X(Label, 2, "w", "label, shown as markup")                                \
  X(FirstInt, 3, "i", "first int of a node")                                \
  X(Expanded, 4, "i", "expanded flag")                                      \
  X(SecondText, 25, "w", "second wide text of a node")                      \
  X(CheckState, 31, "u", "check state: non-zero is checked")                \
  X(PartlyChecked, 177, "i", "third check state: non-zero is the mixed mark") \
  X(UserData, 260, "p", "user data")                                        \
  X(Type, 282, "s", "node type")                                            \
  X(Parent, 283, "s", "parent's node name")                                 \
  X(Children, 284, "l", "children's names")                                 \
  X(ThirdInt, 516, "i", "third int of a node: highlighted")                 \
  X(CheckSensitive, 544, "i", "check box sensitive")

/// Attributes of a component or a device.
#define OXECAD_UI_COMPONENT_ATTRIBUTES(X)                                                \
  X(Label, 2, "w", "text of a label or message")                                         \
  X(Shown, 3, "i", "shown, 0 or 1")                                                      \
  X(Sensitive, 5, "i", "enabled, 0 or 1")                                                \
  X(Text, 15, "w", "text of an entry field")                                             \
  X(Focus, 29, "s", "device: the component that has the keyboard focus")                 \
  X(Redraw, 52, "i", "redraw on or off, 0 or 1")                                         \
  X(ActivatedNode, 53, "s", "the node activated last")                                   \
  X(RootNode, 54, "s", "the tree's root node")                                           \
  X(Width, 70, "i", "width in pixels")                                                   \
  X(Height, 71, "i", "height in pixels")                                                 \
  X(Names, 72, "l", "tree: the selected nodes; icon: the names of its images")           \
  X(TextMode, 124, "i", "how a message lays its text out")                               \
  X(ToggledNode, 175, "s", "the node expanded or collapsed")                             \
  X(BackgroundColor, 211, "u", "background colour, 0x00BBGGRR")                          \
  X(SelectedCellNode, 232, "s", "node of the selected cell")                             \
  X(SelectedCellColumn, 233, "s", "column of the selected cell")                         \
  X(DefaultButton, 234, "s", "device: the default button")                               \
  X(SelectionKind, 267, "i", "how the selection came about; 2: one node at a time")      \
  X(ClassName, 282, "s", "class of a component")                                         \
  X(CheckedNode, 346, "s", "the node whose check box was toggled")                       \
  X(BalloonStyle, 519, "p", "the skin's style of a balloon")

/// Attributes of a cell of a tree.
#define OXECAD_UI_CELL_ATTRIBUTES(X)                               \
  X(Label, 2, "w", "label, shown as markup")                       \
  X(Control, 140, "s", "the control in the cell (empty: none)")

/// Attributes of a control in a cell, and the options that create one.
#define OXECAD_UI_CONTROL_ATTRIBUTES(X)                            \
  X(CheckState, 31, "u", "check state: 0 off, 1 on, 2 mixed")      \
  X(VisibleItems, 32, "i", "number of items shown")                \
  X(ItemNames, 67, "l", "names of the items")                      \
  X(ItemImages, 87, "l", "images of the items")                    \
  X(SelectedItem, 468, "s", "name of the selected item")

/// Why a callback is called.
#define OXECAD_UI_REASONS(X)                                                        \
  X(Select, 3, "", "tree: the selection changed; option menu: an item was chosen")  \
  X(Activate, 4, "", "node, button or check button activated")                      \
  X(Close, 5, "", "device closed through its window")                               \
  X(Check, 7, "", "check box of a node toggled")                                    \
  X(Input, 8, "", "text changed")                                                   \
  X(Expand, 29, "", "node expanded")                                                \
  X(Collapse, 30, "", "node collapsed")                                             \
  X(FocusIn, 31, "", "focus gained")                                                \
  X(FocusOut, 32, "", "focus lost")                                                 \
  X(CellSelect, 35, "", "cell of a tree selected")

/// What `ui_global_inquire` answers.
#define OXECAD_UI_GLOBAL_CODES(X)                                            \
  X(ScreenWidth, 4001, "i", "width of the screen in pixels")                 \
  X(ScreenHeight, 4002, "i", "height of the screen in pixels")               \
  X(CurrentDevice, 4003, "s", "the device that the user works in")           \
  X(CurrentComponent, 4004, "s", "the component that the user works in")

namespace oxecad_ui::toolkit {

#define OXECAD_UI_OPERATION_CONSTANT(name, code, shape, options, meaning) name = code,
#define OXECAD_UI_CONSTANT(name, code, shape, meaning) name = code,

enum class Operation : int { OXECAD_UI_OPERATIONS(OXECAD_UI_OPERATION_CONSTANT) };
enum class GlobalOperation : int { OXECAD_UI_GLOBAL_OPERATIONS(OXECAD_UI_CONSTANT) };
enum class NodeOption : int { OXECAD_UI_NODE_OPTIONS(OXECAD_UI_CONSTANT) };
enum class NodeAttribute : int { OXECAD_UI_NODE_ATTRIBUTES(OXECAD_UI_CONSTANT) };
enum class ComponentAttribute : int { OXECAD_UI_COMPONENT_ATTRIBUTES(OXECAD_UI_CONSTANT) };
enum class CellAttribute : int { OXECAD_UI_CELL_ATTRIBUTES(OXECAD_UI_CONSTANT) };
enum class ControlAttribute : int { OXECAD_UI_CONTROL_ATTRIBUTES(OXECAD_UI_CONSTANT) };
enum class Reason : int { OXECAD_UI_REASONS(OXECAD_UI_CONSTANT) };
enum class GlobalCode : int { OXECAD_UI_GLOBAL_CODES(OXECAD_UI_CONSTANT) };

#undef OXECAD_UI_OPERATION_CONSTANT
#undef OXECAD_UI_CONSTANT

/// The first argument of `ui_create_search_path`.
constexpr int kResourceSearchPath = 1;
/// The id that says there is no path.
constexpr int kNoSearchPath = -1;

/// `MoveAndResize`: keep the width or height that is there.
constexpr int kKeepSize = -32768;
/// `SelectText`: the end of the text.
constexpr std::uint32_t kEndOfText = 0xFFFFFFFFu;
/// A colour (0x00BBGGRR) that is none: unknown, or several.
constexpr std::uint32_t kNoColor = 0xFFFFFFFFu;

/// The record of `LoadImage` and `DefineImage`. Pixels are four bytes each, row 0 first, rows without padding; after a
/// load they belong to the caller, who releases them with `relmem`.
struct ImageBuffer {
  std::int32_t kind = 0;    ///< `kPixelImage`, set by the caller before a load
  std::int32_t width = 0;   ///< in pixels
  std::int32_t height = 0;  ///< in pixels
  std::int32_t reserved[3] = {0, 0, 0};  ///< the toolkit's
  unsigned char* pixels = nullptr;       ///< red, green, blue and opacity of each
};
static_assert(offsetof(ImageBuffer, width) == 4 && offsetof(ImageBuffer, height) == 8, "the toolkit fixes the layout");
static_assert(offsetof(ImageBuffer, pixels) == 24, "the toolkit fixes the layout");

/// `ImageBuffer::kind`: an image of four bytes a pixel.
constexpr std::int32_t kPixelImage = 23;

/// The record of `DefineNodeType`: nine pointer-sized slots.
struct NodeTypeRecord {
  const char* name = nullptr;                               ///< the type's name
  const void* unused1to3[3] = {nullptr, nullptr, nullptr};  ///< slots 1 to 3
  const char* image = nullptr;                              ///< image of a node of the type
  const char* expandedImage = nullptr;                      ///< image of such a node while it is expanded
  const void* unused6to8[3] = {nullptr, nullptr, nullptr};  ///< slots 6 to 8
};
static_assert(sizeof(NodeTypeRecord) == 9 * sizeof(void*), "the toolkit fixes the layout");

}  // namespace oxecad_ui::toolkit

#endif
