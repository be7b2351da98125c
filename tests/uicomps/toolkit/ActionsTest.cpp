// Callbacks of a component as functions of the wire's type.
#include <gtest/gtest.h>
#include <tests/support/RecordingToolkit.h>
#include <uicomps/toolkit/Actions.h>
#include <uicomps/toolkit/DeviceCalls.h>

#include <cstdint>
#include <type_traits>

namespace oxecad_ui::wire {
namespace {

using test_support::RecordingToolkit;

struct Counter {
  static int Count(Counter* self) { return self ? ++self->calls : -1; }
  static int CountAgain(Counter* self) { return self ? ++self->calls : -1; }
  static int Add(Counter* self, void* value) {
    self->sum += reinterpret_cast<std::uintptr_t>(value);
    return 5;
  }
  int calls = 0;
  std::uint64_t sum = 0;
};

constexpr Widget kTree{"dev", "tree"};

static_assert(std::is_same_v<decltype(&Call<&Counter::Count>), ui_callback>, "a function of exactly the wire's type");
static_assert(std::is_same_v<decltype(&Call<&Counter::Add>), ui_callback>);

TEST(Actions, CallTheComponentThatWasRegisteredAndGiveItsResult) {
  RecordingToolkit toolkit;
  Counter counter;
  AddAction<&Counter::Count>(kTree, Reason::Activate, &counter);
  EXPECT_EQ(toolkit.Fire("tree", 4), 1);
  EXPECT_EQ(toolkit.Fire("tree", 4), 2);
  EXPECT_EQ(Call<&Counter::Count>(nullptr, nullptr), -1);
}

TEST(Actions, AreRemovedByTheFunctionThatWasAdded) {
  RecordingToolkit toolkit;
  Counter counter;
  toolkit.NamePointer(&counter, "&counter");
  AddAction<&Counter::Count>(kTree, Reason::Activate, &counter);
  AddAction<&Counter::CountAgain>(kTree, Reason::Activate, &counter);
  RemoveAction<&Counter::Count>(kTree, Reason::Activate);
  EXPECT_TRUE(toolkit.Took(R"(
    add_action dev:tree 4 Activate f1 &counter 0
    add_action dev:tree 4 Activate f2 &counter 0
    remove_action dev:tree 4 Activate f1)"));
  ASSERT_EQ(toolkit.Registered().size(), 1u);
  EXPECT_EQ(toolkit.Registered().front().callback, &Call<&Counter::CountAgain>);
}

TEST(Actions, CarryAnIndexWhereTheEndWouldBe) {
  RecordingToolkit toolkit;
  Counter counter;
  toolkit.NamePointer(&counter, "&counter");
  AddAction<&Counter::Add>(kTree, Reason::Input, &counter, 7);
  SetAction<&Counter::Add>(kTree, Reason::Select, &counter, 0x123456789Au);
  EXPECT_EQ(toolkit.Fire("tree", 8), 5);
  EXPECT_EQ(toolkit.Fire("tree", 3), 5);
  EXPECT_EQ(counter.sum, 7u + 0x123456789Au) << "the value is as wide as a pointer";
  EXPECT_TRUE(toolkit.Took(R"(
    add_action dev:tree 8 Input f1 &counter 7
    set_action dev:tree 3 Select f1 &counter 78187493530)"));
}

TEST(Actions, ThatAreSetTakeThePlaceOfTheOthers) {
  RecordingToolkit toolkit;
  Counter counter;
  SetAction<&Counter::Add>(kTree, Reason::Select, &counter, 1);
  SetAction<&Counter::Add>(kTree, Reason::Select, &counter, 2);
  toolkit.Fire("tree", 3);
  EXPECT_EQ(counter.sum, 2u);
}

TEST(Actions, GiveTheToolkitsResult) {
  RecordingToolkit toolkit;
  Counter counter;
  EXPECT_TRUE((AddAction<&Counter::Count>(kTree, Reason::Activate, &counter)));
  toolkit.FailAll(test_support::Failure::Refused);
  EXPECT_FALSE((AddAction<&Counter::Count>(kTree, Reason::Activate, &counter)));
  EXPECT_FALSE((SetAction<&Counter::Add>(kTree, Reason::Activate, &counter, 1)));
}

TEST(Actions, EndADevicesRunWithAValue) {
  RecordingToolkit toolkit;
  const char* const device = "dlg";
  toolkit.NamePointer(device, "dlg");
  EXPECT_TRUE(EndRunOn({device, "ok"}, Reason::Activate, 32));
  EXPECT_TRUE(EndRunOn({device, device}, Reason::Close, 0x80000000u));
  ASSERT_EQ(toolkit.Registered().size(), 2u);
  EXPECT_EQ(toolkit.Registered().front().callback, &ui_exit_device);
  DoNotEndRunOn({device, device}, Reason::Close);
  EXPECT_TRUE(toolkit.Took(R"(
    set_action dlg:ok 4 Activate f1 dlg 32
    set_action dlg:dlg 5 Close f1 dlg 2147483648
    remove_action dlg:dlg 5 Close f1)"));
}

}  // namespace
}  // namespace oxecad_ui::wire
