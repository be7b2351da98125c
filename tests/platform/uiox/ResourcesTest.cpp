#include <gtest/gtest.h>
#include <uiox/Suite.h>

#include <unistd.h>
#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace {

using uiox::Suite;

class Resources : public testing::Test {
 protected:
  Resources() {
    suite.Reset();
    folder = std::filesystem::temp_directory_path() / ("uiox-" + std::to_string(::getpid()));
    std::filesystem::create_directories(folder);
  }
  ~Resources() override {
    suite.Reset();
    std::filesystem::remove_all(folder);
  }
  void Write(const std::string& name, const std::string& text) const { std::ofstream(folder / name) << text; }
  std::string Why(const std::string& json) {
    std::string why;
    EXPECT_EQ(suite.LoadDevice(json, "d", &why), nullptr) << json;
    EXPECT_EQ(suite.FindDevice("d"), nullptr);
    return why;
  }

  Suite& suite = Suite::Get();
  std::filesystem::path folder;
};

TEST_F(Resources, ADescriptionMakesTheComponents) {
  uiox::Device* device = suite.LoadDevice(R"({
    "title": "Nets", "arrangement": "row", "width": 500, "focus": "filter", "defaultButton": "ok",
    "properties": { "dock": "left" },
    "components": [
      { "name": "filter", "class": "InputPanel", "text": "\u00b5m \ud83d\ude00" },
      { "name": "panel", "class": "Panel", "arrangement": "column", "components": [
        { "name": "ok", "class": "PushButton", "label": "OK", "shown": false },
        { "name": "check", "class": "CheckButton", "checked": true, "sensitive": false } ] },
      { "name": "unit", "class": "OptionMenu", "items": [ "mm", { "name": "in", "label": "inch", "image": "i.png" } ],
        "selected": "in", "visibleItems": 2 },
      { "name": "icon", "class": "Icon", "images": [ "error" ], "background": 255 },
      { "name": "nets", "class": "Tree", "checkBoxes": true, "selection": "single", "rootShown": false,
        "headerShown": true, "label": { "title": "Net", "markup": false, "width": 200 },
        "columns": [ { "name": "a", "title": "A", "width": 24 }, { "name": "b", "markup": false } ] } ] })",
                                          "d");
  ASSERT_NE(device, nullptr);
  EXPECT_EQ(device->Label(), L"Nets");
  EXPECT_EQ(device->Layout(), uiox::Arrangement::Row);
  EXPECT_EQ(device->Geometry().width, 500);
  EXPECT_EQ(device->Focus(), "filter");
  EXPECT_EQ(device->DefaultButton(), "ok");
  ASSERT_NE(device->Property("dock"), nullptr);
  EXPECT_EQ(*device->Property("dock"), "left");
  EXPECT_EQ(device->Property("other"), nullptr);

  const std::wstring text{L'\u00b5', L'm', L' ', wchar_t(0xD83D), wchar_t(0xDE00)};
  EXPECT_EQ(device->Find("filter")->Text(), text) << "UTF-16 units, one in each place";
  EXPECT_EQ(device->Find("ok")->Label(), L"OK");
  EXPECT_FALSE(device->Find("ok")->Shown());
  EXPECT_EQ(device->Find("ok")->Parent(), device->Find("panel"));
  EXPECT_EQ(device->Find("panel")->Children().size(), 2u);
  EXPECT_EQ(device->Find("check")->CheckState(), 1u);
  EXPECT_FALSE(device->Find("check")->Sensitive());
  const uiox::Widget& unit = *device->Find("unit");
  ASSERT_EQ(unit.Items().size(), 2u);
  EXPECT_EQ(unit.Items()[1].label, L"inch");
  EXPECT_EQ(unit.Items()[1].image, "i.png");
  EXPECT_EQ(unit.SelectedItem(), "in");
  EXPECT_EQ(unit.VisibleItems(), 2);
  EXPECT_EQ(device->Find("icon")->Images(), std::vector<std::string>{"error"});
  EXPECT_EQ(device->Find("icon")->BackgroundColor(), 255u);

  const uiox::TreeWidget& tree = *device->FindTree("nets");
  EXPECT_TRUE(tree.Style().check_boxes);
  EXPECT_EQ(tree.Style().selection, uiox::SelectionMode::Single);
  EXPECT_FALSE(tree.Style().root_shown);
  EXPECT_TRUE(tree.Style().header_shown);
  EXPECT_EQ(tree.Style().label_column.title, L"Net");
  EXPECT_FALSE(tree.Style().label_column.markup);
  EXPECT_EQ(tree.Style().label_column.width, 200);
  ASSERT_EQ(tree.Style().columns.size(), 2u);
  EXPECT_TRUE(tree.Style().columns[0].markup);
  EXPECT_FALSE(tree.Style().columns[1].markup);
  EXPECT_EQ(tree.FindColumn("b"), 1u);
  EXPECT_EQ(tree.FindColumn("c"), uiox::kNoColumn);
}

