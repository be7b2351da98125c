/// \file
/// Two boards over each other.
#ifndef OXECAD_VIEWER_WINDOW_COMPARESCENE_H
#define OXECAD_VIEWER_WINDOW_COMPARESCENE_H

#include <viewer/trees/CompareTree.h>
#include <viewer/window/BoardScene.h>
#include <viewer/window/Brushwork.h>

#include <array>
#include <memory>
#include <vector>

namespace oxviewer {

/// Which look each thing of one of the boards has, by its id; a position in `CompareStyle::looks`.
struct LookTable {
  std::vector<std::uint32_t> nets;
  std::vector<std::uint32_t> components;
  std::vector<std::uint32_t> layers;
  /// Looks of nets and components on layers that are selected themselves.
  std::vector<std::uint32_t> netsOnSelected;
  std::vector<std::uint32_t> componentsOnSelected;
  std::vector<bool> selectedLayers;

  /// A net's items have the look of the net, a component's those of the component, anything else that of its layer.
  std::uint32_t LookOf(const ItemOrigin& origin, LayerId layer) const;
};

/// One layer of the comparison; kNoLayer where a board does not have it.
struct LayerPair {
  LayerId a = kNoLayer;
  LayerId b = kNoLayer;
};

struct CompareStyle {
  ViewStyle view;
  std::vector<CompareLook> looks;
  LookTable a;
  LookTable b;
  std::vector<LayerPair> layers;  ///< those that are visible, from the back to the front
};

/// Paints two boards: on each layer what only A has in A's colour, what only B has in B's, what both have in a third,
/// as far as the show mode lets them through.
class CompareScene : public Scene {
 public:
  CompareScene(std::shared_ptr<const BoardGeometry> a, std::shared_ptr<const BoardGeometry> b, CompareStyle style);

  void Paint(QPainter& painter, const Viewport& viewport, const IsStale& isStale) const override;
  QRectF Bounds() const override;

 private:
  struct Masks;
  bool PaintLayer(QPainter& painter, const Viewport& viewport, const LayerPair& layer, const IsStale& isStale) const;
  bool MakeMask(QImage& mask, const Viewport& viewport, const BoardGeometry& geometry, const LookTable& table,
                LayerId layer, std::uint32_t look, bool zones, const IsStale& isStale) const;
  std::vector<std::uint32_t> LooksOn(const LayerPair& layer, const QRectF& area, bool zones) const;

  std::shared_ptr<const BoardGeometry> a_;
  std::shared_ptr<const BoardGeometry> b_;
  CompareStyle style_;
};

/// Which parts of A and B a show mode lets through.
struct ShownParts {
  bool onlyA = false;
  bool onlyB = false;
  bool overlap = false;
};
ShownParts PartsOf(oxk::ecad::CompareColorVis::ShowMode mode);

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_WINDOW_COMPARESCENE_H
