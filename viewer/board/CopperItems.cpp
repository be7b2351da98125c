#include <viewer/board/CopperItems.h>

#include <utility>

namespace oxviewer {

namespace {

// A track that is free of solder mask names the mask beside its copper layer.
LayerId FirstCopper(ItemContext& context, const LayerSet& layers) {
  for (std::size_t i = 0; i < layers.size(); ++i) {
    if (layers[i] && context.Layers().IsCopper(static_cast<LayerId>(i))) return static_cast<LayerId>(i);
  }
  return kNoLayer;
}

LayerId FirstOf(const LayerSet& layers) {
  for (std::size_t i = 0; i < layers.size(); ++i) {
    if (layers[i]) return static_cast<LayerId>(i);
  }
  return kNoLayer;
}

void ReadViaLayers(ItemContext& context, Via& via) {
  const auto first = context.cursor.TryAtom();
  if (!first || first->find_first_of("*&") != std::string_view::npos) return;
  via.firstLayer = context.Layers().Find(*first);
  const auto last = context.cursor.TryAtom();
  via.lastLayer = last ? context.Layers().Find(*last) : via.firstLayer;
}

Polygon ReadPolygonPoints(ItemContext& context) {
  Polygon polygon;
  while (context.cursor.NextChild()) {
    if (context.cursor.Keyword() == "pts") polygon = context.ReadPoints();
    context.cursor.Leave();
  }
  return polygon;
}

ZoneFill ReadFill(ItemContext& context) {
  ZoneFill fill;
  while (context.cursor.NextChild()) {
    if (context.cursor.Keyword() == "layer") fill.layer = context.ReadLayer();
    if (context.cursor.Keyword() == "pts") fill.polygon = context.ReadPoints();
    context.cursor.Leave();
  }
  return fill;
}

void ReadZonePart(ItemContext& context, Zone& zone, NetReference& net) {
  SexprCursor& cursor = context.cursor;
  const std::string_view keyword = cursor.Keyword();
  if (keyword == "net") {
    const NetReference read = context.ReadNetReference();
    net.number = read.number;
    if (read.name) net.name = read.name;
  } else if (keyword == "net_name") {
    const auto name = cursor.TryAtom();
    if (name && !name->empty()) net.name = *name;
  } else if (keyword == "layer" || keyword == "layers") {
    zone.layers |= context.ReadLayerSet();
  } else if (keyword == "keepout") {
    zone.keepout = true;
  } else if (keyword == "polygon") {
    zone.outlines.push_back(ReadPolygonPoints(context));
  } else if (keyword == "filled_polygon") {
    zone.fills.push_back(ReadFill(context));
  }
}

}  // namespace

void ReadTrack(ItemContext& context, bool arc) {
  context.CountItem();
  SexprCursor& cursor = context.cursor;
  Track track;
  track.arc = arc;
  while (cursor.NextChild()) {
    const std::string_view keyword = cursor.Keyword();
    if (keyword == "start") {
      track.start = cursor.ReadPoint();
    } else if (keyword == "end") {
      track.end = cursor.ReadPoint();
    } else if (keyword == "mid" && arc) {
      track.mid = cursor.ReadPoint();
    } else if (keyword == "width") {
      track.width = cursor.ReadLength();
    } else if (keyword == "layer") {
      track.layer = context.ReadLayer();
    } else if (keyword == "layers") {
      track.layer = FirstCopper(context, context.ReadLayerSet());
    } else if (keyword == "net") {
      track.net = context.ReadNet();
    }
    cursor.Leave();
  }
  context.board.tracks.push_back(track);
}

void ReadVia(ItemContext& context) {
  context.CountItem();
  SexprCursor& cursor = context.cursor;
  const std::size_t offset = cursor.Offset();
  Via via;
  via.firstLayer = context.Layers().FrontCopper();
  via.lastLayer = context.Layers().BackCopper();
  while (const auto word = cursor.TryAtom()) {
    if (*word == "blind" || *word == "buried") via.type = ViaType::Blind;
    if (*word == "micro") via.type = ViaType::Micro;
  }
  while (cursor.NextChild()) {
    const std::string_view keyword = cursor.Keyword();
    if (keyword == "at") {
      via.position = cursor.ReadPoint();
    } else if (keyword == "size") {
      via.size = cursor.ReadLength();
    } else if (keyword == "drill") {
      via.drill = cursor.ReadLength();
    } else if (keyword == "layers") {
      ReadViaLayers(context, via);
    } else if (keyword == "net") {
      via.net = context.ReadNet();
    }
    cursor.Leave();
  }
  if (via.firstLayer == kNoLayer || via.lastLayer == kNoLayer) {
    cursor.Fail(offset, "expected at most " + std::to_string(kMaxLayers) + " layers");
  }
  context.board.vias.push_back(via);
}

void ReadZone(ItemContext& context, ComponentId component) {
  context.CountItem();
  Zone zone;
  zone.component = component;
  NetReference net;
  while (context.cursor.NextChild()) {
    ReadZonePart(context, zone, net);
    context.cursor.Leave();
  }
  zone.net = context.Resolved(net);
  // Up to version 5 a zone has one layer and its fills do not repeat it.
  for (ZoneFill& fill : zone.fills) {
    if (fill.layer == kNoLayer) fill.layer = FirstOf(zone.layers);
  }
  context.board.zones.push_back(std::move(zone));
}

}  // namespace oxviewer
