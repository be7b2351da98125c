/// \file
/// The program's main window.
#ifndef OXECAD_VIEWER_WINDOW_MAINWINDOW_H
#define OXECAD_VIEWER_WINDOW_MAINWINDOW_H

#include <viewer/app/Program.h>
#include <viewer/trees/ViewSettings.h>
#include <viewer/window/BoardScene.h>
#include <viewer/window/Preferences.h>

#include <QMainWindow>

#include <memory>
#include <vector>

#include <oxcore/Mainframe.h>

class QLabel;
class QSplitter;
class QTabWidget;

namespace uiox_qt {
class QtFront;
}

namespace oxviewer {

class BoardSession;
class BoardView;
class ComparePanel;
class History;
class KeptTrees;
class TreePanel;

/// Trees on the left, the board in the middle, the comparison on the right. What the user does in a tree shows in the
/// board at once, and a click on the board selects in the trees. Another language is shown at once: all that is seen
/// stays as it was but for its words; what could be undone is forgotten, since steps hold words too.
class MainWindow : public QMainWindow {
  Q_OBJECT

 public:
  /// The front must outlive the window. What `remembered` says is in force at once; with `keeps`, what the user changes
  /// of it is written to the preferences.
  MainWindow(uiox_qt::QtFront& front, const Remembered& remembered, bool keeps);
  ~MainWindow() override;

  /// Keeps what the user makes of the trees in a file from now on (KeptTrees.h): boards that are shown take it from
  /// there. What is wrong with the file is told on standard error and in the status bar.
  void KeepTreesIn(const QString& file);
  /// Shows boards instead of those that were there; without `boards.a`, none.
  void ShowBoards(LoadedBoards boards);
  /// Reads and shows boards. On failure the window stays as it is, and the user is told.
  void OpenBoards(const std::string& a, const std::optional<std::string>& b);

  BoardView& View() const { return *view_; }
  /// Null while there is no board.
  BoardSession* Session() const { return session_.get(); }
  TreePanel& LayersPanel() const { return *layers_; }
  TreePanel& NetsPanel() const { return *nets_; }
  TreePanel& ComponentsPanel() const { return *components_; }
  TreePanel& PartsPanel() const { return *parts_; }
  History& Steps() const { return *history_; }
  ComparePanel& Comparison() const { return *compare_; }

 protected:
  /// Shows the window in another language.
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void Build();
  void MakePanels();
  void ArrangePanels();
  void MakeActions();
  void MakeFileMenu();
  void MakeEditMenu();
  void MakeViewMenu();
  void MakeSelectMenu();
  void MakeCompareMenu();
  void MakeHelpMenu();
  void MakeThemeMenu(QMenu& menu);
  void MakeUnitMenu(QMenu& menu);
  void MakeLanguageMenu(QMenu& menu);
  void MakeLayerMenu(QMenu& menu);
  void MakeContextMenus();
  void ConnectView();
  void ConnectTrees();
  void FollowTrees();
  void EndSession();
  void ReleaseSettings();
  void Retranslate();
  std::vector<TreePanel*> Panels() const;

  void Redraw();
  void ShowSelection();
  void ShowPlace(QPointF place);
  void ShowZoom();
  void ShowReferences();
  void Pick(QPointF place, double tolerance, bool extend);
  void ShowPart(const Marks& marks);
  void ShowDifference(std::size_t subject);
  void UpdateActions();
  void UpdateTitle();
  void TakeSettings();
  void Keep();

  void AskForBoard();
  void AskForComparison();
  void SavePicture();
  void ChangeNetColor();
  void RemoveNetColor();
  void RenameLayerGroup();
  void HighlightSelection();
  void IsolateSelection();
  void ClearMarks();
  void ShowShortcuts();
  void ShowLegend();
  void ShowAbout();

  struct Actions;

  uiox_qt::QtFront& front_;
  Remembered remembered_;
  bool keeps_;
  ViewStyle viewStyle_;
  std::unique_ptr<oxcore::Mainframe> mainframe_;
  std::unique_ptr<ViewSettings> settings_;
  std::unique_ptr<BoardSession> session_;
  std::unique_ptr<KeptTrees> kept_;
  std::unique_ptr<History> history_;  // goes before the session
  std::unique_ptr<Actions> actions_;
  BoardView* view_;
  TreePanel* layers_;
  TreePanel* nets_;
  TreePanel* components_;
  TreePanel* parts_;
  ComparePanel* compare_;
  QTabWidget* layerTabs_;
  QTabWidget* tabs_;
  QSplitter* splitter_;
  QLabel* place_;
  QLabel* zoom_;
  QLabel* facts_;
  bool otherLanguage_ = false;  // the window is about to be shown in it
};

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_WINDOW_MAINWINDOW_H
