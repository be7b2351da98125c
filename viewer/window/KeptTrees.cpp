#include <viewer/trees/Panels.h>
#include <viewer/window/BoardSession.h>
#include <viewer/window/ComparePanel.h>
#include <viewer/window/FilterLine.h>
#include <viewer/window/KeptTrees.h>
#include <viewer/window/MainWindow.h>
#include <viewer/window/TreePanel.h>

#include <QColor>
#include <QHeaderView>
#include <QJsonArray>

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace oxviewer {
namespace {

using ShowMode = oxk::ecad::CompareColorVis::ShowMode;

std::vector<std::pair<const char*, TreePanel*>> PanelsOf(const MainWindow& window) {
  return {{"layers", &window.LayersPanel()},
          {"nets", &window.NetsPanel()},
          {"components", &window.ComponentsPanel()},
          {"kinds", &window.PartsPanel()},
          {"compare", &window.Comparison().Panel()}};
}

QString TextOf(Color color) { return QColor(RedOf(color), GreenOf(color), BlueOf(color)).name(); }

/// kNoColor for what is no colour.
Color ColorIn(const QJsonValue& value) {
  const QColor color(value.toString());
  if (!color.isValid()) return kNoColor;
  return ColorOf(static_cast<std::uint32_t>(color.red()), static_cast<std::uint32_t>(color.green()),
                 static_cast<std::uint32_t>(color.blue()));
}

QString NameOf(const Layer& layer) { return QString::fromStdString(layer.name); }

// --- Layers and nets -------------------------------------------------------------------------------------------------

void SaveLayers(BoardSession& session, QJsonObject& kept) {
  const LayerTree& tree = session.Trees().Layers();
  QJsonObject shown = kept["shown"].toObject();
  QJsonObject colors = kept["layerColors"].toObject();
  const std::vector<Color> defaults = DefaultLayerColors(session.A());
  for (std::size_t i = 0; i < session.A().DeclaredLayerCount(); ++i) {
    const Layer& layer = session.A().layers[i];
    const auto id = static_cast<LayerId>(i);
    shown[NameOf(layer)] = tree.IsVisible(id);
    if (const Color color = tree.ColorOfLayer(id); color != defaults[i] && color != kNoColor) {
      colors[NameOf(layer)] = TextOf(color);
    } else {
      colors.remove(NameOf(layer));
    }
  }
  kept["shown"] = shown;
  kept["layerColors"] = colors;
  if (const LayerId active = tree.ActiveLayer(); active != kNoLayer) {
    kept["activeLayer"] = NameOf(session.A().layers[static_cast<std::size_t>(active)]);
  }
}

void ApplyLayers(BoardSession& session, const QJsonObject& kept) {
  LayerTree& tree = session.Trees().Layers();
  const QJsonObject shown = kept["shown"].toObject();
  const QJsonObject colors = kept["layerColors"].toObject();
  for (std::size_t i = 0; i < session.A().DeclaredLayerCount(); ++i) {
    const Layer& layer = session.A().layers[i];
    const auto id = static_cast<LayerId>(i);
    if (const QJsonValue visible = shown[NameOf(layer)]; visible.isBool()) tree.SetVisible(id, visible.toBool());
    if (const Color color = ColorIn(colors[NameOf(layer)]); color != kNoColor) tree.SetColor(id, color);
    if (layer.copper && kept["activeLayer"].toString() == NameOf(layer)) tree.SetActiveLayer(id);
  }
}

void SaveNets(const BoardSession& session, QJsonObject& kept) {
  QJsonObject colors = kept["netColors"].toObject();
  for (std::size_t i = 0; i < session.A().nets.size(); ++i) {
    const QString name = QString::fromStdString(session.A().nets[i].name);
    if (const Color color = session.NetColor(static_cast<NetId>(i)); color != kNoColor) {
      colors[name] = TextOf(color);
    } else if (!colors.isEmpty()) {
      colors.remove(name);
    }
  }
  kept["netColors"] = colors;
}

void ApplyNets(BoardSession& session, const QJsonObject& kept) {
  const QJsonObject colors = kept["netColors"].toObject();
  if (colors.isEmpty()) return;
  for (std::size_t i = 0; i < session.A().nets.size(); ++i) {
    const Color color = ColorIn(colors[QString::fromStdString(session.A().nets[i].name)]);
    if (color != kNoColor) session.SetNetColors({static_cast<NetId>(i)}, color);
  }
}

// --- The comparison --------------------------------------------------------------------------------------------------

constexpr CompareLook kFirstLook{CompareTree::kColorA, CompareTree::kColorB, CompareTree::kColorOverlap, ShowMode::Both,
                                 false};

// A look with the colours of both boards: a node of one board shows its own only.
CompareLook WithFirstColors(CompareLook look) {
  if (look.colorA == kNoColor) look.colorA = kFirstLook.colorA;
  if (look.colorB == kNoColor) look.colorB = kFirstLook.colorB;
  if (look.colorOverlap == kNoColor) look.colorOverlap = kFirstLook.colorOverlap;
  return look;
}

void SaveComparison(BoardSession& session, QJsonObject& kept) {
  const CompareTree* tree = session.Trees().Compare();
  if (!tree) return;
  QJsonObject looks = kept["comparison"].toObject();
  for (std::size_t i = 0; i < tree->Subjects().size(); ++i) {
    const QString node = QString::fromStdString(tree->Subjects()[i].node);
    const CompareLook look = WithFirstColors(tree->LookOf(i));
    if (look == kFirstLook) {
      looks.remove(node);
      continue;
    }
    looks[node] = QJsonObject{{"a", TextOf(look.colorA)},
                              {"b", TextOf(look.colorB)},
                              {"overlap", TextOf(look.colorOverlap)},
                              {"show", static_cast<int>(look.showMode)},
                              {"dim", look.dimOverlap}};
  }
  kept["comparison"] = looks;
}

void ApplyComparison(BoardSession& session, const QJsonObject& kept) {
  CompareTree* tree = session.Trees().Compare();
  const QJsonObject looks = kept["comparison"].toObject();
  if (!tree || looks.isEmpty()) return;
  for (std::size_t i = 0; i < tree->Subjects().size(); ++i) {
    const QJsonObject look = looks[QString::fromStdString(tree->Subjects()[i].node)].toObject();
    const int mode = look["show"].toInt(-1);
    if (mode < ShowMode::Both || mode > ShowMode::Diff) continue;
    tree->SetLook(i, WithFirstColors({ColorIn(look["a"]), ColorIn(look["b"]), ColorIn(look["overlap"]),
                                      static_cast<ShowMode>(mode), look["dim"].toBool()}));
  }
}

// --- Views -----------------------------------------------------------------------------------------------------------

void SaveView(const TreePanel& panel, QJsonObject& kept) {
  const uiox::TreeWidget* tree = panel.View().Tree();
  if (!tree) return;
  QJsonObject expanded = kept["expanded"].toObject();
  const uiox::TreeStore& store = tree->Store();
  std::vector<uiox::NodeId> waiting;
  store.AppendChildren(uiox::kTop, waiting);
  while (!waiting.empty()) {
    const uiox::NodeId node = waiting.back();
    waiting.pop_back();
    if (store.ChildCount(node) == 0) continue;
    expanded[QString::fromUtf8(store.Name(node))] = store.Expanded(node) != 0;
    store.AppendChildren(node, waiting);
  }
  kept["expanded"] = expanded;
  kept["filter"] = panel.Filter().text();
  kept["syntax"] = NameOf(panel.Filter().Syntax());
  QJsonArray widths;
  for (int i = 0; i < panel.View().header()->count(); ++i) widths.append(panel.View().columnWidth(i));
  kept["columns"] = widths;
}

void ApplyView(TreePanel& panel, const QJsonObject& kept) {
  uiox::TreeWidget* tree = panel.View().Tree();
  if (!tree) return;
  const QJsonObject expanded = kept["expanded"].toObject();
  for (auto node = expanded.begin(); node != expanded.end(); ++node) {
    const uiox::NodeId id = tree->Store().Find(node.key().toStdString());
    if (id != uiox::kNoNode && node->isBool()) tree->Store().SetExpanded(id, node->toBool() ? 1 : 0);
  }
  panel.Filter().SetSyntax(SyntaxNamed(kept["syntax"].toString().toStdString()));
  panel.Filter().setText(kept["filter"].toString());
  const QJsonArray widths = kept["columns"].toArray();
  constexpr int kWidest = 4000;
  if (widths.size() != panel.View().header()->count()) return;
  for (int i = 0; i < widths.size(); ++i) {
    // The other columns have the width that they need, or what is left.
    if (panel.View().header()->sectionResizeMode(i) != QHeaderView::Interactive) continue;
    const int width = widths[i].toInt();
    if (width > 0 && width <= kWidest) panel.View().setColumnWidth(i, width);
  }
}

}  // namespace

QJsonObject TreesOf(const MainWindow& window, QJsonObject kept) {
  if (!window.Session()) return kept;
  SaveLayers(*window.Session(), kept);
  SaveNets(*window.Session(), kept);
  SaveComparison(*window.Session(), kept);
  QJsonObject trees = kept["trees"].toObject();
  for (const auto& [name, panel] : PanelsOf(window)) {
    QJsonObject tree = trees[name].toObject();
    SaveView(*panel, tree);
    trees[name] = tree;
  }
  kept["trees"] = trees;
  return kept;
}

void PutTrees(MainWindow& window, const QJsonObject& kept) {
  if (!window.Session() || kept.isEmpty()) return;
  ApplyLayers(*window.Session(), kept);
  ApplyNets(*window.Session(), kept);
  ApplyComparison(*window.Session(), kept);
  const QJsonObject trees = kept["trees"].toObject();
  for (const auto& [name, panel] : PanelsOf(window)) ApplyView(*panel, trees[name].toObject());
}

KeptTrees::KeptTrees(KeptFile file) : file_(std::move(file)) {}

void KeptTrees::Apply(MainWindow& window) { PutTrees(window, file_.Read()); }

bool KeptTrees::Save(const MainWindow& window) {
  if (file_.IsNone() || !window.Session()) return true;
  const QJsonObject kept = file_.Read();
  return file_.Write(TreesOf(window, kept));
}

}  // namespace oxviewer
