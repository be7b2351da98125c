// Runs an example in the Qt front and paints what is on the screen when it waits for the user:
//   picture_NAME FILE.png [--press-default]
// With --press-default the user presses the dialog's default button first, and what that opens is painted too.
#include <uiox/Device.h>
#include <uiox/Suite.h>
#include <uiox/UserEvents.h>
#include <uiox_qt/QtFront.h>

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QTimer>
#include <QWidget>

#include <cstdio>
#include <cstring>

int ExampleMain();

namespace {

/// All windows in one picture, each where it stands on the screen, on a neutral ground.
QImage PaintScreen() {
  constexpr int kMargin = 8;
  QList<QWidget*> windows;
  QRect all;
  for (QWidget* const window : QApplication::topLevelWidgets()) {
    if (!window->isVisible()) continue;
    windows.append(window);
    all |= window->geometry();
  }
  // What runs in front of everything is painted last.
  QWidget* const front = QApplication::activeModalWidget();
  if (windows.removeOne(front)) windows.append(front);
  all.adjust(-kMargin, -kMargin, kMargin, kMargin);
  QImage picture(all.size(), QImage::Format_RGB32);
  picture.fill(QColor(0xD8, 0xDC, 0xE0));
  QPainter painter(&picture);
  for (QWidget* const window : windows) {
    window->ensurePolished();
    QPixmap grabbed = window->grab();
    if (!window->mask().isEmpty()) painter.setClipRegion(window->mask().translated(window->pos() - all.topLeft()));
    painter.drawPixmap(window->geometry().topLeft() - all.topLeft(), grabbed);
    painter.setClipping(false);
    if (window->mask().isEmpty()) {
      painter.setPen(QColor(0x80, 0x88, 0x90));
      painter.drawRect(window->geometry().translated(-all.topLeft()).adjusted(-1, -1, 0, 0));
    }
  }
  return picture;
}

/// Sits in front of the screen: acts whenever control comes back to the event loop with a dialog that runs.
class User {
 public:
  User(const char* file, bool pressesDefault) : file_(file), pressesDefault_(pressesDefault) {
    QObject::connect(&timer_, &QTimer::timeout, [this] { Look(); });
    timer_.start(0);
  }
  bool HasPainted() const { return painted_; }

 private:
  void Look() {
    uiox::Device* const device = uiox::Suite::Get().ModalDevice();
    if (device == nullptr || uiox::Suite::Get().IsModalRunOver(*device)) return;
    if (++looks_ < kLooksUntilLaidOut) return;
    looks_ = 0;
    if (pressesDefault_) {
      pressesDefault_ = false;
      // In an event of its own: while this one lasts, the timer would rest in the dialog that opens.
      QTimer::singleShot(0, [name = device->Name()] {
        uiox::Device* const pressed = uiox::Suite::Get().FindDevice(name);
        if (pressed != nullptr) uiox::user::PressDefault(*pressed);
      });
      return;
    }
    if (!painted_) painted_ = PaintScreen().save(QString::fromLocal8Bit(file_));
    uiox::Suite::Get().EndModalRun(device->Name(), 0);
  }

  static constexpr int kLooksUntilLaidOut = 20;
  const char* file_;
  bool pressesDefault_;
  bool painted_ = false;
  int looks_ = 0;
  QTimer timer_;
};

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  if (argc < 2) {
    std::fprintf(stderr, "Usage: %s FILE.png [--press-default]\n", argv[0]);
    return 2;
  }
  uiox_qt::QtFront front;
  User user(argv[1], argc > 2 && std::strcmp(argv[2], "--press-default") == 0);
  const int result = ExampleMain();
  if (!user.HasPainted()) std::fprintf(stderr, "%s was not painted\n", argv[1]);
  return user.HasPainted() ? result : 1;
}
