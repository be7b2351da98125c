#include <gtest/gtest.h>
#include <uiox/Codes.h>

#include <set>
#include <string>

namespace {

using uiox::AllCodes;
using uiox::CodeGroup;
using uiox::CodeInfo;
using uiox::CodeName;
using uiox::FindCode;

constexpr CodeGroup kGroups[] = {
    CodeGroup::Operation,          CodeGroup::GlobalOperation, CodeGroup::NodeOption,       CodeGroup::NodeAttribute,
    CodeGroup::ComponentAttribute, CodeGroup::CellAttribute,   CodeGroup::ControlAttribute, CodeGroup::Reason,
    CodeGroup::GlobalCode};

TEST(Codes, NamesAreThoseOfTheTables) {
  EXPECT_STREQ(CodeName(CodeGroup::Operation, 2029), "AddNode");
  EXPECT_STREQ(CodeName(CodeGroup::Operation, 2331), "InsertNode");
  EXPECT_STREQ(CodeName(CodeGroup::GlobalOperation, 6031), "DefineImage");
  EXPECT_STREQ(CodeName(CodeGroup::NodeOption, 1024), "UserData");
  EXPECT_STREQ(CodeName(CodeGroup::ComponentAttribute, 519), "BalloonStyle");
  EXPECT_STREQ(CodeName(CodeGroup::Reason, 35), "CellSelect");
  EXPECT_STREQ(CodeName(CodeGroup::GlobalCode, 4004), "CurrentComponent");
}

TEST(Codes, ANumberMeansWhatItsTableSays) {
  EXPECT_STREQ(CodeName(CodeGroup::NodeAttribute, 3), "FirstInt");
  EXPECT_STREQ(CodeName(CodeGroup::ComponentAttribute, 3), "Shown");
  EXPECT_STREQ(CodeName(CodeGroup::Reason, 3), "Select");
  EXPECT_EQ(CodeName(CodeGroup::CellAttribute, 3), nullptr);
}

TEST(Codes, NumbersOutsideATableAreNone) {
  for (const CodeGroup group : kGroups) {
    for (const int code : {0, -1, 1, 1999, 2028, 7000, 2147483647, -2147483647 - 1}) {
      EXPECT_EQ(FindCode(group, code), nullptr) << uiox::GroupName(group) << ' ' << code;
    }
  }
  EXPECT_EQ(FindCode(CodeGroup::None, 2), nullptr);
}

TEST(Codes, EveryRowIsFoundAndWellFormed) {
  for (const CodeGroup group : kGroups) {
    std::set<int> codes;
    EXPECT_GT(AllCodes(group).count, 0u);
    for (const CodeInfo& row : AllCodes(group)) {
      EXPECT_EQ(FindCode(group, row.code), &row);
      EXPECT_TRUE(codes.insert(row.code).second) << row.name;
      EXPECT_EQ(std::string(row.shape).find_first_not_of("swiuplSWIUPL<>0."), std::string::npos) << row.name;
      EXPECT_NE(std::string(row.meaning), "") << row.name;
    }
  }
}

TEST(Codes, OnlyOperationsWithOptionListsNameATable) {
  for (const CodeInfo& row : AllCodes(CodeGroup::Operation)) {
    const bool has_options = std::string(row.shape).find_first_of("<>") != std::string::npos;
    EXPECT_EQ(row.options != CodeGroup::None, has_options) << row.name;
  }
}

}  // namespace
