// Names find their nodes, whatever was named before: calls that go through children in order are found another way than
// those that jump.

#include "Wire.h"

#include <map>
#include <random>

namespace {

using uiox_test::kEnd;
using uiox_test::WireTest;

/// A tree of changing nodes, and what each name stands for.
class NodeNames : public WireTest {
 protected:
  NodeNames() {
    for (const char* parent : kParents) EXPECT_EQ(Add(parent, ""), 0);
    for (int node = 0; node < 300; ++node) AddOne();
  }

  unsigned Pick(std::size_t choices) { return static_cast<unsigned>(random_() % choices); }
  std::string Parent() { return kParents[Pick(std::size(kParents))]; }

  void AddOne() {
    const std::string name = "n" + std::to_string(made_++);
    const std::uintptr_t value = Pick(1u << 20);
    ASSERT_EQ(Do(2029, name.c_str(), L"", Parent().c_str(), "type", 1024, value), 0);
    values_[name] = value;
  }
  void Delete(const std::string& name) {
    ASSERT_EQ(Do(2031, name.c_str()), 0);
    values_.erase(name);
    EXPECT_NE(Do(2203, name.c_str(), 260, &read_), 0) << name << " is gone";
  }
  void Move(const std::string& name) { ASSERT_EQ(Do(2032, name.c_str(), Parent().c_str(), nullptr), 0); }
  void Check(const std::string& name) {
    read_ = 0;
    ASSERT_EQ(Do(2203, name.c_str(), 260, &read_), 0) << name;
    ASSERT_EQ(read_, values_.at(name)) << name;
  }

  std::vector<std::string> ListChildren() {
    int count = 0;
    char** names = nullptr;
    EXPECT_EQ(Do(2202, Parent().c_str(), 284, &count, &names), 0);
    std::vector<std::string> children(names, names + count);
    EXPECT_EQ(ui_free(284, static_cast<std::intptr_t>(count), &names, kEnd), 0);
    return children;
  }
  /// Reads each child once or more, with a change or a look elsewhere now and then.
  void Walk() {
    const unsigned reads = 1 + Pick(3);
    for (const std::string& child : ListChildren()) {
      if (values_.count(child) == 0) continue;  // deleted on the way
      for (unsigned read = 0; read < reads; ++read) Check(child);
      switch (Pick(40)) {
        case 0:
          Delete(child);
          AddOne();  // takes the place of the deleted one
          break;
        case 1:
          Move(child);
          Check(child);
          break;
        case 2:
          Check(std::next(values_.begin(), Pick(values_.size()))->first);
          break;
        case 3:
          ListChildren();  // and goes on with the first list
          break;
        default:
          break;
      }
    }
  }

 private:
  static constexpr const char* kParents[] = {"a", "b", "c"};

  std::mt19937 random_;
  std::map<std::string, std::uintptr_t> values_;
  std::uintptr_t read_ = 0;
  int made_ = 0;
};

TEST_F(NodeNames, FindTheirNodesThroughChanges) {
  for (int walk = 0; walk < 200 && !HasFatalFailure(); ++walk) Walk();
}

TEST_F(NodeNames, OfDeletedNodesAreNotFoundByTheNextOnesPlace) {
  const std::vector<std::string> children = ListChildren();
  Check(children[0]);
  Check(children[1]);
  Delete(children[2]);
  EXPECT_NE(Do(2203, children[2].c_str(), 260, nullptr), 0);
  Check(children[3]);
}

}  // namespace
