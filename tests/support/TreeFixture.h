/// \file
/// A fresh suite with one tree in it.
#ifndef OXECAD_TESTS_SUPPORT_TREEFIXTURE_H
#define OXECAD_TESTS_SUPPORT_TREEFIXTURE_H

#include <gtest/gtest.h>
#include <tests/support/RecordingToolkit.h>
#include <tests/support/TreeDrawing.h>
#include <uiox/Driver.h>
#include <uiox/Suite.h>

#include <string>
#include <vector>

namespace test_support {

/// A test in a suite that holds nothing but the device "dev" with the tree "tree".
class TreeFixture : public testing::Test {
 protected:
  /// `columns`: the names of the tree's columns.
  explicit TreeFixture(const std::vector<std::string>& columns = {});
  ~TreeFixture() override;

  static constexpr const char* kDevice = "dev";
  static constexpr const char* kTree = "tree";

  uiox::Suite& suite = uiox::Suite::Get();
  uiox::TreeWidget& widget;
  /// The user in front of the device.
  uiox::Driver user{kDevice};
};

}  // namespace test_support

#endif
