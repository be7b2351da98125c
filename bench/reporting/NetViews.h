/// \file
/// Windows with a tree of nets: ours and a Qt programmer's.
#ifndef OXECAD_BENCH_REPORTING_NETVIEWS_H
#define OXECAD_BENCH_REPORTING_NETVIEWS_H

#include <viewer/window/TreePanel.h>

#include <QSortFilterProxyModel>
#include <QTreeView>

#include <memory>
#include <optional>

#include "bench/reporting/Peers.h"
#include "bench/reporting/Stage.h"

namespace uiox_qt {
class QtFront;
}

namespace oxecad_bench {

/// The nets as they are shown: below so many parents, which stand below the root.
struct NetsToShow {
  const Nets& nets;
  std::size_t parents;
};

/// A window with a view, on the screen from its beginning.
class NetView {
 public:
  NetView();
  virtual ~NetView();
  NetView(const NetView&) = delete;
  NetView& operator=(const NetView&) = delete;

  /// Shows the nets in natural order, the root's children in sight.
  virtual void Fill(const NetsToShow& shown) = 0;
  virtual void ExpandAll() = 0;
  virtual void CollapseAll() = 0;
  /// Gives a net another label.
  virtual void SetLabel(std::size_t net, const std::wstring& label) = 0;
  /// Narrows the tree to nets that hold a text in their labels, as after a keystroke.
  virtual void Filter(const QString& text) = 0;
  virtual QTreeView& View() = 0;

  /// What comes before the next frame, and the frame.
  void Paint();

 protected:
  void Show(QWidget& content);
  QWidget& Window() { return *window_; }

 private:
  std::unique_ptr<QWidget> window_;
};

/// The library's tree in the viewer's panel, on the Qt front.
class OurView : public NetView {
 public:
  OurView();
  ~OurView() override;

  void Fill(const NetsToShow& shown) override;
  void ExpandAll() override;
  void CollapseAll() override;
  void SetLabel(std::size_t net, const std::wstring& label) override;
  void Filter(const QString& text) override;
  QTreeView& View() override;

 private:
  std::unique_ptr<uiox_qt::QtFront> front_;
  std::unique_ptr<oxviewer::TreePanel> panel_;
  std::optional<oxecad_ui::Tree> tree_;
};

/// A QTreeView on a QStandardItemModel, with a filter between. The items compare themselves when the model sorts them.
class PeerView : public NetView {
 public:
  PeerView();
  ~PeerView() override;

  void Fill(const NetsToShow& shown) override;
  void ExpandAll() override;
  void CollapseAll() override;
  void SetLabel(std::size_t net, const std::wstring& label) override;
  void Filter(const QString& text) override;
  QTreeView& View() override { return view_; }

 protected:
  /// Puts the nets below their parents, and shows them.
  void FillInOrder(const NetsToShow& shown, const std::vector<std::size_t>& order, bool sorts);

 private:
  QStandardItemModel model_;
  QSortFilterProxyModel proxy_;
  QTreeView view_;
  std::vector<QStandardItem*> items_;
};

/// The same, sorted before there is a model, with a key for each text.
class KeySortedPeerView : public PeerView {
 public:
  void Fill(const NetsToShow& shown) override;
};

}  // namespace oxecad_bench

#endif
