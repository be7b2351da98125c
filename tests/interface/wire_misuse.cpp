// What the typed wire refuses. Each case is compiled by itself, with the macro of its name defined; the text behind the
// name must be in what the compiler says. Without a macro everything compiles.
#include <uicomps/toolkit/Actions.h>
#include <uicomps/toolkit/CellCalls.h>
#include <uicomps/toolkit/ComponentCalls.h>
#include <uicomps/toolkit/NodeCalls.h>

namespace oxecad_ui::wire {

constexpr Widget tree{"board", "nets"};

struct Panel {
  static int ActivateCB(Panel*) { return 0; }
  static int CountCB(int) { return 0; }
};
struct Other {};

void Calls([[maybe_unused]] Panel* panel, [[maybe_unused]] Other* other) {
  // The right way round.
  SetNode(tree, "R9", kNodeLabel(L"R9"), kNodeExpanded(1));
  AddAction<&Panel::ActivateCB>(tree, Reason::Activate, panel);

#if defined(NARROW_TEXT_FOR_A_LABEL)  // says: no match for call
  SetNode(tree, "R9", kNodeLabel("R9"));
#elif defined(NUMBER_FOR_A_LABEL)                 // says: no match for call|invalid conversion
  SetNode(tree, "R9", kNodeLabel(1));
#elif defined(WIDE_TEXT_FOR_A_TYPE)               // says: no match for call
  SetNode(tree, "R9", kNodeType(L"net"));
#elif defined(TEXT_FOR_A_FLAG)                    // says: no match for call|invalid conversion
  SetNode(tree, "R9", kNodeExpanded("yes"));
#elif defined(NUMBER_FOR_A_POINTER)               // says: no match for call|invalid conversion
  SetNode(tree, "R9", kNodeUserData(7));
#elif defined(WIDE_NAMES_IN_A_LIST)               // says: no match for call
  const wchar_t* const names[] = {L"none"};
  CreateControl(tree, "menu", "OptionMenu", kItemNames(names));
#elif defined(LABEL_OF_A_CELL_FOR_A_NODE)         // says: an attribute of another table
  SetNode(tree, "R9", kCellLabel(L"R9"));
#elif defined(OPTION_OF_A_NEW_NODE_FOR_A_NODE)    // says: an attribute of another table
  SetNode(tree, "R9", kAddExpanded(1));
#elif defined(NODE_READ_AS_A_COMPONENT)           // says: an attribute of another table
  Retrieve(tree, kNodeLabel);
#elif defined(CODE_AND_VALUE_UNTIED)              // says: is not a class, struct, or union type|Codes
  SetNode(tree, "R9", 2, L"R9");
#elif defined(COPY_THAT_NOBODY_RELEASES)          // says: a lent copy must be released
  GetNode(tree, "R9", kNodeLabel);
#elif defined(LIST_THAT_NOBODY_RELEASES)          // says: a lent copy must be released
  GetNode(tree, "R9", kNodeChildren);
#elif defined(TYPE_THAT_THE_TABLE_DOES_NOT_GIVE)  // says: the table of codes gives this code another type
  SetNode(tree, "R9", Attribute<NodeAttribute::Label, std::int32_t>()(1));
#elif defined(CODE_THAT_IS_IN_NO_TABLE)           // says: no matching function for call to .+ShapeOf
  SetNode(tree, "R9", Attribute<2, const wchar_t*>()(L"R9"));
#elif defined(OPERATION_AS_A_NUMBER)              // says: cannot convert
  Perform(tree, 2201, std::make_tuple(Slot("R9")));
#elif defined(REASON_AS_A_NUMBER)                 // says: no matching function|invalid conversion
  AddAction<&Panel::ActivateCB>(tree, 4, panel);
#elif defined(CALLBACK_OF_ANOTHER_CLASS)          // says: no matching function|cannot convert
  AddAction<&Panel::ActivateCB>(tree, Reason::Activate, other);
#elif defined(CALLBACK_WITHOUT_A_COMPONENT)       // says: no matching function|incomplete type
  AddAction<&Panel::CountCB>(tree, Reason::Activate, panel);
#elif defined(ANSWER_OF_ANOTHER_TYPE)             // says: cannot convert|invalid conversion
  const auto [read, label] = InquireNode(tree, "R9", kNodeLabel);
  [[maybe_unused]] const char* const narrow = label;
#endif
}

}  // namespace oxecad_ui::wire
