#include <oxcore/ColorPickerDlg.h>

#include <gtest/gtest.h>
#include <oxcore/ColorPicker.h>
#include <rapidcheck/gtest.h>

#include <deque>
#include <type_traits>

using namespace oxcore;

static_assert(std::has_virtual_destructor_v<ColorPickerDlg>);

namespace {

class ColorPickerDlgTest : public testing::Test {
 protected:
  ColorPickerDlgTest() { ResetColorPicker(); }
  ~ColorPickerDlgTest() override { ResetColorPicker(); }

  static unsigned int Show(unsigned int initial = 0) { return ColorPickerDlg(nullptr, L"").ShowDialog(initial); }

  int m_window = 0;
  Mainframe* const m_parent = reinterpret_cast<Mainframe*>(&m_window);  // its address is all that counts
};

}  // namespace

TEST_F(ColorPickerDlgTest, IsCancelledWithoutAnAnswer) { EXPECT_EQ(Show(0x00336699), 0xFFFFFFFFu); }

TEST_F(ColorPickerDlgTest, TakesTheAnswersInTheirOrder) {
  for (const unsigned int color : {0x000000FFu, 0xFFFFFFFFu, 0u}) QueueColorAnswer(color);
  EXPECT_EQ(CountColorAnswers(), 3u);
  EXPECT_EQ(Show(), 0x000000FFu);
  EXPECT_EQ(Show(), 0xFFFFFFFFu);
  EXPECT_EQ(Show(), 0u);
  EXPECT_EQ(CountColorAnswers(), 0u);
  EXPECT_EQ(Show(), 0xFFFFFFFFu);
}

TEST_F(ColorPickerDlgTest, ShowsTheSameDialogAgain) {
  QueueColorAnswer(1);
  QueueColorAnswer(2);
  ColorPickerDlg dialog(m_parent, std::string());
  EXPECT_EQ(dialog.ShowDialog(5), 1u);
  EXPECT_EQ(dialog.ShowDialog(1), 2u);
}

TEST_F(ColorPickerDlgTest, RemembersWhatWasAsked) {
  ColorPickerDlg(m_parent, std::string("Layer \xC2\xB5 \xF0\x9F\x98\x80")).ShowDialog(0x00336699);
  ColorPickerDlg(nullptr, std::wstring(L"Net")).ShowDialog(0xFFFFFFFF);
  const auto requests = TakeColorPickerRequests();
  ASSERT_EQ(requests.size(), 2u);
  EXPECT_EQ(requests[0].parent, m_parent);
  EXPECT_EQ(requests[0].title, (std::wstring{L'L', L'a', L'y', L'e', L'r', L' ', 0xB5, L' ', 0xD83D, 0xDE00}));
  EXPECT_EQ(requests[0].initialColor, 0x00336699u);
  EXPECT_EQ(requests[1].parent, nullptr);
  EXPECT_EQ(requests[1].title, L"Net");
  EXPECT_EQ(requests[1].initialColor, 0xFFFFFFFFu);
  EXPECT_TRUE(TakeColorPickerRequests().empty());
}

TEST_F(ColorPickerDlgTest, RemembersTheLatestThousandOrSo) {
  for (unsigned int i = 0; i < 1025; ++i) Show(i);
  const auto requests = TakeColorPickerRequests();
  ASSERT_EQ(requests.size(), 1024u);
  EXPECT_EQ(requests.front().initialColor, 1u);
  EXPECT_EQ(requests.back().initialColor, 1024u);
}

TEST_F(ColorPickerDlgTest, LeavesTheAnswerToAPickerWhereThereIsOne) {
  QueueColorAnswer(7);
  EXPECT_FALSE(SetColorPicker([this](const ColorPickerRequest& request) {
    EXPECT_EQ(request.parent, m_parent);
    EXPECT_EQ(request.title, L"Title");
    return request.initialColor + 1;
  }));
  EXPECT_EQ(ColorPickerDlg(m_parent, L"Title").ShowDialog(41), 42u);
  EXPECT_EQ(CountColorAnswers(), 1u);
  EXPECT_EQ(TakeColorPickerRequests().size(), 1u);

  EXPECT_TRUE(SetColorPicker(nullptr));
  EXPECT_EQ(Show(), 7u);
}

TEST_F(ColorPickerDlgTest, PickerMayReplaceItself) {
  SetColorPicker([](const ColorPickerRequest&) {
    SetColorPicker(nullptr);
    return 3u;
  });
  EXPECT_EQ(Show(), 3u);
  EXPECT_EQ(Show(), kNoPickedColor);
}

TEST_F(ColorPickerDlgTest, PickerMayShowAnotherDialog) {
  SetColorPicker([](const ColorPickerRequest& request) {
    return request.initialColor == 0 ? 10u : ColorPickerDlg(nullptr, L"").ShowDialog(request.initialColor - 1) + 1;
  });
  EXPECT_EQ(Show(2), 12u);
}

RC_GTEST_FIXTURE_PROP(ColorPickerDlgTest, AnswersAsAQueueDoes, (const std::vector<bool>& asked)) {
  ResetColorPicker();
  std::deque<unsigned int> model;
  unsigned int next = 0;
  for (const bool ask : asked) {
    if (!ask) {
      model.push_back(next);
      QueueColorAnswer(next++);
      continue;
    }
    const unsigned int expected = model.empty() ? kNoPickedColor : model.front();
    if (!model.empty()) model.pop_front();
    RC_ASSERT(Show() == expected);
  }
  RC_ASSERT(CountColorAnswers() == model.size());
}
