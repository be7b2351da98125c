// What 2202 hands out goes back by itself, on every path.
#include <gtest/gtest.h>
#include <tests/support/RecordingToolkit.h>
#include <uicomps/toolkit/ChildNames.h>
#include <uicomps/toolkit/Lent.h>

#include <stdexcept>
#include <string>
#include <type_traits>
#include <vector>

namespace oxecad_ui::wire {
namespace {

using test_support::Doing;
using test_support::Failure;
using test_support::RecordingToolkit;

constexpr Widget kTree{"dev", "tree"};

class Lent : public testing::Test {
 protected:
  RecordingToolkit toolkit;
};

TEST_F(Lent, TextGoesBackWhenItsHolderEnds) {
  toolkit.When(Doing(2202)).Give(2, L"label");
  {
    const LentLabel label(kTree, "n");
    EXPECT_EQ(label.View(), L"label");
    EXPECT_EQ(label.Copy(), L"label");
    EXPECT_TRUE(toolkit.Took(R"(do dev:tree 2202 GetNode "n" | 2->L"label" | 0)"));
  }
  EXPECT_TRUE(toolkit.Took(R"(free 2 L"label" | 0)"));
}

TEST_F(Lent, TextGoesBackPastAnException) {
  toolkit.When(Doing(2202)).Give(282, "net");
  EXPECT_THROW(
      {
        const LentType type(kTree, "n");
        throw std::runtime_error("in between");
      },
      std::runtime_error);
  EXPECT_TRUE(toolkit.TakeComplaints().empty());
}

TEST_F(Lent, NullTextGoesBackToo) {
  { EXPECT_EQ(LentParent(kTree, "n").Copy(), ""); }
  toolkit.FailAll(Failure::Scribbled);
  { EXPECT_EQ(LentLabel(kTree, "n").Copy(), L""); }
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2202 GetNode "n" | 283->null | 0
    free 283 null | 0
    do dev:tree 2202 GetNode "n" | 2=? | 0 => 1
    free 2 null | 0 => 1)"));
}

TEST_F(Lent, ItIsTheFilledPlaceThatGoesBack) {
  std::vector<void*> filled;
  std::vector<void*> returned;
  const auto note = [](std::vector<void*>& places) {
    return [&places](const uiox::Call& call) {
      const uiox::Option& option = call.options[0];
      places.push_back(option.code == 284 ? option.array.Pointer() : option.value.Pointer());
    };
  };
  toolkit.When(Doing(2202).With(2)).Give(2, L"label").Run(note(filled));
  toolkit.When(Doing(2202).With(284)).Give(284, {"a"}).Run(note(filled));
  toolkit.WriteOnly([&](const uiox::Call& call) {
    if (call.function == uiox::Function::Free) note(returned)(call);
    return false;
  });
  { const LentLabel label(kTree, "n"); }
  { const LentNames names(kTree, "n", Release::Always); }
  EXPECT_EQ(returned.size(), 2u);
  EXPECT_EQ(returned, filled);
}

TEST_F(Lent, HoldersAreNotCopied) {
  EXPECT_FALSE(std::is_copy_constructible_v<LentLabel>);
  EXPECT_FALSE(std::is_copy_assignable_v<LentLabel>);
  EXPECT_FALSE(std::is_copy_constructible_v<LentNames>);
  EXPECT_FALSE(std::is_copy_assignable_v<LentNames>);
}

struct ReleaseRow {
  Release release;
  const char* with_names;
  const char* without_names;
  const char* failed;
};

TEST_F(Lent, ListGoesBackWhenItsHolderIsToldTo) {
  constexpr const char* kNothing = "";
  constexpr const char* kEmpty = "free 284 [] | 0";
  constexpr const char* kNames = "free 284 [\"a\" \"b\"] | 0";
  for (const ReleaseRow& row : {ReleaseRow{Release::Always, kNames, kEmpty, kEmpty},
                                ReleaseRow{Release::AfterSuccess, kNames, kEmpty, kNothing},
                                ReleaseRow{Release::WhenNotEmpty, kNames, kNothing, kNothing}}) {
    const auto released = [&] {
      { const LentNames names(kTree, "n", row.release); }
      const std::vector<std::string> lines = toolkit.TakeLines();
      return lines.size() == 2 ? lines.back() : std::string();
    };
    toolkit.ForgetRules();
    EXPECT_EQ(released(), row.without_names);
    toolkit.When(Doing(2202)).Give(284, {"a", "b"});
    EXPECT_EQ(released(), row.with_names);
    toolkit.When(Doing(2202)).Refuse().Scribble();
    EXPECT_EQ(released(), row.failed);
  }
}

TEST_F(Lent, ListShowsItsNames) {
  toolkit.When(Doing(2202)).Give(284, {"a", nullptr, "b"});
  const LentNames names(kTree, "n", Release::Always);
  EXPECT_TRUE(names.GetResult());
  EXPECT_EQ(names.Count(), 3);
  std::vector<std::string> seen;
  for (const char* name : names) seen.push_back(name ? name : "null");
  EXPECT_EQ(seen, (std::vector<std::string>{"a", "null", "b"}));
  EXPECT_STREQ(names.Data()[2], "b");
}

TEST_F(Lent, CopiedNamesOutliveTheListAndLeaveNullsOut) {
  toolkit.When(Doing(2202)).Give(284, {"first", nullptr, "", "a name that is a good deal longer than the others"});
  const ChildNames names(kTree, "n");
  EXPECT_TRUE(toolkit.TakeComplaints().empty()) << "the list is back already";
  ASSERT_EQ(names.Size(), 3u);
  EXPECT_STREQ(names[0], "first");
  EXPECT_STREQ(names[1], "");
  EXPECT_STREQ(names[2], "a name that is a good deal longer than the others");
  EXPECT_FALSE(names.IsEmpty());
}

TEST_F(Lent, CopiedNamesOfNoChildrenAreNone) {
  EXPECT_TRUE(ChildNames(kTree, "n").IsEmpty());
  toolkit.When(Doing(2202)).Give(284, {nullptr, nullptr});
  EXPECT_TRUE(ChildNames(kTree, "n").IsEmpty());
  toolkit.When(Doing(2202)).GiveNullArray(284, -4);
  EXPECT_TRUE(ChildNames(kTree, "n").IsEmpty());
  toolkit.FailAll(Failure::Scribbled);
  const ChildNames names(kTree, "n");
  EXPECT_TRUE(names.IsEmpty());
  EXPECT_EQ(names.begin(), names.end());
}

TEST_F(Lent, ACountAloneHandsOutNothing) {
  toolkit.When(Doing(2202)).Give(284, {"a", "b"});
  EXPECT_EQ(ChildCount(kTree, "n"), 2);
  EXPECT_TRUE(toolkit.Took(R"(do dev:tree 2202 GetNode "n" | 284->count 2 | 0)"));
}

}  // namespace
}  // namespace oxecad_ui::wire
