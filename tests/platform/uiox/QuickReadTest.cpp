// Reads of one node are answered the same whether the call is decoded first, as it is where somebody watches, or not.

#include "Wire.h"

#include <uiox/Backend.h>
#include <uiox/Codes.h>

#include <array>
#include <cstdlib>
#include <cwchar>

namespace {

using uiox_test::kEnd;
using uiox_test::WireTest;

/// Hands everything on.
class Watcher : public uiox::Backend {
 public:
  int Handle(uiox::Call& call) override {
    ++calls;
    return uiox::BuiltIn().Handle(call);
  }
  int calls = 0;
};

constexpr std::uintptr_t kGarbage = 0xA5A5A5A5A5A5A5A5u;

/// What a read gave: its status, and what stands in the places.
struct Outcome {
  int status = 0;
  std::array<std::uintptr_t, 3> places{};
  std::string text;

  friend bool operator==(const Outcome& a, const Outcome& b) {
    return a.status == b.status && a.places == b.places && a.text == b.text;
  }
  friend std::ostream& operator<<(std::ostream& out, const Outcome& outcome) {
    out << "status " << outcome.status;
    for (const std::uintptr_t place : outcome.places) out << ' ' << std::hex << place << std::dec;
    return out << " \"" << outcome.text << '"';
  }
};

/// One list of attribute codes, read of one node in one way.
struct Read {
  int operation;
  const char* component;
  const char* node;
  std::vector<int> codes;
  bool with_places;
};

class QuickRead : public WireTest {
 protected:
  QuickRead() {
    EXPECT_EQ(Add("root", ""), 0);
    EXPECT_EQ(Do(2029, "plain", L"label", "root", "type"), 0);
    EXPECT_EQ(Do(2029, "full", L"l\u00E4bel \u4E2D", "root", "other type", 2, L"second", 128, 7, 256, -2, 512, 1, 1024,
                 &suite),
              0);
    EXPECT_EQ(Do(2201, "full", 31, 1, 177, 1, 544, 0), 0);
    EXPECT_EQ(Do(2029, "checked", L"", "full", "type", 256, 1), 0);
    EXPECT_EQ(Do(2201, "checked", 31, 5), 0);
  }

  static bool IsText(int code) { return LetterOf(code) == 'w' || LetterOf(code) == 's'; }
  static char LetterOf(int code) {
    const uiox::CodeInfo* row = uiox::FindCode(uiox::CodeGroup::NodeAttribute, code);
    return row ? row->shape[0] : 0;
  }

  /// Texts differ by their addresses: they are put into words and their places cleared.
  static void TakeText(int operation, int code, std::uintptr_t& place, std::string& words) {
    const auto* text = reinterpret_cast<const void*>(place);
    words += LetterOf(code) == 's' ? static_cast<const char*>(text) : "";
    for (const wchar_t* unit = static_cast<const wchar_t*>(text); LetterOf(code) == 'w' && *unit != 0; ++unit) {
      words += std::to_string(static_cast<unsigned>(*unit)) + ' ';
    }
    words += '|';
    if (operation == 2202) {
      EXPECT_EQ(ui_free(code, &place, kEnd), 0);
      EXPECT_EQ(place, 0u);
    }
    place = 0;
  }

  static Outcome OutcomeOf(const Read& read) {
    Outcome outcome;
    outcome.places.fill(kGarbage);
    std::vector<std::uintptr_t> slots;
    for (std::size_t i = 0; i < read.codes.size(); ++i) {
      slots.push_back(static_cast<std::uintptr_t>(read.codes[i]));
      slots.push_back(read.with_places ? reinterpret_cast<std::uintptr_t>(&outcome.places[i]) : 0);
    }
    slots.resize(8, 0);
    outcome.status = ui_do_operation("dev", read.component, read.operation, read.node, slots[0], slots[1], slots[2],
                                     slots[3], slots[4], slots[5], slots[6], slots[7], kEnd);
    for (std::size_t i = 0; outcome.status == 0 && i < read.codes.size(); ++i) {
      if (IsText(read.codes[i])) TakeText(read.operation, read.codes[i], outcome.places[i], outcome.text);
    }
    return outcome;
  }

  static void ExpectTheSame(const Read& read) {
    const Outcome quick = OutcomeOf(read);
    Watcher watcher;
    const uiox::BackendScope scope(watcher);
    const Outcome decoded = OutcomeOf(read);
    EXPECT_GT(watcher.calls, 0);
    std::string codes;
    for (const int code : read.codes) codes += ' ' + std::to_string(code);
    EXPECT_EQ(quick, decoded) << read.operation << ' ' << (read.node ? read.node : "null") << codes
                              << (read.with_places ? "" : " without places");
  }

