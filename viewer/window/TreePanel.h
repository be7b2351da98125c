/// \file
/// A tree with a line to filter it.
#ifndef OXECAD_VIEWER_WINDOW_TREEPANEL_H
#define OXECAD_VIEWER_WINDOW_TREEPANEL_H

#include <QPointer>
#include <QString>
#include <QWidget>

#include <functional>
#include <string>
#include <vector>

#include <uiox_qt/TreeView.h>

class QHBoxLayout;

namespace oxviewer {

class FilterLine;
class TextMatcher;

/// Shows the view of a tree below a filter line. By itself the filter leaves the nodes whose names match and those
/// above them; checks, expansion and selection stay. A letter that is typed in the tree goes to the filter line.
class TreePanel : public QWidget {
  Q_OBJECT

 public:
  /// The view stays the front's and is only placed here: it leaves the panel when that ends.
  TreePanel(uiox_qt::TreeView& view, const QString& placeholder, QWidget* parent = nullptr);
  ~TreePanel() override;

  uiox_qt::TreeView& View() const { return *view_; }
  FilterLine& Filter() const { return *filter_; }
  /// Where further widgets may stand, behind the filter line.
  QHBoxLayout& TopRow() const { return *top_; }

  /// Replaces what the filter does; it is given what stands in the line.
  void SetFilterAction(std::function<void(const TextMatcher&)> action);
  /// Replaces the question whether a node is shown for its own sake; it is given the node's name.
  void SetNodeTest(std::function<bool(const std::string& node, const TextMatcher&)> test);
  /// Whether the node test narrows the tree even while nothing stands in the line.
  void SetNarrowed(bool narrowed);
  /// Filters anew, as after a change of what the node test says. A wrong expression leaves what was shown.
  void Refilter();

  /// Selects nodes by their names as the user would, and shows the first. Unknown names are passed over. With `extend`,
  /// what was selected stays so.
  void SelectNodes(const std::vector<std::string>& nodes, bool extend);

 private:
  QPointer<uiox_qt::TreeView> view_;
  QHBoxLayout* top_;
  FilterLine* filter_;
  std::function<void(const TextMatcher&)> action_;
  std::function<bool(const std::string&, const TextMatcher&)> nodeTest_;
  bool narrowed_ = false;
};

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_WINDOW_TREEPANEL_H
