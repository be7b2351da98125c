#include <viewer/window/BoardSession.h>

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>

#include <algorithm>
#include <map>
#include <utility>

#include <uiox_qt/ImageWords.h>

namespace oxviewer {
namespace {

QString Words(const char* text) { return QCoreApplication::translate("oxviewer::BoardSession", text); }

constexpr double kUnselectedDim = 0.7;

QRgb ToRgb(Color color) { return qRgb(RedOf(color), GreenOf(color), BlueOf(color)); }

QString Text(const std::string& utf8) { return QString::fromStdString(utf8); }

QString Millimetres(Nm length) { return QLocale::c().toString(length * kMillimetresPerNm, 'g', 6) + " mm"; }

void Set(std::vector<bool>& marks, std::size_t id) {
  if (marks.size() <= id) marks.resize(id + 1, false);
  marks[id] = true;
}

Color DimmedColor(Color color, QRgb background) {
  if (color == kNoColor) return color;
  const QRgb dimmed = Blended(ToRgb(color), background, kUnselectedDim);
  return ColorOf(static_cast<unsigned>(qRed(dimmed)), static_cast<unsigned>(qGreen(dimmed)),
                 static_cast<unsigned>(qBlue(dimmed)));
}

// United with an area that may be as thin as a line.
void Extend(QRectF& bounds, bool& any, const QRectF& area) {
  if (!std::exchange(any, true)) {
    bounds = area;
    return;
  }
  bounds = QRectF(QPointF(std::min(bounds.left(), area.left()), std::min(bounds.top(), area.top())),
                  QPointF(std::max(bounds.right(), area.right()), std::max(bounds.bottom(), area.bottom())));
}

template <class Accept>
void ExtendByItems(const BoardGeometry& geometry, QRectF& bounds, bool& any, const Accept& accept) {
  for (std::size_t i = 0; i < geometry.layers.size(); ++i) {
    const LayerGeometry& layer = geometry.layers[i];
    const auto id = static_cast<LayerId>(i);
    for (const LineItem& item : layer.lines) {
      if (accept(item.origin, id)) Extend(bounds, any, QRectF(item.line.p1(), item.line.p2()).normalized());
    }
    for (const AreaItem& item : layer.areas) {
      if (accept(item.origin, id)) Extend(bounds, any, item.box);
    }
  }
}

// Everything has look 0.
LookTable FirstLooks(const Board& board) {
  LookTable table;
  table.nets.assign(board.nets.size(), 0);
  table.components.assign(board.components.size(), 0);
  table.layers.assign(board.layers.size(), 0);
  table.netsOnSelected = table.nets;
  table.componentsOnSelected = table.components;
  table.selectedLayers.assign(board.layers.size(), false);
  return table;
}

std::uint32_t NumberOf(const CompareLook& look, std::vector<CompareLook>& looks) {
  const auto known = std::find(looks.begin(), looks.end(), look);
  const auto number = static_cast<std::uint32_t>(known - looks.begin());
  if (known == looks.end()) looks.push_back(look);
  return number;
}

// `own` is the look that is not dimmed.
void PutLook(LookTable& table, CompareSubject::Kind kind, std::int32_t id, std::uint32_t look, std::uint32_t own) {
  if (id < 0) return;  // the board does not have it
  const auto at = static_cast<std::size_t>(id);
  switch (kind) {
    case CompareSubject::Kind::Net:
      table.nets[at] = look;
      table.netsOnSelected[at] = own;
      break;
    case CompareSubject::Kind::Component:
      table.components[at] = look;
      table.componentsOnSelected[at] = own;
      break;
    case CompareSubject::Kind::Layer:
      table.layers[at] = look;
      table.selectedLayers[at] = look == own;
      break;
  }
}

}  // namespace

BoardSession::BoardSession(LoadedBoards boards, oxcore::Mainframe* mainframe)
    : boards_(std::move(boards)),
      a_(BoardGeometry::Make(*boards_.a)),
      b_(boards_.b ? BoardGeometry::Make(*boards_.b) : nullptr),
      trees_(boards_.b ? std::make_unique<BoardTrees>(*boards_.a, *boards_.b, *boards_.diff, mainframe)
                       : std::make_unique<BoardTrees>(*boards_.a, mainframe)),
      netColors_(boards_.a->nets.size(), kNoColor) {}

std::shared_ptr<const Scene> BoardSession::MakeScene(const ViewStyle& view) const {
  if (IsComparing()) return std::make_shared<CompareScene>(a_, b_, CompareStyleOf(view));
  return std::make_shared<BoardScene>(a_, StyleOf(view));
}

BoardStyle BoardSession::StyleOf(const ViewStyle& view) const {
  BoardStyle style;
  style.view = view;
  const LayerTree& layers = trees_->Layers();
  for (std::size_t i = 0; i < A().layers.size(); ++i) {
    const auto id = static_cast<LayerId>(i);
    style.layers.push_back({layers.IsVisible(id), ToRgb(layers.ColorOfLayer(id))});
  }
  style.activeLayer = layers.ActiveLayer();
  for (const Color color : netColors_) style.netColors.push_back(color == kNoColor ? 0 : ToRgb(color));
  style.marked = Selection();
  style.marked.Add(highlighted_);
  style.isolated = isolated_;
  return style;
}

// What is not selected is dimmed, but for what lies on a layer that is.
CompareStyle BoardSession::CompareStyleOf(const ViewStyle& view) const {
  CompareStyle style;
  style.view = view;
  style.looks.push_back({CompareTree::kColorA, CompareTree::kColorB, CompareTree::kColorOverlap,
                         oxk::ecad::CompareColorVis::Both, false});
  style.a = FirstLooks(*boards_.a);
  style.b = FirstLooks(*boards_.b);
  const CompareTree& compare = *trees_->Compare();
  const std::vector<std::size_t>& selected = compare.Selected();
  const bool dimOthers = !selected.empty() && selected.size() < compare.Subjects().size();
  for (std::size_t i = 0; i < compare.Subjects().size(); ++i) {
    const CompareSubject& subject = compare.Subjects()[i];
    CompareLook look = compare.LookOf(i);
    const std::uint32_t own = NumberOf(look, style.looks);
    const bool dim = dimOthers && !std::binary_search(selected.begin(), selected.end(), i);
    if (dim) {
      for (Color* color : {&look.colorA, &look.colorB, &look.colorOverlap}) {
        *color = DimmedColor(*color, view.background);
      }
    }
    const std::uint32_t number = dim ? NumberOf(look, style.looks) : own;
    PutLook(style.a, subject.kind, subject.a, number, own);
    PutLook(style.b, subject.kind, subject.b, number, own);
  }
  style.layers = VisibleLayers();
  return style;
}

// The layers of A that are visible, each with that of the same name of B, from back to front. A layer that only B has
// is visible, and lies where B has it.
std::vector<LayerPair> BoardSession::VisibleLayers() const {
  std::vector<LayerPair> pairs;
  for (const LayerId id : a_->backToFront) pairs.push_back({id, kNoLayer});
  std::map<std::string_view, LayerId> ofA;
  for (const LayerId id : a_->backToFront) ofA.emplace(A().layers[static_cast<std::size_t>(id)].name, id);
  auto at = pairs.begin();
  for (const LayerId id : b_->backToFront) {
    const auto same = ofA.find(boards_.b->layers[static_cast<std::size_t>(id)].name);
    if (same == ofA.end()) {
      at = pairs.insert(at, {kNoLayer, id});
    } else {
      at = std::find_if(pairs.begin(), pairs.end(), [&](const LayerPair& pair) { return pair.a == same->second; });
      at->b = id;
    }
    ++at;
  }
  std::erase_if(pairs,
                [this](const LayerPair& pair) { return pair.a != kNoLayer && !trees_->Layers().IsVisible(pair.a); });
  return pairs;
}

Marks BoardSession::MarksOf(const std::vector<const oxviewer::Component*>& components) const {
  Marks marks;
  for (const Component* component : components) {
    Set(marks.components, static_cast<std::size_t>(component - A().components.data()));
  }
  return marks;
}

Marks BoardSession::Selection() const {
  Marks marks = MarksOf(trees_->Parts().Selected());
  for (const void* net : trees_->Nets().SelectedObjects()) {
    Set(marks.nets, static_cast<std::size_t>(static_cast<const Net*>(net) - A().nets.data()));
  }
  for (const void* component : trees_->Components().SelectedObjects()) {
    Set(marks.components, static_cast<std::size_t>(static_cast<const Component*>(component) - A().components.data()));
  }
  return marks;
}

void BoardSession::Highlight(bool add) {
  if (!add) highlighted_ = {};
  highlighted_.Add(Selection());
}

void BoardSession::Isolate(bool add) {
  if (!add) isolated_ = {};
  isolated_.Add(Selection());
}

void BoardSession::SetMarks(const Marks& highlighted, const Marks& isolated) {
  highlighted_ = highlighted;
  isolated_ = isolated;
}

void BoardSession::ClearMarks() {
  highlighted_ = {};
  isolated_ = {};
}

void BoardSession::SetNetColors(const std::vector<NetId>& nets, Color color) {
  for (const NetId net : nets) {
    netColors_[static_cast<std::size_t>(net)] = color;
    trees_->Nets().SetType(A().nets[static_cast<std::size_t>(net)],
                           color == kNoColor ? NetTree::kPlainType : trees_->Layers().TypeOfColor(color));
  }
}

void BoardSession::ReadNetColors() {
  for (std::size_t i = 0; i < netColors_.size(); ++i) {
    const auto color = uiox_qt::ColorOfSquare(trees_->Nets().GetNodeType(NetTree::NodeOf(A().nets[i]).c_str()));
    netColors_[i] = color
                        ? ColorOf(static_cast<std::uint32_t>(qRed(*color)), static_cast<std::uint32_t>(qGreen(*color)),
                                  static_cast<std::uint32_t>(qBlue(*color)))
                        : kNoColor;
  }
}

std::vector<NetId> BoardSession::SelectedNets() const {
  std::vector<NetId> nets;
  for (const void* net : trees_->Nets().SelectedObjects()) {
    nets.push_back(static_cast<NetId>(static_cast<const Net*>(net) - A().nets.data()));
  }
  return nets;
}

std::vector<QRectF> BoardSession::FramesOfSelection() const {
  std::vector<QRectF> frames;
  const Marks marks = Selection();
  for (std::size_t i = 0; i < marks.components.size(); ++i) {
    if (marks.components[i] && !a_->componentBoxes[i].isNull()) frames.push_back(a_->componentBoxes[i]);
  }
  return frames;
}

QRectF BoardSession::BoundsOf(const Marks& marks) const {
  QRectF bounds;
  bool any = false;
  ExtendByItems(*a_, bounds, any, [&](const ItemOrigin& origin, LayerId) { return marks.Has(origin); });
  return any ? bounds : a_->bounds;
}

QRectF BoardSession::BoundsOfSubject(std::size_t number) const {
  const CompareSubject& subject = trees_->Compare()->Subjects()[number];
  QRectF bounds;
  bool any = false;
  for (const auto& [geometry, id] : {std::pair(a_.get(), subject.a), std::pair(b_.get(), subject.b)}) {
    if (id < 0) continue;
    ExtendByItems(*geometry, bounds, any, [&, wanted = id](const ItemOrigin& origin, LayerId layer) {
      switch (subject.kind) {
        case CompareSubject::Kind::Net:
          return origin.net == wanted;
        case CompareSubject::Kind::Component:
          return origin.component == wanted;
        case CompareSubject::Kind::Layer:
          break;
      }
      return layer == wanted;
    });
  }
  return any ? bounds : a_->bounds.united(b_->bounds);
}

std::optional<Hit> BoardSession::HitAt(QPointF place, double tolerance) const {
  return HitTest(*a_, place, tolerance, [this](LayerId layer) { return trees_->Layers().IsVisible(layer); });
}

QString BoardSession::DescriptionOf(const Hit& hit) const {
  QStringList words;
  const auto index = static_cast<std::size_t>(hit.origin.index);
  switch (hit.origin.kind) {
    case ItemKind::Track:
      words << Words("Track %1").arg(Millimetres(A().tracks[index].width));
      break;
    case ItemKind::Via:
      words << Words("Via %1").arg(Millimetres(A().vias[index].size));
      break;
    case ItemKind::Zone:
      words << (A().zones[index].keepout ? Words("Rule area") : Words("Zone"));
      break;
    case ItemKind::Drawing:
      words << Words("Drawing");
      break;
    case ItemKind::Pad:
      words << Words("Pad %1").arg(Text(A().pads[index].number));
      break;
  }
  if (hit.origin.component != kNoComponent) {
    const Component& component = A().components[static_cast<std::size_t>(hit.origin.component)];
    words << Text(ComponentLabel(component)) + (component.value.empty() ? QString() : " " + Text(component.value));
  }
  if (hit.origin.net != kNoNet)
    words << Words("net %1").arg(Text(A().nets[static_cast<std::size_t>(hit.origin.net)].name));
  words << Text(LayerLabel(A().layers[static_cast<std::size_t>(hit.layer)]));
  return words.join(QStringLiteral("  ·  "));
}

}  // namespace oxviewer
