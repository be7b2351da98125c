#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>
#include <tests/support/RecordingToolkit.h>
#include <tests/support/TreeDrawing.h>
#include <uicomps/toolkit/Toolkit.h>

#include <cstdint>

namespace test_support {
namespace {

constexpr std::intptr_t kEnd = 0;
std::intptr_t Slot(int value) { return value; }
int Twice(void* client, void* value) {
  return 2 * static_cast<int>(*static_cast<int*>(client) + reinterpret_cast<std::intptr_t>(value));
}

TEST(RecordingToolkit, WritesAnOperationWithItsNameValuesPairsAndEnd) {
  RecordingToolkit toolkit;
  EXPECT_EQ(ui_do_operation("dev", "tree", 2029, "n1", L"n1", "root", "net", 2, L"", 128, Slot(-1), 256, Slot(0), 512,
                            Slot(0), 1024, static_cast<void*>(nullptr), kEnd),
            0);
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2029 AddNode "n1" L"n1" "root" "net" | 2=L"" 128=-1 256=0 512=0 1024=null | 0)"));
}

TEST(RecordingToolkit, WritesAnOperationWithoutAList) {
  RecordingToolkit toolkit;
  ui_do_operation("dev", "tree", 2032, "n1", "root", static_cast<const char*>(nullptr));
  EXPECT_TRUE(toolkit.Took(R"(do dev:tree 2032 MoveNode "n1" "root" null)"));
}

TEST(RecordingToolkit, MarksAValueThatWasNotWidened) {
  RecordingToolkit toolkit;
  ui_modify("dev", "tree", 5, std::intptr_t{0x100000001}, kEnd);
  ui_do_operation("dev", "tree", 2201, "n", 31, std::intptr_t{-1}, kEnd);
  EXPECT_TRUE(toolkit.Took(R"(
    modify dev:tree | 5=!badly-widened:0x100000001 | 0
    do dev:tree 2201 SetNode "n" | 31=!badly-widened:0xffffffffffffffff | 0)"));
}

TEST(RecordingToolkit, AnswersByTheNewestRuleThatFits) {
  RecordingToolkit toolkit;
  toolkit.When(Doing(2203)).Give(31, 1);
  toolkit.When(Doing(2203, "n2")).Refuse(7).Once();
  std::uint32_t state = 9;
  EXPECT_EQ(ui_do_operation("dev", "tree", 2203, "n1", 31, &state, kEnd), 0);
  EXPECT_EQ(state, 1u);
  state = 9;
  EXPECT_EQ(ui_do_operation("dev", "tree", 2203, "n2", 31, &state, kEnd), 7);
  EXPECT_EQ(state, 9u);
  EXPECT_EQ(ui_do_operation("dev", "tree", 2203, "n2", 31, &state, kEnd), 0);
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2203 InquireNode "n1" | 31->1 | 0
    do dev:tree 2203 InquireNode "n2" | 31=? | 0 => 7
    do dev:tree 2203 InquireNode "n2" | 31->1 | 0)"));
}

TEST(RecordingToolkit, AcceptsWhatIsReleasedAsItWasHandedOut) {
  RecordingToolkit toolkit;
  toolkit.When(Doing(2202)).Give(2, L"R9").Give(284, {"a", nullptr});
  const wchar_t* label = nullptr;
  int count = 0;
  char** names = nullptr;
  ui_do_operation("dev", "tree", 2202, "n1", 2, &label, 284, &count, &names, kEnd);
  ui_free(2, &label, kEnd);
  ui_free(284, Slot(count), &names, kEnd);
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2202 GetNode "n1" | 2->L"R9" 284->["a" null] | 0
    free 2 L"R9" | 0
    free 284 ["a" null] | 0)"));
  EXPECT_TRUE(toolkit.TakeComplaints().empty());
}

TEST(RecordingToolkit, ComplainsOfWrongReleases) {
  RecordingToolkit toolkit;
  toolkit.When(Doing(2202)).Give(282, "net").Give(284, {"a", "b"});
  const char* type = nullptr;
  int count = 0;
  char** names = nullptr;
  const auto read = [&] { ui_do_operation("dev", "tree", 2202, "n1", 282, &type, 284, &count, &names, kEnd); };
  read();
  EXPECT_EQ(toolkit.TakeComplaints().size(), 2u) << "both are still out";
  ui_free(283, &type, kEnd);
  ui_free(284, Slot(1), &names, kEnd);
  EXPECT_EQ(toolkit.TakeComplaints().size(), 2u) << "wrong attribute, wrong count";
  ui_free(282, &type, kEnd);
  EXPECT_EQ(toolkit.TakeComplaints().size(), 1u) << "twice";
}

