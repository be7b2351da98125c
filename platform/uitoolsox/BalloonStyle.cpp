#include <uitoolsox/BalloonStyle.h>

#include <oxkutils/Export.h>
#include <uicomps/toolkit/Toolkit.h>

#include <cstring>

namespace uitoolsox {
namespace {

/// Balloons are placed so that the anchor's centre is this far inside their edge.
constexpr int kArrowInset = 24;

constexpr BalloonStyle kStyles[] = {
    {1, true, true, kArrowInset},
    {3, true, false, kArrowInset},
    {7, false, true, kArrowInset},
    {9, false, false, kArrowInset},
};

const BalloonStyle* StyleOf(unsigned char quadrant) {
  for (const BalloonStyle& style : kStyles) {
    if (style.quadrant == quadrant) return &style;
  }
  return nullptr;
}

}  // namespace
}  // namespace uitoolsox

OXECAD_PLATFORM_EXPORT int uit_SkinGetBalloonDlgStyle(unsigned char selector, void* style, int /*end*/) {
  const uitoolsox::BalloonStyle* const found = uitoolsox::StyleOf(selector);
  if (!found || !style) return -1;
  std::memcpy(style, &found, sizeof found);
  return 0;
}
