/// \file
/// Components that only show something.
#ifndef OXECAD_UIOX_QT_TEXTVIEWS_H
#define OXECAD_UIOX_QT_TEXTVIEWS_H

#include <uiox_qt/ComponentView.h>

#include <QLabel>

class QTextLayout;

namespace uiox_qt {

/// A Label or a Message: plain text. With text mode 2 it is wrapped, within words too where they are too long.
class TextView final : public QLabel, public ComponentView {
 public:
  explicit TextView(uiox::Widget& component);

  QWidget& Qt() override { return *this; }
  int heightForWidth(int width) const override;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void FollowOwn(uiox::WidgetChange change) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  int LayOut(QTextLayout& layout, int width) const;
};

/// An Icon: its images beside each other.
class IconView final : public QWidget, public ComponentView {
 public:
  explicit IconView(uiox::Widget& component);

  QWidget& Qt() override { return *this; }
  QSize sizeHint() const override;

 protected:
  void FollowOwn(uiox::WidgetChange change) override;
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace uiox_qt

#endif
