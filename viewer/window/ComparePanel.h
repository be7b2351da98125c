/// \file
/// The comparison beside the board.
#ifndef OXECAD_VIEWER_WINDOW_COMPAREPANEL_H
#define OXECAD_VIEWER_WINDOW_COMPAREPANEL_H

#include <QWidget>

#include <cstddef>

class QCheckBox;
class QLabel;

namespace uiox_qt {
class TreeView;
}

namespace oxviewer {

class CompareTree;
class TextMatcher;
class TreePanel;

/// The tree of a comparison with its filter line, a box for "differences only", and the way from difference to
/// difference.
class ComparePanel : public QWidget {
  Q_OBJECT

 public:
  explicit ComparePanel(uiox_qt::TreeView& view, QWidget* parent = nullptr);

  /// Works on a tree; null: on none.
  void SetTree(CompareTree* tree);
  TreePanel& Panel() const { return *panel_; }
  bool ShowsDifferencesOnly() const;
  void SetDifferencesOnly(bool only);

  /// Selects the next difference that the filter leaves, after what is selected and round the end.
  void GoToNext() { Go(false); }
  void GoToPrevious() { Go(true); }

 Q_SIGNALS:
  /// A difference was selected by one of the two.
  void DifferenceShown(std::size_t subject);

 private:
  void Go(bool backwards);
  bool IsShown(std::size_t subject, const TextMatcher& matcher) const;

  CompareTree* tree_ = nullptr;
  TreePanel* panel_;
  QCheckBox* differencesOnly_;
  QLabel* place_;
};

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_WINDOW_COMPAREPANEL_H
