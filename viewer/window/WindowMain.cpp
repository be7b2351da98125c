#include <viewer/app/OutputFile.h>
#include <viewer/window/BoardView.h>
#include <viewer/window/Languages.h>
#include <viewer/window/MainWindow.h>
#include <viewer/window/Theme.h>
#include <viewer/window/WindowMain.h>

#include <QApplication>
#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QPainter>

#include <unistd.h>
#include <cstdlib>

#include <oxk/PreferencesFolder.h>
#include <uiox_qt/QtFront.h>

namespace oxviewer {
namespace {

// The window system's own warnings are of no use to the user; what it dies of is.
void TakeMessage(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text) {
  if (type != QtFatalMsg) return;
  PrintError("no window can be opened: " + text.section('\n', 0, 0).trimmed().toStdString());
  std::_Exit(kFailure);
}

bool HasDisplay() {
  for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
    const char* value = std::getenv(variable);
    if (value && *value) return true;
  }
  return false;
}

int Show(const LoadedBoards& boards, int& argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("oxviewer"));
  const Remembered remembered = ReadPreferences();
  ApplyTheme(remembered.theme);
  UseLanguage(remembered.language);
  uiox_qt::QtFront front;
  MainWindow window(front, remembered, true);
  window.resize(boards.b ? 1640 : 1280, 860);
  const std::string folder = oxk::UserPreferencesFolder();
  if (!folder.empty()) window.KeepTreesIn(QFile::decodeName(folder.c_str()) + "/oxviewer-trees.json");
  window.ShowBoards(boards);
  window.show();
  return QApplication::exec();
}

// Whatever the user's preferences are, the same boards give the same picture.
QImage Picture(const LoadedBoards& boards, const PictureSize& size, int& argc, char** argv) {
  QApplication application(argc, argv);
  ApplyTheme(Theme::Light);
  uiox_qt::QtFront front;
  MainWindow window(front, {}, false);
  window.resize(size.width, size.height);
  window.ShowBoards(boards);
  window.show();
  QApplication::processEvents();
  window.resize(size.width, size.height);
  QApplication::processEvents();
  window.View().FitAll();
  window.View().RenderNow();
  QImage picture(size.width, size.height, QImage::Format_RGB32);
  picture.fill(window.palette().color(QPalette::Window));
  window.render(&picture);
  return picture;
}

int WritePicture(const std::string& path, const QImage& picture) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  if (!picture.save(&buffer, "PNG")) {
    PrintError("the picture cannot be made");
    return kFailure;
  }
  const auto error = WriteFile(path, bytes.toStdString());
  if (!error) return kSuccess;
  PrintError(error->ToLine());
  return kFailure;
}

}  // namespace

int RunWindow(const Options& options, const LoadedBoards& boards) {
  qInstallMessageHandler(&TakeMessage);
  int argc = 1;
  char name[] = "oxviewer";
  char* argv[] = {name, nullptr};
  if (options.screenshot) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // These fit the window to the user's screen, which has no part in the picture.
    for (const char* scale : {"QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS", "QT_FONT_DPI", "QT_USE_PHYSICAL_DPI"}) {
      qunsetenv(scale);
    }
    const QImage picture = Picture(boards, options.size, argc, argv);
    return WritePicture(*options.screenshot, picture);
  }
  if (!HasDisplay()) {
    PrintError("no window can be opened: there is no display (--screenshot and --dump need none)");
    return kFailure;
  }
  return Show(boards, argc, argv);
}

}  // namespace oxviewer
