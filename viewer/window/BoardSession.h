/// \file
/// One opened board, or two in comparison: what the trees say, as scenes.
#ifndef OXECAD_VIEWER_WINDOW_BOARDSESSION_H
#define OXECAD_VIEWER_WINDOW_BOARDSESSION_H

#include <viewer/app/Program.h>
#include <viewer/trees/BoardTrees.h>
#include <viewer/window/BoardScene.h>
#include <viewer/window/CompareScene.h>
#include <viewer/window/HitTest.h>

#include <QRectF>
#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace oxviewer {

/// Owns the boards, their trees and their geometry. The trees hold the state; a scene is made of what they say at that
/// moment.
class BoardSession {
 public:
  /// `boards.a` must be there. `mainframe` is what dialogs belong to.
  BoardSession(LoadedBoards boards, oxcore::Mainframe* mainframe);

  const Board& A() const { return *boards_.a; }
  const LoadedBoards& Boards() const { return boards_; }
  bool IsComparing() const { return boards_.b != nullptr; }
  BoardTrees& Trees() { return *trees_; }

  /// The geometry of board A.
  const BoardGeometry& Geometry() const { return *a_; }
  std::shared_ptr<const Scene> MakeScene(const ViewStyle& view) const;

  /// What is selected in the trees of nets, components and kinds.
  Marks Selection() const;
  /// What was highlighted and isolated.
  const Marks& Highlighted() const { return highlighted_; }
  const Marks& Isolated() const { return isolated_; }
  /// Makes the selection the set, or adds it to the set.
  void Highlight(bool add);
  void Isolate(bool add);
  /// What was highlighted and isolated in another session with the same boards.
  void SetMarks(const Marks& highlighted, const Marks& isolated);
  /// Nothing is highlighted or isolated any more.
  void ClearMarks();

  /// Gives nets a colour of their own; kNoColor takes it away.
  void SetNetColors(const std::vector<NetId>& nets, Color color);
  /// The nets' own colours are what the tree of nets shows now.
  void ReadNetColors();
  Color NetColor(NetId net) const { return netColors_[static_cast<std::size_t>(net)]; }
  std::vector<NetId> SelectedNets() const;

  /// Areas on the board, in millimetres.
  std::vector<QRectF> FramesOfSelection() const;
  QRectF BoundsOf(const Marks& marks) const;
  QRectF BoundsOfSubject(std::size_t subject) const;

  /// What lies at a place of board A.
  std::optional<Hit> HitAt(QPointF place, double tolerance) const;
  /// What a hit is, in words.
  QString DescriptionOf(const Hit& hit) const;

 private:
  BoardStyle StyleOf(const ViewStyle& view) const;
  CompareStyle CompareStyleOf(const ViewStyle& view) const;
  std::vector<LayerPair> VisibleLayers() const;
  Marks MarksOf(const std::vector<const oxviewer::Component*>& components) const;

  LoadedBoards boards_;
  std::shared_ptr<const BoardGeometry> a_;
  std::shared_ptr<const BoardGeometry> b_;
  std::unique_ptr<BoardTrees> trees_;
  std::vector<Color> netColors_;
  Marks highlighted_;
  Marks isolated_;
};

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_WINDOW_BOARDSESSION_H
