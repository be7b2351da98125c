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

/// "g5", the name of a branch below "root".
std::string GroupName(std::size_t group);

/// Nets in three levels: the root, groups, and so many leaves below each group. A net's name tells its group, as colour
/// and compare trees need it. Nets come in the order in which a design names them: one group's after another's.
struct GroupedNets {
  GroupedNets(std::size_t groups, std::size_t leaves);
  /// So many nodes, with 99 leaves to a group.
  static GroupedNets OfNodes(std::size_t nodes) { return {nodes / 100, 99}; }

  std::size_t Nodes() const { return 1 + groups + nets.names.size(); }
  std::size_t GroupOf(std::size_t net) const { return net % groups; }

  std::size_t groups;
  Nets nets;
};

/// The number of nodes of the tree on the stage.
std::size_t NodesOnStage();

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

/// Calls `add(name, parent, label, group)` for the root, the groups and the nets.
template <class Add>
void ForEachNode(const GroupedNets& grouped, const Add& add) {
  add(std::string("root"), std::string(), std::wstring(L"Nets"), std::size_t{0});
  for (std::size_t group = 0; group < grouped.groups; ++group) {
    add(GroupName(group), std::string("root"), std::wstring(L"Group"), group);
  }
  for (std::size_t net = 0; net < grouped.nets.names.size(); ++net) {
    const std::size_t group = grouped.GroupOf(net);
    add(grouped.nets.names[net], GroupName(group), grouped.nets.labels[net], group);
  }
}

/// Records for a colour or compare tree; `complete(record, group)` adds what is particular to a record.
template <class Info, class Complete>
std::vector<Info> RecordsOf(const GroupedNets& grouped, const Complete& complete) {
  std::vector<Info> records;
  records.reserve(grouped.Nodes());
  ForEachNode(grouped, [&](const std::string& name, const std::string&, const std::wstring& label, std::size_t group) {
    Info& record = records.emplace_back();
    record.name = name;
    record.label = label;
    complete(record, group);
  });
  return records;
}

}  // namespace oxecad_bench

#endif
