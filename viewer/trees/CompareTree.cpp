#include <viewer/trees/CompareTree.h>
#include <viewer/trees/ComponentTree.h>
#include <viewer/trees/LayerTree.h>
#include <viewer/trees/NaturalNames.h>
#include <viewer/trees/NodeName.h>
#include <viewer/trees/TreeTexts.h>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <utility>

#include <oxecadutils/StringConversion.h>
#include <uicomps/base/WidgetOf.h>
#include <uicomps/toolkit/CellCalls.h>

namespace oxviewer {
namespace {

using oxecad_ui::CompareColorTree;
using oxecadutils::Utf8ToWideStr;
using ShowMode = oxk::ecad::CompareColorVis::ShowMode;
using Kind = CompareSubject::Kind;
namespace wire = oxecad_ui::wire;

constexpr const char* kRoot = "root";
constexpr const char* kLayers = "layers";
constexpr const char* kComponents = "components";
constexpr const char* kNets = "nets";
constexpr const char* kDifferenceColumn = "difference";

const char* NodeKind(Kind kind) {
  switch (kind) {
    case Kind::Layer:
      return "layer";
    case Kind::Component:
      return "component";
    case Kind::Net:
      break;
  }
  return "net";
}

// The name of a file without its folders.
std::string FileName(const std::string& path) { return path.substr(path.find_last_of('/') + 1); }

std::string Joined(const std::vector<Finding>& findings) {
  std::string text;
  for (const Finding finding : findings) {
    if (!text.empty()) text += ", ";
    text += TreeText(NameOf(finding));
  }
  return text;
}

void AppendCount(std::size_t count, const char* what, std::string& text) {
  if (count == 0) return;
  if (!text.empty()) text += ", ";
  text += std::to_string(count) + ' ' + TreeText(what);
}

std::string SummaryOf(const SectionDiff& section) {
  if (section.Equal()) return TreeText("equal");
  std::string text;
  AppendCount(section.changed.size(), "changed", text);
  AppendCount(section.onlyA.size(), "only in A", text);
  AppendCount(section.onlyB.size(), "only in B", text);
  return text;
}

struct Entry {
  CompareSubject subject;
  std::string difference;
};

std::vector<Entry> EntriesOf(Kind kind, const SectionDiff& section) {
  std::vector<Entry> entries;
  const auto add = [&](const std::string& name, std::int32_t a, std::int32_t b, std::string difference) {
    entries.push_back({{kind, {}, name, a, b, !difference.empty()}, std::move(difference)});
  };
  for (const Unmatched& item : section.onlyA) add(item.name, item.id, -1, TreeText("only in A"));
  for (const Unmatched& item : section.onlyB) add(item.name, -1, item.id, TreeText("only in B"));
  for (const Matched& item : section.changed) add(item.name, item.a, item.b, Joined(item.findings));
  for (const Matched& item : section.equal) add(item.name, item.a, item.b, {});
  return entries;
}

// Says of a net that only one board has what it is called in the other.
void NameRenamed(const std::vector<RenamedNet>& renamed, std::vector<Entry>& entries) {
  std::map<std::int32_t, const std::string*> inB;  // by the id in A, and the other way round
  std::map<std::int32_t, const std::string*> inA;
  for (const RenamedNet& net : renamed) {
    inB.emplace(net.a.id, &net.b.name);
    inA.emplace(net.b.id, &net.a.name);
  }
  for (Entry& entry : entries) {
    if (entry.subject.b < 0 && inB.count(entry.subject.a) > 0) {
      entry.difference += ", " + TreeText("in B") + ' ' + *inB.at(entry.subject.a);
    } else if (entry.subject.a < 0 && inA.count(entry.subject.b) > 0) {
      entry.difference += ", " + TreeText("in A") + ' ' + *inA.at(entry.subject.b);
    }
  }
}

// Layers as A has them, those of B alone behind; everything else in natural order.
void PutInOrder(Kind kind, std::vector<Entry>& entries) {
  if (kind == Kind::Layer) {
    const auto rank = [](const Entry& entry) {
      return std::make_tuple(entry.subject.a < 0, entry.subject.a, entry.subject.b);
    };
    std::sort(entries.begin(), entries.end(), [&](const Entry& x, const Entry& y) { return rank(x) < rank(y); });
    return;
  }
  const NameOrder natural = NaturalNameOrder();
  std::vector<std::pair<std::wstring, Entry>> labelled;
  for (Entry& entry : entries) labelled.emplace_back(natural.widen(entry.subject.name), std::move(entry));
  std::stable_sort(labelled.begin(), labelled.end(),
                   [&](const auto& x, const auto& y) { return natural.less(x.first, y.first); });
  entries.clear();
  for (auto& [label, entry] : labelled) entries.push_back(std::move(entry));
}

CompareColorTree::DesignFlag DesignsOf(const CompareSubject& subject) {
  if (subject.a < 0) return CompareColorTree::DesignB;
  return subject.b < 0 ? CompareColorTree::DesignA : CompareColorTree::DesignBoth;
}

}  // namespace

CompareTree::CompareTree(const char* device, const Board& a, const Board& b, const BoardDiff& diff)
    : CompareColorTree(device, kName), a_(a), b_(b), diff_(diff) {
  SetOnDirtyHandler(&CompareTree::DirtyCB, this, &changed_);
}

CompareTree::~CompareTree() { CompareColorTree::Clear(); }

void CompareTree::Fill(oxcore::Mainframe* mainframe) {
  Init(mainframe);
  std::vector<CompareNodeInfo> nodes;
  nodes.push_back(
      Heading(kRoot, Utf8ToWideStr(FileName(a_.name) + ' ' + TreeText("and") + ' ' + FileName(b_.name)), true));
  for (const Section& section : Sections()) {
    nodes.push_back(Heading(section.heading, WideTreeText(section.label), !section.diff.Equal()));
  }
  for (const Section& section : Sections()) AddSubjects(section, nodes);
  AddNodes(nodes);
  ShowDifferences();
}

std::vector<CompareTree::Section> CompareTree::Sections() const {
  return {{Kind::Layer, kLayers, "Layers", diff_.layers},
          {Kind::Component, kComponents, "Components", diff_.components},
          {Kind::Net, kNets, "Nets", diff_.nets}};
}

CompareTree::CompareNodeInfo CompareTree::Heading(const char* node, const std::wstring& label, bool expanded) {
  CompareNodeInfo info;
  info.name = node;
  info.label = label;
  info.type = s_compareType;
  info.expanded = expanded;
  return info;
}

void CompareTree::AddSubjects(const Section& section, std::vector<CompareNodeInfo>& nodes) {
  std::vector<Entry> entries = EntriesOf(section.kind, section.diff);
  if (section.kind == Kind::Net) NameRenamed(diff_.renamed, entries);
  PutInOrder(section.kind, entries);
  for (Entry& entry : entries) {
    entry.subject.node = UniqueNode(section, entry.subject.name);
    nodes.push_back(NodeOf(entry.subject));
    positions_.emplace(entry.subject.node, subjects_.size());
    subjects_.push_back(std::move(entry.subject));
    differences_.push_back(std::move(entry.difference));
  }
}

CompareTree::CompareNodeInfo CompareTree::NodeOf(const CompareSubject& subject) const {
  CompareNodeInfo info;
  info.name = subject.node;
  info.type = s_compareType;
  info.colorA = kColorA;
  info.colorB = kColorB;
  info.colorOverlap = kColorOverlap;
  info.designFlag = DesignsOf(subject);
  std::string label = subject.name;
  const auto& board = subject.a >= 0 ? a_ : b_;
  const auto position = static_cast<std::size_t>(subject.a >= 0 ? subject.a : subject.b);
  if (subject.kind == Kind::Layer) label = LayerLabel(board.layers[position]);
  if (subject.kind == Kind::Component) label = ComponentLabel(board.components[position]);
  info.label = Utf8ToWideStr(label);
  return info;
}

// A record is placed by its name: below the node in front of the last '/'.
std::string CompareTree::UniqueNode(const Section& section, const std::string& name) {
  std::string node = std::string(section.heading) + '/' + NodeName(NodeKind(section.kind), name);
  const int number = ++used_[node];
  return number == 1 ? node : node + ':' + std::to_string(number);
}

void CompareTree::ShowDifferences() {
  const auto show = [this](const char* node, const std::string& text) {
    const std::wstring words = Utf8ToWideStr(text);
    wire::SetCell(oxecad_ui::WidgetOf(*this), {node, kDifferenceColumn}, wire::kCellLabel(words.c_str()));
  };
  SetRedraw(false);
  for (const Section& section : Sections()) show(section.heading, SummaryOf(section.diff));
  for (std::size_t subject = 0; subject < subjects_.size(); ++subject) {
    show(subjects_[subject].node.c_str(), differences_[subject]);
  }
  SetRedraw(true);
}

CompareLook CompareTree::LookOf(std::size_t subject) const {
  const std::unique_ptr<NodeInfo> info(GetNodeInfo(subjects_[subject].node.c_str()));
  const auto* compare = dynamic_cast<const CompareNodeInfo*>(info.get());
  if (!compare) return {};
  return {compare->colorA, compare->colorB, compare->colorOverlap, compare->showMode, compare->dim == Checked};
}

void CompareTree::SetLook(std::size_t subject, const CompareLook& look) {
  ChangeNodeInfo(subjects_[subject].node.c_str(), look.colorA, look.colorB, look.colorOverlap, look.showMode,
                 look.dimOverlap ? Checked : Unchecked, DesignsOf(subjects_[subject]));
}

std::size_t CompareTree::SubjectOf(const std::string& node) const {
  const auto found = positions_.find(node);
  return found == positions_.end() ? kNone : found->second;
}

std::size_t CompareTree::NextDifference(std::size_t from, bool backwards,
                                        const std::function<bool(std::size_t)>& accept) const {
  const std::size_t count = subjects_.size();
  std::size_t at = from < count ? from : backwards ? 0 : count - 1;
  for (std::size_t step = 0; step < count; ++step) {
    at = (at + (backwards ? count - 1 : 1)) % count;
    if (subjects_[at].differs && accept(at)) return at;
  }
  return kNone;
}

bool CompareTree::Matches(std::size_t subject, const TextTest& test) const {
  return test(subjects_[subject].name) || test(differences_[subject]);
}

void CompareTree::OnSelect(int count, char** nodes, int /*kind*/) {
  selected_.clear();
  for (int i = 0; i < count; ++i) {
    std::vector<std::string> leaves;
    GetLeaves(nodes[i], leaves);
    for (const std::string& leaf : leaves) {
      if (const std::size_t subject = SubjectOf(leaf); subject != kNone) selected_.push_back(subject);
    }
  }
  std::sort(selected_.begin(), selected_.end());
  selected_.erase(std::unique(selected_.begin(), selected_.end()), selected_.end());
  if (onSelection_) onSelection_();
}

int CompareTree::DirtyCB(void* client, void* reason) {
  auto* self = static_cast<CompareTree*>(client);
  if (reinterpret_cast<std::intptr_t>(reason) == ValueChanged && self->onChange_) self->onChange_();
  return 0;
}

}  // namespace oxviewer
