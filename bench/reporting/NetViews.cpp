#include "bench/reporting/NetViews.h"

#include <uicomps/base/NoRedraw.h>
#include <uiox_qt/QtFront.h>
#include <uiox_qt/TreeView.h>
#include <viewer/window/FilterLine.h>

#include <QApplication>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>
#include <numeric>
#include <stdexcept>

namespace oxecad_bench {

using oxecad_ui::Tree;

// --- Both ------------------------------------------------------------------------------------------------------------

NetView::NetView() : window_(std::make_unique<QWidget>()) {}

NetView::~NetView() = default;

void NetView::Show(QWidget& content) {
  auto* layout = new QVBoxLayout(window_.get());
  layout->addWidget(&content);
  window_->resize(320, 860);
  window_->show();
  Paint();
}

void NetView::Paint() {
  QApplication::processEvents();
  View().viewport()->repaint();
}

// --- Ours ------------------------------------------------------------------------------------------------------------

OurView::OurView() {
  static const char kDescription[] = R"({"components": [{
    "name": "tree", "class": "Tree", "selection": "multiple", "rootShown": true, "headerShown": false,
    "label": {"title": "Net", "markup": false}}]})";
  uiox::Suite::Get().Reset();
  front_ = std::make_unique<uiox_qt::QtFront>();
  std::string why;
  uiox::Device* const device = uiox::Suite::Get().LoadDevice(kDescription, "bench", &why);
  if (device == nullptr) throw std::logic_error(why);
  panel_ = std::make_unique<oxviewer::TreePanel>(*front_->TreeViewFor("bench", "tree"), QStringLiteral("Filter nets"));
  device->Show();
  tree_.emplace("bench", "tree");
  tree_->Init();
  Show(*panel_);
}

OurView::~OurView() {
  tree_.reset();
  panel_.reset();
  front_.reset();
  uiox::Suite::Get().Reset();
}

void OurView::Fill(const NetsToShow& shown) {
  const Nets& nets = shown.nets;
  tree_->BaseTree::AddNode("root", L"Nets", "", "nets", L"", 1, 1, 0, nullptr);
  const oxecad_ui::NoRedraw noRedraw(*tree_);
  std::vector<std::string> groups = {"root"};
  if (shown.parents > 1) {
    groups.clear();
    for (std::size_t group = 0; group < shown.parents; ++group) {
      const std::string& name = groups.emplace_back(GroupName(group));
      tree_->BaseTree::AddNode(name.c_str(), L"Group", "root", "netclass", L"", 1, 0, 0, nullptr);
    }
  }
  std::vector<Tree::EcadNode> nodes(nets.names.size());
  for (std::size_t net = 0; net < nodes.size(); ++net) {
    nodes[net].name = nets.names[net].c_str();
    nodes[net].label = nets.labels[net].c_str();
    nodes[net].parent = groups[net % groups.size()].c_str();
    nodes[net].type = "net";
    nodes[net].i1 = 1;
  }
  tree_->AddEcadNodes(nodes, Tree::ByLabel);
}

void OurView::ExpandAll() { tree_->ExpandAll(); }

void OurView::CollapseAll() { tree_->CollapseAll(); }

void OurView::SetLabel(std::size_t net, const std::wstring& label) {
  tree_->ModifyNodeLabel(("net" + std::to_string(net)).c_str(), label.c_str());
}

void OurView::Filter(const QString& text) { panel_->Filter().setText(text); }

QTreeView& OurView::View() { return panel_->View(); }

// --- A Qt programmer's -----------------------------------------------------------------------------------------------

namespace {

class NetItem : public QStandardItem {
 public:
  NetItem(const QString& text, const QCollator& collator) : QStandardItem(text), collator_(collator) {}
  bool operator<(const QStandardItem& other) const override { return collator_.compare(text(), other.text()) < 0; }

 private:
  QCollator collator_;  // its data is shared by all items
};

std::vector<std::size_t> AsTheyCome(const NetsToShow& shown) {
  std::vector<std::size_t> order(shown.nets.texts.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  return order;
}

}  // namespace

PeerView::PeerView() {
  view_.setUniformRowHeights(true);
  view_.setHeaderHidden(true);
  view_.setSelectionMode(QAbstractItemView::ExtendedSelection);
  proxy_.setRecursiveFilteringEnabled(true);
  proxy_.setFilterCaseSensitivity(Qt::CaseInsensitive);
  Show(view_);
}

PeerView::~PeerView() {
  view_.setModel(nullptr);
  view_.setParent(nullptr);
}

void PeerView::Fill(const NetsToShow& shown) { FillInOrder(shown, AsTheyCome(shown), true); }

void KeySortedPeerView::Fill(const NetsToShow& shown) {
  const QCollator collator = NaturalCollator();
  std::vector<QCollatorSortKey> keys;
  keys.reserve(shown.nets.texts.size());
  for (const QString& text : shown.nets.texts) keys.push_back(collator.sortKey(text));
  std::vector<std::size_t> order = AsTheyCome(shown);
  std::sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) { return keys[a] < keys[b]; });
  FillInOrder(shown, order, false);
}

void PeerView::FillInOrder(const NetsToShow& shown, const std::vector<std::size_t>& order, bool sorts) {
  const QCollator collator = NaturalCollator();
  auto* const root = new QStandardItem(QStringLiteral("Nets"));
  std::vector<QList<QStandardItem*>> children(shown.parents);
  items_.resize(order.size());
  for (const std::size_t net : order) {
    items_[net] = new NetItem(shown.nets.texts[net], collator);
    children[net % shown.parents].append(items_[net]);
  }
  const auto fill = [sorts](QStandardItem& parent, const QList<QStandardItem*>& nets) {
    parent.appendRows(nets);
    if (sorts) parent.sortChildren(0);
  };
  if (shown.parents == 1) {
    fill(*root, children.front());
  } else {
    for (const QList<QStandardItem*>& group : children) fill(*AppendItem(*root, QStringLiteral("Group")), group);
  }
  model_.appendRow(root);
  view_.setModel(&model_);
  view_.expand(model_.index(0, 0));
}

void PeerView::ExpandAll() { view_.expandAll(); }

void PeerView::CollapseAll() {
  view_.collapseAll();
  view_.expand(view_.model()->index(0, 0));
}

void PeerView::SetLabel(std::size_t net, const std::wstring& label) {
  items_[net]->setText(QString::fromStdWString(label));
}

void PeerView::Filter(const QString& text) {
  if (view_.model() != &proxy_) {
    proxy_.setSourceModel(&model_);
    view_.setModel(&proxy_);
  }
  proxy_.setFilterFixedString(text);
  view_.expandAll();
}

}  // namespace oxecad_bench
