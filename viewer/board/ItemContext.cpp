#include <viewer/board/ItemContext.h>

#include <charconv>
#include <utility>

namespace oxviewer {

namespace {

std::optional<std::int64_t> WholeNumber(std::string_view text, bool& tooLarge) {
  std::int64_t value = 0;
  const auto [end, status] = std::from_chars(text.data(), text.data() + text.size(), value);
  tooLarge = status == std::errc::result_out_of_range;
  if (status != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return value;
}

}  // namespace

ItemContext::ItemContext(std::string_view text, const ReaderLimits& limits)
    : cursor(SexprLexer(text, limits.nesting, limits.stringBytes)), text_(text), limits_(limits) {}

void ItemContext::CountItem() {
  if (++items_ <= limits_.items) return;
  cursor.Fail(cursor.Offset(), "expected at most " + std::to_string(limits_.items) + " board items");
}

void ItemContext::CheckCount(std::size_t count, const char* what) const {
  if (count <= limits_.items) return;
  cursor.Fail(cursor.Offset(), "expected at most " + std::to_string(limits_.items) + ' ' + what);
}

void ItemContext::ReadLayerTable() {
  if (layersReadAhead_) return;
  if (layersUsed_) cursor.Fail(cursor.Offset(), "expected one table of layers, found another one");
  ReadLayerLines(cursor);
  layersRead_ = true;
}

LayerTable& ItemContext::Layers() {
  layersUsed_ = true;
  if (layersRead_) return layers_;
  layersRead_ = true;
  layersReadAhead_ = true;
  SexprCursor ahead(SexprLexer(text_, limits_.nesting, limits_.stringBytes));
  ahead.EnterRoot("kicad_pcb");
  while (ahead.NextChild()) {
    if (ahead.Keyword() == "layers") ReadLayerLines(ahead);
    ahead.Leave();
  }
  return layers_;
}

void ItemContext::ReadLayerLines(SexprCursor& from) {
  while (from.NextChild()) {
    ReadLayerLine(from);
    from.Leave();
  }
}

// (0 "F.Cu" signal "Front"), whose number, the keyword, says nothing.
void ItemContext::ReadLayerLine(SexprCursor& from) {
  const std::size_t offset = from.Offset();
  Layer layer;
  layer.name = from.Atom("the name of a layer");
  if (layer.name.empty()) from.Fail(offset, "expected the name of a layer, found an empty one");
  layer.type = from.Atom("the type of a layer");
  bool quoted = false;
  while (const auto word = from.TryAtom(&quoted)) {
    if (quoted || *word != "hide") layer.userName = *word;
  }
  const std::string name = layer.name;
  switch (layers_.Declare(std::move(layer))) {
    case LayerTable::Declared::Contradictory:
      from.Fail(offset, "expected each layer once, found \"" + name + "\" again and different");
    case LayerTable::Declared::TooMany:
      from.Fail(offset, "expected at most " + std::to_string(kMaxLayers) + " layers");
    case LayerTable::Declared::New:
    case LayerTable::Declared::Repeated:
      break;
  }
}

LayerId ItemContext::ReadLayer() {
  const std::size_t offset = cursor.Offset();
  const LayerId id = Layers().Find(cursor.Atom("the name of a layer"));
  if (id == kNoLayer) cursor.Fail(offset, "expected at most " + std::to_string(kMaxLayers) + " layers");
  return id;
}

LayerSet ItemContext::ReadLayerSet() {
  const std::size_t offset = cursor.Offset();
  LayerSet layers;
  while (const auto name = cursor.TryAtom()) {
    if (Layers().Expand(*name, layers)) continue;
    cursor.Fail(offset, "expected at most " + std::to_string(kMaxLayers) + " layers");
  }
  return layers;
}

NetReference ItemContext::ReadNetReference() {
  const std::size_t offset = cursor.Offset();
  bool quoted = false;
  const std::string first(cursor.Atom("the number or name of a net", &quoted));
  const std::optional<std::string_view> second = cursor.TryAtom();
  bool tooLarge = false;
  NetReference reference;
  if (second || !quoted) reference.number = WholeNumber(first, tooLarge);
  if (tooLarge) cursor.Fail(offset, "expected the number of a net, found \"" + first + '"');
  if (second) {
    reference.name = *second;
  } else if (!reference.number) {
    reference.name = first;
  }
  return reference;
}

NetId ItemContext::Resolved(const NetReference& reference) {
  NetId net = kNoNet;
  if (!reference.number) {
    net = reference.name ? nets.ByName(*reference.name) : kNoNet;
  } else if (*reference.number > 0) {
    if (reference.name) nets.Bind(*reference.number, *reference.name);
    net = reference.name ? nets.ByName(*reference.name) : nets.ByNumber(*reference.number);
  }
  CheckCount(nets.size(), "nets");
  return net;
}

Polygon ItemContext::ReadPoints() {
  Polygon polygon;
  bool afterArc = false;
  while (cursor.NextChild()) {
    if (cursor.Keyword() == "xy") {
      const Point point = cursor.ReadPoint();
      if (!afterArc || polygon.points.back() != point) polygon.points.push_back(point);
      afterArc = false;
    } else if (cursor.Keyword() == "arc") {
      ReadArcPoints(polygon);
      afterArc = true;
    }
    cursor.Leave();
  }
  return polygon;
}

void ItemContext::ReadArcPoints(Polygon& polygon) {
  Point start, mid, end;
  while (cursor.NextChild()) {
    if (cursor.Keyword() == "start") start = cursor.ReadPoint();
    if (cursor.Keyword() == "mid") mid = cursor.ReadPoint();
    if (cursor.Keyword() == "end") end = cursor.ReadPoint();
    cursor.Leave();
  }
  if (polygon.points.empty() || polygon.points.back() != start) polygon.points.push_back(start);
  polygon.arcs.push_back(static_cast<std::uint32_t>(polygon.points.size()));
  polygon.points.push_back(mid);
  polygon.points.push_back(end);
}

}  // namespace oxviewer
