#include <viewer/trees/Panels.h>
#include <viewer/trees/TreeTexts.h>
#include <viewer/window/BoardSession.h>
#include <viewer/window/BoardView.h>
#include <viewer/window/ComparePanel.h>
#include <viewer/window/FilterLine.h>
#include <viewer/window/History.h>
#include <viewer/window/KeptTrees.h>
#include <viewer/window/Languages.h>
#include <viewer/window/MainWindow.h>
#include <viewer/window/MainWindowActions.h>
#include <viewer/window/Mainframe.h>
#include <viewer/window/TreePanel.h>

#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QFile>
#include <QFileInfo>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeData>
#include <QSplitter>
#include <QStatusBar>
#include <QTabWidget>
#include <QUrl>
#include <QVBoxLayout>

#include <algorithm>
#include <initializer_list>
#include <utility>

#include <uicomps/toolkit/DeviceCalls.h>
#include <uiox_qt/QtFront.h>
#include <uiox_qt/TreeView.h>

namespace oxviewer {
namespace {

constexpr int kPanelWidth = 290;
constexpr int kComparisonWidth = 600;

TreePanel* MakePanel(uiox_qt::QtFront& front, const char* device, const char* tree, const QString& placeholder) {
  return new TreePanel(*front.TreeViewFor(device, tree), placeholder);
}

QString FileName(const Board& board) { return QFileInfo(QString::fromStdString(board.name)).fileName(); }

// Labels of a form are as wide as the widest.
void AlignLabels(uiox_qt::QtFront& front, const char* device, std::initializer_list<const char*> labels) {
  int widest = 0;
  for (const char* label : labels) {
    if (const QWidget* widget = front.ComponentFor(device, label))
      widest = std::max(widest, widget->sizeHint().width());
  }
  for (const char* label : labels) {
    if (QWidget* widget = front.ComponentFor(device, label)) widget->setMinimumWidth(widest);
  }
}

// A value counts when its field is left: Enter leaves the field and comes back to it.
void TakeValueOnEnter(QLineEdit& field, const QObject& whileThisLives) {
  QObject::connect(&field, &QLineEdit::returnPressed, &whileThisLives, [&field] {
    field.clearFocus();
    field.setFocus();
    field.selectAll();
  });
}

// The first local file that something dragged brings along.
QString BoardIn(const QMimeData& data) {
  for (const QUrl& url : data.urls()) {
    if (url.isLocalFile()) return url.toLocalFile();
  }
  return {};
}

}  // namespace

MainWindow::MainWindow(uiox_qt::QtFront& front, const Remembered& remembered, bool keeps)
    : front_(front),
      remembered_(remembered),
      keeps_(keeps),
      mainframe_(std::make_unique<oxcore::Mainframe>(*this)),
      kept_(std::make_unique<KeptTrees>(KeptFile({}, {}))),
      history_(std::make_unique<History>()),
      actions_(std::make_unique<Actions>()),
      view_(new BoardView),
      layers_(nullptr),
      nets_(nullptr),
      components_(nullptr),
      parts_(nullptr),
      compare_(nullptr),
      layerTabs_(nullptr),
      tabs_(nullptr),
      splitter_(nullptr),
      place_(new QLabel),
      zoom_(new QLabel),
      facts_(new QLabel) {
  setAcceptDrops(true);
  front_.SetMainWindow(this);
  for (QLabel* label : {facts_, place_, zoom_}) {
    label->setContentsMargins(6, 0, 6, 0);
    statusBar()->addPermanentWidget(label);
  }
  ConnectView();
  Build();
}

void MainWindow::Build() {
  CreatePanels(&TranslatedResourceText);
  SetTreeTexts(&TranslatedResourceText);
  settings_ = std::make_unique<ViewSettings>(kSettingsPanel);
  settings_->Init();
  settings_->SetUnits(remembered_.viewUnits);
  settings_->SetValues(remembered_.view);
  settings_->SetOnChange([this] { TakeSettings(); });
  MakePanels();
  ArrangePanels();
  MakeActions();
  place_->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("X 0000.000 mm  Y 0000.000 mm  ")));
  zoom_->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("00000 px/mm ")));
  TakeSettings();
  view_->setAccessibleName(tr("Board"));
  view_->SetHint(tr("Open a board with Ctrl+O, or drop a .kicad_pcb file here"));
  UpdateActions();
  UpdateTitle();
}

MainWindow::~MainWindow() {
  EndSession();
  ReleaseSettings();
  front_.SetMainWindow(nullptr);
}

void MainWindow::EndSession() {
  view_->SetScene(nullptr);
  view_->SetOverlay(nullptr);
  compare_->SetTree(nullptr);
  history_->Clear();
  session_.reset();
}

void MainWindow::ReleaseSettings() {
  // The front's widgets are only placed here: another window may show them later.
  if (QWidget* settings = front_.WidgetFor(kSettingsPanel)) {
    settings->hide();
    settings->setParent(nullptr);
  }
}

