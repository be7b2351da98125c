// How records become nodes: one by one, before a sibling, and the whole tree at once.
#include <tests/uicomps/userdata/UserDataTreeTest.h>

namespace oxecad_ui {
namespace {

using AddingUserData = UserDataTreeTest;

TEST_F(AddingUserData, PassesTheRecordAndThenItsState) {
  EXPECT_TRUE(tree.AddNode(Record("nets/N1", L"Net 1", "leaf", Word(0xda7a), Tree::Checked, true)));
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2029 AddNode "nets/N1" L"Net 1" "nets" "leaf" | 2=L"" 128=1 256=1 512=0 1024=0xda7a | 0
    do dev:tree 2201 SetNode "nets/N1" | 31=1 | 0)"));
}

TEST_F(AddingUserData, ShowsTheNamesRestWhereTheLabelIsEmpty) {
  EXPECT_TRUE(tree.AddNode(Record("nets/N\xC3\xA4/1", L"", "leaf")));
  EXPECT_TRUE(tree.AddNode(Record("nets", L"", "branch", nullptr, Tree::PartlyChecked)));
  EXPECT_TRUE(tree.AddNode(Record("root", L"", "")));
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2029 AddNode "nets/Nä/1" L"Nä/1" "nets" "leaf" | 2=L"" 128=1 256=0 512=0 1024=null | 0
    do dev:tree 2201 SetNode "nets/Nä/1" | 31=0 | 0
    do dev:tree 2029 AddNode "nets" L"nets" "root" "branch" | 2=L"" 128=1 256=0 512=0 1024=null | 0
    do dev:tree 2201 SetNode "nets" | 31=2 | 0
    do dev:tree 2029 AddNode "root" L"root" "" "" | 2=L"" 128=1 256=0 512=0 1024=null | 0
    do dev:tree 2201 SetNode "root" | 31=0 | 0)"));
}

TEST_F(AddingUserData, KeepsCharactersBeyondTheBasicPlaneInBothWidths) {
  EXPECT_TRUE(tree.AddNode(Record("\xF0\x9F\x94\x8C", L"", "leaf")));
  EXPECT_TRUE(tree.AddNode(Record("n", L"\xD83D\xDD0C", "leaf")));
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2029 AddNode "🔌" L"🔌" "root" "leaf" | 2=L"" 128=1 256=0 512=0 1024=null | 0
    do dev:tree 2201 SetNode "🔌" | 31=0 | 0
    do dev:tree 2029 AddNode "n" L"🔌" "root" "leaf" | 2=L"" 128=1 256=0 512=0 1024=null | 0
    do dev:tree 2201 SetNode "n" | 31=0 | 0)"));
}

TEST_F(AddingUserData, PutsARecordBeforeASibling) {
  EXPECT_TRUE(tree.AddNodeBefore(Record("nets/N1", L"", "leaf", Word(0xda7a), Tree::Checked), "nets/N2"));
  EXPECT_TRUE(tree.AddNodeBefore(Record("nets/N3", L"Last", "leaf", nullptr, Tree::Unchecked, true), nullptr));
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2030 AddNodeBefore "nets/N1" L"N1" "nets" "nets/N2" "leaf" | 2=L"" 128=1 256=0 512=0 1024=0xda7a | 0
    do dev:tree 2201 SetNode "nets/N1" | 31=1 | 0
    do dev:tree 2030 AddNodeBefore "nets/N3" L"Last" "nets" null "leaf" | 2=L"" 128=1 256=1 512=0 1024=null | 0
    do dev:tree 2201 SetNode "nets/N3" | 31=0 | 0)"));
}

TEST_F(AddingUserData, AddsManyInTheirOrderWithOneRedraw) {
  toolkit.When(Doing(2029, "nets/N2")).Refuse();
  toolkit.When(Doing(2201, "nets/N3")).Refuse();
  EXPECT_EQ(tree.AddNodes({Record("nets/N1", L"", "leaf", Word(1), Tree::Checked), Record("nets/N2", L"", "leaf"),
                           Record("nets/N3", L"", "leaf")}),
            (std::vector<bool>{true, false, false}));
  EXPECT_TRUE(toolkit.Took(R"(
    modify dev:tree | 52=0 | 0
    do dev:tree 2029 AddNode "nets/N1" L"N1" "nets" "leaf" | 2=L"" 128=1 256=0 512=0 1024=0x1 | 0
    do dev:tree 2201 SetNode "nets/N1" | 31=1 | 0
    do dev:tree 2029 AddNode "nets/N2" L"N2" "nets" "leaf" | 2=L"" 128=1 256=0 512=0 1024=null | 0 => 1
    do dev:tree 2029 AddNode "nets/N3" L"N3" "nets" "leaf" | 2=L"" 128=1 256=0 512=0 1024=null | 0
    do dev:tree 2201 SetNode "nets/N3" | 31=0 | 0 => 1
    modify dev:tree | 52=1 | 0)"));
  EXPECT_TRUE(tree.AddNodes({}).empty());
  EXPECT_TRUE(toolkit.Took(""));
}

TEST_F(AddingUserData, GivesARefusedNodeNoState) {
  toolkit.When(Doing(2029)).Refuse();
  toolkit.When(Doing(2030)).Refuse();
  EXPECT_FALSE(tree.AddNode(Record("n", L"", "leaf")));
  EXPECT_FALSE(tree.AddNodeBefore(Record("n", L"", "leaf"), "m"));
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2029 AddNode "n" L"n" "root" "leaf" | 2=L"" 128=1 256=0 512=0 1024=null | 0 => 1
    do dev:tree 2030 AddNodeBefore "n" L"n" "root" "m" "leaf" | 2=L"" 128=1 256=0 512=0 1024=null | 0 => 1)"));
}

