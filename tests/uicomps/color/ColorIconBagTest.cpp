#include <gtest/gtest.h>
#include <tests/uicomps/color/ImageShop.h>

#include <string>
#include <thread>
#include <type_traits>
#include <vector>

namespace color_tests {
namespace {

using oxecad_ui::ColorIconBag;
using test_support::DoingGlobally;
using test_support::Failure;
using test_support::RecordingToolkit;

static_assert(!std::is_copy_constructible_v<ColorIconBag>);
static_assert(!std::is_copy_assignable_v<ColorIconBag>);
static_assert(!std::is_move_constructible_v<ColorIconBag>);

class ColorIcons : public testing::Test {
 protected:
  ColorIcons() { shop.Stock("square.png", 3, 3); }

  RecordingToolkit toolkit;
  ImageShop shop{toolkit};
  ColorIconBag bag;
};

TEST_F(ColorIcons, AreLoadedPaintedDefinedAndReleased) {
  EXPECT_STREQ(bag.GetColorIcon("square.png", 255), "square.png_255");
  EXPECT_TRUE(toolkit.Took(R"(
    global_do 6030 LoadImage "square.png" image{23 3x3} | 0
    global_do 6031 DefineImage "square.png_255" image{23 3x3} | 0
    relmem &pixels
  )"));
}

TEST_F(ColorIcons, AreMadeOnceAndTheirNamesStay) {
  const char* const first = bag.GetColorIcon("square.png", 5);
  std::vector<const char*> names;
  for (unsigned int color = 0; color < 2000; ++color) names.push_back(bag.GetColorIcon("square.png", color));
  EXPECT_EQ(shop.Loads(), 2000);
  toolkit.TakeLines();
  for (unsigned int color = 0; color < 2000; ++color) {
    EXPECT_EQ(bag.GetColorIcon("square.png", color), names[color]);
    EXPECT_EQ(names[color], "square.png_" + std::to_string(color));
  }
  EXPECT_EQ(first, names[5]);
  EXPECT_TRUE(toolkit.Took(""));
}

TEST_F(ColorIcons, DoNotKeepTheCallersName) {
  std::string base = "square.png";
  const char* const icon = bag.GetColorIcon(base.c_str(), 5);
  base = "another.png";
  base.clear();
  EXPECT_STREQ(icon, "square.png_5");
  const std::string again = "square.png";
  EXPECT_EQ(bag.GetColorIcon(again.c_str(), 5), icon);
  EXPECT_EQ(shop.Loads(), 1);
}

TEST_F(ColorIcons, AreMadeForEachBaseImage) {
  shop.Stock("dot.png", 1, 1);
  EXPECT_STREQ(bag.GetColorIcon("square.png", 5), "square.png_5");
  EXPECT_STREQ(bag.GetColorIcon("dot.png", 5), "dot.png_5");
  EXPECT_STREQ(bag.GetColorIcon("square.png", 5), "square.png_5");
  EXPECT_TRUE(toolkit.Took(R"(
    global_do 6030 LoadImage "square.png" image{23 3x3} | 0
    global_do 6031 DefineImage "square.png_5" image{23 3x3} | 0
    relmem &pixels
    global_do 6030 LoadImage "dot.png" image{23 1x1} | 0
    global_do 6031 DefineImage "dot.png_5" image{23 1x1} | 0
    relmem &pixels
  )"));
}

TEST_F(ColorIcons, MayHaveABaseImageWithoutAName) {
  shop.Stock("", 3, 3);
  EXPECT_STREQ(bag.GetColorIcon("", 5), "_5");
}

TEST_F(ColorIcons, AreNotMadeForNoColor) {
  EXPECT_EQ(bag.GetColorIcon("square.png", 0xFFFFFFFFu), nullptr);
  EXPECT_TRUE(toolkit.Took(""));
}

TEST_F(ColorIcons, AreTriedAgainWhenTheBaseImageCannotBeLoaded) {
  EXPECT_EQ(bag.GetColorIcon("missing.png", 5), nullptr);
  EXPECT_EQ(bag.GetColorIcon("missing.png", 5), nullptr);
  EXPECT_TRUE(toolkit.Took(R"(
    global_do 6030 LoadImage "missing.png" image{23 0x0} | 0 => 1
    global_do 6030 LoadImage "missing.png" image{23 0x0} | 0 => 1
  )"));
  shop.Stock("missing.png", 3, 3);
  EXPECT_STREQ(bag.GetColorIcon("missing.png", 5), "missing.png_5");
  EXPECT_EQ(shop.Releases(), 1);
}

TEST_F(ColorIcons, AnyResultOfLoadingButZeroIsAFailure) {
  for (const int result : {-1, 2, 0x7FFFFFFF}) {
    toolkit.When(DoingGlobally(6030)).Refuse(result).Once();
    EXPECT_EQ(bag.GetColorIcon("square.png", 5), nullptr) << result;
  }
  EXPECT_EQ(shop.Releases(), 0);
}

TEST_F(ColorIcons, OfAFailedLoadAreNotReleasedWhateverWasWritten) {
  toolkit.When(DoingGlobally(6030)).Refuse().Once().Run([](const uiox::Call& call) {
    auto& buffer = *static_cast<ImageBuffer*>(call.positional[1].Pointer());
    buffer.width = buffer.height = 77;
    buffer.pixels = reinterpret_cast<unsigned char*>(0xDEADBEEF);
  });
  EXPECT_EQ(bag.GetColorIcon("square.png", 5), nullptr);
  EXPECT_EQ(shop.Releases(), 0);
  EXPECT_TRUE(shop.TakeDefined().empty());
}

TEST_F(ColorIcons, AreKnownAlsoWhenTheyCannotBeDefined) {
  toolkit.When(DoingGlobally(6031)).Refuse();
  const char* const icon = bag.GetColorIcon("square.png", 5);
  EXPECT_STREQ(icon, "square.png_5");
  EXPECT_EQ(shop.Releases(), 1);
  EXPECT_EQ(bag.GetColorIcon("square.png", 5), icon);
  EXPECT_EQ(shop.Loads(), 1);
}

TEST_F(ColorIcons, SurviveALoadThatSaysNothing) {
  toolkit.FailCall(1, Failure::Ignored);
  EXPECT_STREQ(bag.GetColorIcon("square.png", 5), "square.png_5");
  EXPECT_TRUE(toolkit.Took(R"(
    global_do 6030 LoadImage "square.png" image{23 0x0} | 0
    global_do 6031 DefineImage "square.png_5" image{23 0x0} | 0
    relmem null
  )"));
}

TEST(ColorIconBag, IsOneInTheProcess) {
  std::vector<const ColorIconBag*> seen(8);
  std::vector<std::thread> threads;
  for (const ColorIconBag*& bag : seen) threads.emplace_back([&bag] { bag = &ColorIconBag::Get(); });
  for (std::thread& thread : threads) thread.join();
  for (const ColorIconBag* bag : seen) EXPECT_EQ(bag, &ColorIconBag::Get());
}

}  // namespace
}  // namespace color_tests
