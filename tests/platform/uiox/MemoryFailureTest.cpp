// Every allocation of every operation fails in turn. A program of its own, because it replaces the allocator.

#include "TreeModel.h"
#include "Wire.h"

#include <uiox/Driver.h>

#include <cstdlib>
#include <functional>
#include <new>
#include <utility>

namespace {

/// Allocations until one fails; 0: none fails.
long g_until_failure = 0;
bool g_failed = false;

bool FailsNow() {
  if (g_until_failure == 0 || --g_until_failure > 0) return false;
  g_failed = true;
  return true;
}

void* OrThrow(void* block) {
  if (!block) throw std::bad_alloc();
  return block;
}

void* Allocate(std::size_t bytes) { return OrThrow(FailsNow() ? nullptr : std::malloc(bytes == 0 ? 1 : bytes)); }

/// Only whole multiples of an alignment are allocated so.
void* Allocate(std::size_t bytes, std::align_val_t alignment) {
  return OrThrow(FailsNow() ? nullptr : std::aligned_alloc(static_cast<std::size_t>(alignment), bytes));
}

}  // namespace

void* operator new(std::size_t bytes) { return Allocate(bytes); }
void* operator new[](std::size_t bytes) { return Allocate(bytes); }
void* operator new[](std::size_t bytes, std::align_val_t alignment) { return Allocate(bytes, alignment); }
void operator delete(void* block) noexcept { std::free(block); }
void operator delete[](void* block) noexcept { std::free(block); }
void operator delete[](void* block, std::align_val_t) noexcept { std::free(block); }
void operator delete(void* block, std::size_t) noexcept { std::free(block); }
void operator delete[](void* block, std::size_t) noexcept { std::free(block); }

namespace {

using uiox_test::kEnd;
using uiox_test::Slot;
using uiox_test::WireTest;

/// Follows a tree with memory of its own, so to speak.
class CalmFollower : public uiox_test::Follower {
 public:
  using Follower::Follower;
  using NodeId = uiox::NodeId;

  void AboutToAdd(NodeId parent, std::uint32_t row) override {
    const Calm calm;
    Follower::AboutToAdd(parent, row);
  }
  void Added(NodeId node, NodeId parent, std::uint32_t row) override {
    const Calm calm;
    Follower::Added(node, parent, row);
  }
  void AboutToRemove(NodeId node, NodeId parent, std::uint32_t row) override {
    const Calm calm;
    Follower::AboutToRemove(node, parent, row);
  }
  void Removed(NodeId parent, std::uint32_t row) override {
    const Calm calm;
    Follower::Removed(parent, row);
  }
  void AboutToMove(NodeId node, NodeId from, std::uint32_t row, NodeId to, std::uint32_t to_row) override {
    const Calm calm;
    Follower::AboutToMove(node, from, row, to, to_row);
  }

 private:
  struct Calm {
    Calm() : until_failure(std::exchange(g_until_failure, 0)) {}
    ~Calm() { g_until_failure = until_failure; }
    long until_failure;
  };
};

class MemoryFailure : public WireTest {
 protected:
  MemoryFailure() {
    Add("root", "");
    for (int i = 0; i < 300; ++i) Add("n" + std::to_string(i), "root");
  }

  /// The whole tree with its texts, types, cells and selection.
  std::string Everything() {
    std::string text = uiox_test::Drawn(store);
    std::vector<uiox::NodeId> nodes{store.Root()};
    for (std::size_t i = 0; i < nodes.size() && nodes[i] != uiox::kNoNode; ++i) {
      store.AppendChildren(nodes[i], nodes);
      for (const std::wstring& part :
           {store.Label(nodes[i]), store.SecondText(nodes[i]), std::wstring(store.CellLabel({nodes[i], 0}))}) {
        text += '|' + std::string(part.begin(), part.end());
      }
      const uiox::Widget* control = tree.ControlIn({nodes[i], 1});
      text += control ? control->Name() : "";
      text += std::to_string(store.ThirdInt(nodes[i])) + suite.Types().Name(store.Type(nodes[i]));
    }
    return text + ' ' + std::to_string(store.Size()) + ' ' + std::to_string(store.SelectionSize());
  }

