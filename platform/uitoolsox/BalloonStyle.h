/// \file
/// What stands behind the style handles of `uit_SkinGetBalloonDlgStyle`.
#ifndef OXECAD_UITOOLSOX_BALLOONSTYLE_H
#define OXECAD_UITOOLSOX_BALLOONSTYLE_H

namespace uitoolsox {

/// The shape of a balloon by the quadrant of the screen that its anchor is in. A handle is a `const BalloonStyle*`; the
/// styles are constants that live as long as the library is loaded.
///
///     1: anchor left upper     3: anchor right upper
///          __/\________           ________/\__
///         |            |         |            |
///          ------------           ------------
///     7: anchor left lower     9: anchor right lower
///          ____________           ____________
///         |            |         |            |
///          --\/--------           --------\/--
struct BalloonStyle {
  int quadrant;      ///< 1, 3, 7 or 9
  bool arrowAtTop;   ///< the arrow leaves the upper edge and points up; otherwise the lower edge, pointing down
  bool arrowAtLeft;  ///< `arrowInset` is counted from the left edge; otherwise from the right edge
  int arrowInset;    ///< pixels from that edge to the arrow's tip
};

}  // namespace uitoolsox

#endif
