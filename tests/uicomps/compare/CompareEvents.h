/// \file
/// A compare tree whose user clicks.
#ifndef OXECAD_TESTS_UICOMPS_COMPARE_COMPAREEVENTS_H
#define OXECAD_TESTS_UICOMPS_COMPARE_COMPAREEVENTS_H

#include <tests/uicomps/compare/CompareWire.h>

namespace compare_tests {

/// top - n - c, known in this order; the user clicked a cell.
class CompareEvents : public CompareWire {
 protected:
  CompareEvents() {
    tree.Init(mainframe);
    Node("top", "", {"n"});
    Node("n", "top", {"c"});
    Node("c", "n", {});
    for (const char* node : {"top", "n", "c"}) Cells(node, "<a_show>", 1, "5", "6", "7");
    Known({"top", "n", "c"});
    toolkit.TakeLines();
  }
  void Clicked(const char* node, const char* column) {
    toolkit.When(Retrieving(233)).Give(233, column).Give(232, node);
  }
};

}  // namespace compare_tests

#endif
