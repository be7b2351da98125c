#include "Wire.h"

#include <uiox/Describe.h>
#include <uiox/Driver.h>
#include <uiox/Memory.h>
#include <uiox/StrictMode.h>

#include <memory>

namespace {

using uiox::StrictMode;
using uiox_test::kEnd;
using uiox_test::Slot;
using uiox_test::WireTest;
using Lines = std::vector<std::string>;

int Nothing(void*, void*) { return 0; }

class Strict : public WireTest {
 protected:
  Strict() {
    Add("root", "");
    Add("n", "root");
    Add("m", "root");
  }
  Lines told;
  std::unique_ptr<StrictMode> strict =
      std::make_unique<StrictMode>([this](const std::string& line) { told.push_back(line); });

  /// What the end of strict mode tells.
  Lines End() {
    strict.reset();
    return told;
  }
};

TEST_F(Strict, ATidyCallerIsToldNothing) {
  wchar_t* label = nullptr;
  int count = 0;
  char** names = nullptr;
  Do(2202, "n", 2, &label);
  ui_free(2, &label, kEnd);
  Do(2202, "root", 284, &count, &names);
  ui_free(284, Slot(count), &names, kEnd);
  Do(2202, "n", 284, &count, &names);
  ui_free(284, Slot(count), &names, kEnd);
  ui_free(282, &label, kEnd);
  ui_add_action("dev", "tree", 3, Nothing, nullptr, kEnd);
  ui_remove_action("dev", "tree", 3, Nothing);
  ui_remove_action("dev", "tree", 3, Nothing);
  ui_manage_device("dev");
  ui_unmanage_device("dev");
  EXPECT_EQ(End(), Lines{});
}

TEST_F(Strict, WhatIsNotReleasedIsTold) {
  wchar_t* label = nullptr;
  Do(2202, "n", 2, &label);
  oxecad_ui::toolkit::ImageBuffer buffer;
  buffer.kind = oxecad_ui::toolkit::kPixelImage;
  ui_global_do_operation(6030, "color_square.png", &buffer, kEnd);
  ui_add_action("dev", "tree", 3, Nothing, nullptr, kEnd);
  ui_manage_device("dev");
  EXPECT_EQ(strict->Leftovers(),
            (Lines{"callback dev:tree Select", "copy 2 of do_operation dev:tree GetNode \"n\" | Label", "device dev",
                   "pixels of global_do_operation LoadImage \"color_square.png\""}));
  ui_free(2, &label, kEnd);
  strict->Expect("callback dev:tree Select");
  strict->Expect("device dev");
  EXPECT_EQ(End(), Lines{"left: pixels of global_do_operation LoadImage \"color_square.png\""});
  uiox::ReleaseBlock(buffer.pixels);
}

TEST_F(Strict, AWrongReleaseIsToldAndFreesNothing) {
  int count = 0;
  char** names = nullptr;
  Do(2202, "root", 284, &count, &names);
  EXPECT_NE(ui_free(284, Slot(count + 1), &names, kEnd), 0);
  EXPECT_NE(ui_free(2, &names, kEnd), 0);
  char** second = names;
  EXPECT_EQ(ui_free(284, Slot(count), &names, kEnd), 0);
  EXPECT_NE(ui_free(284, Slot(count), &second, kEnd), 0);
  EXPECT_EQ(End(), (Lines{"it was handed out with the count 2: free Children",
                          "it was handed out as attribute 284: free Label",
                          "it was not handed out, or has come back already: free Children"}));
}

TEST_F(Strict, AnAnswerOfTheToolkitsOwnIsNotReleased) {
  const wchar_t* label = nullptr;
  Do(2203, "n", 2, &label);
  EXPECT_NE(ui_free(2, &label, kEnd), 0);
  EXPECT_STREQ(label, L"n");
  EXPECT_EQ(strict->Faults(), 1u);
}

TEST_F(Strict, WrongListsAreTold) {
  Do(2201, "n", 999, 1);
  Do(2222, "n");
  ui_do_operation("dev", "tree", 2031, "n", Slot(5));
  EXPECT_EQ(End(), (Lines{"unknown option 999: do_operation dev:tree SetNode \"n\"",
                          "unknown operation 2222: do_operation dev:tree 2222",
                          "the list has no end: do_operation dev:tree DeleteNode \"n\""}));
  EXPECT_NE(store.Find("n"), uiox::kNoNode);
}

TEST_F(Strict, TextsAreGoodUntilTheNextChange) {
  const wchar_t* first = nullptr;
  const char* root = nullptr;
  Do(2203, "n", 2, &first);
  Retrieve("tree", 54, &root);
  const wchar_t* second = nullptr;
  Do(2203, "n", 2, &second);
  EXPECT_STREQ(first, L"n") << "reading leaves them alone";
  EXPECT_STREQ(root, "root");
  EXPECT_NE(first, second);
}

TEST_F(Strict, AListOfChildrenIsGoodUntilAChangeBelow) {
  Add("below", "n");
  int count = 0;
  char** names = nullptr;
  Do(2203, "n", 284, &count, &names);
  Add("elsewhere", "m");
  Do(2201, "n", 2, L"label");
  Do(2201, "m", 31, 1);
  ASSERT_EQ(count, 1);
  EXPECT_STREQ(names[0], "below");
}

TEST_F(Strict, TheSelectionIsGoodUntilItChanges) {
  store.Select({Node("n"), Node("m")});
  int count = 0;
  char** names = nullptr;
  Retrieve("tree", 72, &count, &names);
  Do(2201, "n", 31, 1);
  Do(2033, "m", 8, "type", 1024, nullptr);
  ASSERT_EQ(count, 2);
  EXPECT_STREQ(names[1], "m");
}

TEST_F(Strict, AnArgumentIsGoodUntilItsCallIsOver) {
  const char* root = nullptr;
  Retrieve("tree", 54, &root);
  EXPECT_EQ(Do(2031, root), 0) << "the name of the root is read before the root goes";
  EXPECT_EQ(store.Size(), 0u);
}

TEST_F(Strict, AResetSetsDownWhatItEnds) {
  ui_add_action("dev", "tree", 4, Nothing, nullptr, kEnd);
  ui_manage_device("dev");
  suite.Reset();
  EXPECT_EQ(End(), (Lines{"left: callback dev:tree Activate", "left: device dev"}));
}

TEST_F(Strict, WhatTheToolkitHasToItselfIsNotLeft) {
  ui_set_action("dev", "tree", 4, ui_exit_device, const_cast<char*>("dev"), Slot(1));
  suite.FindDevice("dev")->Show();
  EXPECT_EQ(End(), Lines{}) << "its own callback, and a device that no call has shown";
}

TEST_F(Strict, TheNewestWatches) {
  Lines inner;
  {
    const StrictMode newest([&](const std::string& line) { inner.push_back(line); });
    Do(2222, "n");
  }
  Do(2201, "n", 999, 1);
  EXPECT_EQ(inner.size(), 1u);
  EXPECT_EQ(told.size(), 1u);
}

#ifdef __SANITIZE_ADDRESS__
TEST_F(Strict, ALookAfterTheEndIsFound) {
  const wchar_t* label = nullptr;
  int count = 0;
  char** names = nullptr;
  EXPECT_DEATH(
      {
        Do(2203, "n", 2, &label);
        Do(2201, "m", 31, 1);
        if (label[0] == 0) std::abort();
      },
      "heap-use-after-free");
  EXPECT_DEATH(
      {
        Do(2203, "root", 284, &count, &names);
        Add("below", "n");
        if (!names[0]) std::abort();
      },
      "heap-use-after-free");
  EXPECT_DEATH(
      {
        Do(2203, "n", 2, &label);
        uiox::Driver("dev").Activate("tree", "m");
        if (label[0] == 0) std::abort();
      },
      "heap-use-after-free");
}
#endif

TEST(DescribeCall, NamesFunctionPlaceAndCodes) {
  uiox::Call call(uiox::Function::SetAction);
  call.device = "dev";
  call.component = "tree";
  call.code = 3;
  EXPECT_EQ(uiox::Describe(call), "set_action dev:tree Select");
  uiox::Call beep(uiox::Function::Beep);
  EXPECT_EQ(uiox::Describe(beep), "beep");
}

}  // namespace