TEST(RecordingToolkit, TakesNullsBackAtWill) {
  RecordingToolkit toolkit;
  const char* type = nullptr;
  char** names = nullptr;
  EXPECT_EQ(ui_free(282, &type, kEnd), 0);
  EXPECT_EQ(ui_free(284, kEnd, &names, kEnd), 0);
  EXPECT_TRUE(toolkit.Took("free 282 null | 0\nfree 284 [] | 0"));
}

TEST(RecordingToolkit, FailsTheChosenCallInTheChosenWay) {
  RecordingToolkit toolkit;
  toolkit.When(Retrieving(54)).Give(54, "root");
  const char* root = nullptr;
  const auto read = [&] {
    root = "preset";
    return ui_retrieve("dev", "tree", 54, &root, kEnd);
  };
  toolkit.FailCall(2, Failure::Refused);
  EXPECT_EQ(read(), 0);
  EXPECT_STREQ(root, "root");
  EXPECT_NE(read(), 0);
  EXPECT_STREQ(root, "preset");
  toolkit.FailCall(1, Failure::Scribbled);
  EXPECT_NE(read(), 0);
  EXPECT_EQ(reinterpret_cast<std::uintptr_t>(root), 0xDEADBEEFu);
  toolkit.FailCall(1, Failure::Ignored);
  EXPECT_EQ(read(), 0);
  EXPECT_STREQ(root, "preset");
  toolkit.FailCall(1, Failure::NullAnswers);
  EXPECT_EQ(read(), 0);
  EXPECT_EQ(root, nullptr);
}

