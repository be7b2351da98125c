/// \file
/// What parents say of their children while many nodes are added.
#ifndef OXECAD_UI_TREE_BRANCHSUMMARIES_H
#define OXECAD_UI_TREE_BRANCHSUMMARIES_H

#include <cstddef>
#include <string>
#include <unordered_map>
#include <vector>

namespace oxecad_ui {

/// Counts values and knows whether they are all the same. Constant time.
template <class Value>
class ValueCounts {
 public:
  void Add(Value value) { ++m_counts[value]; }
  void Remove(Value value) {
    const auto found = m_counts.find(value);
    if (found != m_counts.end() && --found->second == 0) m_counts.erase(found);
  }
  bool IsEmpty() const { return m_counts.empty(); }
  bool IsOne() const { return m_counts.size() == 1; }
  /// The value that all have in common. Needs `IsOne`.
  Value One() const { return m_counts.begin()->first; }

 private:
  std::unordered_map<Value, std::size_t> m_counts;
};

/// Keeps the summaries of branches in memory, so that a load reads the children of a parent once and not for each node
/// that is added, and writes each parent once. What is written is what summing up after each node would have left: a
/// branch is summed up when it gets a child, and its ancestors as long as something changes.
///
/// A `Model` knows the tree:
/// - `Value`: what a node says to its parent, and `Tally`: values of children, with `Add`, `Remove` and `IsEmpty`;
/// - `Value Read(const char* node)`, `std::string ReadParent(const char* node)`;
/// - `ForEachChild(node, visit)`: visits the names of the children that count;
/// - `bool Summarize(const Tally&, Value& value)`: whether the summary differs from a branch's value, which then
/// becomes
///   what writing the summary makes of it;
/// - `Write(const char* node, const Value&)`.
template <class Model>
class BranchSummaries {
 public:
  using Value = typename Model::Value;
  using Tally = typename Model::Tally;

  class Branch {
    friend class BranchSummaries;
    const std::string* name = nullptr;
    Value value{};
    Tally tally;
    bool isRead = false;
    bool isWritten = false;
  };

  explicit BranchSummaries(Model& model) : m_model(model) {}

  /// The branch of a node, read from the tree when it is asked for first.
  Branch& Enter(const std::string& node) {
    if (m_last != nullptr && *m_last->name == node) return *m_last;
    Branch& branch = Find(node);
    if (!branch.isRead) Read(branch);
    m_last = &branch;
    return branch;
  }

  /// A node, which was no branch before, came into being: if its parent is known, it counts from now on.
  void CountIfKnown(const std::string& parent, const char* node) {
    const auto found = m_branches.find(parent);
    if (found != m_branches.end() && found->second.isRead) found->second.tally.Add(m_model.Read(node));
  }
  void Count(Branch& branch, const Value& child) { branch.tally.Add(child); }

  /// Sums up the children of a branch, and of its ancestors as long as something changes.
  void Update(Branch& branch) {
    Branch* each = &branch;
    while (each != nullptr && !each->tally.IsEmpty()) {
      const Value before = each->value;
      if (!m_model.Summarize(each->tally, each->value)) return;
      each->isWritten = true;
      each = TellParent(*each, before);
    }
  }

  /// A branch without children may be no node at all yet; it is read again when it is asked for next.
  void ForgetIfEmpty(Branch& branch) {
    if (!branch.tally.IsEmpty()) return;
    branch.isRead = false;
    m_last = nullptr;
  }

  /// Writes the branches that have changed, in the order in which they were met.
  void Write() const {
    for (const Branch* branch : m_order) {
      if (branch->isWritten) m_model.Write(branch->name->c_str(), branch->value);
    }
  }

 private:
  Branch& Find(const std::string& node) {
    const auto [found, isNew] = m_branches.try_emplace(node);
    if (isNew) {
      m_order.push_back(&found->second);
      found->second.name = &found->first;
    }
    return found->second;
  }

  void Read(Branch& branch) {
    branch.value = m_model.Read(branch.name->c_str());
    branch.tally = Tally();
    m_model.ForEachChild(branch.name->c_str(), [&](const char* child) {
      // What is known here is newer than what the tree shows.
      const auto known = m_branches.find(child);
      const bool isNewer = known != m_branches.end() && known->second.isRead;
      branch.tally.Add(isNewer ? known->second.value : m_model.Read(child));
    });
    branch.isRead = true;
  }

  Branch* TellParent(const Branch& branch, const Value& before) {
    const std::string parent = m_model.ReadParent(branch.name->c_str());
    if (parent.empty()) return nullptr;
    Branch& above = Find(parent);
    if (!above.isRead) {
      Read(above);
    } else {
      above.tally.Remove(before);
      above.tally.Add(branch.value);
    }
    return &above;
  }

  Model& m_model;
  std::unordered_map<std::string, Branch> m_branches;
  std::vector<const Branch*> m_order;
  Branch* m_last = nullptr;
};

}  // namespace oxecad_ui

#endif
