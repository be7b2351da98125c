#include <oxk/ecad/CompareColorVis.h>

#include <gtest/gtest.h>

#include <type_traits>

using oxk::ecad::CompareColorVis;

static_assert(std::is_same_v<std::underlying_type_t<CompareColorVis::ShowMode>, std::int32_t>);

TEST(CompareColorVis, ShowModesHaveTheirNumbers) {
  EXPECT_EQ(CompareColorVis::Mixed, -1);
  EXPECT_EQ(CompareColorVis::Both, 0);
  EXPECT_EQ(CompareColorVis::OnlyA, 1);
  EXPECT_EQ(CompareColorVis::OnlyB, 2);
  EXPECT_EQ(CompareColorVis::AMinusB, 3);
  EXPECT_EQ(CompareColorVis::BMinusA, 4);
  EXPECT_EQ(CompareColorVis::Overlap, 5);
  EXPECT_EQ(CompareColorVis::Diff, 6);
}
