// Records that the toolkit and the library share: their layout, and who ends an image.
#include <gtest/gtest.h>
#include <tests/support/RecordingToolkit.h>
#include <uicomps/toolkit/ImageCalls.h>

#include <cstddef>
#include <cstdlib>

namespace oxecad_ui {
namespace {

using test_support::Calling;
using test_support::DoingGlobally;
using test_support::RecordingToolkit;
using toolkit::ImageBuffer;
using toolkit::NodeTypeRecord;

TEST(Records, ImageBufferHasTheToolkitsLayout) {
  EXPECT_GE(sizeof(ImageBuffer), 32u);
  EXPECT_EQ(offsetof(ImageBuffer, kind), 0u);
  EXPECT_EQ(offsetof(ImageBuffer, width), 4u);
  EXPECT_EQ(offsetof(ImageBuffer, height), 8u);
  EXPECT_EQ(offsetof(ImageBuffer, pixels), 24u);
}

TEST(Records, NodeTypeHasItsNameAndImagesInSlots0And4And5) {
  EXPECT_EQ(sizeof(NodeTypeRecord), 9 * sizeof(void*));
  EXPECT_EQ(offsetof(NodeTypeRecord, name), 0u);
  EXPECT_EQ(offsetof(NodeTypeRecord, image), 4 * sizeof(void*));
  EXPECT_EQ(offsetof(NodeTypeRecord, expandedImage), 5 * sizeof(void*));
}

TEST(LoadedImage, AsksForPixelsAndGivesThemBack) {
  RecordingToolkit toolkit;
  unsigned char pixels[16] = {};
  toolkit.NamePointer(pixels, "&pixels");
  toolkit.When(DoingGlobally(6030)).Run([&](const uiox::Call& call) {
    auto& buffer = *static_cast<ImageBuffer*>(call.positional[1].Pointer());
    EXPECT_EQ(buffer.kind, 23) << "set before the load";
    buffer.width = 2;
    buffer.height = 2;
    buffer.pixels = pixels;
  });
  {
    wire::LoadedImage image("base.png");
    EXPECT_TRUE(image.IsLoaded());
    EXPECT_EQ(image.Width(), 2);
    EXPECT_EQ(image.Height(), 2);
    EXPECT_EQ(image.Pixels(), pixels);
    image.DefineAs("new.png");
  }
  EXPECT_TRUE(toolkit.Took(R"(
    global_do 6030 LoadImage "base.png" image{23 2x2} | 0
    global_do 6031 DefineImage "new.png" image{23 2x2} | 0
    relmem &pixels)"));
}

TEST(LoadedImage, GivesNothingBackThatWasNotLoaded) {
  RecordingToolkit toolkit;
  toolkit.When(DoingGlobally(6030)).Refuse();
  { EXPECT_FALSE(wire::LoadedImage("none.png").IsLoaded()); }
  EXPECT_TRUE(toolkit.Took(R"(global_do 6030 LoadImage "none.png" image{23 0x0} | 0 => 1)"));
}

}  // namespace
}  // namespace oxecad_ui
