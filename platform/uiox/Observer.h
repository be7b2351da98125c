/// \file
/// What changed, told in terms that a view can follow without being built anew.
#ifndef OXECAD_UIOX_OBSERVER_H
#define OXECAD_UIOX_OBSERVER_H

#include <uiox/Export.h>
#include <uiox/NodeId.h>

#include <cstdint>

namespace uiox {

class Device;
class TreeStore;
class TreeWidget;
class Widget;

/// What changed of a node; several at once are or'ed.
enum NodeChange : std::uint32_t {
  kLabelChanged = 1u << 0,
  kSecondTextChanged = 1u << 1,
  kTypeChanged = 1u << 2,
  kCheckChanged = 1u << 3,
  kCheckSensitiveChanged = 1u << 4,
  kExpandedChanged = 1u << 5,
  kHighlightChanged = 1u << 6,  ///< in or out of the selection; `SelectionChanged` follows
  kUserDataChanged = 1u << 7,
  kFirstIntChanged = 1u << 8
};
using NodeChanges = std::uint32_t;

/// Follows one tree. Every call comes from the thread of the user interface. An observer reads the store, but does not
/// change it, and neither adds nor removes observers meanwhile.
///
/// Rows count from 0. The store still has its old shape in an `AboutTo…` and has its new one in the call that follows
/// it. A call that leaves everything as it was sends nothing.
class OXECAD_UIOX_API TreeObserver {
 public:
  virtual ~TreeObserver();

  virtual void AboutToAdd(NodeId parent, std::uint32_t row);
  virtual void Added(NodeId node, NodeId parent, std::uint32_t row);
  /// With the whole subtree; it is not told for the nodes below.
  virtual void AboutToRemove(NodeId node, NodeId parent, std::uint32_t row);
  virtual void Removed(NodeId parent, std::uint32_t row);
  /// `to_row` is the row, counted before the move, in front of which the node will stand (the child count: at the end).
  virtual void AboutToMove(NodeId node, NodeId from, std::uint32_t row, NodeId to, std::uint32_t to_row);
  /// `row` is the node's row now.
  virtual void Moved(NodeId node, NodeId from, NodeId to, std::uint32_t row);
  virtual void NodeChanged(NodeId node, NodeChanges changes);
  /// A cell has another label.
  virtual void CellChanged(CellPlace cell);
  /// Another control, or none, stands in the cell.
  virtual void CellControlChanged(CellPlace cell, ControlId control);
  /// The control in the cell has another state, choice or items.
  virtual void ControlChanged(CellPlace cell, ControlId control);
  virtual void SelectionChanged();
  /// The selected cell (attributes 232 and 233) is another one, or none.
  virtual void SelectedCellChanged(CellPlace cell);
  /// A whole subtree was expanded or collapsed by one operation; no `NodeChanged` came for its nodes.
  virtual void BranchExpanded(NodeId node, bool expanded);
};

/// What changed of a component or a device.
enum class WidgetChange : std::uint8_t {
  Label,
  Text,
  Shown,
  Sensitive,
  Focus,          ///< of a device: another component has the keyboard focus
  DefaultButton,  ///< of a device
  Redraw,
  TextMode,
  Images,
  BackgroundColor,
  BalloonStyle,
  Items,
  SelectedItem,
  CheckState,
  Geometry,
  SelectedText
};

/// Follows the whole suite.
class OXECAD_UIOX_API SuiteObserver {
 public:
  virtual ~SuiteObserver();

  virtual void DeviceCreated(Device& device);
  virtual void AboutToDestroyDevice(Device& device);
  virtual void DeviceShown(Device& device);
  virtual void DeviceHidden(Device& device);
  /// Its components want a new layout (operation 2013). Comes before the caller goes on to read their sizes.
  virtual void DeviceLayoutRequested(Device& device);
  virtual void ModalRunStarted(Device& device);
  virtual void ModalRunEnded(Device& device, int result);
  /// A cell control came to be; `AboutToDestroyControl` before it ends. Other components live as long as their device.
  virtual void ControlCreated(Widget& control);
  virtual void AboutToDestroyControl(Widget& control);
  virtual void WidgetChanged(Widget& widget, WidgetChange change);
  /// The user is about to do something that callbacks may follow.
  virtual void UserActed();
  virtual void ImageDefined(const char* name);
  virtual void NodeTypeDefined(TypeId type);
};

}  // namespace uiox

#endif
