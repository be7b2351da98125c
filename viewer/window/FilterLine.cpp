#include <viewer/window/FilterLine.h>

#include <QActionGroup>
#include <QEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QToolButton>

namespace oxviewer {
namespace {

constexpr SearchSyntax kSyntaxes[] = {SearchSyntax::Text, SearchSyntax::Wildcards, SearchSyntax::Expression};
constexpr int kGap = 2;

}  // namespace

FilterLine::FilterLine(const QString& placeholder, QWidget* parent)
    : QLineEdit(parent), button_(new QToolButton(this)), menu_(new QMenu(this)) {
  setPlaceholderText(placeholder);
  setAccessibleName(placeholder);
  setClearButtonEnabled(true);
  button_->setAutoRaise(true);
  button_->setCursor(Qt::ArrowCursor);
  button_->setFocusPolicy(Qt::NoFocus);
  button_->setToolButtonStyle(Qt::ToolButtonTextOnly);
  // A menu of the button's own would put its arrow over the text.
  connect(button_, &QToolButton::clicked, this, [this] { OpenSyntaxMenu(); });
  button_->setToolTip(tr("How the filter's text is understood"));
  MakeMenu();
  NameSyntax();
  connect(this, &QLineEdit::textChanged, this, [this] {
    ShowError();
    Q_EMIT Changed();
  });
}

void FilterLine::MakeMenu() {
  auto* group = new QActionGroup(menu_);
  const QString texts[] = {tr("&Text: anywhere in the name"), tr("&Wildcards: * and ? for the whole name"),
                           tr("Regular &expression")};
  for (const SearchSyntax syntax : kSyntaxes) {
    QAction* action = group->addAction(menu_->addAction(texts[static_cast<int>(syntax)]));
    action->setCheckable(true);
    action->setChecked(syntax == syntax_);
    action->setData(static_cast<int>(syntax));
    connect(action, &QAction::triggered, this, [this, syntax] { SetSyntax(syntax); });
  }
}

void FilterLine::OpenSyntaxMenu() { menu_->popup(button_->mapToGlobal(QPoint(0, button_->height()))); }

void FilterLine::NameSyntax() {
  const QString names[] = {tr("Text"), tr("Wildcards"), tr("Expression")};
  button_->setText(names[static_cast<int>(syntax_)] + QStringLiteral(" \u25BE"));
  button_->setAccessibleName(names[static_cast<int>(syntax_)]);
  for (QAction* action : menu_->actions()) {
    if (action->data().toInt() == static_cast<int>(syntax_)) action->setChecked(true);
  }
  PlaceButton();
}

void FilterLine::SetSyntax(SearchSyntax syntax) {
  if (syntax == syntax_) return;
  syntax_ = syntax;
  NameSyntax();
  ShowError();
  Q_EMIT Changed();
}

void FilterLine::Begin(const QString& text) {
  setFocus(Qt::OtherFocusReason);
  deselect();
  setCursorPosition(static_cast<int>(this->text().size()));
  insert(text);
}

void FilterLine::ShowError() {
  const QString error = Matcher().Error();
  setToolTip(error);
  setAccessibleDescription(error);
  QFont shown = font();
  shown.setStrikeOut(!error.isEmpty());
  setFont(shown);
}

void FilterLine::PlaceButton() {
  const QSize size = button_->sizeHint();
  button_->setGeometry(kGap, kGap, size.width(), height() - 2 * kGap);
  setTextMargins(size.width() + kGap, 0, 0, 0);
}

void FilterLine::resizeEvent(QResizeEvent* event) {
  QLineEdit::resizeEvent(event);
  PlaceButton();
}

void FilterLine::changeEvent(QEvent* event) {
  QLineEdit::changeEvent(event);
  if (event->type() == QEvent::StyleChange) PlaceButton();
}

bool FilterLine::event(QEvent* event) {
  // Escape empties the line before it means anything to the window.
  if (event->type() == QEvent::ShortcutOverride && !text().isEmpty() &&
      static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
    event->accept();
    return true;
  }
  return QLineEdit::event(event);
}

void FilterLine::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Escape:
      if (text().isEmpty()) {
        event->ignore();
      } else {
        clear();
      }
      Q_EMIT Left();
      return;
    case Qt::Key_Down:
      if (event->modifiers() & Qt::AltModifier) return OpenSyntaxMenu();
      Q_EMIT Left();
      return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      Q_EMIT Left();
      return;
    default:
      QLineEdit::keyPressEvent(event);
  }
}

}  // namespace oxviewer
