/// \file
/// One board in the colours of its layers and nets.
#ifndef OXECAD_VIEWER_WINDOW_BOARDSCENE_H
#define OXECAD_VIEWER_WINDOW_BOARDSCENE_H

#include <viewer/window/BoardGeometry.h>
#include <viewer/window/Scene.h>

#include <QColor>

#include <memory>
#include <vector>

namespace oxviewer {

/// A set of nets and components, by their ids. Vectors that are too short hold nothing more.
struct Marks {
  std::vector<bool> nets;
  std::vector<bool> components;

  bool Any() const;
  bool Has(const ItemOrigin& origin) const;
  /// Takes in what the other set has.
  void Add(const Marks& other);

  friend bool operator==(const Marks&, const Marks&) = default;
};

/// What is common to all pictures of boards.
struct ViewStyle {
  QRgb background = qRgb(0x16, 0x1B, 0x21);
  QRgb gridColor = qRgb(0x4A, 0x55, 0x62);
  double grid = 1.0;           ///< distance of the grid's points in mm; 0: no grid
  double thinnestLine = 0.05;  ///< in mm; thinner lines are painted as wide as this
  double dim = 0.75;           ///< how much dimmed things lose: 0 nothing, 1 everything

  friend bool operator==(const ViewStyle&, const ViewStyle&) = default;
};

struct LayerStyle {
  bool visible = true;
  QRgb color = qRgb(0xFF, 0xFF, 0xFF);
};

struct BoardStyle {
  ViewStyle view;
  std::vector<LayerStyle> layers;  ///< by LayerId
  LayerId activeLayer = kNoLayer;  ///< painted above the other copper
  std::vector<QRgb> netColors;     ///< by NetId; 0: the layer's colour
  Marks marked;                    ///< painted lighter, and everything else dimmed
  Marks isolated;                  ///< where there are any, only they and the outline are painted
};

class BoardScene : public Scene {
 public:
  BoardScene(std::shared_ptr<const BoardGeometry> geometry, BoardStyle style);

  void Paint(QPainter& painter, const Viewport& viewport, const IsStale& isStale) const override;
  QRectF Bounds() const override { return geometry_->bounds; }

 private:
  QRgb ColorOf(const ItemOrigin& origin, QRgb layerColor, LayerRank rank, bool markedPass) const;
  bool PaintLayer(QPainter& painter, const Viewport& viewport, LayerId layer, const IsStale& isStale) const;
  bool PaintHoles(QPainter& painter, const Viewport& viewport, const IsStale& isStale) const;
  bool ShowsCopper() const;
  std::vector<LayerId> Order() const;

  std::shared_ptr<const BoardGeometry> geometry_;
  BoardStyle style_;
  bool marking_;
  bool isolating_;
};

/// Fills the picture with the background and the grid's points, as far as they are not too close.
void PaintBackground(QPainter& painter, const Viewport& viewport, const ViewStyle& style);

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_WINDOW_BOARDSCENE_H
