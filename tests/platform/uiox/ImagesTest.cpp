#include "Wire.h"

#include <png.h>
#include <uiox/Images.h>
#include <uiox/Memory.h>
#include <unistd.h>

#include <cstring>
#include <filesystem>
#include <fstream>

namespace {

using oxecad_ui::toolkit::ImageBuffer;
using oxecad_ui::toolkit::kPixelImage;
using uiox::Image;
using uiox_test::kEnd;
using uiox_test::WireTest;

class Images : public WireTest {
 protected:
  static int Load(const char* name, ImageBuffer& buffer) {
    buffer = {};
    buffer.kind = kPixelImage;
    return ui_global_do_operation(6030, name, &buffer, kEnd);
  }
  static std::string EncodedPng(const std::vector<std::uint8_t>& rgba, unsigned width, unsigned height) {
    png_image png{};
    png.version = PNG_IMAGE_VERSION;
    png.width = width;
    png.height = height;
    png.format = PNG_FORMAT_RGBA;
    png_alloc_size_t size = 0;
    png_image_write_to_memory(&png, nullptr, &size, 0, rgba.data(), 0, nullptr);
    std::string bytes(size, '\0');
    EXPECT_NE(png_image_write_to_memory(&png, bytes.data(), &size, 0, rgba.data(), 0, nullptr), 0);
    return bytes;
  }
};

TEST_F(Images, TheColourSquareIsAFrameOfOnePixelAroundWhite) {
  ImageBuffer buffer;
  ASSERT_EQ(Load("color_square.png", buffer), 0);
  EXPECT_EQ(buffer.width, 16);
  EXPECT_EQ(buffer.height, 16);
  const auto pixel = [&](int x, int y) { return buffer.pixels + 4 * (16 * y + x); };
  for (int i = 0; i < 16; ++i) {
    for (const unsigned char* edge : {pixel(i, 0), pixel(i, 15), pixel(0, i), pixel(15, i)}) {
      EXPECT_NE(edge[0], 0xFF);
      EXPECT_EQ(edge[3], Image::kOpaque);
    }
  }
  EXPECT_EQ(pixel(1, 1)[0], 0xFF);
  EXPECT_EQ(pixel(14, 14)[2], 0xFF);
  uiox::ReleaseBlock(buffer.pixels);
}

TEST_F(Images, TheSevenShowImagesDiffer) {
  std::vector<std::vector<std::uint8_t>> seen;
  for (const char* name : {"both", "a", "b", "a-b", "b-a", "diff", "overlap"}) {
    const Image* image = suite.Images().Find("ecad_compare_show_" + std::string(name) + ".png");
    ASSERT_NE(image, nullptr) << name;
    EXPECT_EQ(image->width, 16);
    for (const auto& other : seen) EXPECT_NE(image->pixels, other) << name;
    seen.push_back(image->pixels);
  }
}

TEST_F(Images, BuiltInImagesAreDrawnAtAnySize) {
  for (const int side : {1, 16, 24, 32, 48}) {
    Image image;
    EXPECT_TRUE(uiox::DrawBuiltInImage("mix.png", side, image));
    EXPECT_EQ(image.width, side);
    EXPECT_EQ(image.pixels.size(), static_cast<std::size_t>(4 * side * side));
  }
  Image image;
  EXPECT_FALSE(uiox::DrawBuiltInImage("other.png", 16, image));
  EXPECT_FALSE(uiox::DrawBuiltInImage("mix.png", 0, image));
}

TEST_F(Images, ADefinedImageIsLoadedAgain) {
  unsigned char pixels[2 * 3 * 4];
  for (std::size_t i = 0; i < sizeof pixels; ++i) pixels[i] = static_cast<unsigned char>(i);
  ImageBuffer buffer;
  buffer.kind = kPixelImage;
  buffer.width = 2;
  buffer.height = 3;
  buffer.pixels = pixels;
  EXPECT_EQ(ui_global_do_operation(6031, "mine", &buffer, kEnd), 0);
  ImageBuffer read;
  ASSERT_EQ(Load("mine", read), 0);
  EXPECT_EQ(read.width, 2);
  EXPECT_EQ(read.height, 3);
  EXPECT_NE(read.pixels, pixels) << "a copy for the caller";
  EXPECT_EQ(std::memcmp(read.pixels, pixels, sizeof pixels), 0);
  uiox::ReleaseBlock(read.pixels);
}

TEST_F(Images, ADefinedImageTakesTheOldOnesPlace) {
  ASSERT_TRUE(suite.Images().Define("mine", {1, 1, {1, 2, 3, 1}}));
  EXPECT_EQ(suite.Images().Find("mine")->pixels[0], 1);
  ASSERT_TRUE(suite.Images().Define("mine", {1, 1, {9, 2, 3, 1}}));
  EXPECT_EQ(suite.Images().Find("mine")->pixels[0], 9);
}

TEST_F(Images, BadRequestsAreRefused) {
  ImageBuffer buffer;
  EXPECT_NE(Load("missing.png", buffer), 0);
  EXPECT_EQ(buffer.pixels, nullptr);
  buffer.kind = 22;
  EXPECT_NE(ui_global_do_operation(6030, "color_square.png", &buffer, kEnd), 0);
  EXPECT_NE(ui_global_do_operation(6030, "color_square.png", nullptr, kEnd), 0);
  EXPECT_NE(Load(nullptr, buffer), 0);
  unsigned char pixels[4] = {};
  const struct {
    int width, height;
    unsigned char* pixels;
  } bad[] = {{0, 1, pixels}, {1, -1, pixels}, {1, 1, nullptr}, {1000000, 1, pixels}};
  for (const auto& row : bad) {
    ImageBuffer wrong;
    wrong.kind = kPixelImage;
    wrong.width = row.width;
    wrong.height = row.height;
    wrong.pixels = row.pixels;
    EXPECT_NE(ui_global_do_operation(6031, "wrong", &wrong, kEnd), 0);
  }
  EXPECT_NE(ui_global_do_operation(6032, "x", &buffer, kEnd), 0);
  EXPECT_EQ(suite.Images().Find("wrong"), nullptr);
}

TEST_F(Images, PngFilesAreDecoded) {
  const std::vector<std::uint8_t> rgba = {10, 20, 30, 255, 40, 50, 60, 0, 70, 80, 90, 128, 1, 2, 3, 1};
  const std::string bytes = EncodedPng(rgba, 2, 2);
  Image image;
  std::string why;
  ASSERT_TRUE(uiox::DecodePng(bytes.data(), bytes.size(), image, why)) << why;
  EXPECT_EQ(image.width, 2);
  EXPECT_EQ(image.Pixel(0, 0)[1], 20);
  EXPECT_EQ(image.Pixel(0, 0)[3], Image::kOpaque);
  EXPECT_EQ(image.Pixel(1, 0)[3], Image::kClear);
  EXPECT_EQ(image.Pixel(0, 1)[3], 128);
  EXPECT_EQ(image.Pixel(1, 1)[3], 2) << "1 would mean opaque";
}

TEST_F(Images, DamagedPngFilesAreRefused) {
  const std::string bytes = EncodedPng(std::vector<std::uint8_t>(4 * 8 * 8, 200), 8, 8);
  Image image;
  std::string why;
  for (std::size_t length = 0; length + 12 < bytes.size(); ++length) {
    EXPECT_FALSE(uiox::DecodePng(bytes.data(), length, image, why)) << length;
    EXPECT_NE(why, "");
  }
  EXPECT_TRUE(image.pixels.empty());
  EXPECT_FALSE(uiox::DecodePng("GIF89a", 6, image, why));
}

TEST_F(Images, FilesAreFoundOnTheSearchPath) {
  const auto folder = std::filesystem::temp_directory_path() / ("uiox-images-" + std::to_string(::getpid()));
  std::filesystem::create_directories(folder);
  std::ofstream(folder / "color_square.png") << EncodedPng({1, 2, 3, 255}, 1, 1);
  suite.Resources().Add(folder.string());
  ImageBuffer buffer;
  ASSERT_EQ(Load("color_square.png", buffer), 0);
  EXPECT_EQ(buffer.width, 1);
  EXPECT_EQ(buffer.pixels[2], 3);
  uiox::ReleaseBlock(buffer.pixels);
  std::filesystem::remove_all(folder);
}

}  // namespace
