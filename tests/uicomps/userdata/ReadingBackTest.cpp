// Nodes as records, read back from the toolkit.
#include <tests/uicomps/userdata/UserDataTreeTest.h>

#include <memory>

namespace oxecad_ui {
namespace {

class UserDataRecords : public UserDataTreeTest {
 protected:
  UserDataRecords() {
    toolkit.When(Doing(2202, "n").With(2)).Give(2, L"<b>N (3)</b>");
    toolkit.When(Doing(2202, "n").With(260)).Give(260, Word(0xda7a));
    toolkit.When(Doing(2202, "n").With(4)).Give(4, 1);
    toolkit.When(Doing(2203, "n").With(31)).Give(31, 1);
    toolkit.When(Doing(2202, "n").With(282)).Give(282, "leaf");
  }
};

constexpr const char* kReading = R"(
  do dev:tree 2202 GetNode "n" | 2->L"<b>N (3)</b>" | 0
  free 2 L"<b>N (3)</b>" | 0
  do dev:tree 2202 GetNode "n" | 260->0xda7a | 0
  do dev:tree 2202 GetNode "n" | 4->1 | 0
  do dev:tree 2203 InquireNode "n" | 177->0 31->1 | 0
  do dev:tree 2202 GetNode "n" | 282->"leaf" | 0
  free 282 "leaf" | 0)";

void ExpectRead(const UserDataTree::DataNodeInfo& info) {
  EXPECT_EQ(info.name, "n");
  EXPECT_EQ(info.label, L"<b>N (3)</b>") << "count and markup included";
  EXPECT_EQ(info.data, Word(0xda7a));
  EXPECT_TRUE(info.expanded);
  EXPECT_EQ(info.state, Tree::Checked);
  EXPECT_EQ(info.type, "leaf");
}

TEST_F(UserDataRecords, AreFilledInThisOrder) {
  UserDataTree::DataNodeInfo info;
  EXPECT_TRUE(tree.GetNodeInfo("n", info));
  ExpectRead(info);
  EXPECT_TRUE(toolkit.Took(kReading));
}

TEST_F(UserDataRecords, AreMadeWithTheirData) {
  const std::unique_ptr<Tree::NodeInfo> info(tree.GetNodeInfo("n"));
  const auto* const data = dynamic_cast<UserDataTree::DataNodeInfo*>(info.get());
  ASSERT_NE(data, nullptr);
  ExpectRead(*data);
  EXPECT_TRUE(toolkit.Took(kReading));
}

TEST_F(UserDataRecords, AreReadTheSameThroughTheBase) {
  const Tree& base = tree;
  UserDataTree::DataNodeInfo info;
  EXPECT_TRUE(base.GetNodeInfo("n", info));
  ExpectRead(info);
  const std::unique_ptr<Tree::NodeInfo> made(base.GetNodeInfo("n"));
  EXPECT_NE(dynamic_cast<UserDataTree::DataNodeInfo*>(made.get()), nullptr);
}

TEST_F(UserDataRecords, OfAnotherKindAreLeftAlone) {
  Tree::NodeInfo plain;
  plain.name = "before";
  plain.label = L"Before";
  plain.expanded = true;
  EXPECT_FALSE(tree.GetNodeInfo("n", plain));
  EXPECT_EQ(plain.name, "before");
  EXPECT_EQ(plain.label, L"Before");
  EXPECT_TRUE(plain.expanded);
  EXPECT_TRUE(toolkit.Took(""));
}

TEST_F(UserDataRecords, OfAFurtherClassAreFilledToo) {
  struct Further : UserDataTree::DataNodeInfo {
    int more = 7;
  } info;
  EXPECT_TRUE(tree.GetNodeInfo("n", info));
  ExpectRead(info);
  EXPECT_EQ(info.more, 7);
}

TEST_F(UserDataRecords, WithoutANameAreNotRead) {
  for (const char* const name : {static_cast<const char*>(nullptr), ""}) {
    UserDataTree::DataNodeInfo info = Record("before", L"Before", "type", Word(1));
    EXPECT_FALSE(tree.GetNodeInfo(name, info));
    EXPECT_EQ(info.name, "before");
    EXPECT_EQ(info.data, Word(1));
    EXPECT_EQ(tree.GetNodeInfo(name), nullptr);
  }
  EXPECT_TRUE(toolkit.Took(""));
}

TEST_F(UserDataRecords, OfAMissingNodeAreEmpty) {
  toolkit.FailAll(Failure::Scribbled);
  UserDataTree::DataNodeInfo info = Record("before", L"Before", "type", Word(1), Tree::Checked, true);
  EXPECT_TRUE(tree.GetNodeInfo("n", info));
  EXPECT_EQ(info.name, "n");
  EXPECT_EQ(info.label, L"");
  EXPECT_EQ(info.type, "");
  EXPECT_EQ(info.data, nullptr);
  EXPECT_EQ(info.state, Tree::Unchecked);
  EXPECT_FALSE(info.expanded);
}

TEST_F(UserDataRecords, KeepThirtyTwoBitTotalsZeroExtended) {
  toolkit.When(Doing(2202, "n").With(260)).Give(260, Word(0x80000000));
  UserDataTree::DataNodeInfo info;
  EXPECT_TRUE(tree.GetNodeInfo("n", info));
  EXPECT_EQ(info.data, Word(0x80000000));
}

TEST_F(UserDataRecords, AreCollectedByTheWalksOfATree) {
  toolkit.When(Retrieving(54)).Give(54, "root");
  GiveChildren("root", {"n", "m"});
  Tree::TreeInfo info;
  tree.GetTreeInfo(info, Tree::Everything(), false);
  ASSERT_EQ(info.records.size(), 2u);
  ExpectRead(dynamic_cast<UserDataTree::DataNodeInfo&>(*info.records[0]));
  EXPECT_EQ(info.records[1]->name, "m");
}

TEST_F(UserDataRecords, AreCopiedByValue) {
  UserDataTree::DataNodeInfo original = Record("n", L"N", "leaf", Word(5), Tree::PartlyChecked, true);
  const UserDataTree::DataNodeInfo copy(original);
  UserDataTree::DataNodeInfo assigned;
  EXPECT_EQ(assigned.data, nullptr);
  assigned = original;
  original = {};
  for (const UserDataTree::DataNodeInfo* info : {&copy, &std::as_const(assigned)}) {
    EXPECT_EQ(info->name, "n");
    EXPECT_EQ(info->label, L"N");
    EXPECT_EQ(info->type, "leaf");
    EXPECT_EQ(info->data, Word(5));
    EXPECT_EQ(info->state, Tree::PartlyChecked);
    EXPECT_TRUE(info->expanded);
  }
  EXPECT_EQ(original.data, nullptr);
}

}  // namespace
}  // namespace oxecad_ui