  void ExpectTheSameEverywhere(const std::vector<int>& codes) {
    for (const int operation : {2202, 2203}) {
      for (const char* node : {"plain", "full", "checked", "unknown", "", static_cast<const char*>(nullptr)}) {
        for (const bool with_places : {true, false}) ExpectTheSame({operation, "tree", node, codes, with_places});
      }
      ExpectTheSame({operation, "unknown", "plain", codes, true});
      ExpectTheSame({operation, "button", "plain", codes, true});
      ExpectTheSame({operation, nullptr, "plain", codes, true});
    }
  }

  uiox::Widget* button_ = suite.FindDevice("dev")->Add(uiox::WidgetClass::PushButton, "button");
  /// All attributes but the list, and one that is in no table.
  const std::vector<int> codes_{2, 3, 4, 25, 31, 177, 260, 282, 283, 516, 544, 999};
};

TEST_F(QuickRead, OfNothing) { ExpectTheSameEverywhere({}); }

TEST_F(QuickRead, OfOneAttribute) {
  for (const int code : codes_) ExpectTheSameEverywhere({code});
}

TEST_F(QuickRead, OfTwoAttributes) {
  for (const int first : codes_) {
    for (const int second : codes_) ExpectTheSameEverywhere({first, second});
  }
}

TEST_F(QuickRead, OfThreeAttributes) {
  for (const int first : codes_) {
    for (const int second : codes_) ExpectTheSameEverywhere({first, second, 4});
  }
}

TEST_F(QuickRead, WritesAsManyBytesAsTheValueHas) {
  std::uint32_t states[2] = {0, 0xA5A5A5A5u};
  EXPECT_EQ(Do(2203, "checked", 31, &states[0]), 0);
  EXPECT_EQ(states[0], 1u);
  EXPECT_EQ(states[1], 0xA5A5A5A5u);
  void* data = nullptr;
  EXPECT_EQ(Do(2203, "full", 260, &data), 0);
  EXPECT_EQ(data, &suite);
}

TEST_F(QuickRead, WithoutOneOfTwoPlacesWritesNothing) {
  constexpr int kNoPlace = 9;
  for (const int operation : {2202, 2203}) {
    int value = 77;
    EXPECT_EQ(Do(operation, "full", 3, &value, 31, nullptr), kNoPlace);
    EXPECT_EQ(Do(operation, "full", 3, nullptr, 31, &value), kNoPlace);
    EXPECT_EQ(value, 77);
  }
}

TEST_F(QuickRead, OfATextIsACopyOnlyWhereOneWasAskedFor) {
  for (const int code : {2, 25, 282, 283}) {
    const void* first = nullptr;
    const void* second = nullptr;
    EXPECT_EQ(Do(2203, "full", code, &first), 0);
    EXPECT_EQ(Do(2203, "full", code, &second), 0);
    EXPECT_EQ(first, second) << code;
    void* copy = nullptr;
    EXPECT_EQ(Do(2202, "full", code, &copy), 0);
    EXPECT_NE(copy, first) << code;
    EXPECT_EQ(ui_free(code, &copy, kEnd), 0);
  }
}

TEST_F(QuickRead, GivesNumbersAsTheyAre) {
  int numbers[2] = {0, 0};
  EXPECT_EQ(Do(2202, "full", 3, &numbers[0], 4, &numbers[1]), 0);
  EXPECT_EQ(numbers[0], 7);
  EXPECT_EQ(numbers[1], -2);
}

TEST_F(QuickRead, OfATextIsReleasedTheSameWay) {
  for (const bool watched : {false, true}) {
    Watcher watcher;
    uiox::Backend* const before = watched ? uiox::SetBackend(&watcher) : nullptr;
    const char* type = nullptr;
    EXPECT_EQ(Do(2202, "full", 282, &type), 0);
    EXPECT_STREQ(type, "other type");
    EXPECT_EQ(ui_free(282, &type, kEnd), 0);
    EXPECT_EQ(type, nullptr);
    EXPECT_EQ(ui_free(282, &type, kEnd), 0) << "a null pointer is accepted";
    EXPECT_NE(ui_free(282, nullptr, kEnd), 0);
    EXPECT_NE(ui_free(31, &type, kEnd), 0) << "of a number nothing is lent";
    EXPECT_NE(ui_free(999, &type, kEnd), 0);
    EXPECT_NE(ui_free(282, &type, std::intptr_t{2}, kEnd), 0) << "no end";
    if (watched) uiox::SetBackend(before);
  }
}

}  // namespace
