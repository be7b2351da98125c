#include "Wire.h"

#include <uiox/Driver.h>

namespace {

using uiox::Driver;
using uiox::Suite;
using uiox_test::kEnd;
using uiox_test::Slot;
using uiox_test::WireTest;

constexpr char kBalloon[] = "ui_balloon_message_dialog.res";

using DeviceCalls = WireTest;

TEST_F(DeviceCalls, TheSearchPathIsThatOfTheContext) {
  EXPECT_NE(ui_create_search_path(1, "oxecad"), -1);
  EXPECT_EQ(ui_create_search_path(1, "other"), -1);
  EXPECT_EQ(ui_create_search_path(2, "oxecad"), -1);
  EXPECT_EQ(ui_create_search_path(1, nullptr), -1);
}

TEST_F(DeviceCalls, TheTwoCreatorsReportSuccessWithOppositeResults) {
  const int path = ui_create_search_path(1, "oxecad");
  EXPECT_NE(ui_create_device_ext(kBalloon, kBalloon, path), 0);
  EXPECT_EQ(ui_create_device_ext(kBalloon, kBalloon, path), 0) << "the name is in use";
  EXPECT_EQ(ui_create_device("RenameDlg", "RenameDlg"), 0);
  EXPECT_NE(ui_create_device("RenameDlg", "RenameDlg"), 0) << "the name is in use";
}

TEST_F(DeviceCalls, AMissingResourceMakesNoDevice) {
  const int path = ui_create_search_path(1, "oxecad");
  EXPECT_EQ(ui_create_device_ext("missing.res", "d", path), 0);
  EXPECT_EQ(ui_create_device_ext(kBalloon, "d", -1), 0) << "no such search path";
  EXPECT_EQ(ui_create_device_ext(nullptr, "d", path), 0);
  EXPECT_EQ(ui_create_device_ext(kBalloon, nullptr, path), 0);
  EXPECT_NE(ui_create_device("missing.res", "d"), 0);
  EXPECT_EQ(suite.Devices().size(), 1u);
}

TEST_F(DeviceCalls, TheBalloonHasItsComponents) {
  ASSERT_EQ(ui_create_device(kBalloon, kBalloon), 0);
  for (const char* name :
       {"icon", "message", "abort", "retry", "ignore", "yes", "no", "ok", "confirm", "cancel", kBalloon}) {
    EXPECT_NE(suite.Find(kBalloon, name), nullptr) << name;
  }
  EXPECT_EQ(suite.Find(kBalloon, "ok")->Class(), uiox::WidgetClass::PushButton);
}

TEST_F(DeviceCalls, TheRenameDialogHasItsComponents) {
  ASSERT_EQ(ui_create_device("RenameDlg", "RenameDlg"), 0);
  EXPECT_EQ(suite.Find("RenameDlg", "Name_Text")->Class(), uiox::WidgetClass::InputPanel);
  for (const char* name : {"OK", "Cancel", "Help"}) EXPECT_NE(suite.Find("RenameDlg", name), nullptr) << name;
}

TEST_F(DeviceCalls, DevicesAreShownAndHidden) {
  const uiox::Device& device = *suite.FindDevice("dev");
  EXPECT_FALSE(device.OnScreen());
  EXPECT_EQ(ui_manage_device("dev"), 0);
  EXPECT_TRUE(device.OnScreen());
  EXPECT_TRUE(tree.Visible());
  EXPECT_EQ(ui_unmanage_device("dev"), 0);
  EXPECT_FALSE(device.OnScreen());
  EXPECT_NE(ui_manage_device("missing"), 0);
  EXPECT_NE(ui_unmanage_device(nullptr), 0);
}

class ModalRun : public WireTest {
 protected:
  ModalRun() {
    for (const char* name : {"yes", "no"}) device.Add(uiox::WidgetClass::PushButton, name);
    ui_set_action("dev", "yes", 4, ui_exit_device, const_cast<char*>("dev"), Slot(8));
    ui_set_action("dev", "no", 4, ui_exit_device, const_cast<char*>("dev"), Slot(16));
  }
  uiox::Device& device = *suite.FindDevice("dev");
};

TEST_F(ModalRun, EndsWithTheValueOfTheButton) {
  suite.QueueUserAction([] { Driver("dev").Press("no"); });
  EXPECT_EQ(ui_activate_device("dev"), 16);
  EXPECT_TRUE(device.OnScreen()) << "it is hidden by its own call";
  EXPECT_FALSE(device.InModalRun());
}

TEST_F(ModalRun, TheUserPressesTheDefaultButtonInTheEnd) {
  device.SetDefaultButton("yes");
  EXPECT_EQ(ui_activate_device("dev"), 8);
}

TEST_F(ModalRun, TheUserClosesTheWindowWhereNoDefaultButtonIs) {
  ui_set_action("dev", "dev", 5, ui_exit_device, const_cast<char*>("dev"), Slot(128));
  EXPECT_EQ(ui_activate_device("dev"), 128);
}

TEST_F(ModalRun, NeverHangs) { EXPECT_EQ(ui_activate_device("dev"), Suite::kNoResult); }

TEST_F(ModalRun, ActionsArePerformedInOrderUntilItIsOver) {
  std::string done;
  suite.QueueUserAction([&] { done += 'a'; });
  suite.QueueUserAction([&] { Driver("dev").Press("yes"); });
  suite.QueueUserAction([&] { done += 'b'; });
  EXPECT_EQ(ui_activate_device("dev"), 8);
  EXPECT_EQ(done, "a");
  EXPECT_EQ(suite.QueuedUserActions(), 1u) << "the rest waits for the next run";
}

TEST_F(ModalRun, OneRunStandsInAnother) {
  ASSERT_EQ(ui_create_device("RenameDlg", "inner"), 0);
  ui_set_action("inner", "OK", 4, ui_exit_device, const_cast<char*>("inner"), Slot(1));
  int inner = 0;
  suite.QueueUserAction([&] { inner = ui_activate_device("inner"); });
  suite.QueueUserAction([&] {
    EXPECT_EQ(suite.ModalDevice()->Name(), std::string("inner"));
    Driver("inner").Press("OK");
  });
  suite.QueueUserAction([] { Driver("dev").Press("no"); });
  EXPECT_EQ(ui_activate_device("dev"), 16);
  EXPECT_EQ(inner, 1);
  EXPECT_EQ(suite.ModalDevice(), nullptr);
}

TEST_F(ModalRun, ADeviceThatEndsEndsItsRun) {
  suite.QueueUserAction([this] { suite.DestroyDevice("dev"); });
  EXPECT_EQ(ui_activate_device("dev"), Suite::kNoResult);
}

TEST_F(ModalRun, ExitNeedsARun) {
  EXPECT_NE(ui_exit_device(const_cast<char*>("dev"), nullptr), 0);
  EXPECT_NE(ui_exit_device(const_cast<char*>("missing"), nullptr), 0);
  EXPECT_NE(ui_exit_device(nullptr, nullptr), 0);
  EXPECT_EQ(ui_activate_device("missing"), Suite::kNoResult);
}

/// A front with an event loop of its own.
class Loop final : public uiox::Front {
 public:
  void Beep() override { ++beeps; }
  void RunModal(uiox::Device& device) override {
    ++runs;
    Driver(device.Name()).Press("no");
    EXPECT_TRUE(Suite::Get().IsModalRunOver(device));
  }
  bool QueryScreen(uiox::ScreenSize& size) override {
    size = {800, 600};
    return true;
  }
  bool QueryGeometry(const uiox::Widget& widget, uiox::Rect& rect) override {
    rect = {1, 2, 3, 4};
    return widget.AsTree() != nullptr;
  }
  int beeps = 0;
  int runs = 0;
};

TEST_F(ModalRun, RunsInTheLoopOfTheFront) {
  Loop loop;
  suite.SetFront(&loop);
  EXPECT_EQ(ui_activate_device("dev"), 16);
  EXPECT_EQ(loop.runs, 1);
  suite.SetFront(nullptr);
}

TEST_F(DeviceCalls, AFrontKnowsTheScreen) {
  Loop loop;
  suite.SetFront(&loop);
  int width = 0;
  int height = 0;
  EXPECT_EQ(ui_global_inquire(4001, &width, 4002, &height, kEnd), 0);
  EXPECT_EQ(width, 800);
  EXPECT_EQ(height, 600);
  EXPECT_EQ(Do(2003, &width, &height), 0);
  EXPECT_EQ(width, 3);
  ui_beep();
  EXPECT_EQ(loop.beeps, 1);
  suite.SetFront(nullptr);
}

TEST_F(DeviceCalls, TheCurrentComponentIsWhereTheUserIs) {
  const char* device = "preset";
  const char* component = "preset";
  EXPECT_EQ(ui_global_inquire(4003, &device, 4004, &component, kEnd), 0);
  EXPECT_EQ(device, nullptr);
  EXPECT_EQ(component, nullptr);
  suite.SetCurrent("dev", "tree");
  EXPECT_EQ(ui_global_inquire(4003, &device, 4004, &component, kEnd), 0);
  EXPECT_STREQ(device, "dev");
  EXPECT_STREQ(component, "tree");
  EXPECT_NE(ui_global_inquire(4003, nullptr, kEnd), 0);
  EXPECT_NE(ui_global_inquire(4999, &device, kEnd), 0);
}

/// Writes down what the suite tells.
class Diary final : public uiox::SuiteObserver {
 public:
  Diary() { Suite::Get().AddObserver(this); }
  ~Diary() override { Suite::Get().RemoveObserver(this); }
  std::string text;

