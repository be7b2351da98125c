/// \file
/// The line in which a person types what a tree is to be narrowed to.
#ifndef OXECAD_VIEWER_WINDOW_FILTERLINE_H
#define OXECAD_VIEWER_WINDOW_FILTERLINE_H

#include <viewer/window/TextMatcher.h>

#include <QLineEdit>

class QMenu;
class QToolButton;

namespace oxviewer {

/// A line of text with the name of its syntax in front, where it can be changed, also with Alt and Down. One syntax
/// holds at a time. A wrong expression is shown as such, with the reason as a tooltip.
class FilterLine : public QLineEdit {
  Q_OBJECT

 public:
  explicit FilterLine(const QString& placeholder, QWidget* parent = nullptr);

  SearchSyntax Syntax() const { return syntax_; }
  void SetSyntax(SearchSyntax syntax);
  /// What stands in the line now.
  TextMatcher Matcher() const { return {text(), syntax_}; }
  /// The button with the name of the syntax, and the menu that it opens.
  QToolButton& SyntaxButton() const { return *button_; }
  QMenu& SyntaxMenu() const { return *menu_; }

  /// Takes the focus and the text, as if it had been typed here.
  void Begin(const QString& text);

 Q_SIGNALS:
  /// The text or the syntax has changed.
  void Changed();
  /// The user is done with the line and wants back to what it narrows.
  void Left();

 protected:
  bool event(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void MakeMenu();
  void OpenSyntaxMenu();
  void NameSyntax();
  void PlaceButton();
  void ShowError();

  QToolButton* button_;
  QMenu* menu_;
  SearchSyntax syntax_ = SearchSyntax::Text;
};

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_WINDOW_FILTERLINE_H
