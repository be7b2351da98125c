/// \file
/// A colour tree in front of a toolkit whose answers are written down.
#ifndef OXECAD_TESTS_UICOMPS_COLOR_COLORTREEWIRE_H
#define OXECAD_TESTS_UICOMPS_COLOR_COLORTREEWIRE_H

#include <gtest/gtest.h>
#include <oxcore/ColorPicker.h>
#include <tests/support/DirtySpy.h>
#include <tests/support/RecordingToolkit.h>
#include <tests/uicomps/color/ImageShop.h>
#include <uicomps/color/ColorTree.h>

#include <string>
#include <vector>

namespace color_tests {

using oxecad_ui::ColorTree;
using oxecad_ui::Tree;
using test_support::DirtySpy;
using test_support::Doing;
using test_support::Failure;
using test_support::RecordingToolkit;
using test_support::Retrieving;
using Names = std::vector<std::string>;
using Reasons = std::vector<std::intptr_t>;

constexpr unsigned int kNone = 0xFFFFFFFFu;

/// The icons of the colours 0 to 9 are made and their types defined, so that a type costs one call: 2243.
class ColorTreeWire : public testing::Test {
 protected:
  ColorTreeWire() {
    ForgetIcons();
    oxcore::ResetColorPicker();
    shop.Stock("color_square.png", 3, 3);
    for (unsigned int color = 0; color < 10; ++color) {
      oxecad_ui::ColorIconBag::Get().GetColorIcon("color_square.png", color);
    }
    toolkit.When(Doing(2243)).GiveInOrder({1});
    toolkit.NamePointer(&tree, "&tree");
    toolkit.NamePointer(mainframe, "&mainframe");
    toolkit.TakeLines();
  }
  ~ColorTreeWire() override {
    toolkit.TakeLines();
    ForgetIcons();
    oxcore::ResetColorPicker();
  }

  /// What the toolkit says about a node, whose check box the user may toggle.
  void Node(const std::string& name, const char* parent, Names children, unsigned int color) {
    toolkit.When(Doing(2202, name)).Give(282, "t").Give(283, parent).Give(284, std::move(children)).Give(544, 1);
    toolkit.When(Doing(2203, name)).Give(260, color);
  }
  void CheckState(const std::string& name, int partly, unsigned int checked) {
    toolkit.When(Doing(2203, name).With(31)).Give(177, partly).Give(31, checked);
  }
  /// Writes only operations that change something.
  void WriteChangesOnly() {
    toolkit.WriteOnly([](const uiox::Call& call) {
      return call.function == uiox::Function::DoOperation && (call.code == 2033 || call.code == 2201);
    });
  }
  void ListenToChanges() { tree.SetOnDirtyHandler(DirtySpy::Handler, &spy, &changed); }

  oxcore::Mainframe* const mainframe = reinterpret_cast<oxcore::Mainframe*>(this);
  RecordingToolkit toolkit;
  ImageShop shop{toolkit};
  DirtySpy spy;
  Names changed;
  ColorTree tree{"dev", "tree"};
};

}  // namespace color_tests

#endif