void MainWindow::MakePanels() {
  layers_ = MakePanel(front_, kLayersPanel, LayerTree::kName, tr("Filter layers"));
  nets_ = MakePanel(front_, kNetsPanel, NetTree::kName, tr("Filter nets"));
  components_ = MakePanel(front_, kComponentsPanel, ComponentTree::kName, tr("Filter components"));
  parts_ = MakePanel(front_, kObjectsPanel, PartTree::kName, tr("Filter by reference, value or footprint"));
  layers_->View().SetCheckRule(uiox_qt::CheckRule::WithSelection);
  compare_ = new ComparePanel(*front_.TreeViewFor(kComparePanel, CompareTree::kName));
  connect(compare_, &ComparePanel::DifferenceShown, this, &MainWindow::ShowDifference);
  parts_->SetFilterAction([this](const TextMatcher& matcher) {
    if (!session_) return;
    if (matcher.IsEmpty()) return session_->Trees().Parts().SetFilter(TextTest());
    session_->Trees().Parts().SetFilter([matcher](std::string_view text) { return matcher.MatchesUtf8(text); });
  });
  for (const char* device :
       {kLayersPanel, kNetsPanel, kComponentsPanel, kObjectsPanel, kComparePanel, kSettingsPanel}) {
    oxecad_ui::wire::ShowDevice(device);
  }
}

void MainWindow::ArrangePanels() {
  tabs_ = new QTabWidget;
  tabs_->setDocumentMode(true);
  tabs_->addTab(nets_, tr("Nets"));
  tabs_->addTab(components_, tr("Components"));
  tabs_->addTab(parts_, tr("Kinds"));

  layerTabs_ = new QTabWidget;
  layerTabs_->setDocumentMode(true);
  layerTabs_->addTab(layers_, tr("Layers"));
  QWidget* settings = front_.WidgetFor(kSettingsPanel);
  layerTabs_->addTab(settings, tr("View"));
  for (QLineEdit* field : settings->findChildren<QLineEdit*>()) TakeValueOnEnter(*field, *this);
  front_.ComponentFor(kSettingsPanel, "room")->setToolTip(tr("A length, or a sum such as 1.5mm + 20mil"));
  AlignLabels(front_, kSettingsPanel, {"gridLabel", "lineWidthLabel", "dimLabel", "roomLabel"});
  AlignLabels(front_, kSettingsPanel, {"gridUnit", "lineWidthUnit", "dimUnit", "roomUnit"});
  auto* left = new QSplitter(Qt::Vertical);
  left->addWidget(layerTabs_);
  left->addWidget(tabs_);
  left->setSizes({1000, 1200});
  splitter_ = new QSplitter(Qt::Horizontal);
  splitter_->addWidget(left);
  splitter_->addWidget(view_);
  splitter_->addWidget(compare_);
  splitter_->setStretchFactor(0, 0);
  splitter_->setStretchFactor(1, 1);
  splitter_->setStretchFactor(2, 0);
  splitter_->setChildrenCollapsible(false);
  splitter_->setSizes({kPanelWidth, 1000, kComparisonWidth});
  compare_->hide();
  setCentralWidget(splitter_);
}

void MainWindow::KeepTreesIn(const QString& file) {
  const auto report = [this](const std::string& line) {
    PrintError(line);
    statusBar()->showMessage(QString::fromStdString(line));
  };
  kept_ = std::make_unique<KeptTrees>(KeptFile(QFile::encodeName(file).toStdString(), report));
  kept_->Apply(*this);
}

void MainWindow::closeEvent(QCloseEvent* event) {
  kept_->Save(*this);
  QMainWindow::closeEvent(event);
}

void MainWindow::ShowBoards(LoadedBoards boards) {
  kept_->Save(*this);
  for (TreePanel* panel : Panels()) panel->Filter().clear();
  EndSession();
  if (boards.a) session_ = std::make_unique<BoardSession>(std::move(boards), mainframe_.get());
  compare_->setVisible(session_ && session_->IsComparing());
  if (session_) {
    ConnectTrees();
    compare_->SetTree(session_->Trees().Compare());
    kept_->Apply(*this);
    view_->SetScene(session_->MakeScene(viewStyle_));
  }
  FollowTrees();
  ShowReferences();
  view_->SetFrames({});
  UpdateActions();
  UpdateTitle();
}

void MainWindow::OpenBoards(const std::string& a, const std::optional<std::string>& b) {
  QApplication::setOverrideCursor(Qt::WaitCursor);
  auto loaded = LoadBoards(a, b);
  QApplication::restoreOverrideCursor();
  if (!loaded) {
    QMessageBox::warning(this, tr("The board cannot be opened"), QString::fromStdString(loaded.error().ToLine()));
    return;
  }
  ShowBoards(std::move(*loaded));
}

void MainWindow::UpdateTitle() {
  if (!session_) {
    setWindowTitle(tr("oxviewer"));
    facts_->clear();
    return;
  }
  const Board& a = session_->A();
  QString name = FileName(a);
  if (session_->IsComparing()) name = tr("%1 and %2").arg(name, FileName(*session_->Boards().b));
  setWindowTitle(tr("%1 – oxviewer").arg(name));
  facts_->setText(tr("%1 layers  ·  %2 nets  ·  %3 components")
                      .arg(a.DeclaredLayerCount())
                      .arg(a.nets.size())
                      .arg(a.components.size()));
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (!BoardIn(*event->mimeData()).isEmpty()) event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
  const QString file = BoardIn(*event->mimeData());
  if (file.isEmpty()) return;
  event->acceptProposedAction();
  // The dragging program waits until this has returned.
  QMetaObject::invokeMethod(
      this, [this, file] { OpenBoards(file.toStdString(), std::nullopt); }, Qt::QueuedConnection);
}

}  // namespace oxviewer
