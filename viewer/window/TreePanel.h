/// \file
/// A tree with a line to filter it.
#ifndef OXECAD_VIEWER_WINDOW_TREEPANEL_H
#define OXECAD_VIEWER_WINDOW_TREEPANEL_H

#include <QString>
#include <QWidget>

#include <functional>
#include <string>
#include <vector>

class QHBoxLayout;
class QLineEdit;

namespace uiox_qt {
class TreeView;
}

namespace oxviewer {

/// Shows the view of a tree below a filter line. By itself the filter hides the nodes whose names do not hold the text
/// and that have no node below them that does; checks, expansion and selection stay.
class TreePanel : public QWidget {
  Q_OBJECT

 public:
  /// The view stays the front's and is only placed here.
  TreePanel(uiox_qt::TreeView& view, const QString& placeholder, QWidget* parent = nullptr);
  ~TreePanel() override;

  uiox_qt::TreeView& View() const { return view_; }
  QLineEdit& FilterLine() const { return *filter_; }
  /// Where further widgets may stand, behind the filter line.
  QHBoxLayout& TopRow() const { return *top_; }

  /// Replaces what the filter does; it is given the text.
  void SetFilterAction(std::function<void(const QString&)> action);
  /// Replaces the question whether a leaf is shown; it is given the node's name and the text.
  void SetLeafTest(std::function<bool(const std::string& node, const QString& text)> test);
  /// Filters anew, as after a change of what the leaf test says.
  void Refilter();

  /// Selects nodes by their names as the user would, and shows the first. Unknown names are passed over. With `extend`,
  /// what was selected stays so.
  void SelectNodes(const std::vector<std::string>& nodes, bool extend);

 private:
  bool FilterBelow(const QModelIndex& parent, const QString& text);

  uiox_qt::TreeView& view_;
  QHBoxLayout* top_;
  QLineEdit* filter_;
  std::function<void(const QString&)> action_;
  std::function<bool(const std::string&, const QString&)> leafTest_;
  QMetaObject::Connection reset_;
};

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_WINDOW_TREEPANEL_H
