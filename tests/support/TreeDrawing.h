/// \file
/// Trees as drawings: planted from one, and drawn as one.
#ifndef OXECAD_TESTS_SUPPORT_TREEDRAWING_H
#define OXECAD_TESTS_SUPPORT_TREEDRAWING_H

#include <uiox/Suite.h>
#include <uiox/TreeWidget.h>

#include <ostream>
#include <string>
#include <string_view>

namespace test_support {

/// What a drawing shows besides names and labels.
enum DrawParts : unsigned {
  kNothingMore = 0,
  kMarks = 1u << 0,     ///< `[ ]` unchecked, `[x]` checked, `[-]` partly checked
  kTypes = 1u << 1,     ///< `<type>`, where there is one
  kExpanded = 1u << 2,  ///< `+`, where the node is expanded
  kSelected = 1u << 3,  ///< `*`, where the node is selected
  kLocked = 1u << 4,    ///< `locked`, where the check box ignores the user
  kUserData = 1u << 5,  ///< `=0xff`, where there is some
  kCells = 1u << 6,     ///< `column:"label"` where there is one, `column:{control}` where there is one
  kEverything = 0xFFu
};

/// A tree as text, one line a node, two blanks a level:
///
///     root
///       R10  "R 10"  [x] <part> + * locked =0xff a:"<b>"
///       "a name with blanks"  [ ]
///
/// First the name (in quotes where it holds a blank or a quote, or is empty), then the label in quotes where it is not
/// the name, then the parts asked for, in the order above. Two drawings are equal when they are after common
/// indentation, blank lines and repeated blanks are taken away, so that one written by hand may be lined up.
struct Drawing {
  std::string text;
  friend bool operator==(const Drawing& a, const Drawing& b);
  friend bool operator==(const Drawing& a, std::string_view b) { return a == Drawing{std::string(b)}; }
  friend std::ostream& operator<<(std::ostream& out, const Drawing& drawing);
};

Drawing Drawn(const uiox::TreeWidget& tree, unsigned parts = kMarks);
Drawing Drawn(const uiox::TreeStore& store, unsigned parts = kMarks);

/// Adds what is drawn (every part may be given, cells without controls) at the end of the top level, or, when the first
/// name is in the tree already, below it. Fails the test and adds nothing more at the first line that cannot be
/// planted.
void Plant(uiox::TreeWidget& tree, std::string_view drawing);

/// The widget behind a component of the library.
template <class Component>
uiox::TreeWidget& WidgetOf(const Component& component) {
  return uiox::Suite::Get().ObtainTree(component.GetDevice(), component.GetName());
}
template <class Component>
requires requires(const Component& c) { c.GetDevice(); }
Drawing Drawn(const Component& component, unsigned parts = kMarks) { return Drawn(WidgetOf(component), parts); }
template <class Component>
requires requires(const Component& c) { c.GetDevice(); }
void Plant(const Component& component, std::string_view drawing) { Plant(WidgetOf(component), drawing); }

}  // namespace test_support

#endif
