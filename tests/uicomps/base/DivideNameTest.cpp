#include <gtest/gtest.h>
#include <uicomps/base/BaseTree.h>

#include <string>

namespace oxecad_ui {
namespace {

struct NameRow {
  const char* fact;
  const char* full;
  const char* rest;
  const char* head;
};

class DivideName : public testing::TestWithParam<NameRow> {};

TEST_P(DivideName, SplitsOffTheParent) {
  const NameRow& row = GetParam();
  std::string rest = "before";
  std::string head = "before";
  BaseTree::DivideName(row.full, rest, head);
  EXPECT_EQ(rest, row.rest);
  EXPECT_EQ(head, row.head);
}

INSTANTIATE_TEST_SUITE_P(
    Names, DivideName,
    testing::Values(NameRow{"root_has_no_parent", "root", "root", ""},
                    NameRow{"plain_name_lives_under_root", "abc", "abc", "root"},
                    NameRow{"empty_name_lives_under_root", "", "", "root"},
                    NameRow{"first_slash_divides", "a/b/c", "b/c", "a"},
                    NameRow{"child_of_root_by_name", "root/x", "x", "root"},
                    NameRow{"root_in_other_case_is_a_plain_name", "Root", "Root", "root"},
                    NameRow{"longer_than_root_is_a_plain_name", "roots", "roots", "root"},
                    NameRow{"leading_slash_has_an_empty_parent", "/a", "a", ""},
                    NameRow{"trailing_slash_has_an_empty_rest", "a/", "", "a"}, NameRow{"slash_alone", "/", "", ""},
                    NameRow{"two_slashes_divide_at_the_first", "a//b", "/b", "a"},
                    NameRow{"groups_at_the_start", "groups/x", "x", "groups"},
                    NameRow{"groups_keeps_deeper_slashes", "groups/x/y", "x/y", "groups"},
                    NameRow{"groups_with_nothing_behind", "groups/", "", "groups"},
                    NameRow{"groups_without_slash_is_a_plain_name", "groups", "groups", "root"},
                    NameRow{"groups_elsewhere_cuts_at_the_fixed_place", "a/groups/b", "s/b", "a/grou"},
                    NameRow{"groups_one_later_cuts_at_the_fixed_place", "xgroups/y", "/y", "xgroup"},
                    NameRow{"groups_at_the_end_cuts_at_the_fixed_place", "mygroups/", "s/", "mygrou"},
                    NameRow{"groups_in_other_case_is_a_common_parent", "Groups/x", "x", "Groups"},
                    NameRow{"short_name_with_slash", "ab/c", "c", "ab"},
                    NameRow{"utf8_stays_whole", "\xC3\xA4/\xC3\xB6", "\xC3\xB6", "\xC3\xA4"}),
    [](const testing::TestParamInfo<NameRow>& row) { return row.param.fact; });

}  // namespace
}  // namespace oxecad_ui
