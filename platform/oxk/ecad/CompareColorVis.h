/// \file
/// How two designs are shown over each other.
#ifndef OXECAD_OXK_ECAD_COMPARECOLORVIS_H
#define OXECAD_OXK_ECAD_COMPARECOLORVIS_H

#include <cstdint>

namespace oxk::ecad {

/// The vocabulary of a comparison's display; it holds no state.
struct CompareColorVis {
  /// Which part of design A and design B is shown.
  enum ShowMode : std::int32_t {
    Mixed = -1,  ///< several modes, as a summary of parts that differ
    Both,        ///< A and B over each other
    OnlyA,       ///< all of A, nothing of B
    OnlyB,       ///< all of B, nothing of A
    AMinusB,     ///< what A has and B has not
    BMinusA,     ///< what B has and A has not
    Overlap,     ///< what both have
    Diff         ///< what only one of them has
  };
};

}  // namespace oxk::ecad

#endif
