/// \file
/// What a compare tree asks and tells, in few words.
#ifndef OXECAD_TESTS_UICOMPS_COMPARE_BRIEF_H
#define OXECAD_TESTS_UICOMPS_COMPARE_BRIEF_H

#include <tests/support/Quoted.h>
#include <uiox/Call.h>

#include <string>
#include <string_view>
#include <vector>

namespace compare_tests {

/// The text without indentation and blank lines.
inline std::string Lined(std::string_view text) {
  std::string lines;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = std::min(text.find('\n', at), text.size());
    const std::string_view line = text.substr(at, end - at);
    at = end + 1;
    const std::size_t first = line.find_first_not_of(' ');
    if (first == std::string_view::npos) continue;
    lines += line.substr(first, line.find_last_not_of(' ') - first + 1);
    lines += '\n';
  }
  return lines;
}

/// Calls as lines; reads and writes of one node's cells that follow each other share a line. Releases are left out.
///
///     children p
///     type a
///     parent p
///     read a: showMode dimOverlap a b overlap
///     write p: showMode=<both_show> dimOverlap=2 a=5 b= overlap=<mix>     (5: the label with the icon of colour 5)
///     icon color_square.png_5
class Brief {
 public:
  void Note(const uiox::Call& call) {
    using uiox::Function;
    if (call.function == Function::GlobalDoOperation && call.code == 6031) {
      Line(std::string("icon ") + call.positional[0].Text());
    }
    if (call.function != Function::DoOperation) return;
    const std::string node = call.positional_count > 0 ? Text(call.positional[0].Text()) : std::string();
    switch (call.code) {
      case 2202:
        return Line((call.Find(284)   ? "children "
                     : call.Find(282) ? "type "
                     : call.Find(283) ? "parent "
                                      : "other ") +
                    node);
      case 2160:
      case 2163:
        return Cell("write ", node, call);
      case 2162:
      case 2165:
        return Cell("read ", node, call);
      default:
        return Line(std::to_string(call.code) + ' ' + node);
    }
  }

  std::string Take() {
    std::string text;
    for (const std::string& line : lines_) text += line + '\n';
    lines_.clear();
    head_.clear();
    return text;
  }

 private:
  static std::string Text(const char* text) { return text ? text : "null"; }

  void Line(std::string line) {
    lines_.push_back(std::move(line));
    head_.clear();
  }

  void Cell(const std::string& verb, const std::string& node, const uiox::Call& call) {
    const std::string head = verb + node + ':';
    if (head_ != head) Line(head);
    head_ = head;
    lines_.back() += ' ' + Text(call.positional[1].Text());
    for (const uiox::Option& option : call) {
      if (option.code == 140 || option.code == 468) lines_.back() += '.' + std::to_string(option.code);
      if (verb == "write ") lines_.back() += '=' + Value(option);
    }
  }

  static std::string Value(const uiox::Option& option) {
    if (option.shape == 's') return Text(option.value.Text());
    if (option.shape == 'u') return std::to_string(option.value.UInt());
    std::string label = option.value.Wide() ? test_support::Escaped(std::wstring_view(option.value.Wide())) : "null";
    constexpr std::string_view kOpen = "<img src=\\\"color_square.png_";
    if (label.rfind(kOpen, 0) == 0) label = label.substr(kOpen.size(), label.size() - kOpen.size() - 3);
    return label;
  }

  std::vector<std::string> lines_;
  std::string head_;
};

}  // namespace compare_tests

#endif
