/// \file
/// What a compare tree has to show, by the plainest means: every node's labels, written and summed up over whole lists.
#ifndef OXECAD_TESTS_UICOMPS_COMPARE_COMPAREMODEL_H
#define OXECAD_TESTS_UICOMPS_COMPARE_COMPAREMODEL_H

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace compare_tests {

constexpr unsigned kUnread = 0xFFFFFFFFu;

/// A node's cells as texts; `dim` as a number. Headings have no dim box: theirs is unread and ignores what is written.
struct ModelNode {
  std::string name;
  int parent = -1;
  bool compare = true;
  std::vector<int> children;
  std::map<std::string, std::string> cells;  // "a", "b", "overlap": "5", "<mix>" or ""; "showMode": its label
  unsigned dim = kUnread;
};

/// Six values of a node.
struct ModelValues {
  unsigned a;
  unsigned b;
  unsigned overlap;
  int show;
  unsigned dim;
  unsigned flag;
};

class CompareModel {
 public:
  std::vector<ModelNode> nodes;

  int Add(const std::string& name, int parent, int before, bool compare) {
    const int node = static_cast<int>(nodes.size());
    nodes.push_back({name, parent, compare, {}, {}, compare ? 0 : kUnread});
    if (parent < 0) return node;
    std::vector<int>& row = nodes[parent].children;
    row.insert(before < 0 ? row.end() : std::find(row.begin(), row.end(), before), node);
    return node;
  }

  /// Children of a node, if it sums any up.
  std::vector<int> Summed(int node) const {
    const std::vector<int>& children = nodes[node].children;
    return !children.empty() && nodes[children.front()].compare ? children : std::vector<int>{};
  }

  static std::string ColorText(unsigned color) { return color == kUnread ? "<mix>" : std::to_string(color); }
  static std::string ShowText(int mode) {
    constexpr const char* kTexts[] = {"<mix_show>", "<both_show>", "<a_show>",       "<b_show>",
                                      "<a-b_show>", "<b-a_show>",  "<overlap_show>", "<diff_show>"};
    return kTexts[mode + 1];
  }

  // --- Down ----------------------------------------------------------------------------------------------------------

  void Write(int node, const ModelValues& v) {
    ModelNode& n = nodes[node];
    n.cells["showMode"] = ShowText(v.show);
    if (n.compare) n.dim = v.dim;
    n.cells["a"] = (v.flag & 1) != 0 ? ColorText(v.a) : "";
    n.cells["b"] = (v.flag & 2) != 0 ? ColorText(v.b) : "";
    n.cells["overlap"] = v.flag == 3 ? ColorText(v.overlap) : "";
  }
  void WriteBranch(int node, const ModelValues& v) {
    for (const int child : Summed(node)) WriteBranch(child, v);
    Write(node, v);
  }
  void WriteBranch(int node, const std::string& column, const std::string& text) {
    for (const int child : Summed(node)) WriteBranch(child, column, text);
    nodes[node].cells[column] = text;
  }
  void WriteDimBranch(int node, unsigned dim) {
    for (const int child : Summed(node)) WriteDimBranch(child, dim);
    if (nodes[node].compare) nodes[node].dim = dim;
  }

  // --- Up ------------------------------------------------------------------------------------------------------------

  /// The common text of a column: empty ones do not count where `spare_empty`.
  std::string Common(const std::vector<int>& children, const std::string& column, bool spare_empty) {
    std::set<std::string> texts;
    for (const int child : children) texts.insert(nodes[child].cells[column]);
    if (spare_empty && texts.size() > 1) texts.erase("");
    return texts.size() == 1 ? *texts.begin() : column == "showMode" ? "<mix_show>" : "<mix>";
  }
  unsigned CommonDim(const std::vector<int>& children) const {
    std::set<unsigned> states;
    for (const int child : children) states.insert(nodes[child].dim);
    return states.size() == 1 ? *states.begin() : 2;
  }

  /// Sums all six up, and above as long as something changes. Gives how many nodes were written.
  int SumUp(int node) {
    int changed = 0;
    for (; node >= 0; node = nodes[node].parent) {
      const std::vector<int> children = Summed(node);
      if (children.empty()) break;
      ModelNode& n = nodes[node];
      ModelNode summary = n;
      for (const char* column : {"a", "b"}) summary.cells[column] = Common(children, column, true);
      const bool both = !summary.cells["a"].empty() && !summary.cells["b"].empty();
      const std::string overlap = Common(children, "overlap", true);
      // A node of both designs whose children have no overlap shows that it has no single colour there.
      summary.cells["overlap"] = !both ? "" : overlap.empty() ? "<mix>" : overlap;
      const std::string show = Common(children, "showMode", false);
      summary.cells["showMode"] = show.empty() ? "<mix_show>" : show;
      summary.dim = CommonDim(children);
      if (SameValues(n, summary, overlap)) break;
      const unsigned dim = n.compare ? summary.dim : n.dim;
      n = summary;
      n.dim = dim;
      ++changed;
    }
    return changed;
  }
  void SumColorUp(int node, const std::string& column) {
    for (; node >= 0; node = nodes[node].parent) {
      const std::vector<int> children = Summed(node);
      if (children.empty()) return;
      const std::string common = Common(children, column, true);
      if (nodes[node].cells[column] == common) return;
      nodes[node].cells[column] = common;
    }
  }
  void SumShowUp(int node) {
    for (; node >= 0; node = nodes[node].parent) {
      const std::vector<int> children = Summed(node);
      if (children.empty()) return;
      const std::string show = Common(children, "showMode", false);
      const std::string common = show.empty() ? "<mix_show>" : show;
      if (Shown(nodes[node]) == common) return;
      nodes[node].cells["showMode"] = common;
    }
  }
  void SumDimUp(int node) {
    for (; node >= 0; node = nodes[node].parent) {
      const std::vector<int> children = Summed(node);
      if (children.empty()) return;
      const unsigned dim = CommonDim(children);
      if (nodes[node].dim == dim) return;
      if (nodes[node].compare) nodes[node].dim = dim;
    }
  }

 private:
  /// An empty show-mode cell says the same as a mixed one.
  static std::string Shown(const ModelNode& node) {
    const auto cell = node.cells.find("showMode");
    return cell == node.cells.end() || cell->second.empty() ? "<mix_show>" : cell->second;
  }
  static std::string Cell(const ModelNode& node, const char* column) {
    const auto cell = node.cells.find(column);
    return cell == node.cells.end() ? "" : cell->second;
  }
  /// Whether the values that are read from two nodes are the same. `overlap` is what the summary's cell is made from.
  static bool SameValues(const ModelNode& now, const ModelNode& summary, const std::string& overlap) {
    const auto value = [](const std::string& text) { return text.empty() ? std::string("<mix>") : text; };
    for (const char* column : {"a", "b"}) {
      if (Cell(now, column) != Cell(summary, column)) return false;
    }
    return value(Cell(now, "overlap")) == value(overlap) && Shown(now) == Shown(summary) && now.dim == summary.dim;
  }
};

}  // namespace compare_tests

#endif
