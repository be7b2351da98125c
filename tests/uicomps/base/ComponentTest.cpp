#include <gtest/gtest.h>
#include <tests/support/RecordingToolkit.h>
#include <uicomps/base/Component.h>

#include <string>
#include <type_traits>

namespace oxecad_ui {
namespace {

class Plain : public Component {
 public:
  using Component::Component;
  void Init() override {}
};

TEST(Component, KeepsCopiesOfBothNames) {
  std::string device = "dev";
  std::string name = "tree";
  const Plain component(device.c_str(), name.c_str());
  device[0] = name[0] = '?';
  EXPECT_STREQ(component.GetDevice(), "dev");
  EXPECT_STREQ(component.GetName(), "tree");
}

TEST(Component, CopiesItsNames) {
  Plain original("dev", "tree");
  const Plain copy(original);
  original = Plain("other", "list");
  EXPECT_STREQ(copy.GetDevice(), "dev");
  EXPECT_STREQ(copy.GetName(), "tree");
  EXPECT_NE(copy.GetName(), original.GetName());
}

TEST(Component, TakesTheNamesOfWhatIsAssigned) {
  Plain target("d", "n");
  const Plain source("device with a longer name than fits into a short string", "t");
  target = source;
  EXPECT_STREQ(target.GetDevice(), source.GetDevice());
  EXPECT_STREQ(target.GetName(), "t");
}

TEST(Component, SurvivesAssignmentToItself) {
  Plain component("dev", "tree");
  const Plain& same = component;
  component = same;
  EXPECT_STREQ(component.GetDevice(), "dev");
  EXPECT_STREQ(component.GetName(), "tree");
}

TEST(Component, CallsNoToolkit) {
  test_support::RecordingToolkit toolkit;
  {
    Plain component("dev", "tree");
    const Plain copy(component);
    component = copy;
  }
  EXPECT_TRUE(toolkit.Took(""));
}

TEST(Component, LeavesInitToItsHeirsAndIsDestroyedVirtually) {
  EXPECT_TRUE(std::is_abstract_v<Component>);
  EXPECT_TRUE(std::has_virtual_destructor_v<Component>);
}

TEST(Component, KeepsUtf8Names) {
  const Plain component("Ger\xC3\xA4t", "B\xC3\xA4um");
  EXPECT_STREQ(component.GetDevice(), "Ger\xC3\xA4t");
  EXPECT_STREQ(component.GetName(), "B\xC3\xA4um");
}

}  // namespace
}  // namespace oxecad_ui
