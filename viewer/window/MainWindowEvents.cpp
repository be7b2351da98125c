#include <viewer/trees/Panels.h>
#include <viewer/window/BoardSession.h>
#include <viewer/window/BoardView.h>
#include <viewer/window/ComparePanel.h>
#include <viewer/window/History.h>
#include <viewer/window/MainWindow.h>
#include <viewer/window/MainWindowActions.h>
#include <viewer/window/Mainframe.h>
#include <viewer/window/ReferenceLabels.h>
#include <viewer/window/TreePanel.h>

#include <QAction>
#include <QLabel>
#include <QStatusBar>
#include <QTabWidget>

#include <oxcore/ColorPickerDlg.h>
#include <oxecadutils/StringConversion.h>
#include <uicomps/dialogs/DefaultActions.h>
#include <uicomps/dialogs/RenameWithBalloonDlg.h>
#include <uiox_qt/TreeView.h>

namespace oxviewer {
namespace {

constexpr double kRoomAroundPart = 0.35;  // at least, of its own size

// Some of the board around a part; `least` in millimetres.
QRectF WithRoom(const QRectF& part, double least) {
  const double wider = std::max(part.width() * kRoomAroundPart, least);
  const double higher = std::max(part.height() * kRoomAroundPart, least);
  return part.adjusted(-wider, -higher, wider, higher);
}

}  // namespace

void MainWindow::ConnectView() {
  connect(view_, &BoardView::PointerMoved, this, &MainWindow::ShowPlace);
  connect(view_, &BoardView::PointerLeft, this, [this] {
    place_->clear();
    statusBar()->clearMessage();
  });
  connect(view_, &BoardView::ViewportChanged, this, &MainWindow::ShowZoom);
  connect(view_, &BoardView::Picked, this, &MainWindow::Pick);
  connect(history_.get(), &History::StepsChanged, this, &MainWindow::UpdateActions);
  connect(history_.get(), &History::Restored, this, [this] {
    session_->ReadNetColors();
    Redraw();
  });
}

void MainWindow::ConnectTrees() {
  BoardTrees& trees = session_->Trees();
  trees.Layers().SetOnChange([this] { Redraw(); });
  trees.Layers().SetOnSelection([this] { UpdateActions(); });
  trees.Nets().SetOnSelection([this] { ShowSelection(); });
  trees.Components().SetOnSelection([this] { ShowSelection(); });
  trees.Parts().SetOnSelection([this] {
    history_->Note();
    ShowSelection();
  });
  trees.Nets().SetOnActivation([this](const void*) { ShowPart(session_->Selection()); });
  trees.Components().SetOnActivation([this](const void*) { ShowPart(session_->Selection()); });
  trees.Parts().SetOnActivation([this](const Component&) { ShowPart(session_->Selection()); });
  if (CompareTree* compare = trees.Compare()) {
    compare->SetOnChange([this] { Redraw(); });
    compare->SetOnSelection([this] { Redraw(); });
  }
}

void MainWindow::FollowTrees() {
  if (!session_) return;
  const auto objects = [](ObjectTree& tree) {
    return TreeMemory::Objects{[&tree] { return tree.SelectedObjects(); },
                               [&tree](const std::set<void*>& selected) { tree.RestoreSelection(selected); }};
  };
  history_->Follow(*layers_->View().Tree());
  history_->Follow(*nets_->View().Tree(), objects(session_->Trees().Nets()));
  history_->Follow(*components_->View().Tree(), objects(session_->Trees().Components()));
  PartTree& parts = session_->Trees().Parts();  // a filter makes its nodes anew
  history_->FollowSelection([&parts] { return parts.SelectedNodes(); },
                            [&parts](const std::vector<std::string>& nodes) { parts.RestoreSelection(nodes); });
  if (session_->IsComparing()) history_->Follow(*compare_->Panel().View().Tree());
}

void MainWindow::Redraw() {
  if (session_) view_->SetScene(session_->MakeScene(viewStyle_));
}

void MainWindow::ShowSelection() {
  view_->SetFrames(session_->FramesOfSelection());
  Redraw();
  UpdateActions();
}

void MainWindow::ShowPart(const Marks& marks) {
  if (marks.Any()) view_->FitTo(WithRoom(session_->BoundsOf(marks), remembered_.view.room));
}

void MainWindow::ShowDifference(std::size_t subject) {
  view_->FitTo(WithRoom(session_->BoundsOfSubject(subject), remembered_.view.room));
}

void MainWindow::ShowPlace(QPointF place) {
  place_->setText(
      tr("X %1   Y %2").arg(LengthText(place.x(), remembered_.unit), LengthText(place.y(), remembered_.unit)));
  if (!session_) return;
  const auto hit = session_->HitAt(place, 2 / view_->CurrentViewport().pixelsPerMm);
  if (hit) {
    statusBar()->showMessage(session_->DescriptionOf(*hit));
  } else {
    statusBar()->clearMessage();
  }
}

void MainWindow::ShowZoom() { zoom_->setText(tr("%1 px/mm").arg(view_->CurrentViewport().pixelsPerMm, 0, 'g', 3)); }

void MainWindow::ShowReferences() {
  if (!session_ || session_->IsComparing() || !actions_->references->isChecked()) return view_->SetOverlay(nullptr);
  view_->SetOverlay([labels = ReferenceLabels(session_->A(), session_->Geometry(), font())](
                        QPainter& painter, const Viewport& viewport) { labels.Paint(painter, viewport); });
}

void MainWindow::Pick(QPointF place, double tolerance, bool extend) {
  if (!session_) return;
  const auto hit = session_->HitAt(place, tolerance);
  if (hit && hit->origin.net != kNoNet) {
    nets_->SelectNodes({NetTree::NodeOf(session_->A().nets[static_cast<std::size_t>(hit->origin.net)])}, extend);
    if (!extend) components_->SelectNodes({}, false);
    tabs_->setCurrentWidget(nets_);
  } else if (hit && hit->origin.component != kNoComponent) {
    components_->SelectNodes({session_->Trees().Components().NodeOf(hit->origin.component)}, extend);
    if (!extend) nets_->SelectNodes({}, false);
    tabs_->setCurrentWidget(components_);
  } else if (!extend) {
    nets_->SelectNodes({}, false);
    components_->SelectNodes({}, false);
    parts_->SelectNodes({}, false);
  }
}

void MainWindow::UpdateActions() {
  const bool any = session_ != nullptr;
  const bool selected = any && session_->Selection().Any();
  const bool comparing = any && session_->IsComparing();
  const bool nets = any && !session_->SelectedNets().empty();
  for (QAction* action : {actions_->compareWith, actions_->savePicture, actions_->fit, actions_->zoomIn,
                          actions_->zoomOut, actions_->flip}) {
    action->setEnabled(any);
  }
  for (QAction* action : {actions_->highlight, actions_->isolate, actions_->fitSelection}) {
    action->setEnabled(selected && !comparing);
  }
  actions_->fitSelection->setEnabled(selected);
  actions_->undo->setEnabled(history_->CanUndo());
  actions_->redo->setEnabled(history_->CanRedo());
  actions_->clear->setEnabled(selected || (any && (session_->Highlighted().Any() || session_->Isolated().Any())));
  actions_->netColor->setEnabled(nets && !comparing);
  actions_->noNetColor->setEnabled(nets && !comparing);
  const auto isGroup = [&] {
    const std::vector<std::string>& nodes = session_->Trees().Layers().Selection();
    return nodes.size() == 1 && LayerTree::IsGroup(nodes.front());
  };
  actions_->renameGroup->setEnabled(any && isGroup());
  for (QAction* action : actions_->layers) action->setEnabled(any);
  actions_->onlyLayers->setEnabled(any && !session_->Trees().Layers().Selection().empty());
  actions_->next->setEnabled(comparing);
  actions_->previous->setEnabled(comparing);
}

void MainWindow::HighlightSelection() {
  if (!session_) return;
  session_->Highlight(oxecad_ui::IsAddToHighlightsDefaultAction());
  Redraw();
  UpdateActions();
}

void MainWindow::IsolateSelection() {
  if (!session_) return;
  session_->Isolate(oxecad_ui::IsAddToIsolatesDefaultAction());
  Redraw();
  UpdateActions();
}

void MainWindow::ClearMarks() {
  if (!session_) return;
  session_->ClearMarks();
  for (TreePanel* panel : {nets_, components_, parts_, &compare_->Panel()}) panel->SelectNodes({}, false);
  ShowSelection();
}

void MainWindow::ChangeNetColor() {
  if (!session_) return;
  const std::vector<NetId> nets = session_->SelectedNets();
  if (nets.empty()) return;
  oxcore::ColorPickerDlg picker(mainframe_.get(), std::string());
  const Color color = picker.ShowDialog(session_->NetColor(nets.front()));
  if (color == kNoColor || !session_) return;
  session_->SetNetColors(nets, color & 0xFFFFFFu);
  Redraw();
}

void MainWindow::RemoveNetColor() {
  if (!session_) return;
  session_->SetNetColors(session_->SelectedNets(), kNoColor);
  Redraw();
}

void MainWindow::RenameLayerGroup() {
  if (!session_) return;
  LayerTree& layers = session_->Trees().Layers();
  if (layers.Selection().size() != 1 || !LayerTree::IsGroup(layers.Selection().front())) return;
  const std::string node = layers.Selection().front();
  std::set<std::wstring> taken{std::wstring()};
  for (const std::string& group : layers.Groups()) {
    if (group != node) taken.insert(layers.GetNodeLabel(group.c_str()));
  }
  oxecad_ui::RenameWithBalloonDlg dialog(
      taken, tr("A group of layers needs a name that no other group has.").toStdString(), true);
  dialog.SetNewName(layers.GetNodeLabel(node.c_str()));
  if (dialog.Run() && session_) session_->Trees().Layers().ModifyNodeLabel(node.c_str(), dialog.GetNewName().c_str());
}

void MainWindow::TakeSettings() {
  remembered_.view = settings_->Values();
  viewStyle_.grid = remembered_.view.grid;
  viewStyle_.thinnestLine = remembered_.view.lineWidth;
  viewStyle_.dim = remembered_.view.dimStrength;
  Redraw();
  Keep();
}

void MainWindow::Keep() {
  if (!keeps_) return;
  remembered_.viewUnits = settings_->Units();
  WritePreferences(remembered_);
}

}  // namespace oxviewer
