/// \file
/// Option menus.
#ifndef OXECAD_UIOX_QT_OPTIONBOX_H
#define OXECAD_UIOX_QT_OPTIONBOX_H

#include <uiox/Widget.h>

#include <QComboBox>

#include <string>

namespace uiox_qt {

/// A combo box that does not change under a turning wheel, which is meant for what it lies in.
class OptionBox : public QComboBox {
 public:
  using QComboBox::QComboBox;
  QSize minimumSizeHint() const override;
  /// In a cell there is seldom room for more than the image of an item that has one.
  void SetImageOnly(bool image_only) { image_only_ = image_only; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  bool image_only_ = false;
};

/// Gives a combo box the items, the choice and the number of visible items of an option menu. No signal is sent.
void FillOptionBox(QComboBox& box, const uiox::Widget& menu);

/// The name of an item.
std::string OptionName(const QComboBox& box, int row);

}  // namespace uiox_qt

#endif
