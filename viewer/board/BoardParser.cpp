#include <viewer/board/BoardParser.h>
#include <viewer/board/CopperItems.h>
#include <viewer/board/Drawings.h>
#include <viewer/board/Footprint.h>
#include <viewer/board/ItemContext.h>
#include <viewer/board/NetClassTable.h>

#include <utility>

namespace oxviewer {

namespace {

// A row of the table of nets. Two names for one number leave open which net an item is on: that is no board.
void ReadNetRow(ItemContext& context) {
  const std::size_t offset = context.cursor.Offset();
  const NetReference net = context.ReadNetReference();
  if (net.number && net.name && !context.nets.Bind(*net.number, *net.name)) {
    context.cursor.Fail(offset, "expected one name for net " + std::to_string(*net.number) + ", found another one, \"" +
                                    *net.name + '"');
  }
  if (!net.number || !net.name) context.Resolved(net);
  context.CheckCount(context.nets.size(), "nets");
}

void ReadNetClass(ItemContext& context, NetClassTable& classes) {
  const std::string name(context.cursor.Atom("the name of a net class"));
  classes.Add(name);
  while (context.cursor.NextChild()) {
    if (context.cursor.Keyword() == "add_net") classes.Assign(context.cursor.Atom("the name of a net"), name);
    context.cursor.Leave();
  }
}

std::int32_t ReadVersion(SexprCursor& cursor) {
  const std::size_t offset = cursor.Offset();
  const double version = cursor.ReadNumber();
  if (!(version >= 0 && version <= 99999999)) cursor.Fail(offset, "expected a format version such as 20211014");
  return static_cast<std::int32_t>(version);
}

void ReadSection(ItemContext& context, NetClassTable& classes) {
  const std::string_view keyword = context.cursor.Keyword();
  if (keyword == "segment") {
    ReadTrack(context, false);
  } else if (keyword == "arc") {
    ReadTrack(context, true);
  } else if (keyword == "via") {
    ReadVia(context);
  } else if (keyword == "footprint" || keyword == "module") {
    ReadFootprint(context);
  } else if (keyword == "zone") {
    ReadZone(context, kNoComponent);
  } else if (keyword == "net") {
    ReadNetRow(context);
  } else if (const auto kind = DrawingKindOf(keyword)) {
    context.board.drawings.push_back(ReadDrawing(context, *kind));
  } else if (keyword == "net_class") {
    ReadNetClass(context, classes);
  } else if (keyword == "layers") {
    context.ReadLayerTable();
  } else if (keyword == "version") {
    context.board.version = ReadVersion(context.cursor);
  }
}

// Gives each net its final position, which is known only once every name is.
void CloseNets(ItemContext& context) {
  Board& board = context.board;
  std::vector<NetId> finalIds;
  board.nets = context.nets.Finish(finalIds);
  if (board.nets.size() == finalIds.size()) return;  // nothing was merged or dropped
  const auto close = [&finalIds](NetId& net) {
    if (net != kNoNet) net = finalIds[static_cast<std::size_t>(net)];
  };
  for (Pad& pad : board.pads) close(pad.net);
  for (Track& track : board.tracks) close(track.net);
  for (Via& via : board.vias) close(via.net);
  for (Zone& zone : board.zones) close(zone.net);
  for (Drawing& drawing : board.drawings) close(drawing.net);
}

}  // namespace

ParsedBoard ParseBoard(std::string_view text, const ReaderLimits& limits) {
  ItemContext context(text, limits);
  NetClassTable classes;
  context.cursor.EnterRoot("kicad_pcb");
  while (context.cursor.NextChild()) {
    ReadSection(context, classes);
    context.cursor.Leave();
  }
  context.cursor.Leave();
  context.cursor.ExpectEnd();
  CloseNets(context);
  ParsedBoard parsed;
  parsed.board = std::move(context.board);
  parsed.board.layers = context.Layers().Take();
  parsed.hasNetClasses = !classes.empty();
  classes.Apply(parsed.board);
  return parsed;
}

}  // namespace oxviewer
