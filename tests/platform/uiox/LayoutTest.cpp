#include <gtest/gtest.h>
#include <uiox/Suite.h>

namespace {

using uiox::Rect;
using uiox::Suite;

class Layout : public testing::Test {
 protected:
  Layout() { suite.Reset(); }
  ~Layout() override { suite.Reset(); }
  uiox::Device& Load(const char* json) {
    std::string why;
    uiox::Device* device = suite.LoadDevice(json, "d", &why);
    EXPECT_NE(device, nullptr) << why;
    return *device;
  }
  Suite& suite = Suite::Get();
};

TEST_F(Layout, AColumnStandsBelowEachOther) {
  uiox::Device& device = Load(R"({"components": [
    {"name": "a", "class": "InputPanel", "width": 100, "height": 20},
    {"name": "b", "class": "InputPanel", "width": 50, "height": 30}]})");
  EXPECT_EQ(device.Find("a")->Geometry(), (Rect{8, 8, 100, 20}));
  EXPECT_EQ(device.Find("b")->Geometry(), (Rect{8, 34, 50, 30}));
  EXPECT_EQ(device.Geometry(), (Rect{0, 0, 116, 72}));
}

TEST_F(Layout, ARowStandsBesideEachOther) {
  uiox::Device& device = Load(R"({"arrangement": "row", "components": [
    {"name": "a", "class": "InputPanel", "width": 100, "height": 20},
    {"name": "b", "class": "InputPanel", "width": 50, "height": 30}]})");
  EXPECT_EQ(device.Find("b")->Geometry(), (Rect{114, 8, 50, 30}));
  EXPECT_EQ(device.Geometry(), (Rect{0, 0, 172, 46}));
}

TEST_F(Layout, WhatIsHiddenTakesNoRoom) {
  uiox::Device& device = Load(R"({"components": [
    {"name": "a", "class": "InputPanel", "width": 100, "height": 20},
    {"name": "b", "class": "InputPanel", "width": 50, "height": 30}]})");
  device.Find("a")->SetShown(false);
  device.UpdateLayout();
  EXPECT_EQ(device.Find("b")->Geometry(), (Rect{8, 8, 50, 30}));
  EXPECT_EQ(device.Geometry(), (Rect{0, 0, 66, 46}));
}

TEST_F(Layout, WhatIsPlacedByHandStays) {
  uiox::Device& device = Load(R"({"components": [{"name": "a", "class": "PushButton"}]})");
  device.Find("a")->SetGeometry({300, 200, 10, 10});
  device.SetGeometry({5, 6, 700, 500});
  device.UpdateLayout();
  EXPECT_EQ(device.Find("a")->Geometry(), (Rect{300, 200, 10, 10}));
  EXPECT_EQ(device.Geometry(), (Rect{5, 6, 700, 500}));
  EXPECT_EQ(suite.GeometryOnScreen(*device.Find("a")), (Rect{305, 206, 10, 10}));
}

TEST_F(Layout, PanelsHoldTheirComponents) {
  uiox::Device& device = Load(R"({"components": [
    {"name": "top", "class": "Label", "height": 12, "width": 12},
    {"name": "p", "class": "Panel", "arrangement": "row", "components": [
      {"name": "a", "class": "Icon"}, {"name": "b", "class": "Icon"}]}]})");
  EXPECT_EQ(device.Find("p")->Geometry(), (Rect{8, 26, 70, 32}));
  EXPECT_EQ(device.Find("b")->Geometry(), (Rect{46, 26, 32, 32}));
}

}  // namespace
