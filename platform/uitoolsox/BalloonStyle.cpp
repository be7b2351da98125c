#include <uitoolsox/BalloonStyle.h>

#include <oxkutils/Export.h>
#include <uicomps/toolkit/Toolkit.h>
#include <uiox/Backend.h>

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

const BalloonStyle* StyleOf(int quadrant) {
  for (const BalloonStyle& style : kStyles) {
    if (style.quadrant == quadrant) return &style;
  }
  return nullptr;
}

int GiveStyle(const uiox::Call& call) {
  const BalloonStyle* const found = StyleOf(call.code);
  if (!found || !call.value) return -1;
  std::memcpy(call.value, &found, sizeof(void*));
  return 0;
}

}  // namespace
}  // namespace uitoolsox

OXECAD_PLATFORM_EXPORT int uit_SkinGetBalloonDlgStyle(unsigned char selector, void* style, int /*end*/) {
  uiox::Call call(uiox::Function::BalloonStyle);
  call.code = selector;
  call.value = style;
  call.answer = uitoolsox::GiveStyle;
  return uiox::Dispatch(call);
}
