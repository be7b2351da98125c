#include <viewer/trees/PartKinds.h>
#include <viewer/trees/ReferencePrefix.h>

#include <algorithm>
#include <array>

namespace oxviewer {
namespace {

struct Kind {
  const char* name;
  std::array<std::string_view, 5> prefixes;  // upper case; empty ones are none
};

constexpr std::array kKinds{
    Kind{"Integrated circuits", {"U", "IC", "OC"}},
    Kind{"Transistors", {"Q", "T", "VT"}},
    Kind{"Diodes", {"D", "LED", "DZ", "ZD", "CR"}},
    Kind{"Resistors", {"R", "RN", "RR", "RA"}},
    Kind{"Potentiometers", {"RV", "VR", "POT"}},
    Kind{"Capacitors", {"C", "CP", "CV"}},
    Kind{"Inductors", {"L", "FB", "FL"}},
    Kind{"Transformers", {"TR"}},
    Kind{"Crystals and oscillators", {"Y", "X", "XTAL", "OSC"}},
    Kind{"Connectors", {"J", "P", "CN", "CON", "BUS"}},
    Kind{"Switches and relays", {"SW", "S", "K", "RL"}},
    Kind{"Jumpers", {"JP", "W", "SJ", "LK"}},
    Kind{"Fuses", {"F"}},
    Kind{"Batteries", {"BT", "BAT"}},
    Kind{"Test points", {"TP"}},
    Kind{"Mounting holes and marks", {"H", "MH", "MK", "FID", "LOGO"}},
    Kind{"Other parts", {}},
};

char UpperCase(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

bool SameButForCase(std::string_view text, std::string_view upper) {
  return std::equal(text.begin(), text.end(), upper.begin(), upper.end(),
                    [](char a, char b) { return UpperCase(a) == b; });
}

}  // namespace

std::size_t PartKindCount() { return kKinds.size(); }

const char* PartKindName(std::size_t kind) { return kKinds[kind].name; }

std::size_t PartKindOf(std::string_view reference) {
  const std::string_view prefix = ReferencePrefix(reference);
  for (std::size_t kind = 0; !prefix.empty() && kind < kKinds.size(); ++kind) {
    for (const std::string_view known : kKinds[kind].prefixes) {
      if (SameButForCase(prefix, known)) return kind;
    }
  }
  return kKinds.size() - 1;
}

}  // namespace oxviewer
