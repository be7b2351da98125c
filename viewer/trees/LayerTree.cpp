#include <viewer/trees/LayerTree.h>
#include <viewer/trees/NodeName.h>
#include <viewer/trees/TreeTexts.h>

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include <oxecadutils/StringConversion.h>

namespace oxviewer {
namespace {

using oxecad_ui::Tree;
using oxecadutils::Utf8ToWideStr;

constexpr const char* kRoot = "root";
constexpr const char* kLayerKind = "layer";
constexpr const char* kActiveKind = "active";
constexpr const char* kCopperGroup = "layers:copper";
constexpr const char* kTechnicalGroup = "layers:technical";
constexpr const char* kActiveGroup = "layers:active";
constexpr std::array kGroups{kCopperGroup, kTechnicalGroup};

// The names that the format itself gives to layers beside the canonical ones.
constexpr std::array<std::pair<std::string_view, std::string_view>, 6> kStandardNames{{
    {"Adhes", "Adhesive"},
    {"SilkS", "Silkscreen"},
    {"CrtYd", "Courtyard"},
    {"Mask", "Mask"},
    {"Paste", "Paste"},
    {"Fab", "Fab"},
}};

bool IsStandardName(const Layer& layer) {
  const std::string_view name = layer.name;
  const std::string_view user = layer.userName;
  for (const auto& [shortName, longName] : kStandardNames) {
    for (const std::string_view side : {"F.", "B."}) {
      if (name.starts_with(side) && name.substr(2) == shortName && user.starts_with(side) &&
          user.substr(2) == longName) {
        return true;
      }
    }
  }
  constexpr std::array<std::pair<std::string_view, std::string_view>, 4> kUserLayers{{{"Dwgs.User", "User.Drawings"},
                                                                                      {"Cmts.User", "User.Comments"},
                                                                                      {"Eco1.User", "User.Eco1"},
                                                                                      {"Eco2.User", "User.Eco2"}}};
  for (const auto& [canonical, standard] : kUserLayers) {
    if (name == canonical && user == standard) return true;
  }
  return false;
}

Tree::NodeState StateOf(bool checked) { return checked ? Tree::Checked : Tree::Unchecked; }

}  // namespace

std::string LayerLabel(const Layer& layer) {
  if (layer.userName.empty() || layer.userName == layer.name || IsStandardName(layer)) return layer.name;
  return layer.name + " (" + layer.userName + ")";
}

LayerTree::LayerTree(const char* device, const Board& board)
    : ColorTree(device, kName), board_(board), defaults_(DefaultLayerColors(board)) {
  SetOnDirtyHandler(&LayerTree::DirtyCB, this, &changed_);
}

LayerTree::~LayerTree() { ColorTree::Clear(); }

void LayerTree::Fill(oxcore::Mainframe* mainframe) {
  Init(mainframe);
  SetRedraw(false);
  AddGroups();
  for (std::size_t i = 0; i < board_.DeclaredLayerCount(); ++i) AddLayer(static_cast<LayerId>(i), defaults_[i]);
  AddActiveLayers();
  SumUpGroups();
  SetRedraw(true);
}

void LayerTree::AddGroups() {
  BaseTree::AddNode(kRoot, WideTreeText("Layers").c_str(), "", s_colorlessType, L"", 1, 1, 0, nullptr);
  AddNode(kCopperGroup, WideTreeText("Copper").c_str(), kRoot, kNoColor, 0, L"", 1, 1);
  AddNode(kTechnicalGroup, WideTreeText("Technical").c_str(), kRoot, kNoColor, 0, L"", 1, 1);
  BaseTree::AddNode(kActiveGroup, WideTreeText("Active layer").c_str(), kRoot, s_colorlessType, L"", 1, 1, 0, nullptr);
  SetCheckSensitive(kActiveGroup, false);
  AddSingleCheckBranch(kActiveGroup);
}

void LayerTree::AddLayer(LayerId id, Color color) {
  const Layer& layer = board_.layers[static_cast<std::size_t>(id)];
  const std::string name = NodeName(kLayerKind, layer.name);
  const std::wstring label = Utf8ToWideStr(LayerLabel(layer));
  if (AddNode(name.c_str(), label.c_str(), layer.copper ? kCopperGroup : kTechnicalGroup, color, 0, L"", 1, 0)) {
    SetNodeState(name.c_str(), StateOf(IsShownAtFirst(layer)));
  }
}

void LayerTree::AddActiveLayers() {
  bool first = true;
  for (std::size_t i = 0; i < board_.DeclaredLayerCount(); ++i) {
    const Layer& layer = board_.layers[i];
    if (!layer.copper) continue;
    const std::string name = NodeName(kActiveKind, layer.name);
    const std::wstring label = Utf8ToWideStr(LayerLabel(layer));
    if (BaseTree::AddNode(name.c_str(), label.c_str(), kActiveGroup, s_colorlessType, L"", 1, 0, 0, nullptr)) {
      SetNodeState(name.c_str(), StateOf(std::exchange(first, false)));
    }
  }
}

bool LayerTree::IsVisible(LayerId id) const {
  const Layer& layer = board_.layers[static_cast<std::size_t>(id)];
  return !layer.declared || GetNodeState(NodeName(kLayerKind, layer.name).c_str()) == Checked;
}

Color LayerTree::ColorOfLayer(LayerId id) const {
  const Layer& layer = board_.layers[static_cast<std::size_t>(id)];
  if (!layer.declared) return defaults_[static_cast<std::size_t>(id)];
  return GetNodeColor(NodeName(kLayerKind, layer.name).c_str());
}

void LayerTree::SetColor(LayerId id, Color color) {
  ColorTree::ChangeNodeColor(NodeName(kLayerKind, board_.layers[static_cast<std::size_t>(id)].name).c_str(), color);
}

LayerId LayerTree::ActiveLayer() const {
  for (std::size_t i = 0; i < board_.DeclaredLayerCount(); ++i) {
    const Layer& layer = board_.layers[i];
    if (layer.copper && GetNodeState(NodeName(kActiveKind, layer.name).c_str()) == Checked) {
      return static_cast<LayerId>(i);
    }
  }
  return kNoLayer;
}

void LayerTree::SetActiveLayer(LayerId active) {
  for (std::size_t i = 0; i < board_.DeclaredLayerCount(); ++i) {
    const Layer& layer = board_.layers[i];
    if (layer.copper) {
      SetNodeState(NodeName(kActiveKind, layer.name).c_str(), StateOf(static_cast<LayerId>(i) == active));
    }
  }
}

void LayerTree::SetVisible(LayerId id, bool visible) {
  SetNodeState(NodeName(kLayerKind, board_.layers[static_cast<std::size_t>(id)].name).c_str(), StateOf(visible));
  SumUpGroups();
}

void LayerTree::ShowLayers(const std::function<bool(LayerId)>& shown) {
  for (std::size_t i = 0; i < board_.DeclaredLayerCount(); ++i) {
    const bool visible = shown(static_cast<LayerId>(i));
    SetNodeState(NodeName(kLayerKind, board_.layers[i].name).c_str(), StateOf(visible));
  }
  SumUpGroups();
  if (onChange_) onChange_();
}

bool LayerTree::IsSelected(LayerId id) const {
  const Layer& layer = board_.layers[static_cast<std::size_t>(id)];
  const auto holds = [this](const std::string& node) {
    return std::find(selection_.begin(), selection_.end(), node) != selection_.end();
  };
  return holds(NodeName(kLayerKind, layer.name)) || holds(layer.copper ? kCopperGroup : kTechnicalGroup);
}

bool LayerTree::IsGroup(const std::string& node) {
  for (const char* group : kGroups) {
    if (node == group) return true;
  }
  return false;
}

std::vector<std::string> LayerTree::Groups() const { return {kGroups.begin(), kGroups.end()}; }

std::vector<Tree::NodeState> LayerTree::GroupStates() const {
  std::vector<NodeState> states;
  for (const char* group : kGroups) states.push_back(GetNodeState(group));
  return states;
}

void LayerTree::OnCheck(const char* node) {
  const std::string toggled = node;
  const std::vector<NodeState> before = GroupStates();
  checking_ = true;
  ColorTree::OnCheck(toggled.c_str());
  checking_ = false;
  std::vector<NodeState> states = before;
  // The toolkit has toggled the box before it told us: of a toggled group the state of its layers says what it was.
  for (std::size_t i = 0; i < kGroups.size(); ++i) {
    if (toggled == kGroups[i]) states[i] = PartlyChecked;
  }
  CarryGroupStates(states);
  SumUpGroups();
  if (onChange_) onChange_();
}

void LayerTree::CarryGroupStates(const std::vector<NodeState>& before) {
  for (std::size_t i = 0; i < kGroups.size(); ++i) {
    const NodeState state = GetNodeState(kGroups[i]);
    if (state == before[i] || state == PartlyChecked) continue;
    std::vector<std::string> layers;
    GetChildren(kGroups[i], layers);
    for (const std::string& layer : layers) SetNodeState(layer.c_str(), state);
  }
}

void LayerTree::SumUpGroups() {
  for (const char* group : kGroups) {
    std::vector<std::string> layers;
    const int count = GetChildren(group, layers);
    int checked = 0;
    for (const std::string& layer : layers) checked += GetNodeState(layer.c_str()) == Checked ? 1 : 0;
    const NodeState state = checked == 0 ? Unchecked : checked == count ? Checked : PartlyChecked;
    if (GetNodeState(group) != state) SetNodeState(group, state);
  }
}

int LayerTree::DirtyCB(void* self, void* reason) {
  static_cast<LayerTree*>(self)->OnDirty(static_cast<int>(reinterpret_cast<std::intptr_t>(reason)));
  return 0;
}

void LayerTree::OnDirty(int reason) {
  switch (reason) {
    case ValueChanged:
      if (onChange_) onChange_();
      break;
    case SetChanged:
      if (!checking_ && onChange_) onChange_();
      break;
    case SelectionChanged:
      selection_ = changed_;
      if (onSelection_) onSelection_();
      break;
    default:
      break;
  }
}

}  // namespace oxviewer
