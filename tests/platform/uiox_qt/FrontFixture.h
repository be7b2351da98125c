/// \file
/// A front with devices, for tests.
#ifndef OXECAD_TESTS_UIOX_QT_FRONTFIXTURE_H
#define OXECAD_TESTS_UIOX_QT_FRONTFIXTURE_H

#include <uiox/Suite.h>
#include <uiox_qt/QtFront.h>

#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <QTimer>
#include <QWidget>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace uiox_qt_tests {

/// A front, and one word for each callback that was listened to.
class FrontFixture : public ::testing::Test {
 protected:
  using Words = std::vector<std::string>;

  void SetUp() override {
    uiox::Suite::Get().Reset();
    front_ = std::make_unique<uiox_qt::QtFront>();
  }
  void TearDown() override {
    front_.reset();
    uiox::Suite::Get().Reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  static uiox::Suite& Suite() { return uiox::Suite::Get(); }
  uiox_qt::QtFront& Front() { return *front_; }

  uiox::Device& Make(const std::string& device, const std::string& json) {
    std::string why;
    uiox::Device* made = Suite().LoadDevice(json, device, &why);
    EXPECT_TRUE(made) << why;
    return *made;
  }

  /// Shows a device and waits until its window is up.
  QWidget& Show(uiox::Device& device) {
    device.Show();
    Settle();
    QWidget* window = Front().WindowFor(device.Name());
    EXPECT_TRUE(window && window->isVisible());
    return *window;
  }

  template <class Qt>
  Qt& Part(uiox::Device& device, const std::string& component) {
    auto* widget = dynamic_cast<Qt*>(Front().ComponentFor(device.Name(), component));
    EXPECT_TRUE(widget) << component;
    return *widget;
  }

  /// Notes "component:reason" at each callback.
  void Listen(uiox::Device& device, const std::string& component, int reason) {
    ears_.push_back(std::make_unique<Ear>(Ear{this, component + ':' + std::to_string(reason)}));
    device.Find(component)->Actions().Add({reason, &FrontFixture::Hear, ears_.back().get(), nullptr});
  }
  Words Heard() { return std::exchange(heard_, {}); }

  static constexpr char kBalloon[] = "ui_balloon_message_dialog.res";
  /// The library makes the device of balloons once in a process; where cases share one, the suite has forgotten it.
  static void ObtainBalloonDevice() {
    static bool made = false;
    if (made) {
      ASSERT_TRUE(Suite().CreateDevice(kBalloon, kBalloon));
    }
    made = true;
  }

  /// Done as soon as a modal run has its event loop going and its window is up.
  static void Soon(std::function<void()> action) {
    QTimer::singleShot(0, qApp, [action = std::move(action)] {
      Settle();
      action();
    });
  }
  static void Settle() {
    for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
  }

  std::function<void(const std::string&)> on_hear_;

 private:
  struct Ear {
    FrontFixture* fixture;
    std::string word;
  };
  static int Hear(void* ear, void*) {
    const Ear heard = *static_cast<Ear*>(ear);
    heard.fixture->heard_.push_back(heard.word);
    if (heard.fixture->on_hear_) heard.fixture->on_hear_(heard.word);
    return 0;
  }

  std::unique_ptr<uiox_qt::QtFront> front_;
  std::vector<std::unique_ptr<Ear>> ears_;
  Words heard_;
};

}  // namespace uiox_qt_tests

#endif
