#include <viewer/board/LayerTable.h>

#include <utility>

namespace oxviewer {

namespace {

constexpr std::string_view kCopperSuffix = ".Cu";
constexpr std::string_view kFrontCopper = "F.Cu";
constexpr std::string_view kBackCopper = "B.Cu";

bool EndsWith(std::string_view text, std::string_view end) {
  return text.size() >= end.size() && text.substr(text.size() - end.size()) == end;
}

bool IsCanonicalCopper(std::string_view name) {
  if (name == kFrontCopper || name == kBackCopper) return true;
  if (name.substr(0, 2) != "In" || !EndsWith(name, kCopperSuffix)) return false;
  const std::string_view number = name.substr(2, name.size() - 2 - kCopperSuffix.size());
  return !number.empty() && number.find_first_not_of("0123456789") == std::string_view::npos;
}

bool SameLine(const Layer& a, const Layer& b) {
  return a.name == b.name && a.userName == b.userName && a.type == b.type;
}

}  // namespace

LayerTable::Declared LayerTable::Declare(Layer layer) {
  const auto found = byName_.find(layer.name);
  if (found != byName_.end()) {
    const Layer& known = layers_[static_cast<std::size_t>(found->second)];
    return SameLine(known, layer) ? Declared::Repeated : Declared::Contradictory;
  }
  layer.declared = true;
  layer.copper = layer.type != "user" || EndsWith(layer.name, kCopperSuffix);
  return Add(std::move(layer)) == kNoLayer ? Declared::TooMany : Declared::New;
}

LayerId LayerTable::Find(std::string_view name) {
  const auto found = byName_.find(name);
  if (found != byName_.end()) return found->second;
  Layer layer;
  layer.name = name;
  layer.copper = EndsWith(name, kCopperSuffix);
  layer.type = layer.copper ? "signal" : "user";
  layer.declared = false;
  return Add(std::move(layer));
}

LayerId LayerTable::Add(Layer layer) {
  if (layers_.size() >= kMaxLayers) return kNoLayer;
  const auto id = static_cast<LayerId>(layers_.size());
  byName_.emplace(layer.name, id);
  layers_.push_back(std::move(layer));
  return id;
}

// Boards up to version 5 write the user's own names of the copper layers into the table, so that the outer ones are
// also known by being the first and the last. A single one is the front.
LayerId LayerTable::OuterCopper(bool front) {
  const std::string_view name = front ? kFrontCopper : kBackCopper;
  LayerId outer = kNoLayer;
  for (std::size_t i = 0; i < layers_.size(); ++i) {
    const Layer& layer = layers_[i];
    if (!layer.declared || !layer.copper) continue;
    if (layer.name == name) return static_cast<LayerId>(i);
    if (!IsCanonicalCopper(layer.name) && (outer == kNoLayer || !front)) outer = static_cast<LayerId>(i);
  }
  if (!front && outer != kNoLayer && outer == FrontCopper()) outer = kNoLayer;
  return outer == kNoLayer ? Find(name) : outer;
}

bool LayerTable::IsBackCopper(LayerId id) {
  return id >= 0 && (layers_[static_cast<std::size_t>(id)].name == kBackCopper || id == BackCopper());
}

bool LayerTable::Expand(std::string_view name, LayerSet& layers) {
  if (name == "F&B.Cu") {
    const LayerId front = FrontCopper();
    const LayerId back = BackCopper();
    if (front == kNoLayer || back == kNoLayer) return false;
    layers.set(static_cast<std::size_t>(front));
    layers.set(static_cast<std::size_t>(back));
    return true;
  }
  if (name.substr(0, 4) == "F&B.") {
    const std::string suffix(name.substr(3));
    return Insert("F" + suffix, layers) && Insert("B" + suffix, layers);
  }
  if (name == "*In.Cu") {
    const LayerId front = FrontCopper();
    const LayerId back = BackCopper();
    for (std::size_t i = 0; i < layers_.size(); ++i) {
      const auto id = static_cast<LayerId>(i);
      if (layers_[i].declared && layers_[i].copper && id != front && id != back) layers.set(i);
    }
    return front != kNoLayer && back != kNoLayer;
  }
  if (name.substr(0, 2) == "*.") return ExpandKind(name.substr(1), layers);
  return Insert(name, layers);
}

bool LayerTable::ExpandKind(std::string_view suffix, LayerSet& layers) {
  bool any = false;
  for (std::size_t i = 0; i < layers_.size(); ++i) {
    const Layer& layer = layers_[i];
    const bool meant = suffix == kCopperSuffix ? layer.copper : EndsWith(layer.name, suffix);
    if (!layer.declared || !meant) continue;
    layers.set(i);
    any = true;
  }
  if (any) return true;
  const std::string end(suffix);
  return Insert("F" + end, layers) && Insert("B" + end, layers);
}

bool LayerTable::Insert(std::string_view name, LayerSet& layers) {
  const LayerId id = Find(name);
  if (id != kNoLayer) layers.set(static_cast<std::size_t>(id));
  return id != kNoLayer;
}

}  // namespace oxviewer
