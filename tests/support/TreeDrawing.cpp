#include <gtest/gtest.h>
#include <tests/support/Quoted.h>
#include <tests/support/TreeDrawing.h>

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <vector>

namespace test_support {
namespace {

using uiox::NodeId;

std::wstring WideOf(std::string_view utf8) { return Unescaped(Escaped(utf8)); }

struct Line {
  std::size_t indent = 0;
  std::vector<std::string> words;  // each with its quotes
};

std::vector<std::string> Words(std::string_view text) {
  std::vector<std::string> words;
  std::string word;
  bool quoted = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (c == ' ' && !quoted) {
      if (!word.empty()) words.push_back(std::exchange(word, {}));
      continue;
    }
    word += c;
    if (c == '\\' && i + 1 < text.size()) {
      word += text[++i];
    } else if (c == '"') {
      quoted = !quoted;
    } else if (c == '[' && !quoted) {  // a mark may hold a blank
      quoted = true;
    } else if (c == ']' && quoted && word.front() == '[') {
      quoted = false;
    }
  }
  if (!word.empty()) words.push_back(word);
  return words;
}

std::vector<Line> Parse(std::string_view drawing) {
  std::vector<Line> lines;
  std::size_t least = std::string_view::npos;
  while (!drawing.empty()) {
    const auto end = std::min(drawing.find('\n'), drawing.size());
    const std::string_view line = drawing.substr(0, end);
    drawing.remove_prefix(std::min(drawing.size(), end + 1));
    const auto first = line.find_first_not_of(' ');
    if (first == std::string_view::npos) continue;
    least = std::min(least, first);
    lines.push_back({first, Words(line.substr(first))});
  }
  for (Line& line : lines) line.indent -= least;
  return lines;
}

std::string Normal(std::string_view drawing) {
  std::string text;
  for (const Line& line : Parse(drawing)) {
    text.append(line.indent, ' ');
    for (std::size_t i = 0; i < line.words.size(); ++i) text += (i ? " " : "") + line.words[i];
    text += '\n';
  }
  return text;
}

bool IsQuoted(const std::string& word) { return word.size() >= 2 && word.front() == '"' && word.back() == '"'; }

std::string Unquoted(const std::string& word) { return IsQuoted(word) ? std::string(word, 1, word.size() - 2) : word; }

/// The text of an escaped narrow one: only the escapes that `Escaped` writes for it.
std::string Narrow(std::string_view escaped) {
  std::string out;
  for (std::size_t i = 0; i < escaped.size(); ++i) {
    if (escaped[i] != '\\' || i + 1 == escaped.size()) {
      out += escaped[i];
      continue;
    }
    const char kind = escaped[++i];
    if (kind == 'x') {
      unsigned value = 0;
      std::from_chars(escaped.data() + i + 1, escaped.data() + i + 3, value, 16);
      out += static_cast<char>(value);
      i += 2;
    } else {
      out += kind == 'n' ? '\n' : kind == 't' ? '\t' : kind;
    }
  }
  return out;
}

std::string NameWord(const char* name) {
  const std::string_view text = name;
  const bool plain = !text.empty() && text.find_first_of(" \"\\[<") == std::string_view::npos;
  return plain ? std::string(text) : Quoted(name);
}

class Artist {
 public:
  Artist(const uiox::TreeStore& store, const uiox::TreeWidget* widget, unsigned parts)
      : store_(store), widget_(widget), parts_(parts) {}

  std::string Draw() {
    std::vector<std::pair<NodeId, std::size_t>> open;
    Push(open, uiox::kTop, 0);
    while (!open.empty()) {
      const auto [node, level] = open.back();
      open.pop_back();
      text_.append(2 * level, ' ');
      DrawNode(node);
      text_ += '\n';
      Push(open, node, level + 1);
    }
    return text_;
  }

 private:
  void Push(std::vector<std::pair<NodeId, std::size_t>>& open, NodeId parent, std::size_t level) const {
    std::vector<NodeId> children;
    store_.AppendChildren(parent, children);
    for (auto child = children.rbegin(); child != children.rend(); ++child) open.emplace_back(*child, level);
  }

  void DrawNode(NodeId node) {
    const char* const name = store_.Name(node);
    text_ += NameWord(name);
    const std::wstring label = store_.Label(node);
    if (label != WideOf(name)) text_ += " \"" + Escaped(label) + '"';
    if (parts_ & kMarks) {
      const unsigned state = store_.CheckState(node);
      text_ += state == 0 ? " [ ]" : state == 2 ? " [-]" : " [x]";
    }
    const char* const type = uiox::Suite::Get().Types().Name(store_.Type(node));
    if ((parts_ & kTypes) && *type) text_ += " <" + std::string(type) + '>';
    if ((parts_ & kExpanded) && store_.Expanded(node) != 0) text_ += " +";
    if ((parts_ & kSelected) && store_.IsSelected(node)) text_ += " *";
    if ((parts_ & kLocked) && !store_.CheckSensitive(node)) text_ += " locked";
    if ((parts_ & kUserData) && store_.UserData(node)) {
      text_ += " =" + Hex(reinterpret_cast<std::uintptr_t>(store_.UserData(node)));
    }
    if (parts_ & kCells) DrawCells(node);
  }

