#include <gtest/gtest.h>
#include <uicomps/toolkit/Toolkit.h>

#include <cstdlib>

// That the block really goes back is seen by a leak checker: no block is released by these tests themselves.

TEST(Relmem, ReleasesTheBlockAndClearsThePointer) {
  auto* pixels = static_cast<unsigned char*>(std::malloc(16 * 16 * 4));
  EXPECT_EQ(relmem(&pixels), 0);
  EXPECT_EQ(pixels, nullptr);
}

TEST(Relmem, ReleasesABlockOnce) {
  auto* pixels = static_cast<unsigned char*>(std::malloc(4));
  EXPECT_EQ(relmem(&pixels), 0);
  EXPECT_EQ(relmem(&pixels), 0);
  EXPECT_EQ(pixels, nullptr);
}

TEST(Relmem, ReleasesThePixelsOfAnImage) {
  oxecad_ui::toolkit::ImageBuffer image;
  image.pixels = static_cast<unsigned char*>(std::calloc(4, 4));
  image.width = 2;
  image.height = 2;
  EXPECT_EQ(relmem(&image.pixels), 0);
  EXPECT_EQ(image.pixels, nullptr);
  EXPECT_EQ(image.width, 2);
  EXPECT_EQ(image.height, 2);
}

TEST(Relmem, AcceptsNull) {
  void* nothing = nullptr;
  EXPECT_EQ(relmem(&nothing), 0);
  EXPECT_EQ(nothing, nullptr);
  EXPECT_EQ(relmem(nullptr), 0);
}
