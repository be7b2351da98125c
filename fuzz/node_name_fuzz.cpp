#include <fuzz/Input.h>
#include <uicomps/base/BaseTree.h>
#include <uicomps/tree/Tree.h>

#include <utility>

namespace {

/// The parts of a name by the rules as they are written down: the rest and the head.
std::pair<std::string, std::string> Divided(const std::string& name) {
  if (name.size() >= 7 && name.find("groups/") != std::string::npos) return {name.substr(7), name.substr(0, 6)};
  for (std::size_t i = 0; i < name.size(); ++i) {
    if (name[i] == '/') return {name.substr(i + 1), name.substr(0, i)};
  }
  return {name, name == "root" ? "" : "root"};
}

}  // namespace

// Any name divides as the rules say, also into the string that it stands in.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using oxecad_ui::BaseTree;
  using oxecad_ui::Tree;
  const std::string name = fuzz::Input(data, size).Rest();
  const auto [rest, head] = Divided(name);
  std::string got_rest;
  std::string got_head;
  BaseTree::DivideName(name, got_rest, got_head);
  fuzz::Require(got_rest == rest && got_head == head);

  std::string both = name;
  BaseTree::DivideName(both, both, got_head);
  fuzz::Require(both == rest && got_head == head);
  both = name;
  BaseTree::DivideName(both, got_rest, both);
  fuzz::Require(got_rest == rest && both == head);

  Tree::NodeInfo info;
  info.name = name;
  std::wstring label;
  Tree::NodeInfoToNames(info, got_head, label);
  fuzz::Require(got_head == head && label.empty() == rest.empty());
  return 0;
}
