#include <oxcore/Help.h>

#include <gtest/gtest.h>

#include <vector>

using oxkutils::Symbol;

TEST(Help, WithoutAViewerDoesNothing) {
  EXPECT_FALSE(oxcore::SetHelpViewer(nullptr));
  oxcore::ShowHelp(Symbol("topic"));
}

TEST(Help, ReachesTheLatestViewer) {
  std::vector<Symbol> first;
  std::vector<Symbol> second;
  oxcore::SetHelpViewer([&](const Symbol& topic) { first.push_back(topic); });
  oxcore::ShowHelp(Symbol("one"));
  const auto before = oxcore::SetHelpViewer([&](const Symbol& topic) { second.push_back(topic); });
  oxcore::ShowHelp(Symbol("two"));
  before(Symbol("three"));
  oxcore::SetHelpViewer(nullptr);
  EXPECT_EQ(first, (std::vector<Symbol>{Symbol("one"), Symbol("three")}));
  EXPECT_EQ(second, std::vector<Symbol>{Symbol("two")});
}

TEST(Help, HasNoTopicOfNoName) {
  int shown = 0;
  oxcore::SetHelpViewer([&](const Symbol&) { ++shown; });
  oxcore::ShowHelp(Symbol::EMPTY);
  oxcore::SetHelpViewer(nullptr);
  EXPECT_EQ(shown, 0);
}

TEST(Help, ViewerMayReplaceItself) {
  int shown = 0;
  oxcore::SetHelpViewer([&shown](const Symbol&) {
    oxcore::SetHelpViewer(nullptr);
    ++shown;
  });
  oxcore::ShowHelp(Symbol("one"));
  oxcore::ShowHelp(Symbol("two"));
  EXPECT_EQ(shown, 1);
}
