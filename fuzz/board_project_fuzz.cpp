#include <fuzz/BoardChecks.h>

#include <cstdint>
#include <string_view>

// Any text is a set of net classes or one clear error that leaves the board as it was.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace oxviewer;
  Board board;
  board.netClasses = {{"Default"}};
  board.nets = {{"GND", 0}, {"+5V", 0}, {"/usb/D+", 0}, {"/usb/D-", 0}};
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  ReadError error;
  if (!ApplyNetClasses(text, "fuzz", fuzz::FuzzLimits(), board, error)) {
    fuzz::RequireOneLine(error);
    fuzz::Require(board.netClasses.size() == 1);
  }
  fuzz::RequireSound(board);
  return 0;
}