TEST_F(Resources, WhatIsWrongIsNamedWithItsPlace) {
  EXPECT_EQ(Why(R"({"components": [{"name": "a", "class": "Panel"}, {"name": "b", "class": "Bottle"}]})"),
            "components[1].class: there is no class \"Bottle\"");
  EXPECT_EQ(Why(R"({"components": [{"class": "Panel"}]})"), "components[0].name: a name is missing");
  EXPECT_EQ(Why(R"({"components": [{"name": "p", "class": "Panel", "components": [{"name": "p", "class": "Icon"}]}]})"),
            "components[0].components[0].name: the name \"p\" is in use");
  EXPECT_EQ(Why(R"({"components": [{"name": "d", "class": "Icon"}]})"), "components[0].name: the name \"d\" is in use");
  EXPECT_EQ(Why(R"({"titel": "x"})"), "titel: there is no such key");
  EXPECT_EQ(Why(R"({"title": 5})"), "title: a text is expected");
  EXPECT_EQ(Why(R"({"width": -1})"), "width: a whole number from 0 to 1000000 is expected");
  EXPECT_EQ(Why(R"({"width": 18446744073709551615})"), "width: a whole number from 0 to 1000000 is expected");
  EXPECT_EQ(Why(R"({"width": 1.5})"), "width: a whole number from 0 to 1000000 is expected");
  EXPECT_EQ(Why(R"({"focus": "x"})"), "focus: there is no such component");
  EXPECT_EQ(Why(R"({"arrangement": "heap"})"), "arrangement: \"column\", \"row\" or \"stack\" is expected");
  EXPECT_EQ(Why(R"({"components": {}})"), "components: an array is expected");
  EXPECT_EQ(Why(R"({"components": [7]})"), "components[0]: an object is expected");
  EXPECT_EQ(Why(R"({"components": [{"name": "m", "class": "OptionMenu", "items": ["a"], "selected": "b"}]})"),
            "components[0].selected: there is no such item");
  EXPECT_EQ(Why(R"({"components": [{"name": "t", "class": "Tree", "columns": [{"name": "a"}, {"name": "a"}]}]})"),
            "components[0].columns[1].name: the name \"a\" is in use");
  EXPECT_EQ(Why(R"({"components": [{"name": "b", "class": "PushButton", "text": "x"}]})"),
            "components[0].text: there is no such key");
  EXPECT_EQ(Why("[]"), "an object is expected");
  EXPECT_EQ(Why(R"({"title": "a", "title": "b"})"), "the key \"title\" stands twice");
  EXPECT_EQ(Why(R"({"title": "a\u0000b"})"), "title: the text holds the character 0");
}

TEST_F(Resources, BrokenJsonIsRefused) {
  EXPECT_NE(Why("{"), "");
  EXPECT_NE(Why(""), "");
  EXPECT_NE(Why("{} x"), "");
  EXPECT_NE(Why("{\"title\": \"\xFF\"}"), "") << "no UTF-8";
  EXPECT_NE(Why(std::string(100000, '[')), "");
  EXPECT_NE(Why(std::string(100000, '[') + std::string(100000, ']')), "");
}

TEST_F(Resources, PanelsAreNestedUpToALimit) {
  const auto nested = [](int levels) {
    std::string json = "{}";
    for (int level = levels; level > 0; --level) {
      json = R"({"name": "p)" + std::to_string(level) + R"(", "class": "Panel", "components": [)" +
             (json == "{}" ? "" : json) + "]}";
    }
    return R"({"components": [)" + json + "]}";
  };
  EXPECT_NE(suite.LoadDevice(nested(32), "d"), nullptr);
  suite.DestroyDevice("d");
  EXPECT_NE(Why(nested(33)), "");
}

TEST_F(Resources, FilesStandBeforeTheEmbeddedDefaults) {
  Write("RenameDlg", R"({"title": "Mine"})");
  suite.Resources().Add(folder.string());
  uiox::Device* device = suite.CreateDevice("RenameDlg", "d");
  ASSERT_NE(device, nullptr);
  EXPECT_EQ(device->Label(), L"Mine");
  EXPECT_EQ(device->Resource(), "RenameDlg");
}

TEST_F(Resources, TheFirstDirectoryThatHasItWins) {
  std::filesystem::create_directories(folder / "second");
  Write("x.res", R"({"title": "first"})");
  Write("second/x.res", R"({"title": "second"})");
  Write("second/y.res", R"({"title": "only here"})");
  suite.Resources().Add((folder / "missing").string());
  suite.Resources().Add(folder.string());
  ::setenv("OXECAD_UIOX_PATH", (":" + (folder / "second").string() + ":").c_str(), 1);
  EXPECT_EQ(suite.CreateDevice("x.res", "d")->Label(), L"first");
  EXPECT_EQ(suite.CreateDevice("y.res", "e")->Label(), L"only here");
  ::unsetenv("OXECAD_UIOX_PATH");
}

TEST_F(Resources, ABadFileIsNamed) {
  Write("x.res", R"({"title": 5})");
  suite.Resources().Add(folder.string());
  std::string why;
  EXPECT_EQ(suite.CreateDevice("x.res", "d", &why), nullptr);
  EXPECT_EQ(why, "resource \"x.res\": title: a text is expected");
  EXPECT_EQ(suite.CreateDevice("y.res", "d", &why), nullptr);
  EXPECT_EQ(why, "there is no resource \"y.res\"");
}

TEST_F(Resources, NamesStayInTheirDirectory) {
  std::filesystem::create_directories(folder / "inside");
  Write("x.res", "{}");
  suite.Resources().Add((folder / "inside").string());
  std::string bytes;
  for (const char* name : {"../x.res", "..", ".", "", "/etc/hostname", "inside/../x.res"}) {
    EXPECT_FALSE(suite.Resources().Read(name, bytes)) << name;
  }
  suite.Resources().Clear();
  suite.Resources().Add(folder.string());
  EXPECT_FALSE(suite.Resources().Read("inside", bytes)) << "a directory is no file";
  EXPECT_TRUE(suite.Resources().Read("x.res", bytes));
}

}  // namespace
