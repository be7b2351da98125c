/// \file
/// Which screen the toolkit's pixels are counted on.
#ifndef OXECAD_UIOX_QT_SCREENS_H
#define OXECAD_UIOX_QT_SCREENS_H

class QScreen;
class QWidget;

namespace uiox_qt {

/// The widget that the user works in decides which screen places on the screen are counted on; null: unknown.
void SetWidgetInUse(QWidget* (*find)());

/// The screen of the widget in use, else the primary one. Never null while there is a QApplication.
QScreen* ScreenInUse();

}  // namespace uiox_qt

#endif
