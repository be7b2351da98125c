#include <uiox_qt/ColorPicking.h>

#include <uiox_qt/Text.h>

#include <QColorDialog>
#include <QCoreApplication>
#include <QPointer>

namespace uiox_qt {
namespace {

QColor FromToolkit(unsigned int color) {
  return QColor(static_cast<int>(color & 0xFF), static_cast<int>(color >> 8 & 0xFF),
                static_cast<int>(color >> 16 & 0xFF));
}

unsigned int ToToolkit(const QColor& color) {
  return static_cast<unsigned int>(color.red()) | static_cast<unsigned int>(color.green()) << 8 |
         static_cast<unsigned int>(color.blue()) << 16;
}

}  // namespace

unsigned int PickColor(QWidget* window, const oxcore::ColorPickerRequest& request) {
  // The window may end while the dialog runs, and then takes the dialog with it.
  const QPointer<QColorDialog> dialog = new QColorDialog(window);
  dialog->setWindowTitle(request.title.empty() ? QCoreApplication::translate("uiox_qt::ColorPicking", "Choose a colour")
                                               : FromWide(request.title));
  if (request.initialColor != oxcore::kNoPickedColor) dialog->setCurrentColor(FromToolkit(request.initialColor));
  const bool chosen = dialog->exec() == QDialog::Accepted;
  if (!dialog) return oxcore::kNoPickedColor;
  const QColor color = dialog->selectedColor();
  delete dialog.data();
  return chosen && color.isValid() ? ToToolkit(color) : oxcore::kNoPickedColor;
}

}  // namespace uiox_qt
