#include <uiox/Backend.h>
#include <uiox/Front.h>
#include <uiox/Observer.h>

namespace uiox {

Backend::~Backend() = default;
Front::~Front() = default;
TreeObserver::~TreeObserver() = default;
SuiteObserver::~SuiteObserver() = default;

// An observer overrides what it wants to know.

void TreeObserver::AboutToAdd(NodeId, std::uint32_t) {}
void TreeObserver::Added(NodeId, NodeId, std::uint32_t) {}
void TreeObserver::AboutToRemove(NodeId, NodeId, std::uint32_t) {}
void TreeObserver::Removed(NodeId, std::uint32_t) {}
void TreeObserver::AboutToMove(NodeId, NodeId, std::uint32_t, NodeId, std::uint32_t) {}
void TreeObserver::Moved(NodeId, NodeId, NodeId, std::uint32_t) {}
void TreeObserver::NodeChanged(NodeId, NodeChanges) {}
void TreeObserver::CellChanged(CellPlace) {}
void TreeObserver::CellControlChanged(CellPlace, ControlId) {}
void TreeObserver::ControlChanged(CellPlace, ControlId) {}
void TreeObserver::SelectionChanged() {}
void TreeObserver::SelectedCellChanged(CellPlace) {}
void TreeObserver::BranchExpanded(NodeId, bool) {}

void SuiteObserver::DeviceCreated(Device&) {}
void SuiteObserver::AboutToDestroyDevice(Device&) {}
void SuiteObserver::DeviceShown(Device&) {}
void SuiteObserver::DeviceHidden(Device&) {}
void SuiteObserver::DeviceLayoutRequested(Device&) {}
void SuiteObserver::ModalRunStarted(Device&) {}
void SuiteObserver::ModalRunEnded(Device&, int) {}
void SuiteObserver::ControlCreated(Widget&) {}
void SuiteObserver::AboutToDestroyControl(Widget&) {}
void SuiteObserver::WidgetChanged(Widget&, WidgetChange) {}
void SuiteObserver::UserActed() {}
void SuiteObserver::ImageDefined(const char*) {}
void SuiteObserver::NodeTypeDefined(TypeId) {}

}  // namespace uiox
