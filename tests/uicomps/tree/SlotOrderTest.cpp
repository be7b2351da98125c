#include <gtest/gtest.h>
#include <tests/uicomps/VirtualSlot.h>
#include <uicomps/tree/Comparators.h>
#include <uicomps/tree/Tree.h>

#include <string>
#include <type_traits>

namespace oxecad_ui {
namespace {

TEST(SlotOrder, TreeGoesOnWithOnCheckAndTheRecordOperations) {
  EXPECT_EQ(VirtualSlot(&Tree::Init), 1);
  EXPECT_EQ(VirtualSlot(&Tree::Clear), 2);
  EXPECT_EQ(VirtualSlot(&Tree::OnActivate), 3);
  EXPECT_EQ(VirtualSlot(&Tree::OnCollapse), 4);
  EXPECT_EQ(VirtualSlot(&Tree::OnExpand), 5);
  EXPECT_EQ(VirtualSlot(&Tree::OnSelect), 6);
  EXPECT_EQ(VirtualSlot(&Tree::OnCheck), 7);
  EXPECT_EQ(VirtualSlot(static_cast<bool (Tree::*)(const Tree::NodeInfo&)>(&Tree::AddNode)), 8);
  EXPECT_EQ(VirtualSlot(static_cast<bool (Tree::*)(const char*, Tree::NodeInfo&) const>(&Tree::GetNodeInfo)), 9);
  EXPECT_EQ(VirtualSlot(static_cast<Tree::NodeInfo* (Tree::*)(const char*) const>(&Tree::GetNodeInfo)), 10);
}

TEST(SlotOrder, OtherOperationsOfTreeAreNotVirtual) {
  EXPECT_EQ(VirtualSlot(static_cast<bool (Tree::*)(const Tree::NodeInfo&, const char*)>(&Tree::AddNodeBefore)), -1);
  EXPECT_EQ(VirtualSlot(&Tree::AddEcadNode), -1);
  EXPECT_EQ(VirtualSlot(&Tree::SortNodesByType), -1);
  EXPECT_EQ(VirtualSlot(&Tree::GetTreeInfo), -1);
}

TEST(SlotOrder, FilterHasTheTwoQuestions) {
  using Filter = Tree::NodeFilter;
  EXPECT_EQ(VirtualSlot(static_cast<Filter::Result (Filter::*)(const Tree*, const char*) const>(&Filter::operator())),
            1);
  EXPECT_EQ(VirtualSlot(static_cast<Filter::Result (Filter::*)(const Tree::NodeInfo&) const>(&Filter::operator())), 2);
  EXPECT_TRUE(std::is_abstract_v<Filter>);
  EXPECT_TRUE(std::has_virtual_destructor_v<Filter>);
}

TEST(SlotOrder, ComparatorHasDirectionAndCompare) {
  using Comparator = CComparator<Tree::NodeInfo>;
  EXPECT_EQ(VirtualSlot(&Comparator::SetAscending), 1);
  EXPECT_EQ(VirtualSlot(&Comparator::IsAscending), 2);
  EXPECT_EQ(VirtualSlot(&Comparator::Compare), 3);
  EXPECT_TRUE(std::has_virtual_destructor_v<Comparator>);
}

TEST(SlotOrder, AlphaNumericComparatorGoesOnBehindItsHook) {
  using Comparator = CAlphaNumericComparator<std::wstring, wchar_t>;
  EXPECT_EQ(VirtualSlot(&Comparator::Compare), 3);
  EXPECT_EQ(VirtualSlot(&Comparator::ToUpper), 5);
  EXPECT_EQ(VirtualSlot(&Comparator::Chars), 6);
  EXPECT_EQ(VirtualSlot(&Comparator::DigitLow), 7);
  EXPECT_EQ(VirtualSlot(&Comparator::DigitHigh), 8);
  EXPECT_EQ(VirtualSlot(&Comparator::Terminator), 9);
  EXPECT_EQ(VirtualSlot(&Comparator::SignedNumbers), 10);
  EXPECT_EQ(VirtualSlot(&Comparator::MinusSign), 11);
}

TEST(SlotOrder, WideComparatorsAnswerTheirSlots) {
  const CAlphaNumericWStringComparator plain;
  const CAlphaNumericWStringEcadComparator ecad;
  for (const CAlphaNumericComparator<std::wstring, wchar_t>* comparator :
       {static_cast<const CAlphaNumericComparator<std::wstring, wchar_t>*>(&plain),
        static_cast<const CAlphaNumericComparator<std::wstring, wchar_t>*>(&ecad)}) {
    const std::wstring text = L"text";
    EXPECT_EQ(comparator->ToUpper(L'a'), L'A');
    EXPECT_EQ(comparator->ToUpper(L'z'), L'Z');
    EXPECT_EQ(comparator->ToUpper(L'`'), L'`');
    EXPECT_EQ(comparator->ToUpper(L'{'), L'{');
    EXPECT_EQ(comparator->ToUpper(wchar_t(0xE4)), wchar_t(0xE4));
    EXPECT_EQ(comparator->Chars(text), text.c_str());
    EXPECT_EQ(comparator->DigitLow(), L'0');
    EXPECT_EQ(comparator->DigitHigh(), L'9');
    EXPECT_EQ(comparator->Terminator(), L'\0');
    EXPECT_TRUE(comparator->SignedNumbers());
    EXPECT_EQ(comparator->MinusSign(), L'-');
  }
  EXPECT_TRUE((std::is_base_of_v<CAlphaNumericWStringComparator, CAlphaNumericWStringEcadComparator>));
}

}  // namespace
}  // namespace oxecad_ui
