#include <fuzz/BoardChecks.h>
#include <viewer/board/Geometry.h>

#include <cstdint>
#include <string_view>

// Any text is a sound board or one clear error.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace oxviewer;
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const Result<Board> result = ReadBoardText(text, "fuzz", fuzz::FuzzLimits());
  if (!result) {
    fuzz::RequireOneLine(result.error());
    fuzz::Require(result.error().line >= 1 && result.error().column >= 1);
    return 0;
  }
  fuzz::RequireSound(*result);
  Outline(*result);
  for (const Zone& zone : result->zones) {
    for (const Polygon& outline : zone.outlines) Flattened(outline, 1000);
  }
  return 0;
}
