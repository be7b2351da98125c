#include <viewer/trees/Panels.h>
#include <viewer/window/BoardSession.h>
#include <viewer/window/BoardView.h>
#include <viewer/window/ComparePanel.h>
#include <viewer/window/History.h>
#include <viewer/window/KeptTrees.h>
#include <viewer/window/Legend.h>
#include <viewer/window/MainWindow.h>
#include <viewer/window/MainWindowActions.h>
#include <viewer/window/TreePanel.h>

#include <QAction>
#include <QEvent>
#include <QMenuBar>
#include <QSplitter>
#include <QStatusBar>
#include <QTabWidget>
#include <QToolBar>

#include <set>
#include <string>
#include <utility>

#include <uiox/TreeWidget.h>
#include <uiox/UserEvents.h>
#include <uiox_qt/Icons.h>
#include <uiox_qt/TreeView.h>

namespace oxviewer {
namespace {

// What the user sees of a session and the trees do not keep from one run to the next.
struct Sight {
  LoadedBoards boards;
  QJsonObject trees;
  std::vector<std::vector<std::string>> selected;  // by tree: layers, nets, components, comparison
  std::set<void*> nets;
  std::set<void*> components;
  std::vector<std::string> parts;
  Marks highlighted;
  Marks isolated;
};

std::vector<uiox::TreeWidget*> TreesIn(const MainWindow& window) {
  std::vector<uiox::TreeWidget*> trees;
  for (const TreePanel* panel :
       {&window.LayersPanel(), &window.NetsPanel(), &window.ComponentsPanel(), &window.Comparison().Panel()}) {
    trees.push_back(panel->View().Tree());
  }
  return trees;
}

std::vector<std::string> SelectedIn(const uiox::TreeStore& store) {
  std::vector<std::string> nodes;
  for (const uiox::NodeId node : store.Selection()) nodes.emplace_back(store.Name(node));
  return nodes;
}

void SelectIn(uiox::TreeWidget& tree, const std::vector<std::string>& names) {
  std::vector<uiox::NodeId> nodes;
  for (const std::string& name : names) nodes.push_back(tree.Store().Find(name));
  if (!nodes.empty()) uiox::user::Select(tree, nodes);
}

Sight SightOf(const MainWindow& window) {
  if (!window.Session()) return {};
  BoardSession& session = *window.Session();
  std::vector<std::vector<std::string>> selected;
  for (const uiox::TreeWidget* tree : TreesIn(window)) selected.push_back(SelectedIn(tree->Store()));
  return {session.Boards(),
          TreesOf(window),
          std::move(selected),
          session.Trees().Nets().SelectedObjects(),
          session.Trees().Components().SelectedObjects(),
          session.Trees().Parts().SelectedNodes(),
          session.Highlighted(),
          session.Isolated()};
}

void Show(const Sight& sight, MainWindow& window) {
  window.ShowBoards(sight.boards);
  if (!window.Session()) return;
  PutTrees(window, sight.trees);
  const std::vector<uiox::TreeWidget*> trees = TreesIn(window);
  for (std::size_t i = 0; i < trees.size(); ++i) SelectIn(*trees[i], sight.selected[i]);
  BoardSession& session = *window.Session();
  session.Trees().Nets().RestoreSelection(sight.nets);
  session.Trees().Components().RestoreSelection(sight.components);
  session.Trees().Parts().RestoreSelection(sight.parts);
  session.SetMarks(sight.highlighted, sight.isolated);
}

}  // namespace

std::vector<TreePanel*> MainWindow::Panels() const { return {layers_, nets_, components_, parts_, &compare_->Panel()}; }

void MainWindow::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() != QEvent::LanguageChange || std::exchange(otherLanguage_, true)) return;
  // The event may come out of the menu that is made anew.
  QMetaObject::invokeMethod(
      this,
      [this] {
        otherLanguage_ = false;
        Retranslate();
      },
      Qt::QueuedConnection);
}

void MainWindow::Retranslate() {
  const Sight sight = SightOf(*this);
  const Viewport viewport = view_->CurrentViewport();
  const bool fitted = view_->IsFitted();
  const bool flipped = actions_->flip->isChecked();
  const bool references = actions_->references->isChecked();
  const bool differencesOnly = compare_->ShowsDifferencesOnly();
  const int layerTab = layerTabs_->currentIndex();
  const int tab = tabs_->currentIndex();
  const QByteArray widths = splitter_->saveState();
  remembered_.viewUnits = settings_->Units();

  EndSession();
  ReleaseSettings();
  settings_.reset();
  for (Legend* legend : findChildren<Legend*>()) delete legend;
  delete menuBar();
  delete std::exchange(*actions_, Actions()).bar;
  view_->setParent(nullptr);
  delete takeCentralWidget();
  RemovePanels();
  uiox_qt::ForgetImages();

  Build();
  // What was kept is older than what is seen.
  auto kept = std::exchange(kept_, std::make_unique<KeptTrees>(KeptFile({}, {})));
  Show(sight, *this);
  kept_ = std::move(kept);
  compare_->SetDifferencesOnly(differencesOnly);
  actions_->flip->setChecked(flipped);
  actions_->references->setChecked(references);
  layerTabs_->setCurrentIndex(layerTab);
  tabs_->setCurrentIndex(tab);
  splitter_->restoreState(widths);
  if (!fitted) view_->SetViewport(viewport);
  statusBar()->clearMessage();
  history_->Clear();
  FollowTrees();
  if (session_) ShowSelection();
}

}  // namespace oxviewer
