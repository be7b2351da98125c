/// \file
/// Data and trees that the rows have in common.
#ifndef OXECAD_BENCH_REPORTING_STAGE_H
#define OXECAD_BENCH_REPORTING_STAGE_H

#include <uicomps/color/ColorTree.h>
#include <uicomps/compare/CompareColorTree.h>
#include <uicomps/tree/Tree.h>
#include <uiox/Suite.h>

#include <QString>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "bench/Labels.h"

namespace oxecad_bench {

constexpr unsigned int kRed = 0x0000FF;
constexpr unsigned int kBlue = 0xFF0000;

/// Nets that differ by name and label, in random order.
struct Nets {
  explicit Nets(std::size_t count);

  std::vector<std::string> names;    ///< "net0", "net1" ...
  std::vector<std::wstring> labels;  ///< as designs have them
  std::vector<QString> texts;        ///< the labels for Qt
};

/// "g5", the name of a branch below "root", and "g5/l7", that of a leaf below it.
std::string GroupName(std::size_t group);
std::string LeafName(std::size_t group, std::size_t leaf);

/// Nodes in three levels: the root, groups, and leaves below each group.
struct Shape {
  std::size_t groups = 0;
  std::size_t leaves = 0;  ///< of each group

  /// So many nodes, with 99 leaves to a group; a few less where that does not come out even.
  static Shape OfNodes(std::size_t nodes) { return {nodes / 100, 99}; }
  std::size_t Nodes() const { return 1 + groups * (1 + leaves); }
};

/// A suite with the tree "tree" of the device "bench" and nothing else.
void SetStage();

/// A tree of the kind `T` on the stand-in, alone on the stage for its lifetime.
template <class T>
class Staged : public T {
 public:
  Staged() : T("bench", "tree") {
    SetStage();
    Begin(*this);
  }
  ~Staged() override { uiox::Suite::Get().Reset(); }
  Staged(const Staged&) = delete;
  Staged& operator=(const Staged&) = delete;

  /// Adds a node as the base of all trees does, without order or summaries.
  void Append(const std::string& name, const char* parent, const char* type = "net") {
    T::BaseTree::AddNode(name.c_str(), L"net", parent, type, L"", 1, 1, 0, nullptr);
  }

 private:
  static void Begin(oxecad_ui::ColorTree& tree) { tree.Init(nullptr); }
  static void Begin(oxecad_ui::CompareColorTree& tree) { tree.Init(nullptr); }
  static void Begin(oxecad_ui::Tree& tree) { tree.Init(); }
};

/// A tree with sorted children, whose root is there.
class NetTree : public Staged<oxecad_ui::Tree> {
 public:
  NetTree() { Append("root", ""); }
};

/// Records for a colour tree: the root, groups, leaves. `colorOf(group)` gives the colour of a group's leaves.
template <class ColorOf>
std::vector<oxecad_ui::ColorTree::ColorNodeInfo> ColorRecords(const Shape& shape, const ColorOf& colorOf);

}  // namespace oxecad_bench

template <class ColorOf>
std::vector<oxecad_ui::ColorTree::ColorNodeInfo> oxecad_bench::ColorRecords(const Shape& shape,
                                                                            const ColorOf& colorOf) {
  std::vector<oxecad_ui::ColorTree::ColorNodeInfo> records;
  records.reserve(shape.Nodes());
  const auto add = [&](std::string name, unsigned int color) {
    auto& record = records.emplace_back();
    record.name = std::move(name);
    record.label = L"net";
    record.color = color;
  };
  add("root", colorOf(std::size_t{0}));
  for (std::size_t group = 0; group < shape.groups; ++group) {
    add(GroupName(group), colorOf(group));
    for (std::size_t leaf = 0; leaf < shape.leaves; ++leaf) add(LeafName(group, leaf), colorOf(group));
  }
  return records;
}

#endif