  void DeviceCreated(uiox::Device& device) override { Note("created", device); }
  void AboutToDestroyDevice(uiox::Device& device) override { Note("destroyed", device); }
  void DeviceShown(uiox::Device& device) override { Note("shown", device); }
  void DeviceHidden(uiox::Device& device) override { Note("hidden", device); }
  void ModalRunStarted(uiox::Device& device) override { Note("started", device); }
  void ModalRunEnded(uiox::Device& device, int result) override { Note("ended" + std::to_string(result), device); }
  void ControlCreated(uiox::Widget& control) override { Note("control", control); }
  void AboutToDestroyControl(uiox::Widget& control) override { Note("no-control", control); }
  void WidgetChanged(uiox::Widget& widget, uiox::WidgetChange change) override {
    Note("change" + std::to_string(static_cast<int>(change)), widget);
  }

 private:
  void Note(const std::string& what, const uiox::Widget& widget) { text += what + ' ' + widget.Name() + '\n'; }
};

TEST_F(DeviceCalls, TheLifeOfADeviceIsTold) {
  Diary diary;
  ui_create_device("RenameDlg", "d");
  ui_set_action("d", "OK", 4, ui_exit_device, const_cast<char*>("d"), Slot(3));
  ui_activate_device("d");
  ui_unmanage_device("d");
  ui_unmanage_device("d");
  suite.DestroyDevice("d");
  EXPECT_EQ(diary.text, "created d\nshown d\nstarted d\nended3 d\nhidden d\ndestroyed d\n");
}

TEST_F(DeviceCalls, OnlyRealChangesAreTold) {
  ui_create_device("RenameDlg", "d");
  Diary diary;
  for (int i = 0; i < 2; ++i) {
    ui_modify("d", "Name_Text", 15, L"x", kEnd);
    ui_modify("d", "OK", 3, Slot(0), kEnd);
    Do(2053, "dim", "CheckButton");
  }
  Do(2085, "dim");
  EXPECT_EQ(diary.text, "change1 Name_Text\nchange2 OK\ncontrol dim\nno-control dim\n");
}

}  // namespace
