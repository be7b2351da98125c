#ifndef OXECAD_TESTS_VIEWER_DIFF_RANDOMDESIGN_H
#define OXECAD_TESTS_VIEWER_DIFF_RANDOMDESIGN_H

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace oxviewer::testing {

/// Numbers that are the same on every machine.
class Dice {
 public:
  explicit Dice(std::uint64_t seed) : state_(seed) {}
  /// 0 to `sides` - 1.
  std::uint64_t Roll(std::uint64_t sides);
  template <class T>
  void Shuffle(std::vector<T>& list) {
    for (std::size_t i = list.size(); i > 1; --i) std::swap(list[i - 1], list[Roll(i)]);
  }

 private:
  std::uint64_t state_;
};

/// A small design as a comparison sees it, lengths in nanometres. Writing it down leaves many things open.
struct RandomDesign {
  struct Place {
    std::int64_t x, y;
  };
  struct Layer {
    std::string name, type, userName;
  };
  struct Pad {
    std::string number, net;
  };
  struct Part {
    std::string reference, value, footprint;
    Place at;
    int degrees;
    bool back;
    std::vector<Pad> pads;
  };
  struct Track {
    std::string net, layer;
    Place start, mid, end;
    bool arc;
    std::int64_t width;
  };
  struct Via {
    std::string net;
    Place at;
    std::string first, last;
  };
  struct Zone {
    std::string net;
    std::vector<std::string> layers;
    std::vector<Place> corners;
  };

  std::vector<Layer> layers;
  std::vector<std::string> nets;
  std::vector<Part> parts;
  std::vector<Track> tracks;
  std::vector<Via> vias;
  std::vector<Zone> zones;

  static RandomDesign Make(Dice& dice);
  /// Changes some things at random, or none.
  void Change(Dice& dice);
  /// A board file of it. What must not matter is rolled: order, ids, directions, net numbers, the spelling of numbers,
  /// the first corner and the sense of outlines, whole turns, and things that are no finding.
  std::string Write(Dice& dice) const;
};

}  // namespace oxviewer::testing

#endif  // OXECAD_TESTS_VIEWER_DIFF_RANDOMDESIGN_H