TEST(RecordingToolkit, CallsBackWhatWasRegistered) {
  RecordingToolkit toolkit;
  int client = 20;
  toolkit.NamePointer(&client, "&client");
  ui_add_action("dev", "tree", 4, Twice, &client, std::intptr_t{1});
  EXPECT_EQ(toolkit.Fire("tree", 4), 42);
  ui_remove_action("dev", "tree", 4, Twice);
  EXPECT_TRUE(toolkit.Registered().empty());
  EXPECT_TRUE(toolkit.Took(R"(
    add_action dev:tree 4 Activate f1 &client 1
    remove_action dev:tree 4 Activate f1)"));
}

TEST(RecordingToolkit, WritesDeviceCalls) {
  RecordingToolkit toolkit;
  toolkit.When(Calling(uiox::Function::ActivateDevice)).Result(4);
  toolkit.When(Doing(2003)).GiveInOrder({400, 300});
  toolkit.When(Inquiring(4001)).Give(4001, 1920);
  int width = 0;
  int height = 0;
  EXPECT_EQ(ui_create_search_path(1, "oxecad"), 0);
  EXPECT_NE(ui_create_device_ext("r", "r", 0), 0);
  ui_do_operation("r", "r", 2003, &width, &height, kEnd);
  ui_global_inquire(4001, &width, kEnd);
  EXPECT_EQ(ui_activate_device("r"), 4);
  ui_exit_device(const_cast<char*>("r"), reinterpret_cast<void*>(3));
  ui_beep();
  EXPECT_TRUE(toolkit.Took(R"(
    create_search_path 1 "oxecad" => 0
    create_device_ext "r" "r" 0 => 1
    do r:r 2003 GetSize ->400 ->300 | 0
    global_inquire | 4001->1920 | 0
    activate_device "r" => 4
    exit_device "r" 3
    beep)"));
}

class InFrontOfTheStandIn : public testing::Test {
 protected:
  InFrontOfTheStandIn() {
    uiox::Suite::Get().Reset();
    Plant(uiox::Suite::Get().ObtainTree("dev", "tree"), "root\n  a \"A\"\n  b");
  }
  RecordingToolkit toolkit{RecordingToolkit::StandIn};
};

TEST_F(InFrontOfTheStandIn, HandsCallsOnAndWritesTheAnswers) {
  const wchar_t* label = nullptr;
  int count = 0;
  char** names = nullptr;
  EXPECT_EQ(ui_do_operation("dev", "tree", 2202, "a", 2, &label, kEnd), 0);
  ui_free(2, &label, kEnd);
  EXPECT_EQ(ui_do_operation("dev", "tree", 2202, "root", 284, &count, &names, kEnd), 0);
  ui_free(284, Slot(count), &names, kEnd);
  EXPECT_NE(ui_do_operation("dev", "tree", 2031, "nowhere", kEnd), 0);
  const std::vector<std::string> lines = toolkit.TakeLines();
  ASSERT_EQ(lines.size(), 5u);
  EXPECT_EQ(lines[0], R"(do dev:tree 2202 GetNode "a" | 2->L"A" | 0)");
  EXPECT_EQ(lines[1], R"(free 2 L"A" | 0)");
  EXPECT_EQ(lines[3], R"(free 284 ["a" "b"] | 0)");
  EXPECT_EQ(lines[4].find(R"(do dev:tree 2031 DeleteNode "nowhere" | 0 => )"), 0u);
}

TEST_F(InFrontOfTheStandIn, ChecksReleasesOfWhatTheStandInGave) {
  const char* type = nullptr;
  ui_do_operation("dev", "tree", 2202, "a", 282, &type, kEnd);
  EXPECT_EQ(toolkit.TakeComplaints(), std::vector<std::string>{"never released: attribute 282 of \"a\""});
  ui_free(282, &type, kEnd);
  EXPECT_TRUE(toolkit.TakeComplaints().empty());
}

TEST_F(InFrontOfTheStandIn, KeepsAFailedCallFromIt) {
  toolkit.FailCall(1, Failure::Refused);
  EXPECT_EQ(ui_do_operation("dev", "tree", 2031, "a", kEnd), 1);
  toolkit.FailCall(1, Failure::Ignored);
  EXPECT_EQ(ui_do_operation("dev", "tree", 2031, "a", kEnd), 0);
  EXPECT_EQ(Drawn(uiox::Suite::Get().ObtainTree("dev", "tree"), kNothingMore), "root\n  a \"A\"\n  b");
  toolkit.When(Doing(2031)).Refuse(9);
  EXPECT_EQ(ui_do_operation("dev", "tree", 2031, "a", kEnd), 9) << "a rule comes first";
}

TEST(ForEachFailure, RunsOnceWellAndThenOnceForEachCallAndWay) {
  int runs = 0;
  int failures = 0;
  ForEachFailure(
      RecordingToolkit::Nobody, [](RecordingToolkit& toolkit) { toolkit.When(Retrieving(54)).Give(54, "root"); },
      [&](RecordingToolkit&) {
        ++runs;
        const char* root = nullptr;
        if (ui_retrieve("dev", "tree", 54, &root, kEnd) != 0 || !root) ++failures;
        if (ui_manage_device("dev") != 0) ++failures;
      });
  EXPECT_EQ(runs, 1 + 2 * 5);
  EXPECT_EQ(failures, 5 + 2) << "each way is a failure of the reading call, two are of the other";
}

TEST(RecordingToolkit, FailsTheTestThatKeepsWhatWasHandedOut) {
  EXPECT_NONFATAL_FAILURE(
      {
        RecordingToolkit toolkit;
        toolkit.When(Doing(2202)).Give(282, "net");
        const char* type = nullptr;
        ui_do_operation("dev", "tree", 2202, "n", 282, &type, kEnd);
      },
      "never released: attribute 282 of \"n\"");
}

TEST(RecordingToolkit, ShowsTheNamesOfOptionsWhereLinesPart) {
  RecordingToolkit toolkit;
  ui_modify("dev", "tree", 5, Slot(1), kEnd);
  const testing::AssertionResult took = toolkit.Took("modify dev:tree | 5=0 | 0");
  EXPECT_FALSE(took);
  EXPECT_NE(std::string(took.message()).find("modify dev:tree | 5.Sensitive=1 | 0"), std::string::npos)
      << took.message();
}

TEST(RecordingToolkit, WritesACallThatACallbackMakesBehindTheOneThatCalledBack) {
  RecordingToolkit toolkit;
  toolkit.When(Calling(uiox::Function::ActivateDevice)).Run([](const uiox::Call&) { ui_beep(); }).Result(3);
  EXPECT_EQ(ui_activate_device("dlg"), 3);
  EXPECT_TRUE(toolkit.Took("activate_device \"dlg\" => 3\nbeep"));
}

TEST(RecordingToolkit, ComparesLinesWithGapsAllowed) {
  RecordingToolkit toolkit;
  const auto three = [] {
    ui_beep();
    ui_manage_device("d");
    ui_unmanage_device("d");
  };
  three();
  EXPECT_TRUE(toolkit.Took("beep\n...\nunmanage_device \"d\""));
  three();
  EXPECT_FALSE(toolkit.Took("beep\nunmanage_device \"d\""));
  three();
  EXPECT_FALSE(toolkit.Took("beep\nmanage_device \"d\""));
  three();
  EXPECT_FALSE(toolkit.Took("beep\nmanage_device \"d\"\nunmanage_device \"d\"\nbeep"));
}

}  // namespace
}  // namespace test_support
