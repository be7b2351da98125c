// Names and labels of every length are kept exactly, wherever they are put.

#include "Wire.h"

#include <map>

namespace {

using uiox_test::kEnd;
using uiox_test::WireTest;

class NodeTexts : public WireTest {
 protected:
  static std::string NameOf(std::size_t length, char first = 'n') {
    std::string name(length, 'x');
    name[0] = first;
    if (length > 1) name.back() = static_cast<char>('0' + length % 10);
    return name;
  }
  /// Of units up to a largest one.
  static std::wstring LabelOf(std::size_t length, wchar_t largest) {
    std::wstring label;
    for (std::size_t i = 0; i < length; ++i) label += static_cast<wchar_t>(largest - static_cast<wchar_t>(i % 90));
    return label;
  }

  static std::wstring ReadLabel(const std::string& name) {
    wchar_t* copy = nullptr;
    EXPECT_EQ(Do(2202, name.c_str(), 2, &copy), 0);
    const std::wstring label = copy;
    EXPECT_EQ(ui_free(2, &copy, kEnd), 0);
    return label;
  }
  void ExpectAll() {
    for (const auto& [name, label] : labels_) {
      EXPECT_EQ(ReadLabel(name), label) << name.size() << ' ' << label.size();
      EXPECT_STREQ(store.Name(Node(name.c_str())), name.c_str());
    }
  }
  void Add(const std::string& name, const std::wstring& label) {
    ASSERT_EQ(Do(2029, name.c_str(), label.c_str(), "", "type"), 0);
    labels_[name] = label;
  }
  void SetLabel(const std::string& name, const std::wstring& label) {
    ASSERT_EQ(Do(2201, name.c_str(), 2, label.c_str()), 0);
    labels_[name] = label;
  }

  std::map<std::string, std::wstring> labels_;
  /// About the room in a record, about one byte, and beyond small blocks.
  const std::vector<std::size_t> lengths_{1,  2,  3,  7,  8,  13,  22,  23,  24,  25,  26,   27,   28,   29,
                                          30, 31, 32, 63, 64, 253, 254, 255, 256, 257, 1000, 16382, 16383, 70000};
  const std::vector<wchar_t> largest_{0x7E, 0xFF, 0x100, 0xFFFF, 0x10000};
};

TEST_F(NodeTexts, OfEveryLengthAreKept) {
  for (const std::size_t length : lengths_) Add(NameOf(length), LabelOf(length, 0xFF));
  ExpectAll();
}

TEST_F(NodeTexts, LabelsOfEveryWidthBehindNamesOfEveryLength) {
  for (std::size_t name = 1; name < 40; ++name) {
    for (std::size_t label = 0; label < 30; ++label) {
      const wchar_t largest = largest_[(name + label) % largest_.size()];
      Add(NameOf(name + 2, static_cast<char>('A' + label)), LabelOf(label, largest));
    }
  }
  ExpectAll();
}

TEST_F(NodeTexts, LabelsAreReplacedByLongerAndShorterOnes) {
  for (const std::size_t length : {1, 10, 20, 24, 25, 26, 27, 40, 300}) Add(NameOf(length), L"");
  const std::map<std::string, std::wstring> all = labels_;
  for (const std::size_t length : {0, 5, 40, 3, 25, 26, 27, 0, 1000, 1, 16383, 2, 0}) {
    for (const wchar_t largest : largest_) {
      for (const auto& [name, before] : all) SetLabel(name, LabelOf(length, largest));
      ExpectAll();
    }
  }
}

TEST_F(NodeTexts, LeaveNothingInTheNextNodeOfAPlace) {
  for (int round = 0; round < 3; ++round) {
    for (const std::size_t length : lengths_) Add(NameOf(length), LabelOf(length, 0x4E2D));
    ExpectAll();
    for (const auto& [name, label] : labels_) EXPECT_EQ(Do(2031, name.c_str()), 0);
    labels_.clear();
    for (const std::size_t length : lengths_) Add(NameOf(length, 'm'), L"");
    ExpectAll();
    for (const auto& [name, label] : labels_) EXPECT_EQ(Do(2031, name.c_str()), 0);
    labels_.clear();
  }
}

TEST_F(NodeTexts, NamesThatDifferInOneCharacterAreTwo) {
  for (const std::size_t length : lengths_) {
    for (const std::size_t place : {std::size_t{0}, length / 2, length - 1}) {
      std::string name = NameOf(length);
      name[place] = '~';
      if (labels_.count(name) == 0) Add(name, std::to_wstring(place));
    }
  }
  ExpectAll();
}

}  // namespace
