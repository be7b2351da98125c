/// \file
/// The toolkit's side of images: what is loaded, what is defined, what comes back.
#ifndef OXECAD_TESTS_UICOMPS_COLOR_IMAGESHOP_H
#define OXECAD_TESTS_UICOMPS_COLOR_IMAGESHOP_H

#include <gtest/gtest.h>
#include <tests/support/RecordingToolkit.h>
#include <uicomps/color/ColorIconBag.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <new>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace color_tests {

using oxecad_ui::toolkit::ImageBuffer;

/// Makes the process's bag a new one, as at the start of a process.
inline void ForgetIcons() {
  oxecad_ui::ColorIconBag& bag = oxecad_ui::ColorIconBag::Get();
  bag.~ColorIconBag();
  new (&bag) oxecad_ui::ColorIconBag;
}

/// Answers 6030, 6031 and `relmem` of a recording toolkit. Every loaded image is a block of exactly its size, and every
/// block has to come back once.
///
/// The pixel of column x and row y is loaded as the bytes (x, y, 0xEE, 0xFF).
class ImageShop {
 public:
  struct Defined {
    std::string name;
    std::string drawing;
  };

  explicit ImageShop(test_support::RecordingToolkit& toolkit) : toolkit_(toolkit) {
    using test_support::Calling;
    using test_support::DoingGlobally;
    toolkit_.When(DoingGlobally(6030)).Refuse();
    toolkit_.When(DoingGlobally(6031)).Run([this](const uiox::Call& call) { Define(call); });
    toolkit_.When(Calling(uiox::Function::ReleaseMemory)).Run([this](const uiox::Call& call) { Release(call); });
  }
  ~ImageShop() {
    EXPECT_TRUE(blocks_.empty()) << blocks_.size() << " images were not released";
    for (unsigned char* block : blocks_) std::free(block);
  }
  ImageShop(const ImageShop&) = delete;
  ImageShop& operator=(const ImageShop&) = delete;

  /// Makes an image of that name loadable.
  void Stock(const char* name, std::int32_t width, std::int32_t height, bool with_pixels = true) {
    test_support::Match load = test_support::DoingGlobally(6030);
    load.first = name;
    toolkit_.When(load).Run([=, this](const uiox::Call& call) {
      auto& buffer = *static_cast<ImageBuffer*>(call.positional[1].Pointer());
      buffer.width = width;
      buffer.height = height;
      buffer.pixels = with_pixels ? NewBlock(width, height) : nullptr;
      ++loads_;
    });
  }

  /// The images that were defined since the last time, as drawings: a pixel as loaded is its row and its column in
  /// hexadecimal, one in the colour `painted` (and 1 as its fourth byte) is `##`, any other `??`.
  std::vector<Defined> TakeDefined() { return std::exchange(defined_, {}); }
  int Loads() const { return loads_; }
  int Releases() const { return releases_; }
  void Expect(std::uint32_t painted) { painted_ = painted; }

 private:
  unsigned char* NewBlock(std::int32_t width, std::int32_t height) {
    const std::size_t bytes =
        static_cast<std::size_t>(std::abs(width)) * static_cast<std::size_t>(std::abs(height)) * 4;
    auto* const block = static_cast<unsigned char*>(std::malloc(bytes));
    for (std::size_t at = 0; at < bytes; at += 4) {
      const auto columns = static_cast<std::size_t>(std::abs(width));
      block[at] = static_cast<unsigned char>(at / 4 % columns);
      block[at + 1] = static_cast<unsigned char>(at / 4 / columns);
      block[at + 2] = 0xEE;
      block[at + 3] = 0xFF;
    }
    blocks_.insert(block);
    toolkit_.NamePointer(block, "&pixels");
    return block;
  }

  void Define(const uiox::Call& call) {
    const auto& buffer = *static_cast<const ImageBuffer*>(call.positional[1].Pointer());
    std::string drawing;
    for (std::int32_t y = 0; buffer.pixels && y < buffer.height; ++y) {
      for (std::int32_t x = 0; x < buffer.width; ++x) {
        drawing += (x > 0 ? " " : "") + DrawPixel(buffer.pixels + 4 * (y * buffer.width + x));
      }
      drawing += '\n';
    }
    defined_.push_back({call.positional[0].Text(), drawing});
  }

  std::string DrawPixel(const unsigned char* pixel) const {
    constexpr char kDigits[] = "0123456789abcdef";
    const unsigned char paint[4] = {static_cast<unsigned char>(painted_), static_cast<unsigned char>(painted_ >> 8),
                                    static_cast<unsigned char>(painted_ >> 16), 1};
    if (std::memcmp(pixel, paint, 4) == 0) return "##";
    if (pixel[0] > 15 || pixel[1] > 15 || pixel[2] != 0xEE || pixel[3] != 0xFF) return "??";
    return {kDigits[pixel[1]], kDigits[pixel[0]]};
  }

  void Release(const uiox::Call& call) {
    ++releases_;
    auto* const block = *static_cast<unsigned char**>(call.value);
    if (!block) return;
    EXPECT_EQ(blocks_.erase(block), 1u) << "what was released is no image";
    std::free(block);
  }

  test_support::RecordingToolkit& toolkit_;
  std::set<unsigned char*> blocks_;
  std::vector<Defined> defined_;
  std::uint32_t painted_ = 0;
  int loads_ = 0;
  int releases_ = 0;
};

}  // namespace color_tests

#endif
