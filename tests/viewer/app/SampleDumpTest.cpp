#include <gtest/gtest.h>
#include <tests/viewer/app/ChildProcess.h>

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

namespace oxviewer::testing {
namespace {

std::string Sample(const char* name) { return std::string(OXECAD_SAMPLES) + '/' + name + ".kicad_pcb"; }

std::vector<std::string> Lines(const std::string& text) {
  std::istringstream stream(text);
  std::vector<std::string> lines;
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

std::string LabelOf(const std::string& line) { return line.substr(0, line.find('\t')); }

std::size_t LevelOf(const std::string& line) { return line.find_first_not_of(' ') / 2; }

// The lines of one tree, without its header.
std::vector<std::string> Tree(const std::string& dump, const std::string& name) {
  std::vector<std::string> tree;
  bool inside = false;
  for (const std::string& line : Lines(dump)) {
    if (line.starts_with("# ")) {
      inside = line == "# " + name;
    } else if (inside) {
      tree.push_back(line);
    }
  }
  return tree;
}

// Labels below the node of a label, without their indentation, down to the next node of its level.
std::vector<std::string> Below(const std::vector<std::string>& tree, const std::string& label) {
  std::vector<std::string> labels;
  bool inside = false;
  for (const std::string& line : tree) {
    const std::string own = LabelOf(line).substr(2 * LevelOf(line));
    if (inside && LevelOf(line) <= LevelOf(label)) break;
    if (inside) labels.push_back(own);
    if (LabelOf(line) == label) inside = true;
  }
  return labels;
}

// "name: difference" of all subjects below a heading that differ.
std::vector<std::string> Differences(const std::vector<std::string>& tree, const std::string& heading) {
  std::vector<std::string> differences;
  bool inside = false;
  for (const std::string& line : tree) {
    if (LevelOf(line) == 1) inside = LabelOf(line) == "  " + heading;
    const std::size_t at = line.find("\tdifference=");
    if (inside && LevelOf(line) == 2 && at != std::string::npos) {
      differences.push_back(LabelOf(line).substr(4) + ": " + line.substr(at + 12));
    }
  }
  return differences;
}

using Labels = std::vector<std::string>;

TEST(SampleDump, HasTheLayersInBoardOrder) {
  const auto tree = Tree(RunViewer({"--dump", Sample("node-a")}).out, "layers");
  EXPECT_EQ(Below(tree, "Copper"), (Labels{"F.Cu", "B.Cu"}));
  EXPECT_EQ(Below(tree, "Technical"),
            (Labels{"B.Adhes", "F.Adhes", "B.Paste", "F.Paste", "B.SilkS", "F.SilkS", "B.Mask", "F.Mask", "Dwgs.User",
                    "Cmts.User", "Eco1.User", "Edge.Cuts", "Margin", "B.CrtYd", "F.CrtYd", "B.Fab", "F.Fab"}));
}

TEST(SampleDump, HasTheNetsOfTheProjectsClasses) {
  const auto tree = Tree(RunViewer({"--dump", Sample("node-a")}).out, "nets");
  EXPECT_EQ(Below(tree, "USB"), (Labels{"/usb/USB_D+", "/usb/USB_D-", "USB_D+", "USB_D-"}));
  EXPECT_EQ(Below(tree, "Power"), (Labels{"+3V3", "+3V3A", "+5V", "/io/OUT1", "/io/OUT2", "/power/SW", "/power/VIN",
                                          "/power/VIN_F", "/power/VIN_RAW", "/usb/VBUS_F", "GND", "VBUS"}));
  const Labels others = Below(tree, "Default");
  const auto place = [&](const char* name) { return std::find(others.begin(), others.end(), name) - others.begin(); };
  EXPECT_LT(place("/io/GPIO7"), place("/io/groups/LED1"));
  EXPECT_LT(place("/io/groups/LED2"), place("/io/PWM1"));
  EXPECT_LT(place("Net-(C3-Pad1)"), place("Net-(C28-Pad1)"));
  EXPECT_LT(place("/analog/AIN5{slash}REF"), static_cast<std::ptrdiff_t>(others.size()));
}

TEST(SampleDump, CountsThePartsOfEachKind) {
  const auto tree = Tree(RunViewer({"--dump", Sample("node-a")}).out, "objects");
  Labels kinds;
  for (const std::string& line : tree) {
    if (LevelOf(line) == 1) kinds.push_back(LabelOf(line).substr(2));
  }
  EXPECT_EQ(kinds,
            (Labels{"Integrated circuits (7)", "Transistors (2)", "Diodes (10)", "Resistors (33)", "Capacitors (29)",
                    "Inductors (2)", "Crystals and oscillators (1)", "Connectors (8)", "Switches and relays (2)",
                    "Fuses (2)", "Test points (4)", "Mounting holes and marks (7)", "Other parts (2)"}));
}

TEST(SampleDump, HasTheDifferencesThatTheRevisionMade) {
  const Ended ended = RunViewer({"--dump", Sample("node-a"), "--compare", Sample("node-b")});
  EXPECT_EQ(ended.status, 1);
  const auto tree = Tree(ended.out, "compare");
  EXPECT_EQ(Differences(tree, "Layers"),
            (Labels{"F.Cu: renamed", "B.Cu: renamed, type", "Eco1.User: only in A", "In1.Cu (GND plane): only in B",
                    "In2.Cu: only in B", "User.1 (Assembly): only in B"}));
  EXPECT_EQ(Differences(tree, "Components"),
            (Labels{"C5: footprint", "C15: side", "C19: moved", "C30: value", "C31: only in B", "D8: only in A",
                    "D12: only in B", "FID3: moved", "R14: value", "R15: value", "R17: rotated", "R32: only in A",
                    "R36: only in B"}));
  const Labels nets = Differences(tree, "Nets");
  for (const char* difference : {"/i2c/SCL: only in A, in B /bus/SCL", "/bus/SCL: only in B, in A /i2c/SCL",
                                 "/power/SW: width", "/io/LED3: only in B"}) {
    EXPECT_NE(std::find(nets.begin(), nets.end(), difference), nets.end()) << difference;
  }
}

TEST(SampleDump, OfARevisionAgainstItselfHasNoDifference) {
  const Ended ended = RunViewer({"--dump", Sample("node-b"), "--compare", Sample("node-b")});
  EXPECT_EQ(ended.status, 0);
  for (const char* heading : {"Layers", "Components", "Nets"}) {
    EXPECT_EQ(Differences(Tree(ended.out, "compare"), heading), Labels{});
  }
}

}  // namespace
}  // namespace oxviewer::testing
