#include <viewer/trees/Dump.h>
#include <viewer/trees/LayerPalette.h>
#include <viewer/trees/Markup.h>

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

#include <oxecadutils/StringConversion.h>
#include <uicomps/color/ColorIconBag.h>
#include <uiox/Suite.h>

namespace oxviewer {
namespace {

constexpr std::string_view kSquare = "color_square.png";
constexpr std::string_view kNone = "none";
constexpr std::string_view kMix = "mix";

void AppendEscaped(std::string_view text, std::string& out) {
  for (const char c : text) {
    switch (c) {
      case '\t':
        out += "\\t";
        break;
      case '\n':
        out += "\\n";
        break;
      case '\r':
        out += "\\r";
        break;
      case '\\':
        out += "\\\\";
        break;
      default:
        out += c;
    }
  }
}

void AppendField(std::string_view key, std::string_view value, std::string& out) {
  out += '\t';
  out += key;
  out += '=';
  AppendEscaped(value, out);
}

std::string HexColor(Color color) {
  constexpr char kDigits[] = "0123456789abcdef";
  std::string text = "#";
  for (const int channel : {RedOf(color), GreenOf(color), BlueOf(color)}) {
    text += kDigits[channel / 16];
    text += kDigits[channel % 16];
  }
  return text;
}

// The colour of a square by the name of its image; none for another image.
std::string ColorOfImage(const std::string& image) {
  if (image == kMix) return std::string(kMix);
  if (!image.starts_with(kSquare)) return std::string(kNone);
  const Color color = oxecad_ui::ColorIconBag::Get().GetColorFromIcon(image.c_str(), kSquare.data());
  return color == kNoColor ? std::string(kNone) : HexColor(color);
}

// The text between the prefix and the suffix of a label.
std::string Between(std::wstring_view label, std::wstring_view prefix, std::wstring_view suffix) {
  if (label.size() < prefix.size() + suffix.size() || !label.starts_with(prefix) || !label.ends_with(suffix)) return {};
  label.remove_prefix(prefix.size());
  label.remove_suffix(suffix.size());
  return oxecadutils::WideStrToUtf8(std::wstring(label));
}

std::string ColorOfCell(std::wstring_view label) {
  if (label == L"<mix>") return std::string(kMix);
  const std::string image = Between(label, L"<img src=\"", L"\">");
  return image.empty() ? std::string(kNone) : ColorOfImage(image);
}

std::string ModeOfCell(std::wstring_view label) {
  const std::string mode = Between(label, L"<", L"_show>");
  return mode.empty() ? std::string(kNone) : mode;
}

// The columns of a comparison, by their places in the tree.
class CompareColumns {
 public:
  explicit CompareColumns(const uiox::TreeWidget& tree) : tree_(tree) {
    for (std::size_t i = 0; i < kNames.size(); ++i) {
      columns_[i] = tree.FindColumn(kNames[i]);
      if (columns_[i] == uiox::kNoColumn) complete_ = false;
    }
  }

  static bool Has(std::string_view name) { return std::find(kNames.begin(), kNames.end(), name) != kNames.end(); }

  void Append(uiox::NodeId node, std::string& out) const {
    if (!complete_) return;
    AppendField("a", ColorOfCell(Label(node, 0)), out);
    AppendField("b", ColorOfCell(Label(node, 1)), out);
    AppendField("overlap", ColorOfCell(Label(node, 2)), out);
    AppendField("show", ModeOfCell(Label(node, 3)), out);
    const uiox::Widget* box = tree_.ControlIn({node, columns_[4]});
    AppendField("dim", box ? std::to_string(box->CheckState()) : std::string(kNone), out);
  }

 private:
  static constexpr std::array<std::string_view, 5> kNames{"a", "b", "overlap", "showMode", "dimOverlap"};

  std::wstring_view Label(uiox::NodeId node, std::size_t column) const {
    return tree_.Store().CellLabel({node, columns_[column]});
  }

  const uiox::TreeWidget& tree_;
  std::array<uiox::ColumnIndex, 5> columns_{};
  bool complete_ = true;
};

void AppendOtherCells(const uiox::TreeWidget& tree, uiox::NodeId node, std::string& out) {
  const std::vector<uiox::Column>& columns = tree.Style().columns;
  for (std::size_t i = 0; i < columns.size(); ++i) {
    if (CompareColumns::Has(columns[i].name)) continue;
    const std::wstring label = tree.Store().CellLabel({node, static_cast<uiox::ColumnIndex>(i)});
    if (label.empty()) continue;
    AppendField(columns[i].name, oxecadutils::WideStrToUtf8(columns[i].markup ? TextOfMarkup(label) : label), out);
  }
}

std::string LabelText(const uiox::TreeWidget& tree, uiox::NodeId node) {
  const std::wstring label = tree.Store().Label(node);
  return oxecadutils::WideStrToUtf8(tree.Style().label_column.markup ? TextOfMarkup(label) : label);
}

void AppendNode(const uiox::TreeWidget& tree, uiox::NodeId node, std::size_t level, const CompareColumns& compare,
                std::string& out) {
  const uiox::TreeStore& store = tree.Store();
  const std::string type = uiox::Suite::Get().Types().Name(store.Type(node));
  out.append(2 * level, ' ');
  AppendEscaped(LabelText(tree, node), out);
  AppendField("type", type, out);
  AppendField("state", std::to_string(store.CheckState(node)), out);
  AppendField("color", ColorOfImage(type), out);
  compare.Append(node, out);
  AppendOtherCells(tree, node, out);
  out += '\n';
}

}  // namespace

std::string DumpTree(const uiox::TreeWidget& tree) {
  struct Pending {
    uiox::NodeId node;
    std::size_t level;
  };
  const uiox::TreeStore& store = tree.Store();
  const CompareColumns compare(tree);
  std::string out = "# ";
  out += tree.Name();
  out += '\n';
  std::vector<Pending> pending;  // what is still to be written, the next node last
  std::vector<uiox::NodeId> children;
  const auto push = [&](uiox::NodeId parent, std::size_t level) {
    children.clear();
    store.AppendChildren(parent, children);
    for (auto child = children.rbegin(); child != children.rend(); ++child) pending.push_back({*child, level});
  };
  if (tree.Style().root_shown) {
    push(uiox::kTop, 0);
  } else if (store.Root() != uiox::kNoNode) {
    push(store.Root(), 0);
  }
  while (!pending.empty()) {
    const Pending next = pending.back();
    pending.pop_back();
    AppendNode(tree, next.node, next.level, compare, out);
    push(next.node, next.level + 1);
  }
  return out;
}

}  // namespace oxviewer
