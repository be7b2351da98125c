/// \file
/// A compare tree in front of a toolkit whose answers are written down.
#ifndef OXECAD_TESTS_UICOMPS_COMPARE_COMPAREWIRE_H
#define OXECAD_TESTS_UICOMPS_COMPARE_COMPAREWIRE_H

#include <gtest/gtest.h>
#include <oxcore/ColorPicker.h>
#include <tests/support/DirtySpy.h>
#include <tests/support/RecordingToolkit.h>
#include <tests/uicomps/color/ImageShop.h>
#include <tests/uicomps/compare/Brief.h>
#include <uicomps/compare/CompareColorTree.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace compare_tests {

using color_tests::ForgetIcons;
using color_tests::ImageShop;
using oxecad_ui::CompareColorTree;
using oxecad_ui::Tree;
using test_support::DirtySpy;
using test_support::Doing;
using test_support::Failure;
using test_support::RecordingToolkit;
using test_support::Retrieving;
using Names = std::vector<std::string>;
using Reasons = std::vector<std::intptr_t>;
using ShowMode = CompareColorTree::ShowMode;

constexpr unsigned int kNone = 0xFFFFFFFFu;

/// The label of a colour cell: `"5"` is the icon of colour 5, anything else stands for itself.
inline std::wstring ColorLabel(const std::string& color) {
  if (color.empty() || color.find_first_not_of("0123456789") != std::string::npos) {
    return std::wstring(color.begin(), color.end());
  }
  return L"<img src=\"color_square.png_" + std::wstring(color.begin(), color.end()) + L"\">";
}

/// The icons of the colours 0 to 9 are made.
class CompareWire : public testing::Test {
 protected:
  CompareWire() {
    ForgetIcons();
    oxcore::ResetColorPicker();
    shop.Stock("color_square.png", 3, 3);
    for (unsigned int color = 0; color < 10; ++color) {
      oxecad_ui::ColorIconBag::Get().GetColorIcon("color_square.png", color);
    }
    toolkit.NamePointer(&tree, "&tree");
    toolkit.TakeLines();
  }
  ~CompareWire() override {
    toolkit.TakeLines();
    ForgetIcons();
    oxcore::ResetColorPicker();
  }

  /// A compare node, or one of another type.
  void Node(const std::string& name, const char* parent, Names children, const char* type = "colorvis") {
    toolkit.When(Doing(2202, name)).Give(282, type).Give(283, parent).Give(284, std::move(children));
  }
  /// What its cells show: colours as `ColorLabel` takes them.
  void Cells(const std::string& name, const char* show, unsigned int dim, const std::string& a, const std::string& b,
             const std::string& overlap) {
    toolkit.When(Doing(2162, name).Second("showMode"))
        .Give(2, std::wstring(show, show + std::char_traits<char>::length(show)).c_str());
    toolkit.When(Doing(2165, name).Second("dimOverlap")).Give(31, dim);
    toolkit.When(Doing(2162, name).Second("a")).Give(2, ColorLabel(a).c_str());
    toolkit.When(Doing(2162, name).Second("b")).Give(2, ColorLabel(b).c_str());
    toolkit.When(Doing(2162, name).Second("overlap")).Give(2, ColorLabel(overlap).c_str());
  }
  /// A node that exists for `GetIndex`.
  void Known(Names names) { tree.m_nodes = std::move(names); }

  void BeBrief() {
    toolkit.WriteOnly([this](const uiox::Call& call) { return brief.Note(call), false; });
  }
  void ListenToChanges() { tree.SetOnDirtyHandler(DirtySpy::Handler, &spy, &changed); }

  static CompareColorTree::CompareNodeInfo Record(const char* name) {
    CompareColorTree::CompareNodeInfo info;
    info.name = name;
    info.type = "colorvis";
    info.colorA = 5;
    info.colorB = 6;
    info.colorOverlap = 7;
    info.showMode = ShowMode::Diff;
    info.dim = Tree::Checked;
    info.designFlag = CompareColorTree::DesignBoth;
    return info;
  }

  oxcore::Mainframe* const mainframe = reinterpret_cast<oxcore::Mainframe*>(this);
  RecordingToolkit toolkit;
  ImageShop shop{toolkit};
  Brief brief;
  DirtySpy spy;
  Names changed;
  CompareColorTree tree{"dev", "tree"};
};

}  // namespace compare_tests

#endif
