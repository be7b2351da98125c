#include <tests/viewer/diff/RandomDesign.h>

#include <algorithm>
#include <map>

namespace oxviewer::testing {

namespace {

using Place = RandomDesign::Place;

Place RollPlace(Dice& dice) {
  // A coarse grid makes things meet, single nanometres keep them apart.
  const auto coordinate = [&dice] {
    return static_cast<std::int64_t>(dice.Roll(5)) * 1'000'000 - 2'000'000 + static_cast<std::int64_t>(dice.Roll(2));
  };
  const std::int64_t x = coordinate();
  return {x, coordinate()};
}

const std::string& Pick(const std::vector<std::string>& list, Dice& dice) { return list[dice.Roll(list.size())]; }

// One of the ways to spell a number of nanometres in millimetres.
std::string Spelled(std::int64_t nm, Dice& dice) {
  const bool negative = nm < 0;
  std::string digits = std::to_string(negative ? -nm : nm);
  digits.insert(0, digits.size() < 7 ? 7 - digits.size() : 0, '0');
  std::string whole = digits.substr(0, digits.size() - 6);
  std::string fraction = digits.substr(digits.size() - 6);
  if (dice.Roll(2) != 0) {
    while (!fraction.empty() && fraction.back() == '0') fraction.pop_back();
  }
  std::string text = fraction.empty() ? whole : whole + '.' + fraction;
  if (dice.Roll(8) == 0) text += "e0";
  if (dice.Roll(8) == 0) text = "00" + text;
  if (!negative && dice.Roll(8) == 0) return '+' + text;
  return negative ? '-' + text : text;
}

std::string Spelled(Place place, Dice& dice) {
  const std::string x = Spelled(place.x, dice);
  return x + ' ' + Spelled(place.y, dice);
}

std::string Id(Dice& dice) { return "(tstamp " + std::to_string(dice.Roll(1'000'000'000)) + ")"; }

std::string Joined(std::vector<std::string> parts, Dice& dice) {
  dice.Shuffle(parts);
  std::string text;
  for (const std::string& part : parts) text += (dice.Roll(2) != 0 ? "\n  " : " ") + part;
  return text;
}

class Writer {
 public:
  Writer(const RandomDesign& design, Dice& dice) : design_(design), dice_(dice) {
    std::vector<int> numbers;
    for (std::size_t i = 0; i < design.nets.size(); ++i) numbers.push_back(static_cast<int>(i * 3 + 1));
    dice_.Shuffle(numbers);
    for (std::size_t i = 0; i < design.nets.size(); ++i) numbers_[design.nets[i]] = numbers[i];
  }

  std::string Board() {
    std::vector<std::string> sections{Layers(), "(net 0 \"\")", "(gr_text \"x\" (at 0 0))", Drawing()};
    for (const std::string& net : design_.nets) {
      sections.push_back("(net " + std::to_string(numbers_[net]) + " \"" + net + "\")");
    }
    for (const auto& part : design_.parts) sections.push_back(Part(part));
    for (const auto& track : design_.tracks) sections.push_back(Track(track));
    for (const auto& via : design_.vias) sections.push_back(Via(via));
    for (const auto& zone : design_.zones) sections.push_back(Zone(zone));
    return "(kicad_pcb (version 20211014)" + Joined(std::move(sections), dice_) + "\n)\n";
  }

 private:
  std::string Number(const std::string& net) { return "(net " + std::to_string(numbers_[net]) + ")"; }

  std::string Layers() {
    std::vector<std::string> lines;
    for (const auto& layer : design_.layers) {
      lines.push_back("(" + std::to_string(dice_.Roll(64)) + " \"" + layer.name + "\" " + layer.type +
                      (layer.userName.empty() ? "" : " \"" + layer.userName + '"') + ")");
    }
    return "(layers" + Joined(std::move(lines), dice_) + ")";
  }

  std::string Drawing() {
    return "(gr_line (start " + Spelled(RollPlace(dice_), dice_) + ") (end 1 1) (layer \"F.SilkS\") (width 0.1))";
  }

  std::string Part(const RandomDesign::Part& part) {
    const auto turns = static_cast<int>(dice_.Roll(3)) * 360 - 360;
    std::vector<std::string> parts{"(layer \"" + std::string(part.back ? "B.Cu" : "F.Cu") + "\")",
                                   "(at " + Spelled(part.at, dice_) + ' ' + std::to_string(part.degrees + turns) + ")",
                                   "(fp_text reference \"" + part.reference + "\" (at 0 0))",
                                   "(fp_text value \"" + part.value + "\" (at 0 0))",
                                   "(fp_line (start 0 0) (end 1 1) (layer \"F.SilkS\"))",
                                   Id(dice_)};
    for (const auto& pad : part.pads) {
      const std::string size = Spelled(static_cast<std::int64_t>(dice_.Roll(1'000'000)), dice_);
      parts.push_back("(pad \"" + pad.number + "\" smd rect (at " + Spelled(RollPlace(dice_), dice_) + ") (size " +
                      size + " 1) (layers \"F.Cu\") (net " + std::to_string(numbers_[pad.net]) + " \"" + pad.net +
                      "\") " + Id(dice_) + ")");
    }
    return "(footprint \"" + part.footprint + "\"" + Joined(std::move(parts), dice_) + ")";
  }

  std::string Track(const RandomDesign::Track& track) {
    const bool turned = dice_.Roll(2) != 0;
    std::vector<std::string> parts{"(start " + Spelled(turned ? track.end : track.start, dice_) + ")",
                                   "(end " + Spelled(turned ? track.start : track.end, dice_) + ")",
                                   "(width " + Spelled(track.width, dice_) + ")",
                                   "(layer \"" + track.layer + "\")",
                                   Number(track.net),
                                   Id(dice_)};
    if (track.arc) parts.push_back("(mid " + Spelled(track.mid, dice_) + ")");
    return (track.arc ? "(arc" : "(segment") + Joined(std::move(parts), dice_) + ")";
  }

  std::string Via(const RandomDesign::Via& via) {
    const bool turned = dice_.Roll(2) != 0;
    return "(via" +
           Joined({"(at " + Spelled(via.at, dice_) + ")",
                   "(size " + Spelled(static_cast<std::int64_t>(dice_.Roll(1'000'000)), dice_) + ")",
                   "(layers \"" + (turned ? via.last : via.first) + "\" \"" + (turned ? via.first : via.last) + "\")",
                   Number(via.net), Id(dice_)},
                  dice_) +
           ")";
  }

  std::string Zone(const RandomDesign::Zone& zone) {
    std::vector<Place> corners = zone.corners;
    std::rotate(corners.begin(), corners.begin() + static_cast<std::ptrdiff_t>(dice_.Roll(corners.size())),
                corners.end());
    if (dice_.Roll(2) != 0) std::reverse(corners.begin(), corners.end());
    std::string outline;
    for (const Place corner : corners) outline += "(xy " + Spelled(corner, dice_) + ")";
    std::vector<std::string> layers = zone.layers;
    dice_.Shuffle(layers);
    std::string names;
    for (const std::string& layer : layers) names += " \"" + layer + '"';
    std::vector<std::string> parts{Number(zone.net), "(net_name \"" + zone.net + "\")", "(layers" + names + ")",
                                   "(polygon (pts " + outline + "))", Id(dice_)};
    if (dice_.Roll(2) != 0) parts.push_back("(filled_polygon (layer \"F.Cu\") (pts (xy 0 0) (xy 1 1) (xy 1 0)))");
    return "(zone" + Joined(std::move(parts), dice_) + ")";
  }

  const RandomDesign& design_;
  Dice& dice_;
  std::map<std::string, int> numbers_;
};

RandomDesign::Part RollPart(const std::vector<std::string>& nets, Dice& dice) {
  RandomDesign::Part part;
  // Some without a reference, some that share one.
  part.reference = dice.Roll(5) == 0 ? "" : "R" + std::to_string(dice.Roll(8));
  part.value = std::to_string(dice.Roll(2)) + "k";
  part.footprint = "L:F" + std::to_string(dice.Roll(2));
  part.at = RollPlace(dice);
  part.degrees = static_cast<int>(dice.Roll(4)) * 90;
  part.back = dice.Roll(2) != 0;
  for (std::uint64_t pad = dice.Roll(4); pad > 0; --pad) part.pads.push_back({std::to_string(pad), Pick(nets, dice)});
  return part;
}

RandomDesign::Track RollTrack(const std::vector<std::string>& nets, Dice& dice) {
  RandomDesign::Track track;
  track.net = Pick(nets, dice);
  track.layer = dice.Roll(2) != 0 ? "F.Cu" : "B.Cu";
  track.start = RollPlace(dice);
  track.mid = RollPlace(dice);
  track.end = RollPlace(dice);
  track.arc = dice.Roll(4) == 0;
  track.width = 200'000 + static_cast<std::int64_t>(dice.Roll(2));
  return track;
}

template <class T>
void DropOne(std::vector<T>& list, Dice& dice) {
  if (!list.empty()) list.erase(list.begin() + static_cast<std::ptrdiff_t>(dice.Roll(list.size())));
}

}  // namespace

std::uint64_t Dice::Roll(std::uint64_t sides) {
  state_ += 0x9E3779B97F4A7C15ull;
  std::uint64_t value = state_;
  value = (value ^ (value >> 30)) * 0xBF58476D1CE4E5B9ull;
  value = (value ^ (value >> 27)) * 0x94D049BB133111EBull;
  return (value ^ (value >> 31)) % sides;
}

RandomDesign RandomDesign::Make(Dice& dice) {
  RandomDesign design;
  design.layers = {
      {"F.Cu", "signal", ""}, {"In1.Cu", "power", "GND"}, {"B.Cu", "signal", ""}, {"Edge.Cuts", "user", ""}};
  for (std::uint64_t i = 0; i < 5; ++i) design.nets.push_back("N" + std::to_string(i * 4 + dice.Roll(4)));
  for (std::uint64_t i = dice.Roll(10); i > 0; --i) design.parts.push_back(RollPart(design.nets, dice));
  for (std::uint64_t i = dice.Roll(10); i > 0; --i) design.tracks.push_back(RollTrack(design.nets, dice));
  for (std::uint64_t i = dice.Roll(5); i > 0; --i) {
    design.vias.push_back({Pick(design.nets, dice), RollPlace(dice), "F.Cu", dice.Roll(2) != 0 ? "B.Cu" : "In1.Cu"});
  }
  for (std::uint64_t i = dice.Roll(4); i > 0; --i) {
    Zone zone{Pick(design.nets, dice), {"F.Cu"}, {}};
    if (dice.Roll(2) != 0) zone.layers.push_back("B.Cu");
    for (std::uint64_t corner = 3 + dice.Roll(4); corner > 0; --corner) zone.corners.push_back(RollPlace(dice));
    design.zones.push_back(std::move(zone));
  }
  return design;
}

void RandomDesign::Change(Dice& dice) {
  for (std::uint64_t changes = dice.Roll(5); changes > 0; --changes) {
    switch (dice.Roll(8)) {
      case 0:
        DropOne(parts, dice);
        break;
      case 1:
        parts.push_back(RollPart(nets, dice));
        break;
      case 2:
        DropOne(tracks, dice);
        break;
      case 3:
        tracks.push_back(RollTrack(nets, dice));
        break;
      case 4:
        DropOne(vias, dice);
        break;
      case 5:
        DropOne(zones, dice);
        break;
      case 6:
        layers[dice.Roll(layers.size())].userName = "L" + std::to_string(dice.Roll(2));
        break;
      default:
        if (!parts.empty()) parts[dice.Roll(parts.size())].at = RollPlace(dice);
        break;
    }
  }
}

std::string RandomDesign::Write(Dice& dice) const { return Writer(*this, dice).Board(); }

}  // namespace oxviewer::testing
