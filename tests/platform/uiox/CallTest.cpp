#include "Wire.h"

#include <uiox/Backend.h>
#include <uiox/Call.h>

#include <functional>

namespace {

using uiox::Call;
using uiox::CodeGroup;
using uiox::Fault;
using uiox::Function;
using uiox_test::Slot;

/// Shows each call to a test and answers with a number of the test's.
class Watcher final : public uiox::Backend {
 public:
  explicit Watcher(std::function<void(const Call&)> look, int answer = 0) : look_(std::move(look)), answer_(answer) {}
  int Handle(Call& call) override {
    ++calls;
    look_(call);
    return answer_;
  }
  int calls = 0;

 private:
  std::function<void(const Call&)> look_;
  int answer_;
};

void Watch(const std::function<void()>& make_call, const std::function<void(const Call&)>& look) {
  Watcher watcher(look);
  const uiox::BackendScope scope(watcher);
  make_call();
  EXPECT_EQ(watcher.calls, 1);
}

constexpr std::intptr_t kEnd = 0;
int Callback(void*, void*) { return 0; }

TEST(CallDecoding, SplitsPositionalSlotsAndOptions) {
  int data = 0;
  Watch(
      [&] {
        ui_do_operation("dev", "tree", 2030, "n", L"label", "p", "before", "type", 2, L"second", 128, Slot(-1), 256,
                        Slot(2), 512, Slot(3), 1024, &data, kEnd);
      },
      [&](const Call& call) {
        EXPECT_EQ(call.function, Function::DoOperation);
        EXPECT_EQ(call.fault, Fault::None);
        EXPECT_STREQ(call.device, "dev");
        EXPECT_STREQ(call.component, "tree");
        EXPECT_EQ(call.code, 2030);
        ASSERT_EQ(call.positional_count, 5);
        EXPECT_STREQ(call.positional[0].Text(), "n");
        EXPECT_STREQ(call.positional[1].Wide(), L"label");
        EXPECT_STREQ(call.positional[4].Text(), "type");
        EXPECT_EQ(call.option_group, CodeGroup::NodeOption);
        ASSERT_EQ(call.option_count, 5);
        EXPECT_STREQ(call.Find(2)->value.Wide(), L"second");
        EXPECT_EQ(call.Find(128)->value.Int(), -1);
        EXPECT_EQ(call.Find(1024)->value.Pointer(), &data);
        EXPECT_EQ(call.Find(8), nullptr);
        EXPECT_EQ(call.options[0].shape, 'w');
      });
}

TEST(CallDecoding, GivesAListTwoSlots) {
  int count = 0;
  const char* const* names = nullptr;
  const void* kind = nullptr;
  Watch([&] { ui_retrieve("dev", "tree", 72, &count, &names, 267, &kind, kEnd); },
        [&](const Call& call) {
          EXPECT_EQ(call.function, Function::Retrieve);
          ASSERT_EQ(call.option_count, 2);
          EXPECT_EQ(call.options[0].shape, 'L');
          EXPECT_EQ(call.options[0].value.Pointer(), &count);
          EXPECT_EQ(call.options[0].array.Pointer(), &names);
          EXPECT_EQ(call.options[1].code, 267);
          EXPECT_EQ(call.options[1].shape, 'I');
          EXPECT_EQ(call.options[1].value.Pointer(), &kind);
        });
}

TEST(CallDecoding, ReadsNothingBehindAMove) {
  Watch([&] { ui_do_operation("dev", "tree", 2032, "n", "p", static_cast<const char*>(nullptr)); },
        [&](const Call& call) {
          EXPECT_EQ(call.fault, Fault::None);
          ASSERT_EQ(call.positional_count, 3);
          EXPECT_EQ(call.positional[2].Text(), nullptr);
          EXPECT_EQ(call.option_count, 0);
        });
}

TEST(CallDecoding, TakesTheSixthArgumentOfAnActionAsItsValue) {
  int client = 0;
  Watch([&] { ui_add_action("dev", "tree", 8, Callback, &client, Slot(7)); },
        [&](const Call& call) {
          EXPECT_EQ(call.function, Function::AddAction);
          EXPECT_EQ(call.code, 8);
          EXPECT_EQ(call.callback, Callback);
          EXPECT_EQ(call.client_data, &client);
          EXPECT_EQ(call.value, reinterpret_cast<void*>(7));
        });
}

TEST(CallDecoding, KnowsWhatIsReleased) {
  char** array = nullptr;
  Watch([&] { ui_free(284, Slot(3), &array, kEnd); },
        [&](const Call& call) {
          EXPECT_EQ(call.function, Function::Free);
          ASSERT_EQ(call.option_count, 1);
          EXPECT_EQ(call.options[0].shape, 'l');
          EXPECT_EQ(call.options[0].value.Int(), 3);
          EXPECT_EQ(call.options[0].array.Pointer(), &array);
        });
}

TEST(CallDecoding, ReadsTheFirstGlobalCodeFromTheNamedArgument) {
  int width = 0;
  int height = 0;
  Watch([&] { ui_global_inquire(4001, &width, 4002, &height, kEnd); },
        [&](const Call& call) {
          ASSERT_EQ(call.option_count, 2);
          EXPECT_EQ(call.options[0].code, 4001);
          EXPECT_EQ(call.options[0].value.Pointer(), &width);
          EXPECT_EQ(call.options[1].value.Pointer(), &height);
        });
}

TEST(CallDecoding, MarksAnUnknownOperation) {
  Watch([&] { ui_do_operation("dev", "tree", 2222, "n", kEnd); },
        [&](const Call& call) {
          EXPECT_EQ(call.fault, Fault::UnknownOperation);
          EXPECT_EQ(call.fault_code, 2222);
          EXPECT_EQ(call.positional_count, 0);
        });
}

TEST(CallDecoding, StopsAtAnUnknownOption) {
  Watch([&] { ui_do_operation("dev", "tree", 2201, "n", 31, Slot(1), 999, Slot(1), 4, Slot(1), kEnd); },
        [&](const Call& call) {
          EXPECT_EQ(call.fault, Fault::UnknownOption);
          EXPECT_EQ(call.fault_code, 999);
          EXPECT_EQ(call.option_count, 1);
        });
}

TEST(CallDecoding, MarksAMissingEnd) {
  Watch([&] { ui_do_operation("dev", "tree", 2031, "n", Slot(5)); },
        [&](const Call& call) { EXPECT_EQ(call.fault, Fault::MissingEnd); });
  char* text = nullptr;
  Watch([&] { ui_free(2, &text, Slot(9)); }, [&](const Call& call) { EXPECT_EQ(call.fault, Fault::MissingEnd); });
}

TEST(CallDecoding, MarksAListThatNeverEnds) {
  // 33 pairs, one more than there may be.
  const auto p = Slot(1);
  Watch(
      [&] {
        ui_do_operation("dev", "tree", 2201, "n", 3, p, 3, p, 3, p, 3, p, 3, p, 3, p, 3, p, 3, p, 3, p, 3, p, 3, p, 3,
                        p, 3, p, 3, p, 3, p, 3, p, 3, p, 3, p, 3, p, 3, p, 3, p, 3, p, 3, p, 3, p, 3, p, 3, p, 3, p, 3,
                        p, 3, p, 3, p, 3, p, 3, p, 3, p, kEnd);
      },
      [&](const Call& call) {
        EXPECT_EQ(call.fault, Fault::MissingEnd);
        EXPECT_EQ(call.option_count, Call::kMaxOptions);
      });
}

TEST(CallDecoding, EveryFunctionArrives) {
  const auto is = [](Function function) {
    return [function](const Call& call) { EXPECT_EQ(call.function, function); };
  };
  Watch([] { ui_modify("d", "c", 5, Slot(1), kEnd); }, is(Function::Modify));
  Watch([] { ui_remove_action("d", "c", 3, Callback); }, is(Function::RemoveAction));
  Watch([] { ui_set_action("d", "c", 3, Callback, nullptr, Slot(1)); }, is(Function::SetAction));
  Watch([] { ui_create_search_path(1, "oxecad"); }, is(Function::CreateSearchPath));
  Watch([] { ui_create_device_ext("r", "d", 1); }, is(Function::CreateDeviceExt));
  Watch([] { ui_create_device("r", "d"); }, is(Function::CreateDevice));
  Watch([] { ui_manage_device("d"); }, is(Function::ManageDevice));
  Watch([] { ui_activate_device("d"); }, is(Function::ActivateDevice));
  Watch([] { ui_unmanage_device("d"); }, is(Function::UnmanageDevice));
  Watch([] { ui_exit_device(nullptr, nullptr); }, is(Function::ExitDevice));
  Watch([] { ui_global_do_operation(6030, "i", nullptr, kEnd); }, is(Function::GlobalDoOperation));
  Watch([] { ui_beep(); }, is(Function::Beep));
}

TEST(Backend, AnswersInPlaceOfTheBuiltInOneAndGoesAgain) {
  {
    Watcher watcher([](const Call&) {}, 42);
    const uiox::BackendScope scope(watcher);
    EXPECT_EQ(ui_beep(), 42);
  }
  const std::size_t beeps = uiox::Suite::Get().Beeps();
  EXPECT_EQ(ui_beep(), 0);
  EXPECT_EQ(uiox::Suite::Get().Beeps(), beeps + 1);
}

TEST(Backend, CanHandACallOnToTheBuiltInOne) {
  struct Passing final : uiox::Backend {
    int Handle(Call& call) override { return uiox::BuiltIn().Handle(call); }
  } passing;
  const uiox::BackendScope scope(passing);
  int width = 0;
  EXPECT_EQ(ui_global_inquire(4001, &width, kEnd), 0);
  EXPECT_EQ(width, 1920);
}

TEST(BuiltIn, RefusesCallsWithAFault) {
  EXPECT_NE(ui_do_operation("dev", "tree", 2222, kEnd), 0);
  uiox::Suite::Get().ObtainTree("dev", "tree");
  EXPECT_NE(ui_modify("dev", "tree", 5, Slot(0), 999, Slot(0), kEnd), 0);
  EXPECT_TRUE(uiox::Suite::Get().FindDevice("dev")->FindTree("tree")->Sensitive()) << "a refused call changes nothing";
}

}  // namespace
