#include <uiox_qt/FieldView.h>

#include <uiox/UserEvents.h>
#include <uiox_qt/Text.h>

#include <QPointer>

#include <algorithm>

namespace uiox_qt {

FieldView::FieldView(uiox::Widget& component) : ComponentView(component) {
  if (const std::string* hint = component.Property("placeholder")) setPlaceholderText(FromName(*hint));
  // Qt tells of the edited text before it tells of the caret's new place: what was told last is what was before it.
  connect(this, &QLineEdit::cursorPositionChanged, this, [this] { RememberCaret(); });
  connect(this, &QLineEdit::selectionChanged, this, [this] { RememberCaret(); });
  connect(this, &QLineEdit::textEdited, this, [this](const QString& text) { Enter(text); });
}

FieldView::Caret FieldView::CaretNow() const { return {cursorPosition(), selectionStart(), selectionLength()}; }

void FieldView::RememberCaret() {
  if (entering_ || composing_) return;
  text_ = text();
  caret_ = CaretNow();
}

void FieldView::Put(const Caret& caret) {
  if (caret.marked_from < 0) {
    setCursorPosition(caret.at);
  } else if (caret.at == caret.marked_from) {
    setSelection(caret.marked_from + caret.marked, -caret.marked);
  } else {
    setSelection(caret.marked_from, caret.marked);
  }
}

void FieldView::Enter(const QString& text) {
  if (!Component() || entering_) return;
  const QPointer<FieldView> alive(this);
  const QString before = text_;
  const Caret caret = caret_;
  entering_ = true;
  mark_changed_ = false;
  const bool taken = uiox::user::EnterText(*Component(), ToWide(text));
  if (!alive) return;
  entering_ = false;
  if (!taken && Component()) FollowText();
  // The text was put back: the keystroke did not happen.
  if (this->text() != text && this->text() == before && !mark_changed_) Put(caret);
  RememberCaret();
}

void FieldView::FollowText() {
  const QString text = FromWide(Component()->Text());
  if (text == this->text()) return;
  const int at = cursorPosition();
  setText(text);
  if (hasFocus()) setCursorPosition(std::min(at, static_cast<int>(text.size())));
}

void FieldView::FollowMark() {
  const uiox::Widget::TextRange mark = Component()->SelectedText();
  mark_changed_ = true;
  if (mark.from == mark.to) {
    setCursorPosition(static_cast<int>(mark.from));
  } else {
    setSelection(static_cast<int>(mark.from), static_cast<int>(mark.to - mark.from));
  }
}

void FieldView::FollowOwn(uiox::WidgetChange change) {
  switch (change) {
    case uiox::WidgetChange::Label:
      setAccessibleName(FromWide(Component()->Label()));
      break;
    case uiox::WidgetChange::Text:
      FollowText();
      break;
    case uiox::WidgetChange::SelectedText:
      FollowMark();
      break;
    default:
      break;
  }
}

/// Here Qt tells of the caret first: what is there now is what was before the input.
void FieldView::inputMethodEvent(QInputMethodEvent* event) {
  const QPointer<FieldView> alive(this);
  composing_ = true;
  QLineEdit::inputMethodEvent(event);
  if (!alive) return;
  composing_ = false;
  RememberCaret();
}

void FieldView::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  TellFocus(*event);
}

void FieldView::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  TellFocus(*event);
}

}  // namespace uiox_qt
