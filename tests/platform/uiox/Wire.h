/// \file
/// Calls on the wire for tests: every argument in a slot of its own, the closing 0 added.
#ifndef OXECAD_TESTS_PLATFORM_UIOX_WIRE_H
#define OXECAD_TESTS_PLATFORM_UIOX_WIRE_H

#include <gtest/gtest.h>
#include <uicomps/toolkit/Toolkit.h>
#include <uiox/Suite.h>

#include <cstdint>
#include <string>
#include <type_traits>
#include <vector>

namespace uiox_test {

template <class T>
auto Slot(T value) {
  if constexpr (std::is_enum_v<T>) {
    return static_cast<std::intptr_t>(value);
  } else if constexpr (std::is_integral_v<T> && std::is_unsigned_v<T>) {
    return static_cast<std::uintptr_t>(value);
  } else if constexpr (std::is_integral_v<T>) {
    return static_cast<std::intptr_t>(value);
  } else if constexpr (std::is_null_pointer_v<T>) {
    return static_cast<void*>(nullptr);
  } else {
    return value;
  }
}

constexpr std::intptr_t kEnd = 0;

/// A suite with nothing in it but the device "dev" with the tree "tree" and the columns "a" and "b".
class WireTest : public testing::Test {
 protected:
  WireTest() = default;
  ~WireTest() override { suite.Reset(); }

  uiox::Suite& suite = Fresh();
  uiox::TreeWidget& tree = suite.ObtainTree("dev", "tree", {"a", "b"});
  uiox::TreeStore& store = tree.Store();

  template <class... Arguments>
  static int Do(int operation, Arguments... arguments) {
    return ui_do_operation("dev", "tree", operation, Slot(arguments)..., kEnd);
  }
  template <class... Arguments>
  static int Retrieve(const char* component, Arguments... arguments) {
    return ui_retrieve("dev", component, Slot(arguments)..., kEnd);
  }
  template <class... Arguments>
  static int Modify(const char* component, Arguments... arguments) {
    return ui_modify("dev", component, Slot(arguments)..., kEnd);
  }

  /// Adds a node with the label of its name.
  static int Add(const std::string& name, const char* parent) {
    return Do(2029, name.c_str(), std::wstring(name.begin(), name.end()).c_str(), parent, "type");
  }
  uiox::NodeId Node(const char* name) const {
    const uiox::NodeId node = store.Find(name);
    EXPECT_NE(node, uiox::kNoNode) << name;
    return node;
  }
  /// The children's names, one blank between.
  std::string Children(uiox::NodeId node) const {
    std::vector<uiox::NodeId> children;
    store.AppendChildren(node, children);
    std::string names;
    for (const uiox::NodeId child : children) names += (names.empty() ? "" : " ") + std::string(store.Name(child));
    return names;
  }
  std::string Children(const char* node) const { return Children(Node(node)); }

 private:
  static uiox::Suite& Fresh() {
    uiox::Suite::Get().Reset();
    return uiox::Suite::Get();
  }
};

}  // namespace uiox_test

#endif
