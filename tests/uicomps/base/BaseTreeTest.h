/// \file
/// A base tree in front of a toolkit that answers what the test says.
#ifndef OXECAD_TESTS_UICOMPS_BASE_BASETREETEST_H
#define OXECAD_TESTS_UICOMPS_BASE_BASETREETEST_H

#include <gtest/gtest.h>
#include <tests/support/RecordingToolkit.h>
#include <uicomps/base/BaseTree.h>

namespace oxecad_ui {

using test_support::Doing;
using test_support::Failure;
using test_support::Modifying;
using test_support::RecordingToolkit;
using test_support::Retrieving;

class BaseTreeTest : public testing::Test {
 protected:
  BaseTreeTest() { toolkit.NamePointer(&tree, "&tree"); }

  /// A word that is easy to spot in a line, given as a pointer.
  static void* Word(std::uintptr_t word) { return reinterpret_cast<void*>(word); }

  RecordingToolkit toolkit;
  BaseTree tree{"dev", "tree"};
};

}  // namespace oxecad_ui

#endif
