#include <viewer/trees/LayerPalette.h>

#include <array>
#include <charconv>
#include <optional>
#include <string_view>

namespace oxviewer {
namespace {

constexpr Color kFrontCopper = ColorOf(0xD6, 0x45, 0x3A);
constexpr Color kBackCopper = ColorOf(0x3E, 0x7D, 0xD8);

constexpr std::array<Color, 8> kInnerCopper{
    ColorOf(0xC9, 0xA2, 0x27), ColorOf(0x3F, 0xA6, 0x6B), ColorOf(0x9B, 0x59, 0xC6), ColorOf(0xD9, 0x82, 0x3B),
    ColorOf(0x3D, 0xB5, 0xB5), ColorOf(0xC6, 0x59, 0x90), ColorOf(0x7A, 0x9E, 0x3D), ColorOf(0x6B, 0x7F, 0xD1)};

constexpr std::array<Color, 6> kOthers{ColorOf(0x8F, 0xB3, 0xC9), ColorOf(0xC9, 0x9F, 0x8F), ColorOf(0x9F, 0xC9, 0x8F),
                                       ColorOf(0xB0, 0x9F, 0xD6), ColorOf(0xD6, 0xC0, 0x8A), ColorOf(0x8F, 0xC9, 0xB8)};

struct NamedColor {
  std::string_view name;
  Color color;
};

constexpr std::array kNamed{
    NamedColor{"F.Cu", kFrontCopper},
    NamedColor{"B.Cu", kBackCopper},
    NamedColor{"F.Adhes", ColorOf(0xA4, 0x5F, 0xB8)},
    NamedColor{"B.Adhes", ColorOf(0x5F, 0x5F, 0xB8)},
    NamedColor{"F.Paste", ColorOf(0xB8, 0xA0, 0x98)},
    NamedColor{"B.Paste", ColorOf(0x86, 0xB0, 0xB4)},
    NamedColor{"F.SilkS", ColorOf(0xEC, 0xE6, 0xC2)},
    NamedColor{"B.SilkS", ColorOf(0xD8, 0xB4, 0xCC)},
    NamedColor{"F.Mask", ColorOf(0xA0, 0x4A, 0x8A)},
    NamedColor{"B.Mask", ColorOf(0x3C, 0x8C, 0x78)},
    NamedColor{"Dwgs.User", ColorOf(0xBE, 0xC8, 0xD4)},
    NamedColor{"Cmts.User", ColorOf(0x72, 0xA8, 0xDC)},
    NamedColor{"Eco1.User", ColorOf(0x78, 0xBE, 0x78)},
    NamedColor{"Eco2.User", ColorOf(0xD2, 0xC4, 0x6E)},
    NamedColor{"Edge.Cuts", ColorOf(0xF0, 0xD2, 0x3C)},
    NamedColor{"Margin", ColorOf(0xD2, 0x50, 0xD2)},
    NamedColor{"F.CrtYd", ColorOf(0xDC, 0x78, 0xC8)},
    NamedColor{"B.CrtYd", ColorOf(0x64, 0xC8, 0xDC)},
    NamedColor{"F.Fab", ColorOf(0xB4, 0xB0, 0xA4)},
    NamedColor{"B.Fab", ColorOf(0x8C, 0x96, 0xB4)},
};

std::optional<Color> ByName(std::string_view name) {
  for (const NamedColor& named : kNamed) {
    if (named.name == name) return named.color;
  }
  return std::nullopt;
}

Color Inner(std::size_t position) { return kInnerCopper[position % kInnerCopper.size()]; }

// The number of an inner layer, from 1: 2 for "In2.Cu".
std::optional<std::size_t> InnerNumber(std::string_view name) {
  if (!name.starts_with("In")) return std::nullopt;
  std::size_t number = 0;
  const auto [end, error] = std::from_chars(name.data() + 2, name.data() + name.size(), number);
  const std::string_view rest(end, static_cast<std::size_t>(name.data() + name.size() - end));
  if (error != std::errc() || number == 0 || rest != ".Cu") return std::nullopt;
  return number;
}

Color AnyOf(std::string_view name) {
  std::size_t sum = 0;
  for (const char c : name) sum = sum * 31 + static_cast<unsigned char>(c);
  return kOthers[sum % kOthers.size()];
}

}  // namespace

std::vector<Color> DefaultLayerColors(const Board& board) {
  std::size_t copper = 0;
  std::size_t lastCopper = 0;
  for (std::size_t i = 0; i < board.layers.size(); ++i) {
    if (board.layers[i].copper && board.layers[i].declared) lastCopper = i;
  }
  std::vector<Color> colors;
  colors.reserve(board.layers.size());
  for (std::size_t i = 0; i < board.layers.size(); ++i) {
    const Layer& layer = board.layers[i];
    if (const auto named = ByName(layer.name)) {
      colors.push_back(*named);
    } else if (!layer.copper) {
      colors.push_back(AnyOf(layer.name));
    } else if (const auto number = InnerNumber(layer.name)) {
      colors.push_back(Inner(*number - 1));
    } else if (copper == 0) {
      colors.push_back(kFrontCopper);
    } else {
      colors.push_back(i == lastCopper ? kBackCopper : Inner(copper - 1));
    }
    if (layer.copper) ++copper;
  }
  return colors;
}

bool IsShownAtFirst(const Layer& layer) {
  if (layer.copper) return true;
  for (const std::string_view making : {".Mask", ".Paste", ".Adhes", ".CrtYd", ".Fab"}) {
    if (layer.name.ends_with(making)) return false;
  }
  return true;
}

}  // namespace oxviewer
