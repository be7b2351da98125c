#include <viewer/window/BoardSession.h>
#include <viewer/window/BoardView.h>
#include <viewer/window/ComparePanel.h>
#include <viewer/window/History.h>
#include <viewer/window/Languages.h>
#include <viewer/window/Legend.h>
#include <viewer/window/MainWindow.h>
#include <viewer/window/MainWindowActions.h>
#include <viewer/window/ToolIcons.h>
#include <viewer/window/TreePanel.h>

#include <QActionGroup>
#include <QApplication>
#include <QFileDialog>
#include <QMenuBar>
#include <QMessageBox>
#include <QToolBar>

#include <functional>

#include <uicomps/dialogs/DefaultActions.h>
#include <uiox_qt/Icons.h>
#include <uiox_qt/TreeView.h>

namespace oxviewer {
namespace {

constexpr double kZoomStep = 1.5;

template <class Do>
QAction* Add(QMenu& menu, const QString& text, const QKeySequence& key, Do run) {
  QAction* action = menu.addAction(text);
  action->setShortcut(key);
  QObject::connect(action, &QAction::triggered, &menu, run);
  return action;
}

void GiveSign(QAction& action, ToolSign sign, QToolBar& bar) {
  action.setIcon(ToolIcon(sign));
  action.setIconVisibleInMenu(false);
  QString tip = action.text().remove('&').remove(QStringLiteral("…"));
  if (!action.shortcut().isEmpty()) tip += " (" + action.shortcut().toString(QKeySequence::NativeText) + ")";
  action.setToolTip(tip);
  bar.addAction(&action);
}

}  // namespace

void MainWindow::MakeActions() {
  actions_->bar = addToolBar(tr("Tools"));
  actions_->bar->setObjectName(QStringLiteral("tools"));
  actions_->bar->setMovable(false);
  actions_->bar->setIconSize(QSize(18, 18));
  MakeFileMenu();
  MakeEditMenu();
  actions_->bar->addSeparator();
  MakeViewMenu();
  actions_->bar->addSeparator();
  MakeSelectMenu();
  actions_->bar->addSeparator();
  MakeCompareMenu();
  MakeHelpMenu();
  MakeContextMenus();
}

void MainWindow::MakeFileMenu() {
  QMenu& menu = *menuBar()->addMenu(tr("&File"));
  QAction* open = Add(menu, tr("&Open…"), QKeySequence::Open, [this] { AskForBoard(); });
  GiveSign(*open, ToolSign::Open, *actions_->bar);
  actions_->compareWith =
      Add(menu, tr("&Compare with…"), QKeySequence(Qt::CTRL | Qt::Key_D), [this] { AskForComparison(); });
  actions_->savePicture =
      Add(menu, tr("Save &picture…"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S), [this] { SavePicture(); });
  menu.addSeparator();
  Add(menu, tr("&Quit"), QKeySequence::Quit, [this] { close(); });
}

void MainWindow::MakeEditMenu() {
  QMenu& menu = *menuBar()->addMenu(tr("&Edit"));
  actions_->undo = Add(menu, tr("&Undo"), QKeySequence::Undo, [this] { history_->Undo(); });
  actions_->redo = Add(menu, tr("&Redo"), {}, [this] { history_->Redo(); });
  actions_->redo->setShortcuts({Qt::CTRL | Qt::SHIFT | Qt::Key_Z, Qt::CTRL | Qt::Key_Y});
}

void MainWindow::MakeViewMenu() {
  QMenu& menu = *menuBar()->addMenu(tr("&View"));
  actions_->fit = Add(menu, tr("&Whole board"), Qt::CTRL | Qt::Key_0, [this] { view_->FitAll(); });
  actions_->fitSelection = Add(menu, tr("&Selection"), Qt::CTRL | Qt::Key_E, [this] {
    if (session_) ShowPart(session_->Selection());
  });
  actions_->zoomIn = Add(menu, tr("Zoom &in"), QKeySequence::ZoomIn, [this] { view_->ZoomBy(kZoomStep); });
  actions_->zoomOut = Add(menu, tr("Zoom &out"), QKeySequence::ZoomOut, [this] { view_->ZoomBy(1 / kZoomStep); });
  actions_->flip = menu.addAction(tr("Seen from the &back"));
  actions_->flip->setShortcut(Qt::CTRL | Qt::Key_B);
  actions_->flip->setCheckable(true);
  connect(actions_->flip, &QAction::toggled, view_, &BoardView::SetSeenFromBack);
  actions_->references = menu.addAction(tr("&References of components"));
  actions_->references->setCheckable(true);
  actions_->references->setChecked(true);
  connect(actions_->references, &QAction::toggled, this, &MainWindow::ShowReferences);
  GiveSign(*actions_->fit, ToolSign::Fit, *actions_->bar);
  GiveSign(*actions_->zoomIn, ToolSign::ZoomIn, *actions_->bar);
  GiveSign(*actions_->zoomOut, ToolSign::ZoomOut, *actions_->bar);
  GiveSign(*actions_->flip, ToolSign::Flip, *actions_->bar);
  menu.addSeparator();
  MakeLayerMenu(*menu.addMenu(tr("&Layers")));
  MakeUnitMenu(*menu.addMenu(tr("&Units")));
  MakeThemeMenu(*menu.addMenu(tr("&Theme")));
  MakeLanguageMenu(*menu.addMenu(tr("Language")));
  QAction* letters = menu.addAction(tr("&Letters in colour squares"));
  letters->setCheckable(true);
  letters->setChecked(remembered_.letters);
  uiox_qt::ShowLettersInSquares(remembered_.letters);
  connect(letters, &QAction::toggled, this, [this](bool shown) {
    remembered_.letters = shown;
    uiox_qt::ShowLettersInSquares(shown);
    Keep();
  });
}

void MainWindow::MakeLayerMenu(QMenu& menu) {
  using Shown = std::function<bool(const LayerTree&, LayerId)>;
  const auto add = [&](const QString& text, const Shown& shown) {
    QAction* action = Add(menu, text, {}, [this, shown] {
      if (!session_) return;
      LayerTree& layers = session_->Trees().Layers();
      layers.ShowLayers([&](LayerId layer) { return shown(layers, layer); });
    });
    actions_->layers.append(action);
    return action;
  };
  add(tr("Show &all layers"), [](const LayerTree&, LayerId) { return true; });
  add(tr("Show &no layer"), [](const LayerTree&, LayerId) { return false; });
  add(tr("&Invert what is shown"), [](const LayerTree& layers, LayerId layer) { return !layers.IsVisible(layer); });
  actions_->onlyLayers =
      add(tr("Show &only these"), [](const LayerTree& layers, LayerId layer) { return layers.IsSelected(layer); });
}

void MainWindow::MakeUnitMenu(QMenu& menu) {
  auto* group = new QActionGroup(&menu);
  const std::pair<DisplayUnit, QString> units[] = {{DisplayUnit::Millimetre, tr("&Millimetres")},
                                                   {DisplayUnit::Mil, tr("Mi&ls")},
                                                   {DisplayUnit::Inch, tr("&Inches")}};
  for (const auto& [unit, text] : units) {
    QAction* action = group->addAction(menu.addAction(text));
    action->setCheckable(true);
    action->setChecked(unit == remembered_.unit);
    connect(action, &QAction::triggered, this, [this, chosen = unit] {
      remembered_.unit = chosen;
      Keep();
    });
  }
}

void MainWindow::MakeThemeMenu(QMenu& menu) {
  auto* group = new QActionGroup(&menu);
  const std::pair<Theme, QString> themes[] = {
      {Theme::System, tr("As the &system")}, {Theme::Light, tr("&Light")}, {Theme::Dark, tr("&Dark")}};
  for (const auto& [theme, text] : themes) {
    QAction* action = group->addAction(menu.addAction(text));
    action->setCheckable(true);
    action->setChecked(theme == remembered_.theme);
    connect(action, &QAction::triggered, this, [this, chosen = theme] {
      remembered_.theme = chosen;
      ApplyTheme(chosen);
      Keep();
    });
  }
}

void MainWindow::MakeLanguageMenu(QMenu& menu) {
  auto* group = new QActionGroup(&menu);
  const std::pair<const char*, QString> languages[] = {
      {"system", tr("As the &system")}, {"en", tr("&English")}, {"de", tr("&German")}};
  for (const auto& [language, text] : languages) {
    QAction* action = group->addAction(menu.addAction(text));
    action->setCheckable(true);
    action->setChecked(remembered_.language == language);
    connect(action, &QAction::triggered, this, [this, chosen = std::string(language)] {
      remembered_.language = chosen;
      Keep();
      UseLanguage(chosen);
    });
  }
}

void MainWindow::MakeSelectMenu() {
  QMenu& menu = *menuBar()->addMenu(tr("&Selection"));
  actions_->highlight = Add(menu, tr("&Highlight"), Qt::CTRL | Qt::Key_H, [this] { HighlightSelection(); });
  actions_->isolate = Add(menu, tr("&Isolate"), Qt::CTRL | Qt::Key_I, [this] { IsolateSelection(); });
  actions_->clear = Add(menu, tr("&Clear"), Qt::Key_Escape, [this] { ClearMarks(); });
  // Letters alone are for the board: in a tree they begin a search.
  actions_->highlight->setShortcuts({Qt::CTRL | Qt::Key_H, Qt::Key_H});
  actions_->isolate->setShortcuts({Qt::CTRL | Qt::Key_I, Qt::Key_I});
  GiveSign(*actions_->highlight, ToolSign::Highlight, *actions_->bar);
  GiveSign(*actions_->isolate, ToolSign::Isolate, *actions_->bar);
  GiveSign(*actions_->clear, ToolSign::Clear, *actions_->bar);
  menu.addSeparator();
  QAction* addHighlights = menu.addAction(tr("Highlighting &adds to what is highlighted"));
  addHighlights->setCheckable(true);
  addHighlights->setChecked(keeps_ && oxecad_ui::IsAddToHighlightsDefaultAction());
  connect(addHighlights, &QAction::triggered, this,
          [](bool add) { oxecad_ui::SetHighlightDefaultAction(add ? "add_highlight" : "highlight"); });
  QAction* addIsolates = menu.addAction(tr("Isolating adds &to what is isolated"));
  addIsolates->setCheckable(true);
  addIsolates->setChecked(keeps_ && oxecad_ui::IsAddToIsolatesDefaultAction());
  connect(addIsolates, &QAction::triggered, this,
          [](bool add) { oxecad_ui::SetIsolateDefaultAction(add ? "add_isolate" : "isolate"); });
  menu.addSeparator();
  actions_->netColor = Add(menu, tr("&Net colour…"), Qt::CTRL | Qt::Key_L, [this] { ChangeNetColor(); });
  actions_->noNetColor = Add(menu, tr("Net without a colour of its &own"), {}, [this] { RemoveNetColor(); });
  actions_->renameGroup = Add(menu, tr("&Rename layer group…"), Qt::Key_F2, [this] { RenameLayerGroup(); });
}

void MainWindow::MakeCompareMenu() {
  QMenu& menu = *menuBar()->addMenu(tr("&Comparison"));
  actions_->next = Add(menu, tr("&Next difference"), Qt::Key_F3, [this] { compare_->GoToNext(); });
  actions_->previous =
      Add(menu, tr("&Previous difference"), Qt::SHIFT | Qt::Key_F3, [this] { compare_->GoToPrevious(); });
  GiveSign(*actions_->previous, ToolSign::Previous, *actions_->bar);
  GiveSign(*actions_->next, ToolSign::Next, *actions_->bar);
}

void MainWindow::MakeHelpMenu() {
  QMenu& menu = *menuBar()->addMenu(tr("&Help"));
  Add(menu, tr("&Keys and mouse"), QKeySequence::HelpContents, [this] { ShowShortcuts(); });
  Add(menu, tr("&Legend"), {}, [this] { ShowLegend(); });
  Add(menu, tr("&About oxviewer"), {}, [this] { ShowAbout(); });
}

void MainWindow::MakeContextMenus() {
  const std::pair<QWidget*, QList<QAction*>> menus[] = {
      {&nets_->View(),
       {actions_->highlight, actions_->isolate, actions_->fitSelection, actions_->netColor, actions_->noNetColor}},
      {&components_->View(), {actions_->highlight, actions_->isolate, actions_->fitSelection}},
      {&parts_->View(), {actions_->highlight, actions_->isolate, actions_->fitSelection}},
      {&layers_->View(), actions_->layers + QList<QAction*>{actions_->renameGroup}},
      {&compare_->Panel().View(), {actions_->next, actions_->previous}},
      {view_, {actions_->highlight, actions_->isolate, actions_->clear, actions_->fit}}};
  for (const auto& [widget, actions] : menus) {
    widget->setContextMenuPolicy(Qt::ActionsContextMenu);
    widget->addActions(actions);
  }
}

void MainWindow::AskForBoard() {
  const QString file =
      QFileDialog::getOpenFileName(this, tr("Open board"), {}, tr("Boards (*.kicad_pcb);;All files (*)"));
  if (!file.isEmpty()) OpenBoards(file.toStdString(), std::nullopt);
}

void MainWindow::AskForComparison() {
  if (!session_) return;
  const QString file =
      QFileDialog::getOpenFileName(this, tr("Compare with board"), {}, tr("Boards (*.kicad_pcb);;All files (*)"));
  if (!file.isEmpty()) OpenBoards(session_->A().name, file.toStdString());
}

void MainWindow::SavePicture() {
  const QString file = QFileDialog::getSaveFileName(this, tr("Save picture"), {}, tr("Pictures (*.png)"));
  if (file.isEmpty()) return;
  view_->RenderNow();
  if (!view_->grab().save(file, "PNG")) {
    QMessageBox::warning(this, tr("The picture cannot be saved"), tr("%1 cannot be written.").arg(file));
  }
}

void MainWindow::ShowShortcuts() {
  const std::pair<QString, QString> rows[] = {
      {tr("Wheel"), tr("zoom at the pointer (Shift: sideways, Ctrl: up and down)")},
      {tr("Drag"), tr("move the board")},
      {tr("Click, Ctrl+click"), tr("select what lies there, add to the selection")},
      {tr("Double click, F, Home"), tr("the whole board")},
      {tr("+, −, arrows"), tr("zoom, move")},
      {tr("Ctrl+E"), tr("show the selection")},
      {tr("Ctrl+H, Ctrl+I, Esc (on the board also H, I)"), tr("highlight, isolate, clear")},
      {tr("Ctrl+Z, Ctrl+Shift+Z"), tr("undo and redo colours, checks and selections")},
      {tr("F3, Shift+F3"), tr("next and previous difference")},
      {tr("A letter in a tree"), tr("narrow the tree to names with it")},
      {tr("Alt+Down in a filter line"), tr("choose how its text is understood")},
      {tr("Ctrl+C in a tree"), tr("copy the selected names")},
      {tr("Shift+Right in a tree"), tr("expand all below")},
      {tr("Double click or Enter on a layer"), tr("choose its colour")},
      {tr("Space on a layer"), tr("show or hide it, or all that are selected")},
      {tr("Shift+click, drag over boxes"), tr("show or hide several layers")}};
  QString table = QStringLiteral("<table cellpadding=3>");
  for (const auto& [key, what] : rows) {
    table += QStringLiteral("<tr><td>%1</td><td>%2</td></tr>").arg(key.toHtmlEscaped(), what.toHtmlEscaped());
  }
  QMessageBox::information(this, tr("Keys and mouse"), table + QStringLiteral("</table>"));
}

void MainWindow::ShowLegend() {
  std::vector<LegendColor> layers;
  if (session_) {
    const LayerTree& tree = session_->Trees().Layers();
    for (std::size_t i = 0; i < session_->A().DeclaredLayerCount(); ++i) {
      const auto layer = static_cast<LayerId>(i);
      if (!tree.IsVisible(layer)) continue;
      layers.push_back({tree.ColorOfLayer(layer), QString::fromStdString(LayerLabel(session_->A().layers[i]))});
    }
  }
  (new Legend(layers, this))->show();
}

void MainWindow::ShowAbout() {
  QMessageBox::about(this, tr("About oxviewer"),
                     tr("<b>%1</b><p>Shows and compares printed circuit boards.")
                         .arg(QString::fromStdString(VersionText()).trimmed()));
}

}  // namespace oxviewer
