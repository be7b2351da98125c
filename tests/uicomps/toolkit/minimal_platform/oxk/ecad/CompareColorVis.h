#ifndef OXECAD_TESTS_MINIMAL_OXK_ECAD_COMPARECOLORVIS_H
#define OXECAD_TESTS_MINIMAL_OXK_ECAD_COMPARECOLORVIS_H

#include <cstdint>

namespace oxk::ecad {

struct CompareColorVis {
  enum ShowMode : std::int32_t { Mixed = -1, Both, OnlyA, OnlyB, AMinusB, BMinusA, Overlap, Diff };
};

}  // namespace oxk::ecad

#endif
