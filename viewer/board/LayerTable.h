#ifndef OXECAD_VIEWER_BOARD_LAYERTABLE_H
#define OXECAD_VIEWER_BOARD_LAYERTABLE_H

#include <viewer/board/Board.h>

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace oxviewer {

/// The layers of a board while it is read: found by name, and grown by the names that items use without declaring them.
class LayerTable {
 public:
  enum class Declared { New, Repeated, Contradictory, TooMany };

  /// Adds a layer of the board's own table. The same line twice is one layer; the same name with another user name or
  /// type is a contradiction.
  Declared Declare(Layer layer);

  /// The layer of that name, added as an undeclared one if need be; kNoLayer when there are kMaxLayers already.
  LayerId Find(std::string_view name);

  /// Adds the layers that a name in a list stands for: itself, all of a kind ("*.Cu", "*.Mask"), the front and the back
  /// one ("F&B.Cu"), or the inner copper ("*In.Cu").
  /// False when there are too many layers.
  bool Expand(std::string_view name, LayerSet& layers);

  /// The outer copper layers, whatever their names; they exist as undeclared ones if the board has none.
  LayerId FrontCopper() { return OuterCopper(true); }
  LayerId BackCopper() { return OuterCopper(false); }
  /// Whether what lies on that layer lies on the back.
  bool IsBackCopper(LayerId id);

  bool IsCopper(LayerId id) const { return id >= 0 && layers_[static_cast<std::size_t>(id)].copper; }
  std::vector<Layer> Take() { return std::move(layers_); }

 private:
  LayerId Add(Layer layer);
  LayerId OuterCopper(bool front);
  bool Insert(std::string_view name, LayerSet& layers);
  bool ExpandKind(std::string_view suffix, LayerSet& layers);

  std::vector<Layer> layers_;
  std::map<std::string, LayerId, std::less<>> byName_;
};

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_BOARD_LAYERTABLE_H
