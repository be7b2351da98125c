/// \file
/// What was selected in a tree, by name.
#ifndef OXECAD_VIEWER_WINDOW_NAMESELECTION_H
#define OXECAD_VIEWER_WINDOW_NAMESELECTION_H

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace oxviewer {

/// What one gesture changed of a selection.
struct NameStep {
  std::vector<std::string> before;
  std::vector<std::string> after;

  bool Any() const { return before != after; }
};

/// Remembers which nodes of a tree are selected and finds out what has become of it since. Nodes may come and go.
class NameSelection {
 public:
  using Read = std::function<std::vector<std::string>()>;
  using Write = std::function<void(const std::vector<std::string>&)>;

  /// `read` gives the names of what is selected, in any order that is always the same; `write` selects them instead.
  NameSelection(Read read, Write write) : read_(std::move(read)), write_(std::move(write)), names_(read_()) {}

  /// What has changed since the last call; remembers it.
  NameStep Take() {
    NameStep step;
    step.after = read_();
    step.before = std::exchange(names_, step.after);
    return step;
  }

  /// Selects what was selected before a step, or after it.
  void Put(const NameStep& step, bool before) {
    if (step.Any()) write_(before ? step.before : step.after);
    Take();
  }

 private:
  Read read_;
  Write write_;
  std::vector<std::string> names_;
};

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_WINDOW_NAMESELECTION_H
