#include <gtest/gtest.h>
#include <tests/viewer/diff/DiffTexts.h>
#include <viewer/board/Geometry.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <string>

namespace oxviewer::testing {
namespace {

Board Opened(const std::string& path) {
  Result<Board> result = ReadBoard(path);
  if (result) return std::move(*result);
  ADD_FAILURE() << result.error().ToLine();
  return {};
}

TEST(DemoBoards, EqualThemselves) {
  std::error_code error;
  int count = 0;
  for (std::filesystem::recursive_directory_iterator at(OXECAD_DEMO_BOARDS, error), end; !error && at != end;
       at.increment(error)) {
    if (at->path().extension() != ".kicad_pcb") continue;
    const Board board = Opened(at->path().string());
    EXPECT_TRUE(CompareBoards(board, board, EcadOrder()).Equal()) << at->path();
    ++count;
  }
  EXPECT_GT(count, 0) << "no boards below " << OXECAD_DEMO_BOARDS << ": install the package kicad-demos";
}

TEST(DemoBoards, InTwoVersionsDiffer) {
  const std::string folder = std::string(OXECAD_DEMO_BOARDS) + "/ecc83/";
  const BoardDiff diff =
      CompareBoards(Opened(folder + "ecc83-pp.kicad_pcb"), Opened(folder + "ecc83-pp_v2.kicad_pcb"), EcadOrder());
  EXPECT_FALSE(diff.Equal());
  EXPECT_FALSE(diff.nets.Equal());
}

Board Sample(const char* name) { return Opened(std::string(OXECAD_SAMPLES) + '/' + name + ".kicad_pcb"); }

TEST(SampleBoards, AreLargeEnoughToShowSomething) {
  for (const char* name : {"node-a", "node-b"}) {
    const Board board = Sample(name);
    EXPECT_GE(board.nets.size(), 60u);
    EXPECT_GE(board.components.size(), 80u);
    EXPECT_GE(board.zones.size(), 3u);
    EXPECT_TRUE(std::any_of(board.tracks.begin(), board.tracks.end(), [](const Track& track) { return track.arc; }));
  }
}

TEST(SampleBoards, HaveTheNetClassesOfTheirProjects) {
  const Board board = Sample("node-a");
  ASSERT_EQ(board.netClasses.size(), 3u);
  EXPECT_EQ(board.netClasses[1].name, "Power");
  EXPECT_EQ(board.netClasses[2].name, "USB");
  for (const Net& net : board.nets) {
    const std::string& name = board.netClasses.at(static_cast<std::size_t>(net.netClass)).name;
    if (net.name == "GND" || net.name == "+5V") {
      EXPECT_EQ(name, "Power");
    }
    if (net.name == "USB_D+") {
      EXPECT_EQ(name, "USB");
    }
    if (net.name == "/rs485/A") {
      EXPECT_EQ(name, "Default");
    }
  }
}

// The courtyards of two components on one side are apart.
TEST(SampleBoards, HaveComponentsThatDoNotOverlap) {
  for (const char* name : {"node-a", "node-b"}) {
    const Board board = Sample(name);
    std::vector<Box> yards(board.components.size(), Box{{2'000'000'000, 2'000'000'000}, {}});
    for (const Drawing& drawing : board.drawings) {
      const std::string& layer = board.layers.at(static_cast<std::size_t>(drawing.layer)).name;
      if (drawing.component == kNoComponent || layer.find("CrtYd") == std::string::npos) continue;
      Box& yard = yards[static_cast<std::size_t>(drawing.component)];
      for (const Point point : {drawing.points[0], drawing.points[1]}) {
        yard.low = {std::min(yard.low.x, point.x), std::min(yard.low.y, point.y)};
        yard.high = {std::max(yard.high.x, point.x), std::max(yard.high.y, point.y)};
      }
    }
    for (std::size_t i = 0; i < yards.size(); ++i) {
      for (std::size_t j = i + 1; j < yards.size(); ++j) {
        if (board.components[i].side != board.components[j].side) continue;
        const bool apart = yards[i].low.x >= yards[j].high.x || yards[j].low.x >= yards[i].high.x ||
                           yards[i].low.y >= yards[j].high.y || yards[j].low.y >= yards[i].high.y;
        EXPECT_TRUE(apart) << board.components[i].reference << " and " << board.components[j].reference;
      }
    }
  }
}

TEST(SampleBoards, KeepTheirCopperWithinTheEdge) {
  for (const char* name : {"node-a", "node-b"}) {
    const Board board = Sample(name);
    const Box edge = Outline(board).value();
    const auto inside = [&edge](Point point) {
      return point.x > edge.low.x && point.x < edge.high.x && point.y > edge.low.y && point.y < edge.high.y;
    };
    for (const Track& track : board.tracks) EXPECT_TRUE(inside(track.start) && inside(track.end));
    for (const Via& via : board.vias) EXPECT_TRUE(inside(via.position));
    for (const Pad& pad : board.pads) EXPECT_TRUE(inside(pad.position));
    for (const Zone& zone : board.zones) {
      EXPECT_FALSE(zone.fills.empty());
      for (const ZoneFill& fill : zone.fills) {
        EXPECT_TRUE(std::all_of(fill.polygon.points.begin(), fill.polygon.points.end(), inside));
      }
    }
  }
}

// Each end of a track lies on a pad or via of its net, or on another of its tracks.
TEST(SampleBoards, HaveTracksThatJoinWhatTheyShould) {
  for (const char* name : {"node-a", "node-b"}) {
    const Board board = Sample(name);
    const auto onPad = [&board](Point point, NetId net) {
      return std::any_of(board.pads.begin(), board.pads.end(), [point, net](const Pad& pad) {
        const bool turned = pad.rotation % 180'000'000 != 0;
        const Nm width = turned ? pad.size.height : pad.size.width;
        const Nm height = turned ? pad.size.width : pad.size.height;
        return pad.net == net && std::abs(point.x - pad.position.x) <= width / 2 &&
               std::abs(point.y - pad.position.y) <= height / 2;
      });
    };
    const auto onVia = [&board](Point point, NetId net) {
      return std::any_of(board.vias.begin(), board.vias.end(),
                         [point, net](const Via& via) { return via.net == net && via.position == point; });
    };
    const auto onTrack = [&board](Point point, const Track& track) {
      return std::any_of(board.tracks.begin(), board.tracks.end(), [&](const Track& other) {
        if (&other == &track || other.net != track.net || other.layer != track.layer) return false;
        const auto cross = (static_cast<double>(other.end.x) - other.start.x) * (point.y - other.start.y) -
                           (static_cast<double>(other.end.y) - other.start.y) * (point.x - other.start.x);
        const bool between =
            std::min(other.start.x, other.end.x) <= point.x && point.x <= std::max(other.start.x, other.end.x) &&
            std::min(other.start.y, other.end.y) <= point.y && point.y <= std::max(other.start.y, other.end.y);
        return other.start == point || other.end == point || (between && cross == 0);
      });
    };
    for (const Track& track : board.tracks) {
      for (const Point end : {track.start, track.end}) {
        EXPECT_TRUE(onPad(end, track.net) || onVia(end, track.net) || onTrack(end, track))
            << board.nets.at(static_cast<std::size_t>(track.net)).name << ' ' << end.x << ' ' << end.y;
      }
    }
  }
}

TEST(SampleBoards, DifferInLayersComponentsAndNetsAsTheDesignSays) {
  const BoardDiff diff = CompareBoards(Sample("node-a"), Sample("node-b"), EcadOrder());
  EXPECT_EQ(Drawn(diff.layers), "-Eco1.User +In1.Cu +In2.Cu +User.1 B.Cu(renamed type) F.Cu(renamed) =16");
  EXPECT_EQ(Drawn(diff.components),
            "-D8 -R32 +C31 +D12 +R36 C5(footprint) C15(side) C19(moved) C30(value) FID3(moved) R14(value) R15(value) "
            "R17(rotated) =99");
  EXPECT_EQ(Drawn(diff.renamed), "/i2c/SCL>/bus/SCL /i2c/SDA>/bus/SDA");
  const std::string nets = Drawn(diff.nets);
  EXPECT_EQ(nets.substr(0, nets.find(" +3V3(")),
            "-/i2c/SCL -/i2c/SDA -Net-(D8-Pad2) -unconnected-(U1-Pad22) +/bus/SCL +/bus/SDA +/io/LED3 +Net-(D12-Pad2)");
  EXPECT_NE(nets.find(" /power/SW(width) "), std::string::npos) << nets;
  EXPECT_NE(nets.find(" GND(pads tracks vias zones) "), std::string::npos) << nets;
  EXPECT_GE(diff.nets.equal.size(), 50u);
}

}  // namespace
}  // namespace oxviewer::testing
