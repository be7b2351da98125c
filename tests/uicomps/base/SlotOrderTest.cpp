#include <gtest/gtest.h>
#include <tests/uicomps/VirtualSlot.h>
#include <uicomps/base/BaseTree.h>

namespace oxecad_ui {
namespace {

TEST(SlotOrder, ComponentHasTheDestructorAndInit) { EXPECT_EQ(VirtualSlot(&Component::Init), 1); }

TEST(SlotOrder, BaseTreeGoesOnWithClearAndTheHandlers) {
  EXPECT_EQ(VirtualSlot(&BaseTree::Init), 1);
  EXPECT_EQ(VirtualSlot(&BaseTree::Clear), 2);
  EXPECT_EQ(VirtualSlot(&BaseTree::OnActivate), 3);
  EXPECT_EQ(VirtualSlot(&BaseTree::OnCollapse), 4);
  EXPECT_EQ(VirtualSlot(&BaseTree::OnExpand), 5);
  EXPECT_EQ(VirtualSlot(&BaseTree::OnSelect), 6);
}

TEST(SlotOrder, NothingElseOfBaseTreeIsVirtual) {
  EXPECT_EQ(VirtualSlot(&BaseTree::DeleteNode), -1);
  EXPECT_EQ(VirtualSlot(&BaseTree::InsertNode), -1);
  EXPECT_EQ(VirtualSlot(&BaseTree::GetNodeLabel), -1);
  EXPECT_EQ(VirtualSlot(&BaseTree::HasRoot), -1);
  EXPECT_EQ(VirtualSlot(&Component::GetName), -1);
}

TEST(SlotOrder, BaseTreeAddsNoData) { EXPECT_EQ(sizeof(BaseTree), sizeof(Component)); }

}  // namespace
}  // namespace oxecad_ui
