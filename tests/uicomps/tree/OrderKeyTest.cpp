// Keys of labels: they never contradict the comparators, and sorting by them is sorting by the comparators.
#include <tests/support/Check.h>
#include <tests/uicomps/tree/ReferenceOrder.h>
#include <uicomps/tree/Comparators.h>
#include <uicomps/tree/LabelOrder.h>

#include <algorithm>
#include <string>
#include <vector>

namespace oxecad_ui {
namespace {

using test_support::NaturalText;
using test_support::TextOf;

std::vector<unsigned> Bytes(const OrderKey& key) {
  std::vector<unsigned> bytes;
  for (const std::uint64_t half : {key.high, key.low}) {
    for (int shift = 56; shift >= 0; shift -= 8) bytes.push_back(static_cast<unsigned>(half >> shift) & 0xFFu);
  }
  while (!bytes.empty() && bytes.back() == 0) bytes.pop_back();
  return bytes;
}

TEST(OrderKey, HoldsFoldedCharactersAndNumbersByValue) {
  EXPECT_EQ(Bytes(MakeOrderKey<false>(L"")), (std::vector<unsigned>{}));
  EXPECT_EQ(Bytes(MakeOrderKey<false>(L"aB_")), (std::vector<unsigned>{'A', 'B', '_'}));
  EXPECT_EQ(Bytes(MakeOrderKey<false>(L"\u00e9!")), (std::vector<unsigned>{0x80, 0x00, 0xE9, '!'}));
  EXPECT_EQ(Bytes(MakeOrderKey<false>(L"7x")), (std::vector<unsigned>{'2', 7, 0, 'X'}));
  EXPECT_EQ(Bytes(MakeOrderKey<false>(L"0258x")), (std::vector<unsigned>{'3', 1, 2, 1, 'X'}));
  EXPECT_EQ(Bytes(MakeOrderKey<false>(L"00x")), (std::vector<unsigned>{'1', 2, 'X'}));
  EXPECT_EQ(Bytes(MakeOrderKey<false>(L"2147483648x")), (std::vector<unsigned>{'0', 0x80, 0, 0, 0, 0, 'X'}))
      << "numbers wrap";
}

TEST(OrderKey, TurnsNumbersBehindASignRound) {
  EXPECT_EQ(Bytes(MakeOrderKey<true>(L"-7x")), (std::vector<unsigned>{'-', '7', 0xF8, 0xFF, 'X'}));
  EXPECT_EQ(Bytes(MakeOrderKey<false>(L"-7x")), (std::vector<unsigned>{'-', '2', 7, 0, 'X'}));
  EXPECT_EQ(Bytes(MakeOrderKey<true>(L"--7x7")), (std::vector<unsigned>{'-', '-', '7', 0xF8, 0xFF, 'X', '2', 7}));
}

TEST(OrderKey, EndsAfterSixteenBytes) {
  EXPECT_EQ(Bytes(MakeOrderKey<false>(L"abcdefghijklmnopq")).size(), 16u);
  EXPECT_EQ(MakeOrderKey<false>(L"abcdefghijklmnopq"), MakeOrderKey<false>(L"abcdefghijklmnopr"));
  EXPECT_EQ(MakeOrderKey<false>(L"abcdefghijklmno\u00e9"), MakeOrderKey<false>(L"abcdefghijklmno\u00ea"));
}

TEST(OrderKey, EndsWhereZerosAreTooManyToCount) {
  const std::wstring zeros(255, L'0');
  EXPECT_EQ(MakeOrderKey<false>((zeros + L"a").c_str()), MakeOrderKey<false>((zeros + L"0b").c_str()));
  EXPECT_TRUE(MakeOrderKey<false>((zeros.substr(1) + L"b").c_str()) < MakeOrderKey<false>((zeros + L"a").c_str()));
}

TEST(OrderKey, EndsAtWhatIsNoCodeUnit) {
  const std::wstring beyond{L'a', static_cast<wchar_t>(0x10030), L'z'};
  EXPECT_EQ(MakeOrderKey<false>(beyond.c_str()), MakeOrderKey<false>(L"a"));
}

TEST(OrderKey, LeavesTheOrderToTheLabelsWhereOneIsNoUtf16) {
  // As 16 bits the wide element is a 'C'.
  const std::wstring wide{L'a', static_cast<wchar_t>(0x10043)};
  std::vector<std::wstring> labels{L"ad", wide, L"ab"};
  SortByLabel<true>(labels, [](const std::wstring& label) { return label.c_str(); });
  EXPECT_EQ(labels, (std::vector<std::wstring>{L"ab", wide, L"ad"}));
}

rc::Gen<std::wstring> Label() {
  return rc::gen::oneOf(NaturalText(), TextOf(L"0019-aAZ_/"), TextOf(L"02147483648-"), TextOf(L"a\u00e9\u0416\uffff9"));
}

template <bool Signed>
void CheckKeys() {
  const auto common = *TextOf(L"aA1-");
  const std::wstring a = common + *Label();
  const std::wstring b = common + *Label();
  if (MakeOrderKey<Signed>(a.c_str()) < MakeOrderKey<Signed>(b.c_str())) RC_ASSERT(ReferenceBefore(a, b, Signed));
  if (ReferenceBefore(a, b, Signed)) RC_ASSERT(!(MakeOrderKey<Signed>(b.c_str()) < MakeOrderKey<Signed>(a.c_str())));
}

RC_GTEST_PROP(OrderKeyProperties, AgreeWithThePlainOrder, ()) { CheckKeys<true>(); }
RC_GTEST_PROP(OrderKeyProperties, AgreeWithTheEcadOrder, ()) { CheckKeys<false>(); }

RC_GTEST_PROP(OrderKeyProperties, SortAsTheComparatorDoes, ()) {
  std::vector<std::wstring> labels = *rc::gen::container<std::vector<std::wstring>>(Label());
  std::vector<std::wstring> expected = labels;
  const CAlphaNumericWStringComparator order;
  std::stable_sort(expected.begin(), expected.end(),
                   [&](const std::wstring& a, const std::wstring& b) { return order.Compare(a, b); });
  SortByLabel<true>(labels, [](const std::wstring& label) { return label.c_str(); });
  RC_ASSERT(labels == expected);
}

}  // namespace
}  // namespace oxecad_ui
