// What lies behind the interface: the counter of indexes and the two maps. Compiled without access control.
#include <tests/uicomps/input/InputVerifierTest.h>

namespace oxecad_ui {
namespace {

class InputIndexes : public InputVerifierTest {
 protected:
  InputIndexes() { InputVerifier::s_index = 0; }
};

TEST(InputIndex, StartsAtNothing) { EXPECT_EQ(InputVerifier::s_index, 0u); }

TEST_F(InputIndexes, CountControlsWhoseClassFits) {
  Add("width");
  EXPECT_EQ(InputVerifier::s_index, 1u);
  Add("width");
  EXPECT_EQ(InputVerifier::s_index, 1u) << "a name that is taken costs nothing";
  toolkit.FailCall(1, Failure::Refused);
  Add("height");
  toolkit.When(Retrieving(282).On("button")).Give(282, "PushButton");
  Add("button");
  EXPECT_EQ(InputVerifier::s_index, 1u) << "nor does a class that does not fit";
  for (std::size_t refused = 2; refused <= 4; ++refused) {
    toolkit.FailCall(refused, Failure::Refused);
    Add("height");
    EXPECT_EQ(InputVerifier::s_index, refused) << "a refused registration spends one";
  }
  verifier.Clear();
  EXPECT_EQ(InputVerifier::s_index, 4u);
}

TEST_F(InputIndexes, HaveSixtyFourBitsOnTheWire) {
  static_assert(sizeof InputVerifier::s_index == 8);
  InputVerifier::s_index = 0xFFFF'FFFF;
  ASSERT_TRUE(Add("width"));
  EXPECT_TRUE(toolkit.Took("...\nadd_action dlg:width 8 Input f1 &verifier 4294967296\n..."));
  toolkit.Fire("width", kFocusIn);
  EXPECT_TRUE(toolkit.Took("retrieve dlg:width | 15->L\"1\" | 0")) << "the callback finds its control";
}

TEST_F(InputIndexes, LeadToTheRecordOfTheControl) {
  GiveText(L"5");
  ASSERT_TRUE(Add("width"));
  ASSERT_EQ(verifier.m_indices.size(), 1u);
  ASSERT_EQ(verifier.m_indices.begin()->first, oxkutils::Symbol("width"));
  ASSERT_EQ(verifier.m_controls.count(verifier.m_indices.begin()->second), 1u);
  const auto& control = verifier.m_controls.begin()->second;
  EXPECT_EQ(control.name, oxkutils::Symbol("width"));
  EXPECT_EQ(control.test, test);
  EXPECT_EQ(control.lastGoodText, L"5");
  EXPECT_EQ(control.focusText, L"5");
  EXPECT_EQ(verifier.m_device, oxkutils::Symbol("dlg"));
}

TEST_F(InputIndexes, WithoutARecordKeepTheirName) {
  ASSERT_TRUE(Add("width"));
  verifier.m_controls.clear();
  toolkit.TakeLines();
  verifier.RemoveControl("width");
  EXPECT_TRUE(toolkit.Took("")) << "no callback is removed";
  EXPECT_EQ(verifier.m_indices.size(), 1u) << "the name stays";
  EXPECT_FALSE(verifier.GetInputTest("width"));
  EXPECT_FALSE(Add("width")) << "and is taken";
  verifier.Clear();
  EXPECT_TRUE(toolkit.Took(""));
  EXPECT_TRUE(verifier.m_indices.empty());
}

TEST_F(InputIndexes, AreForgottenBeforeTheCallbacksAreRemovedOneByOneAndAfterAllAreCleared) {
  int removals = 0;
  std::size_t known = 0;
  toolkit.When(test_support::Calling(uiox::Function::RemoveAction)).Run([&](const uiox::Call&) {
    ++removals;
    EXPECT_EQ(verifier.m_indices.size(), known);
    EXPECT_EQ(verifier.m_controls.size(), known);
  });
  for (const char* const name : {"width", "height", "depth"}) Add(name);
  known = 2;
  verifier.RemoveControl("width");
  verifier.Clear();
  EXPECT_EQ(removals, 9);
  EXPECT_TRUE(verifier.m_indices.empty());
  EXPECT_TRUE(verifier.m_controls.empty());
}

TEST_F(InputIndexes, AnswerTheCallbacksOfTheirControl) {
  ASSERT_TRUE(Add("width"));
  verifier.OnFocusIn(1);
  GiveText(L"9");
  verifier.OnFocusOut(1);
  verifier.OnInput(1);
  verifier.OnInput(2);
  EXPECT_EQ(script->typed, (std::vector<std::wstring>{L"9"}));
  EXPECT_EQ(script->left, (std::vector<std::wstring>{L"9"}));
  EXPECT_EQ(verifier.m_controls.begin()->second.lastGoodText, L"9");
  EXPECT_EQ(verifier.m_controls.begin()->second.focusText, L"1");
}

}  // namespace
}  // namespace oxecad_ui
