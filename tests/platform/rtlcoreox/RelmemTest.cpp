#include <gtest/gtest.h>
#include <tests/support/RecordingToolkit.h>
#include <uicomps/toolkit/Toolkit.h>
#include <uiox/Memory.h>

// That the block really goes back is seen by a leak checker: no block is released by these tests themselves.

TEST(Relmem, ReleasesTheBlockAndClearsThePointer) {
  auto* pixels = static_cast<unsigned char*>(uiox::AllocateBlock(16 * 16 * 4));
  EXPECT_EQ(relmem(&pixels), 0);
  EXPECT_EQ(pixels, nullptr);
}

TEST(Relmem, ReleasesABlockOnce) {
  auto* pixels = static_cast<unsigned char*>(uiox::AllocateBlock(4));
  EXPECT_EQ(relmem(&pixels), 0);
  EXPECT_EQ(relmem(&pixels), 0);
  EXPECT_EQ(pixels, nullptr);
}

TEST(Relmem, ReleasesThePixelsOfAnImage) {
  oxecad_ui::toolkit::ImageBuffer image;
  image.pixels = static_cast<unsigned char*>(uiox::AllocateBlock(2 * 2 * 4));
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

TEST(Relmem, IsSeenByTheToolkitInPlace) {
  test_support::RecordingToolkit toolkit(test_support::RecordingToolkit::StandIn);
  void* block = uiox::AllocateBlock(4);
  toolkit.NamePointer(block, "pixels");
  EXPECT_EQ(relmem(&block), 0);
  EXPECT_EQ(block, nullptr);
  EXPECT_TRUE(toolkit.Took("relmem pixels"));
}
