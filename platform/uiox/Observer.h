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
  kLabelChanged = 1u << 0,           ///< what the first column shows
  kSecondTextChanged = 1u << 1,      ///< the text that no view shows
  kTypeChanged = 1u << 2,            ///< the type, and with it the image
  kCheckChanged = 1u << 3,           ///< checked, not checked or mixed
  kCheckSensitiveChanged = 1u << 4,  ///< whether the user may toggle the check box
  kExpandedChanged = 1u << 5,        ///< expanded or collapsed
  kHighlightChanged = 1u << 6,       ///< in or out of the selection; `SelectionChanged` follows
  kUserDataChanged = 1u << 7,        ///< the application's pointer
  kFirstIntChanged = 1u << 8         ///< the application's number
};
/// `NodeChange` values or'ed.
using NodeChanges = std::uint32_t;

/// Follows one tree. Every call comes from the thread of the user interface. An observer reads the store, but does not
/// change it, and neither adds nor removes observers meanwhile.
///
/// Rows count from 0. The store still has its old shape in an `AboutTo…` and has its new one in the call that follows
/// it. A call that leaves everything as it was sends nothing.
class OXECAD_UIOX_API TreeObserver {
 public:
  virtual ~TreeObserver();

  /// A node is about to come in at a row of its parent (a node or `kTop`).
  virtual void AboutToAdd(NodeId parent, std::uint32_t row);
  /// The node is there, with all its attributes.
  virtual void Added(NodeId node, NodeId parent, std::uint32_t row);
  /// With the whole subtree; it is not told for the nodes below.
  virtual void AboutToRemove(NodeId node, NodeId parent, std::uint32_t row);
  /// The row is gone; the id may be given to a new node.
  virtual void Removed(NodeId parent, std::uint32_t row);
  /// `to_row` is the row, counted before the move, in front of which the node will stand (the child count: at the end).
  virtual void AboutToMove(NodeId node, NodeId from, std::uint32_t row, NodeId to, std::uint32_t to_row);
  /// `row` is the node's row now.
  virtual void Moved(NodeId node, NodeId from, NodeId to, std::uint32_t row);
  /// Attributes of a node have new values.
  virtual void NodeChanged(NodeId node, NodeChanges changes);
  /// A cell has another label.
  virtual void CellChanged(CellPlace cell);
  /// Another control, or none, stands in the cell.
  virtual void CellControlChanged(CellPlace cell, ControlId control);
  /// The control in the cell has another state, choice or items.
  virtual void ControlChanged(CellPlace cell, ControlId control);
  /// The set of selected nodes, or their order, is another one.
  virtual void SelectionChanged();
  /// The selected cell (attributes 232 and 233) is another one, or none.
  virtual void SelectedCellChanged(CellPlace cell);
  /// A whole subtree was expanded or collapsed by one operation; no `NodeChanged` came for its nodes.
  virtual void BranchExpanded(NodeId node, bool expanded);
};

/// What changed of a component or a device.
enum class WidgetChange : std::uint8_t {
  Label,            ///< the label or title
  Text,             ///< the text of a field
  Shown,            ///< whether it is to be shown
  Sensitive,        ///< whether the user may work with it
  Focus,            ///< of a device: another component has the keyboard focus
  DefaultButton,    ///< of a device
  Redraw,           ///< whether changes are painted as they come
  TextMode,         ///< how a message lays its text out
  Images,           ///< the images of an icon
  BackgroundColor,  ///< the colour behind it
  BalloonStyle,     ///< attribute 519
  Items,            ///< the entries of a menu, or how many it shows at a time
  SelectedItem,     ///< the entry that is chosen
  CheckState,       ///< on, off or mixed
  Geometry,         ///< place or size
  SelectedText      ///< the marked part of the text
};

/// Follows the whole suite.
class OXECAD_UIOX_API SuiteObserver {
 public:
  virtual ~SuiteObserver();

  /// A device with all its components has come to be.
  virtual void DeviceCreated(Device& device);
  /// A device is about to end; nothing of it may be used after this returns.
  virtual void AboutToDestroyDevice(Device& device);
  /// A device is on the screen now.
  virtual void DeviceShown(Device& device);
  /// A device is off the screen now.
  virtual void DeviceHidden(Device& device);
  /// Its components want a new layout (operation 2013). Comes before the caller goes on to read their sizes.
  virtual void DeviceLayoutRequested(Device& device);
  /// A device is shown and its modal run begins; runs may lie inside each other.
  virtual void ModalRunStarted(Device& device);
  /// The innermost run of a device was ended with a result (`Suite::kNoResult`: by nobody).
  virtual void ModalRunEnded(Device& device, int result);
  /// A cell control came to be; `AboutToDestroyControl` before it ends. Other components live as long as their device.
  virtual void ControlCreated(Widget& control);
  /// A cell control is about to end; it may not be used after this returns.
  virtual void AboutToDestroyControl(Widget& control);
  /// Something of a component or a device has a new value.
  virtual void WidgetChanged(Widget& widget, WidgetChange change);
  /// The user is about to do something that callbacks may follow.
  virtual void UserActed();
  /// An image has come or was replaced; pictures made of the old one are out of date.
  virtual void ImageDefined(const char* name);
  /// A node type has new images.
  virtual void NodeTypeDefined(TypeId type);
};

}  // namespace uiox

#endif