  void DrawCells(NodeId node) {
    for (std::size_t i = 0; i < store_.Columns(); ++i) {
      const uiox::CellPlace cell{node, static_cast<uiox::ColumnIndex>(i)};
      const std::string column = widget_ ? widget_->Style().columns[i].name : std::to_string(i);
      const std::wstring label = store_.CellLabel(cell);
      if (!label.empty()) text_ += ' ' + column + ":\"" + Escaped(label) + '"';
      if (const uiox::Widget* control = widget_ ? widget_->ControlIn(cell) : nullptr) {
        text_ += ' ' + column + ":{" + control->Name() + '}';
      }
    }
  }

  const uiox::TreeStore& store_;
  const uiox::TreeWidget* widget_;
  const unsigned parts_;
  std::string text_;
};

class Gardener {
 public:
  explicit Gardener(uiox::TreeWidget& tree) : tree_(tree), store_(tree.Store()) {}

  bool PlantLine(const Line& line) {
    while (!path_.empty() && path_.back().first >= line.indent) path_.pop_back();
    const NodeId parent = path_.empty() ? uiox::kTop : path_.back().second;
    const std::string name = Narrow(Unquoted(line.words.front()));
    std::size_t next = 1;
    std::wstring label = WideOf(name);
    if (line.words.size() > 1 && IsQuoted(line.words[1])) {
      label = Unescaped(Unquoted(line.words[1]));
      next = 2;
    }
    NodeId node = store_.Find(name);
    if (node == uiox::kNoNode || !path_.empty()) {
      uiox::NewNode fresh;
      fresh.name = name;
      fresh.label = label;
      node = store_.Add(fresh, parent);
    }
    if (node == uiox::kNoNode) return false;
    path_.emplace_back(line.indent, node);
    return std::all_of(line.words.begin() + static_cast<std::ptrdiff_t>(next), line.words.end(),
                       [&](const std::string& word) { return PlantPart(node, word); });
  }

 private:
  bool PlantPart(NodeId node, const std::string& word) {
    if (word == "[ ]" || word == "[x]" || word == "[-]") {
      store_.SetCheckState(node, word[1] == ' ' ? 0 : word[1] == 'x' ? 1 : 2);
    } else if (word.front() == '<' && word.back() == '>') {
      store_.SetType(node, uiox::Suite::Get().Types().Intern(word.substr(1, word.size() - 2)));
    } else if (word == "+") {
      store_.SetExpanded(node, 1);
    } else if (word == "*") {
      store_.SetThirdInt(node, 1);
    } else if (word == "locked") {
      store_.SetCheckSensitive(node, false);
    } else if (word.starts_with("=0x")) {
      std::uintptr_t value = 0;
      std::from_chars(word.data() + 3, word.data() + word.size(), value, 16);
      store_.SetUserData(node, reinterpret_cast<void*>(value));
    } else {
      const auto colon = word.find(":\"");
      if (colon == std::string::npos) return false;
      const uiox::ColumnIndex column = tree_.FindColumn(word.substr(0, colon));
      if (column == uiox::kNoColumn) return false;
      store_.SetCellLabel({node, column}, Unescaped(Unquoted(word.substr(colon + 1))));
    }
    return true;
  }

  uiox::TreeWidget& tree_;
  uiox::TreeStore& store_;
  std::vector<std::pair<std::size_t, NodeId>> path_;  // indentation and node, down to the line before
};

}  // namespace

bool operator==(const Drawing& a, const Drawing& b) { return Normal(a.text) == Normal(b.text); }

std::ostream& operator<<(std::ostream& out, const Drawing& drawing) { return out << '\n' << Normal(drawing.text); }

Drawing Drawn(const uiox::TreeWidget& tree, unsigned parts) { return {Artist(tree.Store(), &tree, parts).Draw()}; }

Drawing Drawn(const uiox::TreeStore& store, unsigned parts) { return {Artist(store, nullptr, parts).Draw()}; }

void Plant(uiox::TreeWidget& tree, std::string_view drawing) {
  Gardener gardener(tree);
  for (const Line& line : Parse(drawing)) {
    if (gardener.PlantLine(line)) continue;
    std::string text;
    for (const std::string& word : line.words) text += word + ' ';
    ADD_FAILURE() << "cannot be planted: " << text;
    return;
  }
}

}  // namespace test_support
