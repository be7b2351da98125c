/// \file
/// Entry fields.
#ifndef OXECAD_UIOX_QT_FIELDVIEW_H
#define OXECAD_UIOX_QT_FIELDVIEW_H

#include <uiox_qt/ComponentView.h>

#include <QLineEdit>

namespace uiox_qt {

/// An InputPanel: each keystroke, paste or committed input of an input method goes to the component as the text that it
/// makes. Where a callback puts the text back, the caret and the marked part are as before the keystroke.
class FieldView final : public QLineEdit, public ComponentView {
 public:
  explicit FieldView(uiox::Widget& component);

  QWidget& Qt() override { return *this; }

 protected:
  void FollowOwn(uiox::WidgetChange change) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  struct Caret {
    int at = 0;
    int marked_from = -1;
    int marked = 0;
  };
  Caret CaretNow() const;
  void Put(const Caret& caret);
  void RememberCaret();
  void Enter(const QString& text);
  void FollowText();
  void FollowMark();

  bool entering_ = false;
  bool composing_ = false;
  bool mark_changed_ = false;
  QString text_;  // before the keystroke under way
  Caret caret_;
};

}  // namespace uiox_qt

#endif
