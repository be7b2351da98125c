#include <uiox_qt/Screens.h>

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

namespace uiox_qt {
namespace {

QWidget* (*g_find_widget_in_use)() = nullptr;

}  // namespace

void SetWidgetInUse(QWidget* (*find)()) { g_find_widget_in_use = find; }

QScreen* ScreenInUse() {
  const QWidget* widget = g_find_widget_in_use ? g_find_widget_in_use() : nullptr;
  QScreen* screen = widget ? widget->screen() : nullptr;
  return screen ? screen : QGuiApplication::primaryScreen();
}

}  // namespace uiox_qt
