// A balloon that cannot be built or shown: where it ends, and with what.
#include <tests/uicomps/dialogs/BalloonTest.h>

#include <algorithm>

namespace oxecad_ui {
namespace {

using BalloonFailure = BalloonTest;

TEST_F(BalloonFailure, WithoutASearchPathTheOtherCreatorIsUsed) {
  toolkit.When(Calling(Function::CreateSearchPath)).Result(-1);
  EXPECT_EQ(Show(), 32);
  EXPECT_TRUE(toolkit.Took(Spelled(R"(
    create_search_path 1 "oxecad" => -1
    create_device "BALLOON" "BALLOON"
    modify BALLOON:icon | 72=["error"] | 0
    ...)")));
}

TEST_F(BalloonFailure, ASearchPathOfZeroIsOne) {
  toolkit.When(Calling(Function::CreateSearchPath)).Result(0);
  EXPECT_EQ(Show(), 32);
  EXPECT_TRUE(toolkit.Took(Spelled(R"(
    create_search_path 1 "oxecad" => 0
    create_device_ext "BALLOON" "BALLOON" 0 => 1
    modify BALLOON:icon | 72=["error"] | 0
    ...)")));
}

TEST_F(BalloonFailure, TheTwoCreatorsFailWithOppositeResults) {
  toolkit.When(Calling(Function::CreateDeviceExt)).Result(0);
  EXPECT_EQ(Show(), -1);
  EXPECT_TRUE(toolkit.Took(Spelled(R"(
    create_search_path 1 "oxecad" => 7
    create_device_ext "BALLOON" "BALLOON" 7 => 0)")));
  toolkit.When(Calling(Function::CreateSearchPath)).Result(-1);
  toolkit.When(Calling(Function::CreateDevice)).Result(1);
  EXPECT_EQ(Show(), -1);
  EXPECT_TRUE(toolkit.Took(Spelled(R"(
    create_search_path 1 "oxecad" => -1
    create_device "BALLOON" "BALLOON" => 1)")));
}

TEST_F(BalloonFailure, AnyResultButZeroIsSuccessOfTheFirstCreator) {
  toolkit.When(Calling(Function::CreateDeviceExt)).Result(-1);
  EXPECT_EQ(Show(), 32);
  toolkit.TakeLines();
  EXPECT_EQ(Show(), 32);
  EXPECT_TRUE(toolkit.Took(Spelled("modify BALLOON:icon | 72=[\"error\"] | 0\n..."))) << "it is there";
}

TEST_F(BalloonFailure, AFailedCreationIsTriedAgainByEachBalloonAndASuccessByNone) {
  toolkit.When(Calling(Function::CreateDeviceExt)).Result(0).Times(2);
  EXPECT_EQ(Show(), -1);
  EXPECT_EQ(Show(), -1);
  toolkit.TakeLines();
  EXPECT_EQ(Show(), 32);
  const std::vector<std::string> third = toolkit.TakeLines();
  EXPECT_EQ(third[1], Spelled(R"(create_device_ext "BALLOON" "BALLOON" 7 => 1)"));
  EXPECT_EQ(Show(), 32);
  EXPECT_EQ(toolkit.TakeLines(), std::vector<std::string>(third.begin() + 2, third.end()));
}

/// A balloon with two buttons, each of its calls refused in turn.
class BalloonStep : public BalloonTest {
 protected:
  static constexpr unsigned kBoth = kOk | kCancel;

  BalloonStep() {
    CreateDialog();
    clean_ = LinesOf(kBoth, kOk);
  }

  /// The place (1: the first) of the first call whose line starts so.
  std::size_t CallOf(const std::string& start) const {
    const auto found = std::find_if(clean_.begin(), clean_.end(),
                                    [&](const std::string& line) { return line.starts_with(Spelled(start)); });
    EXPECT_NE(found, clean_.end()) << start;
    return static_cast<std::size_t>(found - clean_.begin()) + 1;
  }
  /// Refuses one call and expects the balloon to end with `result` after `last` calls, all others as ever.
  void ExpectEnd(std::size_t refused, std::size_t last, int result) {
    SCOPED_TRACE("refused: " + clean_.at(refused - 1));
    for (const Failure failure : {Failure::Refused, Failure::Scribbled}) {
      toolkit.FailCall(refused, failure);
      EXPECT_EQ(Show(kBoth, kOk), result);
      toolkit.FailNone();
      std::vector<std::string> took = toolkit.TakeLines();
      ASSERT_EQ(took.size(), last);
      took[refused - 1] = clean_[refused - 1];
      EXPECT_EQ(took, std::vector<std::string>(clean_.begin(), clean_.begin() + static_cast<std::ptrdiff_t>(last)));
    }
  }

  std::vector<std::string> clean_;
};

TEST_F(BalloonStep, IconAndTextEndItAtOnce) {
  ExpectEnd(CallOf("modify BALLOON:icon"), 1, -1);
  ExpectEnd(CallOf("modify BALLOON:message"), 2, -1);
}

TEST_F(BalloonStep, AllButtonsAreProcessedBeforeItEnds) {
  const std::size_t first = CallOf("modify BALLOON:abort | 3");
  const std::size_t last = CallOf("modify BALLOON:cancel | 3=1");
  EXPECT_EQ(last - first + 1, 10u) << "one call for each button, two for the shown ones";
  for (std::size_t call = first; call <= last; ++call) ExpectEnd(call, last, -1);
}

TEST_F(BalloonStep, EveryLaterStepUpToTheRunEndsItAtOnce) {
  const std::size_t first = CallOf("set_action BALLOON:BALLOON 5");
  const std::size_t last = CallOf("do BALLOON:BALLOON 2002");
  EXPECT_EQ(last - first + 1, 21u);
  for (std::size_t call = first; call <= last; ++call) ExpectEnd(call, call, -1);
}

TEST_F(BalloonStep, NothingAfterTheRunChangesTheResult) {
  const std::size_t run = CallOf("activate_device");
  ASSERT_EQ(clean_.size(), run + 3);
  for (std::size_t call = run + 1; call <= clean_.size(); ++call) {
    ExpectEnd(call, clean_.size(), static_cast<int>(kOk));
  }
}

TEST_F(BalloonStep, ABalloonAfterAFailedOneIsWhole) {
  toolkit.FailCall(CallOf("do BALLOON:BALLOON 2002"), Failure::Refused);
  EXPECT_EQ(Show(kBoth, kOk), -1);
  toolkit.FailNone();
  EXPECT_EQ(LinesOf(kBoth, kOk), clean_);
}

TEST_F(BalloonStep, NeedsACurrentDeviceAndComponent) {
  const std::size_t inquiry = CallOf("global_inquire | 4003");
  for (const Failure failure : {Failure::Ignored, Failure::NullAnswers}) {
    toolkit.TakeLines();
    toolkit.FailCall(inquiry, failure);
    EXPECT_EQ(Show(kBoth, kOk), -1);
    EXPECT_EQ(toolkit.Lines().size(), inquiry);
  }
  toolkit.FailNone();
  toolkit.TakeLines();
  toolkit.When(Inquiring(4003)).Give(4003, "dlg").Give(4004, nullptr);
  EXPECT_EQ(Show(kBoth, kOk, "field"), -1) << "an anchor does not help";
  EXPECT_EQ(toolkit.Lines().size(), inquiry);
  toolkit.TakeLines();
  toolkit.When(Inquiring(4003)).Give(4003, nullptr).Give(4004, "name");
  EXPECT_EQ(Show(kBoth, kOk), -1);
  EXPECT_EQ(toolkit.Lines().size(), inquiry);
}

TEST_F(BalloonStep, AnEmptyAnchorAndNoCurrentComponentEndIt) {
  toolkit.When(Inquiring(4003)).Give(4003, "dlg").Give(4004, nullptr);
  EXPECT_EQ(Show(kBoth, kOk, ""), -1);
}

TEST_F(BalloonStep, AStyleThatIsNotGivenIsNone) {
  toolkit.TakeLines();
  toolkit.When(Calling(Function::BalloonStyle));
  EXPECT_EQ(Show(kBoth, kOk), 32);
  EXPECT_TRUE(toolkit.Took(Spelled(R"(
    ...
    balloon_style 1 ->null
    modify BALLOON:abort | 519=null | 0
    ...)")));
}

TEST_F(BalloonStep, AnAnchorWithoutAnAnswerIsWithoutWidth) {
  for (const Failure failure : {Failure::Ignored, Failure::NullAnswers}) {
    toolkit.TakeLines();
    toolkit.FailCall(CallOf("do dlg:name 2003"), failure);
    EXPECT_EQ(Show(kBoth, kOk), 32);
    toolkit.FailNone();
    EXPECT_TRUE(toolkit.Took(Spelled("...\ndo BALLOON:BALLOON 2002 MoveAndResize 100 100 -32768 -32768 | 0\n...")));
  }
}

TEST_F(BalloonFailure, NoCallGoingWrongInAnyWayDoesHarm) {
  const auto prepare = [](RecordingToolkit& fresh) {
    fresh.When(Calling(Function::ActivateDevice)).Result(1);
    fresh.When(Inquiring(4003)).Give(4003, "dlg").Give(4004, "name");
  };
  test_support::ForEachFailure(RecordingToolkit::Nobody, prepare, [](RecordingToolkit&) { Show(255, 1, ""); });
}

TEST_F(BalloonFailure, EverythingGoingWrongEndsBeforeAnythingIsShown) {
  for (const Failure failure : {Failure::Refused, Failure::Scribbled}) {
    toolkit.FailAll(failure);
    EXPECT_EQ(Show(), -1);
    EXPECT_TRUE(toolkit.Took(Spelled(R"(
      create_search_path 1 "oxecad" => -1
      create_device "BALLOON" "BALLOON" => 1)")));
  }
}

}  // namespace
}  // namespace oxecad_ui