TEST_F(AddingUserData, SaysFalseWhenTheStateIsRefused) {
  toolkit.When(Doing(2201).With(31)).Refuse();
  EXPECT_FALSE(tree.AddNode(Record("n", L"", "leaf")));
  EXPECT_FALSE(tree.AddNodeBefore(Record("m", L"", "leaf"), "n"));
  EXPECT_EQ(toolkit.Lines().size(), 4u);
}

TEST_F(AddingUserData, StillAddsPlainRecordsAsATreeDoes) {
  Tree& plain = tree;
  EXPECT_TRUE(plain.AddNode(Record("n", L"", "leaf", Word(0xda7a))));
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2029 AddNode "n" L"n" "root" "leaf" | 2=L"" 128=1 256=0 512=0 1024=null | 0
    do dev:tree 2201 SetNode "n" | 31=0 | 0)"));
}

TEST_F(AddingUserData, ReplacesTheTreeByRecordsInOneRedraw) {
  toolkit.When(Retrieving(54)).Give(54, "root");
  Tree::TreeInfo info;
  info.records.push_back(new auto(Record("root", L"All", "branch", nullptr, Tree::Unchecked, true)));
  info.records.push_back(nullptr);
  info.records.push_back(new auto(Record("N1", L"", "leaf", Word(0xda7a), Tree::Checked)));
  tree.Set(info);
  EXPECT_TRUE(toolkit.Took(R"(
    modify dev:tree | 52=0 | 0
    retrieve dev:tree | 54->"root" | 0
    do dev:tree 2031 DeleteNode "root" | 0
    do dev:tree 2029 AddNode "root" L"All" "" "branch" | 2=L"" 128=1 256=1 512=0 1024=null | 0
    do dev:tree 2201 SetNode "root" | 31=0 | 0
    do dev:tree 2029 AddNode "N1" L"N1" "root" "leaf" | 2=L"" 128=1 256=0 512=0 1024=0xda7a | 0
    do dev:tree 2201 SetNode "N1" | 31=1 | 0
    modify dev:tree | 52=1 | 0)"));
  EXPECT_EQ(info.records.size(), 3u) << "the records stay the caller's";
}

TEST_F(AddingUserData, EmptiesTheTreeForNoRecords) {
  toolkit.When(Retrieving(54)).Give(54, "root");
  tree.Set({});
  EXPECT_TRUE(toolkit.Took(R"(
    modify dev:tree | 52=0 | 0
    retrieve dev:tree | 54->"root" | 0
    do dev:tree 2031 DeleteNode "root" | 0
    modify dev:tree | 52=1 | 0)"));
}

TEST_F(AddingUserData, GoesOnBehindARefusedRecord) {
  toolkit.When(Doing(2029, "bad")).Refuse();
  toolkit.When(Doing(2201, "worse")).Refuse();
  Tree::TreeInfo info;
  for (const char* name : {"bad", "worse", "good"}) info.records.push_back(new auto(Record(name, L"", "leaf")));
  tree.Set(info);
  EXPECT_TRUE(toolkit.Took(R"(
    modify dev:tree | 52=0 | 0
    retrieve dev:tree | 54->null | 0
    do dev:tree 2029 AddNode "bad" L"bad" "root" "leaf" | 2=L"" 128=1 256=0 512=0 1024=null | 0 => 1
    do dev:tree 2029 AddNode "worse" L"worse" "root" "leaf" | 2=L"" 128=1 256=0 512=0 1024=null | 0
    do dev:tree 2201 SetNode "worse" | 31=0 | 0 => 1
    do dev:tree 2029 AddNode "good" L"good" "root" "leaf" | 2=L"" 128=1 256=0 512=0 1024=null | 0
    do dev:tree 2201 SetNode "good" | 31=0 | 0
    modify dev:tree | 52=1 | 0)"));
}

TEST_F(AddingUserData, ClearsThroughTheVirtualOperation) {
  struct ClearingTree : UserDataTree {
    using UserDataTree::UserDataTree;
    void Clear() override { ++clears; }
    int clears = 0;
  } clearing("dev", "tree", "leaf");
  clearing.Set({});
  EXPECT_EQ(clearing.clears, 1);
  EXPECT_TRUE(toolkit.Took("modify dev:tree | 52=0 | 0\nmodify dev:tree | 52=1 | 0"));
}

}  // namespace
}  // namespace oxecad_ui
