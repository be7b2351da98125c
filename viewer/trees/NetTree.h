/// \file
/// The tree of a board's nets.
#ifndef OXECAD_VIEWER_TREES_NETTREE_H
#define OXECAD_VIEWER_TREES_NETTREE_H

#include <viewer/board/Board.h>
#include <viewer/trees/LayerPalette.h>
#include <viewer/trees/ObjectTree.h>

#include <string>

namespace oxviewer {

/// The nets of a board below their classes, both in natural order, "Default" first. A label is the net's true name. A
/// class stands for all its nets: to select it is to select them.
///
///     Default              SelAll_Default
///       /cpu/A1            net:%2Fcpu%2FA1
///       /cpu/A10           net:%2Fcpu%2FA10
///     Power                SelAll_Power
///       GND                net:GND
class NetTree : public ObjectTree {
 public:
  static constexpr const char* kName = "nets";

  /// Shows the nets of `board`, which must outlive it, in the tree "nets" of the device.
  NetTree(const char* device, const Board& board);

  /// Registers the tree's events and fills it.
  void Fill();

  /// The name of a net's node.
  static std::string NodeOf(const Net& net);
  /// Gives a net's node another type, and with it that type's image.
  void SetType(const Net& net, const char* type);

  /// The type of nets that have no colour of their own.
  static constexpr const char* kPlainType = "net";

 private:
  const Board& board_;
};

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_TREES_NETTREE_H