  /// Lets the first, second ... allocation of a call fail until it succeeds. A failed call leaves everything as it was.
  void FailEach(const std::function<int()>& call, const std::function<void()>& undo) {
    for (int n = 1;; ++n) {
      ASSERT_LT(n, 1000);
      const std::string before = Everything();
      g_failed = false;
      g_until_failure = n;
      const int result = call();
      g_until_failure = 0;
      if (!g_failed) {
        EXPECT_EQ(result, 0);
        undo();
        return;
      }
      if (result == 0) {
        undo();
        continue;
      }
      ASSERT_EQ(Everything(), before) << "allocation " << n;
    }
  }
};

TEST_F(MemoryFailure, OfAnAdditionAddsNothing) {
  const std::wstring label(100, L'x');
  for (int round = 0; round < 200; ++round) {
    FailEach([&] { return Do(2029, "a", label.c_str(), "n7", "new type", 2, L"second", 128, 5, 512, 1); },
             [&] { Do(2031, "a"); });
  }
  FailEach([&] { return Do(2030, "b", L"label", "root", "n100", "type"); }, [] {});
  FailEach([&] { return Do(2331, "n200", "c", 283, "root", 2, L"label", 516, 3); }, [] {});
}

TEST_F(MemoryFailure, OfAMoveOrADeletionLeavesTheTree) {
  CalmFollower follower(store);
  FailEach([&] { return ui_do_operation("dev", "tree", 2032, "n5", "n6", static_cast<const char*>(nullptr)); }, [] {});
  FailEach([&] { return Do(2031, "n6"); }, [] {});
  EXPECT_EQ(follower.complaint, "");
}

TEST_F(MemoryFailure, ObserversAreToldOnlyOfWhatHappens) {
  uiox::TreeStore& other = suite.ObtainTree("dev", "other").Store();
  CalmFollower follower(other);
  for (int i = 0; i < 5000; ++i) {
    const std::string name = "n" + std::to_string(i);
    for (int n = 1; other.Find(name) == uiox::kNoNode; ++n) {
      g_until_failure = n;
      ui_do_operation("dev", "other", 2029, name.c_str(), L"label", "", "type", kEnd);
      g_until_failure = 0;
      ASSERT_LT(n, 100);
    }
  }
  EXPECT_EQ(follower.complaint, "");
  EXPECT_EQ(follower.tree.Drawn(), uiox_test::Drawn(other));
}

TEST_F(MemoryFailure, OfASettingLeavesWhatWasThere) {
  const std::wstring label(500, L'y');
  FailEach([&] { return Do(2201, "n1", 2, label.c_str()); }, [] {});
  FailEach([&] { return Do(2201, "n1", 516, 1); }, [] {});
  FailEach([&] { return Do(2033, "n1", 8, "another type", 1024, nullptr); }, [] {});
  FailEach([&] { return Do(2160, "n1", "a", 2, L"<img src=\"color_square.png_255\">"); }, [] {});
  FailEach([&] { return Do(2053, "control", "CheckButton"); }, [] {});
  FailEach([&] { return Do(2160, "n1", "b", 140, "control"); }, [] {});
  FailEach([&] { return Do(2160, "n2", "b", 140, "control"); }, [] {});
  static const char* const names[] = {"one name that is long enough for the heap", "two"};
  FailEach([&] { return Do(2053, "menu", "OptionMenu", 67, 2, &names[0]); }, [] {});
  EXPECT_EQ(suite.Find("dev", "menu")->Items().size(), 2u);
}

TEST_F(MemoryFailure, OfASelectionKeepsTheOldOne) {
  std::vector<const char*> names;
  std::vector<std::string> kept;
  for (int i = 0; i < 100; ++i) kept.push_back("n" + std::to_string(i));
  for (const std::string& name : kept) names.push_back(name.c_str());
  Modify("tree", 72, 1, names.data());
  FailEach([&] { return Modify("tree", 72, 100, names.data()); }, [] {});
  EXPECT_EQ(store.SelectionSize(), 100u);
}

TEST_F(MemoryFailure, OfAnInquiryAnswersNothing) {
  for (int n = 1;; ++n) {
    int count = 77;
    const char* something = nullptr;
    const char* const* names = &something;
    g_failed = false;
    g_until_failure = n;
    const int result = Do(2203, "root", 284, &count, &names);
    g_until_failure = 0;
    if (!g_failed) {
      EXPECT_EQ(count, 300);
      break;
    }
    EXPECT_NE(result, 0);
    EXPECT_EQ(count, 77);
  }
}

TEST_F(MemoryFailure, OfACopiedListHandsOutNothing) {
  for (int round = 0; round < 3; ++round) {
    // The list is made anew, then only what came behind it, then nothing of it.
    if (round == 1) {
      for (int i = 0; i < 200; ++i) ASSERT_EQ(Add("behind" + std::to_string(i), "root"), 0);
    }
    const int expected = round == 0 ? 300 : 500;
    for (int n = 1;; ++n) {
      int count = 77;
      char** names = nullptr;
      g_failed = false;
      g_until_failure = n;
      const int result = Do(2202, "root", 284, &count, &names);
      g_until_failure = 0;
      if (!g_failed) {
        ASSERT_EQ(count, expected);
        for (int i = 0; i < count; ++i) {
          EXPECT_STREQ(names[i], store.Name(store.ChildAt(Node("root"), static_cast<std::uint32_t>(i))));
        }
        EXPECT_EQ(ui_free(284, static_cast<std::intptr_t>(count), &names, kEnd), 0);
        break;
      }
      EXPECT_NE(result, 0);
      EXPECT_EQ(count, 77);
      EXPECT_EQ(names, nullptr);
    }
  }
}

TEST_F(MemoryFailure, OfADeviceMakesNone) {
  for (int n = 1;; ++n) {
    g_failed = false;
    g_until_failure = n;
    const int result = ui_create_device("RenameDlg", "RenameDlg");
    g_until_failure = 0;
    if (!g_failed) {
      EXPECT_EQ(result, 0);
      break;
    }
    if (result == 0) {
      suite.DestroyDevice("RenameDlg");
      continue;
    }
    ASSERT_EQ(suite.FindDevice("RenameDlg"), nullptr) << n;
    ASSERT_EQ(suite.Devices().size(), 1u);
  }
}

}  // namespace
